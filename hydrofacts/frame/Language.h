#ifndef HYDROFACTS_FRAME_LANGUAGE_H
#define HYDROFACTS_FRAME_LANGUAGE_H

/// @file
/// The language of messages and of numbers that are shown.

#include "win32/Export.h"

/// Chooses the language of the library's messages and displayed numbers, by a Windows language
/// identifier: 1033 English, 3081 English (Australia), 1031 German, 1040 Italian, 1034 Spanish. Any
/// other identifier takes the language with which it shares the primary language, or else English.
/// May be called at any time and from any thread; texts that a dialog already shows don't change.
HYDROFACTS_API void Hydrofacts_SetLanguage(unsigned long language);

/// Writes message `id` in the chosen language, in Windows-1252, into a buffer of `size` bytes, cut
/// to fit; for hosts that show the library's messages without its dialogs. Returns the length
/// written, 0 for an id that doesn't exist. The messages of fluids, of which 6 holds "%s" for a
/// name:
/// - 1: no valid state at the temperature and pressure
/// - 2, 5: no liquid, no vapor properties at the temperature
/// - 6: the table of the fluid is invalid
/// - 7: the fluid changes state
/// and of pipes: 8, the table of a material is invalid; 129, the sizes of a schedule can't be
/// loaded.
HYDROFACTS_API int Hydrofacts_GetMessage(unsigned id, char* buffer, int size);

#endif
