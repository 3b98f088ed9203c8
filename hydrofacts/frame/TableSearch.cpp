#include "hydrofacts/frame/TableSearch.h"

#include <cstring>

#include "hydrofacts/frame/TableFile.h"
#include "quillbase/TextFile.h"

namespace hydrofacts {

TableSearch::TableSearch(const char* directory, const char* extension)
    : search_(FindFirstFileA(TablePath(directory, "*", extension).c_str(), &found_)) {}

TableSearch::~TableSearch() {
    if (search_ != INVALID_HANDLE_VALUE) FindClose(search_);
}

bool TableSearch::Next() {
    if (search_ == INVALID_HANDLE_VALUE) return false;
    if (!first_ && FindNextFileA(search_, &found_) == FALSE) return false;
    first_ = false;

    constexpr std::size_t kExtension = 5;
    const std::size_t length = std::strlen(found_.cFileName);
    found_.cFileName[length < kExtension ? 0 : length - kExtension] = '\0';
    return true;
}

bool FileLevelsAreWithin(TextFile& file, double highLimit, double lowLimit) {
    char line[101];
    do {
        file.ReadLine(line, sizeof line);
    } while (!file.eof() && *line != 'V');
    return LevelsAreWithin(line, highLimit, lowLimit);
}

}  // namespace hydrofacts
