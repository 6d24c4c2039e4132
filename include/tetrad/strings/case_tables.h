#pragma once

namespace tetrad {

/// The upper-case and the lower-case form of every byte value. ASCII is the same in every locale,
/// a byte above 127 is mapped as the standard library maps it in the locale in force.
extern unsigned char gZRUpperChar[256];
extern unsigned char gZRLowerChar[256];

/// Fills both case tables and seeds std::rand from the system's entropy source; to be called before
/// either is used. Returns 0.
int InitZRGlobals();

} // namespace tetrad
