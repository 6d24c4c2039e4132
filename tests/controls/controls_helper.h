#pragma once

#include "runtime/app/alerts.h"
#include "runtime/app/modal.h"
#include "runtime/app/output_window.h"
#include "runtime/app/window.h"
#include "runtime/app/windows.h"
#include "runtime/strings/not_given.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tetrad::testing_helpers {

/// "title|text" of every alert that a statement queues, each answered with its first button. One more
/// alert is queued behind them, so that none that was to come is missed and none is waited for in vain.
template <typename Statement>
QStringList alertsOf(Statement statement)
{
    const QString last = QStringLiteral("(end)");
    QStringList shown;
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [&shown] {
        if (auto *const box = qobject_cast<QMessageBox *>(modalWindow())) {
            shown << box->text() + u'|' + box->informativeText();
            box->buttons().constFirst()->click();
        }
    });
    answers.start(0);
    statement();
    EXPECT_TRUE(shown.isEmpty()) << "alerts appear in the next modal loop";
    CUI_ShowAlert(alertStyleWarning, last, QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.contains(last + u'|'); }));
    shown.removeAll(last + u'|');
    return shown;
}

/// Opens windows by tag and leaves none behind.
class WindowTest : public testing::Test
{
protected:
    static QWidget *open(Tag tag)
    {
        CUI_Window(tag, QString(), notGiven, QRectF(40, 60, 300, 200));
        QApplication::processEvents();
        return CUI_WindowWithTag(tag)->contentView();
    }
    void TearDown() override
    {
        const QList<Window *> left = orderedWindows();
        qDeleteAll(left);
        CUI_OutputWindowSetTag(0);
    }
};

} // namespace tetrad::testing_helpers
