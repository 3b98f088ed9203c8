#include <cstring>
#include <string>

#include "fuzz/ScratchFolder.h"
#include "fuzz/Targets.h"
#include "hydrofacts/valve/CValveTable.h"

namespace hydrofacts::fuzz {
namespace {

class OpenValves : public CValveTable {
  public:
    int Count() const {
        int count = 0;
        for (std::int16_t type = 0; type < 5; ++type) {
            for (const CValveType* record = lists[type]; record != nullptr; record = record->next) {
                RequireSound(*record, type);
                ++count;
            }
        }
        return count;
    }

  private:
    static void RequireSound(const CValveType& record, std::int16_t type) {
        Require(record.device_type == type, "a record stands in the list of its type");
        Require(std::memchr(record.name, '\0', sizeof record.name) != nullptr, "a name ends");
        double sum = 0.0;
        for (int i = 0; i < record.data_count; ++i) sum += record.data[i];
        static_cast<void>(sum);
        if (record.formula == 9 || record.formula == 13) {
            Require(
                record.data_count >= 2 && record.data_count % 2 == 0 && record.data_count <= 200,
                "rows are pairs");
            Require(record.data[record.data_count - 2] == 9999.0, "the last limit is none");
        } else {
            Require(record.data_count == 3, "a record has three numbers");
        }
    }
};

}  // namespace

void valve_table(Bytes bytes) {
    static constexpr int kAll[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 20, 21, 22, 0};
    static constexpr int kRows[] = {9, 0};
    static constexpr int kNone[] = {0};
    Scratch().Write("Fuzz.VTBL", Input(bytes).Text());
    for (const HF_UNITS units : {HF_US, HF_METRIC}) {
        OpenValves all;
        const int loaded = all.LoadValveTable(Scratch().Path().c_str(), "Fuzz", units, kAll);
        const int count = all.Count();
        Require(loaded != 0 ? count >= 3 : count == 0, "a table that loads has the fixed records");
        OpenValves again;
        again.LoadValveTable(Scratch().Path().c_str(), "Fuzz", units, kAll);
        Require(again.Count() == count, "a table is read the same twice");
        for (const int* wanted : {kRows, kNone}) {
            const int fewer = again.LoadValveTable(Scratch().Path().c_str(), "Fuzz", units, wanted);
            Require(fewer == loaded, "what is wanted plays no part in whether a table loads");
            Require(again.Count() <= count + 3, "no more is kept than is wanted");
        }
        again = all;
        Require(again.Count() == count, "a copy has all records");
    }
}

}  // namespace hydrofacts::fuzz
