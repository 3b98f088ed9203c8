// Finding a device in the lists of a valve table.

#include <cstring>
#include <iterator>

#include "hydrofacts/valve/CValveTable.h"
#include "hydrofacts/valve/ValveRecord.h"
#include "quillbase/Text.h"

using hydrofacts::kOtherDevices;
using quillbase::EqualIgnoringCase;

namespace {

constexpr unsigned kRoomOfWords = 21;

struct Words {
    const char* former;
    const char* today;
};

constexpr Words kRadii[] = {
    {"Long - r/d 1.5", "Long radius, r/d 1.5"},
    {"Short - r/d 1", "Short radius, r/d 1"},
};

template <class Test>
CValveType* FirstThat(CValveType* record, Test test) {
    while (record != nullptr && !test(*record)) record = record->next;
    return record;
}

bool Contains(const char* text, const char* part) { return std::strstr(text, part) != nullptr; }

void PutBlankForHyphen(char* text, const char* words) {
    char* place = std::strstr(text, words);
    if (place != nullptr) *std::strchr(place, '-') = ' ';
}

// Puts the second part of a name in the older form into the words of today's tables. Returns its
// new start.
char* Modernize(char* subname) {
    PutBlankForHyphen(subname, "Sharp-Edged");
    PutBlankForHyphen(subname, "Angle-90");
    if (Contains(subname, "Flush - ")) {
        constexpr char kToday[] = {'F', 'l', 'u', 's', 'h', ',', ' '};
        ++subname;
        std::memcpy(subname, kToday, sizeof kToday);
    }
    if (EqualIgnoringCase(subname, "Valve")) *subname = '\0';
    for (const Words& radius : kRadii) {
        if (std::strcmp(subname, radius.former) == 0) {
            rstrncpy(subname, radius.today, kRoomOfWords);
        }
    }
    return subname;
}

}  // namespace

CValveType* CValveTable::ListOf(int deviceType) const {
    const bool exists = deviceType >= 0 && deviceType < static_cast<int>(std::size(lists));
    return exists ? lists[deviceType] : nullptr;
}

CValveType* CValveTable::Find(const char* name) const {
    if (name == nullptr) return nullptr;
    for (CValveType* list : lists) {
        CValveType* found = FirstThat(list, [name](const CValveType& record) {
            return EqualIgnoringCase(record.name, name);
        });
        if (found != nullptr) return found;
    }
    return nullptr;
}

CValveType* CValveTable::ValveData(const char* name, std::int16_t formula,
                                   std::int16_t deviceType) const {
    return FirstThat(ListOf(deviceType), [name, formula](const CValveType& record) {
        return record.formula == formula && (*name == '\0' || std::strcmp(record.name, name) == 0);
    });
}

CValveType* CValveTable::ValveDataV6(const char* name, char* subname, std::int16_t formula,
                                     std::int16_t deviceType) const {
    const char* words = Modernize(subname);
    const auto fits = [name, words, formula](const CValveType& record) {
        if (record.formula == formula) return true;
        if (*words == '\0') return EqualIgnoringCase(record.name, name);
        return Contains(record.name, name) && Contains(record.name, words);
    };
    CValveType* found = FirstThat(ListOf(deviceType), fits);
    if (found == nullptr) found = ValveData("", hydrofacts::kFixedK, kOtherDevices);
    return found != nullptr ? found : ListOf(kOtherDevices);
}
