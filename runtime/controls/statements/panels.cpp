#include <tetrad/controls/panels.h>

#include "runtime/controls/dispatch/event_site.h"
#include <tetrad/app/modal.h>
#include <tetrad/app/windows.h>
#include <tetrad/events/event_codes.h>

#include <QColorDialog>
#include <QFontDialog>
#include <QPointer>

namespace tetrad {

namespace {

// The program's one panel of a kind, shown with a value; made again when a program deleted it. What the user chooses in
// it is reported in the record's field.
template <typename Panel, typename Value>
Panel *shownPanel(const Value &value, void (Panel::*setValue)(const Value &), void (Panel::*chosen)(const Value &),
                  Value CUI_DialogEvent::*field, qint64 event)
{
    static QPointer<Panel> panel;
    if (!panel) {
        panel = new Panel;
        panel->setOptions(Panel::NoButtons | Panel::DontUseNativeDialog);
        panel->setWindowFlags(panel->windowFlags() | Qt::Tool);
        setWorksWhenModal(panel, true);
        const auto report = [field, event](const Value &choice) {
            CUI_DialogEventObj()->*field = choice;
            sendObjectEvent(panel, event);
        };
        QObject::connect(panel.data(), chosen, panel.data(), report, Qt::QueuedConnection);
    }
    setObjectWindowTag(panel, CUI_OutputWindowTag());
    const QSignalBlocker blocker(panel);
    (panel->*setValue)(value);
    panel->show();
    panel->raise();
    return panel;
}

} // namespace

QColorDialog *CUI_ColorPanel(const QColor &color)
{
    return shownPanel(color, &QColorDialog::setCurrentColor, &QColorDialog::currentColorChanged,
                      &CUI_DialogEvent::colorObj, colorPanelEventAction);
}

QFontDialog *CUI_FontPanel(const QFont &font)
{
    return shownPanel(font, &QFontDialog::setCurrentFont, &QFontDialog::currentFontChanged, &CUI_DialogEvent::fontObj,
                      fontPanelEventChanged);
}

} // namespace tetrad
