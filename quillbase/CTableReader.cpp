#include "quillbase/CTableReader.h"

#include <string>

#include "quillbase/FileText.h"
#include "quillbase/MessageTable.h"

CTableReader::CTableReader(const char* path, char delimiter, HINSTANCE, char*) : valid_(false) {
    const quillbase::FileText file(path);
    if (!file.Valid()) return;
    cells_.Assign(std::string(file.Text()), delimiter);
    valid_ = quillbase::NamesALanguage(cells_);
}

CTableReader::~CTableReader() = default;
