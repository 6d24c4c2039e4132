#include <tetrad/app/application.h>
#include <tetrad/app/modal.h>

#include <QApplication>
#include <QDialog>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 64;

// Leaves room for the title beside the buttons of a title bar.
constexpr int leastTextWidth = 220;

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

void addIcon(QVBoxLayout *layout)
{
    if (const QIcon icon = QApplication::windowIcon(); !icon.isNull()) {
        QLabel *label = centredLabel(QString());
        label->setPixmap(icon.pixmap(QSize(iconSize, iconSize), label->devicePixelRatio()));
        layout->addWidget(label);
    }
}

void fill(QDialog *panel)
{
    auto *ok = new QPushButton(u"OK"_s);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, panel, &QDialog::accept);
    auto *layout = new QVBoxLayout(panel);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(32, 24, 32, 16);
    layout->addStrut(leastTextWidth);
    addIcon(layout);
    layout->addWidget(nameLabel());
    layout->addWidget(centredLabel(u"Version %1"_s.arg(applicationVersion())));
    layout->addWidget(centredLabel(u"License: MIT"_s));
    layout->addSpacing(12);
    layout->addWidget(ok, 0, Qt::AlignHCenter);
}

} // namespace

void orderFrontStandardAboutPanel()
{
    static QPointer<QDialog> panel;
    if (panel != nullptr) {
        return;
    }
    // It goes with the window that it stands over, if that goes first.
    panel = new QDialog(QApplication::activeWindow());
    panel->setWindowTitle(u"About %1"_s.arg(applicationName()));
    fill(panel);
    QObject::connect(panel, &QDialog::finished, panel, [] { stopModalWithCode(modalStopped); });
    runModalForWindow(panel);
    delete panel.data();
}

} // namespace tetrad
