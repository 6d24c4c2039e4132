#include <tetrad/controls/panels.h>

#include "runtime/controls/dispatch/event_site.h"
#include <tetrad/app/modal.h>
#include <tetrad/app/windows.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QColorDialog>
#include <QFontDialog>
#include <QPointer>

namespace tetrad {

namespace {

// The panel in this slot, made again when a program deleted it.
template <typename Panel, typename Connect>
Panel *panelIn(QPointer<Panel> &slot, Connect connectPanel)
{
    if (!slot) {
        slot = new Panel;
        slot->setOptions(Panel::NoButtons | Panel::DontUseNativeDialog);
        slot->setWindowFlags(slot->windowFlags() | Qt::Tool);
        setWorksWhenModal(slot, true);
        connectPanel(slot.data());
    }
    setObjectWindowTag(slot, CUI_OutputWindowTag());
    return slot;
}

template <typename Panel>
Panel *shown(Panel *panel)
{
    panel->show();
    panel->raise();
    return panel;
}

} // namespace

QColorDialog *CUI_ColorPanel(const QColor &color)
{
    static QPointer<QColorDialog> panel;
    panelIn(panel, [](QColorDialog *made) {
        QObject::connect(made, &QColorDialog::currentColorChanged, made, [made](const QColor &chosen) {
            callSoon(made, [made, chosen] {
                CUI_DialogEventObj()->colorObj = chosen;
                sendObjectEvent(made, colorPanelEventAction);
            });
        });
    });
    const QSignalBlocker blocker(panel);
    panel->setCurrentColor(color);
    return shown(panel.data());
}

QFontDialog *CUI_FontPanel(const QFont &font)
{
    static QPointer<QFontDialog> panel;
    panelIn(panel, [](QFontDialog *made) {
        QObject::connect(made, &QFontDialog::currentFontChanged, made, [made](const QFont &chosen) {
            callSoon(made, [made, chosen] {
                CUI_DialogEventObj()->fontObj = chosen;
                sendObjectEvent(made, fontPanelEventChanged);
            });
        });
    });
    const QSignalBlocker blocker(panel);
    panel->setCurrentFont(font);
    return shown(panel.data());
}

} // namespace tetrad
