#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tools/Encoding.h"
#include "tools/Measures.h"
#include "tools/Names.h"
#include "tools/Numbers.h"

namespace hydrofacts::command {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Encoding, GoesThereAndBackOrIsRefused) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(Windows1252FromUtf8(Utf8FromWindows1252(text)), text) << byte;
    }
    EXPECT_EQ(Utf8FromWindows1252("\x80 \x9F \xB0 \xB3"), "\u20AC \u0178 \u00B0 \u00B3");
    for (const char* text : {"\xB0", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                             "\xE2\x82", "\xF8\x88\x80\x80\x80", "a\x80"}) {
        EXPECT_FALSE(IsUtf8(text));
        EXPECT_EQ(Windows1252FromUtf8(text), std::nullopt);
    }
    EXPECT_TRUE(IsUtf8("\U0001F30A"));
    EXPECT_EQ(Windows1252FromUtf8("\U0001F30A"), std::nullopt);
}

TEST(Numbers, AreTheWholeText) {
    EXPECT_EQ(NumberIn("-1.5e3"), -1500.0);
    EXPECT_EQ(NumberIn("+.5"), 0.5);
    for (const char* text :
         {"", " 1", "1 ", "1x", "1,5", "0x10", "--1", "+-1", "inf", "nan", "1e999", "\u22121"}) {
        EXPECT_EQ(NumberIn(text), std::nullopt) << text;
    }
}

TEST(Numbers, ShowSignificantDigits) {
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {998.25, "998.2"},   {0.0233949, "0.02339"},    {9.99996, "10.00"},
        {99999.6, "100000"}, {12345678.0, "1.235e+07"}, {0.000012345, "1.234e-05"},
    };
    for (const auto& row : cases) EXPECT_EQ(SignificantNumber(row.value), row.text);
    EXPECT_EQ(ShortNumber(-0.0), "0");
    EXPECT_EQ(ShortNumber(0.1 + 0.2), "0.3");
}

TEST(Names, AreNearByEditsAndSwaps) {
    EXPECT_EQ(EditDistance("wtaer", "WATER"), 1U);
    EXPECT_EQ(EditDistance("kitten", "sitting"), 3U);
    const std::vector<std::string> names = {"Ethane", "Methane", "n-Butane", "Water"};
    EXPECT_THAT(NearestNames("methan", names), ElementsAre("Methane", "Ethane"));
    EXPECT_THAT(NearestNames("BUTANE", names), ElementsAre("n-Butane", "Methane"));
    EXPECT_THAT(NearestNames("steam", names), IsEmpty());
}

TEST(Measures, UnitsAreFoundByTheirTextsAndPlainSpellings) {
    for (const Measure& measure : Measures()) {
        for (const int id : UnitIds(measure.type)) {
            EXPECT_EQ(FindUnit(measure.type, UnitText(measure.type, id)), id)
                << measure.name << " " << UnitText(measure.type, id);
        }
    }
    const struct {
        HF_UNIT_TYPES type;
        const char* text;
        int id;
    } cases[] = {
        {HF_TEMPERATURE, "\u00B0c", HF_DEG_C},
        {HF_TEMPERATURE, "deg F", HF_DEG_F},
        {HF_TEMPERATURE, "Kelvin", HF_KELVIN},
        {HF_FLOW, "m\u00B3/h", HF_M3_HR},
        {HF_FLOW, "m^3/day", HF_M3_DAY},
        {HF_PRESSURE, "inH2O", HF_IN_H2O},
        {HF_AREA, "IN^2", 2},
    };
    for (const auto& row : cases) EXPECT_EQ(FindUnit(row.type, row.text), row.id) << row.text;
    for (const char* text : {"", " ", "deg", "m2"}) EXPECT_FALSE(FindUnit(HF_TEMPERATURE, text));
}

}  // namespace
}  // namespace hydrofacts::command
