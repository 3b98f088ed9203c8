#include "quillbase/IniFile.h"

#include <cstddef>
#include <string>
#include <utility>

#include "quillbase/FileText.h"
#include "quillbase/OpenFile.h"
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

// Where a file lies once all links to it are followed; empty if the system doesn't tell.
std::string RealPath(HANDLE file) {
    constexpr DWORD kLongestPath = 4096;
    std::string path(kLongestPath, '\0');
    const DWORD length = GetFinalPathNameByHandleA(file, path.data(), kLongestPath, 0);
    path.resize(length < kLongestPath ? length : 0);
    return path;
}

bool WriteAndClose(HANDLE file, std::string_view text) {
    DWORD done = 0;
    const auto size = static_cast<DWORD>(text.size());
    bool good = WriteFile(file, text.data(), size, &done, nullptr) != FALSE && done == size;
    good = good && FlushFileBuffers(file) != FALSE;
    return CloseHandle(file) != FALSE && good;
}

// Writes a new file beside `path`, under the first name that nobody has, with the attributes of
// `model`. Gives its path, empty if it couldn't be written.
std::string WriteBeside(const std::string& path, std::string_view text, HANDLE model) {
    constexpr int kTries = 100;
    for (int number = 0; number < kTries; ++number) {
        std::string candidate = path + ".new" + std::to_string(number);
        const HANDLE file = CreateFileA(candidate.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                        FILE_ATTRIBUTE_NORMAL, model);
        if (file == INVALID_HANDLE_VALUE) continue;
        if (WriteAndClose(file, text)) return candidate;
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
    std::string target = path_;
    std::string written;
    {
        // A link stays a link: what it leads to is replaced.
        const OpenFile old(path_.c_str());
        if (old.IsOpen()) target = RealPath(old.get());
        if (target.empty()) return false;
        written = WriteBeside(target, text_, old.IsOpen() ? old.get() : nullptr);
    }
    if (written.empty()) return false;
    if (MoveFileExA(written.c_str(), target.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
        return true;
    }
    DeleteFileA(written.c_str());
    return false;
}

}  // namespace quillbase
