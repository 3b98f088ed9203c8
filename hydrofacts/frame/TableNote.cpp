#include "hydrofacts/frame/TableNote.h"

#include <string>

#include "hydrofacts/frame/TableFile.h"
#include "quillbase/DialogItems.h"
#include "quillbase/Text.h"
#include "quillbase/TextFile.h"

namespace {

// What a head line says in its second field, without the quotes.
struct HeadLine {
    bool found = false;  // the line has its key
    bool hasText = false;
    std::string text;
};

HeadLine ReadHeadLine(TextFile& file, char key) {
    char line[101];
    file.ReadLine(line, sizeof line);
    if (file.eof() || *line != key) return {};
    hydrofacts::NextField(line);
    char* field = hydrofacts::NextField(nullptr);
    if (field == nullptr) return {true, false, {}};
    return {true, true, UnquoteString(field)};
}

}  // namespace

void ShowTableNote(const char* path, HWND dialog, int control) {
    if (GetDlgItem(dialog, control) == nullptr) return;
    SetDlgItemNull(dialog, control);
    TextFile file(path);
    if (!file.ValidFile()) return;
    const HeadLine title = ReadHeadLine(file, 'S');
    if (!title.found) return;
    const HeadLine version = ReadHeadLine(file, 'V');
    const std::string note = version.hasText ? title.text + " - vers " + version.text : title.text;
    SetDlgItemTextA(dialog, control, note.c_str());
}
