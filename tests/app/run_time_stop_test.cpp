#include "runtime/app/run_time_stop.h"

#include "runtime/app/alerts.h"
#include "runtime/app/app_delegate.h"
#include "runtime/app/application.h"
#include "tests/app/alert_helper.h"

#include <QTranslator>

#include <gtest/gtest.h>

#include <csignal>
#include <memory>

namespace tetrad {

namespace {

using namespace testing_helpers;

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

// Answers the stop alert by the title of a button.
void press(const QString &title)
{
    whenAlertRuns([title](Alert *alert) { alert->alertButtons().at(titlesOf(alert).indexOf(title))->click(); });
}

void refuse(qint64 /*event*/, qintptr /*userData*/)
{
    CUI_AppDelegateObj()->setLongVal(0);
}

bool diedOfAbort(int status)
{
    return testing::KilledBySignal(SIGABRT)(status);
}

const QString file = u"Tetrad Game.zr"_qs;

std::string rangeErrorLines(const std::string &lineAndFile, const std::string &index)
{
    return "(^|\n)Array bounds error:\nAt line " + lineAndFile + "\nIndex " + index +
           "\\. \\[Type ctrl-C if process hangs\\]\n";
}

struct BoundsRow
{
    const char *name;
    quint32 index;
    quint32 bound;
    QString file;
    const char *lineAndFile;
    const char *index_text;
};

class BoundsError : public testing::TestWithParam<BoundsRow>
{};

TEST_P(BoundsError, IsWrittenInThreeLinesBeforeTheAlertThatOffersNoContinue)
{
    const BoundsRow &row = GetParam();
    const auto report = [&row] {
        CocoaInit();
        whenAlertRuns([](Alert *alert) {
            const bool asStated = titlesOf(alert) == QStringList{u"Quit"_qs, u"Crash"_qs} &&
                                  alert->text() == u"Array bounds error"_qs && alert->style() == alertStyleCritical &&
                                  alert->informativeText().startsWith(u"At line 128 of "_qs);
            alert->alertButtons().at(asStated ? 0 : 1)->click();
        });
        ChkBounds(row.index, row.bound, 128, row.file);
    };
    EXPECT_EXIT(report(), testing::ExitedWithCode(0), rangeErrorLines(row.lineAndFile, row.index_text));
}

INSTANTIATE_TEST_SUITE_P(Indices, BoundsError,
                         testing::Values(BoundsRow{"onePastTheBound", 98, 97, file, "128 of Tetrad Game.zr",
                                                   "98 is outside the DIM range 0 to 97"},
                                         BoundsRow{"negative", quint32(-3), 97, file, "128 of Tetrad Game.zr",
                                                   "-3 is outside the DIM range 0 to 97"},
                                         BoundsRow{"bytesOfMacRoman", 5, 4, u"\u00e9\u2022.zr"_qs, "128 of \x8e\xa5.zr",
                                                   "5 is outside the DIM range 0 to 4"},
                                         BoundsRow{"characterTheEncodingLacks", 5, 4, u"\u4e00\U0001f534%s.zr"_qs,
                                                   "128 of \\?\\?%s.zr", "5 is outside the DIM range 0 to 4"}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(Bounds, AnIndexUpToTheBoundComesBackWithoutAWord)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(ChkBounds(97, 97, 128, file), 97U);
    EXPECT_EQ(ChkBounds(0, 0, 128, file), 0U);
    EXPECT_EQ(ChkBounds(0xffffffffU, 0xffffffffU, 128, file), 0xffffffffU);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

struct StopRow
{
    const char *name;
    qint32 fatal;
    QString answer;
    bool refuses;
    bool aborts;
};

class Stop : public testing::TestWithParam<StopRow>
{};

TEST_P(Stop, EndsTheProcess)
{
    const StopRow &row = GetParam();
    const auto stop = [&row] {
        CocoaInit();
        if (row.refuses) {
            CUI_AppDelegateObj()->setDelegateCallback(refuse);
        }
        press(row.answer);
        ZRFullStop(u"Message"_qs, u"Informative"_qs, row.fatal);
    };
    if (row.aborts) {
        EXPECT_EXIT(stop(), diedOfAbort, "");
    } else {
        EXPECT_EXIT(stop(), testing::ExitedWithCode(0), "");
    }
}

INSTANTIATE_TEST_SUITE_P(Answers, Stop,
                         testing::Values(StopRow{"fatalQuit", 1, u"Quit"_qs, false, false},
                                         StopRow{"fatalCrash", 1, u"Crash"_qs, false, true},
                                         StopRow{"fatalMinusOneCrash", -1, u"Crash"_qs, false, true},
                                         StopRow{"fatalQuitRefused", 1, u"Quit"_qs, true, true},
                                         StopRow{"nonFatalStop", 0, u"Stop"_qs, false, false},
                                         StopRow{"nonFatalCrash", 0, u"Crash"_qs, false, true},
                                         StopRow{"onlyTheLowByteCounts", 0x100, u"Stop"_qs, false, false}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(StopThatReturns, ContinueAndARefusedTerminationGoOn)
{
    CocoaInit();
    for (const QString &answer : {u"Continue"_qs, u"Stop"_qs}) {
        CUI_AppDelegateObj()->setDelegateCallback(refuse);
        whenAlertRuns([answer](Alert *alert) {
            EXPECT_EQ(titlesOf(alert), (QStringList{u"Stop"_qs, u"Continue"_qs, u"Crash"_qs}));
            EXPECT_EQ(alert->style(), alertStyleWarning);
            alert->alertButtons().at(titlesOf(alert).indexOf(answer))->click();
        });
        ZRFullStop(u"Message"_qs, u"Informative"_qs, 0x100);
        EXPECT_TRUE(noAlertLeft());
    }
}

TEST(StopThatReturns, TextsAreLookedUpInTheStringsTable)
{
    CocoaInit();
    Brackets brackets;
    ASSERT_TRUE(QCoreApplication::installTranslator(&brackets));
    EXPECT_EQ(ZRCreateLineNumberMsg(128), u"[At line] 128"_qs);
    whenAlertRuns([](Alert *alert) {
        EXPECT_EQ(titlesOf(alert), (QStringList{u"[Stop]"_qs, u"[Continue]"_qs, u"[Crash]"_qs}));
        alert->alertButtons().at(1)->click();
    });
    ZRFullStop(u"Message"_qs, u"Informative"_qs, 0);
}

TEST(BoundsErrorTranslated, EveryPieceIsLookedUp)
{
    const auto report = [] {
        CocoaInit();
        static Brackets brackets;
        QCoreApplication::installTranslator(&brackets);
        whenAlertRuns([](Alert *alert) {
            const bool translated = alert->text() == u"[Array bounds error]"_qs &&
                                    titlesOf(alert) == QStringList{u"[Quit]"_qs, u"[Crash]"_qs};
            alert->alertButtons().at(translated ? 0 : 1)->click();
        });
        ChkBounds(9, 4, 7, file);
    };
    EXPECT_EXIT(report(), testing::ExitedWithCode(0),
                "\\[At line\\] 7\\[ of \\]Tetrad Game.zr\n\\[Index \\]9\\[ is outside the DIM range 0 to\\] 4\\. ");
}

TEST(StopWithoutApplication, WritesTheTextsAndAborts)
{
    const auto stop = [] {
        // The program's own object, taken down early; the process does not live to take it down twice.
        std::destroy_at(QCoreApplication::instance());
        ZRFullStop(u"Message"_qs, u"Informative"_qs, 0);
    };
    EXPECT_EXIT(stop(), diedOfAbort, "Message\nInformative\n");
}

} // namespace

} // namespace tetrad
