#include "quillbase/CLanguage.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string>

#include "quillbase/CTableReader.h"
#include "quillbase/MessageTable.h"

namespace {

constexpr unsigned long kEnglishUnitedStates = 1033;
constexpr WORD kTableResource = 10;

constexpr unsigned kGerman = 7;
constexpr unsigned kSpanish = 10;
constexpr unsigned kItalian = 16;

std::string ReadResource(HINSTANCE module) {
    const HRSRC resource = FindResourceA(module, MAKEINTRESOURCEA(kTableResource), "DATA");
    if (resource == nullptr) return {};
    const void* data = LockResource(LoadResource(module, resource));
    return data == nullptr
               ? std::string()
               : std::string(static_cast<const char*>(data), SizeofResource(module, resource));
}

int Write(std::string_view text, char* buffer, int size) {
    if (size <= 0) return 0;
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    std::copy_n(text.data(), length, buffer);
    buffer[length] = '\0';
    return static_cast<int>(length);
}

}  // namespace

CLanguage::CLanguage() : language_(kEnglishUnitedStates) {}

CLanguage::~CLanguage() = default;

void CLanguage::Attach(HINSTANCE module, CTableReader* reader) {
    builtIn_.Assign(ReadResource(module), '\t');
    reader_ = reader;
}

int CLanguage::SetLanguage(unsigned long language) {
    language_ = language;
    constexpr unsigned kAnyMessage = 1;
    const auto id = quillbase::LanguageId::From(language);
    return quillbase::FindMessage(builtIn_, kAnyMessage, id) ? 1 : 0;
}

std::string_view CLanguage::Message(unsigned id) const {
    const auto chosen = quillbase::LanguageId::From(language_);
    for (const quillbase::LanguageId language : {chosen, quillbase::kEnglish}) {
        if (reader_ != nullptr) {
            if (const auto text = quillbase::FindMessage(reader_->Cells(), id, language))
                return *text;
        }
        if (const auto text = quillbase::FindMessage(builtIn_, id, language)) return *text;
    }
    return {};
}

int CLanguage::String(HINSTANCE, unsigned id, char* buffer, int size) const {
    return Write(Message(id), buffer, size);
}

int CLanguage::FormatString(HINSTANCE, int id, char* buffer, int size, const char* arg) const {
    constexpr std::string_view kPlace = "%s";
    std::string text(Message(static_cast<unsigned>(id)));
    const std::size_t place = text.find(kPlace);
    if (place != std::string::npos) text.replace(place, kPlace.size(), arg);
    return Write(text, buffer, size);
}

char* CLanguage::Number(char* text) const {
    if (HasDecimalComma()) std::replace(text, text + std::strlen(text), '.', ',');
    return text;
}

char* CLanguage::EnglishNumber(char* text) const {
    if (!HasDecimalComma() || std::strchr(text, ',') == nullptr) return text;
    char* end = std::remove(text, text + std::strlen(text), '.');
    *end = '\0';
    std::replace(text, end, ',', '.');
    return text;
}

bool CLanguage::HasDecimalComma() const {
    const unsigned primary = quillbase::LanguageId::From(language_).primary;
    return primary == kGerman || primary == kSpanish || primary == kItalian;
}
