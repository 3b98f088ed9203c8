#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "hydrofacts/frame/Language.h"
#include "hydrofacts/frame/Module.h"
#include "quillbase/CLanguage.h"
#include "quillbase/CTableReader.h"
#include "tests/support/TempFolder.h"

namespace {

constexpr unsigned long kEnglish = 1033;
constexpr unsigned long kGerman = 1031;
constexpr unsigned long kSpanish = 1034;
constexpr unsigned long kTesting = 36 + (1U << 10U);

std::string Message(const CLanguage& language, unsigned id, int size = 160) {
    char buffer[161];
    buffer[size] = '#';
    const int length = language.String(nullptr, id, buffer, size);
    EXPECT_EQ(buffer[size], '#');
    std::string text = size > 0 ? buffer : "";
    EXPECT_EQ(text.size(), static_cast<std::size_t>(length));
    return text;
}

std::string Format(const CLanguage& language, int id, const std::string& arg, int size) {
    char buffer[161];
    buffer[size] = '#';
    language.FormatString(nullptr, id, buffer, size, arg.c_str());
    EXPECT_EQ(buffer[size], '#');
    return buffer;
}

class Language : public ::testing::Test {
  protected:
    Language() { language_.Attach(hydrofacts::ModuleHandle(), nullptr); }

    std::string In(unsigned long language, unsigned id) {
        language_.SetLanguage(language);
        return Message(language_, id);
    }

    CLanguage language_;
};

// The texts that hosts compare, and those with letters beyond ASCII or unusual ends.
TEST_F(Language, MessagesStandInTheLanguagesOfTheTable) {
    const struct {
        unsigned long language;
        unsigned id;
        const char* text;
    } kCases[] = {
        {kEnglish, 1,
         "Fluid properties are not available at the specified temperature and pressure. "},
        {kEnglish, 2, "Liquid properties are not available at the specified temperature."},
        {kEnglish, 3, "Loading installed fluid tables from disk..."},
        {kEnglish, 4, "&Installed fluid tables:"},
        {kEnglish, 5, "Vapor properties are not available at the specified temperature. "},
        {kEnglish, 6, "Fluid Table for %s is Invalid."},
        {kEnglish, 7,
         "Fluid changes state at these conditions.  Enter new state in the main fluid dialog box."},
        {kEnglish, 8, "Pipe Table for %s is Invalid."},
        {kEnglish, 129, "Unable to Load Pipe Sizes for Schedule %s Pipe."},
        {kGerman, 4, "Tabellen &installierter Fl\xFCssigkeiten:"},
        {kGerman, 129,
         "Die Rohrgr\xF6\xDF"
         "en f\xFCr Rohre der Wandst\xE4rke (Schedule) %s k\xF6nnen nicht geladen werden. "},
        {1040, 6, "La tabella del fluido per %s non \xE8 valida."},
        {kSpanish, 4, "Tablas de fluidos instalados"},
        {kSpanish, 3, "Cargando las tablas de fluidos instalados del disco\x85"},
        {kTesting, 1, "##########"},
        {kEnglish, 9, ""},
        {kEnglish, 4294967295U, ""},
    };
    for (const auto& c : kCases) EXPECT_EQ(In(c.language, c.id), c.text) << c.language;
    const HINSTANCE module = hydrofacts::ModuleHandle();
    EXPECT_EQ(SizeofResource(module, FindResourceA(module, MAKEINTRESOURCEA(10), "DATA")), 3495U);
}

TEST_F(Language, PrimaryLanguageStandsInForAnUnknownSublanguage) {
    constexpr unsigned long kGivenTaken[][2] = {
        {3081, kEnglish}, {9, kEnglish},    {2055, kGerman}, {7, kGerman},
        {3082, kSpanish}, {1036, kEnglish}, {0, kEnglish},   {0xFFFFFFFFU, kEnglish}};
    for (const auto& [given, taken] : kGivenTaken) EXPECT_EQ(In(given, 6), In(taken, 6)) << given;
    EXPECT_EQ(language_.SetLanguage(2055), 1);
    EXPECT_EQ(language_.SetLanguage(1036), 0);
}

TEST_F(Language, TextsAreCutToTheBuffer) {
    EXPECT_EQ(Message(language_, 4, 5), "&Ins");
    EXPECT_EQ(Message(language_, 4, 0), "");
    EXPECT_EQ(Format(language_, 6, "Water", 160), "Fluid Table for Water is Invalid.");
    EXPECT_EQ(Format(language_, 6, "%s%n", 64), "Fluid Table for %s%n is Invalid.");
    EXPECT_EQ(Format(language_, 6, std::string(500, 'x'), 64),
              "Fluid Table for " + std::string(47, 'x'));
    EXPECT_EQ(Format(language_, 77, "Water", 16), "");
}

TEST_F(Language, FileBesideTheLibraryComesAheadOfTheBuiltInTable) {
    const TempFolder folder;
    const std::string path =
        folder.Write("table.dat",
                     "\r\n6\t\"\"\"Bad %s\"\"\"\tno "
                     "quotes\tcell\r\nIDS\t09-01\t07-02\t12-01\r\n2\t\t\"\"\"D\"\"\"\n6\tsecond");
    CTableReader reader(path.c_str(), '\t', nullptr, nullptr);
    ASSERT_TRUE(reader.Valid());
    language_.Attach(hydrofacts::ModuleHandle(), &reader);
    EXPECT_EQ(In(kEnglish, 6), "Bad %s");
    EXPECT_EQ(In(kGerman, 6), "no quotes");
    EXPECT_EQ(In(1036, 6), "cell");  // French, which the built-in table hasn't
    EXPECT_EQ(In(kGerman, 2), "D");
    EXPECT_EQ(In(kSpanish, 4), "Tablas de fluidos instalados");
    EXPECT_EQ(In(1036, 4), "&Installed fluid tables:");
}

TEST_F(Language, FileThatIsNoTableIsNotValid) {
    const TempFolder folder;
    for (const std::string_view content :
         {"", "\r\n\r\n", "IDS", "IDS\tEnglish\t9", "ids\t09-01", "IDS\t09-x1\n", "6\tx\n"}) {
        const std::string path = folder.Write("table.dat", content);
        EXPECT_FALSE(CTableReader(path.c_str(), '\t', nullptr, nullptr).Valid()) << content;
    }
    EXPECT_FALSE(CTableReader(folder.Path().c_str(), '\t', nullptr, nullptr).Valid());
    EXPECT_FALSE(CTableReader(folder.Path("none.dat").c_str(), '\t', nullptr, nullptr).Valid());
}

TEST_F(Language, NumbersTakeTheLanguagesDecimalSign) {
    const struct {
        unsigned long language;
        const char* english;
        const char* shown;
    } kCases[] = {{kEnglish, "1234.5", "1234.5"},
                  {kGerman, "-12.5e-3", "-12,5e-3"},
                  {1040, "0.5", "0,5"},
                  {kSpanish, "7", "7"}};
    for (const auto& c : kCases) {
        language_.SetLanguage(c.language);
        std::string text = c.english;
        EXPECT_STREQ(language_.Number(text.data()), c.shown);
        EXPECT_STREQ(language_.EnglishNumber(text.data()), c.english);
    }
    language_.SetLanguage(kGerman);
    std::string thousands = "1.234.567,5";
    EXPECT_STREQ(language_.EnglishNumber(thousands.data()), "1234567.5");
    std::string point = "1234.5";
    EXPECT_STREQ(language_.EnglishNumber(point.data()), "1234.5");
}

TEST_F(Language, HostChoosesAndReadsMessages) {
    char buffer[160];
    Hydrofacts_SetLanguage(kGerman);
    EXPECT_EQ(Hydrofacts_GetMessage(8, buffer, sizeof buffer), 32);
    EXPECT_STREQ(buffer, "Rohrtabelle f\xFCr %s ist ung\xFCltig.");
    Hydrofacts_SetLanguage(kEnglish);
}

}  // namespace
