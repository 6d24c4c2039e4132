#include <tetrad/app/application.h>

#include <tetrad/app/modal.h>

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPointer>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// A program with a name of its own shows only what it has set.
QString facts()
{
    QStringList lines;
    if (!applicationVersion().isEmpty()) {
        lines += u"Version "_s + applicationVersion();
    }
    if (applicationName() == QLatin1String(TETRAD_APP_NAME)) {
        lines += u"License: MIT"_s;
    }
    return lines.join(u'\n');
}

} // namespace

void orderFrontStandardAboutPanel()
{
    static QPointer<QMessageBox> panel;
    if (panel) {
        return;
    }
    // Its window deletes it if that goes first.
    panel = new QMessageBox(QApplication::activeWindow());
    panel->setWindowTitle(u"About "_s + applicationName());
    panel->setTextFormat(Qt::PlainText);
    panel->setText(applicationName());
    panel->setInformativeText(facts());
    panel->setIconPixmap(QApplication::windowIcon().pixmap(QSize(64, 64), panel->devicePixelRatio()));
    // Leaves room for the title next to the buttons of a title bar.
    panel->setStyleSheet(u"QLabel#qt_msgbox_label { min-width: 220px; }"_s);
    panel->addButton(QMessageBox::Ok);
    QObject::connect(panel, &QDialog::finished, panel, [] { stopModalWithCode(modalStopped); });
    runModalForWindow(panel);
    delete panel.data();
}

} // namespace tetrad
