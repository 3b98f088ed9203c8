#ifndef HYDROFACTS_TESTS_TOOLS_SAMPLETABLES_H
#define HYDROFACTS_TESTS_TOOLS_SAMPLETABLES_H

#include <filesystem>
#include <string>

#include "tests/support/TableText.h"
#include "tests/tools/CommandRunner.h"

/// A table whose properties can be worked out by hand. With T in K and p in kPa absolute:
/// saturation pressure T - 200 kPa, liquid density 1100 - T / 2 kg/m³, liquid viscosity
/// 4 - T / 100 cP, the vapor an ideal gas of 20 kg/kmol with a viscosity of 0.01 cP and a heat
/// capacity of four gas constants. Liquid from 280 to 400 K, vapor from 250 to 500 K up to 5000
/// kPa, critical point 450 K and 8000 kPa.
inline std::string SampleTable(bool liquid = true, bool vapor = true, const char* dew = "P2|0") {
    return TableText(
        "S|\"Sample at 25 \xB0"
        "C\"\nV|\"2.1\"|test|1|7\n"
        "D|20|450|8000|280|400|250|500|5000\nP1|1|-200|1\n" +
        std::string(dew) + "\n" + (liquid ? "P3|1|1100|-0.5\nP4|1|4|-0.01\n" : "P3|0\nP4|0\n") +
        (vapor ? "P5|1|0\nP6|1|0.01\nP7|1|33.2576\n" : "P5|0\nP6|0\nP7|0\n"));
}

/// Runs the command on tables of the test's own.
class OwnTables : public CommandRunner {
  protected:
    OwnTables() {
        m_tables = m_folder.Path("tables");
        std::filesystem::create_directory(m_tables);
    }
    void Write(const std::string& name, const std::string& text) {
        m_folder.Write("tables/" + name, text);
    }
};

class SampleTables : public OwnTables {
  protected:
    SampleTables() {
        Write("Sample.FTBL", SampleTable());
        Write("Gas only.FTBL", SampleTable(false, true));
        Write("Blend.FTBL", SampleTable(true, true, "P2|1|-250|1"));
        Write("oil.FTBL", SampleTable(true, false));
    }
};

#endif
