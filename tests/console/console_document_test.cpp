#include "tests/console/printing.h"

#include <QFontMetricsF>
#include <QGuiApplication>

using namespace tetrad;

namespace {

TEST_F(Console, putsOnePieceAfterTheOther)
{
    // The items as Console::items gives them, then where printing ended: columns from the inset, and lines.
    const Table<QString, const char *, double, double> rows = {
        {"line", u"abc"_s, "abc@3,0 @3,1", 0, 1},
        {"nothing is an empty line", u""_s, "@3,0 @3,1", 0, 1},
        {"backspace stays on the line", u"abc\b"_s, "abc\b@3,0", 3, 0},
        {"newline inside", u"a\nb"_s, "a@3,0 b@3,1 @3,2", 0, 2},
        {"own newline and one more", u"a\n"_s, "a@3,0 @3,1 @3,2", 0, 2},
        {"every newline", u"1\n2\v3\f4\r5\u00856\u20287\u20298"_s,
         "1@3,0 2@3,1 3@3,2 4@3,3 5@3,4 6@3,5 7@3,6 8@3,7 @3,8", 0, 8},
        {"other controls have no width", u"\x01\x02z\u007f\u0090\b"_s, "\x01\x02z\x7f\xc2\x90\b@3,0", 1, 0},
        {"blanks at the end count", u"a  \b"_s, "a  \b@3,0", 3, 0},
    };
    for (const auto &[name, printed, expected, endColumn, endLine] : rows) {
        SCOPED_TRACE(name);
        page.clear();
        const QPointF end = page.addString(printed);
        EXPECT_EQ(items(), QString::fromUtf8(expected));
        EXPECT_DOUBLE_EQ(end.x(), 3 + endColumn * advance);
        EXPECT_DOUBLE_EQ(end.y(), endLine * lineHeight);
        EXPECT_EQ(page.currentPoint(), end);
        EXPECT_DOUBLE_EQ(page.viewH(), (endLine + 1) * lineHeight + 20);
        EXPECT_DOUBLE_EQ(page.documentSize().height(), page.viewH());
    }
}

TEST_F(Console, tabsCellsAndAlignmentHaveTheirColumns)
{
    page.setTabInterval(50);
    EXPECT_DOUBLE_EQ(page.addString(u"abc\t"_s).x(), 3 + 50);
    EXPECT_DOUBLE_EQ(page.addString(u"12345678\t"_s).x(), 3 + 50 + 100);
    page.setTabInterval(0);
    EXPECT_DOUBLE_EQ(page.addString(u"\t"_s).x(), 3 + 50 + 100);
    page.setColumnRow(4, 30);
    EXPECT_EQ(page.currentPoint(), QPointF(4 * advance, 30 * lineHeight)) << "without the inset";
    EXPECT_DOUBLE_EQ(page.viewH(), 30 * lineHeight + 20);
    const double lefts[] = {7, (400 - 4 * advance) / 2, 400 - 4 * advance, 7};
    for (const int alignment : {0, 1, 2, 3}) {
        page.setCurrentPoint({7, 0});
        page.setAlignment(alignment);
        page.addString(u"abcd\b"_s);
        EXPECT_DOUBLE_EQ(page.currentPoint().x(), 7 + 4 * advance) << "moves on as ever";
        EXPECT_DOUBLE_EQ(page.items().at(page.items().size() - 1).pt().x(), lefts[alignment]) << alignment;
    }
}

TEST_F(Console, theDocumentOnlyGrows)
{
    for (const auto &[bottom, height] :
         QList<std::pair<double, double>>{{100, 120}, {119.5, 120}, {120, 140}, {10, 140}, {qQNaN(), 140}}) {
        page.fixFrameHeight(bottom);
        EXPECT_EQ(page.viewH(), height) << bottom;
    }
    page.setViewH(0);
    page.fixFrameHeight(10);
    EXPECT_EQ(page.viewH(), 30);
    EXPECT_EQ(page.documentSize().height(), 140);
    page.setCurrentLineWidth(3);
    page.addRect({10, 200, 400, 15}, Qt::black, Qt::white);
    EXPECT_EQ(page.viewH(), 200 + 15 + 1.5 + 20);
}

TEST_F(Console, clearEmptiesTheDocumentAndKeepsTheStyle)
{
    page.setForegroundColor(Qt::green);
    page.setFontSize(18.5);
    page.setAlignment(2);
    page.setTextInset(5);
    page.addString(u"abc"_s, {50, 500});
    page.clear();
    EXPECT_TRUE(page.textString().isNull());
    EXPECT_EQ(QPointF(page.viewH(), page.documentSize().height()), QPointF(0, 1));
    EXPECT_EQ(page.currentPoint(), QPointF(5, 0));
    EXPECT_EQ(page.currentAlignment(), 2);
    page.addString(u"x\b"_s, {1, 2});
    page.resetAttributes();
    EXPECT_EQ(page.currentAlignment(), 0);
    page.addString(u"y\b"_s, {1, 2});
    EXPECT_TRUE(page.items().dump().endsWith(u"\"x\\x08\" size 18.5 color #00ff00\n"
                                             "text (1,2) \"y\\x08\" size 12 color standard\n"_s));
}

TEST_F(Console, anItemKeepsTheAttributesItWasPrintedWith)
{
    const QColor standard = QGuiApplication::palette().color(QPalette::WindowText);
    EXPECT_EQ(page.currentAttributes().value(u"foregroundColor"_s).value<QColor>(), standard);
    page.addString(u"a\b"_s);
    page.setFontName(u"No Such Family"_s);
    QFont tooLarge(u"DejaVu Serif"_s);
    tooLarge.setPixelSize(5000);
    page.setAttributes({{u"font"_s, tooLarge}, {u"backgroundColor"_s, QColor(Qt::blue)}, {u"mood"_s, 7}});
    for (const double size : {-1.0, 0.0, 0.5, 4097.0, qQNaN()}) {
        page.setFontSize(size);
    }
    const QVariantMap now = page.currentAttributes();
    const auto font = now.value(u"font"_s).value<QFont>();
    EXPECT_TRUE(font.family() == u"DejaVu Serif" && font.pixelSize() == 12) << font.toString().toStdString();
    EXPECT_EQ(now.value(u"mood"_s), 7);
    EXPECT_EQ(now.value(u"backgroundColor"_s).value<QColor>(), QColor(Qt::blue));
    EXPECT_EQ(page.items().at(0).attributes().backgroundColor(), QColor(Qt::transparent));
}

TEST_F(Console, aProgramChangesItsItems)
{
    const auto text = [](const QString &string) { return CUI_PrintToWindowItem::itemWithString(string, {}, {}); };
    for (const QString &string : {u"a"_s, u"c"_s, u"e"_s}) {
        page.items().append(text(string));
    }
    page.items().insert(1, text(u"b"_s));
    page.items().replace(3, text(u"d"_s));
    page.items().removeAt(0);
    page.items().removeAt(3);
    page.items().replace(-1, text(u"x"_s));
    EXPECT_EQ(items(), u"b@0,0 c@0,0 d@0,0"_s);
    EXPECT_EQ(page.items().itemsIn({0, 0, 9, 9}), (std::vector<quint32>{0, 1, 2}));
    EXPECT_EQ(page.reader().text().text(), u"b c d"_s);
    page.addString(u"line\n"_s.repeated(2000));
    page.addRect({0, 0, 10, 90000}, Qt::black, QColor());
    const auto near = page.items().itemsIn({0, 9000, 400, 250});
    EXPECT_TRUE(near.size() < 60 && near.back() == page.items().size() - 1)
        << "lines nearby and what reaches from afar";
}

TEST(Measuring, agreesWithTheFont)
{
    for (const double size : {9.0, 12.0, 12.5, 18.0}) {
        TextAttributes attributes;
        attributes.setFontSize(size);
        const QString text = u"Make 24 out of 1 3 4 6: fi, ffi, ->, =="_s;
        const QFontMetricsF metrics(attributes.facts().font);
        EXPECT_NEAR(measureText(text, attributes).width, metrics.horizontalAdvance(text), 0.01) << size;
        const double advance = attributes.facts().plainAdvance;
        EXPECT_EQ(measureText(u"0"_s.repeated(2000), attributes).width, std::floor(10000 / advance) * advance) << size;
    }
}

TEST_F(Console, aPolylineIsASegmentPerPoint)
{
    page.addLines({{1, 2}}, false);
    EXPECT_EQ(page.items().size(), 0);
    EXPECT_EQ(page.currentLinePoint(), QPointF(1, 2));
    EXPECT_EQ(page.viewH(), 0);
    page.addLines({}, true);
    EXPECT_EQ(page.viewH(), 20) << "grown to no height, as by any line";
    page.setCurrentLineWidth(4);
    page.setCurrentLineCapStyle(1);
    page.setCurrentLineDashPattern({5, 2.5});
    page.setCurrentLineDashPhase(1);
    page.setCurrentStrokeColor(Qt::red);
    page.addLines({{10, 100}, {20, 50}}, false);
    page.addLines({{30, 99}}, true);
    page.addLines({}, false);
    const QString style = u" width 4 cap 1 dash 5,2.5 phase 1 stroke #ff0000\n"_s;
    EXPECT_EQ(page.items().dump(), QString(u"line (10,100) to (10,100)" + style + u"line (10,100) to (20,50)" + style +
                                           u"line (20,50) to (30,99)" + style));
    EXPECT_EQ(page.viewH(), 122);
}

TEST_F(Console, theArchiveHasWhatAnItemIsMadeOf)
{
    page.addString(u"abc\b"_s);
    page.setCurrentLineWidth(2.5);
    page.setCurrentLineCapStyle(1);
    page.setCurrentLineDashPattern({1, 2});
    page.setCurrentLineDashPhase(3);
    page.setCurrentStrokeColor(Qt::blue);
    page.setCurrentLinePoint({5, 6});
    page.addLines({{7, 8}}, true);
    page.addRect({1, 2, 3, 4}, Qt::red, Qt::green);
    page.addOval({1, 2, 3, 4}, Qt::red, QColor());
    // The keys of each, and their values.
    const QPointF none;
    const QVariantList dashes{1.0, 2.0};
    const Table<QVariantList> rows = {
        {"attributes fillFlag lineCapStyle lineDashPhase lineWidth pt pt1 pt2 rect strokeFlag text type",
         {u"abc\b"_s, false, 0U, 0.0, 0.0, QPointF(3, 0), none, none, QRectF(), false, u"abc\b"_s, 0U}},
        {"fillFlag lineCapStyle lineDashPattern lineDashPhase lineWidth pt pt1 pt2 rect strokeColor strokeFlag type",
         {false, 1U, dashes, 3.0, 2.5, none, QPointF(5, 6), QPointF(7, 8), QRectF(), QColor(Qt::blue), false, 1U}},
        {"fillColor fillFlag lineCapStyle lineDashPattern lineDashPhase lineWidth pt pt1 pt2 rect strokeColor "
         "strokeFlag type",
         {QColor(Qt::green), false, 1U, dashes, 3.0, 2.5, none, none, none, QRectF(1, 2, 3, 4), QColor(Qt::red), false,
          2U}},
        {"fillFlag lineCapStyle lineDashPattern lineDashPhase lineWidth pt pt1 pt2 rect strokeColor strokeFlag type",
         {false, 1U, dashes, 3.0, 2.5, none, none, none, QRectF(1, 2, 3, 4), QColor(Qt::red), false, 3U}},
    };
    for (const auto &[keys, values] : rows) {
        const QVariantMap map = page.itemArray().value(values.last().toInt()).toMap();
        EXPECT_EQ(QStringList(map.keys()).join(u' '), QString::fromLatin1(keys));
        EXPECT_EQ(map.values(), values) << keys;
    }
}

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
    // What is printed and what of it is spoken, none if nobody asks.
    const std::pair<QString, QString> screens[] = {{u"rules\nmore rules\n\n1 2"_s, u"rules\nmore rules\n1 2"_s},
                                                   {u"rules\nmore rules\n\n3 4"_s, u"3 4"_s},
                                                   {u"rules\nless rules\n\n\n\n1 2"_s, u"rules\nless rules\n1 2"_s},
                                                   {u"\nunread"_s, {}},
                                                   {u"rules\nless rules\n\nnew"_s, u"new"_s}};
    for (const auto &[printed, spoken] : screens) {
        page.clear();
        page.addString(printed);
        if (!spoken.isNull()) {
            EXPECT_EQ(page.reader().takeNew(), spoken);
        }
        for (int time = 0; time < 2 && !spoken.isNull(); ++time) {
            page.addString(u"error"_s);
            EXPECT_EQ(page.reader().takeNew(), u"error"_s) << "said each time";
        }
    }
}

// A text's ink may reach below the next line, which is nearer. What is at most 500 away is searched first.
TEST_F(Console, theCaretGoesToTheNearestLineFromFarBelow)
{
    page.setFontSize(60);
    page.addString(u"high"_s, {3, 0});
    const double height = page.reader().characterRect(0).height();
    page.setFontSize(12);
    page.addString(u"low"_s, {3, height});
    EXPECT_EQ(page.reader().caretNear({3, 500 + 1.5 * height + 14}), 5);
}

} // namespace
