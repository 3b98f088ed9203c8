#ifndef QUILLBASE_ROUNDING_H
#define QUILLBASE_ROUNDING_H

/// The double nearest to `value` rounded to `n` significant decimal digits. Rounding looks at the
/// exact binary value; a true tie goes away from zero. `n` below 1 counts as 1; from 17 on every
/// double is its own result. Zero, infinities and not-a-number come back as they are.
double Precision(double value, int n);

/// The double nearest to `value` rounded to `n` decimal places; a negative `n` rounds to tens,
/// hundreds and so on. Ties, zero, infinities and not-a-number as for Precision.
double DPlaces(double value, int n);

/// The value rounded for display: six significant digits, so that what a user has typed comes back.
/// `scratch` takes its text as RoundDbl writes it and has room for 32 bytes.
double RoundIt(double value, char* scratch);

/// Writes the text of a value rounded for display, with a point as decimal sign, without trailing
/// zeros, with an exponent below 0.0001 and from a million on. `buffer` has room for 32 bytes.
/// Returns the length of the text.
int RoundDbl(char* buffer, double value);

/// Whether two computed numbers stand for the same quantity: they differ by at most 10⁻¹² of the
/// larger one. Infinities equal their like, not-a-number equals nothing.
bool EqualDbl(double a, double b);

#endif
