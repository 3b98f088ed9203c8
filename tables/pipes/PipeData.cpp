#include "tables/pipes/PipeData.h"

#include <algorithm>

#include "tables/Csv.h"
#include "tables/TableLines.h"
#include "tables/pipes/PipeRules.h"

namespace hydrofacts::tables {
namespace {

// Lists of tables leave longer names out, and schedules are kept in as much.
constexpr std::size_t kLongestName = 30;
constexpr double kLeastC = 10.0;
constexpr double kGreatestC = 200.0;

struct MaterialBeingRead {
    CsvRow row;
    PipeMaterial material;
    PipeRules rules;
};

MaterialBeingRead ReadMaterial(const CsvRow& row) {
    PipeMaterial material;
    material.name = row.NonEmptyText("material");
    if (!IsFileName(material.name, kLongestName)) {
        row.Fail("material", "is not fit for the name of a table of at most 30 characters");
    }
    material.title = row.NonEmptyText("title");
    if (!IsPlainName(material.title, std::string::npos)) {
        row.Fail("title", "has a quote or a character that is not plain ASCII");
    }
    material.roughness = PipeRules::Roughness(row);
    material.hazenWilliamsC = row.Number("hazen_williams_c");
    if (material.hazenWilliamsC < kLeastC || material.hazenWilliamsC > kGreatestC) {
        row.Fail("hazen_williams_c", "is no Hazen-Williams C");
    }
    material.dimensionsSource = row.NonEmptyText("dimensions_source");
    material.roughnessSource = row.NonEmptyText("roughness_source");
    material.cSource = row.NonEmptyText("c_source");
    return {row, std::move(material), PipeRules(row)};
}

// The schedule that a row belongs to: the last one, or a new one. The rows of a schedule stand
// together, since a reader of tables takes the first run of them only.
PipeSchedule& ScheduleOf(const CsvRow& row, PipeMaterial& material) {
    const std::string& name = row.NonEmptyText("schedule");
    std::vector<PipeSchedule>& schedules = material.schedules;
    if (!schedules.empty() && schedules.back().name == name) {
        return schedules.back();
    }
    if (!IsPlainName(name, kLongestName)) {
        row.Fail("schedule", "is not fit for a name of at most 30 characters");
    }
    if (std::any_of(schedules.begin(), schedules.end(),
                    [&name](const PipeSchedule& schedule) { return schedule.name == name; })) {
        row.Fail("schedule", "its rows do not stand together");
    }
    return schedules.emplace_back(PipeSchedule{name, {}});
}

std::vector<MaterialBeingRead> ReadMaterials(const std::filesystem::path& file) {
    std::vector<MaterialBeingRead> materials;
    for (const CsvRow& row : ReadCsv(file)) {
        MaterialBeingRead read = ReadMaterial(row);
        for (const MaterialBeingRead& other : materials) {
            if (other.material.name == read.material.name) {
                row.Fail("material", "stands twice");
            }
        }
        materials.push_back(std::move(read));
    }
    return materials;
}

}  // namespace

std::vector<PipeMaterial> ReadPipes(const std::filesystem::path& folder) {
    std::vector<MaterialBeingRead> materials = ReadMaterials(folder / "materials.csv");
    for (const CsvRow& row : ReadCsv(folder / "sizes.csv")) {
        const std::string& name = row.NonEmptyText("material");
        const auto found = std::find_if(
            materials.begin(), materials.end(),
            [&name](const MaterialBeingRead& read) { return read.material.name == name; });
        if (found == materials.end()) {
            row.Fail("material", "'" + name + "' is not in materials.csv");
        }
        PipeSchedule& schedule = ScheduleOf(row, found->material);
        schedule.sizes.push_back(found->rules.Check(row, schedule));
    }
    std::vector<PipeMaterial> pipes;
    for (MaterialBeingRead& read : materials) {
        if (read.material.schedules.empty()) {
            read.row.Fail("material", "has no row in sizes.csv");
        }
        pipes.push_back(std::move(read.material));
    }
    return pipes;
}

}  // namespace hydrofacts::tables
