#ifndef HYDROFACTS_TESTS_SUPPORT_TABLETEXT_H
#define HYDROFACTS_TESTS_SUPPORT_TABLETEXT_H

#include <string>
#include <string_view>

/// The text of a table file as tests write it: a bar stands for the tab, "\n" for CR LF.
inline std::string TableText(std::string_view lines) {
    std::string text;
    for (const char c : lines) {
        if (c == '\n') text += '\r';
        text += c == '|' ? '\t' : c;
    }
    return text;
}

#endif
