#pragma once

#include "tests/support/windows.h"
#include <tetrad/app/alerts.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/events/event_codes.h>

#include <QMessageBox>
#include <QPushButton>

namespace tetrad {

using namespace Qt::StringLiterals;

/// Answers every alert with its first button, as long as it lives, and keeps the texts as "title|text".
class AlertAnswerer
{
public:
    QStringList shown;

    AlertAnswerer()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            if (auto *const box = qobject_cast<QMessageBox *>(modalWindow())) {
                shown << box->text() + u'|' + box->informativeText();
                box->buttons().constFirst()->click();
            }
        });
        m_timer.start(0);
    }

private:
    QTimer m_timer;
};

/// Every alert that a statement queues. One more alert is queued behind them, so that none that was to come is
/// missed and none is waited for in vain.
template <typename Statement>
QString alertsOf(Statement statement)
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

/// The same by their codes only.
inline QString takeSiteCodes()
{
    return codesOf(takeSiteCalls().split(u", "_s, Qt::SkipEmptyParts));
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

    /// The view with this tag, shown, and with nothing recorded yet.
    template <typename View>
    View *settled(Tag tag)
    {
        auto *const view = qobject_cast<View *>(CUI_ViewWithTag(tag));
        EXPECT_TRUE(view);
        takeSiteCalls();
        CUI_OutputWindowSetTag(0);
        return view;
    }

    /// Makes an object for each event, brings its events about, and harms it at that one, which must come and be
    /// survived. `answering` answers the others.
    template <typename Object>
    void expectSurvival(
        const QList<qint64> &events, const std::function<Object *()> &make,
        const QList<std::function<void(Object *)>> &happenings,
        const std::function<void(qint64)> &answering = [](qint64) {},
        const std::function<void(Object *)> &harm = [](const Object *victim) { delete victim; })
    {
        for (const qint64 dangerous : events) {
            SCOPED_TRACE(dangerous);
            const QPointer<Object> victim = make();
            bool isHarmed = false;
            atEvent = [&, dangerous](qint64 event) {
                answering(event);
                if (event == dangerous && !std::exchange(isHarmed, true)) {
                    harm(victim);
                }
            };
            for (const auto &happen : happenings) {
                if (victim) {
                    happen(victim);
                    takeSiteCalls();
                }
            }
            EXPECT_TRUE(isHarmed);
            atEvent = nullptr;
            delete victim;
        }
    }

    QWidget *m_content = nullptr;
};

} // namespace tetrad
