#include <gtest/gtest.h>

#include <charconv>
#include <iterator>
#include <span>
#include <string>

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

/// The rows of a measure.
std::span<const Units::t_unit> Rows(HF_UNIT_TYPES type) {
    int count = 0;
    const Units::t_unit* rows = Catalog()(type, count);
    return {rows, static_cast<std::size_t>(count)};
}

// Id, text and factor of each row, in display order. Factors: for a head, what divides length times
// lb/ft³ to give psi; for a flow, US gpm (a mass flow: times kg/m³) or scfm; otherwise the SI unit,
// and lb/ft for thrust per length. They are the rounded figures that hosts compute with.
constexpr struct {
    HF_UNIT_TYPES type;
    const char* rows;
} kCatalogs[] = {
    {HF_TEMPERATURE, "0 \260F 0; 1 \260R 0; 2 \260C 0; 3  K 0; "},
    {HF_PRESSURE,
     "0 psi 0; 3 in H2O 0; 4 in Hg 0; 1 kPa 0; 7 Pa 0; 2 bar 0; 5 mm H2O 0; 6 mm Hg 0; "
     "8 ft 144; 9 m 43.891200000000005; 10 in 1728; 11 mm 43891.200000000004; 12 ft H2O 144; "
     "13 m H2O 43.891200000000005; "},
    {HF_FLOW,
     "0 US gpm 1; 1 mgd 694.44444; 2 cfm 7.4805195; 3 cfs 448.83117; 4 bph 0.7; "
     "23 bpd 0.029166666666666664; 5 lb/hr 1.9971; 6 lb/sec 7189.56; "
     "7 lb/min 119.82600000000001; 8 Mlb/hr 1997100; 24 m\263/day 0.1834528125; "
     "9 m\263/hr 4.4028675; 10 m\263/s 15850.323; 11 lpm 0.26417205; 12 l/s 15.850323; "
     "13 kg/hr 4.4028675; 14 kg/sec 15850.323; 15 kg/min 264.17205; 16 Gg/hr 4402867.5; "
     "17 scfh 0.016666666666666666; 18 scfs 60; 19 scfm 1; 20 sm\263/hr 0.58857778; "
     "21 sm\263/s 2118.880008; 22 sm\263/min 35.314666800000005; 25 OTHER 0; "},
    {HF_DENSITY, "0 lb/ft\263 16.018463; 1 kg/m\263 1; 2 sg 997.2; 3 OTHER 0; "},
    {HF_VISCOSITY, "0 cP 1; 1 cSt 1; "},
    {HF_VELOCITY, "0 m/s 1; 1 ft/s 0.3048; 2 OTHER 0; "},
    {HF_POWER, "0 kW 1; 1 hp 0.74569987; 2 OTHER 0; "},
    {HF_LENGTH,
     "0 m 1; 1 km 1000; 2 cm 0.01; 3 mm 0.001; 4 in 0.0254; 5 ft 0.3048; 6 yd 0.9144; "
     "7 mi 1609.344; 8 OTHER 0; "},
    {HF_AREA,
     "0 m\262 1; 1 ft\262 0.09290304; 2 in\262 0.00064516; 3 mm\262 1e-06; 4 cm\262 1e-04; "},
    {HF_THRUST_PER_LENGTH, "0 lb/ft 1; 1 kg/m 0.6721; "},
};

TEST(Catalog, RowsStandInDisplayOrderWithIdTextAndFactor) {
    for (const auto& catalog : kCatalogs) {
        std::string shown;
        for (const Units::t_unit& row : Rows(catalog.type)) {
            char factor[32] = "";
            std::to_chars(factor, std::end(factor), row.factor);  // to the last bit
            shown += std::to_string(row.id) + " " + row.text + " " + factor + "; ";
            EXPECT_FALSE(row.mass_based) << row.text;
            EXPECT_STREQ(Units::GetString(catalog.type, row.id), row.text);
            EXPECT_EQ(Units::GetUnit(row.text, catalog.type), row.id) << row.text;
        }
        EXPECT_EQ(shown, catalog.rows);
    }
}

// Hosts compare results with stored ones, so the last bit counts: multiplied first, then divided.
// Measures, and the two kinds of flow, convert by their factors alone.
TEST(Catalog, RatiosAreMultipliedAndThenDivided) {
    const Units units;
    const auto kind = [](HF_UNIT_TYPES type, int id) {
        if (type != HF_FLOW) return type >= HF_DENSITY && type != HF_VISCOSITY ? 1 : 0;
        if (id >= HF_SCFH && id <= HF_SM3_MIN) return 2;
        return id <= HF_BPH || (id >= HF_M3_HR && id <= HF_L_S) || id >= HF_BPD ? 1 : 0;
    };
    int pairs = 0;
    const auto compare = [&](HF_UNIT_TYPES type, const Units::t_unit& from,
                             const Units::t_unit& to) {
        if (kind(type, from.id) == 0 || kind(type, from.id) != kind(type, to.id)) return;
        if (from.id == to.id || from.factor == 0.0 || to.factor == 0.0) return;
        ++pairs;
        for (const double value : {0.1, -12.3, 1e-310}) {
            EXPECT_EQ(units.Convert(type, value, from.id, to.id, nullptr),
                      from.factor * value / to.factor)
                << from.text << " to " << to.text;
        }
    };
    for (const auto& catalog : kCatalogs) {
        for (const Units::t_unit& from : Rows(catalog.type)) {
            for (const Units::t_unit& to : Rows(catalog.type)) compare(catalog.type, from, to);
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
    };
    for (const auto& c : kCases)
        EXPECT_EQ(Units::GetUnit(c.text, static_cast<HF_UNIT_TYPES>(c.type)), c.id) << c.text;
    constexpr int kUnknown[][2] = {{HF_PRESSURE, 14},       {HF_AREA, 5}, {HF_FLOW, -1},
                                   {HF_FLOW, HF_USER_UNIT}, {12, 0},      {-1, 0}};
    for (const auto& [type, id] : kUnknown) {
        EXPECT_EQ(Units::GetString(static_cast<HF_UNIT_TYPES>(type), id), nullptr)
            << type << " " << id;
    }
}

}  // namespace
