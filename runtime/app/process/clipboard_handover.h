#pragma once

namespace tetrad {

/// Gives what the process has copied to the desktop's clipboard manager, if there is one, so that it can be pasted
/// after the process has ended. Waits for the manager, three seconds at most; user input is not handled meanwhile.
void handClipboardOver();

} // namespace tetrad
