#include "tests/controls/site_helper.h"
#include <tetrad/controls/control_statements.h>
#include <tetrad/controls/control_target.h>
#include <tetrad/controls/table_view.h>

#include <QLineEdit>

using namespace tetrad;
using namespace Qt::StringLiterals;

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

class Dispatch : public SiteTest
{
protected:
    void TearDown() override
    {
        CUI_ControlTargetObj()->allControlsCallback = nullptr;
        SiteTest::TearDown();
    }
    static void makeControls()
    {
        CUI_CheckBox(2, u"Box"_s, QRectF(10, 10, 100, 30));
        CUI_Slider(3, 5, 0, 10, QRectF(10, 50, 200, 30));
        CUI_TextField(4, u"12 apples"_s, QRectF(10, 90, 200, 30));
        CUI_PopUpButton(5, {u"a"_s, u"b"_s}, 0, QRectF(10, 130, 100, 30));
        CUI_SegmentedControl(6, {u"x"_s, u"y"_s}, 0, QRectF(120, 130, 100, 30));
    }
    static bool waitForCalls(qsizetype count)
    {
        return QTest::qWaitFor([count] { return dialogCalls.size() >= count; });
    }
};

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
        {"other window's tag on the control", false, false, true, 3, u"1 5 3"_s, u"1503 5 3"_s},
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
        EXPECT_EQ(CUI_OutputWindowTag(), qAbs(wndTag)) << "the control's own number";
        EXPECT_EQ(takeSiteCalls(), delegateEvent);
    }
}

TEST_F(Dispatch, ActionIsChosenByName)
{
    CUI_Button(5, u"Press"_s, QRectF(10, 10, 80, 30));
    QWidget *const button = ControlWithTag(5);
    // An id out of range changes nothing.
    const std::pair<qint64, QString> rows[] = {{0, u"controlAction:"_s},          {11, u"controlAction:"_s},
                                               {-1, u"controlAction:"_s},         {1, u"controlAction1:"_s},
                                               {11, u"controlAction1:"_s},        {10, u"controlAction10:"_s},
                                               {notGiven, u"controlAction10:"_s}, {4, u"controlAction4:"_s}};
    QEvent::Type current = QEvent::None;
    atEvent = [&current](qint64) { current = CUI_EventEvent() ? CUI_EventEvent()->type() : QEvent::None; };
    for (const auto &[id, action] : rows) {
        SCOPED_TRACE(id);
        takeSiteCalls();
        ControlSetActionID(5, id);
        EXPECT_EQ(controlActionName(button), action);
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(takeSiteCalls(), u"1 5 7"_s);
        EXPECT_EQ(lastObject, tagFromObject(button));
        EXPECT_EQ(current, QEvent::MouseButtonRelease);
    }
    EXPECT_EQ(alertsOf([] { ControlSetActionID(6, 11); }), QString()) << "an id out of range asks for no control";
    EXPECT_EQ(alertsOf([] { ControlSetActionID(6, 1); }), u"Tag error.|Can't find view 6 in window 7."_s);
}

TEST_F(Dispatch, RealInputReachesIt)
{
    makeControls();
    QTest::mouseClick(ControlWithTag(2), Qt::LeftButton, {}, QPoint(8, 15));
    QTest::keyClick(ControlWithTag(3), Qt::Key_Right);
    QTest::keyClick(ControlWithTag(4), Qt::Key_Return);
    QTest::keyClick(ControlWithTag(5), Qt::Key_Down);
    QWidget *const segment = m_content->findChild<SegmentedControlSC *>()->findChildren<QAbstractButton *>().at(1);
    QTest::mouseClick(segment, Qt::LeftButton);
    ASSERT_TRUE(waitForCalls(5));
    EXPECT_EQ(takeSiteCalls(), u"1 2 7, 1 3 7, 1 4 7, 1 5 7, 1 6 7"_s);
    for (const auto &[tag, value] : std::vector<std::pair<Tag, qint64>>{{2, 1}, {3, 6}, {4, 12}, {5, 1}, {6, 1}}) {
        EXPECT_EQ(ControlIntegerValue(tag), value) << tag;
        ControlSetIntegerValue(tag, 0);
        EXPECT_EQ(ControlIntegerValue(tag), 0) << tag;
    }
    CUI_Slider(3, 9, 0, 10, {});
    EXPECT_EQ(takeSiteCalls(), QString()) << "what the program sets is not reported";
}

TEST_F(Dispatch, SurvivesWhatACallbackDoes)
{
    const QList<std::function<void()>> inputs = {
        [] { QTest::mouseClick(ControlWithTag(2), Qt::LeftButton, {}, QPoint(8, 15)); },
        [] { QTest::keyClick(ControlWithTag(2), Qt::Key_Space); },
        [] { QTest::keyClick(ControlWithTag(3), Qt::Key_Right); },
        [] { QTest::mouseClick(ControlWithTag(3), Qt::LeftButton, {}, QPoint(190, 15)); },
        [] { QTest::keyClick(ControlWithTag(4), Qt::Key_Return); },
        [] { QTest::keyClick(ControlWithTag(5), Qt::Key_Down); },
    };
    const auto sender = [] { return objectFromTag(lastObject); };
    const Table<std::function<void()>> harms = {
        {"deletes the sender", [sender] { delete sender(); }},
        {"deletes the content", [] { qDeleteAll(CUI_WindowWithTag(7)->contentView()->children()); }},
        {"closes the window", [] { CUI_WindowWithTag(7)->close(); }},
        {"tags the sender anew", [sender] { setObjectTag(sender(), 99); }},
        {"tags the window anew", [] { CUI_WindowWithTag(7)->setTag(99); }},
        {"installs another function", [] { CUI_SetOnDialogFunction(nullptr); }},
        {"opens an alert", [] { CUI_Alert(1, notGiven, u"Now"_s, {}, u"OK"_s, notGiven); }},
    };
    for (const auto &[name, harm] : harms) {
        for (const auto &input : inputs) {
            SCOPED_TRACE(testing::Message() << name << ", input " << &input - inputs.data());
            TearDown();
            SetUp();
            makeControls();
            const AlertAnswerer answerer;
            bool harmed = false;
            atEvent = [&harmed, act = harm](qint64) {
                if (!std::exchange(harmed, true)) {
                    act();
                }
            };
            input();
            ASSERT_TRUE(waitForCalls(1));
            EXPECT_TRUE(harmed);
        }
    }
}

TEST_F(Dispatch, StatementsMakeAndChange)
{
    CUI_Button(-5, u"Press"_s, QRectF(10, 10, 80, 30));
    QWidget *const button = ControlWithTag(5);
    EXPECT_TRUE(button->isHidden());
    CUI_Button(5, {}, {});
    EXPECT_EQ(ControlStringValue(5), u"Press"_s);
    EXPECT_EQ(button->geometry(), QRect(10, 10, 80, 30));
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(alertsOf([] { CUI_Slider(5, 0, 0, 1, {}); }),
              u"Class error.|View 5 (NSButton), in window 7, cannot respond to NSSlider messages."_s);
    EXPECT_EQ(alertsOf([] { CUI_Button(0, u"x"_s, {}); }),
              u"Tag error.|A view needs a tag from 1 to 1000000, not 0."_s);
    EXPECT_EQ(m_content->findChildren<QWidget *>(), QList<QWidget *>{button});
    CUI_TextLabel(16, u"9 lives"_s, QRectF(10, 60, 80, 30));
    EXPECT_EQ(ControlIntegerValue(16), 9);
    EXPECT_EQ(alertsOf([] { CUI_TextField(16, u"x"_s, {}); }),
              u"Class error.|View 16 (QLabel), in window 7, cannot respond to QLineEdit messages."_s);
    const auto format = [](Tag tag) { ControlSetFormat(tag, u"1"_s, true, 0, 0); };
    EXPECT_EQ(alertsOf([&] { format(88); }), u"Tag error.|Can't find view 88 in window 7."_s);
    CUI_ComboBox(18, u"old"_s, {u"old"_s, u"new"_s}, QRectF(10, 100, 80, 30));
    EXPECT_EQ(alertsOf([&] { format(18); }), QString());
    EXPECT_TRUE(m_content->findChild<QLineEdit *>()->validator());
    ControlSetItems(18, {});
    EXPECT_EQ(ControlItems(18), QStringList());
    EXPECT_EQ(alertsOf([] { ViewRemoveFromSuperview(contentViewTag); }),
              u"Tag error.|A content view stays in its window."_s);

    open(2);
    auto *const page = new QWidget(CUI_WindowWithTag(2)->contentView());
    page->setObjectName(u"9"_s);
    ViewAddSubview(9, tagFromObject(button));
    EXPECT_EQ(objectWindowTag(button), 2);
    ViewAddSubview(tagFromObject(m_content), 9);
    EXPECT_EQ(objectWindowTag(button), 7) << "with what it lies in";
    CUI_OutputWindowSetTag(7);
    ViewAddSubview(9, 5);
    ViewAddSubview(tagFromObject(button), 9);
    EXPECT_EQ(button->parentWidget(), page) << "nothing lies in itself";
    ViewRemoveFromSuperview(5);
    EXPECT_EQ(CUI_ViewWithTag(5), nullptr);

    makeControls();
    CUI_TextLabel(8, u"Label"_s, QRectF(10, 170, 80, 20));
    EXPECT_EQ(ControlStringValue(8), u"Label"_s);
    ControlSetStringValue(4, u"7 pears"_s);
    EXPECT_EQ(ControlIntegerValue(4), 7);
    ControlSetEnabled(2, false);
    QTest::mouseClick(ControlWithTag(2), Qt::LeftButton, {}, QPoint(8, 15));
    EXPECT_EQ(takeSiteCalls(), QString());
    EXPECT_EQ(CUI_OnDialogFunction(), &recordSite);
}

qint64 ownDelegateCallback(Tag tag, qint64 event)
{
    return 1000 * tag + event;
}

TEST_F(Dispatch, ForwardersPreferTheViewsOwnCallback)
{
    TableViewSC table;
    setObjectTag(&table, 9);
    setObjectWindowTag(&table, 7);
    for (const bool own : {false, true}) {
        takeSiteCalls();
        CUI_OutputWindowSetTag(0);
        ViewSetDelegateCallback(tagFromObject(&table), own ? ownDelegateCallback : nullptr);
        const qint64 result = CUI_TableViewDelegate::forwardEvent(&table, 5, 77);
        EXPECT_EQ(result, own ? 9005 : 1) << "the callee's result";
        EXPECT_EQ(takeSiteCalls(), own ? QString() : u"5 9 7"_s);
        EXPECT_EQ(CUI_OutputWindowTag(), 7);
    }
    EXPECT_EQ(lastObject, 77);
}

} // namespace
