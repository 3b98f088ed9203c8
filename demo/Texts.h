#ifndef HYDROFACTS_DEMO_TEXTS_H
#define HYDROFACTS_DEMO_TEXTS_H

#include <string>

namespace demo {

/// What the program says itself, in the five languages of the library's messages.
enum class Text {
    Title,
    PageFluid,
    PageConditions,
    PageTemperature,
    PagePipe,
    PageValve,
    Units,
    UsUnits,
    MetricUnits,
    Pressures,
    Absolute,
    Gauge,
    Atmosphere,
    Elevation,
    Language,
    Close,
    SetPoint,
    Temperature,
    Pressure,
    State,
    Liquid,
    Vapor,
    OwnFluid,
    Properties,
    Density,
    Viscosity,
    VaporPressure,
    CriticalPressure,
    CriticalTemperature,
    HeatRatio,
    MolarMass,
    TakeOver,
    Incomplete,
    Plot,
    NoPlot,
    NotInThisState,
    Fluid,
    FromFluidPage,
    Pipes,
    Material,
    Schedule,
    Roughness,
    HazenWilliams,
    NominalSize,
    InsideDiameter,
    ValveTable,
    Fitting,
    Bend,
    Valve,
    CheckValve,
    Other,
    Devices,
    Chosen,
    Add,
    Remove,
    Method,
    Data,
    Nothing,
    Count,
};

inline constexpr int kLanguages = 5;

/// Windows' identifier of a language, and its own name, Windows-1252.
unsigned long LanguageId(int language);
std::string LanguageName(int language);

/// A comma or a point, as the library shows numbers in that language.
char DecimalSign(int language);

/// A text in a language, Windows-1252.
std::string Say(Text text, int language);

}  // namespace demo

#endif
