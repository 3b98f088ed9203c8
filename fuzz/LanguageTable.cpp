#include <cstring>
#include <memory>
#include <string>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "quillbase/CLanguage.h"
#include "quillbase/CTableReader.h"
#include "quillbase/MessageTable.h"

namespace hydrofacts::fuzz {
namespace {

void RequireSoundText(const CLanguage& language, unsigned id) {
    for (const int size : {0, 2, 160}) {
        const auto buffer = std::make_unique<char[]>(static_cast<std::size_t>(size));
        const int length = language.String(nullptr, id, buffer.get(), size);
        Require(size == 0 ? length == 0 : length < size, "a message fits its buffer");
        if (size > 0) Require(buffer[static_cast<std::size_t>(length)] == '\0', "and ends there");
        const int with =
            language.FormatString(nullptr, static_cast<int>(id), buffer.get(), size, "100% %s");
        Require(size == 0 ? with == 0 : with < size, "so it does with a name in it");
    }
}

}  // namespace

void language_table(Bytes bytes) {
    const std::string path = Scratch().Write("Fuzz.DAT", Input(bytes).Text());
    CTableReader reader(path.c_str(), '\t', nullptr, nullptr);
    CLanguage language;
    language.Attach(nullptr, &reader);
    for (const unsigned long identifier : {1033UL, 1031UL, 0xFFFFFFFFUL}) {
        language.SetLanguage(identifier);
        for (const unsigned id : {1U, 6U, 0xFFFFFFFFU}) RequireSoundText(language, id);
        const auto text =
            quillbase::FindMessage(reader.Cells(), 1, quillbase::LanguageId::From(identifier));
        Require(!text || reader.Valid(), "a table with a message names a language");
    }
}

}  // namespace hydrofacts::fuzz
