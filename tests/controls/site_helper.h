#pragma once

#include "runtime/controls/dialog_event.h"
#include "runtime/controls/event_codes.h"
#include "runtime/controls/view_lookup.h"
#include "tests/controls/controls_helper.h"

#include <functional>
#include <string>
#include <utility>

namespace tetrad::testing_helpers {

/// What the dialog function was called with, as "code tag wndTag", with what `values` made of the record behind
/// it. Windows' own events are left out.
inline QStringList siteCalls;
/// Called at every event of a site, to answer it or to do harm.
inline std::function<void(qint64 event)> atEvent;
/// Reads the record's values that belong to an event.
inline std::function<QString(qint64 event)> valuesOf;
/// The object or number that the last event came with.
inline qint64 lastObject = 0;

inline qint64 recordSite(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    if (event >= windowEventWillPositionSheet) {
        return 0;
    }
    const QString values = valuesOf ? valuesOf(event) : QString();
    siteCalls << QString::asprintf("%lld %lld %lld", event, tag, wndTag) + (values.isEmpty() ? u""_qs : u' ' + values);
    lastObject = obj;
    if (const auto callback = atEvent) {
        callback(event);
    }
    return 0;
}

/// The calls since the last time, without those of views that draw.
inline std::string takeSiteCalls()
{
    // What one pass over the queue queues is for the next.
    for (int pass = 0; pass < 4; ++pass) {
        QApplication::processEvents();
    }
    QStringList calls = std::exchange(siteCalls, {});
    calls.removeIf([](const QString &call) {
        static const QList<qint64> drawing = {viewEventDraw, viewEventWantsUpdateLayer, viewEventUpdateLayer,
                                              splitViewEventDrawDivider, tableViewEventDrawRow};
        return drawing.contains(call.section(u' ', 0, 0).toLongLong());
    });
    return calls.join(u", "_qs).toStdString();
}

/// The same by their codes only.
inline std::string takeSiteCodes()
{
    const QStringList calls = QString::fromStdString(takeSiteCalls()).split(u", "_qs, Qt::SkipEmptyParts);
    QStringList codes;
    for (const QString &call : calls) {
        codes << call.section(u' ', 0, 0);
    }
    return codes.join(u' ').toStdString();
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
        m_content = open(7);
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_content->window()));
        CUI_SetOnDialogFunction(recordSite);
    }

    void TearDown() override
    {
        atEvent = nullptr;
        valuesOf = nullptr;
        CUI_SetOnDialogFunction(nullptr);
        WindowTest::TearDown();
        siteCalls.clear();
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

    QWidget *m_content = nullptr;
};

} // namespace tetrad::testing_helpers
