#include "quillbase/IniFile.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "quillbase/CAtmPressure.h"

namespace hydrofacts::fuzz {
namespace {

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        lines.push_back(text.substr(start, end - start));
        while (lines.back().ends_with('\r')) lines.back().pop_back();
        start = end + 1;
    }
    return lines;
}

// The key that a line sets, in small letters.
std::string KeyOf(const std::string& line) {
    std::string key = line.substr(0, std::min(line.find('='), line.size()));
    std::erase_if(key, [](char c) { return c == ' ' || c == '\t' || c == '\r'; });
    for (char& c : key) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return key;
}

bool IsOwn(const std::string& key) { return key == "pressure" || key == "unit"; }

// What is not the library's stays, in its order; lines may be added.
void RequireKept(const std::string& before, const std::string& after) {
    const auto old = Lines(before);
    std::size_t kept = 0;
    for (const std::string& line : Lines(after)) {
        if (kept == old.size()) break;
        const bool rewritten = IsOwn(KeyOf(old[kept])) && KeyOf(line) == KeyOf(old[kept]);
        if (line == old[kept] || rewritten) ++kept;
    }
    Require(kept == old.size(), "every line of the host's is still there");
}

}  // namespace

void ini_file(Bytes bytes) {
    const std::string before(Input(bytes).Text());
    std::string path = Scratch().Write("host.ini", before);
    CAtmPressure atmosphere;
    const double standard = atmosphere.Value(HF_KPA);
    const bool found = atmosphere.GetFromINI(path.data());
    Require(atmosphere.Value(HF_KPA) >= 0.0, "an atmosphere is no less than none");
    Require(found || atmosphere.Value(HF_KPA) == standard, "what isn't found leaves it as it was");

    Require(atmosphere.SetToINI(14.5, HF_PSI, path.data()), "the file can be saved");
    Require(atmosphere.GetFromINI(path.data()) && atmosphere.Value(HF_PSI) == 14.5,
            "what was saved is read back");
    const std::string after = Scratch().Read("host.ini");
    RequireKept(before, after);
    Require(atmosphere.SetToINI(14.5, HF_PSI, path.data()) && Scratch().Read("host.ini") == after,
            "saving the same again changes nothing");
}

}  // namespace hydrofacts::fuzz
