#pragma once

namespace tetrad {

/// The end that AppTerminate comes to when the delegate agrees, without asking: tells the delegate, hands
/// the clipboard over, exits with status 0. Returns only when called from within itself.
void terminateWithoutAsking();

/// From now on SIGTERM and SIGHUP end the process through terminateWithoutAsking as soon as events are
/// served; a second one that comes before that kills. A signal ignored at this time stays ignored.
void terminateOnSignals();

} // namespace tetrad
