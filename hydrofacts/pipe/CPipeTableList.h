#ifndef HYDROFACTS_PIPE_CPIPETABLELIST_H
#define HYDROFACTS_PIPE_CPIPETABLELIST_H

#include "hydrofacts/pipe/CPipeTable.h"

/// Lists of the installed pipe tables, of the schedules of a table and of the sizes of a schedule,
/// as text, from the directory of the installed tables.
///
///     CPipeTableList list(HF_METRIC);
///     char schedules[1000];
///     int count = list.ListPipeSchedules(schedules, sizeof schedules, "Steel");
///
/// A list is the names with a tab between them. A table's name is that of its file without
/// extension. Tables come in the order in which the system lists the directory, schedules and sizes
/// in that of the file.
///
/// The operations that fill a caller's buffer of `size` bytes return the number of names or
/// - -1: a name did not fit with a tab and a terminating zero behind it; the names ahead of it are
///   there
/// - -2: the table is missing; for schedules also: it has no size row ("Z")
/// - -3: the table has no such schedule
/// A buffer is left as it was if no name was written. The operations that return a buffer give an
/// empty text then, and have no result but the text; the caller releases the buffer with delete[].
///
/// What a pipe table has loaded plays no part and stays as it was; the unit system does play a
/// part.
class HYDROFACTS_API CPipeTableList : public CPipeTable {
  public:
    /// Lists what there is in a unit system; nothing is loaded.
    CPipeTableList(HF_UNITS system);

    /// The bytes that a buffer for ListPipeTables needs; 2 if no table is installed.
    int SizePipeTables() const;

    /// Lists the tables that have a roughness in this unit system, whose names have at most 30
    /// characters, and whose low level does not lie above `highLimit` nor their high level below
    /// `lowLimit` (0.0: no limit). On -1 a tab stays behind the last name.
    int ListPipeTables(char* buffer, int size, double highLimit, double lowLimit) const;

    /// The same in a new buffer that is large enough for every table; names that would pass `size`
    /// are left out. SizePipeTables gives the size for all.
    char* ListPipeTables(int size, double highLimit, double lowLimit) const;

    /// Lists the schedules of a table. One whose rows stand in two places is listed twice. A row
    /// that names no schedule is passed over, and so is a line between rows that is none.
    int ListPipeSchedules(char* buffer, int size, const char* table) const;

    /// The same in a new buffer of `size` bytes.
    char* ListPipeSchedules(int size, const char* table) const;

    /// Lists the nominal sizes of a schedule in this unit system, as the table writes them, with a
    /// point as decimal sign. Rows that LoadPipeList refuses are listed too, unless the size itself
    /// is missing, which ends the list.
    int ListPipeSizes(char* buffer, int size, const char* table, const char* scheduleName) const;

    /// The same in a new buffer of `size` bytes.
    char* ListPipeSizes(int size, const char* table, const char* scheduleName) const;
};

#endif
