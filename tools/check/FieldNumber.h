#ifndef TOOLS_CHECK_FIELDNUMBER_H
#define TOOLS_CHECK_FIELDNUMBER_H

#include <cstdint>
#include <optional>
#include <string_view>

#include "tools/check/TableText.h"

namespace hydrofacts::command {

enum class Need {
    Any,
    Nonzero,
    Positive,
};

/// A field of a line that has to be a number.
struct NumberField {
    std::size_t field;
    const char* what;
    Need need = Need::Any;
};

/// The number that the library reads in a field, nothing if it reads none there. Reports whatever
/// makes that another number than the one that a person reads.
std::optional<double> CheckReal(const TableLine& line, const NumberField& wanted,
                                Findings& findings);

/// The same for a whole number, which the library cuts to 16 bits.
std::optional<std::int16_t> CheckShort(const TableLine& line, const NumberField& wanted,
                                       Findings& findings);

/// Where a number stands in a text that may go on behind it.
struct ScannedInteger {
    std::int32_t value;
    std::string_view rest;
};

/// Reads as "%i" does: 0x marks a hexadecimal number, a leading 0 an octal one.
std::optional<ScannedInteger> ScanInteger(std::string_view text);

}  // namespace hydrofacts::command

#endif
