#include "tests/support/windows.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalSpy>

#include <thread>

using namespace tetrad;

namespace {

/// A real key press and release for whatever has the focus in the alert; `held` makes it one repetition of
/// a key that was already down.
Answer presses(Qt::Key key, bool held = false, Qt::KeyboardModifiers modifiers = {})
{
    return [=](Alert *alert) {
        const QPointer<QWidget> target = alert->focusWidget() ? alert->focusWidget() : alert;
        const QString text = key >= Qt::Key_A && key <= Qt::Key_Z ? QString(QChar(char16_t(key))) : QString();
        for (const bool isPress : {true, false}) {
            if (target) {
                QTest::simulateEvent(target, isPress, key, modifiers, text, held);
            }
        }
    };
}

// What must not answer comes first; the second button then ends the run.
Answer notBy(const Answer &first)
{
    return [first](Alert *alert) {
        first(alert);
        EXPECT_TRUE(alert->isVisible() && !alert->alertButtons().at(1)->isDown());
        clicks(1)(alert);
    };
}

QString lookOf(const Alert *alert)
{
    const QString texts = alert->text() % u'|' % alert->informativeText() % u'|';
    return texts % QString::number(alert->alertStyle()) % u'|' % titlesOf(alert).join(u'/');
}

class Alerts : public WindowTest
{
protected:
    void SetUp() override { CUI_SetOnDialogFunction(recordCall); }

    static Alert *define(Tag tag, const QVariant &buttons = u"Quit;Play Again"_s)
    {
        CUI_Alert(-tag, notGiven, u"Correct"_s, u"You won!"_s, buttons, notGiven);
        return CUI_AlertWithTag(tag);
    }
    // The result of the alert, shown and answered so.
    static qint64 show(Tag tag, const Answer &answer)
    {
        whenRuns<Alert>(answer);
        return CUI_Alert(tag, notGiven, {}, {}, {}, 0);
    }
    static void dismiss(Tag tag) { EXPECT_EQ(CUI_Alert(-tag, notGiven, {}, {}, {}, notGiven), 0); }
};

TEST_F(Alerts, AnswerIsReturnedReportedAndForgotten)
{
    const auto tabAndReturn = [](Alert *alert) {
        presses(Qt::Key_Tab)(alert);
        presses(Qt::Key_Return)(alert);
    };
    const auto runAgain = [](Alert *alert) { whenRuns<Alert>(clicks(1)), alert->runModal(nullptr); };
    // A button, the key that it is given unless that is null, what happens then, and the code.
    const Table<quint64, QString, Answer, qint64> rows = {
        {"click on the first", 0, {}, clicks(0), 1000},
        {"click on the second", 0, {}, clicks(1), 1001},
        {"Return presses the first", 0, {}, presses(Qt::Key_Return), 1000},
        {"Enter too", 0, {}, presses(Qt::Key_Enter), 1000},
        {"Tab moves what Return presses", 0, {}, tabAndReturn, 1001},
        {"whatever key the focused button has", 1, u"\033"_s, tabAndReturn, 1001},
        {"not a held Return", 0, {}, notBy(presses(Qt::Key_Return, true)), 1001},
        {"not a held space", 0, {}, notBy(presses(Qt::Key_Space, true)), 1001},
        {"not Escape", 0, {}, notBy(presses(Qt::Key_Escape)), 1001},
        {"not a close request", 0, {}, notBy([](Alert *alert) { alert->close(); }), 1001},
        {"stopped by the program", 0, {}, [](Alert *) { stopModalWithCode(1001); }, 1001},
        {"aborted", 0, {}, [](Alert *) { abortModal(); }, 0},
        {"deleted", 0, {}, [](const Alert *alert) { delete alert; }, 0},
        {"run again inside its own run", 0, {}, runAgain, 1001},
        {"a key for no button", 2, u"\033"_s, notBy(presses(Qt::Key_Escape)), 1001},
        {"Escape", 1, u"\033"_s, presses(Qt::Key_Escape), 1001},
        {"letter", 1, u"p"_s, presses(Qt::Key_P), 1001},
        {"not a held letter", 1, u"p"_s, notBy(presses(Qt::Key_P, true)), 1001},
        {"upper case needs Shift", 1, u"P"_s, notBy(presses(Qt::Key_P)), 1001},
        {"upper case with Shift", 1, u"P"_s, presses(Qt::Key_P, false, Qt::ShiftModifier), 1001},
        {"space beats the focus", 1, u" "_s, presses(Qt::Key_Space), 1001},
        {"Return for another", 1, u"\r"_s, presses(Qt::Key_Return), 1001},
        {"no key takes Return away", 0, u""_s, notBy(presses(Qt::Key_Return)), 1001},
    };
    for (const auto &[name, button, key, answer, code] : rows) {
        SCOPED_TRACE(name);
        const QPointer<Alert> alert = define(2);
        if (!key.isNull()) {
            AlertButtonSetKeyEquivalent(2, button, key);
            const QPushButton *const given = alert->alertButtons().value(qsizetype(button));
            EXPECT_EQ(given && given->isDefault(), key == u"\r");
        }
        EXPECT_EQ(show(2, answer), code);
        EXPECT_EQ(std::exchange(dialogCalls, {}), QStringList{u"1000 %1 2"_s.arg(code)});
        EXPECT_EQ(CUI_AlertWithTag(2), nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(alert);
    }
    define(2);
    EXPECT_EQ(show(2, [](Alert *) { dismiss(2); }), 0);
    EXPECT_EQ(dialogCalls, (QStringList{u"1000 0 2"_s, u"1000 0 2"_s})) << "the dismissal and the run's end";
}

TEST_F(Alerts, TextsStyleAndButtonsAreThoseGivenFirstAndLater)
{
    // Two statements on one alert; the second one's buttons never count.
    const Table<QVariant, QVariant, qint64, QString, QString> rows = {
        {"titles", u"Quit;Play Again"_s, {}, notGiven, {}, u"Correct|You won!|0|Quit/Play Again"_s},
        {"empty pieces", u"A;;B;"_s, {}, notGiven, {}, u"Correct|You won!|0|A//B/"_s},
        {"ampersand", u"Save & Quit"_s, {}, notGiven, {}, u"Correct|You won!|0|Save & Quit"_s},
        {"list", QStringList{u"a;b"_s}, u"Other"_s, notGiven, {}, u"Other|You won!|0|a;b"_s},
        {"markup", u"A"_s, {}, alertStyleCritical, u"a < b & <b>c</b>"_s, u"Correct|a < b & <b>c</b>|2|A"_s},
    };
    for (const auto &[name, buttons, message, style, informative, look] : rows) {
        SCOPED_TRACE(name);
        Alert *const alert = define(5, buttons);
        EXPECT_EQ(CUI_Alert(-5, style, message, informative, u"X"_s, notGiven), 0);
        EXPECT_EQ(dialogCalls.takeLast(), u"1000 0 5"_s) << "dismissed, though it was not shown";
        EXPECT_EQ(lookOf(alert), look);
        EXPECT_EQ(alert->icon() == QMessageBox::Critical, alert->alertStyle() == alertStyleCritical);
        delete alert;
        EXPECT_FALSE(CUI_AlertWithTag(5));
    }
    const auto error = QVariant::fromValue(ErrorObject{u"disk"_s, 28, u"The disk is full."_s});
    whenRuns<Alert>([](Alert *alert) {
        EXPECT_EQ(lookOf(alert), u"The disk is full.||0|OK"_s);
        clicks(0)(alert);
    });
    EXPECT_EQ(CUI_Alert(5, alertStyleCritical, error, u"unused"_s, u"A;B"_s, notGiven), 1000);
    Alert *const alert = define(5);
    EXPECT_EQ(CUI_AlertWithTag(tagFromObject(alert)), alert);
    EXPECT_TRUE(!CUI_AlertWithTag(-5) && !CUI_AlertWithTag(0));
    delete alert;
}

TEST_F(Alerts, TextsAreShownInFullLongOnesOnTheScreenShortOnesUnbroken)
{
    Alert alert;
    alert.setMessageText(u"!"_s);
    const QString shortText = u"At line 128 of Game.zr\nIndex 98 is outside the range 0 to 97"_s;
    for (const QString &text : {QString(5000, u'x'), u"one line\n"_s.repeated(2000), shortText}) {
        whenRuns<Alert>([&](const Alert *) {
            EXPECT_EQ(alert.size().boundedTo(alert.screen()->availableSize()), alert.size());
            const auto *const scrolled = alert.findChild<QPlainTextEdit *>();
            EXPECT_EQ(scrolled ? scrolled->toPlainText() : shortText, text);
            EXPECT_TRUE(!scrolled || (scrolled->isReadOnly() && scrolled->tabChangesFocus() &&
                                      scrolled->frameWidth() == 0 && scrolled->size() == QSize(400, 400) &&
                                      scrolled->palette().base() == alert.palette().window()));
            for (const QLabel *label : alert.findChildren<QLabel *>()) {
                EXPECT_TRUE(label->text() != shortText ||
                            label->heightForWidth(label->width()) <= label->heightForWidth(1000));
            }
            clicks(0)(&alert);
        });
        alert.setInformative(text);
        EXPECT_EQ(alert.runModal(nullptr), 1000);
    }
}

TEST_F(Alerts, SuppressionStateIsKeptByTheDelegateAndHelpLeavesTheAlertOpen)
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
    define(2)->setShowsHelp(true);
    dialogCalls.clear();
    CUI_DialogEventObj()->boolVal = true;
    EXPECT_EQ(show(2, notBy([](Alert *alert) { alert->button(QMessageBox::Help)->click(); })), 1001);
    EXPECT_EQ(dialogCalls, (QStringList{u"1001 2 2"_s, u"1000 1001 2"_s}));
    EXPECT_FALSE(CUI_DialogEventObj()->boolVal) << "the answer is preset to no";
}

TEST_F(Alerts, SheetReturnsAtOnceAndReportsWhenAnsweredOrDismissed)
{
    resetMainMenu();
    Window *const owner = open(1);
    auto *const behind = new QPushButton(owner->contentView());
    behind->show();
    const QSignalSpy pressed(behind, &QPushButton::pressed);
    const std::function<void()> acts[] = {
        [&] { QTest::mouseClick(owner->windowHandle(), Qt::LeftButton, {}, behind->mapTo(owner, QPoint(5, 5))); },
        [&] { QTest::keyClick(owner->windowHandle(), Qt::Key_Space); },
        [&] { owner->windowHandle()->close(); },
    };
    const auto position = [](CUI_DialogEvent &it) {
        EXPECT_EQ(std::exchange(it.rectVal, QRectF(20, 40, 600, 0)), QRectF(0, 0, 300, 0));
    };
    atEvent = answers({{windowEventWillPositionSheet, position}});
    const auto openSheet = [] { return CUI_Alert(4, notGiven, u"Save?"_s, {}, u"Save;Don't"_s, 1); };
    for (const bool isAnswered : {true, false}) {
        SCOPED_TRACE(isAnswered);
        dialogCalls.clear();
        EXPECT_EQ(openSheet(), 0);
        Alert *const alert = CUI_AlertWithTag(4);
        ASSERT_TRUE(alert && alert->isRunningAsSheet() && alert->parentWidget() == owner);
        EXPECT_EQ(alert->windowHandle()->flags() & (Qt::WindowType_Mask | Qt::WindowCloseButtonHint), Qt::Sheet);
        EXPECT_FALSE(alert->actions().isEmpty()) << "the shortcuts of the menus";
        EXPECT_EQ(openSheet(), 0) << "already shown";
        EXPECT_EQ(alert->pos(), owner->contentView()->mapToGlobal(QPoint(20 + (600 - alert->width()) / 2, 40)));
        for (const auto &act : acts) {
            owner->activateWindow();
            EXPECT_TRUE(QTest::qWaitFor([owner] { return owner->isActiveWindow(); }));
            act();
            EXPECT_TRUE(QTest::qWaitFor([alert] { return alert->isActiveWindow(); }));
        }
        presses(Qt::Key_Return, true)(alert);
        EXPECT_TRUE(owner->isVisible());
        EXPECT_EQ(pressed.count(), 0) << "its window takes no input";
        isAnswered ? clicks(1)(alert) : dismiss(4);
        const QString reported = isAnswered ? u"1000 1001 4"_s : u"1000 0 4"_s;
        const QStringList calls = dialogCalls.filter(QRegularExpression(u"^(1000|1000[012]) "_s));
        EXPECT_EQ(calls, (QStringList{u"10001 1 1"_s, u"10000 1 1"_s, u"10002 1 1"_s, reported}));
        EXPECT_EQ(CUI_AlertWithTag(4), nullptr);
    }
    acts[0]();
    EXPECT_EQ(pressed.count(), 1);
    define(2);
    EXPECT_EQ(show(2, clicks(1)), 1001) << "no sheet, though there is a window";
}

TEST_F(Alerts, QueuedWarningsAppearOneAfterTheOther)
{
    QStringList seen;
    CUI_ShowAlert(alertStyleCritical, u"first"_s, u"one"_s);
    std::thread([] { CUI_ShowAlert(alertStyleWarning, u"second"_s, u"two"_s); }).join();
    const Answer answer = [&seen](Alert *alert) {
        QCoreApplication::processEvents(); // serves the queue inside the first warning
        EXPECT_EQ(modalWindow(), alert);
        seen << lookOf(alert);
        clicks(0)(alert);
    };
    whenRuns<Alert>([&](Alert *alert) {
        answer(alert);
        whenRuns<Alert>(answer);
    });
    EXPECT_TRUE(QTest::qWaitFor([&seen] { return seen.size() == 2 && noAlertLeft(); }));
    EXPECT_EQ(seen, (QStringList{u"first|one|2|OK/Quit"_s, u"second|two|0|OK/Quit"_s}));
    EXPECT_TRUE(dialogCalls.isEmpty());
}

} // namespace
