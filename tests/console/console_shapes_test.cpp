#include "tests/console/printing.h"

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

TEST_F(Console, aPolylineIsASegmentPerPoint)
{
    view.addLines({{1, 2}}, false);
    EXPECT_EQ(view.items().size(), 0);
    EXPECT_EQ(view.currentLinePoint(), QPointF(1, 2));
    EXPECT_EQ(view.viewH(), 0);
    view.setCurrentLineWidth(4);
    view.setCurrentLineCapStyle(1);
    view.setCurrentLineDashPattern({5, 2.5});
    view.setCurrentLineDashPhase(1);
    view.setCurrentStrokeColor(Qt::red);
    view.addLines({{10, 100}, {20, 50}}, false);
    view.addLines({{30, 99}}, true);
    view.addLines({}, false);
    const QString style = u" width 4 cap 1 dash 5,2.5 phase 1 stroke #ff0000\n"_s;
    EXPECT_EQ(view.dump(), QString(u"line (10,100) to (10,100)" + style + u"line (10,100) to (20,50)" + style +
                                   u"line (20,50) to (30,99)" + style));
    EXPECT_EQ(view.viewH(), 122);
}

TEST_F(Console, aShapesOwnColoursWinOverThePens)
{
    view.setCurrentStrokeColor(Qt::red);
    view.setCurrentFillColor(Qt::red);
    view.setCurrentLineWidth(3);
    view.addRect({10, 200, 400, 15}, Qt::black, Qt::white);
    EXPECT_EQ(view.viewH(), 200 + 15 + 1.5 + 20);
    view.addOval({0, 0, 5, 6}, Qt::blue, QColor());
    EXPECT_EQ(view.dump(), u"rect (10,200) size 400x15 width 3 stroke #000000 fill #ffffff\n"
                           u"oval (0,0) size 5x6 width 3 stroke #0000ff fill none\n"_s);
}

TEST_F(Console, theArchiveHasTenKeysAndThosePresent)
{
    view.addString(u"abc\b"_s);
    view.addOval({1, 2, 3, 4}, Qt::black, QColor());
    view.setCurrentLineDashPattern({1, 2});
    view.addLines({{5, 6}, {7, 8}}, true);
    view.addRect({1, 2, 3, 4}, Qt::black, Qt::green);
    const QStringList always{u"fillFlag"_s, u"lineCapStyle"_s, u"lineDashPhase"_s, u"lineWidth"_s,  u"pt"_s,
                             u"pt1"_s,      u"pt2"_s,          u"rect"_s,          u"strokeFlag"_s, u"type"_s};
    QStringList beside;
    const QVariantList array = view.itemArray();
    for (const QVariant &item : array) {
        QStringList keys = item.toMap().keys();
        for (const QString &key : always) {
            EXPECT_EQ(keys.removeAll(key), 1) << key.toStdString();
        }
        beside.append(keys.join(u' '));
    }
    const QString line = u"lineDashPattern strokeColor"_s;
    EXPECT_EQ(beside, (QStringList{u"attributes text"_s, u"strokeColor"_s, line, line, QString(u"fillColor " + line)}));
    const auto value = [&array](qsizetype item, const QString &key) { return array.at(item).toMap().value(key); };
    EXPECT_EQ(value(0, u"attributes"_s), u"abc\b"_s);
    EXPECT_EQ(value(0, u"pt"_s), QPointF(3, 0));
    EXPECT_EQ(value(0, u"lineWidth"_s), 0.0) << "nothing gave the text a line style";
    EXPECT_EQ(value(3, u"type"_s), 1U);
    EXPECT_EQ(value(3, u"pt2"_s), QPointF(7, 8));
    EXPECT_EQ(value(3, u"lineDashPattern"_s), QVariantList({1.0, 2.0}));
    EXPECT_EQ(value(4, u"rect"_s), QRectF(1, 2, 3, 4));
}

TEST_F(Console, strokesAreSeenInTheMiddleOfALine)
{
    // The pixels from x 4 to 35, '#' dark, along a line from x 10 to 30.
    const Table<LineStyle, std::string> rows = {
        {"flat by default", {.lineWidth = 8}, "......####################......"},
        {"butt", {.lineWidth = 8, .lineCapStyle = 0}, "......####################......"},
        {"square", {.lineWidth = 8, .lineCapStyle = 2}, "..############################.."},
        {"round", {.lineWidth = 8, .lineCapStyle = 1}, "..############################.."},
        {"negative width", {.lineWidth = -1}, "................................"},
        {"thinnest", {.lineWidth = 0}, "......####################......"},
        {"dashes in pixels", {.lineWidth = 3, .lineDashPattern = {5, 3}}, "......#####...#####...####......"},
        {"dashes of the thinnest", {.lineWidth = 0, .lineDashPattern = {5, 3}}, "......#####...#####...####......"},
        {"phase", {.lineWidth = 3, .lineDashPattern = {5, 3}, .lineDashPhase = 2}, "......###...#####...#####......."},
        {"odd pattern", {.lineWidth = 2, .lineDashPattern = {4}}, "......####....####....####......"},
        {"useless pattern", {.lineWidth = 3, .lineDashPattern = {0, 0}}, "......####################......"},
    };
    for (const auto &[name, style, expected] : rows) {
        view.clear();
        view.setCurrentLineWidth(style.lineWidth);
        view.setCurrentLineCapStyle(style.lineCapStyle);
        view.setCurrentLineDashPattern(style.lineDashPattern);
        view.setCurrentLineDashPhase(style.lineDashPhase);
        view.setCurrentLinePoint({10, 20.5});
        view.addLines({{30, 20.5}}, true);
        const QImage image = picture(1);
        std::string row;
        for (int x = 4; x < 36; ++x) {
            row += image.pixelColor(x, 20).lightness() < 128 ? '#' : '.';
        }
        EXPECT_EQ(row, expected) << name;
    }
}

TEST_F(Console, aNegativeWidthFillsWithoutStroking)
{
    view.setCurrentLineWidth(-1);
    view.addOval({10, 10, 20, 20}, Qt::black, Qt::red);
    view.addRect({50, 10, 20, 20}, Qt::black, Qt::red);
    const QImage image = picture(1);
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(50, 10), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(49, 10), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(70, 29), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::white)) << "an oval has no corner";
}

} // namespace
