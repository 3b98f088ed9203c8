#include "tables/pipes/PipeRules.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "tables/NominalSize.h"
#include "tables/Numbers.h"

namespace hydrofacts::tables {
namespace {

constexpr double kMmPerInch = 25.4;

// Published figures that are worked with in binary differ in the last bits only.
constexpr double kExact = 1e-6;

// A converted column is rounded to 0.0001 in. or 0.001 mm; the inside diameter adds up three such.
constexpr double kConvertedInside = 0.0002;    // in.
constexpr double kConvertedInsideMm = 0.0020;  // mm
constexpr double kMmFromInch = 0.0006;         // mm, half of 0.001 mm
constexpr double kInchFromMm = 0.0014;         // mm, half of 0.0001 in.

// Where a standard publishes both, millimetres are rounded: outside diameters to 0.1 mm up to
// NPS 16 and to whole ones above, walls to 0.01 mm.
constexpr double kSmallOutside = 406.4;     // mm
constexpr double kSmallPublished = 0.07;    // mm, and half of 0.001 in.
constexpr double kLargePublished = 0.5;     // mm
constexpr double kWallPublished = 0.02;     // mm, and half of 0.001 in.
constexpr double kRoughnessRounded = 5e-7;  // mm

// Walls by dimension ratio: rounded by the standard, in inches and by preferred numbers in ISO
// 4427, whose series "7.4" is 7.3 in the larger sizes.
constexpr double kInchWallStep = 0.0254;  // mm
constexpr double kMmWallStep = 0.1;       // mm
constexpr double kThinnerWall = 0.003;
constexpr double kThickerWall = 0.015;

constexpr std::size_t kLongestNominal = 11;
constexpr int kNominalDigits = 4;

TwoLengths Lengths(const CsvRow& row, const std::string& name) {
    const auto length = [&row](const std::string& column) {
        const double value = row.Number(column);
        if (value <= 0.0) {
            row.Fail(column, "must be above zero");
        }
        return value;
    };
    return {length(name + "_in"), length(name + "_mm")};
}

double Apart(const TwoLengths& lengths) {
    return std::abs(lengths.inches * kMmPerInch - lengths.millimetres);
}

// A choice between two words; true for the first.
bool Choice(const CsvRow& row, std::string_view column, std::string_view yes, std::string_view no) {
    const std::string& text = row.NonEmptyText(column);
    if (text != yes && text != no) {
        row.Fail(column, "is neither '" + std::string(yes) + "' nor '" + std::string(no) + "'");
    }
    return text == yes;
}

void CheckForm(const CsvRow& row, std::string_view column, double value) {
    const std::string& text = row.NonEmptyText(column);
    if (text != GeneralNumber(value) || text.size() > kLongestNominal) {
        row.Fail(column, "'" + text + "' is not the text that %g prints, " + GeneralNumber(value));
    }
}

// The number of "SDR 21" and "DR 21".
std::optional<double> DimensionRatio(std::string_view schedule) {
    constexpr std::string_view kKey = "DR ";
    if (schedule.starts_with('S')) {
        schedule.remove_prefix(1);
    }
    if (!schedule.starts_with(kKey)) {
        return std::nullopt;
    }
    schedule.remove_prefix(kKey.size());
    double ratio = 0.0;
    const char* const end = schedule.data() + schedule.size();
    const auto [stop, error] = std::from_chars(schedule.data(), end, ratio);
    if (error != std::errc() || stop != end || !(ratio > 2.0)) {
        return std::nullopt;
    }
    return ratio;
}

void CheckAscends(const CsvRow& row, const std::string& name, const TwoLengths& before,
                  const TwoLengths& now) {
    if (now.inches <= before.inches) {
        row.Fail(name + "_in", "is not above that of the size ahead of it in the schedule");
    }
    if (now.millimetres <= before.millimetres) {
        row.Fail(name + "_mm", "is not above that of the size ahead of it in the schedule");
    }
}

}  // namespace

PipeRules::PipeRules(const CsvRow& material)
    : m_namedByDiameter(Choice(material, "nominal", "diameter", "inch")),
      m_outsideVaries(Choice(material, "outside", "schedule", "size")),
      m_leastWall(material.OptionalNumber("least_wall_mm").value_or(0.0)) {
    const std::string& published = material.NonEmptyText("published");
    if (published != "inch" && published != "mm" && published != "both") {
        material.Fail("published", "is neither 'inch' nor 'mm' nor 'both'");
    }
    m_inchIsPublished = published != "mm";
    m_mmIsPublished = published != "inch";
}

TwoLengths PipeRules::Roughness(const CsvRow& material) {
    const TwoLengths roughness = Lengths(material, "roughness");
    if (Apart(roughness) > kRoughnessRounded) {
        material.Fail("roughness_mm", "is not the roughness in inches times 25.4");
    }
    return roughness;
}

PipeSize PipeRules::Check(const CsvRow& row, const PipeSchedule& schedule) {
    const PipeSize size{Nominal(row), Lengths(row, "outside_diameter"),
                        Lengths(row, "inside_diameter")};
    const TwoLengths wall = Lengths(row, "wall");
    CheckWall(row, size, wall);
    CheckColumns(row, size, wall);
    CheckRatio(row, schedule.name, size.outside, wall);
    if (!schedule.sizes.empty()) {
        const PipeSize& before = schedule.sizes.back();
        CheckAscends(row, "nominal", before.nominal, size.nominal);
        CheckAscends(row, "outside_diameter", before.outside, size.outside);
        CheckAscends(row, "inside_diameter", before.inside, size.inside);
    }
    CheckOutside(row, schedule.name, size);
    return size;
}

TwoLengths PipeRules::Nominal(const CsvRow& row) const {
    const TwoLengths nominal = Lengths(row, "nominal");
    CheckForm(row, "nominal_in", nominal.inches);
    CheckForm(row, "nominal_mm", nominal.millimetres);
    if (m_namedByDiameter) {
        if (nominal.inches != RoundToDigits(nominal.millimetres / kMmPerInch, kNominalDigits)) {
            row.Fail("nominal_in", "is not nominal_mm / 25.4 to four digits");
        }
    } else if (nominal.millimetres != NominalDiameter(nominal.inches)) {
        row.Fail("nominal_mm", "is not the DN of that inch size");
    }
    return nominal;
}

void PipeRules::CheckWall(const CsvRow& row, const PipeSize& size, const TwoLengths& wall) const {
    const auto off = [](double outside, double thickness, double inside) {
        return std::abs(outside - 2.0 * thickness - inside);
    };
    if (off(size.outside.inches, wall.inches, size.inside.inches) >
        (m_inchIsPublished ? kExact : kConvertedInside)) {
        row.Fail("inside_diameter_in", "is not the outside diameter less twice the wall");
    }
    if (off(size.outside.millimetres, wall.millimetres, size.inside.millimetres) >
        (m_mmIsPublished ? kExact : kConvertedInsideMm)) {
        row.Fail("inside_diameter_mm", "is not the outside diameter less twice the wall");
    }
}

PipeRules::Tolerance PipeRules::ToleranceOf(const TwoLengths& outside) const {
    if (m_inchIsPublished && m_mmIsPublished) {
        return {outside.millimetres <= kSmallOutside ? kSmallPublished : kLargePublished,
                kWallPublished};
    }
    const double rounding = m_inchIsPublished ? kMmFromInch : kInchFromMm;
    return {rounding, rounding};
}

void PipeRules::CheckColumns(const CsvRow& row, const PipeSize& size,
                             const TwoLengths& wall) const {
    const Tolerance tolerance = ToleranceOf(size.outside);
    const auto check = [&row](const char* column, const TwoLengths& lengths, double allowed) {
        if (Apart(lengths) > allowed) {
            row.Fail(column, "is " + RoundedNumber(Apart(lengths), 3) +
                                 " mm off the figure in inches; allowed are " +
                                 RoundedNumber(allowed, 3));
        }
    };
    check("outside_diameter_mm", size.outside, tolerance.outside);
    check("wall_mm", wall, tolerance.wall);
    check("inside_diameter_mm", size.inside, tolerance.outside + 2.0 * tolerance.wall);
}

void PipeRules::CheckRatio(const CsvRow& row, const std::string& schedule,
                           const TwoLengths& outside, const TwoLengths& wall) const {
    const std::optional<double> ratio = DimensionRatio(schedule);
    if (!ratio) {
        return;
    }
    const double step = m_mmIsPublished ? kMmWallStep : kInchWallStep;
    const double expected = outside.millimetres / *ratio;
    if (wall.millimetres < expected * (1.0 - kThinnerWall) - step) {
        row.Fail("wall_mm", "is too thin for the schedule's ratio of diameter to wall");
    }
    if (wall.millimetres > m_leastWall + kMmFromInch &&
        wall.millimetres > expected * (1.0 + kThickerWall) + step) {
        row.Fail("wall_mm", "is too thick for the schedule's ratio of diameter to wall");
    }
}

void PipeRules::CheckOutside(const CsvRow& row, const std::string& schedule, const PipeSize& size) {
    if (m_outsideVaries) {
        return;
    }
    const TwoLengths& known =
        m_outsides.try_emplace(size.nominal.inches, size.outside).first->second;
    if (known.inches != size.outside.inches || known.millimetres != size.outside.millimetres) {
        row.Fail("outside_diameter_in",
                 "of schedule " + schedule + " differs from that of the same size ahead of it");
    }
}

}  // namespace hydrofacts::tables
