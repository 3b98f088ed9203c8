#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"
#include "tools/check/TableCheck.h"

namespace hydrofacts::command {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kPipes =
    "S|\"Steel\"\n"
    "V|\"1.0\"|test|1|7\n"
    "R|0.0018|0.04572|140\n"
    "* Sizes of 40\n"
    "Z|40|0.5|15|0.622|0.84|15.8|21.3\n"
    "Z|40|0.75|20|0.824|1.05|20.93|26.7\n"
    "Z|40|1|25|1.049|1.315|26.64|33.4\n"
    "* Sizes of 80\n"
    "Z|80|0.5|15|0.546|0.84|13.84|21.3\n"
    "Z|80|1|25|0.957|1.315|24.3|33.4\n";

constexpr const char* kValves =
    "S|\"Valves\"\n"
    "V|\"1.0\"|test|1|7\n"
    "Z|Fitting|\"Elbow\"|9|0.8|1|25|3\n"
    "* between rows\n"
    "Z|Fitting|\"Elbow\"|9|0.7|2|50|3\n"
    "Z|Fitting|\"Elbow\"|9|0.6|4|100|3\n"
    "Z|Bend|\"Smooth\"|1|0.2|0|0|4\n"
    "Z|Valve|\"Gate\"|1|0.15|0|0|5\n"
    "z|Check Valve|\"Swing\"|1|2|0|0|6\n"
    "Z|Other|\"Fixed K\"|20|1|0|0|13\n";

// With T in K: saturation pressure T - 200 kPa, liquid density 1100 - T / 2 kg/m³, liquid viscosity
// 5 - T / 100 cP, an ideal gas of 0.01 cP with a heat capacity of four gas constants (k = 4/3).
constexpr const char* kFluid =
    "S|\"Sample\"\n"
    "V|\"2.1\"|test|1|7\n"
    "D|20|450|8000|280|400|250|500|5000\n"
    "P1|1|-200|1\n"
    "P2|0\n"
    "P3|1|1100|-0.5\n"
    "P4|1|5|-0.01\n"
    "P5|1|0\n"
    "P6|1|0.01\n"
    "P7|1|33.2576\n";

std::string Shown(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings) {
        text += std::to_string(finding.line) + ":" + std::to_string(finding.field) +
                (finding.warning ? " warning " : " ") + finding.reason + "\n";
    }
    return text;
}

/// A change of a sound table, and the one thing to be said of it.
struct Damage {
    const char* from;
    const char* to;
    std::size_t line;
    std::size_t field;
    const char* reason;  ///< a part of it; a warning if it begins with '!'
};

class TableCheck : public ::testing::Test {
  protected:
    std::vector<Finding> Check(const std::string& name, const std::string& text) {
        const std::filesystem::path file = m_folder.Write(name, text);
        return CheckTableFile(file, KindOf(file).value());
    }

    void ExpectFound(const std::string& name, const std::string& sound,
                     const std::vector<Damage>& damages) {
        EXPECT_EQ(Shown(Check(name, TableText(sound))), "");
        for (const Damage& damage : damages) {
            std::string text = sound;
            const std::size_t place = text.find(damage.from);
            ASSERT_NE(place, std::string::npos) << damage.from;
            text.replace(place, std::string_view(damage.from).size(), damage.to);
            SCOPED_TRACE(text);
            const auto findings = Check(name, TableText(text));
            ASSERT_EQ(findings.size(), 1U) << Shown(findings);
            const bool warning = *damage.reason == '!';
            EXPECT_EQ(findings[0].line, damage.line);
            EXPECT_EQ(findings[0].field, damage.field);
            EXPECT_EQ(findings[0].warning, warning);
            EXPECT_THAT(findings[0].reason, HasSubstr(damage.reason + (warning ? 1 : 0)));
        }
    }

    TempFolder m_folder;
};

TEST_F(TableCheck, FindsWhatIsWrongWithLinesOfAnyTable) {
    ExpectFound("Lines.PTBL", kPipes,
                {
                    {"S|", "* ", 1, 0, "!no title line"},
                    {"\"Steel\"", "Steel", 1, 2, "!not in double quotes"},
                    {"V|", "* ", 2, 0, "no version line"},
                    {"V|", "Version|", 2, 1, "begins with V"},
                    {"V|", "* a remark ahead\nV|", 3, 0, "!not the second line"},
                    {"|1|7", "", 2, 4, "!levels"},
                    {"|1|7", "|1", 2, 5, "!high level: the field is missing"},
                    {"|1|7", "|7|1", 2, 5, "!below the low one"},
                    {"Z|80|1|", " Z|80|1|", 10, 0, "blanks ahead of \"Z\""},
                    {"33.4\n* S", "33.4\n* \xC3\xA9 S", 8, 0, "!UTF-8"},
                    {"Z|80|1|", "Z|80|1||", 10, 4, "!two separators in a row"},
                    {"Sizes of 80", "of 80 \x81", 8, 0, "!byte 81"},
                    {"\"Steel\"", "\"\xC3\x89tat\"", 1, 0, "as in \"S \"\u00C3\u2030tat\"\""},
                });
}

TEST_F(TableCheck, FindsWhatReadersOfPipesPassOver) {
    const std::string overLong = "* " + std::string(99, 'x') + "\n* Sizes of 80";
    const std::string longName =
        "\nZ|a schedule of thirty-two letters|1|25|1|1|25|25\n* Sizes of 80";
    ExpectFound(
        "Pipes.PTBL", kPipes,
        {
            {"|140", "|0", 3, 4, "Hazen-Williams C: it is 0"},
            {"|140", "", 3, 4, "!Hazen-Williams C"},
            {"|0.0018", "|-0.0018", 3, 2, "not above 0"},
            {"|140\n", "|140\nR|1|1|1\n", 4, 0, "a second R line"},
            {"R|0.0018|0.04572|140\n", "", 4, 0, "no material record (R)"},
            {"R|0.0018|0.04572|140\n* Sizes of 40\n", "Z|5|1|25|1|1|25|25\nR|0.0018|0.04572|140\n",
             4, 0, "R behind the first Z row, in line 3"},
            {"|0.622|", "|0|", 5, 5, "inside diameter (in.): it is 0"},
            {"|21.3\n", "|21.3x\n", 5, 8, "\"21.3x\" is read as 21.3"},
            {"|21.3\n", "\n", 5, 8, "second dimension (mm): the field is missing"},
            {"|21.3\n", "|21.3|9\n", 5, 9, "!not read"},
            {"|21.3\n", "|1e999\n", 5, 8, "not a finite number"},
            {"|21.3\n", "| \n", 5, 8, "blanks"},
            {"|0.5|", "|.5|", 5, 3, "looked up as \"0.5\""},
            {"Z|40|1|", "\nZ|40|1|", 7, 0, "ends schedule"},
            {"Z|80|1|", "Z|40|1|", 10, 2, "schedule \"40\" has rows further up"},
            {"Z|40|1|", "Z|40|0.75|", 7, 3, "does not ascend"},
            {"|26.64|", "|20.93|", 7, 7, "inside diameter (mm): 20.93 does not ascend"},
            {"* Sizes of 40", "remark", 4, 1, "begins with \"r\""},
            {"* Sizes of 80", "Zinc", 8, 1, "begins with Z"},
            {"* Sizes of 80", "Z", 8, 2, "schedule: the field is missing"},
            {"Z|80|0.5|", "z|80|0.5|", 9, 1, "small letter"},
            {"* Sizes of 80", overLong.c_str(), 8, 0, "101 characters: a line has 100 at most"},
            {"\n* Sizes of 80", longName.c_str(), 8, 2, "32 characters, 30 at most"},
            {"|24.3|33.4\n", "|24.3|33.4", 10, 0, "no line end"},
        });
}

TEST_F(TableCheck, FindsWhatReadersOfValvesPassOver) {
    ExpectFound(
        "Valves.VTBL", kValves,
        {
            {"Z|Bend|", "Z|bend|", 7, 2,
             "is no device type, and the reading ends here; it is written Bend"},
            {"Z|Other|\"Fixed K\"|20", "Z|Bend|\"Large\"|1", 10, 2,
             "\"Bend\" has a group already, from line 7 on"},
            {"Z|Bend|", "Zone 1|x\nZ|Bend|", 7, 1, "\"Zone 1\" begins with Z"},
            {"\"Gate\"", "\"A gate of thirty-two characters!\"", 8, 3, "32 characters, 31 at most"},
            {"\"Gate\"", "Gate", 8, 3, "\"Gate\" is not in double quotes"},
            {"\"Gate\"", "\"Gate", 8, 3, "one quote"},
            {"\"Gate\"", "\"\"", 8, 3, "it is empty"},
            {"\"Gate\"", "\"SMOOTH\"", 8, 3, "!that of line 7 too"},
            {"\"Gate\"|1|", "\"Gate\"|70000|", 8, 4, "more than 16 bits and is read as 4464"},
            {"\"Gate\"|1|", "\"Gate\"|010|", 8, 4,
             "\"010\" is read as 8: a leading 0 marks an octal number"},
            {"\"Gate\"|1|", "\"Gate\"|0|", 8, 4, "it is 0"},
            {"|0.15|0|0|5", "|0.15|0|0", 8, 8, "image number: the field is missing"},
            {"|0.15|0|0|5", "|0.15|0|0|5.5", 8, 8, "\"5.5\" is read as 5"},
            {"|0.15|0|0|5", "|0.15|0|0|0", 8, 8, "image number: it is 0"},
            {"|0.15|0|0|5", "|0.15|0|0|5|6", 8, 9, "!not read"},
            {"|2|50|3", "|0|50|3", 5, 6, "a limit of 0"},
            {"|1|25|3", "|0|25|3", 3, 6, "!nothing is as small as 0"},
            {"|2|50|3", "|1|50|3", 5, 6, "1 is the limit of line 3 too"},
            {"|2|50|3", "|2|10|3", 5, 7, "another place"},
            {"|2|50|3", "|2|50|4", 5, 8, "!where the record's last row"},
            {"Z|Fitting|\"Elbow\"|9|0.7", "Z|Fitting|\"Elbow\"|8|0.7", 5, 4, "whose \"9\" counts"},
            {"Z|Fitting|\"Elbow\"|9|0.7", "Z|Bend|\"Elbow\"|9|0.7", 5, 2,
             "whose \"Fitting\" counts"},
            {"|0|0|13\n", "|0|0|13\nZ|Fitting|\"Late\"|1|1|0|0|1\n", 11, 2, "sixth group"},
        });
}

TEST_F(TableCheck, FindsWhatIsInvalidOrSuspiciousInAFluid) {
    ExpectFound(
        "Fluid.FTBL", kFluid,
        {
            {"V|", "* ", 3, 1, "D stands where V must stand"},
            {"|5000", "|0", 3, 9, "highest vapor pressure: it is 0"},
            {"|500|5000", "|5000", 3, 9, "highest vapor pressure: the field is missing"},
            {"P2|0\n", "", 5, 1, "P3 stands where P2 must stand"},
            {"P2|0\n", "P2|0\nP2|0\n", 6, 1, "P2 stands where P3 must stand"},
            {"P2|0\n", "Dew points follow\nP2|0\n", 5, 1, "is taken for the record P2"},
            {"P7|1|33.2576\n", "", 9, 0, "ends here without P7"},
            {"P1|1|-200|1", "P1|0", 4, 2, "every fluid needs the saturation pressure"},
            {"P3|1|1100|-0.5", "P3|1|1|-1", 6, 0, "sum of the coefficients is 0"},
            {"P3|1|1100|-0.5", "P3|1|x|-0.5", 6, 3, "\"x\" is not a number"},
            {"P3|1|1100|-0.5", "P3|7|1100|-0.5", 6, 2, "type: 7 does not exist for P3"},
            {"|280|400|", "|400|280|", 3, 6, "280 K is not above the lowest, 400 K"},
            {"|250|500|", "|250|250|", 3, 8, "250 K is not above the lowest"},
            {"P4|1|5|-0.01", "P4|0", 6, 0, "!P3 is left out, for the liquid formulas"},
            {"P3|1|1100|-0.5\nP4|1|5|-0.01\nP5|1|0\nP6|1|0.01\nP7|1|33.2576",
             "P3|0\nP4|0\nP5|0\nP6|0\nP7|0", 3, 0, "neither all liquid formulas"},
            {"P5|1|0", "P5|2", 8, 3, "!acentric factor is missing"},
            {"P7|1|33.2576\n", "P7|1|33.2576\nP8|1\n", 11, 0, "!behind P7 is not read"},
            {"P4|1|5|", "P4|1|4|", 7, 0, "!liquid viscosity is 0 at 400 K"},
            {"P3|1|1100|-0.5", "P3|1|370.5|-1", 6, 0, "!liquid density is -0.7 at 371.2 K"},
            {"P1|1|-200|1", "P1|1|40000|0.1|-0.1", 4, 0, "!saturation pressure falls from 250 K"},
            {"P7|1|33.2576", "P7|1|8", 10, 0, "!the ratio of specific heats is -25.45 at 250 K"},
            {"P6|1|0.01", "P6|2|1e-8|1e9", 9, 0, "!vapor viscosity is not a number"},
        });
}

TEST_F(TableCheck, SaysWhatIsNoTextOfATable) {
    std::string rows = "S|\"Rows\"\nV|\"1\"|x|1|7\n";
    for (int i = 1; i <= 101; ++i) {
        rows += "Z|Bend|\"B\"|9|1|" + std::to_string(i) + "|" + std::to_string(25 * i) + "|1\n";
    }
    const struct {
        std::string text;
        const char* reason;
    } cases[] = {
        {"", "1:0 the file is empty"},
        {TableText(rows), "100 rows"},
        {std::string("S\0\t\0", 4), "UTF-16"},
        {"\xEF\xBB\xBF" + TableText(kValves), "byte order mark"},
        {TableText("S|\"a\"\nV|\"1\"|x|1|7\n* no record\n"), "no record (Z)"},
        {TableText(kValves) + std::string("Z\t\0\r\n", 5), "NUL byte"},
        {TableText("S|\"a\"\n* " + std::string(99, 'x') + "\n") + "V\t\"1\"\tx\t1\t7\r\n",
         "100 at most down to the version line"},
        {TableText(std::string(kValves) + "* " + std::string(198, 'x') + "\n"), "199 at most"},
    };
    for (const auto& row : cases) {
        const auto findings = Check("Text.VTBL", row.text);
        EXPECT_THAT(Shown(findings), HasSubstr(row.reason));
        EXPECT_THAT(Shown(findings), Not(HasSubstr("library")));
    }
    const auto longName = Check("A name of thirty-one characters.VTBL", TableText(kValves));
    EXPECT_THAT(Shown(longName), HasSubstr("0:0 the name has 31 characters"));
}

// What the lines show to be wrong and what the library refuses are found in different ways: over
// damages of all kinds the library must never refuse what the lines let pass.
std::string Damaged(std::string text, std::mt19937& random) {
    static constexpr std::string_view kBytes("\t\t\r\n 0123456789.,-+eExX\"ZzRrVSDP*\0\x81\xFF",
                                             36);
    const auto pick = [&random](std::size_t count) { return random() % count; };
    for (std::size_t changes = 1 + pick(3); changes > 0 && !text.empty(); --changes) {
        const std::size_t place = pick(text.size());
        if (pick(2) == 0) {
            const std::size_t lost = pick(3);
            const char byte = kBytes[pick(kBytes.size())];
            text.replace(place, lost, lost == 0 ? 1 : pick(2), byte);
            continue;
        }
        // A line is lost, put elsewhere, or stands there twice.
        const std::size_t start = text.rfind('\n', place) + 1;
        const std::string line = text.substr(start, text.find('\n', start) + 1 - start);
        text.erase(start, line.size());
        for (std::size_t copies = pick(3); copies > 0; --copies) {
            text.insert(text.rfind('\n', pick(text.size() + 1)) + 1, line);
        }
    }
    return text;
}

TEST_F(TableCheck, DamagedTablesAreNeverRefusedByTheLibraryAlone) {
    constexpr int kTimes = 300;
    std::mt19937 random{20240229};
    for (const auto& [name, sound] :
         {std::pair("D.PTBL", kPipes), std::pair("D.VTBL", kValves), std::pair("D.FTBL", kFluid)}) {
        int clean = 0;
        for (int i = 0; i < kTimes; ++i) {
            const std::string text = Damaged(TableText(sound), random);
            const auto findings = Check(name, text);
            if (findings.empty()) ++clean;
            ASSERT_THAT(Shown(findings), Not(HasSubstr("the library"))) << text;
        }
        // Most damages are told, and some do no harm.
        EXPECT_GT(clean, kTimes / 50) << name;
        EXPECT_LT(clean, kTimes / 2) << name;
    }
}

}  // namespace
}  // namespace hydrofacts::command
