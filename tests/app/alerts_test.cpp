#include "runtime/app/alerts.h"

#include "runtime/app/alert.h"
#include "runtime/app/alert_delegate.h"
#include "runtime/app/application.h"
#include "runtime/app/window.h"
#include "runtime/app/windows.h"
#include "runtime/controls/dialog_event.h"
#include "runtime/strings/error_object.h"
#include "runtime/strings/not_given.h"
#include "tests/app/alert_helper.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>

#include <gtest/gtest.h>

#include <thread>

namespace tetrad {

namespace {

using namespace testing_helpers;

QStringList dialogEvents;

qint64 noteEvent(qint64 event, Tag tag, Tag wndTag, qint64 /*obj*/)
{
    dialogEvents << u"%1 %2 %3"_qs.arg(event).arg(tag).arg(wndTag);
    return 0;
}

class Alerts : public testing::Test
{
protected:
    void SetUp() override
    {
        dialogEvents.clear();
        CUI_SetOnDialogFunction(noteEvent);
    }
    void TearDown() override
    {
        CUI_SetOnDialogFunction(nullptr);
        EXPECT_TRUE(noAlertLeft());
    }

    static void define(Tag tag, const QVariant &buttons)
    {
        CUI_Alert(-tag, notGiven, u"Correct"_qs, u"You won!"_qs, buttons, notGiven);
    }
    static qint64 show(Tag tag) { return CUI_Alert(tag, notGiven, {}, {}, {}, notGiven); }
};

struct ButtonsRow
{
    const char *name;
    QVariant buttons;
    QStringList titles;
};

class AlertButtons : public Alerts, public testing::WithParamInterface<ButtonsRow>
{};

TEST_P(AlertButtons, AreMadeOnceFromTheTitles)
{
    define(5, GetParam().buttons);
    EXPECT_EQ(titlesOf(CUI_AlertWithTag(5)), GetParam().titles);
    show(-5);
}

INSTANTIATE_TEST_SUITE_P(Titles, AlertButtons,
                         testing::Values(ButtonsRow{"text", u"Quit;Play Again"_qs, {u"Quit"_qs, u"Play Again"_qs}},
                                         ButtonsRow{"emptyPieces", u"A;;B;"_qs, {u"A"_qs, u""_qs, u"B"_qs, u""_qs}},
                                         ButtonsRow{"emptyText", u""_qs, {u""_qs}},
                                         ButtonsRow{"ampersand", u"Save & Quit"_qs, {u"Save & Quit"_qs}},
                                         ButtonsRow{"list", QStringList{u"a;b"_qs}, {u"a;b"_qs}},
                                         ButtonsRow{"variants", QVariantList{u"x"_qs, u"y"_qs}, {u"x"_qs, u"y"_qs}},
                                         ButtonsRow{"null", QVariant(), {}}, ButtonsRow{"nullText", QString(), {}},
                                         ButtonsRow{"otherKind", 7, {}}),
                         [](const auto &row) { return std::string(row.param.name); });

struct AnswerRow
{
    const char *name;
    std::function<void(Alert *)> answer;
    qint64 code;
};

class AlertAnswer : public Alerts, public testing::WithParamInterface<AnswerRow>
{};

TEST_P(AlertAnswer, IsReturnedReportedAndForgotten)
{
    define(2, u"Quit;Play Again"_qs);
    whenAlertRuns([](Alert *alert) {
        EXPECT_EQ(alert->text(), u"Correct"_qs);
        EXPECT_EQ(alert->informativeText(), u"You won!"_qs);
        GetParam().answer(alert);
    });
    EXPECT_EQ(show(2), GetParam().code);
    EXPECT_EQ(dialogEvents, QStringList{u"1000 %1 2"_qs.arg(GetParam().code)});
    EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
}

// Whatever must not answer comes first and the second button then ends the run.
void thenSecond(Alert *alert)
{
    EXPECT_TRUE(alert->isVisible());
    alert->alertButtons().at(1)->click();
}

INSTANTIATE_TEST_SUITE_P(
    Ways, AlertAnswer,
    testing::Values(AnswerRow{"clickFirst", [](Alert *alert) { alert->alertButtons().at(0)->click(); }, 1000},
                    AnswerRow{"clickSecond", [](Alert *alert) { alert->alertButtons().at(1)->click(); }, 1001},
                    AnswerRow{"returnPressesFirst", [](Alert *alert) { pressKey(alert, Qt::Key_Return); }, 1000},
                    AnswerRow{"enterPressesFirst", [](Alert *alert) { pressKey(alert, Qt::Key_Enter); }, 1000},
                    AnswerRow{"tabThenReturn",
                              [](Alert *alert) {
                                  pressKey(alert, Qt::Key_Tab);
                                  pressKey(alert, Qt::Key_Return);
                              },
                              1001},
                    AnswerRow{"heldReturn",
                              [](Alert *alert) {
                                  pressKey(alert, Qt::Key_Return, true);
                                  thenSecond(alert);
                              },
                              1001},
                    AnswerRow{"heldSpace",
                              [](Alert *alert) {
                                  pressKey(alert, Qt::Key_Space, true);
                                  thenSecond(alert);
                              },
                              1001},
                    AnswerRow{"escape",
                              [](Alert *alert) {
                                  pressKey(alert, Qt::Key_Escape);
                                  thenSecond(alert);
                              },
                              1001},
                    AnswerRow{"closeRequest",
                              [](Alert *alert) {
                                  alert->close();
                                  thenSecond(alert);
                              },
                              1001},
                    AnswerRow{"stoppedByTheProgram", [](Alert *) { stopModalWithCode(1001); }, 1001},
                    AnswerRow{"aborted", [](Alert *) { abortModal(); }, 0}),
    [](const auto &row) { return std::string(row.param.name); });

struct KeyRow
{
    const char *name;
    quint64 index;
    QString key;
    Qt::Key pressed;
    Qt::KeyboardModifiers modifiers;
    qint64 code; // 0: nothing happens
};

class AlertKey : public Alerts, public testing::WithParamInterface<KeyRow>
{};

TEST_P(AlertKey, PressesItsButton)
{
    const KeyRow &row = GetParam();
    define(2, u"Quit;Play Again"_qs);
    AlertButtonSetKeyEquivalent(2, row.index, row.key);
    AlertButtonSetKeyEquivalent(3, row.index, row.key); // no such alert
    whenAlertRuns([&row](Alert *alert) {
        pressKey(alert, row.pressed, true, row.modifiers); // held down from before: never
        EXPECT_TRUE(QTest::qWaitFor([alert] { return alert->isVisible(); }));
        pressKey(alert, row.pressed, false, row.modifiers);
        if (row.code == 0) {
            EXPECT_FALSE(alert->alertButtons().at(0)->isDown() || alert->alertButtons().at(1)->isDown());
            alert->dismiss();
        }
    });
    EXPECT_EQ(show(2), row.code);
}

INSTANTIATE_TEST_SUITE_P(Keys, AlertKey,
                         testing::Values(KeyRow{"pastTheLastButton", 2, u"\033"_qs, Qt::Key_Escape, {}, 0},
                                         KeyRow{"negativeIndex", quint64(-1), u"\033"_qs, Qt::Key_Escape, {}, 0},
                                         KeyRow{"escapeOnSecond", 1, u"\033"_qs, Qt::Key_Escape, {}, 1001},
                                         KeyRow{"returnOnSecond", 1, u"\r"_qs, Qt::Key_Return, {}, 1001},
                                         KeyRow{"letter", 1, u"p"_qs, Qt::Key_P, {}, 1001},
                                         KeyRow{"upperCaseNeedsShift", 1, u"P"_qs, Qt::Key_P, {}, 0},
                                         KeyRow{"upperCaseWithShift", 1, u"P"_qs, Qt::Key_P, Qt::ShiftModifier, 1001},
                                         KeyRow{"spaceBeatsTheFocus", 1, u" "_qs, Qt::Key_Space, {}, 1001},
                                         KeyRow{"noKeyTakesReturnAway", 0, u""_qs, Qt::Key_Return, {}, 0},
                                         KeyRow{"anotherKeyTakesReturnAway", 0, u"q"_qs, Qt::Key_Return, {}, 0}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(Alerts, UpdateKeepsWhatIsNotGivenAndNeverTouchesButtons)
{
    define(2, u"Quit;Play Again"_qs);
    whenAlertRuns([](Alert *alert) {
        EXPECT_EQ(alert->text(), u"Correct"_qs);
        EXPECT_EQ(alert->informativeText(), u"a < b & <b>c</b>"_qs);
        EXPECT_EQ(alert->style(), alertStyleCritical);
        EXPECT_EQ(titlesOf(alert), (QStringList{u"Quit"_qs, u"Play Again"_qs}));
        for (const QLabel *label : alert->findChildren<QLabel *>()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
        }
        alert->alertButtons().at(0)->click();
    });
    EXPECT_EQ(CUI_Alert(2, alertStyleCritical, {}, u"a < b & <b>c</b>"_qs, u"X"_qs, 0), 1000);
}

TEST_F(Alerts, ShownTwiceWithoutRedefiningIsEmptyWithOneOkButton)
{
    for (const QString &text : {u"Correct"_qs, u""_qs}) {
        if (!text.isEmpty()) {
            define(2, u"Quit;Play Again"_qs);
        }
        whenAlertRuns([&text](Alert *alert) {
            EXPECT_EQ(alert->text(), text);
            EXPECT_EQ(titlesOf(alert).size(), text.isEmpty() ? 1 : 2);
            alert->alertButtons().back()->click();
        });
        EXPECT_EQ(show(2), text.isEmpty() ? 1000 : 1001);
    }
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
            alert->alertButtons().at(0)->click();
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

TEST_F(Alerts, LookupByTagComparesAsGivenAndTakesAddresses)
{
    define(2, u"A"_qs);
    Alert *const alert = CUI_AlertWithTag(2);
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(CUI_AlertWithTag(tagFromObject(alert)), alert);
    EXPECT_EQ(CUI_AlertWithTag(-2), nullptr);
    EXPECT_EQ(CUI_AlertWithTag(0), nullptr);
    delete alert;
    EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
}

TEST_F(Alerts, AProgramsOwnAlertIsShownByAddressAndStaysItsOwn)
{
    Alert alert;
    alert.addAlertButton(u"A"_qs);
    alert.addAlertButton(u"B"_qs);
    for (const int index : {1, 0}) {
        whenAlertRuns([index](Alert *shown) { shown->alertButtons().at(index)->click(); });
        EXPECT_EQ(show(tagFromObject(&alert)), 1000 + index);
    }
}

TEST_F(Alerts, DismissedUnshownReportsZero)
{
    define(2, u"A"_qs);
    EXPECT_EQ(show(-2), 0);
    EXPECT_EQ(dialogEvents, QStringList{u"1000 0 2"_qs});
    EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
}

TEST_F(Alerts, DismissedWhileRunningEndsTheRunAndReportsBoth)
{
    define(2, u"A;B"_qs);
    whenAlertRuns([](Alert *) { EXPECT_EQ(show(-2), 0); });
    EXPECT_EQ(show(2), 0);
    EXPECT_EQ(dialogEvents, (QStringList{u"1000 0 2"_qs, u"1000 0 2"_qs}));
}

TEST_F(Alerts, RunSurvivesTheDeletionOfItsAlertOrWindow)
{
    for (const bool wholeWindow : {false, true}) {
        CUI_Window(1, u"Owner"_qs, notGiven, {});
        define(2, u"A;B"_qs);
        whenAlertRuns([wholeWindow](Alert *alert) {
            EXPECT_EQ(alert->parentWidget(), CUI_WindowWithTag(1));
            delete (wholeWindow ? alert->parentWidget() : alert);
        });
        EXPECT_EQ(show(2), 0);
        EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
        if (!wholeWindow) {
            delete CUI_WindowWithTag(1);
        }
    }
}

TEST_F(Alerts, ShownAgainFromItsOwnRunBothRunsEndWithTheAnswer)
{
    define(2, u"A;B"_qs);
    qint64 inner = 0;
    whenAlertRuns([&inner](Alert *) {
        whenAlertRuns([](Alert *alert) { alert->alertButtons().at(1)->click(); });
        inner = show(2);
    });
    EXPECT_EQ(show(2), 1001);
    EXPECT_EQ(inner, 1001);
}

TEST_F(Alerts, DismissedBehindAnotherAlertEndsWhenItsTurnComes)
{
    define(2, u"A;B"_qs);
    define(3, u"C;D"_qs);
    whenAlertRuns([](Alert *) {
        whenAlertRuns([](Alert *alert) {
            show(-2);
            EXPECT_TRUE(alert->isVisible());
            alert->alertButtons().at(1)->click();
        });
        EXPECT_EQ(show(3), 1001);
    });
    EXPECT_EQ(show(2), 0);
}

TEST_F(Alerts, SuppressionStateIsKeptByTheDelegate)
{
    for (const bool checked : {true, false}) {
        define(2, u"A"_qs);
        CUI_AlertWithTag(2)->setShowsSuppressionButton(true);
        whenAlertRuns([checked](Alert *alert) {
            EXPECT_EQ(alert->checkBox()->text(), u"Do not show this message again"_qs);
            alert->checkBox()->setChecked(checked);
            pressKey(alert, Qt::Key_Return);
        });
        show(2);
        EXPECT_EQ(CUI_AlertDelegateObj()->lastSuppressionButtonState(), checked ? 1 : 0);
    }
}

TEST_F(Alerts, HelpAsksTheDelegateAndLeavesTheAlertOpen)
{
    define(2, u"A;B"_qs);
    CUI_AlertWithTag(2)->setShowsHelp(true);
    whenAlertRuns([](Alert *alert) {
        alert->button(QMessageBox::Help)->click();
        EXPECT_EQ(dialogEvents, QStringList{u"1001 2 2"_qs});
        alert->setShowsHelp(false);
        EXPECT_EQ(alert->button(QMessageBox::Help), nullptr);
        thenSecond(alert);
    });
    CUI_DialogEventObj()->boolVal = true;
    EXPECT_EQ(show(2), 1001);
    EXPECT_FALSE(CUI_DialogEventObj()->boolVal) << "the answer is preset to no";
}

TEST_F(Alerts, SheetReturnsAtOnceAndReportsWhenAnswered)
{
    CUI_Window(1, u"Owner"_qs, notGiven, {});
    dialogEvents.clear();
    EXPECT_EQ(CUI_Alert(4, notGiven, u"Save?"_qs, {}, u"Save;Don't"_qs, 1), 0);
    Alert *const alert = CUI_AlertWithTag(4);
    ASSERT_TRUE(alert && alert->isRunningAsSheet());
    EXPECT_TRUE(alert->sheet());
    EXPECT_EQ(alert->parentWidget(), CUI_WindowWithTag(1));
    EXPECT_EQ(show(4), 0) << "already shown";
    alert->alertButtons().at(1)->click();
    QStringList told;
    for (const QString &event : std::as_const(dialogEvents)) {
        if (event.startsWith(u"1000 ") || event.startsWith(u"10000 ") || event.startsWith(u"10001 ") ||
            event.startsWith(u"10002 ")) {
            told << event;
        }
    }
    EXPECT_EQ(told, (QStringList{u"10001 1 1"_qs, u"10000 1 1"_qs, u"10002 1 1"_qs, u"1000 1001 4"_qs}));
    EXPECT_EQ(CUI_AlertWithTag(4), nullptr);
    delete CUI_WindowWithTag(1);
}

TEST_F(Alerts, SheetDismissedReportsOnlyTheDismissal)
{
    CUI_Window(1, u"Owner"_qs, notGiven, {});
    CUI_Alert(4, notGiven, u"Save?"_qs, {}, u"Save"_qs, 1);
    dialogEvents.clear();
    show(-4);
    EXPECT_EQ(dialogEvents.filter(u"1000 0 4"_qs).size(), 1);
    delete CUI_WindowWithTag(1);
}

TEST_F(Alerts, SheetWithoutAWindowRunsModally)
{
    whenAlertRuns(thenSecond);
    EXPECT_EQ(CUI_Alert(4, notGiven, u"Save?"_qs, {}, u"Save;Don't"_qs, 1), 1001);
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
        alert->alertButtons().at(0)->click();
    };
    whenAlertRuns([&](Alert *alert) {
        answer(alert);
        whenAlertRuns(answer);
    });
    EXPECT_TRUE(QTest::qWaitFor([&seen] { return seen.size() == 2 && noAlertLeft(); }));
    EXPECT_EQ(seen, (QStringList{u"first one2"_qs, u"second two0"_qs}));
    EXPECT_TRUE(dialogEvents.isEmpty());
}

TEST_F(Alerts, QuitOfAWarningEndsTheProgram)
{
    EXPECT_EXIT(
        {
            CocoaInit();
            whenAlertRuns(thenSecond);
            CUI_ShowAlert(alertStyleWarning, u"first"_qs, u"one"_qs);
            EXPECT_TRUE(QTest::qWaitFor([] { return false; }, 60000));
        },
        testing::ExitedWithCode(0), "");
}

} // namespace

} // namespace tetrad
