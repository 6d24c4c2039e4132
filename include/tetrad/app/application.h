#pragma once

// Implemented in runtime/app/process/application.cpp, termination.cpp and about_panel.cpp

#include <QString>

namespace tetrad {

/// Makes the process an application of the window system that is driven from the program's own straight-line main. A
/// second call changes nothing. What it does to the process:
/// - It creates the application object unless there is one, and installs the runtime's delegate unless one is
///   installed. Without a display the process ends with one sentence on standard error and status 1.
/// - A program that has not named itself gets the runtime's name, version and id.
/// - The application gets the icon named like its id unless it has one: from the theme "hicolor" of the desktop, or
///   from share/icons next to the program or to the program's folder.
/// - The locale becomes the environment's, and the layout direction that locale's.
/// - Standard streams that are closed are opened on /dev/null.
/// - SIGPIPE is ignored. The first SIGTERM or SIGHUP restores the signal's default action and ends the program through
///   the modal run that is being served, as AppTerminate does but without the question. While no run is served, or at a
///   second signal, the process ends at once. Signals with another action than the default keep it.
void CocoaInit();

/// Ends the process with status 0 from any depth of nested modal loops, without unwinding main: queries
/// the delegate, hands the clipboard over, notifies the delegate, flushes the C streams. Nothing that is registered
/// for exit runs, destructors of static objects included: save what must be saved in event 5. Returns only when the
/// delegate refuses. Called while the delegate is being queried or notified, it ends the process at once.
void AppTerminate();

/// The application's name as the menu titles show it, its version, and its reverse-domain id. All
/// come from the one definition in the build; a program of its own sets its name with AppSetName and the others with
/// QCoreApplication.
QString applicationName();
QString applicationVersion();
QString applicationId();

/// Gives the program its name; call it before CocoaInit.
void AppSetName(const QString &name);

/// What the program keeps for the user from one run to the next, under the application's name; invalid when nothing was
/// set. Setting it writes it at once.
QVariant PreferenceValue(const QString &key);
void PreferenceSetValue(const QString &key, const QVariant &value);

/// Shows the application's name, and its version if it has one, modally until the panel is closed.
void orderFrontStandardAboutPanel();

} // namespace tetrad
