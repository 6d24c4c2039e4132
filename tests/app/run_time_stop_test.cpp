#include "tests/support/windows.h"

#include <csignal>
#include <memory>

using namespace tetrad;

namespace {

// Answers a stop by the title of a button of its alert.
void stopAndPress(const QString &title, qint32 fatal)
{
    whenRuns<Alert>([title](Alert *alert) { alert->alertButtons().at(titlesOf(alert).indexOf(title))->click(); });
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

// Reports an index out of bounds in a program of its own, which the alert's Quit ends with status 0 if the alert is as
// expected.
void reportBoundsError()
{
    CocoaInit();
    whenRuns<Alert>([](Alert *alert) {
        const QString shown = alert->text() % u' ' % titlesOf(alert).join(u' ');
        const bool isCritical = alert->alertStyle() == alertStyleCritical;
        clicks(isCritical && shown == u"Array bounds error Quit Crash"_s ? 0 : 1)(alert);
    });
    ChkBounds(quint32(-3), 97, 128, u"\u00e9\u2022\u4e00\U0001f534%s.zr"_s);
}

TEST(BoundsError, IsWrittenInMacRomanBeforeTheAlertThatOffersNoContinue)
{
    constexpr char written[] = "(^|\n)Array bounds error:\nAt line 128 of \x8e\xa5\\?\\?%s.zr\n"
                               "Index -3 is outside the DIM range 0 to 97\\. \\[Type ctrl-C if process hangs\\]\n";
    EXPECT_EXIT(reportBoundsError(), testing::ExitedWithCode(0), written);
    EXPECT_EQ(ChkBounds(97, 97, 128, {}), 97U) << "none up to the bound";
}

TEST(Stop, EndsTheProcessOrReturnsAfterContinueAndARefusedTermination)
{
    using Callback = void (*)(qint64 event, qintptr userData);
    // Code and answer, the delegate's callback, and the signal that ends it.
    const Table<qint32, QString, Callback, int> rows = {
        {"fatal, Quit", 1, u"Quit"_s, nullptr, 0},
        {"fatal by -1, Crash", -1, u"Crash"_s, nullptr, SIGABRT},
        {"fatal, Quit but the delegate refuses", 1, u"Quit"_s, refuse, SIGABRT},
        {"only the low byte counts: not fatal, Stop", 0x100, u"Stop"_s, nullptr, 0},
        {"fatal, Quit, and Crash in the question", 1, u"Quit"_s, crashAgain, SIGABRT},
    };
    for (const auto &[name, fatal, answer, callback, signal] : rows) {
        SCOPED_TRACE(name);
        const auto stop = [code = fatal, title = answer, queried = callback] {
            CocoaInit();
            CUI_AppDelegateObj()->delegateCallback = queried;
            stopAndPress(title, code);
        };
        EXPECT_EXIT(stop(), endedBy(signal), "");
    }
    const auto stopWithoutAnApplication = [] {
        // The program's own object, taken down early; the process does not live to take it down twice.
        std::destroy_at(QCoreApplication::instance());
        ZRFullStop(u"Message"_s, u"Informative"_s, 0);
    };
    EXPECT_EXIT(stopWithoutAnApplication(), endedBy(SIGABRT), "Message\nInformative\n");
    const auto warnWithoutAnApplication = [] {
        std::destroy_at(QCoreApplication::instance());
        CUI_ShowAlert(alertStyleWarning, u"Full"_s, u"100 %"_s);
        AppTerminate();
    };
    EXPECT_EXIT(warnWithoutAnApplication(), endedBy(0), "Full 100 %\n");
    CocoaInit();
    CUI_AppDelegateObj()->delegateCallback = refuse;
    stopAndPress(u"Continue"_s, 0);
    stopAndPress(u"Stop"_s, 0x100);
    EXPECT_TRUE(noAlertLeft());
    CUI_AppDelegateObj()->delegateCallback = nullptr;
}

} // namespace
