#ifndef HYDROFACTS_VALVE_CVALVETABLE_H
#define HYDROFACTS_VALVE_CVALVETABLE_H

/// @file
/// A table of fittings and valves, and its records.

#include <cstdint>

#include "hydrofacts/units/UnitTypes.h"
#include "win32/Export.h"

class TextFile;

/// The names of the device types; the place of a name is the index of the type.
extern HYDROFACTS_API const char* const device_type_names[5];

/// One device of a valve table: a fitting, a bend, a valve.
///
/// What the numbers mean depends on the formula number and is for the host to say. A record is of
/// one of two kinds:
/// - `data_count` is 3: the three numbers of the table, 0.0 for a missing one.
/// - Formula 9 or 13: `data_count` is 2n, and `data` is n pairs of an upper limit and the value up
///   to it, ascending by limit; the last limit is 9999.0.
class HYDROFACTS_API CValveType {
  public:
    /// A device without a name, a formula or numbers.
    CValveType();

    /// Copies the device with numbers of its own. The copy stands in no list; a device that is
    /// assigned to keeps its place in its own.
    /// @{
    CValveType(const CValveType& other);
    CValveType& operator=(const CValveType& other);
    /// @}
    ~CValveType();

    CValveType* next;          ///< the next device of the type, null behind the last one
    std::int16_t device_type;  ///< index into device_type_names
    std::int16_t formula;      ///< how the resistance is worked out
    std::int16_t image;        ///< number of the symbol, from 1; 0: none given
    char name[32];             ///< cut to 31 characters
    std::int16_t data_count;   ///< how many numbers `data` has
    double* data;              ///< owned if `data_count` is not 0
};

/// The devices of one valve table file, in a list for each device type.
///
///     const int formulas[] = {1, 9, 0};
///     CValveTable valves;
///     if (valves.LoadValveTable(directory, "Standard", HF_US, formulas) != 0) {
///         const CValveType* gate = valves.Find("Gate");
///     }
///
/// The records that the lookups return belong to the table and are good until it loads again, is
/// assigned to or ends. A copy of a table has records of its own. A table belongs to one thread at
/// a time; Find and ValveData of one object may run in several threads as long as none of them
/// loads.
class HYDROFACTS_API CValveTable {
  public:
    /// No table is loaded.
    CValveTable();

    /// Copies all records.
    /// @{
    CValveTable(const CValveTable& other);
    CValveTable& operator=(const CValveTable& other);
    /// @}
    ~CValveTable();

    /// Reads the table of that name in a directory; what was loaded before is gone in any case.
    /// Kept are the records whose formula number is in `wanted`, which ends with a 0, and those of
    /// formula number 0. `units` picks the limits of the records with several rows: inches or
    /// millimetres. The list of the type "Other" gets "Fixed K", "Fixed Cv" and "Fixed Kv" (formula
    /// numbers 20, 21, 22) unless the table brings a record of that number there.
    ///
    /// Returns 0 if the table is missing, has no record ("Z"), or has a path of 260 characters or
    /// more; else 1. Up to five groups of records of one type are read; the reading ends at a sixth
    /// and at a type that doesn't exist. A type that comes in two groups has the records of both. A
    /// record without a name or a formula number is left out, one without a symbol has 0 for it. A
    /// name is cut to 31 characters.
    int LoadValveTable(const char* directory, const char* table, HF_UNITS units, const int* wanted);

    // Lookups, null if there is no such record. `deviceType` is an index into device_type_names; a
    // type that doesn't exist has no records.

    /// The first record of that name in any list, without regard to case. `name` may be null.
    CValveType* Find(const char* name) const;

    /// The first record of a type with that formula number and name, with regard to case; an empty
    /// name is that of any record.
    CValveType* ValveData(const char* name, std::int16_t formula, std::int16_t deviceType) const;

    /// The record for a device in the older form of a name in two parts: the first of the type that
    /// has the formula number, or whose name contains `name` and `subname`; or, where `subname` is
    /// empty or "Valve", is `name` without regard to case. Without one it is the fixed resistance
    /// (formula number 20), or the first record of the type "Other". Null only if no table is
    /// loaded.
    ///
    /// `subname` is put into today's words in place, which lengthens it: it needs room for 21
    /// bytes.
    CValveType* ValveDataV6(const char* name, char* subname, std::int16_t formula,
                            std::int16_t deviceType) const;

  protected:
    /// Releases the records of all lists.
    void ClearValveList();

    /// Reads lines until one begins with Z, in either case, or the file ends; `line` has room for
    /// `size` bytes.
    static void ReadValveRecords(TextFile* file, char* line, int size);

    /// Reads the rows of a record, which are lines with its name, up to 100. `line` has room for
    /// 200 bytes and holds the first row, cut up to its formula number; then the line behind the
    /// last row, uncut.
    static void ReadMultipleRecordFormula(TextFile* file, char* line, CValveType* record,
                                          HF_UNITS units);

    /// The index of a device type, compared with case; -1 if there is none of that name.
    static int DeviceTypeIdx(const char* name);

    char path[261];        ///< of the table file
    CValveType* lists[5];  ///< by device type, in the order of the file, owned

  private:
    struct Reading;

    HYDROFACTS_HIDDEN CValveType* ListOf(int deviceType) const;
    HYDROFACTS_HIDDEN void AddFixedRecords();
};

#endif
