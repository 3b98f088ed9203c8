#ifndef HYDROFACTS_FRAME_TABLEFILE_H
#define HYDROFACTS_FRAME_TABLEFILE_H

// What all table files have in common: their paths, how a line is cut into fields, the levels in
// the version line.

/// Takes the next field of a line as a real number, with a point as decimal sign. `line` starts a
/// new line and is null to go on in the one begun. Returns 0 with `value` unchanged if there is no
/// field or it begins with no number. A field of blanks counts as read and leaves `value` as it
/// was.
int ReadDoubleField(char* line, double* value);

namespace hydrofacts {

/// What separates fields.
inline bool IsDelimiter(char c) { return c == '\t' || c == '\r'; }

/// Ends a field at the delimiter or the end of the line behind it. Gives where to go on, null
/// behind the last field.
inline char* CutField(char* end) {
    if (*end == '\0') return nullptr;
    *end = '\0';
    return end + 1;
}

/// The next field of a line, or null behind the last one. Fields are separated by runs of tabs and
/// carriage returns, so there are no empty ones; blanks belong to the field. The line is cut in
/// place and the position is kept per thread. `line` is null to go on in the line begun.
char* NextField(char* line);

/// The same with the position kept by the caller: `rest` is where to go on, null behind the last
/// field.
inline char* TakeField(char*& rest) {
    // Plain loops: fields are a few characters long, and the library functions for sets of
    // characters cost more to start than to run.
    if (rest == nullptr) return nullptr;
    char* start = rest;
    while (IsDelimiter(*start)) ++start;
    if (*start == '\0') {
        rest = nullptr;
        return nullptr;
    }
    char* end = start;
    while (*end != '\0' && !IsDelimiter(*end)) ++end;
    rest = CutField(end);
    return start;
}

/// What ReadDoubleField does, with the position kept by the caller.
int TakeReal(char*& rest, double* value);

/// Tests the levels of a version line ("V"), which is cut: field 4, the low level, must not lie
/// above `highLimit`, and field 5, the high level (field 4 again if it is missing), not below
/// `lowLimit`. A limit of 0.0 tests nothing; a line without levels has level 0.0.
bool LevelsAreWithin(char* line, double highLimit, double lowLimit);

/// The path of a table file, "directory/name.EXT" with the platform's separator.
class TablePath {
  public:
    /// `extension` comes with its point.
    TablePath(const char* directory, const char* name, const char* extension);

    /// The path; empty if it has 260 characters or more, so that no file opens on it.
    const char* c_str() const { return path_; }

  private:
    char path_[260];
};

}  // namespace hydrofacts

#endif
