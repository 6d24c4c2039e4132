#include "game/game_window.h"

#include "game/error_line.h"
#include "runtime/app/application.h"
#include "runtime/console/colors.h"
#include "runtime/console/console_statements.h"
#include "runtime/console/console_view.h"
#include "tests/windows.h"

#include <QImage>

#include <algorithm>

using namespace tetrad;

// What the alert asks and how the program ends is seen in the end-to-end tests.
TEST(GameWindow, IsBlackAndNothingIsLeftOfTheLongestErrorMessage)
{
    CocoaInit();
    EXPECT_EQ(BuildWindow(), 0);
    const Window *const window = CUI_WindowWithTag(1);
    ASSERT_TRUE(window && window->isVisible());
    EXPECT_EQ(window->contentRect().size(), QSizeF(580, 250));
    EXPECT_EQ(window->backgroundColor(), QColor(Qt::black));
    auto *const console = CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow());
    const auto redPixels = [console] {
        const QImage image = console->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const auto *const first = reinterpret_cast<const QRgb *>(image.constBits());
        return std::count_if(first, first + image.sizeInBytes() / qsizetype(sizeof(QRgb)),
                             [](QRgb pixel) { return qRed(pixel) > qGreen(pixel) + 8; });
    };
    console->setForegroundColor(ColorRed());
    console->addString(u"ERROR! Must use all your numbers and only those numbers.\b"_qs, QPointF(10, 200));
    QCoreApplication::processEvents();
    ASSERT_GT(redPixels(), 0);
    EraseErrorText();
    EXPECT_EQ(redPixels(), 0);
    EXPECT_EQ(console->itemArray().at(1).toMap()[u"rect"_qs].toRectF(), QRectF(10, 200, 400, 15));
}
