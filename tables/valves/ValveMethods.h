#ifndef HYDROFACTS_TABLES_VALVES_VALVEMETHODS_H
#define HYDROFACTS_TABLES_VALVES_VALVEMETHODS_H

#include <string_view>

namespace hydrofacts::tables {

/// Where the rows of a record with several rows come from.
enum class ValveRows {
    None,      ///< the record has three numbers instead
    OwnFile,   ///< rows of by_size.csv
    Friction,  ///< the friction factors of by_size.csv, times the first number
};

/// A method of devices.csv. docs/valve-methods.md tells what each formula number means.
struct ValveMethod {
    std::string_view name;
    int formula;
    int numbers;  ///< how many of n1, n2 and n3 are given; the first is above zero, no other below
    ValveRows rows;
    std::string_view remark;  ///< for the table's readers
};

/// The method of that name, null if there is none.
const ValveMethod* FindValveMethod(std::string_view name);

/// Every formula number of the methods, and those of the fixed resistances, with a 0 at the end:
/// the list for a host that wants all records.
extern const int kAllValveFormulas[];

}  // namespace hydrofacts::tables

#endif
