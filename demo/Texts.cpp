#include "demo/Texts.h"

#include <cstddef>
#include <iterator>
#include <string_view>

namespace demo {
namespace {

struct Language {
    unsigned long id;
    const char* name;
    int column;  // Australia reads the English texts
};

// clang-format off
constexpr Language kAll[kLanguages] = {
    {1033, "English",             0},
    {3081, "English (Australia)", 0},
    {1031, "Deutsch",             1},
    {1040, "italiano",            2},
    {1034, "español",             3},
};

constexpr int kColumns = 4;

// In the order of Text.
constexpr const char* kTexts[][kColumns] = {
    {"Hydrofacts",                 "Hydrofacts",                   "Hydrofacts",                   "Hydrofacts"},
    {"Fluid",                      "Fluid",                        "Fluido",                       "Fluido"},
    {"Conditions",                 "Bedingungen",                  "Condizioni",                   "Condiciones"},
    {"Temperature",                "Temperatur",                   "Temperatura",                  "Temperatura"},
    {"Pipe",                       "Rohr",                         "Tubo",                         "Tubería"},
    {"Valve",                      "Armatur",                      "Valvola",                      "Válvula"},
    {"&Units",                     "&Einheiten",                   "&Unità",                       "&Unidades"},
    {"US",                         "US",                           "US",                           "EE. UU."},
    {"Metric",                     "Metrisch",                     "Metriche",                     "Métricas"},
    {"P&ressures",                 "&Drücke",                      "&Pressioni",                   "&Presiones"},
    {"Absolute",                   "Absolut",                      "Assolute",                     "Absolutas"},
    {"Gauge",                      "Überdruck",                    "Relative",                     "Manométricas"},
    {"&Atmosphere",                "&Atmosphäre",                  "&Atmosfera",                   "At&mósfera"},
    {"&Elevation...",              "&Höhe...",                     "&Quota...",                    "&Altitud..."},
    {"Lan&guage",                  "&Sprache",                     "Lin&gua",                      "I&dioma"},
    {"Close",                      "Schließen",                    "Chiudi",                       "Cerrar"},
    {"Set point",                  "Arbeitspunkt",                 "Punto di lavoro",              "Punto de trabajo"},
    {"&Temperature",               "&Temperatur",                  "&Temperatura",                 "&Temperatura"},
    {"&Pressure",                  "D&ruck",                       "P&ressione",                   "P&resión"},
    {"State",                      "Zustand",                      "Stato",                        "Estado"},
    {"&Liquid",                    "&Flüssigkeit",                 "&Liquido",                     "&Líquido"},
    {"&Vapor",                     "Dam&pf",                       "&Vapore",                      "&Vapor"},
    {"&Name of a fluid of your own","&Name eines eigenen Fluids",  "&Nome di un fluido proprio",   "&Nombre de un fluido propio"},
    {"Properties",                 "Eigenschaften",                "Proprietà",                    "Propiedades"},
    {"&Density",                   "Di&chte",                      "&Densità",                     "D&ensidad"},
    {"Vi&scosity",                 "&Viskosität",                  "Vi&scosità",                   "V&iscosidad"},
    {"Vapor pressure",             "Dampfdruck",                   "Pressione di vapore",          "Presión de vapor"},
    {"Critical pressure",          "Kritischer Druck",             "Pressione critica",            "Presión crítica"},
    {"Critical temperature",       "Kritische Temperatur",         "Temperatura critica",          "Temperatura crítica"},
    {"Ratio of specific heats",    "Isentropenexponent",           "Rapporto calori specifici",    "Relación de calores"},
    {"Molecular weight",           "Molare Masse",                 "Peso molecolare",              "Peso molecular"},
    {"Take &over",                 "Ü&bernehmen",                  "Appli&ca",                     "Apli&car"},
    {"Some properties that this state needs are missing.",
     "Einige Eigenschaften, die dieser Zustand braucht, fehlen.",
     "Mancano alcune proprietà necessarie per questo stato.",
     "Faltan propiedades que este estado necesita."},
    {"Plot",                       "Diagramm",                     "Grafico",                      "Gráfico"},
    {"Choose an installed fluid and a set point.",
     "Wählen Sie ein Fluid und einen Arbeitspunkt.",
     "Scegliere un fluido e un punto di lavoro.",
     "Elija un fluido y un punto de trabajo."},
    {"This state has no such property.",
     "Dieser Zustand hat diese Eigenschaft nicht.",
     "Questo stato non ha tale proprietà.",
     "Este estado no tiene esa propiedad."},
    {"Fluid",                      "Fluid",                        "Fluido",                       "Fluido"},
    {"The fluid and its state are those of the page Fluid; here only the conditions change.",
     "Fluid und Zustand sind die der Seite Fluid; hier ändern sich nur die Bedingungen.",
     "Fluido e stato sono quelli della pagina Fluido; qui cambiano solo le condizioni.",
     "El fluido y su estado son los de la página Fluido; aquí solo cambian las condiciones."},
    {"Installed &pipes",           "Installierte &Rohre",          "Tubi &installati",             "Tuberías &instaladas"},
    {"Material",                   "Werkstoff",                    "Materiale",                    "Material"},
    {"Schedule",                   "Wandstärke",                   "Schedule",                     "Cédula"},
    {"Absolute roughness",         "Absolute Rauheit",             "Rugosità assoluta",            "Rugosidad absoluta"},
    {"Hazen-Williams C",           "Hazen-Williams C",             "Hazen-Williams C",             "Hazen-Williams C"},
    {"&Nominal size",              "&Nennweite",                   "Diametro &nominale",           "Diámetro &nominal"},
    {"Inside diameter",            "Innendurchmesser",             "Diametro interno",             "Diámetro interior"},
    {"&Table",                     "&Tabelle",                     "&Tabella",                     "Ta&bla"},
    {"&Fittings",                  "&Formstücke",                  "&Raccordi",                    "A&ccesorios"},
    {"&Bends",                     "&Bögen",                       "&Curve",                       "Cu&rvas"},
    {"&Valves",                    "&Ventile",                     "&Valvole",                     "&Válvulas"},
    {"&Check valves",              "&Rückschlagventile",           "Valvole di &non ritorno",      "Válvulas de re&tención"},
    {"&Others",                    "S&onstige",                    "A&ltri",                       "&Otros"},
    {"Devices",                    "Bauteile",                     "Dispositivi",                  "Dispositivos"},
    {"Chosen",                     "Ausgewählt",                   "Scelti",                       "Elegidos"},
    {"A&dd >",                     "H&inzufügen >",                "Agg&iungi >",                  "Añad&ir >"},
    {"< Re&move",                  "< E&ntfernen",                 "< Ri&muovi",                   "< &Quitar"},
    {"Formula",                    "Formel",                       "Formula",                      "Fórmula"},
    {"Figures",                    "Zahlen",                       "Valori",                       "Valores"},
    {"nothing chosen yet",         "noch nichts gewählt",          "ancora nessuna scelta",        "nada elegido todavía"},
};
// clang-format on
static_assert(std::size(kTexts) == static_cast<std::size_t>(Text::Count));

// The texts above have no characters beyond Latin-1, whose bytes are those of Windows-1252.
std::string ToWindows1252(std::string_view utf8) {
    std::string result;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte < 0x80 || i + 1 == utf8.size()) {
            result += utf8[i];
        } else {
            const auto next = static_cast<unsigned char>(utf8[++i]);
            result += static_cast<char>((byte & 0x03U) << 6U | (next & 0x3FU));
        }
    }
    return result;
}

const Language& At(int language) {
    const bool known = language >= 0 && language < kLanguages;
    return kAll[known ? static_cast<std::size_t>(language) : 0];
}

}  // namespace

unsigned long LanguageId(int language) { return At(language).id; }

std::string LanguageName(int language) { return ToWindows1252(At(language).name); }

char DecimalSign(int language) { return At(language).column == 0 ? '.' : ','; }

std::string Say(Text text, int language) {
    const auto row = static_cast<std::size_t>(text);
    if (row >= std::size(kTexts)) return {};
    return ToWindows1252(kTexts[row][At(language).column]);
}

}  // namespace demo
