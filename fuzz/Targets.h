#ifndef HYDROFACTS_FUZZ_TARGETS_H
#define HYDROFACTS_FUZZ_TARGETS_H

#include "fuzz/Input.h"

/// Each target takes any bytes. It returns for all of them, without a fault that a sanitizer finds,
/// and with all true that it requires of the results. The names are those of the programs, and of
/// the folders in corpus/ and regressions/.
namespace hydrofacts::fuzz {

// Readers

void fluid_table(Bytes bytes);      ///< CFluid, and the note of its table
void pipe_table(Bytes bytes);       ///< CPipeTable and the lists of CPipeTableList
void valve_table(Bytes bytes);      ///< CValveTable
void language_table(Bytes bytes);   ///< CTableReader and CLanguage
void formula(Bytes bytes);          ///< LoadFormula
void number_forms(Bytes bytes);     ///< CLanguage's number forms, and the scanners of numbers
void ini_file(Bytes bytes);         ///< the atmosphere in a host's ini file
void dialog_template(Bytes bytes);  ///< the template, and the dialog that it describes
void bitmap(Bytes bytes);           ///< bitmaps of resources

// What a table that could be read is asked

void fluid_lookups(Bytes bytes);
void pipe_lookups(Bytes bytes);
void valve_lookups(Bytes bytes);

// The command

void command_arguments(Bytes bytes);  ///< the arguments, one a line
void table_check(Bytes bytes);  ///< `hydrofacts check`, whose answer the library has to bear out

// All of them by name, for the tests

struct Target {
    const char* name;
    void (*run)(Bytes bytes);
};

std::span<const Target> library_targets();
std::span<const Target> command_targets();

}  // namespace hydrofacts::fuzz

#endif
