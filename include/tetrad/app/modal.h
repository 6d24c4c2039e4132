#pragma once

#include <QtGlobal>

class QWidget;

namespace tetrad {

/// How a modal run ended. Any other code is the one that stopModalWithCode was given.
enum ModalResponse : qint64 {
    modalStopped = 1,     ///< confirmed: Return, Enter, an accepted key
    modalAborted = -1001, ///< cancelled: Escape, or the window was closed or deleted under the run
};

/// Runs a nested event loop for one widget, a window of its own or a child panel raised over a
/// window, and returns the code the run was ended with. The widget is shown, raised, activated and
/// given the focus here; it should have no modality of the window system's, which would keep menus
/// and close requests from working. Runs nest; the newest one is in force. Keys typed between the end
/// of a run and the start of the next one wait for that one.
/// While it lasts, mouse, key and close events for the application's other windows are withheld.
/// Menus and their shortcuts, timers, repaints, queued calls and input methods go on as ever, so do
/// scrolling in the windows that carry the widget and every widget with the dynamic property
/// "worksWhenModal" (true), its children included.
qint64 runModalForWindow(QWidget *window);

/// Ends the newest run with the given code. Nothing happens when none is running.
void stopModalWithCode(qint64 code);

/// Ends the newest run with modalAborted.
void abortModal();

/// The widget of the newest run, or null.
QWidget *modalWindow();

/// Whether closing this runtime window must end the program, as the Quit item does: a run is on, and
/// the window carries its widget or is the last runtime window in sight.
bool closeMeansQuit(const QWidget *window);

} // namespace tetrad
