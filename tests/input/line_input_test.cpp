#include "panel_helper.h"

#include "runtime/app/app_delegate.h"
#include "runtime/app/application.h"
#include "runtime/input/input_format.h"
#include "runtime/input/line_input.h"
#include "runtime/input/line_input_window.h"
#include "runtime/strings/not_given.h"

#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

using namespace tetrad;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString answerKeys = u"123456789+-*/()qs"_s;

class LineInput : public PanelTest
{
protected:
    QString ask(const QString &prompt, const QString &characters, std::function<void(ZRInputWindow &)> user,
                qint64 maxLength = notGiven, qint64 caseOption = 0)
    {
        const WithPanel<ZRInputWindow> played(std::move(user));
        const QString answer = ZRInput(10, 190, prompt, characters, 1, maxLength, caseOption);
        EXPECT_EQ(CUI_AppDelegateObj()->inputWnd(), nullptr);
        return answer;
    }
    static void type(const ZRInputWindow &panel, const QString &text)
    {
        // Where the keyboard is, as the window system would.
        EXPECT_EQ(QApplication::focusWidget(), panel.field());
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
};

struct EndingKey
{
    const char *shows;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    bool answers;
};

void PrintTo(const EndingKey &row, std::ostream *out)
{
    *out << row.shows;
}

class EndOfLineInput : public LineInput, public testing::WithParamInterface<EndingKey>
{};

TEST_P(EndOfLineInput, givesTheLineOrNone)
{
    for (const QString &typed : {u"12"_s, u""_s}) {
        const QString answer = ask(u"Enter:"_s, QString(), [&](ZRInputWindow &panel) {
            EXPECT_EQ(CUI_AppDelegateObj()->inputWnd(), &panel);
            type(panel, typed);
            QTest::keyClick(panel.field(), GetParam().key, GetParam().modifiers);
        });
        EXPECT_EQ(answer, GetParam().answers ? typed : QString());
        EXPECT_EQ(answer.isNull(), !GetParam().answers);
    }
}

constexpr EndingKey endingKeys[] = {
    {"Return", Qt::Key_Return, Qt::NoModifier, true},
    {"Enter", Qt::Key_Enter, Qt::KeypadModifier, true},
    {"Tab", Qt::Key_Tab, Qt::NoModifier, true},
    {"Backtab", Qt::Key_Backtab, Qt::ShiftModifier, true},
    {"ShiftReturn", Qt::Key_Return, Qt::ShiftModifier, true},
    {"Escape", Qt::Key_Escape, Qt::NoModifier, false},
};

INSTANTIATE_TEST_SUITE_P(, EndOfLineInput, testing::ValuesIn(endingKeys),
                         [](const auto &row) { return row.param.shows; });

TEST_F(LineInput, formatsPersistFromCallToCall)
{
    struct Call
    {
        QString characters; ///< what the call gives
        QString expected;   ///< what is left of "a1b2"
    };
    const Call calls[] = {{QString(), u"a1b2"_s}, {u""_s, u"a1b2"_s}, {u"12"_s, u"12"_s},     {u""_s, u"12"_s},
                          {u"ab"_s, u"ab"_s},     {u""_s, u"ab"_s},   {QString(), u"a1b2"_s}, {u""_s, u"a1b2"_s}};
    for (const Call &call : calls) {
        EXPECT_EQ(ask(u""_s, call.characters,
                      [](ZRInputWindow &panel) {
                          type(panel, u"a1b2"_s);
                          QTest::keyClick(panel.field(), Qt::Key_Return);
                      }),
                  call.expected);
    }
}

TEST_F(LineInput, limitAndCaseReachTheField)
{
    const QString answer = ask(
        u""_s, u"abc"_s,
        [](ZRInputWindow &panel) {
            type(panel, u"abca"_s);
            QTest::keyClick(panel.field(), Qt::Key_Return);
        },
        3, caseForceUpper);
    EXPECT_EQ(answer, u"ABC"_s);
}

TEST_F(LineInput, keysStillHeldDownAnswerNothing)
{
    const QString answer = ask(u""_s, QString(), [](ZRInputWindow &panel) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab}) {
            QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(panel.field(), &held);
        }
        type(panel, u"7"_s);
        QTest::keyClick(panel.field(), Qt::Key_Return);
    });
    EXPECT_EQ(answer, u"7"_s);
}

TEST_F(LineInput, losingTheFocusEndsNothing)
{
    QWidget other;
    const QString answer = ask(u""_s, QString(), [&](ZRInputWindow &panel) {
        type(panel, u"1"_s);
        QFocusEvent toAnotherApplication(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(panel.field(), &toAnotherApplication);
        QMenu menu;
        menu.addAction(u"Item"_s);
        menu.popup(QPoint(200, 200));
        EXPECT_TRUE(QTest::qWaitFor([&] { return menu.isVisible(); }));
        menu.close();
        EXPECT_EQ(modalWindow(), &panel);
        type(panel, u"2"_s);
        QTest::keyClick(panel.field(), Qt::Key_Return);
    });
    EXPECT_EQ(answer, u"12"_s);
}

TEST_F(LineInput, theContextMenuWorksDuringTheRun)
{
    QGuiApplication::clipboard()->setText(u"1+x"_s);
    const QString answer = ask(u""_s, answerKeys, [](ZRInputWindow &panel) {
        QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(1, 8), panel.field()->mapToGlobal(QPoint(1, 8)));
        QCoreApplication::sendEvent(panel.field(), &request);
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction *const action : menu->actions()) {
            if (action->text().contains(u"Paste")) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            }
        }
        EXPECT_TRUE(QTest::qWaitFor([&] { return panel.field()->text() == u"1+"; }));
        QTest::keyClick(panel.field(), Qt::Key_Return);
    });
    EXPECT_EQ(answer, u"1+"_s);
}

TEST_F(LineInput, aWindowClosedOrDeletedUnderTheRunGivesNone)
{
    EXPECT_TRUE(ask(u"Deleted:"_s, QString(), [&](ZRInputWindow &) { delete host; }).isNull());
    EXPECT_EQ(host, nullptr);
}

TEST_F(LineInput, standsAloneWithoutAnyWindow)
{
    delete host;
    const QString answer = ask(u"Alone:"_s, answerKeys, [](ZRInputWindow &panel) {
        EXPECT_TRUE(panel.isWindow());
        EXPECT_EQ(panel.bodyRect().bottomLeft() + QPoint(0, 1), QPoint(10, 190));
        type(panel, u"1x"_s);
        QTest::keyClick(panel.field(), Qt::Key_Return);
    });
    EXPECT_EQ(answer, u"1"_s);
}

} // namespace
