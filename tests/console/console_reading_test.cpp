#include "tests/console/printing.h"
#include <tetrad/console/console_view.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

TEST_F(Console, readsAsOneText)
{
    page.addString(u"Numbers:\b"_s);
    page.addString(u" 1\b"_s);
    page.addString(u" 3\b"_s);
    page.addString(u""_s);
    page.addRect({0, 0, 9, 9}, Qt::black, QColor());
    page.addString(u"left\b"_s, {3, 100});
    page.addString(u"right\b"_s, {200, 100});
    page.addString(u"below\tit"_s, {3, 150});
    EXPECT_EQ(page.reader().text().text(), u"Numbers: 1 3\nleft right\nbelow it\n"_s);
    EXPECT_EQ(page.reader().takeNew(), u"Numbers: 1 3\nleft right\nbelow it"_s);
    page.addString(u"\nnews"_s);
    EXPECT_EQ(page.reader().takeNew(), u"news"_s);
}

// A program that clears and prints its whole screen again: a paragraph that was spoken is news no more.
TEST_F(Console, givesParagraphsThatWereThereBeforeTheClearOnce)
{
    const std::pair<QString, QString> screens[] = {{u"rules\nmore rules\n\n1 2"_s, u"rules\nmore rules\n1 2"_s},
                                                   {u"rules\nmore rules\n\n3 4"_s, u"3 4"_s},
                                                   {u"rules\nless rules\n\n1 2"_s, u"rules\nless rules\n1 2"_s}};
    for (const auto &[printed, spoken] : screens) {
        page.clear();
        page.addString(printed);
        EXPECT_EQ(page.reader().takeNew(), spoken);
        for (int time = 0; time < 2; ++time) {
            page.addString(u"error"_s);
            EXPECT_EQ(page.reader().takeNew(), u"error"_s) << "said each time";
        }
    }
    // A screen that nobody was asked about changes nothing.
    page.clear();
    page.addString(u"\nunread"_s);
    page.clear();
    page.addString(u"rules\nless rules\n\nnew"_s);
    EXPECT_EQ(page.reader().takeNew(), u"new"_s);
}

/// As the game prints: gaps between lines, an error line that was erased and printed again.
TEST_F(Console, theCaretReachesEveryLine)
{
    for (const auto &[y, text] : QList<std::pair<int, QString>>{{10, u"one"_s}, {25, u"two"_s}, {900, u"far"_s}}) {
        page.addString(text, {10.0, static_cast<double>(y)});
    }
    page.addString(u"false"_s, {10, 2000});
    page.addRect({10, 2000, 400, 15}, Qt::black, Qt::black);
    page.addString(u"wrong"_s, {10, 2000});
    ConsoleReader &reader = page.reader();
    QString read;
    for (const int direction : {1, 1, 1, 1, -1, -1, -1, -1}) {
        const qsizetype caret = reader.caretBeyond(direction);
        reader.select(caret, caret);
        read += reader.text().text().mid(caret, 1);
    }
    EXPECT_EQ(read, u"tfwwftoo"_s);
    QString stepped;
    for (qsizetype at = 0, next = reader.stepFrom(at, 1); next != at; at = next, next = reader.stepFrom(at, 1)) {
        stepped += reader.text().text().mid(at, next - at);
        EXPECT_EQ(reader.stepFrom(next, -1), at);
    }
    EXPECT_EQ(stepped, reader.text().text());
    page.addString(u"e\u0301\b"_s);
    const qsizetype end = reader.text().text().size();
    EXPECT_EQ(reader.stepFrom(end, -1), end - 2) << "never within a character";
}

/// A console in a window beside a field, with more lines than fit.
class ReadConsole : public testing::Test
{
protected:
    QWidget window;
    CUI_PrintToWindowScrollView *scrollView = nullptr;
    CUI_PrintToWindowView *view = nullptr;
    QLineEdit *field = nullptr;

    void SetUp() override
    {
        window.resize(400, 200);
        scrollView = new CUI_PrintToWindowScrollView(&window);
        view = CUI_PrintToWindowView::viewWithFrame({0, 0, 400, 1});
        scrollView->setDocumentView(view);
        view->setScrollView(scrollView);
        field = new QLineEdit(&window);
        for (int i = 0; i < 100; ++i) {
            view->addString(QString::number(i));
        }
        window.show();
        window.activateWindow();
        field->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([this] { return field->hasFocus(); }));
        QCoreApplication::processEvents();
    }

    int scrolled() const { return scrollView->verticalScrollBar()->value(); }
    int end() const { return scrollView->verticalScrollBar()->maximum(); }
};

// Roles, events and reading by keys are seen by a client of the accessibility bus in the end-to-end tests.
TEST_F(ReadConsole, givesAssistiveTechnologyLinesAttributesAndPlaces)
{
    QAccessibleInterface *console = QAccessible::queryAccessibleInterface(view);
    ASSERT_TRUE(console && console->textInterface());
    QAccessibleTextInterface *text = console->textInterface();
    EXPECT_EQ(text->characterCount(), 10 * 2 + 90 * 3);
    int start = 0;
    int stop = 0;
    EXPECT_EQ(text->textAtOffset(21, QAccessible::LineBoundary, &start, &stop), u"10\n"_s);
    EXPECT_TRUE(text->attributes(21, &start, &stop).contains(u"font-family:\"Menlo\""_s));
    const QRect zero = text->characterRect(21);
    EXPECT_EQ(text->offsetAtPoint(zero.center() + QPoint(100, 0)), -1);
    text->scrollToSubstring(text->characterCount() - 3, text->characterCount());
    EXPECT_GT(scrolled(), 1000);
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(278).center()), 278);
}

TEST_F(ReadConsole, isSelectedByDragging)
{
    const QRect first = view->reader().characterRect(0).toAlignedRect();
    QTest::mouseClick(view, Qt::LeftButton, {}, first.center());
    EXPECT_TRUE(field->hasFocus()) << "a click leaves the focus where it is";
    QTest::mousePress(view, Qt::LeftButton, {}, first.topLeft() + QPoint(1, 3));
    QTest::mouseMove(view, view->reader().characterRect(20).toAlignedRect().topRight() + QPoint(3, 3));
    QTest::mouseRelease(view, Qt::LeftButton, {}, view->reader().characterRect(21).toAlignedRect().center());
    EXPECT_TRUE(view->reader().selectedText().startsWith(u"0\n1\n2"_s));
    view->clear();
    EXPECT_FALSE(view->property("canCopy").toBool());
}

TEST_F(ReadConsole, startsOverAtTheTopAndFollowsTheWidth)
{
    EXPECT_LT(view->width(), 400) << "beside the bar";
    scrollView->verticalScrollBar()->setValue(end());
    view->clear();
    view->addString(u"top"_s);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(scrolled(), 0);
    EXPECT_EQ(end(), 0);
    EXPECT_EQ(view->width(), 400);
    window.resize(300, 100);
    EXPECT_EQ(view->width(), 300);
}

} // namespace
