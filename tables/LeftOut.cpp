#include "tables/LeftOut.h"

#include <fstream>
#include <sstream>

#include "tables/Csv.h"

namespace hydrofacts::tables {

std::string LeftOutText(std::span<const LeftOut> list) {
    std::string text = "name,cas,part,reason\n";
    for (const LeftOut& row : list) {
        text += CsvField(row.name) + ',' + CsvField(row.cas) + ',' + row.part + ',' +
                CsvField(row.reason) + '\n';
    }
    return text;
}

void CheckLeftOut(const std::filesystem::path& file, std::span<const LeftOut> found) {
    std::ifstream kept(file, std::ios::binary);
    std::istringstream expected(LeftOutText(found));
    std::string expectedLine;
    std::string line;
    for (int number = 1;; ++number) {
        const bool more = static_cast<bool>(std::getline(expected, expectedLine));
        const bool moreKept = static_cast<bool>(std::getline(kept, line));
        if (!more && !moreKept) {
            return;
        }
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (more != moreKept || line != expectedLine) {
            throw InputError(
                file.generic_string() + ':' + std::to_string(number) +
                ": does not say what was found: " + (more ? expectedLine : "no more is left out") +
                "\nRun with --renew to write the list anew.");
        }
    }
}

}  // namespace hydrofacts::tables
