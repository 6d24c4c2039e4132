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

class Alerts : public WindowTest
{
protected:
    void SetUp() override { CUI_SetOnDialogFunction(recordCall); }
    void TearDown() override
    {
        EXPECT_TRUE(noAlertLeft());
        WindowTest::TearDown();
    }

    static Alert *define(Tag tag, const QVariant &buttons = u"Quit;Play Again"_qs)
    {
        CUI_Alert(-tag, notGiven, u"Correct"_qs, u"You won!"_qs, buttons, notGiven);
        return CUI_AlertWithTag(tag);
    }
    // The result of the alert, shown and answered so.
    static qint64 show(Tag tag, const Answer &answer)
    {
        whenAlertRuns(answer);
        return CUI_Alert(tag, notGiven, {}, {}, {}, notGiven);
    }
    static void dismiss(Tag tag) { EXPECT_EQ(CUI_Alert(-tag, notGiven, {}, {}, {}, notGiven), 0); }
};

TEST_F(Alerts, ButtonsAreMadeOnceFromTheTitles)
{
    const Table<QVariant, QStringList> rows = {
        {"text", u"Quit;Play Again"_qs, {u"Quit"_qs, u"Play Again"_qs}},
        {"empty pieces", u"A;;B;"_qs, {u"A"_qs, u""_qs, u"B"_qs, u""_qs}},
        {"ampersand", u"Save & Quit"_qs, {u"Save & Quit"_qs}},
        {"list", QStringList{u"a;b"_qs}, {u"a;b"_qs}},
    };
    for (const auto &[name, buttons, titles] : rows) {
        EXPECT_EQ(titlesOf(define(5, buttons)), titles) << name;
        dismiss(5);
    }
}

TEST_F(Alerts, AnswerIsReturnedReportedAndForgotten)
{
    const Table<Answer, qint64> rows = {
        {"click on the first", clicks(0), 1000},
        {"click on the second", clicks(1), 1001},
        {"Return presses the first", presses(Qt::Key_Return), 1000},
        {"Enter too", presses(Qt::Key_Enter), 1000},
        {"Tab moves what Return presses",
         [](Alert *alert) { pressKey(alert, Qt::Key_Tab), pressKey(alert, Qt::Key_Return); }, 1001},
        {"not a held Return", notBy([](Alert *alert) { pressKey(alert, Qt::Key_Return, true); }), 1001},
        {"not a held space", notBy([](Alert *alert) { pressKey(alert, Qt::Key_Space, true); }), 1001},
        {"not Escape", notBy(presses(Qt::Key_Escape)), 1001},
        {"not a close request", notBy([](Alert *alert) { alert->close(); }), 1001},
        {"stopped by the program", [](Alert *) { stopModalWithCode(1001); }, 1001},
        {"aborted", [](Alert *) { abortModal(); }, 0},
        {"deleted", [](const Alert *alert) { delete alert; }, 0},
    };
    for (const auto &[name, answer, code] : rows) {
        SCOPED_TRACE(name);
        define(2);
        EXPECT_EQ(show(2, answer), code);
        EXPECT_EQ(std::exchange(dialogCalls, {}), QStringList{u"1000 %1 2"_qs.arg(code)});
        EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
    }
}

TEST_F(Alerts, KeyEquivalentPressesItsButton)
{
    // A code of 0: nothing happens.
    const Table<quint64, QString, Qt::Key, Qt::KeyboardModifiers, qint64> rows = {
        {"past the last button", 2, u"\033"_qs, Qt::Key_Escape, {}, 0},
        {"Escape on the second", 1, u"\033"_qs, Qt::Key_Escape, {}, 1001},
        {"letter", 1, u"p"_qs, Qt::Key_P, {}, 1001},
        {"upper case needs Shift", 1, u"P"_qs, Qt::Key_P, {}, 0},
        {"upper case with Shift", 1, u"P"_qs, Qt::Key_P, Qt::ShiftModifier, 1001},
        {"space beats the focus", 1, u" "_qs, Qt::Key_Space, {}, 1001},
        {"no key takes Return away", 0, u""_qs, Qt::Key_Return, {}, 0},
    };
    for (const auto &[name, index, key, pressed, modifiers, code] : rows) {
        SCOPED_TRACE(name);
        define(2);
        AlertButtonSetKeyEquivalent(2, index, key);
        const auto press = [pressing = pressed, with = modifiers, answers = code != 0](Alert *alert) {
            pressKey(alert, pressing, true, with); // held down from before: never
            EXPECT_TRUE(alert->isVisible());
            pressKey(alert, pressing, false, with);
            if (!answers) {
                alert->dismiss();
            }
        };
        EXPECT_EQ(show(2, press), code);
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
}

TEST_F(Alerts, ErrorObjectGivesTheTextsAndTheButton)
{
    whenAlertRuns([](Alert *alert) {
        EXPECT_TRUE(alert->text().contains(u"The disk is full."_qs));
        EXPECT_EQ(alert->style(), alertStyleWarning);
        EXPECT_EQ(titlesOf(alert), QStringList{u"OK"_qs});
        clicks(0)(alert);
    });
    const auto error = QVariant::fromValue(ErrorObject{u"disk"_qs, 28, u"The disk is full."_qs});
    EXPECT_EQ(CUI_Alert(3, alertStyleCritical, error, u"unused"_qs, u"A;B"_qs, notGiven), 1000);
}

TEST_F(Alerts, TextsAreShownInFullLongOnesOnTheScreenShortOnesUnbroken)
{
    const QString shortText = u"At line 128 of Game.zr\nIndex 98 is outside the range 0 to 97"_qs;
    for (const QString &text : {QString(5000, u'x'), u"one line\n"_qs.repeated(2000), shortText}) {
        whenAlertRuns([&](Alert *alert) {
            const QSize screen = alert->screen()->availableSize();
            EXPECT_EQ(alert->size().boundedTo(screen), alert->size());
            const auto *const scrolled = alert->findChild<QPlainTextEdit *>();
            EXPECT_EQ(scrolled ? scrolled->toPlainText() : shortText, text);
            for (const QLabel *label : alert->findChildren<QLabel *>()) {
                if (label->text() == shortText) {
                    EXPECT_LE(label->heightForWidth(label->width()), label->heightForWidth(1000));
                }
            }
            pressKey(alert, Qt::Key_Return);
        });
        EXPECT_EQ(CUI_Alert(2, notGiven, u"!"_qs, text, u"A;B"_qs, notGiven), 1000);
    }
}

TEST_F(Alerts, AreFoundByTheTagAsGivenAndByAddress)
{
    Alert *const defined = define(2);
    EXPECT_EQ(CUI_AlertWithTag(tagFromObject(defined)), defined);
    EXPECT_TRUE(!CUI_AlertWithTag(-2) && !CUI_AlertWithTag(0));
    delete defined;
    EXPECT_FALSE(CUI_AlertWithTag(2));
}

TEST_F(Alerts, DismissedUnshownOrWhileRunningReportsZero)
{
    define(2);
    dismiss(2);
    EXPECT_EQ(std::exchange(dialogCalls, {}), QStringList{u"1000 0 2"_qs});

    define(2);
    EXPECT_EQ(show(2, [](Alert *) { dismiss(2); }), 0);
    EXPECT_EQ(dialogCalls, (QStringList{u"1000 0 2"_qs, u"1000 0 2"_qs})) << "the dismissal and the run's end";
}

TEST_F(Alerts, SuppressionStateIsKeptByTheDelegate)
{
    for (const bool checked : {true, false}) {
        define(2)->setShowsSuppressionButton(true);
        const auto check = [checked](Alert *alert) {
            EXPECT_EQ(alert->checkBox()->text(), u"Do not show this message again"_qs);
            alert->checkBox()->setChecked(checked);
            clicks(0)(alert);
        };
        EXPECT_EQ(show(2, check), 1000);
        EXPECT_EQ(CUI_AlertDelegateObj()->lastSuppressionButtonState(), checked ? 1 : 0);
    }
}

TEST_F(Alerts, HelpAsksTheDelegateAndLeavesTheAlertOpen)
{
    define(2)->setShowsHelp(true);
    CUI_DialogEventObj()->boolVal = true;
    const auto askForHelp = [](Alert *alert) {
        alert->button(QMessageBox::Help)->click();
        EXPECT_EQ(dialogCalls, QStringList{u"1001 2 2"_qs});
        EXPECT_FALSE(CUI_DialogEventObj()->boolVal) << "the answer is preset to no";
    };
    EXPECT_EQ(show(2, notBy(askForHelp)), 1001);
}

qint64 askByASheet()
{
    return CUI_Alert(4, notGiven, u"Save?"_qs, {}, u"Save;Don't"_qs, 1);
}

TEST_F(Alerts, SheetReturnsAtOnceAndReportsWhenAnsweredOrDismissed)
{
    Window *const owner = open(1);
    auto *const behind = new QPushButton(owner->contentView());
    behind->show();
    const QSignalSpy pressed(behind, &QPushButton::pressed);
    const auto pressBehind = [owner, behind] {
        QTest::mouseClick(owner->windowHandle(), Qt::LeftButton, {}, behind->mapTo(owner, behind->rect().center()));
    };
    const Table<Answer, QString> rows = {
        {"answered", clicks(1), u"1000 1001 4"_qs},
        {"dismissed", [](Alert *) { dismiss(4); }, u"1000 0 4"_qs},
    };
    for (const auto &[name, answer, reported] : rows) {
        SCOPED_TRACE(name);
        dialogCalls.clear();
        EXPECT_EQ(askByASheet(), 0);
        Alert *const alert = CUI_AlertWithTag(4);
        ASSERT_TRUE(alert && alert->isRunningAsSheet() && alert->parentWidget() == owner);
        EXPECT_EQ(askByASheet(), 0) << "already shown";
        pressBehind();
        EXPECT_EQ(pressed.count(), 0) << "its window takes no input";
        answer(alert);
        const QStringList told = dialogCalls.filter(QRegularExpression(u"^(1000|1000[012]) "_qs));
        EXPECT_EQ(told, (QStringList{u"10001 1 1"_qs, u"10000 1 1"_qs, u"10002 1 1"_qs, reported}));
        EXPECT_EQ(CUI_AlertWithTag(4), nullptr);
    }
    pressBehind();
    EXPECT_EQ(pressed.count(), 1);
}

void quitOverASheet()
{
    CocoaInit();
    CUI_BuildMinimalMenu();
    open(1);
    askByASheet();
    EXPECT_TRUE(QTest::qWaitForWindowActive(CUI_AlertWithTag(4)));
    pressKey(CUI_AlertWithTag(4), Qt::Key_Q, false, Qt::ControlModifier);
}

TEST_F(Alerts, QuitShortcutOverASheetEndsTheProgram)
{
    EXPECT_EXIT(quitOverASheet(), testing::ExitedWithCode(0), "");
}

TEST_F(Alerts, QueuedWarningsAppearOneAfterTheOther)
{
    QStringList seen;
    CUI_ShowAlert(alertStyleCritical, u"first"_qs, u"one"_qs);
    std::thread([] { CUI_ShowAlert(alertStyleWarning, u"second"_qs, u"two"_qs); }).join();
    const auto answer = [&seen](Alert *alert) {
        QCoreApplication::processEvents(); // serves the queue inside the first warning
        EXPECT_EQ(modalWindow(), alert);
        EXPECT_EQ(titlesOf(alert), (QStringList{u"OK"_qs, u"Quit"_qs}));
        seen << QString(alert->text() % u' ' % alert->informativeText() % QString::number(alert->style()));
        clicks(0)(alert);
    };
    whenAlertRuns([&](Alert *alert) {
        answer(alert);
        whenAlertRuns(answer);
    });
    EXPECT_TRUE(QTest::qWaitFor([&seen] { return seen.size() == 2 && noAlertLeft(); }));
    EXPECT_EQ(seen, (QStringList{u"first one2"_qs, u"second two0"_qs}));
    EXPECT_TRUE(dialogCalls.isEmpty());
}

} // namespace
