#pragma once

namespace tetrad {

/// Makes the window system's application object unless there is one, and gives the application its
/// name, version and id where the program has not. Ends the process with one sentence on standard
/// error and status 1 when no display can be opened.
void ensurePlatformApplication();

} // namespace tetrad
