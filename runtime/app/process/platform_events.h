#pragma once

namespace tetrad {

/// Translates what the window system reports about the whole application into calls of the delegate:
/// activation, screens, files to open, the session's end, requests to quit. Called once.
void translatePlatformEvents();

/// Notifies the delegate once, in the first modal run, that the application is launching and has launched. Events are
/// served only from then on, and a program has installed its functions by then.
void announceLaunch();

} // namespace tetrad
