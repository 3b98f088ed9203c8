#include "quillbase/CTableReader.h"

#include <string>
#include <string_view>

#include "quillbase/FileText.h"
#include "quillbase/MessageTable.h"

CTableReader::CTableReader(const char* path, char delimiter, HINSTANCE, char*) : valid_(false) {
    const quillbase::FileText file(path);
    if (!file.Valid()) return;
    cells_.Assign(std::string(file.Text()), delimiter);
    valid_ = quillbase::NamesALanguage(cells_);
}

CTableReader::~CTableReader() = default;

void CTableReader::Fill(bool, HWND list, const char* items, char delimiter, bool) {
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (std::string_view rest = items; !rest.empty();) {
        const std::size_t end = rest.find(delimiter);
        const std::string item(rest.substr(0, end));
        if (!item.empty()) {
            SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
        }
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
}
