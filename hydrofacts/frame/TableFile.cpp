#include "hydrofacts/frame/TableFile.h"

#include <cstddef>
#include <cstring>

#include "quillbase/Numbers.h"
#include "win32/Win32.h"

namespace {

HYDROFACTS_STATIC_TLS thread_local char* restOfLine = nullptr;

}  // namespace

int ReadDoubleField(char* line, double* value) {
    if (line != nullptr) restOfLine = line;
    return hydrofacts::TakeReal(restOfLine, value);
}

namespace hydrofacts {

char* NextField(char* line) {
    if (line != nullptr) restOfLine = line;
    return TakeField(restOfLine);
}

int TakeReal(char*& rest, double* value) {
    if (rest == nullptr) return 0;
    char* start = rest;
    while (IsDelimiter(*start)) ++start;
    double plain = 0.0;
    // A field that is all number need not be gone through a second time for its end.
    if (const char* end = quillbase::ScanPlainDecimal(start, &plain);
        end != nullptr && (*end == '\0' || IsDelimiter(*end))) {
        rest = CutField(start + (end - start));
        *value = plain;
        return 1;
    }
    const char* field = TakeField(rest);
    if (field == nullptr) return 0;
    return quillbase::ScanReal(field, value) != quillbase::kNoNumber ? 1 : 0;
}

bool LevelsAreWithin(char* line, double highLimit, double lowLimit) {
    NextField(line);
    NextField(nullptr);
    NextField(nullptr);
    double level = 0.0;
    ReadDoubleField(nullptr, &level);
    if (highLimit != 0.0 && highLimit < level) return false;
    ReadDoubleField(nullptr, &level);
    return lowLimit == 0.0 || !(lowLimit > level);
}

TablePath::TablePath(const char* directory, const char* name, const char* extension) : path_{} {
    const std::size_t directoryLength = std::strlen(directory);
    const std::size_t nameLength = std::strlen(name);
    const std::size_t extensionLength = std::strlen(extension);
    if (directoryLength + 1 + nameLength + extensionLength >= sizeof path_) return;

    char* end = path_;
    const auto append = [&end](const char* text, std::size_t length) {
        std::memcpy(end, text, length);
        end += length;
    };
    append(directory, directoryLength);
    append(&win32::kPathSeparator, 1);
    append(name, nameLength);
    append(extension, extensionLength + 1);
}

}  // namespace hydrofacts
