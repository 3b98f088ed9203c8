#include "quillbase/IniFile.h"

#include <cstddef>
#include <filesystem>
#include <system_error>
#include <utility>

#include "quillbase/FileText.h"
#include "quillbase/Text.h"
#include "win32/Win32.h"

namespace quillbase {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == kNone) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view LineAt(std::string_view text, std::size_t start) {
    const std::size_t end = text.find('\n', start);
    return text.substr(start, end == kNone ? kNone : end - start + 1);
}

bool IsSectionLine(std::string_view line) { return Trimmed(line).starts_with('['); }

bool OpensSection(std::string_view line, std::string_view section) {
    const std::string_view content = Trimmed(line);
    const std::size_t close = content.find(']');
    return content.starts_with('[') && close != kNone &&
           EqualIgnoringCase(Trimmed(content.substr(1, close - 1)), section);
}

/// Where in the text a section and a key of it stand.
struct Place {
    std::size_t line = kNone;        // start of the key's line
    std::size_t valueBegin = kNone;  // its value, without the blanks around it
    std::size_t valueEnd = kNone;
    std::size_t sectionEnd = kNone;  // behind the section's last line that is not blank
};

bool FindKey(std::string_view text, std::string_view line, std::string_view key, Place& place) {
    const std::size_t equals = line.find('=');
    if (equals == kNone || !EqualIgnoringCase(Trimmed(line.substr(0, equals)), key)) return false;
    const auto lineStart = static_cast<std::size_t>(line.data() - text.data());
    const std::string_view value = Trimmed(line.substr(equals + 1));
    place.line = lineStart;
    place.valueBegin = value.empty() ? lineStart + equals + 1
                                     : static_cast<std::size_t>(value.data() - text.data());
    place.valueEnd = place.valueBegin + value.size();
    return true;
}

Place Find(std::string_view text, std::string_view section, std::string_view key) {
    Place place;
    bool inside = false;
    for (std::size_t start = 0; start < text.size();) {
        const std::string_view line = LineAt(text, start);
        if (IsSectionLine(line)) {
            if (inside) break;
            inside = OpensSection(line, section);
        } else if (inside && FindKey(text, line, key, place)) {
            break;
        }
        start += line.size();
        if (inside && !Trimmed(line).empty()) place.sectionEnd = start;
    }
    return place;
}

bool WriteWhole(const std::string& path, std::string_view text) {
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD done = 0;
    const auto size = static_cast<DWORD>(text.size());
    bool good = WriteFile(file, text.data(), size, &done, nullptr) != FALSE && done == size;
    good = good && FlushFileBuffers(file) != FALSE;
    return CloseHandle(file) != FALSE && good;
}

// A name that no other writer has: the first free one beside the file.
std::string WriteBeside(const std::string& path, std::string_view text) {
    constexpr int kTries = 100;
    for (int number = 0; number < kTries; ++number) {
        std::string candidate = path + ".new" + std::to_string(number);
        if (GetFileAttributesA(candidate.c_str()) != INVALID_FILE_ATTRIBUTES) continue;
        if (WriteWhole(candidate, text)) return candidate;
        DeleteFileA(candidate.c_str());
        return {};
    }
    return {};
}

}  // namespace

IniFile::IniFile(std::string path) : path_(std::move(path)) {
    const FileText file(path_.c_str());
    readable_ = file.Valid() || GetFileAttributesA(path_.c_str()) == INVALID_FILE_ATTRIBUTES;
    text_ = std::string(file.Text());
}

std::optional<std::string> IniFile::Value(std::string_view section, std::string_view key) const {
    const Place place = Find(text_, section, key);
    if (place.line == kNone) return std::nullopt;
    return text_.substr(place.valueBegin, place.valueEnd - place.valueBegin);
}

void IniFile::SetValue(std::string_view section, std::string_view key, std::string_view value) {
    const std::string lineEnd = text_.find("\r\n") == kNone && !text_.empty() ? "\n" : "\r\n";
    const Place place = Find(text_, section, key);
    if (place.line != kNone) {
        text_.replace(place.valueBegin, place.valueEnd - place.valueBegin, value);
        return;
    }
    std::size_t at = place.sectionEnd == kNone ? text_.size() : place.sectionEnd;
    std::string added;
    if (at > 0 && text_[at - 1] != '\n') added += lineEnd;
    if (place.sectionEnd == kNone) added.append("[").append(section).append("]").append(lineEnd);
    added.append(key).append("=").append(value).append(lineEnd);
    text_.insert(at, added);
}

bool IniFile::Save() const {
    if (!readable_) return false;
    // A link stays a link: what it leads to is replaced.
    std::error_code error;
    const std::filesystem::path real = std::filesystem::weakly_canonical(path_, error);
    const std::string target = error ? path_ : real.string();

    const std::string written = WriteBeside(target, text_);
    if (written.empty()) return false;
    const auto status = std::filesystem::status(target, error);
    if (std::filesystem::exists(status)) {
        std::filesystem::permissions(written, status.permissions(), error);
    }
    if (MoveFileExA(written.c_str(), target.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
        return true;
    }
    DeleteFileA(written.c_str());
    return false;
}

}  // namespace quillbase
