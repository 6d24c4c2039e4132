#pragma once

// Implemented in runtime/controls/statements/panels.cpp and file_panels.cpp.
#include <tetrad/events/tag.h>

#include <QColor>
#include <QFont>
#include <QString>

class QColorDialog;
class QFontDialog;

namespace tetrad {

/// The program's one colour panel, a floating window without buttons, shown with this colour. Every colour the user
/// chooses in it is reported at once (code 2600; the panel is the object, its tag 0, the window that of the last
/// statement). Closing hides it.
QColorDialog *CUI_ColorPanel(const QColor &color);

/// The same for fonts (code 2200).
QFontDialog *CUI_FontPanel(const QFont &font);

/// Shows a panel over the output window until the user has chosen a file to open or a name to save under, which is
/// asked about before it replaces a file. Returns the file's path; null when cancelled, or when an open or save panel
/// is shown already. The panel sends 2901 to 2903 with |tag|. title: null for the platform's. path: the folder to begin
/// in, or the file to propose; null for where the last panel ended. kinds: the endings of the files to list, as
/// "csv;txt", of which the first is added to a name without one; null for all files.
QString CUI_OpenPanel(Tag tag, const QString &title, const QString &path, const QString &kinds);
QString CUI_SavePanel(Tag tag, const QString &title, const QString &path, const QString &kinds);

/// Whether panels with this tag send the questions 2905 and 2906, whose preset answer is no; false at first.
void FilePanelSetAsks(Tag tag, bool asks);

} // namespace tetrad
