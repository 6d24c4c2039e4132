#pragma once

#include "tests/support/windows.h"

namespace tetrad {

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

    /// A check box, a slider, a text field, a pop-up button and a segmented control, tags 2 to 6.
    static void makeControls()
    {
        CUI_CheckBox(2, u"Box"_s, QRectF(10, 10, 100, 30));
        CUI_Slider(3, 5, 0, 10, QRectF(10, 50, 200, 30));
        CUI_TextField(4, u"12 apples"_s, QRectF(10, 90, 200, 30));
        CUI_PopUpButton(5, {u"a"_s, u"b"_s}, notGiven, QRectF(10, 130, 100, 30));
        CUI_SegmentedControl(6, {u"x"_s, u"y"_s}, 0, QRectF(120, 130, 100, 30));
    }

    QWidget *m_content = nullptr;
};

} // namespace tetrad
