#pragma once

namespace tetrad {

/// From now on a program that runs out of memory, or may start no further thread, ends at once with one
/// sentence on standard error and status 1. Otherwise it would abort with a core dump, or wait forever for
/// the thread.
void endOnExhaustion();

} // namespace tetrad
