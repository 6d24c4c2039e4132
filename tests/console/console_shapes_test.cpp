#include "tests/console/printing.h"

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

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

TEST_F(Console, aShapesOwnColoursWinOverThePens)
{
    page.setCurrentStrokeColor(Qt::red);
    page.setCurrentFillColor(Qt::red);
    page.setCurrentLineWidth(3);
    page.addRect({10, 200, 400, 15}, Qt::black, Qt::white);
    EXPECT_EQ(page.viewH(), 200 + 15 + 1.5 + 20);
    page.addOval({0, 0, 5, 6}, Qt::blue, QColor());
    EXPECT_EQ(page.items().dump(), u"rect (10,200) size 400x15 width 3 stroke #000000 fill #ffffff\n"
                                   u"oval (0,0) size 5x6 width 3 stroke #0000ff fill none\n"_s);
}

TEST_F(Console, theArchiveIsTheSameAsEver)
{
    page.addString(u"abc\b"_s);
    page.addOval({1, 2, 3, 4}, Qt::red, QColor());
    page.setCurrentLineWidth(2.5);
    page.setCurrentLineCapStyle(1);
    page.setCurrentLineDashPattern({1, 2});
    page.setCurrentLineDashPhase(0.5);
    page.setCurrentStrokeColor(Qt::blue);
    page.addLines({{5, 6}, {7, 8}}, true);
    page.addRect({1, 2, 3, 4}, Qt::black, Qt::green);
    CUI_PrintToWindowItem flagged = page.items().at(4);
    flagged.setStrokeFlag(true);
    flagged.setFillFlag(true);
    page.items().append(flagged);
    const QVariantMap plain{{u"type"_s, 0U},         {u"pt"_s, QPointF()},      {u"pt1"_s, QPointF()},
                            {u"pt2"_s, QPointF()},   {u"rect"_s, QRectF()},     {u"lineWidth"_s, 0.0},
                            {u"lineCapStyle"_s, 0U}, {u"lineDashPhase"_s, 0.0}, {u"fillFlag"_s, false},
                            {u"strokeFlag"_s, false}};
    const QVariantMap style{{u"lineWidth"_s, 2.5},
                            {u"lineCapStyle"_s, 1U},
                            {u"lineDashPhase"_s, 0.5},
                            {u"lineDashPattern"_s, QVariantList{1.0, 2.0}},
                            {u"strokeColor"_s, QColor(Qt::blue)}};
    const QRectF rect(1, 2, 3, 4);
    const Table<QList<QVariantMap>> rows = {
        {"text", {{{u"pt"_s, QPointF(3, 0)}, {u"text"_s, u"abc\b"_s}, {u"attributes"_s, u"abc\b"_s}}}},
        {"oval", {{{u"type"_s, 3U}, {u"rect"_s, rect}, {u"lineWidth"_s, 1.0}, {u"strokeColor"_s, QColor(Qt::red)}}}},
        {"line", {style, {{u"type"_s, 1U}, {u"pt2"_s, QPointF(5, 6)}}}},
        {"next line", {style, {{u"type"_s, 1U}, {u"pt1"_s, QPointF(5, 6)}, {u"pt2"_s, QPointF(7, 8)}}}},
        {"rectangle",
         {style,
          {{u"type"_s, 2U},
           {u"rect"_s, rect},
           {u"strokeColor"_s, QColor(Qt::black)},
           {u"fillColor"_s, QColor(Qt::green)}}}},
        {"flags",
         {style,
          {{u"type"_s, 2U},
           {u"rect"_s, rect},
           {u"strokeColor"_s, QColor(Qt::black)},
           {u"fillColor"_s, QColor(Qt::green)},
           {u"strokeFlag"_s, true},
           {u"fillFlag"_s, true}}}},
    };
    const QVariantList archive = page.itemArray();
    ASSERT_EQ(archive.size(), static_cast<qsizetype>(rows.size()));
    for (size_t i = 0; i < rows.size(); ++i) {
        QVariantMap expected = plain;
        for (const QVariantMap &given : std::get<1>(rows[i])) {
            expected.insert(given);
        }
        EXPECT_EQ(archive.at(static_cast<qsizetype>(i)).toMap(), expected) << std::get<0>(rows[i]);
    }
}

TEST_F(Console, strokesAreSeenInTheMiddleOfALine)
{
    // The pixels from x 4 to 35, '#' dark, along a line from x 10 to 30.
    const Table<LineStyle, std::string> rows = {
        {"thinnest", {.lineWidth = 0}, "......####################......"},
        {"dashes in pixels", {.lineWidth = 3, .lineDashPattern = {5, 3}}, "......#####...#####...####......"},
        {"dashes of the thinnest", {.lineWidth = 0, .lineDashPattern = {5, 3}}, "......#####...#####...####......"},
        {"phase", {.lineWidth = 3, .lineDashPattern = {5, 3}, .lineDashPhase = 2}, "......###...#####...#####......."},
        {"odd pattern", {.lineWidth = 2, .lineDashPattern = {4}}, "......####....####....####......"},
        {"useless pattern", {.lineWidth = 3, .lineDashPattern = {0, 0}}, "......####################......"},
    };
    for (const auto &[name, style, expected] : rows) {
        page.clear();
        page.setCurrentLineWidth(style.lineWidth);
        page.setCurrentLineDashPattern(style.lineDashPattern);
        page.setCurrentLineDashPhase(style.lineDashPhase);
        page.setCurrentLinePoint({10, 20.5});
        page.addLines({{30, 20.5}}, true);
        const QImage image = pictureOf(page, 1, {36, 40});
        std::string row;
        for (int x = 4; x < 36; ++x) {
            row += image.pixelColor(x, 20).lightness() < 128 ? '#' : '.';
        }
        EXPECT_EQ(row, expected) << name;
    }
}

} // namespace
