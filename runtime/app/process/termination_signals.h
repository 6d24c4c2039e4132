#pragma once

namespace tetrad {

/// From now on the first SIGTERM or SIGHUP restores the signal's default action and has the modal run that is being
/// served end the process through terminateWithoutAsking. While none is served it ends the process at once, as a second
/// signal does. SIGPIPE is ignored. A signal that does not have its default action now keeps the one it has.
void terminateOnSignals();

/// Whether a modal run is being served.
void setServingEvents(bool serving);

} // namespace tetrad
