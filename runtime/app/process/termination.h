#pragma once

namespace tetrad {

/// Asks the delegate whether the program may end. False also while it is being asked already: a second request of the
/// user's, a shortcut under the question for example, is dropped.
bool mayTerminate();

/// What the user's requests to quit do: AppTerminate, unless the delegate is being asked already.
void quitByUser();

/// The end that AppTerminate comes to when the delegate agrees, without asking: hands the clipboard over, notifies the
/// delegate, exits with status 0.
[[noreturn]] void terminateWithoutAsking();

/// From now on SIGTERM and SIGHUP end the process through terminateWithoutAsking as soon as events are
/// served; a second one that comes before that kills. A signal ignored at this time stays ignored.
void terminateOnSignals();

} // namespace tetrad
