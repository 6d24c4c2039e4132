#include "panel_helper.h"

#include <QLabel>

using namespace tetrad;

namespace {

class KeyInput : public PanelTest
{
protected:
    QString ask(const QString &characters, qint64 pass, qint64 caseOption, std::function<void(ZRInkeyWindow &)> user)
    {
        CUI_AppDelegateObj()->inkeyResponseString = u"before"_s;
        whenPanelRuns(std::move(user));
        const QString key = ZRInkey(10, 190, u"Key:"_s, characters, pass, caseOption);
        EXPECT_TRUE(!CUI_AppDelegateObj()->inkeyWnd && (!host || !host->findChild<ZRInkeyWindow *>()));
        return key;
    }
    static void press(const QString &text)
    {
        EXPECT_EQ(QApplication::focusWidget(), modalWindow());
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
};

TEST_F(KeyInput, takesTheFirstAcceptedKey)
{
    // The keys that are refused are pressed first; the panel must go on waiting. An empty list keeps the format before.
    const Table<QString, qint64, qint64, QString, QString, QString> rows = {
        {"any without a format", QString(), notGiven, notGiven, u""_s, u"x"_s, u"x"_s},
        {"listed", u"yn"_s, 1, notGiven, u"xY 1"_s, u"y"_s, u"y"_s},
        {"not listed", u"yn"_s, 0, notGiven, u"yn"_s, u"Y"_s, u"Y"_s},
        {"raised before the list", u"Q"_s, 1, caseForceUpper, u"x"_s, u"q"_s, u"Q"_s},
        {"lowered before the list", u"q"_s, 1, caseForceLower, u"x"_s, u"Q"_s, u"q"_s},
        {"a capital is lowered out of its list", u"Qa"_s, 1, caseForceLower, u"Qq"_s, u"A"_s, u"a"_s},
        {"as before", u""_s, 0, notGiven, u"Qq"_s, u"A"_s, u"a"_s},
        {"no longer", QString(), 0, notGiven, u""_s, u"q"_s, u"q"_s},
        {"Tab too", u"\t"_s, 1, notGiven, u"x"_s, u"\t"_s, u"\t"_s},
    };
    for (const auto &[shows, characters, pass, caseOption, refused, pressed, expected] : rows) {
        SCOPED_TRACE(shows);
        const QString key = ask(characters, pass, caseOption, [no = refused, yes = pressed](ZRInkeyWindow &panel) {
            press(no);
            EXPECT_EQ(panel.bodyRect().bottomLeft(), QPoint(10, 189));
            EXPECT_EQ(CUI_AppDelegateObj()->inkeyResponseString, u"before"_s);
            press(yes);
        });
        EXPECT_EQ(key, expected);
    }
}

TEST_F(KeyInput, escapeGivesNoKeyWithTheCodeOfAnAnswer)
{
    CUI_AppDelegateObj()->inkeyResponseString = u"before"_s;
    whenPanelRuns<ZRInkeyWindow>([](ZRInkeyWindow &panel) { QTest::keyClick(&panel, Qt::Key_Escape); });
    ZRInkeyWindow panel(u""_s, 10, 190);
    EXPECT_EQ(panel.bodyRect(), QRect(10, 154, 40, 36)) << "without a prompt forty wide";
    EXPECT_EQ(panel.run(), modalStopped);
    EXPECT_TRUE(CUI_AppDelegateObj()->inkeyResponseString.isNull());
}

TEST_F(KeyInput, waitsThroughKeysThatAreNoAnswerWithACursorThatBlinksAfterThePrompt)
{
    const QString key = ask(u"é\t\r"_s, 1, notGiven, [](ZRInkeyWindow &panel) {
        for (const Qt::Key silent : {Qt::Key_Shift, Qt::Key_Left, Qt::Key_F5}) {
            QTest::keyClick(&panel, silent);
        }
        repeatHeldKey(&panel, Qt::Key_Return);
        compose(&panel, u"è"_s);
        EXPECT_EQ(modalWindow(), &panel);
        const QPointer<QTimer> timer = panel.cursorTimer();
        EXPECT_EQ(timer->interval(), 500);
        EXPECT_GT(panel.cursorLabel()->x(), panel.promptLabel()->geometry().right());
        EXPECT_TRUE(panel.cursorLabel()->isVisible());
        EXPECT_TRUE(QTest::qWaitFor([&] { return panel.cursorLabel()->isHidden(); }));
        panel.windowDidBecomeKey();
        EXPECT_EQ(panel.cursorTimer(), timer) << "a second timer would toggle out of step";
        compose(&panel, u"é"_s);
        EXPECT_EQ(timer, nullptr) << "the cursor still blinks";
    });
    EXPECT_EQ(key, u"é"_s);
    EXPECT_TRUE(ask(u"é"_s, 1, notGiven, [&](ZRInkeyWindow &) { delete host; }).isNull()) << "its window was deleted";
}

} // namespace
