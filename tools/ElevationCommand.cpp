#include <fmt/core.h>

#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/Failure.h"
#include "tools/Measures.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/Program.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(The standard atmosphere from -10000 to 15000 ft; 14.697 psi at sea level. Without --pressure-unit
the pressure is in psi for an elevation in in, ft, yd or mi, else in bar.

Examples:
  hydrofacts elevation 5280 ft
  hydrofacts elevation 1500 m --pressure-unit kPa
  hydrofacts elevation -400 m --json)";

constexpr double kLowestFeet = -10000.0;
constexpr double kHighestFeet = 15000.0;
constexpr int kDigits = 5;  // of 14.697

struct ElevationOptions {
    std::string value;
    std::string unit;
    std::string pressureUnit;
};

int PressureUnitFor(const ElevationOptions& own, int lengthUnit) {
    if (own.pressureUnit.empty()) {
        return lengthUnit >= HF_LEN_IN && lengthUnit <= HF_LEN_MI ? HF_PSI : HF_BAR;
    }
    const int unit = RequireUnit(HF_PRESSURE, own.pressureUnit);
    if (unit <= HF_PA) return unit;
    throw Failure(fmt::format("--pressure-unit: {} is a head of fluid, not a pressure",
                              UnitText(HF_PRESSURE, unit)));
}

std::string LimitText(double feet, int unit) {
    return ShortNumber(UnitValue<HF_LENGTH, 0>(HF_LEN_FT, feet).value_in(unit), 6);
}

void ShowElevation(const Options& options, const ElevationOptions& own) {
    const double value = RequireNumber(own.value, "VALUE");
    const int unit = RequireUnit(HF_LENGTH, own.unit);
    const int pressureUnit = PressureUnitFor(own, unit);
    const std::string unitText = UnitText(HF_LENGTH, unit);

    const auto pressure = Atmospheric_Pressure_Equations::atmospheric_pressure_at_elevation(
        UnitValue<HF_LENGTH, 0>(unit, value));
    if (std::isnan(pressure.raw_value())) {
        throw Failure(fmt::format("{} {} is outside the standard atmosphere, which goes from {} to "
                                  "{} {}",
                                  ShortNumber(value), unitText, LimitText(kLowestFeet, unit),
                                  LimitText(kHighestFeet, unit), unitText),
                      kOutside);
    }
    const double result = pressure.value_in(pressureUnit);
    const std::string pressureText = UnitText(HF_PRESSURE, pressureUnit);
    if (options.json) {
        PrintJson({{"elevation", value},
                   {"pressure", result},
                   {"units", {{"elevation", unitText}, {"pressure", pressureText}}}});
    } else {
        Print(fmt::format("The standard atmosphere at {} {}: {} {} absolute\n", ShortNumber(value),
                          unitText, SignificantNumber(result, kDigits), pressureText));
    }
}

}  // namespace

void AddElevationCommand(Command& program, Options& options) {
    const auto own = std::make_shared<ElevationOptions>();
    Command command = program.AddCommand(
        "elevation", "Show the pressure of the standard atmosphere at an elevation");
    command.AddWord("VALUE", own->value, "The elevation above sea level").Require();
    command.AddWord("UNIT", own->unit, "Its unit of length, such as ft or m").Require();
    command.AddOption("--pressure-unit", own->pressureUnit, "U", "Unit of the pressure");
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, own] { ShowElevation(options, *own); });
}

}  // namespace hydrofacts::command
