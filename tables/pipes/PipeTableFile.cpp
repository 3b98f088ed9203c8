#include "tables/pipes/PipeTableFile.h"

#include "hydrofacts/pipe/CPipeTable.h"
#include "tables/Csv.h"
#include "tables/NominalSize.h"
#include "tables/Numbers.h"
#include "tables/TableLines.h"

namespace hydrofacts::tables {
namespace {

constexpr std::size_t kLongestLine = 99;  // characters, with a carriage return 100

double InUnits(const TwoLengths& lengths, HF_UNITS units) {
    return units == HF_US ? lengths.inches : lengths.millimetres;
}

// What the library makes of a table, against what was written into it.
class LoadedTable {
  public:
    LoadedTable(const std::filesystem::path& folder, const PipeMaterial& material, HF_UNITS units)
        : m_material(material), m_units(units), m_pipe(units) {
        if (!m_pipe.LoadMaterial(folder.string().c_str(), material.name.c_str())) {
            Fail("the library does not load the material");
        }
    }

    void Check() {
        Expect(m_pipe.GetAbsRoughness(), InUnits(m_material.roughness, m_units), "roughness");
        Expect(m_pipe.GetHWC(), m_material.hazenWilliamsC, "Hazen-Williams C");
        for (const PipeSchedule& schedule : m_material.schedules) {
            CheckSchedule(schedule);
        }
    }

  private:
    void CheckSchedule(const PipeSchedule& schedule) {
        if (!m_pipe.LoadPipeList(schedule.name.c_str(), nullptr)) {
            Fail("the library does not load schedule " + schedule.name);
        }
        double before = 0.0;
        for (const PipeSize& size : schedule.sizes) {
            const double nominal = InUnits(size.nominal, m_units);
            const double inside = InUnits(size.inside, m_units);
            const std::string text = GeneralNumber(nominal);
            const std::string place = "schedule " + schedule.name + ", size " + text;
            Expect(m_pipe.PipeDia(text.c_str()), inside, place);
            Expect(m_pipe.NextSize(before), nominal, place + " as the next size");
            Expect(m_pipe.PrevSize(nominal), before, place + " and the size ahead of it");
            Expect(m_pipe.PipeSize(inside), nominal, place + " from its diameter");
            before = nominal;
        }
        Expect(m_pipe.NextSize(before), 0.0, "schedule " + schedule.name + ", end of the sizes");
    }

    void Expect(double loaded, double written, const std::string& what) const {
        if (loaded != written) {
            Fail(what + ": the library reads " + ExactNumber(loaded) + ", written was " +
                 ExactNumber(written));
        }
    }

    [[noreturn]] void Fail(const std::string& reason) const {
        throw InputError(m_material.name + ".PTBL, " + (m_units == HF_US ? "US" : "metric") +
                         " columns: " + reason);
    }

    const PipeMaterial& m_material;
    HF_UNITS m_units;
    CPipeTable m_pipe;
};

}  // namespace

std::string PipeTableText(const PipeMaterial& material) {
    TableLines lines(material.name + ".PTBL", kLongestLine);
    lines.Head(material.title);
    lines.Remark("Absolute roughness (in.), the same (mm), Hazen-Williams C; of new pipe.");
    lines.Remark("Roughness: " + material.roughnessSource + ".");
    lines.Remark("C: " + material.cSource + ".");
    lines.Record({"R", ExactNumber(material.roughness.inches),
                  ExactNumber(material.roughness.millimetres),
                  ExactNumber(material.hazenWilliamsC)});
    lines.Remark("Dimensions: " + material.dimensionsSource + ".");
    lines.Remark(
        "Schedule, nominal size (in.), nominal size (mm), inside and outside diameter (in.), "
        "inside "
        "and outside diameter (mm).");
    for (const PipeSchedule& schedule : material.schedules) {
        for (const PipeSize& size : schedule.sizes) {
            lines.Record({"Z", schedule.name, GeneralNumber(size.nominal.inches),
                          GeneralNumber(size.nominal.millimetres), ExactNumber(size.inside.inches),
                          ExactNumber(size.outside.inches), ExactNumber(size.inside.millimetres),
                          ExactNumber(size.outside.millimetres)});
        }
    }
    return lines.Text();
}

void CheckPipeTable(const std::filesystem::path& folder, const PipeMaterial& material) {
    for (const HF_UNITS units : {HF_US, HF_METRIC}) {
        LoadedTable(folder, material, units).Check();
    }
}

}  // namespace hydrofacts::tables
