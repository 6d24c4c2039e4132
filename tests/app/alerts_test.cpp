#include <tetrad/app/alerts.h>

#include "tests/app/alert_helper.h"
#include <tetrad/app/alert.h>
#include <tetrad/app/application.h>
#include <tetrad/app/menus.h>
#include <tetrad/strings/error_object.h>

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QWindow>

#include <thread>

using namespace tetrad;
using namespace Qt::StringLiterals;

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

    static Alert *define(Tag tag, const QVariant &buttons = u"Quit;Play Again"_s)
    {
        CUI_Alert(-tag, notGiven, u"Correct"_s, u"You won!"_s, buttons, notGiven);
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
        {"text", u"Quit;Play Again"_s, {u"Quit"_s, u"Play Again"_s}},
        {"empty pieces", u"A;;B;"_s, {u"A"_s, u""_s, u"B"_s, u""_s}},
        {"ampersand", u"Save & Quit"_s, {u"Save & Quit"_s}},
        {"list", QStringList{u"a;b"_s}, {u"a;b"_s}},
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
        {"also to a button with a key of its own",
         [](Alert *alert) {
             AlertButtonSetKeyEquivalent(2, 1, u"\033"_s);
             pressKey(alert, Qt::Key_Tab), pressKey(alert, Qt::Key_Return);
         },
         1001},
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
        EXPECT_EQ(std::exchange(dialogCalls, {}), QStringList{u"1000 %1 2"_s.arg(code)});
        EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
    }
}

TEST_F(Alerts, KeyEquivalentPressesItsButton)
{
    // A code of 0: nothing happens.
    const Table<quint64, QString, Qt::Key, Qt::KeyboardModifiers, qint64> rows = {
        {"past the last button", 2, u"\033"_s, Qt::Key_Escape, {}, 0},
        {"Escape on the second", 1, u"\033"_s, Qt::Key_Escape, {}, 1001},
        {"letter", 1, u"p"_s, Qt::Key_P, {}, 1001},
        {"upper case needs Shift", 1, u"P"_s, Qt::Key_P, {}, 0},
        {"upper case with Shift", 1, u"P"_s, Qt::Key_P, Qt::ShiftModifier, 1001},
        {"space beats the focus", 1, u" "_s, Qt::Key_Space, {}, 1001},
        {"no key takes Return away", 0, u""_s, Qt::Key_Return, {}, 0},
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
        EXPECT_EQ(alert->text(), u"Correct"_s);
        EXPECT_EQ(alert->windowTitle(), u"Correct"_s);
        EXPECT_FALSE(alert->windowHandle()->flags() & Qt::WindowCloseButtonHint);
        EXPECT_EQ(alert->informativeText(), u"a < b & <b>c</b>"_s);
        EXPECT_EQ(alert->alertStyle(), alertStyleCritical);
        EXPECT_EQ(titlesOf(alert), (QStringList{u"Quit"_s, u"Play Again"_s}));
        for (const QLabel *label : alert->findChildren<QLabel *>()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
        }
        clicks(0)(alert);
    });
    EXPECT_EQ(CUI_Alert(2, alertStyleCritical, {}, u"a < b & <b>c</b>"_s, u"X"_s, 0), 1000);
}

TEST_F(Alerts, ErrorObjectGivesTheTextsAndTheButton)
{
    whenAlertRuns([](Alert *alert) {
        EXPECT_TRUE(alert->text().contains(u"The disk is full."_s));
        EXPECT_EQ(alert->alertStyle(), alertStyleWarning);
        EXPECT_EQ(titlesOf(alert), QStringList{u"OK"_s});
        clicks(0)(alert);
    });
    const auto error = QVariant::fromValue(ErrorObject{u"disk"_s, 28, u"The disk is full."_s});
    EXPECT_EQ(CUI_Alert(3, alertStyleCritical, error, u"unused"_s, u"A;B"_s, notGiven), 1000);
}

TEST_F(Alerts, TextsAreShownInFullLongOnesOnTheScreenShortOnesUnbroken)
{
    const QString shortText = u"At line 128 of Game.zr\nIndex 98 is outside the range 0 to 97"_s;
    for (const QString &text : {QString(5000, u'x'), u"one line\n"_s.repeated(2000), shortText}) {
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
        EXPECT_EQ(CUI_Alert(2, notGiven, u"!"_s, text, u"A;B"_s, notGiven), 1000);
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
    EXPECT_EQ(std::exchange(dialogCalls, {}), QStringList{u"1000 0 2"_s});

    define(2);
    EXPECT_EQ(show(2, [](Alert *) { dismiss(2); }), 0);
    EXPECT_EQ(dialogCalls, (QStringList{u"1000 0 2"_s, u"1000 0 2"_s})) << "the dismissal and the run's end";
}

TEST_F(Alerts, SuppressionStateIsKeptByTheDelegate)
{
    for (const bool checked : {true, false}) {
        define(2)->setShowsSuppressionButton(true);
        const auto check = [checked](Alert *alert) {
            EXPECT_EQ(alert->checkBox()->text(), u"Do not show this message again"_s);
            alert->checkBox()->setChecked(checked);
            clicks(0)(alert);
        };
        EXPECT_EQ(show(2, check), 1000);
        EXPECT_EQ(CUI_AlertDelegateObj()->lastSuppressionButtonState, checked ? 1 : 0);
    }
}

TEST_F(Alerts, HelpAsksTheDelegateAndLeavesTheAlertOpen)
{
    define(2)->setShowsHelp(true);
    CUI_DialogEventObj()->boolVal = true;
    const auto askForHelp = [](Alert *alert) {
        alert->button(QMessageBox::Help)->click();
        EXPECT_EQ(dialogCalls, QStringList{u"1001 2 2"_s});
        EXPECT_FALSE(CUI_DialogEventObj()->boolVal) << "the answer is preset to no";
    };
    EXPECT_EQ(show(2, notBy(askForHelp)), 1001);
}

qint64 askByASheet()
{
    return CUI_Alert(4, notGiven, u"Save?"_s, {}, u"Save;Don't"_s, 1);
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
    struct : CUI_AlertDelegate
    {
        void alertDidEnd(Alert *, qint64 code, void *) override { dialogCalls << u"1000 own %1"_s.arg(code); }
    } own;
    const Answer clicksForOwnDelegate = [&own](Alert *alert) {
        alert->setDelegate(&own);
        clicks(1)(alert);
    };
    const Table<Answer, QString> rows = {
        {"answered", clicks(1), u"1000 1001 4"_s},
        {"answered, with a delegate of its own", clicksForOwnDelegate, u"1000 own 1001"_s},
        {"dismissed", [](Alert *) { dismiss(4); }, u"1000 0 4"_s},
    };
    for (const auto &[name, answer, reported] : rows) {
        SCOPED_TRACE(name);
        dialogCalls.clear();
        EXPECT_EQ(askByASheet(), 0);
        Alert *const alert = CUI_AlertWithTag(4);
        ASSERT_TRUE(alert && alert->isRunningAsSheet() && alert->parentWidget() == owner);
        EXPECT_EQ(alert->windowHandle()->flags() & (Qt::WindowType_Mask | Qt::WindowCloseButtonHint), Qt::Sheet);
        EXPECT_EQ(askByASheet(), 0) << "already shown";
        pressBehind();
        EXPECT_EQ(pressed.count(), 0) << "its window takes no input";
        answer(alert);
        const QStringList told = dialogCalls.filter(QRegularExpression(u"^(1000|1000[012]) "_s));
        EXPECT_EQ(told, (QStringList{u"10001 1 1"_s, u"10000 1 1"_s, u"10002 1 1"_s, reported}));
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
    CUI_ShowAlert(alertStyleCritical, u"first"_s, u"one"_s);
    std::thread([] { CUI_ShowAlert(alertStyleWarning, u"second"_s, u"two"_s); }).join();
    const auto answer = [&seen](Alert *alert) {
        QCoreApplication::processEvents(); // serves the queue inside the first warning
        EXPECT_EQ(modalWindow(), alert);
        EXPECT_EQ(titlesOf(alert), (QStringList{u"OK"_s, u"Quit"_s}));
        seen << QString(alert->text() % u' ' % alert->informativeText() % QString::number(alert->alertStyle()));
        clicks(0)(alert);
    };
    whenAlertRuns([&](Alert *alert) {
        answer(alert);
        whenAlertRuns(answer);
    });
    EXPECT_TRUE(QTest::qWaitFor([&seen] { return seen.size() == 2 && noAlertLeft(); }));
    EXPECT_EQ(seen, (QStringList{u"first one2"_s, u"second two0"_s}));
    EXPECT_TRUE(dialogCalls.isEmpty());
}

} // namespace
