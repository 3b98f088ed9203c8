// A table file that is not as it should be: large, of other bytes than text has, changed or taken
// away while it is read.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/pipe/CPipeTable.h"
#include "hydrofacts/valve/CValveTable.h"
#include "quillbase/CAtmPressure.h"
#include "quillbase/CTableReader.h"
#include "quillbase/Directory.h"
#include "quillbase/FileText.h"
#include "tests/faults/FaultTables.h"
#include "tests/support/TempFolder.h"

namespace {

namespace fs = std::filesystem;

class Tables : public TempFolder {
  public:
    std::string path = Path();

    void WriteAll(const std::string& fluid, const std::string& pipe,
                  const std::string& valve) const {
        Write("Plain.FTBL", fluid);
        Write("Steel.PTBL", pipe);
        Write("Standard.VTBL", valve);
    }

    /// kg/m³ at 300 K and 900 kPa; -1.0 if the table is refused.
    double Density() {
        CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
        return fluid.SetFluid(path.data(), "Plain", 300.0, 900.0) == 0 ? fluid.GetDensity() : -1.0;
    }

    /// Inside diameter of schedule 40, size 3; -1.0 if that schedule is refused.
    double Diameter() const {
        CPipeTable pipe(HF_US);
        const bool loaded =
            pipe.LoadMaterial(path.c_str(), "Steel") && pipe.LoadPipeList("40", nullptr);
        return loaded ? pipe.PipeDia(3.0) : -1.0;
    }

    /// How many of the table's two devices there are; -1 if the table is refused.
    int Devices() const {
        CValveTable valves;
        if (valves.LoadValveTable(path.c_str(), "Standard", HF_US, kFormulas) == 0) return -1;
        return (valves.Find("Gate") != nullptr ? 1 : 0) + (valves.Find("Elbow") != nullptr ? 1 : 0);
    }
};

void ExpectRead(Tables& tables) {
    EXPECT_EQ(tables.Density(), 900.0);
    EXPECT_EQ(tables.Diameter(), 3.068);
    EXPECT_EQ(tables.Devices(), 2);
}

void ExpectRefused(Tables& tables) {
    EXPECT_EQ(tables.Density(), -1.0);
    EXPECT_EQ(tables.Diameter(), -1.0);
    EXPECT_EQ(tables.Devices(), -1);
}

// Puts lines ahead of the records of each table.
void WriteBehind(const Tables& tables, const std::string& lines) {
    tables.WriteAll(lines + kFluidTable, lines + kPipeTable, lines + kValveTable);
}

TEST(FileFaults, RemarksOfAHundredMegabytesArePassedOver) {
    constexpr std::size_t kSize = 100U << 20U;
    Tables tables;
    std::string remarks;
    remarks.reserve(kSize + 100);
    while (remarks.size() < kSize)
        remarks += "* a remark that says nothing at all, and is one of many\r\n";
    WriteBehind(tables, remarks);
    ExpectRead(tables);
}

TEST(FileFaults, LineOfTenMegabytesIsCut) {
    const std::string filling(10U << 20U, 'x');
    Tables tables;
    WriteBehind(tables, "* " + filling + "\r\n");
    ExpectRead(tables);
    // What stands behind the part of a record that is read is not there.
    const auto lengthened = [&filling](std::string table, const char* record) {
        const std::size_t end = table.find("\r\n", table.find(record));
        return table.insert(end, "\t" + filling);
    };
    tables.WriteAll(lengthened(kFluidTable, "P3"), lengthened(kPipeTable, "Z\t40\t3"),
                    lengthened(kValveTable, "Z\tValve"));
    ExpectRead(tables);
}

// A line ends, for its reader, at a NUL byte.
TEST(FileFaults, NulBytesEndWhatIsReadOfALine) {
    const std::string nul(1, '\0');
    Tables tables;
    WriteBehind(tables, "* " + nul + "\r\n" + nul + "\r\n" + nul + "Z\r\n");
    ExpectRead(tables);
    tables.WriteAll(kFluidTable + nul, kPipeTable + nul, kValveTable + nul);
    ExpectRead(tables);
    std::string cut = kFluidTable;
    cut.insert(cut.find("1200"), nul);
    tables.WriteAll(cut, std::string(5000, '\0'), std::string(5000, '\0'));
    ExpectRefused(tables);
}

std::string Utf16(const std::string& text) {
    std::string wide = "\xFF\xFE";
    for (const char c : text) wide += {c, '\0'};
    return wide;
}

TEST(FileFaults, Utf16IsRefusedAndAUtf8MarkDoesNoHarm) {
    Tables tables;
    tables.WriteAll(Utf16(kFluidTable), Utf16(kPipeTable), Utf16(kValveTable));
    ExpectRefused(tables);
    const std::string language = tables.Write("language.dat", Utf16("IDS\t09-01\r\n1\tOne\r\n"));
    EXPECT_FALSE(CTableReader(language.c_str(), '\t', nullptr, nullptr).Valid());
    // The mark is part of the title line, which no loader needs.
    WriteBehind(tables, "\xEF\xBB\xBF");
    ExpectRead(tables);
}

TEST(FileFaults, LongerThanAnyTextIsNotRead) {
    Tables tables;
    tables.WriteAll(kFluidTable, kPipeTable, kValveTable);
    for (const char* name : {"Plain.FTBL", "Steel.PTBL", "Standard.VTBL", "host.ini"}) {
        std::string path = tables.Path(name);
        const int file = ::open(path.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0666);
        // A file with nothing in it but its length: a terabyte that takes no room.
        ASSERT_EQ(::ftruncate(file, off_t{1} << 40), 0);
        ::close(file);
        EXPECT_FALSE(quillbase::FileText(path.c_str()).Valid());
    }
    ExpectRefused(tables);
    std::string ini = tables.Path("host.ini");
    EXPECT_FALSE(CAtmPressure().GetFromINI(ini.data()));
    EXPECT_FALSE(CAtmPressure().SetToINI(1.0, HF_BAR, ini.data())) << "what can't be read is kept";
    EXPECT_EQ(fs::file_size(ini), std::uintmax_t{1} << 40);
}

TEST(FileFaults, DevicesAndPipesAreNotWaitedFor) {
    Tables tables;
    ASSERT_EQ(::mkfifo(tables.Path("Plain.FTBL").c_str(), 0666), 0);
    fs::create_symlink("/dev/zero", tables.Path("Steel.PTBL"));
    fs::create_symlink("/dev/full", tables.Path("Standard.VTBL"));
    ExpectRefused(tables);
    fs::create_symlink("/dev/full", tables.Path("host.ini"));
    std::string ini = tables.Path("host.ini");
    EXPECT_FALSE(CAtmPressure().SetToINI(1.0, HF_BAR, ini.data()));
    EXPECT_TRUE(fs::is_symlink(ini));
}

// Writes tables until it is told to stop, each time in another way.
void Disturb(const Tables& tables, const std::atomic<bool>& stop) {
    for (int i = 0; !stop; ++i) {
        switch (i % 4) {
            case 0:
                tables.WriteAll(kFluidTable, kPipeTable, kValveTable);
                break;
            case 1:
                for (const char* name : {"Plain.FTBL", "Steel.PTBL", "Standard.VTBL"})
                    fs::resize_file(tables.Path(name), 150);
                break;
            case 2:
                tables.WriteAll(kValveTable + kFluidTable, kFluidTable + kPipeTable,
                                kPipeTable + kValveTable);
                break;
            default:
                for (const char* name : {"Plain.FTBL", "Steel.PTBL", "Standard.VTBL"})
                    fs::remove(tables.Path(name));
        }
    }
}

TEST(FileFaults, TableThatChangesWhileItIsReadIsWholeOrRefused) {
    constexpr int kReads = 2000;
    Tables tables;
    tables.WriteAll(kFluidTable, kPipeTable, kValveTable);
    std::atomic<bool> stop = false;
    std::thread writer([&] { Disturb(tables, stop); });
    int read = 0;
    for (int i = 0; i < kReads; ++i) {
        const double density = tables.Density();
        EXPECT_TRUE(density == -1.0 || density == 900.0) << density;
        const double diameter = tables.Diameter();
        EXPECT_TRUE(diameter == -1.0 || diameter == 3.068 || diameter == 0.0) << diameter;
        EXPECT_LE(tables.Devices(), 2);
        if (density == 900.0) ++read;
    }
    stop = true;
    writer.join();
    EXPECT_GT(read, 0);
    tables.WriteAll(kFluidTable, kPipeTable, kValveTable);
    ExpectRead(tables);
}

}  // namespace
