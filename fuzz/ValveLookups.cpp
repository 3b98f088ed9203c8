#include <array>
#include <cstring>
#include <string>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "hydrofacts/valve/CValveTable.h"

namespace hydrofacts::fuzz {

// The head chooses formula and device type; then a line each with a name and the second part of one
// in the older form; the rest is the table.
void valve_lookups(Bytes bytes) {
    static constexpr int kAll[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 20, 21, 22, 0};
    Input input(bytes);
    const auto formula = static_cast<std::int16_t>(input.Byte());
    const auto type = static_cast<std::int16_t>(static_cast<int>(input.Byte()) - 2);
    const auto name = ExactCopy(input.Line().c_str());
    const std::string secondName = input.Line().c_str();
    Scratch().Write("Fuzz.VTBL", input.Text());

    CValveTable valves;
    const bool loaded = valves.LoadValveTable(Scratch().Path().c_str(), "Fuzz", HF_US, kAll) != 0;
    const auto sound = [](const CValveType* record) {
        return record == nullptr || ::strnlen(record->name, sizeof record->name) < 32;
    };
    Require(sound(valves.Find(name.get())) && valves.Find(nullptr) == nullptr, "Find");
    for (const std::int16_t kind : {type, std::int16_t{0}, std::int16_t{4}}) {
        const CValveType* found = valves.ValveData(name.get(), formula, kind);
        Require(sound(found) && (found == nullptr || found->formula == formula), "ValveData");
        // Room for 21 bytes or the text, whichever is more.
        std::string second = secondName;
        second.resize(std::max<std::size_t>(second.size() + 1, 21));
        const auto exact = std::make_unique<char[]>(second.size());
        std::memcpy(exact.get(), second.data(), second.size());
        const CValveType* former = valves.ValveDataV6(name.get(), exact.get(), formula, kind);
        Require(sound(former) && (former != nullptr) == loaded, "ValveDataV6");
    }
    const CValveTable copy(valves);
    Require((copy.Find("Fixed K") != nullptr) == (valves.Find("Fixed K") != nullptr),
            "a copy finds what the table finds");
}

}  // namespace hydrofacts::fuzz
