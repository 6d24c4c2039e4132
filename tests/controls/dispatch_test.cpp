#include "runtime/app/content_view.h"
#include "runtime/controls/control_statements.h"
#include "runtime/controls/control_target.h"
#include "runtime/controls/dialog_event.h"
#include "runtime/controls/event_codes.h"
#include "runtime/controls/segmented_control.h"
#include "runtime/controls/view_lookup.h"
#include "tests/controls/controls_helper.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QTabWidget>

#include <functional>

namespace tetrad {

namespace {

using namespace testing_helpers;

QStringList calls;
std::function<void()> whenCalled;

qint64 note(const char *who, const QList<qint64> &numbers)
{
    QString call = QLatin1StringView(who);
    for (const qint64 number : numbers) {
        call += u' ' + QString::number(number);
    }
    calls << call;
    if (whenCalled) {
        std::exchange(whenCalled, nullptr)();
    }
    return calls.size();
}

// Only what controls report: windows tell the dialog function too.
qint64 dialogFunction(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    const bool fromControl = event < windowEventWillPositionSheet && event != alertEndedEvent;
    return fromControl ? note("dialog", {event, tag, wndTag, obj}) : 0;
}

qint64 ownCallback(Tag tag, Tag wndTag, void *userData)
{
    return note("own", {tag, wndTag, userData ? *static_cast<int *>(userData) : 0});
}

qint64 allCallback(Tag tag, Tag wndTag, Tag obj)
{
    return note("all", {tag, wndTag, obj});
}

class Dispatch : public WindowTest
{
protected:
    void SetUp() override
    {
        calls.clear();
        whenCalled = nullptr;
        CUI_SetOnDialogFunction(dialogFunction);
    }
    void TearDown() override
    {
        CUI_SetOnDialogFunction(nullptr);
        CUI_ControlTargetObj()->allControlsCallback = nullptr;
        WindowTest::TearDown();
    }
    static bool waitForCalls(qsizetype count)
    {
        return QTest::qWaitFor([count] { return calls.size() >= count; });
    }
};

TEST_F(Dispatch, PrefersTheControlsOwnCallback)
{
    open(1);
    CUI_Button(5, u"Press"_qs, QRectF(10, 10, 80, 30));
    QWidget *const button = ControlWithTag(5);
    const QString sender = QString::number(tagFromObject(button));
    int userData = 44;
    struct Row
    {
        const char *name;
        bool own;
        bool all;
        bool dialog;
        Tag wndTag;
        QString action;
        QString delegateEvent;
    };
    const Row rows[] = {
        {"own of all three", true, true, true, 1, u"own 5 1 44"_qs, u"own 5 1 44"_qs},
        {"all controls' before dialog", false, true, true, 1, u"all 5 1 0"_qs, u"all 5 1 77"_qs},
        {"dialog function", false, false, true, 1, u"dialog 1 5 1 "_qs + sender, u"dialog 1503 5 1 77"_qs},
        {"nobody", false, false, false, 1, {}, {}},
        {"other window's tag on the control", false, false, true, 3, u"dialog 1 5 3 "_qs + sender,
         u"dialog 1503 5 3 77"_qs},
        {"no window's tag on the control", true, false, true, 0, u"own 5 1 44"_qs, u"own 5 1 44"_qs},
        {"negative tag on the control", false, true, true, -3, u"all 5 1 0"_qs, u"all 5 1 77"_qs},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        calls.clear();
        ControlSetCallback(tagFromObject(button), row.own ? ownCallback : nullptr, &userData);
        CUI_ControlTargetObj()->allControlsCallback = row.all ? allCallback : nullptr;
        CUI_SetOnDialogFunction(row.dialog ? dialogFunction : nullptr);
        setObjectWindowTag(button, row.wndTag);
        CUI_OutputWindowSetTag(0);
        CUI_ControlTargetObj()->controlAction(button);
        EXPECT_EQ(calls, row.action.isNull() ? QStringList() : QStringList(row.action));
        EXPECT_EQ(CUI_OutputWindowTag(), row.wndTag < 1 ? 1 : row.wndTag);
        calls.clear();
        const qint64 result = CUI_ControlCallUserDefinedOnDialogOrCallback(1503, button, 77);
        EXPECT_EQ(calls, row.delegateEvent.isNull() ? QStringList() : QStringList(row.delegateEvent));
        EXPECT_EQ(result, calls.size()) << "the callee's result, 0 without one";
        EXPECT_EQ(CUI_OutputWindowTag(), qAbs(row.wndTag)) << "the control's own number";
    }
}

TEST_F(Dispatch, ActionIsChosenByName)
{
    open(1);
    CUI_Button(5, u"Press"_qs, QRectF(10, 10, 80, 30));
    QWidget *const button = ControlWithTag(5);
    struct Row
    {
        qint64 id;
        QString action;
    };
    const Row rows[] = {{0, u"controlAction:"_qs},   {11, u"controlAction:"_qs},         {-1, u"controlAction:"_qs},
                        {3, u"controlAction3:"_qs},  {11, u"controlAction3:"_qs},        {10, u"controlAction10:"_qs},
                        {0, u"controlAction10:"_qs}, {notGiven, u"controlAction10:"_qs}, {1, u"controlAction1:"_qs}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.id);
        calls.clear();
        ControlSetActionID(5, row.id);
        EXPECT_EQ(controlActionName(button), row.action);
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_EQ(calls, QStringList(u"dialog 1 5 1 %1"_qs.arg(tagFromObject(button))));
    }
    for (qint64 id = 1; id <= 10; ++id) {
        ControlSetActionID(5, id);
        calls.clear();
        CUI_ControlSendAction(button);
        EXPECT_EQ(calls.size(), 1) << id;
    }
    EXPECT_EQ(alertsOf([] { ControlSetActionID(6, 11); }), QStringList()) << "an id out of range asks for no control";
    EXPECT_EQ(alertsOf([] { ControlSetActionID(6, 1); }), QStringList(u"Tag error.|Can't find view 6 in window 1."_qs));
    calls.clear();
    setControlActionName(button, u"noSuchAction:"_qs);
    CUI_ControlSendAction(button);
    EXPECT_EQ(calls, QStringList());
}

TEST_F(Dispatch, RealInputReachesIt)
{
    QWidget *const content = open(1);
    CUI_CheckBox(2, u"Box"_qs, QRectF(10, 10, 100, 30));
    CUI_Slider(3, 5, 0, 10, QRectF(10, 50, 200, 30));
    CUI_TextField(4, u"12 apples"_qs, QRectF(10, 90, 200, 30));
    CUI_PopUpButton(5, {u"a"_qs, u"b"_qs}, 0, QRectF(10, 130, 100, 30));
    CUI_SegmentedControl(6, {u"x"_qs, u"y"_qs}, 0, QRectF(120, 130, 100, 30));
    QTest::mouseClick(ControlWithTag(2), Qt::LeftButton, {}, QPoint(8, 15));
    QTest::keyClick(ControlWithTag(3), Qt::Key_Right);
    QTest::keyClick(ControlWithTag(4), Qt::Key_Return);
    QTest::keyClick(ControlWithTag(5), Qt::Key_Down);
    QTest::mouseClick(content->findChild<SegmentedControl *>()->findChildren<QAbstractButton *>().at(1),
                      Qt::LeftButton);
    ASSERT_TRUE(waitForCalls(5));
    QStringList expected;
    for (const Tag tag : {2, 3, 4, 5, 6}) {
        expected << u"dialog 1 %1 1 %2"_qs.arg(tag).arg(tagFromObject(ControlWithTag(tag)));
    }
    EXPECT_EQ(calls, expected);
    const QList<qint64> values = {ControlIntegerValue(2), ControlIntegerValue(3), ControlIntegerValue(4),
                                  ControlIntegerValue(5), ControlIntegerValue(6)};
    EXPECT_EQ(values, QList<qint64>({1, 6, 12, 1, 1}));

    for (const Tag tag : {2, 3, 4, 5, 6}) {
        ControlSetIntegerValue(tag, 0);
        EXPECT_EQ(ControlIntegerValue(tag), 0) << tag;
    }
    CUI_Slider(3, 9, 0, 10, {});
    QApplication::processEvents();
    EXPECT_EQ(calls.size(), 5) << "what the program sets is not reported";
}

struct Harm
{
    const char *name;
    std::function<void()> act;
};

class DispatchSurvives : public Dispatch, public testing::WithParamInterface<Harm>
{};

TEST_P(DispatchSurvives, WhatACallbackDoes)
{
    const std::function<void()> inputs[] = {
        [] { QTest::mouseClick(ControlWithTag(5), Qt::LeftButton); },
        [] { QTest::keyClick(ControlWithTag(5), Qt::Key_Space); },
        [] { QTest::keyClick(ControlWithTag(6), Qt::Key_Right); },
        [] { QTest::mouseClick(ControlWithTag(6), Qt::LeftButton, {}, QPoint(190, 15)); },
        [] { QTest::keyClick(ControlWithTag(7), Qt::Key_Return); },
        [] { QTest::keyClick(ControlWithTag(8), Qt::Key_Down); },
    };
    for (const auto &input : inputs) {
        calls.clear();
        CUI_ControlTargetObj()->allControlsCallback = nullptr;
        CUI_SetOnDialogFunction(dialogFunction);
        open(1);
        CUI_Button(5, u"Press"_qs, QRectF(10, 10, 80, 30));
        CUI_Slider(6, 5, 0, 10, QRectF(10, 50, 200, 30));
        CUI_TextField(7, u"text"_qs, QRectF(10, 90, 200, 30));
        CUI_PopUpButton(8, {u"a"_qs, u"b"_qs}, 0, QRectF(10, 130, 100, 30));
        QTimer answers;
        QObject::connect(&answers, &QTimer::timeout, [] {
            if (auto *const box = qobject_cast<QMessageBox *>(modalWindow())) {
                box->buttons().constFirst()->click();
            }
        });
        answers.start(0);
        whenCalled = GetParam().act;
        input();
        ASSERT_TRUE(waitForCalls(1));
        EXPECT_EQ(calls.constFirst().section(u' ', 0, 1), u"dialog 1"_qs);
        WindowTest::TearDown();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Harms, DispatchSurvives,
    testing::Values(
        Harm{"deletesTheSender", [] { delete objectFromTag(calls.constLast().section(u' ', 4).toLongLong()); }},
        Harm{"deletesTheContent", [] { qDeleteAll(CUI_WindowWithTag(1)->contentView()->children()); }},
        Harm{"closesTheWindow", [] { CUI_WindowWithTag(1)->close(); }},
        Harm{"tagsTheSenderAnew",
             [] { setObjectTag(objectFromTag(calls.constLast().section(u' ', 4).toLongLong()), 99); }},
        Harm{"tagsTheWindowAnew", [] { CUI_WindowWithTag(1)->setTag(99); }},
        Harm{"removesTheSender", [] { ViewRemoveFromSuperview(calls.constLast().section(u' ', 2, 2).toLongLong()); }},
        Harm{"installsAnotherFunction", [] { CUI_SetOnDialogFunction(nullptr); }},
        Harm{"installsAnotherCallback", [] { CUI_ControlTargetObj()->allControlsCallback = allCallback; }},
        Harm{"opensAnAlert", [] { CUI_Alert(1, notGiven, u"Now"_qs, {}, u"OK"_qs, notGiven); }}),
    [](const auto &test) { return std::string(test.param.name); });

TEST_F(Dispatch, QueuedActionOfADeletedControlIsDropped)
{
    open(1);
    CUI_Slider(6, 5, 0, 10, QRectF(10, 50, 200, 30));
    QWidget *const slider = ControlWithTag(6);
    QTest::keyClick(slider, Qt::Key_Right);
    delete slider;
    QApplication::processEvents();
    EXPECT_EQ(calls, QStringList());
}

TEST_F(Dispatch, StatementsMakeAndChange)
{
    QWidget *const content = open(1);
    CUI_Button(-5, u"Press"_qs, QRectF(10, 10, 80, 30));
    QWidget *const button = ControlWithTag(5);
    EXPECT_TRUE(button->isHidden());
    EXPECT_EQ(objectWindowTag(button), 1);
    CUI_Button(5, {}, {});
    EXPECT_EQ(ControlWithTag(5), button) << "the same one";
    EXPECT_EQ(ControlStringValue(5), u"Press"_qs);
    EXPECT_EQ(button->geometry(), QRect(10, 10, 80, 30));
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(alertsOf([] { CUI_Slider(5, 0, 0, 1, {}); }),
              QStringList(u"Class error.|View 5 (NSButton), in window 1, cannot respond to NSSlider messages."_qs));
    EXPECT_EQ(alertsOf([] { CUI_Button(0, u"x"_qs, {}); }),
              QStringList(u"Tag error.|A view needs a tag from 1 to 1000000, not 0."_qs));
    EXPECT_EQ(content->findChildren<QWidget *>().size(), 1);

    auto *const page = new QWidget(content);
    page->setObjectName(u"9"_qs);
    ViewAddSubview(9, 5);
    EXPECT_EQ(button->parentWidget(), page);
    EXPECT_EQ(ControlWithTag(5), button);
    ViewAddSubview(tagFromObject(button), 9);
    EXPECT_EQ(button->parentWidget(), page) << "nothing lies in itself";
    ViewRemoveFromSuperview(5);
    EXPECT_EQ(CUI_ViewWithTag(5), nullptr);
}

struct SeenEvent
{
    qint64 code = 0;
    int type = 0;
};
QList<SeenEvent> seenEvents;

qint64 noteContentEvents(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    if (tag == contentViewTag && wndTag == 1 && event != viewEventDraw) {
        seenEvents.append({event, obj ? int(eventFromTag(obj)->type()) : 0});
    }
    return 0;
}

TEST_F(Dispatch, ContentViewHandsThePlatformEventOver)
{
    auto *const content = qobject_cast<ContentViewSC *>(open(1));
    CUI_SetOnDialogFunction(noteContentEvents);
    QTest::mouseClick(content, Qt::LeftButton);
    EXPECT_TRUE(seenEvents.isEmpty()) << "only with the subclass flag";
    content->setSubclassFlag(true);
    QTest::mouseClick(content, Qt::LeftButton);
    ASSERT_EQ(seenEvents.size(), 2);
    EXPECT_EQ(seenEvents.at(0).code, viewEventMouseDown);
    EXPECT_EQ(seenEvents.at(0).type, int(QEvent::MouseButtonPress));
    EXPECT_EQ(seenEvents.at(1).code, viewEventMouseUp);
    EXPECT_EQ(seenEvents.at(1).type, int(QEvent::MouseButtonRelease));
}

} // namespace

} // namespace tetrad
