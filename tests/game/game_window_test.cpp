#include "game/game_window.h"

#include "game/error_line.h"
#include "runtime/app/output_window.h"
#include "runtime/app/window.h"
#include "runtime/app/windows.h"
#include "runtime/console/colors.h"
#include "runtime/console/console_statements.h"
#include "runtime/console/console_view.h"
#include "tests/app/alert_helper.h"

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>

using namespace tetrad;
using namespace tetrad::testing_helpers;

TEST(GameWindow, IsBlackCentredAndTheOutputWindow)
{
    EXPECT_EQ(BuildWindow(), 0);
    Window *const window = CUI_WindowWithTag(1);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Tetrad Game"));
    EXPECT_EQ(window->contentRect().size(), QSizeF(580, 250));
    EXPECT_EQ(window->backgroundColor(), QColor(Qt::black));
    EXPECT_EQ(CUI_OutputWindowTag(), 1);
}

TEST(GameWindow, NothingIsLeftOfTheLongestErrorMessage)
{
    BuildWindow();
    auto *const console = CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow());
    const auto isRed = [](QRgb pixel) { return qRed(pixel) > qGreen(pixel) + 8; };
    const auto redPixels = [console, isRed] {
        const QImage image = console->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const auto *const first = reinterpret_cast<const QRgb *>(image.constBits());
        return std::count_if(first, first + image.sizeInBytes() / qsizetype(sizeof(QRgb)), isRed);
    };
    console->setForegroundColor(ColorRed());
    console->addString(QStringLiteral("ERROR! Must use all your numbers and only those numbers.\b"), QPointF(10, 200));
    QCoreApplication::processEvents();
    ASSERT_GT(redPixels(), 0);
    EraseErrorText();
    EXPECT_EQ(redPixels(), 0);
    const QVariantMap item = console->itemArray().at(1).toMap();
    EXPECT_EQ(item[QStringLiteral("rect")].toRectF(), QRectF(10, 200, 400, 15));
}

TEST(QuitOrPlay, PlayAgainReturnsEveryTimeAndEscapeIsNoAnswer)
{
    BuildWindow();
    for (int puzzle = 0; puzzle < 2; ++puzzle) {
        SCOPED_TRACE(puzzle);
        whenAlertRuns([](Alert *alert) {
            EXPECT_EQ(alert->text(), QStringLiteral("Correct"));
            EXPECT_EQ(alert->informativeText(), QStringLiteral("You won!"));
            EXPECT_EQ(titlesOf(alert), (QStringList{QStringLiteral("Quit"), QStringLiteral("Play Again")}));
            pressKey(alert, Qt::Key_Escape);
            EXPECT_TRUE(alert->isVisible());
            clicks(1)(alert);
        });
        EXPECT_EQ(QuitOrPlayAlert(QStringLiteral("Correct")), 0);
        EXPECT_TRUE(noAlertLeft());
    }
}

TEST(QuitOrPlayDeathTest, QuitEndsTheProgramWithStatus0)
{
    EXPECT_EXIT(
        {
            BuildWindow();
            whenAlertRuns(clicks(0));
            QuitOrPlayAlert(QStringLiteral("Correct"));
            ::exit(3);
        },
        testing::ExitedWithCode(0), "");
}
