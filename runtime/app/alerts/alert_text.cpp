#include "runtime/app/alerts/alert_text.h"

#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>

#include <algorithm>

namespace tetrad {

namespace {

constexpr char labelKey[] = "alertTextLabel";
constexpr int widestText = 500;

QSize largestText(const QMessageBox *box)
{
    const QSize screen = box->screen()->availableSize();
    return {std::min(widestText, screen.width() / 2), screen.height() / 2};
}

QSize wrappedSize(const QLabel *label, int width, int flags)
{
    return label->fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), flags, label->text()).size();
}

int marginsOf(const QLabel *label)
{
    const QMargins margins = label->contentsMargins();
    return margins.left() + margins.right() + 2 * label->margin() + std::max(label->indent(), 0);
}

QPlainTextEdit *newView(const QLabel *label, const QSize &largest)
{
    auto *const view = new QPlainTextEdit(label->text());
    view->setProperty(labelKey, QVariant::fromValue(const_cast<QLabel *>(label)));
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setFrameShape(QFrame::NoFrame);
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QPalette palette = view->palette();
    palette.setBrush(QPalette::Base, palette.window());
    palette.setBrush(QPalette::Text, palette.windowText());
    view->setPalette(palette);
    const int needed = wrappedSize(label, largest.width() - 30, Qt::TextWrapAnywhere).height() + 20;
    view->setFixedSize(largest.width(), std::min(largest.height(), needed));
    return view;
}

void restoreLabels(QMessageBox *box)
{
    for (QPlainTextEdit *view : box->findChildren<QPlainTextEdit *>()) {
        if (auto *const label = view->property(labelKey).value<QLabel *>()) {
            delete box->layout()->replaceWidget(view, label);
            label->show();
            delete view;
        }
    }
}

} // namespace

void fitTextsToScreen(QMessageBox *box)
{
    restoreLabels(box);
    const QSize largest = largestText(box);
    for (QLabel *label : box->findChildren<QLabel *>()) {
        const QSize size = wrappedSize(label, largest.width(), Qt::TextWordWrap);
        if (size.width() > largest.width() || size.height() > largest.height()) {
            delete box->layout()->replaceWidget(label, newView(label, largest));
            label->hide();
        } else {
            // The box would give the informative text no more than the width of the message and the buttons.
            label->setMinimumWidth(size.width() + marginsOf(label));
        }
    }
}

} // namespace tetrad
