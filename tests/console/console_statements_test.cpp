#include <tetrad/console/console_statements.h>

#include "tests/console/printing.h"
#include "tests/support/windows.h"
#include <tetrad/app/content_view.h>
#include <tetrad/app/popover.h>
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/console/console_view.h>
#include <tetrad/strings/not_given.h>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

using Statements = WindowTest;

CUI_PrintToWindowView *outputView()
{
    return CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow());
}

TEST_F(Statements, aWindowHasOneConsoleBelowItsOtherChildren)
{
    CUI_Window(1, u"Game"_s, notGiven, QRectF(0, 0, 300, 200));
    Window *window = CUI_WindowWithTag(1);
    auto *other = new QWidget(window->contentView());
    CUI_PrintToWindowView *view = outputView();
    EXPECT_EQ(CUI_PrintToWindowViewObj(window), view);
    EXPECT_EQ(window->contentView()->children().first(), view->scrollView());
    EXPECT_EQ(window->contentView()->children().last(), other);
    EXPECT_EQ(view->scrollView()->geometry(), window->contentView()->rect());
    EXPECT_EQ(CUI_PrintToWindowViewObj(nullptr), nullptr);
    Popover popover(5, QSize(100, 80));
    EXPECT_EQ(CUI_PrintToWindowPrint(&popover, u"x\b"_s).y(), 0);
    EXPECT_NE(CUI_PrintToWindowViewObj(&popover), view);
}

TEST_F(Statements, printJoinsUpToTheFirstNullText)
{
    CUI_PrintToWindowPrintStatement({u"a"_s, u""_s, u"b"_s, u"\b"_s, QString(), u"c"_s});
    CUI_PrintToWindowPrintStatement({QString()});
    CUI_PrintToWindowPrintStatement({});
    EXPECT_EQ(outputView()->textString(), u"ab\b\n\n"_s);
    CUI_PrintToWindowClearStatement();
    CUI_PrintToWindowSetXYStatement(15, 110);
    CUI_PrintToWindowPrintFStatement(u"%d of %@"_s, 3, u"4"_s);
    EXPECT_TRUE(outputView()->dump().startsWith(u"text (15,110) \"3 of 4\""_s));
    const Window *window = CUI_WindowWithTag(999999);
    ASSERT_TRUE(window != nullptr && window->isVisible()) << "the default window, made by printing";
    EXPECT_EQ(window->windowTitle(), u"\u2022 Print to Window \u2022"_s);
}

TEST_F(Statements, textAppliesOnlyWhatIsGiven)
{
    const auto look = [] {
        CUI_PrintToWindowClearStatement();
        CUI_PrintToWindowPrintStatement({u"x\b"_s});
        const QString dump = outputView()->dump();
        const auto font = outputView()->currentAttributes().value(u"font"_s).value<QFont>();
        return QString(dump.mid(dump.indexOf(u"size")).trimmed() + u" align " +
                       QString::number(outputView()->currentAlignment()) + u' ' + font.family());
    };
    CUI_PrintToWindowTextStatement(QString(), QColor(), QColor(), notGiven, notGiven, -18);
    EXPECT_EQ(look(), u"size 12 color standard align 0 Menlo"_s);
    CUI_PrintToWindowTextStatement(u"No Such Family"_s, ColorGreen(), ColorBlack(), 2, 50, 18);
    EXPECT_EQ(look(), u"size 18 color #00ff00 background #000000 align 2 Menlo"_s);
    CUI_PrintToWindowTextStatement(QString(), ColorWhite(), QColor(), notGiven, notGiven, 0);
    EXPECT_EQ(look(), u"size 18 color #ffffff background #000000 align 2 Menlo"_s);
    const QVariantMap now = outputView()->currentAttributes();
    EXPECT_EQ(now.value(u"paragraphStyle"_s).value<ParagraphStyle>().defaultTabInterval, 50);
}

TEST_F(Statements, aRectangleChasesTheFillColour)
{
    const Table<QColor, bool, const char *, QColor> rows = {{"given", Qt::red, true, "#ff0000", Qt::red},
                                                            {"remembered", QColor(), true, "#0000ff", Qt::blue},
                                                            {"only remembering", Qt::red, false, "none", Qt::red},
                                                            {"outline", QColor(), false, "none", Qt::blue}};
    for (const auto &[name, given, fill, drawnFill, rememberedAfter] : rows) {
        SCOPED_TRACE(name);
        CUI_PrintToWindowClearStatement();
        outputView()->setCurrentFillColor(Qt::blue);
        CUI_DrawToWindowRectStatement(given, fill, QRectF(10, 200, 400, 15));
        EXPECT_EQ(outputView()->dump().toStdString(),
                  std::string("rect (10,200) size 400x15 width 1 stroke #000000 fill ") + drawnFill + "\n");
        EXPECT_EQ(outputView()->currentFillColor(), rememberedAfter);
    }
}

} // namespace
