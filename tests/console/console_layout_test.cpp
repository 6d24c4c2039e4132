#include "tests/console/printing.h"

#include <QGuiApplication>
#include <QTextLayout>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

TEST_F(Console, placesOnePieceAfterTheOther)
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

TEST_F(Console, tabsAndCellsHaveTheirColumns)
{
    page.setTabInterval(50);
    EXPECT_DOUBLE_EQ(page.addString(u"abc\t"_s).x(), 3 + 50);
    EXPECT_DOUBLE_EQ(page.addString(u"12345678\t"_s).x(), 3 + 50 + 100);
    page.setTabInterval(0);
    EXPECT_DOUBLE_EQ(page.addString(u"\t"_s).x(), 3 + 50 + 100);
    page.setColumnRow(4, 30);
    EXPECT_EQ(page.currentPoint(), QPointF(4 * advance, 30 * lineHeight)) << "without the inset";
    EXPECT_DOUBLE_EQ(page.viewH(), 30 * lineHeight + 20);
}

TEST_F(Console, alignmentUsesTheWidthOfTheViewButTheCurrentPointMovesOn)
{
    const auto placed = [this](qint64 alignment) {
        page.setCurrentPoint({7, 0});
        page.setAlignment(alignment);
        page.addString(u"abcd\b"_s);
        EXPECT_DOUBLE_EQ(page.currentPoint().x(), 7 + 4 * advance);
        return page.items().at(page.items().size() - 1).pt().x();
    };
    EXPECT_DOUBLE_EQ(placed(0), 7);
    EXPECT_DOUBLE_EQ(placed(1), (400 - 4 * advance) / 2);
    EXPECT_DOUBLE_EQ(placed(2), 400 - 4 * advance);
    EXPECT_DOUBLE_EQ(placed(3), 7);
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
}

TEST_F(Console, clearEmptiesTheDocumentAndKeepsTheStyle)
{
    page.setForegroundColor(Qt::green);
    page.setFontSize(18);
    page.setAlignment(2);
    page.setTextInset(5);
    page.addString(u"abc"_s, {50, 500});
    page.clear();
    EXPECT_TRUE(page.textString().isNull());
    EXPECT_EQ(page.viewH(), 0);
    EXPECT_EQ(page.documentSize().height(), 1);
    EXPECT_EQ(page.currentPoint(), QPointF(5, 0));
    page.addString(u"x\b"_s);
    EXPECT_EQ(page.currentAlignment(), 2);
    page.resetAttributes();
    EXPECT_EQ(page.currentAlignment(), 0);
    page.addString(u"y\b"_s, {1, 2});
    const QString dump = page.items().dump();
    EXPECT_TRUE(dump.contains(u"\"x\\x08\" size 18 color #00ff00\n"_s)) << dump.toStdString();
    EXPECT_TRUE(dump.endsWith(u"text (1,2) \"y\\x08\" size 12 color standard\n"_s)) << dump.toStdString();
}

TEST_F(Console, anItemKeepsTheAttributesItWasPrintedWith)
{
    EXPECT_EQ(page.currentAttributes().value(u"foregroundColor"_s).value<QColor>(),
              QGuiApplication::palette().color(QPalette::WindowText));
    page.addString(u"a\b"_s);
    page.setAttributes({{u"backgroundColor"_s, QColor(Qt::blue)}, {u"mood"_s, 7}});
    page.setFontName(u"No Such Family"_s);
    QFont tooLarge(u"DejaVu Serif"_s);
    tooLarge.setPixelSize(5000);
    page.setAttributes({{u"font"_s, tooLarge}});
    for (const double size : {-1.0, 0.0, 0.5, 4097.0, qQNaN()}) {
        page.setFontSize(size);
    }
    const QVariantMap now = page.currentAttributes();
    const auto font = now.value(u"font"_s).value<QFont>();
    EXPECT_TRUE(now.value(u"mood"_s) == 7 && font.family() == u"DejaVu Serif" && font.pixelSize() == 12)
        << font.toString().toStdString();
    EXPECT_EQ(page.items().at(0).attributes().backgroundColor(), QColor(Qt::transparent));
}

TEST_F(Console, aProgramChangesItsItems)
{
    const auto texts = [this] { return items().remove(u"@0,0"_s); };
    const auto text = [](const QString &string) { return CUI_PrintToWindowItem::itemWithString(string, {}, {}); };
    for (const QString &string : {u"a"_s, u"c"_s, u"e"_s}) {
        page.items().append(text(string));
    }
    page.items().insert(1, text(u"b"_s));
    page.items().replace(3, text(u"d"_s));
    page.items().removeAt(0);
    page.items().removeAt(3);
    page.items().replace(-1, text(u"x"_s));
    EXPECT_EQ(texts(), u"b c d"_s);
    EXPECT_EQ(page.items().itemsIn({0, 0, 9, 9}), (std::vector<quint32>{0, 1, 2}));
    EXPECT_EQ(page.reader().text().text(), u"b c d"_s);
}

TEST(Measuring, agreesWithLayingOut)
{
    for (const double size : {9.0, 12.0, 12.5, 18.0}) {
        TextAttributes attributes;
        attributes.setFontSize(size);
        for (const QString &text : {u"1-3/4"_s, u" 24 "_s, u"Make 24 out of 1 3 4 6: fi, ffi, ->, =="_s}) {
            QTextLayout layout(text, attributes.facts().font);
            layout.beginLayout();
            QTextLine line = layout.createLine();
            line.setLineWidth(9000);
            layout.endLayout();
            const double trailing = line.cursorToX(static_cast<int>(text.size()));
            EXPECT_DOUBLE_EQ(measureText(text, attributes).width, trailing) << size << text.toStdString();
        }
    }
}

TEST(Measuring, theBoundingRectangleIsNotWiderThanTheLimit)
{
    for (const QString &text : {QString(5000, u'x'), QString(5000, u'\u00e9'), u"ab "_s.repeated(3000)}) {
        const double width = measureText(text, TextAttributes()).width;
        EXPECT_LE(width, 10000);
        EXPECT_GT(width, 9900);
    }
}

} // namespace
