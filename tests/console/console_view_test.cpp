#include "tests/console/printing.h"
#include "tests/support/windows.h"

#include <QAccessible>
#include <QBackingStore>
#include <QBitmap>
#include <QRandomGenerator>
#include <QScrollBar>

using namespace tetrad;

/// Each event of a text and the caret after it. This stands in for Qt's function, which drops them without a client.
static QStringList textEvents;

void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    if (const auto *const change = dynamic_cast<QAccessibleTextCursorEvent *>(event)) {
        const auto *const gain = dynamic_cast<QAccessibleTextInsertEvent *>(event);
        const QString what = gain ? gain->textInserted() : QVariant::fromValue(event->type()).toString();
        textEvents << what + u' ' + QString::number(change->cursorPosition());
    }
}

namespace {

/// Operations at random places, colours, sizes, widths and alignments, many on top of each other.
void printAtRandom(CUI_PrintToWindowView &view, QRandomGenerator &random, int count, int height)
{
    // Now and then any double whatever, and as often one that is infinite or NaN.
    const auto orAny = [&](double usual) {
        const quint64 any = random.generate64() | (random.bounded(2) == 0 ? 0x7FF0'0000'0000'0000 : 0);
        return random.bounded(20) == 0 ? std::bit_cast<double>(any) : usual;
    };
    const auto place = [&] {
        return QPointF(orAny(random.bounded(440) - 20 + random.generateDouble()), random.bounded(height));
    };
    const auto rect = [&] {
        const int tall = random.bounded(20) == 0 ? height : random.bounded(4) == 0 ? 6 : 40;
        return QRectF(place(), QSizeF(orAny(random.bounded(120) - 20), random.bounded(tall) - 5));
    };
    const auto color = [&] {
        return random.bounded(4) == 0 ? QColor() : QColor::fromRgba(random.generate() | 0x40000000);
    };
    const QStringList texts =
        u"Make 24|gjpqy ÅÉ|🔴 Medium\b|a\tb\t|שלום 12|two\nlines|e\u0301\u0302\u0303\u0304|"_s.split(u'|');
    for (int i = 0; i < count; ++i) {
        view.setCurrentLineWidth(random.bounded(random.bounded(4) == 0 ? 40 : 12) - 2 + random.bounded(2) * 0.5);
        view.setCurrentLineCapStyle(random.bounded(4));
        view.setCurrentLineDashPattern(random.bounded(3) == 0 ? QList<double>{orAny(6), 3, 1} : QList<double>());
        view.setCurrentStrokeColor(color());
        view.setForegroundColor(color());
        view.setBackgroundColor(color());
        view.setAlignment(random.bounded(4));
        switch (random.bounded(8)) {
        case 0:
            view.addRect(rect(), color(), color());
            break;
        case 1:
            view.addOval(rect(), color(), color());
            break;
        case 2:
            view.addLines({place(), place()}, random.bounded(2) == 0);
            break;
        case 3:
            view.setFontSize(orAny(6 + random.bounded(30)));
            break;
        default:
            view.addString(texts.at(random.bounded(static_cast<int>(texts.size()))), place());
        }
    }
}

QImage everyItem(CUI_PrintToWindowView &view, const QSize &pixels, const QColor &ground, const QTransform &transform)
{
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setTransform(transform);
    for (qsizetype i = 0; i < view.items().size(); ++i) {
        drawItem({painter, view.mirror(), view.palette()}, view, static_cast<quint32>(i));
    }
    return image;
}

/// A window with a console over which a translucent view of its own lies, and a field.
class Screen : public testing::Test
{
protected:
    ContentViewSC content;
    CUI_PrintToWindowScrollView *scrollView = new CUI_PrintToWindowScrollView(&content);
    CUI_PrintToWindowView &view = *CUI_PrintToWindowView::viewWithFrame({0, 0, 400, 1});
    QWidget *other = new QWidget(&content);
    QLineEdit *field = new QLineEdit(other);

    void SetUp() override
    {
        content.resize(400, 1200);
        scrollView->setDocumentView(&view);
        view.setScrollView(scrollView);
        other->setAutoFillBackground(true);
        other->resize(200, 150);
        other->setPalette(QColor(0, 255, 255, 200)); // Translucent, or nothing would be painted above it.
        field->hide();
        content.show();
        content.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&content));
    }

    /// A hundred lines of which some are to be seen.
    void printNumbers()
    {
        content.resize(400, 200);
        other->setGeometry(0, 180, 20, 20);
        field->show();
        field->setFocus();
        for (int i = 0; i < 100; ++i) {
            view.addString(QString::number(i));
        }
        QCoreApplication::processEvents();
    }

    /// What the window shows.
    QImage shown() const
    {
        const auto *const pixels = static_cast<const QImage *>(content.backingStore()->paintDevice());
        return pixels->convertToFormat(QImage::Format_RGB32);
    }

    QScrollBar *bar() const { return scrollView->verticalScrollBar(); }

    /// The first line in view.
    int topLine() const { return qRound(bar()->value() / TextAttributes().facts().lineHeight); }
};

/// Run at four scales.
TEST_F(Screen, showsWhatTheWholeListDoes)
{
    QRandomGenerator random(20260102);
    const auto print = [&] { printAtRandom(view, random, 40, 300); };
    const auto dot = CUI_PrintToWindowItem::itemWithType(3, {20, 20, 90, 90}, Qt::red, Qt::green);
    const Table<std::function<void()>> changes = {
        {"printed", print},
        {"printed over", print},
        {"replaced", [&] { view.items().replace(9, dot); }},
        {"inserted", [&] { view.items().insert(5, dot); }},
        {"removed", [&] { view.items().removeAt(7); }},
        {"selected", [&] { view.select(20, 200); }},
        {"printed over the selection", print},
        {"other text colour", [&] { view.setPalette(QPalette(Qt::red, Qt::blue)); }},
        {"other ground", [&] { content.setBackgroundColor(Qt::yellow); }},
        {"focused", [&] { view.setFocus(); }},
        {"grown", [&] { view.fixFrameHeight(1500); }},
        {"scrolled", [&] { bar()->setValue(37); }},
        {"printed after scrolling", print},
        {"upside down", [&] { view.setFlipView(false); }},
        {"scrolled upside down", [&] { bar()->setValue(290); }},
        {"printed upside down", print},
        {"grown upside down", [&] { view.fixFrameHeight(2000); }},
        {"cleared", [&] { view.clear(); }},
        {"printed again", print},
        {"grown far", [&] { view.fixFrameHeight(2000); }},
        {"resized", [&] { content.resize(380, 1000); }},
        {"on another view", [&] { other->lower(); }},
        {"on another view of other colour", [&] { other->setPalette(QColor(255, 0, 255, 200)); }},
    };
    for (const auto &[name, change] : changes) {
        change();
        for (int part = 0; part < 9; ++part) {
            content.repaint(random.bounded(100), random.bounded(200), 300, 1 + random.bounded(30));
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(shown(), content.grab().toImage().convertToFormat(QImage::Format_RGB32)) << name;
    }
}

/// Run at four scales. A whole drawing needs the size of the visible part: Qt rounds differently what an edge clips.
TEST_F(Screen, showsWhatTheWholeListDoesNextToAScrollBar)
{
    QRandomGenerator random(20260103);
    const auto print = [&] { printAtRandom(view, random, 200, 300); };
    content.resize(400, 200);
    other->hide();
    view.fixFrameHeight(300);
    const Table<std::function<void()>> changes = {
        {"printed", print},
        {"printed over", print},
        {"scrolled", [&] { bar()->setValue(37); }},
        {"printed after scrolling", print},
        {"upside down", [&] { view.setFlipView(false); }},
        {"printed upside down", print},
        {"grown upside down", [&] { view.fixFrameHeight(2000); }},
        {"scrolled upside down", [&] { bar()->setValue(1790); }},
    };
    for (const auto &[name, change] : changes) {
        change();
        QCoreApplication::processEvents();
        const double scale = content.devicePixelRatioF();
        const QSize pixels = (QSizeF(scrollView->viewport()->size()) * scale).toSize();
        const QImage whole =
            everyItem(view, pixels, content.backgroundColor(),
                      QTransform::fromTranslate(0, -bar()->value()) * QTransform::fromScale(scale, scale));
        EXPECT_EQ(shown().copy(whole.rect()), whole) << name;
    }
}

TEST(Culling, leavesOutNothingThatAPartShows)
{
    QRandomGenerator random(20260104);
    for (int round = 0; round < 40; ++round) {
        CUI_PrintToWindowView view({0, 0, 400, 300});
        view.setFlipView(round % 2 == 0);
        printAtRandom(view, random, 40, 300);
        for (int at = round % 7; at < 300; at += 7) {
            for (const QRect &part : {QRect(0, at, 400, 3), QRect(at, 0, 3, 300)}) {
                QImage seen(part.size(), QImage::Format_RGB32);
                seen.fill(Qt::white);
                view.render(&seen, QPoint(), part, QWidget::RenderFlags());
                ASSERT_EQ(seen,
                          everyItem(view, part.size(), Qt::white, QTransform::fromTranslate(-part.x(), -part.y())));
            }
        }
    }
}

TEST_F(Screen, isThereWhenTheStatementReturnsAndFollowsTheWidth)
{
    printNumbers();
    EXPECT_LT(view.width(), 400) << "next to the bar";
    EXPECT_NE(content.grab({0, 0, 150, 180}).toImage(), content.grab({200, 0, 150, 180}).toImage());
    bar()->setValue(10000);
    EXPECT_EQ(bar()->value() + scrollView->viewport()->height(), view.height());
    view.clear();
    EXPECT_EQ(bar()->value(), 0);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(bar()->maximum(), 0);
    EXPECT_EQ(view.width(), 400);
    content.resize(300, 100);
    EXPECT_EQ(view.width(), 300);
    view.resize(view.width(), 700);
    view.fixFrameHeight(10);
    EXPECT_EQ(view.height(), 700) << "a program's own height stays";
    EXPECT_EQ(view.viewH(), 30);
}

// Roles are seen by a client of the accessibility bus in the end-to-end tests.
TEST_F(Screen, givesAssistiveTechnologyLinesAttributesAndPositions)
{
    QAccessibleInterface *console = QAccessible::queryAccessibleInterface(&view);
    QAccessibleTextInterface *text = console->textInterface();
    printNumbers();
    view.addString(u"🔴🔴 a\b"_s); // Two of these characters have two units.
    QAccessible::setActive(true);
    textEvents.clear();
    view.setForegroundColor(QColor(1, 2, 3));
    view.setBackgroundColor(QColor(4, 5, 6));
    view.addString(u"b\nc 🔴"_s);
    const QAccessible::State state = console->state();
    EXPECT_TRUE(state.readOnly && state.multiLine && state.focusable && state.selectableText);
    EXPECT_EQ(console->text(QAccessible::Value), view.reader().text().text());
    QStringList found{console->text(QAccessible::Name), console->actionInterface()->actionNames().join(u'/')};
    int start = -1;
    int stop = -1;
    const auto note = [&](const QString &value) { found << u"%1 %2-%3"_s.arg(value).arg(start).arg(stop); };
    note(text->textBeforeOffset(297, QAccessible::WordBoundary, &start, &stop));
    note(text->textAtOffset(297, QAccessible::LineBoundary, &start, &stop));
    note(text->textAfterOffset(293, QAccessible::LineBoundary, &start, &stop));
    note(text->attributes(293, &start, &stop).section(u';', 1));
    note(text->attributes(294, &start, &stop));
    note(text->attributes(299, &start, &stop).left(4));
    for (const auto &[from, to] : {std::pair(80, 110), {80, 111}, {32, 35}, {38, 41}, {23, 140}}) {
        text->scrollToSubstring(from, to);
        found << QString::number(topLine());
    }
    text->addSelection(292, 297);
    text->setSelection(1, 293, 294);
    text->removeSelection(1);
    for (const int index : {1, 0, 0}) {
        text->selection(index, &start, &stop);
        note(u"%1 at %2"_s.arg(text->selectionCount()).arg(text->cursorPosition()));
        text->removeSelection(index);
    }
    for (const auto &[character, unit] : {std::pair(0, 0), {278, 278}, {292, 294}, {298, 300}}) {
        const QRect rect = view.reader().characterRect(unit).toAlignedRect();
        EXPECT_EQ(text->characterRect(character), rect.translated(view.mapToGlobal(QPoint())));
        EXPECT_EQ(text->offsetAtPoint(text->characterRect(character).center()), character);
    }
    EXPECT_TRUE(text->characterRect(-1).isNull() && text->characterRect(text->characterCount()).isNull());
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(0).center() + QPoint(100, 0)), -1);
    view.clear();
    note(text->attributes(0, &start, &stop));
    view.addString(u"x\ny\b"_s);
    view.items().removeAt(0);
    QAccessible::setActive(false);
    view.addString(u"unheard"_s);
    EXPECT_EQ(found.join(u'|'),
              u"Console|SetFocus|c 296-297|c 🔴\n 296-300|c 🔴\n 296-300|font-size:9pt;color:rgb(0,0,0); 290-294|"
              "font-family:\"Menlo\";font-size:9pt;color:rgb(1,2,3);background-color:rgb(4,5,6); 294-296|"
              "font 296-300|26|27|14|14|11|1 at 297 0-0|1 at 297 292-297|0 at 297 0-0| 0-0"_s);
    EXPECT_EQ(
        textEvents.join(u'|'),
        u"b\n 296|c 🔴\n 301|TextSelectionChanged 297|TextCaretMoved 297|TextSelectionChanged 297|"
        "TextCaretMoved 297|TextSelectionChanged 297|TextCaretMoved 297|TextRemoved 0|x\n 2|y 3|TextRemoved 0|y 1"_s);
}

TEST_F(Screen, isReadAndSelectedByKeys)
{
    const double lineHeight = TextAttributes().facts().lineHeight;
    printNumbers();
    content.resize(400, qRound(10 * lineHeight));
    view.addString(u"covered"_s, {3, 600 * lineHeight});
    view.addString(u"e\u0301"_s, {3, 600 * lineHeight});
    QGuiApplication::clipboard()->clear();
    const QString keys =
        u"Right Down Shift+Right Shift+Down Up PgDown Shift+PgDown Ctrl+C PgUp Ctrl+C Ctrl+A Alt+5 F6 Escape "
        "End Up Up Down Right Left Left Right Shift+Home Left Up"_s;
    QStringList seen; // Anchor and caret, first line in view, how much was copied, -1 if not taken and 0 if left.
    for (const QString &key : keys.split(u' ')) {
        view.setFocus();
        const QKeyCombination pressed = QKeySequence(key)[0];
        const bool taken =
            send<QKeyEvent>(&view, QEvent::KeyPress, pressed.key(), pressed.keyboardModifiers(), key.right(1));
        seen << key + QString::asprintf(" %lld-%lld %d %lld %d", view.reader().anchor(), view.reader().caret(),
                                        topLine(), QGuiApplication::clipboard()->text().size(),
                                        taken ? view.hasFocus() : -1);
    }
    EXPECT_EQ(seen.join(u", "_s),
              u"Right 1-1 0 0 1, Down 3-3 0 0 1, Shift+Right 3-4 0 0 1, Shift+Down 3-6 0 0 1, Up 4-4 0 0 1, PgDown "
              "23-23 2 0 1, Shift+PgDown 23-50 11 0 1, Ctrl+C 23-50 11 27 1, PgUp 23-23 11 27 1, Ctrl+C 23-23 11 27 1,"
              " Ctrl+A 0-301 592 27 1, Alt+5 0-301 592 27 -1, F6 0-301 592 27 0, Escape 0-301 592 27 0, End 301-301 "
              "592 27 1, Up 298-298 592 27 1, Up 287-287 99 27 1, Down 298-298 591 27 1, Right 300-300 591 27 1, Left "
              "298-298 591 27 1, Left 297-297 591 27 1, Right 298-298 591 27 1, Shift+Home 298-0 0 27 1, Left 0-0 0 27"
              " 1, Up 0-0 0 27 1"_s);
    EXPECT_EQ(view.accessibleDescription() + u'\n', view.reader().text().text());
    QCoreApplication::processEvents();
    const QImage lit = shown().createMaskFromColor(view.palette().color(QPalette::Highlight).rgb(), Qt::MaskOutColor);
    const QRect frame = scrollView->viewport()->rect();
    const QRect caret(3, 1, 2, qRound(lineHeight) - 1);
    EXPECT_TRUE((QRegion(QBitmap::fromImage(lit)) ^ frame ^ frame.adjusted(1, 1, -1, -1) ^ caret).isEmpty());
}

TEST_F(Screen, isSelectedByDraggingAndLeftByTyping)
{
    printNumbers();
    const auto cell = [this](qsizetype at) { return view.reader().characterRect(at).toAlignedRect(); };
    QTest::mouseClick(&view, Qt::LeftButton, {}, cell(0).center());
    EXPECT_TRUE(field->hasFocus()) << "a click leaves the focus where it is";
    QTest::mousePress(&view, Qt::LeftButton, {}, cell(0).topLeft() + QPoint(1, 3));
    QTest::mouseMove(&view, cell(20).topRight() + QPoint(3, 3));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, cell(21).center());
    QTest::mouseMove(&view, cell(30).center());
    EXPECT_EQ(view.reader().selectedText(), u"0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n1"_s);
    EXPECT_TRUE(view.hasFocus());
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ShiftModifier, cell(4).topLeft() + QPoint(1, 3));
    EXPECT_EQ(view.reader().selectedText(), u"0\n1\n"_s);
    QLineEdit another(scrollView);
    another.show();
    other->setFocus(); // Only while it is used, as a menu bar has it.
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_5);
    EXPECT_EQ(field->text(), u"5"_s) << "what is typed on the console goes to the field that had the focus";
    view.clear();
    EXPECT_FALSE(view.property("canCopy").toBool());
}

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
    CUI_PrintToWindowTextStatement(u"DejaVu Serif"_s, ColorWhite(), QColor(), notGiven, notGiven, 0);
    EXPECT_EQ(look(), u"size 18 color #ffffff background #000000 align 2 DejaVu Serif"_s);
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

TEST_F(Statements, onAGivenWindowActOnThatOne)
{
    Window *const given = open(1);
    open(2);
    CUI_PrintToWindowTextSetFontSize(given, 18);
    CUI_PrintToWindowTextSetForegroundColor(given, Qt::red);
    CUI_PrintToWindowTextSetTabInterval(given, 50);
    CUI_PrintToWindowTextSetBackgroundColor(given, Qt::blue);
    CUI_PrintToWindowTextSetAlignment(given, 2);
    EXPECT_EQ(CUI_PrintToWindowPrint(given, u"\t\b"_s).x(), 53);
    EXPECT_EQ(CUI_PrintToWindowViewObj(given)->dump(),
              u"text (250,0) \"\\x09\\x08\" size 18 color #ff0000 background #0000ff\n"_s);
    EXPECT_EQ(outputView()->dump(), QString());
}

} // namespace
