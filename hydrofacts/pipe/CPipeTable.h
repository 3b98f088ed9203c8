#ifndef HYDROFACTS_PIPE_CPIPETABLE_H
#define HYDROFACTS_PIPE_CPIPETABLE_H

#include <string_view>

#include "hydrofacts/units/UnitValue.h"
#include "hydrofacts/units/Units.h"
#include "win32/Win32.h"

class TextFile;
namespace hydrofacts {
class SizeCombo;
}

/// One size of a pipe schedule. Lengths are in the table's length unit.
struct t_pipe_size {
    t_pipe_size* next = nullptr;  ///< the next size, null behind the last one
    double nominal = 0.0;         ///< nominal size, the key of the row
    double inside_dia = 0.0;      ///< inside diameter
    double second_dim = 0.0;      ///< the second dimension of the row; the library doesn't read it
};

/// One pipe material and one of its schedules, read from the material's table file, with lookups
/// from nominal size to inside diameter and back.
///
///     CPipeTable pipe(HF_US);
///     if (pipe.LoadMaterial(nullptr, "Steel") && pipe.LoadPipeList("40", nullptr)) {
///         double diameter = pipe.PipeDia(2.0);    // inches; 0.0 if there is no such size
///     }
///
/// Lengths are in the table's length unit: inches in the US system, millimetres in the metric one.
/// The table file holds each figure in both, and loading picks the system's: nothing is converted,
/// and a change of the system reads the file again.
///
/// A copy owns rows of its own. A pipe table belongs to one thread at a time; the lookups of one
/// object may run in several threads as long as none of them loads.
class HYDROFACTS_API CPipeTable {
  public:
    /// An empty table in a unit system.
    CPipeTable(HF_UNITS system);

    /// Copies names, figures and sizes.
    /// @{
    CPipeTable(const CPipeTable& other);
    CPipeTable& operator=(const CPipeTable& other);
    /// @}
    ~CPipeTable();

    // Loading

    /// Releases the sizes; the names stay.
    void ClearPipeList();

    /// Takes a material: reads roughness and C from the table of that name in a directory, or in
    /// the directory of the installed tables if that is null. Schedule and sizes are dropped in any
    /// case. The name that is kept is cut to 31 characters.
    ///
    /// Returns false if the table is missing or has no material record ("R"), or if its path has
    /// 260 characters or more; the figures then stay as they were. A record without a roughness for
    /// the unit system leaves the roughness as it was, one without a C sets that to 0.0.
    bool LoadMaterial(const char* directory, const char* materialName);

    /// Takes a schedule of the material: reads its sizes, up to the first line that is none of
    /// them. If a combo box is given it is filled with the sizes in the form of the chosen
    /// language.
    ///
    /// Returns false if the table is missing, if the schedule isn't in it, and at a row that lacks
    /// a figure, has a zero in one or names no schedule; the sizes ahead of that row are loaded
    /// then. A row without a schedule ahead of the schedule's own is passed over. Names are
    /// compared with case; one of more than 31 characters is found in no table.
    bool LoadPipeList(const char* scheduleName, HWND combo);

    /// Changes the unit system and reads the sizes of the present schedule again. `dialog` may be
    /// null; its control 10104 is the combo box to fill, if it has one. The sizes are gone if the
    /// schedule can't be read.
    ///
    /// A system other than the present one also reads the material's record again, so that the
    /// roughness is that of the new system; it is 0.0 if the table has none.
    void SetPipeUnit(HF_UNITS system, HWND dialog);

    /// Reads lines until one begins with R or Z, in either case, or the file ends; `line` has room
    /// for `size` bytes.
    static void ReadPipeRecords(TextFile* file, char* line, int size);

    // The material and its schedule

    /// True if sizes are loaded.
    bool IsValid() const;

    /// The names last taken, of at most 31 characters; empty if there is none. They belong to this
    /// object.
    /// @{
    char* GetMaterialName();
    const char* GetMaterialName() const;
    char* GetScheduleName();
    const char* GetScheduleName() const;
    /// @}

    /// Hazen-Williams C, no unit; 0.0 if the table gives none.
    double GetHWC() const;

    /// Absolute roughness in the table's length unit.
    /// @{
    double GetAbsRoughness() const;
    UnitValue<HF_LENGTH, 0> GetAbsRoughnessValue() const;
    /// @}

    // Lookups. All give 0.0 if no schedule is loaded. A nominal size is found only if it is exactly
    // the table's number.

    /// Inside diameter of a nominal size, given as text with a point as decimal sign, as a number
    /// in the table's length unit, or in any length unit. 0.0 if the schedule doesn't have the
    /// size. The result is in the table's length unit.
    /// @{
    double PipeDia(const char* nominal) const;
    double PipeDia(double nominal) const;
    UnitValue<HF_LENGTH, 0> PipeDia(const UnitValue<HF_LENGTH, 0>& nominal) const;
    /// @}

    /// The nominal size whose inside diameter is nearest to a diameter, the larger of two at equal
    /// distance.
    double PipeSize(double insideDia) const;

    /// The smallest nominal size above a size, which need not be one of the table's; 0.0 above the
    /// last one.
    double NextSize(double nominal) const;

    /// The largest nominal size below a size, which need not be one of the table's; 0.0 below the
    /// first one and at it.
    double PrevSize(double nominal) const;

  protected:
    /// Reads a table file from its start up to the material record and tells whether a list of
    /// tables shows it: its levels lie within the limits and its roughness in this unit system is
    /// not 0.0.
    bool IsListed(TextFile& file, double highLimit, double lowLimit) const;

    char path[261];          ///< of the material's table file
    char material[32];       ///< cut to 31 characters
    char schedule[32];       ///< cut to 31 characters
    double abs_roughness;    ///< table's length unit
    double hwc;              ///< Hazen-Williams C, 0.0 if the table gives none
    HF_UNITS units;          ///< inches for HF_US, else millimetres
    t_pipe_size* pipe_list;  ///< the sizes in the order of the file, owned

  private:
    HYDROFACTS_HIDDEN HF_LENGTH_UNITS LengthUnit() const;
    HYDROFACTS_HIDDEN bool ReadMaterialRecord();
    HYDROFACTS_HIDDEN bool ReadSizes(TextFile& file, std::string_view row,
                                     const hydrofacts::SizeCombo& combo);
};

#endif
