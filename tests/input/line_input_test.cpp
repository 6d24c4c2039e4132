#include "panel_helper.h"

using namespace tetrad;

namespace {

const QString answerKeys = u"123456789+-*/()qs"_s;

class LineInput : public PanelTest
{
protected:
    QString ask(const QString &characters, std::function<void(ZRInputWindow &)> user, qint64 maxLength = notGiven,
                qint64 caseOption = 0)
    {
        whenPanelRuns(std::move(user));
        const QString answer = ZRInput(10, 190, u"Enter:"_s, characters, 1, maxLength, caseOption);
        EXPECT_EQ(CUI_AppDelegateObj()->inputWnd, nullptr);
        return answer;
    }
    static void answerWith(const ZRInputWindow &panel, const QString &text, Qt::Key end = Qt::Key_Return,
                           Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        // Where the keyboard is, as the window system would.
        EXPECT_EQ(QApplication::focusWidget(), panel.field());
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(panel.field(), end, modifiers);
    }
};

TEST_F(LineInput, endsWithTheLineOrNone)
{
    const Table<Qt::Key, Qt::KeyboardModifiers, bool> rows = {
        {"Return", Qt::Key_Return, Qt::NoModifier, true},
        {"Enter", Qt::Key_Enter, Qt::KeypadModifier, true},
        {"Tab", Qt::Key_Tab, Qt::NoModifier, true},
        {"Backtab", Qt::Key_Backtab, Qt::ShiftModifier, true},
        {"Shift with Return", Qt::Key_Return, Qt::ShiftModifier, true},
        {"Escape", Qt::Key_Escape, Qt::NoModifier, false},
    };
    for (const auto &[shows, key, modifiers, answers] : rows) {
        for (const QString &typed : {u"12"_s, u""_s}) {
            SCOPED_TRACE(shows);
            const QString answer = ask(QString(), [&, end = key, with = modifiers](ZRInputWindow &panel) {
                answerWith(panel, typed, end, with);
            });
            EXPECT_EQ(answer, answers ? typed : QString());
            EXPECT_EQ(answer.isNull(), !answers);
        }
    }
}

TEST_F(LineInput, formatsPersistFromCallToCall)
{
    // What the call gives, and what is left of "a1b2" then.
    const std::pair<QString, QString> calls[] = {{QString(), u"a1b2"_s}, {u""_s, u"a1b2"_s}, {u"12"_s, u"12"_s},
                                                 {u""_s, u"12"_s},       {u"ab"_s, u"ab"_s}, {u""_s, u"ab"_s},
                                                 {QString(), u"a1b2"_s}, {u""_s, u"a1b2"_s}};
    for (const auto &[characters, expected] : calls) {
        EXPECT_EQ(ask(characters, [](ZRInputWindow &panel) { answerWith(panel, u"a1b2"_s); }), expected);
    }
    EXPECT_EQ(host->findChildren<ZRInputWindow *>().size(), 1) << "each is deleted by the next";
}

TEST_F(LineInput, limitAndCaseReachTheFieldAndNeitherHeldKeysNorALostFocusAnswer)
{
    const auto user = [](ZRInputWindow &panel) {
        QFocusEvent toAnotherApplication(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(panel.field(), &toAnotherApplication);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab}) {
            repeatHeldKey(panel.field(), key);
        }
        answerWith(panel, u"abca"_s);
    };
    EXPECT_EQ(ask(u"abc"_s, user, 3, caseForceUpper), u"ABC"_s);
}

TEST_F(LineInput, aWindowDeletedUnderTheRunGivesNoneAndThenThePanelStandsAlone)
{
    EXPECT_TRUE(ask(QString(), [&](ZRInputWindow &) { delete host; }).isNull());
    const QString answer = ask(answerKeys, [](ZRInputWindow &panel) {
        EXPECT_TRUE(panel.isWindow());
        EXPECT_EQ(ZRInputWindow({}, notGiven, notGiven).bodyRect().left(), (panel.screen()->size().width() - 110) / 2);
        EXPECT_EQ(panel.bodyRect().bottomLeft() + QPoint(0, 1), QPoint(10, 190));
        answerWith(panel, u"1x"_s);
    });
    EXPECT_EQ(answer, u"1"_s);
}

} // namespace
