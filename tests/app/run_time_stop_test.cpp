#include "tests/support/windows.h"

#include <csignal>
#include <memory>

using namespace tetrad;

namespace {

// Answers a stop by the title of a button of its alert.
void stopAndPress(const QString &title, qint32 fatal)
{
    whenAlertRuns([title](Alert *alert) { alert->alertButtons().at(titlesOf(alert).indexOf(title))->click(); });
    ZRFullStop(u"Message"_s, u"Informative"_s, fatal);
}

void refuse(qint64 /*event*/, qintptr /*userData*/)
{
    CUI_AppDelegateObj()->longVal = 0;
}

// A fatal stop of the program's own while it is asked whether it may end.
void crashAgain(qint64 event, qintptr /*userData*/)
{
    if (event == appEventShouldTerminate) {
        stopAndPress(u"Crash"_s, 1);
        std::_Exit(3);
    }
}

bool diedOfAbort(int status)
{
    return testing::KilledBySignal(SIGABRT)(status);
}

// Reports an index out of bounds in a program of its own, which the alert's Quit ends with status 0 if the alert is as
// expected.
void reportBoundsError(quint32 index, const QString &file)
{
    CocoaInit();
    whenAlertRuns([](Alert *alert) {
        const QString shown = alert->text() % u' ' % titlesOf(alert).join(u' ');
        const bool isCritical = alert->alertStyle() == alertStyleCritical;
        clicks(isCritical && shown == u"Array bounds error Quit Crash"_s ? 0 : 1)(alert);
    });
    ChkBounds(index, 97, 128, file);
}

TEST(BoundsError, IsWrittenInThreeLinesBeforeTheAlertThatOffersNoContinue)
{
    const Table<quint32, QString, const char *> rows = {
        {"one past the bound, in Mac Roman", 98, u"\u00e9\u2022.zr"_s,
         "(^|\n)Array bounds error:\nAt line 128 of \x8e\xa5.zr\n"
         "Index 98 is outside the DIM range 0 to 97\\. \\[Type ctrl-C if process hangs\\]\n"},
        {"negative, with characters the encoding lacks", quint32(-3), u"\u4e00\U0001f534%s.zr"_s,
         " of \\?\\?%s.zr\nIndex -3 is outside"},
    };
    for (const auto &[name, index, file, written] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EXIT(reportBoundsError(index, file), testing::ExitedWithCode(0), written);
    }
    EXPECT_EQ(ChkBounds(97, 97, 128, {}), 97U) << "none up to the bound";
}

TEST(Stop, EndsTheProcessOrReturnsAfterContinueAndARefusedTermination)
{
    using Callback = void (*)(qint64 event, qintptr userData);
    // Code and answer, the delegate's callback, and whether it is an abort.
    const Table<qint32, QString, Callback, bool> rows = {
        {"fatal, Quit", 1, u"Quit"_s, nullptr, false},
        {"fatal by -1, Crash", -1, u"Crash"_s, nullptr, true},
        {"fatal, Quit but the delegate refuses", 1, u"Quit"_s, refuse, true},
        {"only the low byte counts: not fatal, Stop", 0x100, u"Stop"_s, nullptr, false},
        {"fatal, Quit, and Crash in the question", 1, u"Quit"_s, crashAgain, true},
    };
    for (const auto &[name, fatal, answer, callback, aborts] : rows) {
        SCOPED_TRACE(name);
        const auto stop = [code = fatal, title = answer, queried = callback] {
            CocoaInit();
            CUI_AppDelegateObj()->delegateCallback = queried;
            stopAndPress(title, code);
        };
        const auto ended = [dies = aborts](int status) {
            return dies ? diedOfAbort(status) : testing::ExitedWithCode(0)(status);
        };
        EXPECT_EXIT(stop(), ended, "");
    }
    const auto stopWithoutAnApplication = [] {
        // The program's own object, taken down early; the process does not live to take it down twice.
        std::destroy_at(QCoreApplication::instance());
        ZRFullStop(u"Message"_s, u"Informative"_s, 0);
    };
    EXPECT_EXIT(stopWithoutAnApplication(), diedOfAbort, "Message\nInformative\n");
    CocoaInit();
    CUI_AppDelegateObj()->delegateCallback = refuse;
    stopAndPress(u"Continue"_s, 0);
    stopAndPress(u"Stop"_s, 0x100);
    EXPECT_TRUE(noAlertLeft());
    CUI_AppDelegateObj()->delegateCallback = nullptr;
}

} // namespace
