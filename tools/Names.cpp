#include "tools/Names.h"

#include <algorithm>
#include <utility>

namespace hydrofacts::command {
namespace {

constexpr std::size_t kMostNames = 5;
constexpr std::size_t kShortestPart = 3;  // letters; a shorter part stands in too many names

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool Contains(std::string_view text, std::string_view part) {
    return part.size() >= kShortestPart && text.find(part) != std::string_view::npos;
}

// How far a name is from the wanted one: a part of it counts as one step away.
std::size_t Distance(std::string_view wanted, std::string_view name) {
    const std::size_t edits = EditDistance(wanted, name);
    return Contains(name, wanted) || Contains(wanted, name) ? std::min<std::size_t>(edits, 1)
                                                            : edits;
}

}  // namespace

std::string LowerCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return LowerCase(c); });
    return result;
}

std::string UpperCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return result;
}

bool LessIgnoringCase(std::string_view a, std::string_view b) {
    const std::string lowerA = LowerCase(a);
    const std::string lowerB = LowerCase(b);
    return lowerA != lowerB ? lowerA < lowerB : a < b;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && LowerCase(a) == LowerCase(b);
}

std::size_t EditDistance(std::string_view a, std::string_view b) {
    // Rows of the table of distances between beginnings of `a` and of `b`: the last two and this.
    std::vector<std::size_t> before(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
    const auto same = [&](std::size_t i, std::size_t j) {
        return LowerCase(a[i - 1]) == LowerCase(b[j - 1]);
    };
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::swap(before, last);
        std::swap(last, row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same(i, j) ? 0U : 1U)});
            if (i > 1 && j > 1 && same(i, j - 1) && same(i - 1, j)) {
                row[j] = std::min(row[j], before[j - 2] + 1);
            }
        }
    }
    return row[b.size()];
}

std::vector<std::string> NearestNames(std::string_view wanted, std::span<const std::string> names) {
    const std::string lowerWanted = LowerCase(wanted);
    std::vector<std::pair<std::size_t, std::string>> ranked;
    for (const std::string& name : names) {
        const std::size_t distance = Distance(lowerWanted, LowerCase(name));
        if (2 * distance < std::max(wanted.size(), name.size()))
            ranked.emplace_back(distance, name);
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    if (ranked.size() > kMostNames) ranked.resize(kMostNames);
    std::vector<std::string> nearest;
    nearest.reserve(ranked.size());
    for (auto& [distance, name] : ranked) nearest.push_back(std::move(name));
    return nearest;
}

std::string JoinNames(std::span<const std::string> names, std::string_view lastWord) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0 && i + 1 == names.size()) {
            text.append(" ").append(lastWord).append(" ");
        } else if (i > 0) {
            text += ", ";
        }
        text += names[i];
    }
    return text;
}

}  // namespace hydrofacts::command
