#ifndef HYDROFACTS_TABLES_PIPES_PIPERULES_H
#define HYDROFACTS_TABLES_PIPES_PIPERULES_H

#include <map>
#include <string>

#include "tables/Csv.h"
#include "tables/pipes/PipeData.h"

namespace hydrofacts::tables {

/// Checks the rows of one material's sizes, in file order. Throws InputError with the row's place.
class PipeRules {
  public:
    /// Takes the rules from the material's row of materials.csv.
    explicit PipeRules(const CsvRow& material);

    /// The two roughnesses of the material, which must be each other's conversion.
    static TwoLengths Roughness(const CsvRow& material);

    /// The size of a row, checked by itself and against the sizes seen so far. `schedule` has the
    /// sizes of its schedule that stand ahead of it.
    PipeSize Check(const CsvRow& row, const PipeSchedule& schedule);

  private:
    /// How far the columns may lie apart.
    struct Tolerance {
        double outside;  // mm
        double wall;     // mm
    };

    TwoLengths Nominal(const CsvRow& row) const;
    Tolerance ToleranceOf(const TwoLengths& outside) const;
    void CheckWall(const CsvRow& row, const PipeSize& size, const TwoLengths& wall) const;
    void CheckColumns(const CsvRow& row, const PipeSize& size, const TwoLengths& wall) const;
    void CheckRatio(const CsvRow& row, const std::string& schedule, const TwoLengths& outside,
                    const TwoLengths& wall) const;
    void CheckOutside(const CsvRow& row, const std::string& schedule, const PipeSize& size);

    bool m_inchIsPublished = false;
    bool m_mmIsPublished = false;
    bool m_namedByDiameter = false;
    bool m_outsideVaries = false;
    double m_leastWall = 0.0;                 // mm, 0.0 for none
    std::map<double, TwoLengths> m_outsides;  // by nominal inches
};

}  // namespace hydrofacts::tables

#endif
