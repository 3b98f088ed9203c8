// Lookups in the sizes of a schedule, which stand in ascending order.

#include "hydrofacts/pipe/CPipeTable.h"
#include "quillbase/Numbers.h"

double CPipeTable::PipeDia(const char* nominal) const {
    double size = 0.0;
    return quillbase::ScanReal(nominal, &size) == 1 ? PipeDia(size) : 0.0;
}

double CPipeTable::PipeDia(double nominal) const {
    const HF_LENGTH_UNITS unit = LengthUnit();
    return PipeDia(UnitValue<HF_LENGTH, 0>(unit, nominal)).value_in(unit);
}

UnitValue<HF_LENGTH, 0> CPipeTable::PipeDia(const UnitValue<HF_LENGTH, 0>& nominal) const {
    const HF_LENGTH_UNITS unit = LengthUnit();
    const double size = nominal.value_in(unit);
    const t_pipe_size* row = pipe_list;
    while (row != nullptr && row->nominal != size) row = row->next;
    return {unit, row == nullptr ? 0.0 : row->inside_dia};
}

double CPipeTable::PipeSize(double insideDia) const {
    const t_pipe_size* lower = nullptr;
    const t_pipe_size* upper = pipe_list;
    while (upper != nullptr && !(insideDia <= upper->inside_dia)) {
        lower = upper;
        upper = upper->next;
    }
    if (upper == nullptr) return lower == nullptr ? 0.0 : lower->nominal;
    if (lower == nullptr || insideDia == upper->inside_dia) return upper->nominal;

    const double down = insideDia - lower->inside_dia;
    const double up = upper->inside_dia - insideDia;
    return up <= down ? upper->nominal : lower->nominal;
}

double CPipeTable::NextSize(double nominal) const {
    const t_pipe_size* row = pipe_list;
    while (row != nullptr && !(row->nominal > nominal)) row = row->next;
    return row == nullptr ? 0.0 : row->nominal;
}

double CPipeTable::PrevSize(double nominal) const {
    const t_pipe_size* passed = nullptr;
    const t_pipe_size* row = pipe_list;
    while (row != nullptr && !(row->nominal >= nominal)) {
        passed = row;
        row = row->next;
    }
    return passed == nullptr ? 0.0 : passed->nominal;
}
