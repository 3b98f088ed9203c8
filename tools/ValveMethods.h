#ifndef TOOLS_VALVEMETHODS_H
#define TOOLS_VALVEMETHODS_H

#include <array>

namespace hydrofacts::command {

/// What a formula number of a valve table means, in the words of docs/valve-methods.md.
struct ValveMethod {
    int formula;
    const char* name;
    const char* meaning;                 ///< an equation of K, or what the numbers are
    std::array<const char*, 3> numbers;  ///< the names of the numbers, null where none is used
};

/// The method of a formula number; null if that is none of ours.
const ValveMethod* FindValveMethod(int formula);

}  // namespace hydrofacts::command

#endif
