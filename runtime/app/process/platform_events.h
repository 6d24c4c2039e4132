#pragma once

namespace tetrad {

/// Translates what the window system reports about the whole application into calls of the delegate:
/// activation, screens, files to open, the session's end, requests to quit. Called once.
void translatePlatformEvents();

/// Tells the delegate that the application is launching and has launched, once, in the first modal run:
/// only there events begin to be served, and a program has installed its functions by then.
void announceLaunch();

} // namespace tetrad
