#include "runtime/app/alerts.h"

#include "runtime/app/alert.h"
#include "runtime/app/alert_delegate.h"
#include "runtime/app/application.h"
#include "runtime/app/menus.h"
#include "runtime/strings/error_object.h"
#include "tests/app/alert_helper.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>

#include <thread>

using namespace tetrad;

namespace {

using Answer = std::function<void(Alert *)>;

QStringList dialogEvents;

qint64 noteEvent(qint64 event, Tag tag, Tag wndTag, qint64 /*obj*/)
{
    dialogEvents << u"%1 %2 %3"_qs.arg(event).arg(tag).arg(wndTag);
    return 0;
}

class Alerts : public WindowTest
{
protected:
    void SetUp() override
    {
        dialogEvents.clear();
        CUI_SetOnDialogFunction(noteEvent);
    }
    void TearDown() override
    {
        EXPECT_TRUE(noAlertLeft());
        WindowTest::TearDown();
    }

    static void define(Tag tag, const QVariant &buttons = u"Quit;Play Again"_qs)
    {
        CUI_Alert(-tag, notGiven, u"Correct"_qs, u"You won!"_qs, buttons, notGiven);
    }
    static qint64 show(Tag tag) { return CUI_Alert(tag, notGiven, {}, {}, {}, notGiven); }
};

TEST_F(Alerts, ButtonsAreMadeOnceFromTheTitles)
{
    const Table<QVariant, QStringList> rows = {
        {"text", u"Quit;Play Again"_qs, {u"Quit"_qs, u"Play Again"_qs}},
        {"empty pieces", u"A;;B;"_qs, {u"A"_qs, u""_qs, u"B"_qs, u""_qs}},
        {"empty text", u""_qs, {u""_qs}},
        {"ampersand", u"Save & Quit"_qs, {u"Save & Quit"_qs}},
        {"list", QStringList{u"a;b"_qs}, {u"a;b"_qs}},
        {"list of variants", QVariantList{u"x"_qs, u"y"_qs}, {u"x"_qs, u"y"_qs}},
        {"none", QVariant(), {}},
        {"no text", QString(), {}},
        {"neither text nor list", 7, {}},
    };
    for (const auto &[name, buttons, titles] : rows) {
        define(5, buttons);
        EXPECT_EQ(titlesOf(CUI_AlertWithTag(5)), titles) << name;
        show(-5);
    }
}

Answer presses(Qt::Key key)
{
    return [key](Alert *alert) { pressKey(alert, key); };
}

// What must not answer comes first; the second button then ends the run.
Answer notBy(const Answer &first)
{
    return [first](Alert *alert) {
        first(alert);
        EXPECT_TRUE(alert->isVisible());
        clicks(1)(alert);
    };
}

TEST_F(Alerts, AnswerIsReturnedReportedAndForgotten)
{
    const auto tabThenReturn = [](Alert *alert) {
        pressKey(alert, Qt::Key_Tab);
        pressKey(alert, Qt::Key_Return);
    };
    const Table<Answer, qint64> rows = {
        {"click on the first", clicks(0), 1000},
        {"click on the second", clicks(1), 1001},
        {"Return presses the first", presses(Qt::Key_Return), 1000},
        {"Enter too", presses(Qt::Key_Enter), 1000},
        {"Tab moves what Return presses", tabThenReturn, 1001},
        {"not a held Return", notBy([](Alert *alert) { pressKey(alert, Qt::Key_Return, true); }), 1001},
        {"not a held space", notBy([](Alert *alert) { pressKey(alert, Qt::Key_Space, true); }), 1001},
        {"not Escape", notBy(presses(Qt::Key_Escape)), 1001},
        {"not a close request", notBy([](Alert *alert) { alert->close(); }), 1001},
        {"stopped by the program", [](Alert *) { stopModalWithCode(1001); }, 1001},
        {"aborted", [](Alert *) { abortModal(); }, 0},
    };
    for (const auto &[name, answer, code] : rows) {
        SCOPED_TRACE(name);
        dialogEvents.clear();
        define(2);
        whenAlertRuns([act = answer](Alert *alert) {
            EXPECT_EQ(alert->text(), u"Correct"_qs);
            EXPECT_EQ(alert->informativeText(), u"You won!"_qs);
            act(alert);
        });
        EXPECT_EQ(show(2), code);
        EXPECT_EQ(dialogEvents, QStringList{u"1000 %1 2"_qs.arg(code)});
        EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
    }
}

TEST_F(Alerts, KeyEquivalentPressesItsButton)
{
    // A code of 0: nothing happens.
    const Table<quint64, QString, Qt::Key, Qt::KeyboardModifiers, qint64> rows = {
        {"past the last button", 2, u"\033"_qs, Qt::Key_Escape, {}, 0},
        {"Escape on the second", 1, u"\033"_qs, Qt::Key_Escape, {}, 1001},
        {"Return on the second", 1, u"\r"_qs, Qt::Key_Return, {}, 1001},
        {"letter", 1, u"p"_qs, Qt::Key_P, {}, 1001},
        {"upper case needs Shift", 1, u"P"_qs, Qt::Key_P, {}, 0},
        {"upper case with Shift", 1, u"P"_qs, Qt::Key_P, Qt::ShiftModifier, 1001},
        {"space beats the focus", 1, u" "_qs, Qt::Key_Space, {}, 1001},
        {"no key takes Return away", 0, u""_qs, Qt::Key_Return, {}, 0},
        {"another key takes Return away", 0, u"q"_qs, Qt::Key_Return, {}, 0},
    };
    for (const auto &[name, index, key, pressed, modifiers, code] : rows) {
        SCOPED_TRACE(name);
        define(2);
        AlertButtonSetKeyEquivalent(2, index, key);
        AlertButtonSetKeyEquivalent(3, index, key); // no such alert
        whenAlertRuns([pressing = pressed, with = modifiers, answers = code != 0](Alert *alert) {
            pressKey(alert, pressing, true, with); // held down from before: never
            EXPECT_TRUE(alert->isVisible());
            pressKey(alert, pressing, false, with);
            if (!answers) {
                EXPECT_FALSE(alert->alertButtons().at(0)->isDown() || alert->alertButtons().at(1)->isDown());
                alert->dismiss();
            }
        });
        EXPECT_EQ(show(2), code);
    }
}

TEST_F(Alerts, UpdateKeepsWhatIsNotGivenAndNeverTouchesButtons)
{
    define(2);
    whenAlertRuns([](Alert *alert) {
        EXPECT_EQ(alert->text(), u"Correct"_qs);
        EXPECT_EQ(alert->informativeText(), u"a < b & <b>c</b>"_qs);
        EXPECT_EQ(alert->style(), alertStyleCritical);
        EXPECT_EQ(titlesOf(alert), (QStringList{u"Quit"_qs, u"Play Again"_qs}));
        for (const QLabel *label : alert->findChildren<QLabel *>()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
        }
        clicks(0)(alert);
    });
    EXPECT_EQ(CUI_Alert(2, alertStyleCritical, {}, u"a < b & <b>c</b>"_qs, u"X"_qs, 0), 1000);
    whenAlertRuns([](Alert *alert) {
        EXPECT_EQ(alert->text(), u""_qs) << "shown once it is forgotten";
        EXPECT_EQ(titlesOf(alert).size(), 1) << "the platform's own OK";
        clicks(0)(alert);
    });
    EXPECT_EQ(show(2), 1000);
}

TEST_F(Alerts, ErrorObjectGivesTheTextsAndTheButton)
{
    const ErrorObject described{u"disk"_qs, 28, u"The disk is full."_qs};
    const ErrorObject bare{u"disk"_qs, 28, {}};
    for (const ErrorObject &error : {described, bare}) {
        whenAlertRuns([&error](Alert *alert) {
            EXPECT_TRUE(alert->text().contains(error.description.isEmpty() ? u"disk error 28"_qs : error.description));
            EXPECT_EQ(alert->style(), alertStyleWarning);
            EXPECT_EQ(titlesOf(alert), QStringList{u"OK"_qs});
            clicks(0)(alert);
        });
        EXPECT_EQ(CUI_Alert(3, alertStyleCritical, QVariant::fromValue(error), u"unused"_qs, u"A;B"_qs, notGiven),
                  1000);
    }
}

TEST_F(Alerts, LongTextsStayOnTheScreenInFull)
{
    for (const QString &text : {QString(5000, u'x'), u"one line\n"_qs.repeated(2000)}) {
        whenAlertRuns([&text](Alert *alert) {
            const QSize screen = alert->screen()->availableSize();
            EXPECT_LE(alert->width(), screen.width());
            EXPECT_LE(alert->height(), screen.height());
            ASSERT_NE(alert->findChild<QPlainTextEdit *>(), nullptr);
            EXPECT_EQ(alert->findChild<QPlainTextEdit *>()->toPlainText(), text);
            pressKey(alert, Qt::Key_Return);
        });
        EXPECT_EQ(CUI_Alert(2, notGiven, u"Long"_qs, text, u"A;B"_qs, notGiven), 1000);
    }
}

TEST_F(Alerts, LinesThatHaveRoomAreNotBroken)
{
    const QString text = u"At line 128 of Game.zr\nIndex 98 is outside the range 0 to 97"_qs;
    whenAlertRuns([&text](Alert *alert) {
        for (const QLabel *label : alert->findChildren<QLabel *>()) {
            if (label->text() == text) {
                EXPECT_LE(label->heightForWidth(label->width()), label->heightForWidth(1000));
            }
        }
        clicks(0)(alert);
    });
    EXPECT_EQ(CUI_Alert(2, notGiven, u"!"_qs, text, u"A"_qs, notGiven), 1000);
}

TEST_F(Alerts, AreFoundByTheTagAsGivenAndByAddress)
{
    define(2);
    EXPECT_TRUE(CUI_AlertWithTag(2));
    EXPECT_EQ(CUI_AlertWithTag(tagFromObject(CUI_AlertWithTag(2))), CUI_AlertWithTag(2));
    EXPECT_TRUE(!CUI_AlertWithTag(-2) && !CUI_AlertWithTag(0));
    delete CUI_AlertWithTag(2);
    EXPECT_FALSE(CUI_AlertWithTag(2));

    Alert own;
    own.addAlertButton(u"A"_qs);
    own.addAlertButton(u"B"_qs);
    for (const int index : {1, 0}) {
        whenAlertRuns(clicks(index));
        EXPECT_EQ(show(tagFromObject(&own)), 1000 + index) << "the program's own is not forgotten";
    }
}

TEST_F(Alerts, DismissedUnshownWhileRunningOrBehindAnotherReportZero)
{
    define(2);
    EXPECT_EQ(show(-2), 0);
    EXPECT_EQ(std::exchange(dialogEvents, {}), QStringList{u"1000 0 2"_qs});
    EXPECT_EQ(CUI_AlertWithTag(2), nullptr);

    define(2);
    whenAlertRuns([](Alert *) { EXPECT_EQ(show(-2), 0); });
    EXPECT_EQ(show(2), 0);
    EXPECT_EQ(dialogEvents, (QStringList{u"1000 0 2"_qs, u"1000 0 2"_qs})) << "the dismissal and the run's end";

    define(2);
    define(3);
    whenAlertRuns([](Alert *) {
        whenAlertRuns(notBy([](Alert *) { show(-2); }));
        EXPECT_EQ(show(3), 1001);
    });
    EXPECT_EQ(show(2), 0);
}

TEST_F(Alerts, RunSurvivesTheDeletionOfItsAlertOrWindow)
{
    for (const bool wholeWindow : {false, true}) {
        const QPointer<Window> owner = open(1);
        define(2);
        whenAlertRuns([&](Alert *alert) {
            EXPECT_EQ(alert->parentWidget(), owner);
            delete (wholeWindow ? owner.data() : static_cast<QWidget *>(alert));
        });
        EXPECT_EQ(show(2), 0);
        EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
    }
}

TEST_F(Alerts, ShownAgainFromItsOwnRunBothRunsEndWithTheAnswer)
{
    define(2);
    whenAlertRuns([](Alert *) {
        whenAlertRuns(clicks(1));
        EXPECT_EQ(show(2), 1001);
    });
    EXPECT_EQ(show(2), 1001);
}

TEST_F(Alerts, SuppressionStateIsKeptByTheDelegate)
{
    for (const bool checked : {true, false}) {
        define(2);
        CUI_AlertWithTag(2)->setShowsSuppressionButton(true);
        whenAlertRuns([checked](Alert *alert) {
            EXPECT_EQ(alert->checkBox()->text(), u"Do not show this message again"_qs);
            alert->checkBox()->setChecked(checked);
            clicks(0)(alert);
        });
        show(2);
        EXPECT_EQ(CUI_AlertDelegateObj()->lastSuppressionButtonState(), checked ? 1 : 0);
    }
}

TEST_F(Alerts, HelpAsksTheDelegateAndLeavesTheAlertOpen)
{
    define(2);
    CUI_AlertWithTag(2)->setShowsHelp(true);
    whenAlertRuns(notBy([](Alert *alert) {
        alert->button(QMessageBox::Help)->click();
        EXPECT_EQ(dialogEvents, QStringList{u"1001 2 2"_qs});
        alert->setShowsHelp(false);
        EXPECT_EQ(alert->button(QMessageBox::Help), nullptr);
    }));
    CUI_DialogEventObj()->boolVal = true;
    EXPECT_EQ(show(2), 1001);
    EXPECT_FALSE(CUI_DialogEventObj()->boolVal) << "the answer is preset to no";
}

TEST_F(Alerts, SheetReturnsAtOnceAndReportsWhenAnsweredOrDismissed)
{
    whenAlertRuns(clicks(1));
    EXPECT_EQ(CUI_Alert(4, notGiven, u"Save?"_qs, {}, u"Save;Don't"_qs, 1), 1001) << "modal without a window";
    Window *const owner = open(1);
    auto *const behind = new QPushButton(owner->contentView());
    behind->show();
    const QSignalSpy presses(behind, &QPushButton::pressed);
    const auto pressBehind = [owner, behind] {
        QTest::mouseClick(owner->windowHandle(), Qt::LeftButton, {}, behind->mapTo(owner, behind->rect().center()));
    };
    const Table<Answer, QString> rows = {
        {"answered", clicks(1), u"1000 1001 4"_qs},
        {"dismissed", [](Alert *) { show(-4); }, u"1000 0 4"_qs},
    };
    for (const auto &[name, answer, reported] : rows) {
        SCOPED_TRACE(name);
        dialogEvents.clear();
        EXPECT_EQ(CUI_Alert(4, notGiven, u"Save?"_qs, {}, u"Save;Don't"_qs, 1), 0);
        Alert *const alert = CUI_AlertWithTag(4);
        ASSERT_TRUE(alert && alert->isRunningAsSheet() && alert->sheet());
        EXPECT_EQ(alert->parentWidget(), owner);
        EXPECT_EQ(show(4), 0) << "already shown";
        pressBehind();
        EXPECT_EQ(presses.count(), 0) << "its window takes no input";
        answer(alert);
        const QStringList told = dialogEvents.filter(QRegularExpression(u"^(1000|1000[012]) "_qs));
        EXPECT_EQ(told, (QStringList{u"10001 1 1"_qs, u"10000 1 1"_qs, u"10002 1 1"_qs, reported}));
        EXPECT_EQ(CUI_AlertWithTag(4), nullptr);
    }
    pressBehind();
    EXPECT_EQ(presses.count(), 1);
}

TEST_F(Alerts, QuitShortcutOverASheetAndQuitOfAWarningEndTheProgram)
{
    EXPECT_EXIT(
        {
            CocoaInit();
            whenAlertRuns(clicks(1));
            CUI_ShowAlert(alertStyleWarning, u"first"_qs, u"one"_qs);
            EXPECT_TRUE(QTest::qWaitFor([] { return false; }, 60000));
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EXIT(
        {
            CocoaInit();
            CUI_BuildMinimalMenu();
            open(1);
            CUI_Alert(4, notGiven, u"Save?"_qs, {}, u"Save;Don't"_qs, 1);
            Alert *const alert = CUI_AlertWithTag(4);
            EXPECT_TRUE(QTest::qWaitForWindowActive(alert));
            pressKey(alert, Qt::Key_Q, false, Qt::ControlModifier);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(Alerts, QueuedWarningsAppearOneAfterTheOther)
{
    QStringList seen;
    CUI_ShowAlert(alertStyleCritical, u"first"_qs, u"one"_qs);
    std::thread([] { CUI_ShowAlert(alertStyleWarning, u"second"_qs, u"two"_qs); }).join();
    EXPECT_EQ(modalWindow(), nullptr);
    const auto answer = [&seen](Alert *alert) {
        QCoreApplication::processEvents(); // serves the queue inside the first warning
        EXPECT_EQ(modalWindow(), alert);
        EXPECT_EQ(titlesOf(alert), (QStringList{u"OK"_qs, u"Quit"_qs}));
        EXPECT_EQ(alert->tag(), 0);
        seen << QString(alert->text() % u' ' % alert->informativeText() % QString::number(alert->style()));
        clicks(0)(alert);
    };
    whenAlertRuns([&](Alert *alert) {
        answer(alert);
        whenAlertRuns(answer);
    });
    EXPECT_TRUE(QTest::qWaitFor([&seen] { return seen.size() == 2 && noAlertLeft(); }));
    EXPECT_EQ(seen, (QStringList{u"first one2"_qs, u"second two0"_qs}));
    EXPECT_TRUE(dialogEvents.isEmpty());
}

} // namespace
