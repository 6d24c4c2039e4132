#pragma once

#include "tests/support/windows.h"

#include <QMessageBox>

namespace tetrad {

using namespace Qt::StringLiterals;

/// Answers every alert with its first button, as long as it lives, and keeps the texts as "title|text".
class AlertAnswerer : public QTimer
{
public:
    QStringList shown;

    AlertAnswerer()
    {
        callOnTimeout([this] {
            if (auto *const box = qobject_cast<QMessageBox *>(modalWindow())) {
                shown << box->text() + u'|' + box->informativeText();
                box->buttons().constFirst()->click();
            }
        });
        start(0);
    }
};

/// Every alert that a statement queues. One more alert is queued behind them, so that none that was to come is
/// missed and none is waited for in vain.
inline QString alertsOf(const std::function<void()> &statement)
{
    AlertAnswerer answerer;
    statement();
    EXPECT_TRUE(answerer.shown.isEmpty()) << "alerts appear in the next modal loop";
    CUI_ShowAlert(alertStyleWarning, u"(end)"_s, QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return answerer.shown.contains(u"(end)|"_s); }));
    answerer.shown.removeAll(u"(end)|"_s);
    return answerer.shown.join(u", "_s);
}

/// A dialog function that keeps all calls but those of windows and alerts themselves.
inline qint64 recordSite(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    const bool isSite = event < windowEventWillPositionSheet && event != alertEndedEvent;
    return isSite ? recordCall(event, tag, wndTag, obj) : 0;
}

/// The calls since the last time, without those of views that draw.
inline QString takeSiteCalls()
{
    // What one pass over the queue queues is for the next.
    for (int pass = 0; pass < 4; ++pass) {
        QApplication::processEvents();
    }
    QStringList calls = std::exchange(dialogCalls, {});
    calls.removeIf([](const QString &call) {
        static const QList<qint64> drawing = {viewEventDraw, viewEventWantsUpdateLayer, viewEventUpdateLayer,
                                              splitViewEventDrawDivider, tableViewEventDrawRow};
        return drawing.contains(call.section(u' ', 0, 0).toLongLong());
    });
    return calls.join(u", "_s);
}

/// Steps, each with the calls that it brings about and, after an arrow, what `state` says then.
inline void expectCalls(const Table<std::function<void()>, QString> &steps, const std::function<QString()> &state = {})
{
    for (const auto &[name, act, expected] : steps) {
        act();
        const QString calls = takeSiteCalls();
        EXPECT_EQ(state ? QString(calls % u" -> " % state()) : calls, expected) << name;
    }
}

inline void answer(bool yes)
{
    CUI_DialogEventObj()->boolVal = yes;
}

/// One window, tag 7, shown and active, with the dialog function installed.
class SiteTest : public WindowTest
{
protected:
    void SetUp() override
    {
        m_content = open(7)->contentView();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_content->window()));
        CUI_SetOnDialogFunction(recordSite);
    }

    /// Makes an object for each event, brings its events about, and harms it at that one, which must come and be
    /// survived.
    static void expectSurvival(
        const QList<qint64> &events, const std::function<QObject *()> &make,
        const QList<std::function<void()>> &happenings,
        const std::function<void(QObject *)> &harm = [](const QObject *victim) { delete victim; })
    {
        for (const qint64 dangerous : events) {
            SCOPED_TRACE(dangerous);
            const QPointer<QObject> victim = make();
            bool isHarmed = false;
            atEvent = [&, dangerous, respond = atEvent](qint64 event) {
                if (respond) {
                    respond(event);
                }
                if (event == dangerous && !std::exchange(isHarmed, true)) {
                    harm(victim);
                }
            };
            for (const auto &happen : happenings) {
                if (victim) {
                    happen();
                    takeSiteCalls();
                }
            }
            EXPECT_TRUE(isHarmed);
            atEvent = nullptr;
            delete victim;
        }
    }

    /// A check box, a slider, a text field, a pop-up button and a segmented control, tags 2 to 6.
    static void makeControls()
    {
        CUI_CheckBox(2, u"Box"_s, QRectF(10, 10, 100, 30));
        CUI_Slider(3, 5, 0, 10, QRectF(10, 50, 200, 30));
        CUI_TextField(4, u"12 apples"_s, QRectF(10, 90, 200, 30));
        CUI_PopUpButton(5, {u"a"_s, u"b"_s}, 0, QRectF(10, 130, 100, 30));
        CUI_SegmentedControl(6, {u"x"_s, u"y"_s}, 0, QRectF(120, 130, 100, 30));
    }

    QWidget *m_content = nullptr;
};

} // namespace tetrad
