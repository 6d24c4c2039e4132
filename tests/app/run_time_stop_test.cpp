#include <tetrad/app/run_time_stop.h>

#include "tests/app/alert_helper.h"
#include <tetrad/app/alerts.h>
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>

#include <QTranslator>

#include <csignal>
#include <memory>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

// The strings table of an application that was translated: every text is wrapped in brackets.
class Brackets : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char * /*note*/, int /*n*/) const override
    {
        return qstrcmp(context, "Runtime") == 0 ? QString(u'[' % QString::fromUtf8(text) % u']') : QString();
    }
    bool isEmpty() const override { return false; }
};

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
template <int button>
void stopAgain(qint64 event, qintptr /*userData*/)
{
    if (event == appEventShouldTerminate) {
        stopAndPress(button == 0 ? u"Quit"_s : u"Crash"_s, 1);
        std::_Exit(3);
    }
}

bool diedOfAbort(int status)
{
    return testing::KilledBySignal(SIGABRT)(status);
}

const QString file = u"Tetrad Game.zr"_s;

// Reports an index out of bounds in a program of its own, which the alert's Quit ends with status 0 if the
// alert is as it must be.
void reportBoundsError(quint32 index, const QString &inFile, bool isTranslated)
{
    CocoaInit();
    static Brackets brackets;
    if (isTranslated) {
        QCoreApplication::installTranslator(&brackets);
    }
    whenAlertRuns([isTranslated](Alert *alert) {
        const QString shown = alert->text() % u' ' % titlesOf(alert).join(u' ');
        const bool asStated =
            shown == (isTranslated ? u"[Array bounds error] [Quit] [Crash]"_s : u"Array bounds error Quit Crash"_s) &&
            alert->alertStyle() == alertStyleCritical && alert->informativeText().contains(u" of "_s);
        clicks(asStated ? 0 : 1)(alert);
    });
    ChkBounds(index, 97, 128, inFile);
}

TEST(BoundsError, IsWrittenInThreeLinesBeforeTheAlertThatOffersNoContinue)
{
    const Table<quint32, QString, const char *, const char *> rows = {
        {"one past the bound", 98, file, "Tetrad Game.zr", "98"},
        {"negative", quint32(-3), file, "Tetrad Game.zr", "-3"},
        {"bytes of Mac Roman", 98, u"\u00e9\u2022.zr"_s, "\x8e\xa5.zr", "98"},
        {"characters the encoding lacks", 98, u"\u4e00\U0001f534%s.zr"_s, "\\?\\?%s.zr", "98"},
    };
    for (const auto &[name, index, inFile, fileWritten, indexWritten] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EXIT(reportBoundsError(index, inFile, false), testing::ExitedWithCode(0),
                    std::string("(^|\n)Array bounds error:\nAt line 128 of ") + fileWritten + "\nIndex " +
                        indexWritten + " is outside the DIM range 0 to 97\\. \\[Type ctrl-C if process hangs\\]\n");
    }
    EXPECT_EXIT(reportBoundsError(98, file, true), testing::ExitedWithCode(0),
                "\\[At line\\] 128\\[ of \\]Tetrad Game.zr\n\\[Index \\]98\\[ is outside the DIM range 0 to\\] 97\\. ");
    EXPECT_EQ(ChkBounds(97, 97, 128, file), 97U) << "none up to the bound";
}

TEST(Stop, EndsTheProcess)
{
    using Callback = void (*)(qint64 event, qintptr userData);
    // Code and answer, the delegate's callback, and whether it is an abort.
    const Table<qint32, QString, Callback, bool> rows = {
        {"fatal, Quit", 1, u"Quit"_s, nullptr, false},
        {"fatal, Crash", 1, u"Crash"_s, nullptr, true},
        {"fatal by -1", -1, u"Crash"_s, nullptr, true},
        {"fatal, Quit but the delegate refuses", 1, u"Quit"_s, refuse, true},
        {"not fatal, Stop", 0, u"Stop"_s, nullptr, false},
        {"not fatal, Crash", 0, u"Crash"_s, nullptr, true},
        {"only the low byte counts", 0x100, u"Stop"_s, nullptr, false},
        {"fatal, Quit, and Quit again in the question", 1, u"Quit"_s, stopAgain<0>, false},
        {"fatal, Quit, and Crash in the question", 1, u"Quit"_s, stopAgain<1>, true},
    };
    for (const auto &[name, fatal, answer, callback, aborts] : rows) {
        SCOPED_TRACE(name);
        const auto stop = [code = fatal, title = answer, asked = callback] {
            CocoaInit();
            CUI_AppDelegateObj()->delegateCallback = asked;
            stopAndPress(title, code);
        };
        const auto ended = [dies = aborts](int status) {
            return dies ? diedOfAbort(status) : testing::ExitedWithCode(0)(status);
        };
        EXPECT_EXIT(stop(), ended, "");
    }
}

TEST(Stop, ReturnsAfterContinueAndARefusedTermination)
{
    CocoaInit();
    CUI_AppDelegateObj()->delegateCallback = refuse;
    stopAndPress(u"Continue"_s, 0);
    stopAndPress(u"Stop"_s, 0x100);
    EXPECT_TRUE(noAlertLeft());
}

TEST(Stop, WritesTheTextsAndAbortsWithoutAnApplication)
{
    const auto stop = [] {
        // The program's own object, taken down early; the process does not live to take it down twice.
        std::destroy_at(QCoreApplication::instance());
        ZRFullStop(u"Message"_s, u"Informative"_s, 0);
    };
    EXPECT_EXIT(stop(), diedOfAbort, "Message\nInformative\n");
}

} // namespace
