#include "tests/controls/site_helper.h"

using namespace tetrad;

namespace {

qint64 ownCallback(Tag tag, Tag wndTag, void *userData)
{
    dialogCalls << QString::asprintf("own %lld %lld %d", tag, wndTag, userData ? *static_cast<int *>(userData) : 0);
    return dialogCalls.size();
}

qint64 allCallback(Tag tag, Tag wndTag, Tag obj)
{
    dialogCalls << QString::asprintf("all %lld %lld %lld", tag, wndTag, obj);
    return dialogCalls.size();
}

using Dispatch = SiteTest;

TEST_F(Dispatch, PrefersTheControlsOwnCallback)
{
    CUI_Button(5, u"Press"_s, QRectF(10, 10, 80, 30));
    QWidget *const button = ControlWithTag(5);
    int userData = 44;
    const Table<bool, bool, bool, Tag, QString, QString> rows = {
        {"own of all three", true, true, true, 7, u"own 5 7 44"_s, u"own 5 7 44"_s},
        {"all controls' before dialog", false, true, true, 7, u"all 5 7 0"_s, u"all 5 7 77"_s},
        {"dialog function", false, false, true, 7, u"1 5 7"_s, u"1503 5 7"_s},
        {"nobody", false, false, false, 7, {}, {}},
        {"other window's tag on the control", false, false, true, 1, u"1 5 1"_s, u"1503 5 1"_s},
        {"no window's tag on the control", true, false, true, 0, u"own 5 7 44"_s, u"own 5 7 44"_s},
    };
    for (const auto &[name, own, all, dialog, wndTag, action, delegateEvent] : rows) {
        SCOPED_TRACE(name);
        takeSiteCalls();
        ControlSetCallback(tagFromObject(button), own ? ownCallback : nullptr, &userData);
        CUI_ControlTargetObj()->allControlsCallback = all ? allCallback : nullptr;
        CUI_SetOnDialogFunction(dialog ? recordSite : nullptr);
        setObjectWindowTag(button, wndTag);
        CUI_OutputWindowSetTag(0);
        CUI_ControlTargetObj()->controlAction(button);
        EXPECT_EQ(CUI_OutputWindowTag(), wndTag < 1 ? 7 : wndTag);
        EXPECT_EQ(takeSiteCalls(), action);
        const qint64 result = CUI_ControlCallUserDefinedOnDialogOrCallback(1503, button, 77);
        EXPECT_EQ(result, dialogCalls.size()) << "the callee's result, 0 without one";
        EXPECT_EQ(CUI_OutputWindowTag(), wndTag) << "the control's own number";
        EXPECT_EQ(takeSiteCalls(), delegateEvent);
    }
    CUI_ControlTargetObj()->allControlsCallback = nullptr;
}

TEST_F(Dispatch, ActionIsChosenByName)
{
    CUI_Button(5, u"Press"_s, QRectF(10, 10, 80, 30));
    QWidget *const button = ControlWithTag(5);
    // An id out of range changes nothing.
    const std::pair<qint64, QString> rows[] = {{0, u"controlAction:"_s},         {11, u"controlAction:"_s},
                                               {-1, u"controlAction:"_s},        {1, u"controlAction1:"_s},
                                               {11, u"controlAction1:"_s},       {10, u"controlAction10:"_s},
                                               {notGiven, u"controlAction10:"_s}};
    QEvent::Type current = QEvent::None;
    atEvent = [&current](qint64) { current = CUI_EventEvent() ? CUI_EventEvent()->type() : QEvent::None; };
    for (const auto &[id, action] : rows) {
        SCOPED_TRACE(id);
        ControlSetActionID(5, id);
        EXPECT_EQ(controlActionName(button), action);
        expectCalls({{"click", [button] { QTest::mouseClick(button, Qt::LeftButton); }, u"1 5 7"_s}});
        EXPECT_EQ(lastObject, tagFromObject(button));
        EXPECT_EQ(current, QEvent::MouseButtonRelease);
    }
    EXPECT_EQ(alertsOf([] { ControlSetActionID(6, 11); }), QString()) << "an id out of range needs no control";
    EXPECT_EQ(alertsOf([] { ControlSetActionID(6, 1); }), u"Tag error.|Can't find view 6 in window 7."_s);
}

TEST_F(Dispatch, ForwardersPreferTheViewsOwnCallback)
{
    TableViewSC table;
    setObjectTag(&table, 9);
    setObjectWindowTag(&table, 7);
    for (const DelegateCallback own : {DelegateCallback(), +[](Tag tag, qint64 event) { return 1000 * tag + event; }}) {
        takeSiteCalls();
        CUI_OutputWindowSetTag(0);
        ViewSetDelegateCallback(tagFromObject(&table), own);
        EXPECT_EQ(CUI_TableViewDelegate::forwardEvent(&table, 5, 77), own ? 9005 : 1) << "the callee's result";
        EXPECT_EQ(takeSiteCalls(), own ? QString() : u"5 9 7"_s);
        EXPECT_EQ(CUI_OutputWindowTag(), 7);
    }
    EXPECT_EQ(lastObject, 77);
}

TEST(DialogEventRecord, IsEmptyAtFirst)
{
    const CUI_DialogEvent it;
    EXPECT_FALSE(it.boolVal || it.viewTag || it.rangeVal.location || it.rangeVal.length);
    EXPECT_TRUE(it.floatVal == 0 && it.longVal == 0 && it.doubleVal == 0);
}

} // namespace
