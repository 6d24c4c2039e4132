#pragma once

namespace tetrad {

/// Queries the delegate whether the program may end. False also while it is already being queried: a second request of
/// the user's, a shortcut under the question for example, is dropped.
bool mayTerminate();

/// What the user's requests to quit do: AppTerminate, unless the delegate is already being queried.
void quitByUser();

/// The end that AppTerminate comes to when the delegate agrees, without the query: hands the clipboard over, notifies
/// the delegate, exits with status 0.
[[noreturn]] void terminateWithoutAsking();

} // namespace tetrad
