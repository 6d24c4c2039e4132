#include "runtime/app/application.h"
#include "runtime/app/modal.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace tetrad {

namespace {

QLabel *centredLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QLabel *nameLabel()
{
    QLabel *label = centredLabel(applicationName());
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.4);
    label->setFont(font);
    return label;
}

void fill(QDialog &panel)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &panel, &QDialog::accept);
    auto *layout = new QVBoxLayout(&panel);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(32, 24, 32, 16);
    layout->addWidget(nameLabel());
    layout->addWidget(centredLabel(QStringLiteral("Version %1").arg(applicationVersion())));
    layout->addWidget(centredLabel(QStringLiteral("License: MIT")));
    layout->addSpacing(12);
    layout->addWidget(buttons);
}

} // namespace

void orderFrontStandardAboutPanel()
{
    static bool open = false;
    if (open) {
        return;
    }
    open = true;
    QDialog panel(QApplication::activeWindow());
    panel.setWindowTitle(QStringLiteral("About %1").arg(applicationName()));
    fill(panel);
    QObject::connect(&panel, &QDialog::finished, &panel, [] { stopModalWithCode(modalStopped); });
    runModalForWindow(&panel);
    open = false;
}

} // namespace tetrad
