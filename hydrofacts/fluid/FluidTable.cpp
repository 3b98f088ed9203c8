// Loading a fluid from its table file.

#include <cstring>
#include <iterator>
#include <string_view>

#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/frame/TableFile.h"
#include "quillbase/Text.h"
#include "quillbase/TextFile.h"

namespace {

constexpr int kLineSize = 260;

// Capitals alone make a record; anything else is a remark.
bool IsRecord(std::string_view line) {
    return line.starts_with('D') || line.starts_with('P') || line.starts_with('V');
}

}  // namespace

int CFluid::SetFluid(char* directory, const char* name, double temperature, double pressure) {
    const bool loaded = m_formulas[SLOT_LIQUID_SAT_PRES].m_type != 0;
    if (std::strcmp(m_name, name) != 0 || !loaded) {
        const int usable = LoadFluidTable(directory, name);
        rstrncpy(m_name, name, sizeof m_name);
        if (usable == 0) return 1;
    }
    m_temperature = temperature;
    m_pressure = pressure;
    m_state = FindFluidState(m_temperature, m_pressure);
    return 0;
}

int CFluid::SetFluid(char* directory, const char* name, double temperature) {
    const int usable = LoadFluidTable(directory, name);
    rstrncpy(m_name, name, sizeof m_name);
    m_temperature = temperature;
    m_pressure = 0.0;
    if (usable == 0) return 1;
    m_state = FLUID_LIQUID;
    if (SetPointIsValid(m_temperature, m_pressure) == 0) m_state = FLUID_NONE;
    return 0;
}

void CFluid::ReadFluidRecords(TextFile* file, char* line, int) {
    // Most lines are remarks, which need not be copied.
    std::string_view read;
    do {
        read = file->TakeLine();
    } while (!file->eof() && !IsRecord(read));
    line[read.copy(line, kLineSize - 1)] = '\0';
}

int CFluid::LoadFluidTable(const char* directory, const char* name) {
    return LoadFluidTable(directory, name, 0.0, 0.0);
}

int CFluid::LoadFluidTable(const char* directory, const char* name, double highLimit,
                           double lowLimit) {
    // Nothing but the reading of the file takes memory: if there is none, the fluid is the one it
    // was.
    const hydrofacts::TablePath path(directory, name, ".FTBL");
    TextFile file(path.c_str());
    m_molecularWt = 0.0;
    m_criticalTemp = 0.0;
    m_criticalPres = 0.0;
    m_liquidMinTemp = 0.0;
    m_liquidMaxTemp = 0.0;
    m_vaporMinTemp = 0.0;
    m_vaporMaxTemp = 0.0;
    m_vaporMaxPres = 0.0;

    const bool read = file.ValidFile() && ReadTable(file, highLimit, lowLimit);
    const bool complete = DropIncompleteSets();
    return read && complete ? 1 : 0;
}

// The constants are read and turned into user units also of a table whose head is refused; its
// formulas are not.
bool CFluid::ReadTable(TextFile& file, double highLimit, double lowLimit) {
    char line[kLineSize] = "";
    ReadFluidRecords(&file, line, kLineSize);
    const bool headGood = *line == 'V' && hydrofacts::LevelsAreWithin(line, highLimit, lowLimit);
    const bool constantsGood = ReadConstants(file, line);
    const bool good = headGood && constantsGood && ReadFormulas(file, line);

    m_criticalTemp = UserTemp(m_criticalTemp);
    m_criticalPres = UserPres(m_criticalPres, 1);
    return good;
}

bool CFluid::ReadConstants(TextFile& file, char* line) {
    ReadFluidRecords(&file, line, kLineSize);
    if (!file.eof() && *line == 'D') {
        char* rest = line;
        hydrofacts::TakeField(rest);
        double* const constants[] = {&m_molecularWt,   &m_criticalTemp,  &m_criticalPres,
                                     &m_liquidMinTemp, &m_liquidMaxTemp, &m_vaporMinTemp,
                                     &m_vaporMaxTemp,  &m_vaporMaxPres};
        for (double* constant : constants) {
            if (hydrofacts::TakeReal(rest, constant) == 0) break;
        }
    }
    return m_vaporMaxPres != 0.0;
}

bool CFluid::ReadFormulas(TextFile& file, char* line) {
    for (short slot = 0; slot < static_cast<short>(std::size(m_formulas)); ++slot) {
        CFormula& formula = m_formulas[slot];
        ReadFluidRecords(&file, line, kLineSize);
        if (file.eof()) {
            formula.ClearFormula();
        } else if (*line == 'P' &&
                   formula.LoadFormula(slot, line, m_criticalTemp, m_criticalPres) != 0) {
            return false;
        }
    }
    return true;
}

// A phase needs all of its formulas; one without them all is left out. False if no phase remains,
// or the saturation pressure, which every fluid needs, is absent.
bool CFluid::DropIncompleteSets() {
    const auto has = [this](int slot) { return m_formulas[slot].m_type != 0; };
    if (!has(SLOT_LIQUID_DENSITY) || !has(SLOT_LIQUID_VISCOSITY)) {
        m_formulas[SLOT_LIQUID_DENSITY].m_type = 0;
        m_formulas[SLOT_LIQUID_VISCOSITY].m_type = 0;
    }
    if (!has(SLOT_VAPOR_DENSITY) || !has(SLOT_VAPOR_VISCOSITY) || !has(SLOT_VAPOR_SPHEAT)) {
        m_formulas[SLOT_VAPOR_DENSITY].m_type = 0;
        m_formulas[SLOT_VAPOR_VISCOSITY].m_type = 0;
        m_formulas[SLOT_VAPOR_SPHEAT].m_type = 0;
    }
    return has(SLOT_LIQUID_SAT_PRES) && (has(SLOT_LIQUID_DENSITY) || has(SLOT_VAPOR_DENSITY));
}
