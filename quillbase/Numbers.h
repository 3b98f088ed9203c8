#ifndef QUILLBASE_NUMBERS_H
#define QUILLBASE_NUMBERS_H

#include <cstdint>
#include <string>

// Numbers in texts, with a point as the decimal sign whatever the process's locale.

namespace quillbase {

/// What the scanners return besides 1, a number was stored: the text holds something else, or
/// nothing but blanks. In both cases the value stays as it was.
inline constexpr int kNoNumber = 0;
inline constexpr int kBlankText = -1;

/// Reads a real number from the head of a text as `sscanf` with "%lg" does in the "C" locale:
/// blanks and a sign ahead of it, exponents, hexadecimal reals, inf and nan are good, and whatever
/// follows is left unread. A number too large for a double gives infinity, one too small gives
/// zero.
int ScanReal(const char* text, double* value);

/// Reads a decimal number that begins at the text's first character and is of the sort that nearly
/// all numbers in tables are: its digits, read as one whole number, are at most 2⁵³ and the power
/// of ten that scales them is at most the 22nd. Both are doubles then, and one multiplication or
/// division is rounded correctly (W. D. Clinger, "How to read floating point numbers accurately",
/// PLDI 1990). Gives the number's end, or null with the value unchanged for what only ScanReal can
/// read. Where an x follows, ScanReal may read a hexadecimal number in its place.
const char* ScanPlainDecimal(const char* text, double* value);

/// Reads an integer as "%i" does: a leading 0x marks a hexadecimal number, a leading 0 an octal
/// one. A number beyond 64 bits is taken as the nearest 64-bit one; the result is cut to 32 bits.
int ScanInteger(const char* text, std::int32_t* value);

/// The same as "%hi" does it: the result is cut to 16 bits.
int ScanShort(const char* text, std::int16_t* value);

/// The shortest text that reads back as the same double.
std::string RealToText(double value);

}  // namespace quillbase

#endif
