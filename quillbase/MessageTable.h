#ifndef QUILLBASE_MESSAGETABLE_H
#define QUILLBASE_MESSAGETABLE_H

#include <optional>
#include <string_view>

#include "quillbase/CellTable.h"

namespace quillbase {

/// A language as a Windows language identifier tells it: ten bits of primary language, six of
/// sublanguage.
struct LanguageId {
    unsigned primary = 0;
    unsigned sub = 0;

    static constexpr LanguageId From(unsigned long identifier) {
        return {static_cast<unsigned>(identifier & 0x3FFU),
                static_cast<unsigned>((identifier >> 10U) & 0x3FU)};
    }
};

inline constexpr LanguageId kEnglish = {9, 1};

/// Whether the line IDS of a table holds the code of a language, such as "09-01".
bool NamesALanguage(const CellTable& cells);

/// The text of a message, without its three quotes on each side, in the column that matches the
/// language: primary language and sublanguage, or else the first column of the primary language.
/// None if there is no such column, or no such message, or its cell is empty.
std::optional<std::string_view> FindMessage(const CellTable& cells, unsigned id,
                                            LanguageId language);

}  // namespace quillbase

#endif
