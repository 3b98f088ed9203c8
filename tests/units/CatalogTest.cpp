#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "hydrofacts/units/Units.h"

namespace {

// The catalogs are private and their order shows only in dialogs. An explicit instantiation may
// name private members, and hands one out here.
using CatalogFunction = Units::t_unit* (*)(HF_UNIT_TYPES, int&);
CatalogFunction Catalog();
template <CatalogFunction function>
struct Reveal {
    friend CatalogFunction Catalog() { return function; }
};
template struct Reveal<&Units::GetTUnitArray>;

struct Row {
    HF_UNIT_TYPES type;
    int id;
    const char* text;
    double factor;
};

// In display order. Factors: for a head, what divides length times lb/ft³ to give psi; for a flow,
// US gpm (a mass flow: times kg/m³) or scfm; otherwise the SI unit, and lb/ft for thrust per
// length. They are the rounded figures that hosts compute with.
// clang-format off
constexpr Row kRows[] = {
    {HF_TEMPERATURE,        0, "\xB0" "F",      0.0},
    {HF_TEMPERATURE,        1, "\xB0" "R",      0.0},
    {HF_TEMPERATURE,        2, "\xB0" "C",      0.0},
    {HF_TEMPERATURE,        3, " K",            0.0},
    {HF_PRESSURE,           0, "psi",           0.0},
    {HF_PRESSURE,           3, "in H2O",        0.0},
    {HF_PRESSURE,           4, "in Hg",         0.0},
    {HF_PRESSURE,           1, "kPa",           0.0},
    {HF_PRESSURE,           7, "Pa",            0.0},
    {HF_PRESSURE,           2, "bar",           0.0},
    {HF_PRESSURE,           5, "mm H2O",        0.0},
    {HF_PRESSURE,           6, "mm Hg",         0.0},
    {HF_PRESSURE,           8, "ft",            144.0},
    {HF_PRESSURE,           9, "m",             43.891200000000005},
    {HF_PRESSURE,          10, "in",            1728.0},
    {HF_PRESSURE,          11, "mm",            43891.200000000004},
    {HF_PRESSURE,          12, "ft H2O",        144.0},
    {HF_PRESSURE,          13, "m H2O",         43.891200000000005},
    {HF_FLOW,               0, "US gpm",        1.0},
    {HF_FLOW,               1, "mgd",           694.44444},
    {HF_FLOW,               2, "cfm",           7.4805195},
    {HF_FLOW,               3, "cfs",           448.83117},
    {HF_FLOW,               4, "bph",           0.7},
    {HF_FLOW,              23, "bpd",           0.029166666666666664},
    {HF_FLOW,               5, "lb/hr",         1.9971},
    {HF_FLOW,               6, "lb/sec",        7189.56},
    {HF_FLOW,               7, "lb/min",        119.82600000000001},
    {HF_FLOW,               8, "Mlb/hr",        1997100.0},
    {HF_FLOW,              24, "m\xB3" "/day",  0.1834528125},
    {HF_FLOW,               9, "m\xB3" "/hr",   4.4028675},
    {HF_FLOW,              10, "m\xB3" "/s",    15850.323},
    {HF_FLOW,              11, "lpm",           0.26417205},
    {HF_FLOW,              12, "l/s",           15.850323},
    {HF_FLOW,              13, "kg/hr",         4.4028675},
    {HF_FLOW,              14, "kg/sec",        15850.323},
    {HF_FLOW,              15, "kg/min",        264.17205},
    {HF_FLOW,              16, "Gg/hr",         4402867.5},
    {HF_FLOW,              17, "scfh",          0.016666666666666666},
    {HF_FLOW,              18, "scfs",          60.0},
    {HF_FLOW,              19, "scfm",          1.0},
    {HF_FLOW,              20, "sm\xB3" "/hr",  0.58857778},
    {HF_FLOW,              21, "sm\xB3" "/s",   2118.880008},
    {HF_FLOW,              22, "sm\xB3" "/min", 35.314666800000005},
    {HF_FLOW,              25, "OTHER",         0.0},
    {HF_DENSITY,            0, "lb/ft\xB3",     16.018463},
    {HF_DENSITY,            1, "kg/m\xB3",      1.0},
    {HF_DENSITY,            2, "sg",            997.2},
    {HF_DENSITY,            3, "OTHER",         0.0},
    {HF_VISCOSITY,          0, "cP",            1.0},
    {HF_VISCOSITY,          1, "cSt",           1.0},
    {HF_VELOCITY,           0, "m/s",           1.0},
    {HF_VELOCITY,           1, "ft/s",          0.3048},
    {HF_VELOCITY,           2, "OTHER",         0.0},
    {HF_POWER,              0, "kW",            1.0},
    {HF_POWER,              1, "hp",            0.74569987},
    {HF_POWER,              2, "OTHER",         0.0},
    {HF_LENGTH,             0, "m",             1.0},
    {HF_LENGTH,             1, "km",            1000.0},
    {HF_LENGTH,             2, "cm",            0.01},
    {HF_LENGTH,             3, "mm",            0.001},
    {HF_LENGTH,             4, "in",            0.0254},
    {HF_LENGTH,             5, "ft",            0.3048},
    {HF_LENGTH,             6, "yd",            0.9144},
    {HF_LENGTH,             7, "mi",            1609.344},
    {HF_LENGTH,             8, "OTHER",         0.0},
    {HF_AREA,               0, "m\xB2",         1.0},
    {HF_AREA,               1, "ft\xB2",        0.09290304},
    {HF_AREA,               2, "in\xB2",        0.00064516},
    {HF_AREA,               3, "mm\xB2",        0.000001},
    {HF_AREA,               4, "cm\xB2",        0.0001},
    {HF_THRUST_PER_LENGTH,  0, "lb/ft",         1.0},
    {HF_THRUST_PER_LENGTH,  1, "kg/m",          0.6721},
};
// clang-format on

TEST(Catalog, RowsStandInDisplayOrderWithIdTextAndFactor) {
    HF_UNIT_TYPES type = HF_TEMPERATURE;
    int place = 0;
    for (const Row& row : kRows) {
        int count = 0;
        if (row.type != type) {
            Catalog()(type, count);
            EXPECT_EQ(place, count) << type;
            type = row.type;
            place = 0;
        }
        const Units::t_unit* rows = Catalog()(row.type, count);
        ASSERT_LT(place, count) << row.text;
        const Units::t_unit& unit = rows[place++];
        EXPECT_EQ(unit.id, row.id) << row.text;
        EXPECT_STREQ(unit.text, row.text);
        EXPECT_EQ(unit.factor, row.factor) << row.text;
        EXPECT_FALSE(unit.mass_based);
    }
    int count = 0;
    Catalog()(type, count);
    EXPECT_EQ(place, count);
}

TEST(Catalog, IdsAndTextsAreUniqueAndFindEachOther) {
    std::set<std::pair<int, int>> ids;
    std::set<std::pair<int, std::string>> texts;
    for (const Row& row : kRows) {
        EXPECT_TRUE(ids.emplace(row.type, row.id).second) << row.text;
        EXPECT_TRUE(texts.emplace(row.type, row.text).second) << row.text;
        EXPECT_STREQ(Units::GetString(row.type, row.id), row.text);
        EXPECT_EQ(Units::GetUnit(row.text, row.type), row.id) << row.text;
    }
}

// Hosts compare results with stored ones, so the last bit counts: multiplied first, then divided.
// Measures, and the two kinds of flow, convert by their factors alone.
TEST(Catalog, RatiosAreMultipliedAndThenDivided) {
    const Units units;
    const auto kind = [](const Row& row) {
        if (row.type != HF_FLOW) return row.type >= HF_DENSITY && row.type != HF_VISCOSITY ? 1 : 0;
        if (row.id >= HF_SCFH && row.id <= HF_SM3_MIN) return 2;
        const bool volume =
            row.id <= HF_BPH || (row.id >= HF_M3_HR && row.id <= HF_L_S) || row.id >= HF_BPD;
        return volume ? 1 : 0;
    };
    int pairs = 0;
    for (const Row& from : kRows) {
        for (const Row& to : kRows) {
            const bool ratio = from.type == to.type && kind(from) != 0 && kind(from) == kind(to);
            if (!ratio || from.id == to.id || from.factor == 0.0 || to.factor == 0.0) continue;
            ++pairs;
            for (const double value : {0.1, -12.3, 1e-310}) {
                EXPECT_EQ(units.Convert(from.type, value, from.id, to.id, nullptr),
                          from.factor * value / to.factor)
                    << from.text << " to " << to.text;
            }
        }
    }
    EXPECT_EQ(pairs, 6 + 2 + 2 + 56 + 20 + 2 + 11 * 10 + 6 * 5);
}

TEST(Catalog, LookupIgnoresCaseAndKnowsTheMeasure) {
    const struct {
        const char* text;
        int type;
        int id;
    } kCases[] = {
        {"KPA", HF_PRESSURE, HF_KPA},
        {"US GPM", HF_FLOW, HF_US_GPM},
        {"m", HF_PRESSURE, HF_HEAD_M},
        {"m", HF_LENGTH, HF_LEN_M},
        {"K", HF_TEMPERATURE, -1},
        {" k", HF_TEMPERATURE, HF_KELVIN},
        {"lb/ft", HF_AREA, -1},
        {"", HF_FLOW, -1},
        {"psi", 12, -1},
        {"psi", -1, -1},
        {"FT\xB3", HF_DENSITY, -1},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(Units::GetUnit(c.text, static_cast<HF_UNIT_TYPES>(c.type)), c.id) << c.text;
    }
}

TEST(Catalog, UnknownIdsAndMeasuresHaveNoText) {
    constexpr int kCases[][2] = {{HF_PRESSURE, 14},       {HF_AREA, 5}, {HF_FLOW, -1},
                                 {HF_FLOW, HF_USER_UNIT}, {12, 0},      {-1, 0}};
    for (const auto& [type, id] : kCases) {
        EXPECT_EQ(Units::GetString(static_cast<HF_UNIT_TYPES>(type), id), nullptr)
            << type << " " << id;
    }
    int count = 99;
    EXPECT_EQ(Catalog()(static_cast<HF_UNIT_TYPES>(12), count), nullptr);
    EXPECT_EQ(count, 99);
}

}  // namespace
