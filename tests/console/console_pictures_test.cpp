#include "runtime/console/document/emoji_runs.h"
#include "tests/console/printing.h"

#include <QFontDatabase>
#include <QRawFont>

using namespace tetrad;

namespace {

const QString block = u"\u2588\b"_s; // fills its cell

using Page = ConsoleDocument;

/// Draws each row on a page of 12 x 6 fields and compares the pixel in the middle of every field with the row's
/// picture: the letter of its colour, '.' for white, '+' for any other, '/' at the end of a line.
void compare(const Table<std::string, std::function<void(Page &)>> &rows, int step)
{
    const QMap<QRgb, char> letters{{0xFFFFFFFF, '.'}, {0xFF000000, 'k'}, {0xFFFF0000, 'r'}, {0xFF00FF00, 'g'}};
    for (const auto &[name, expected, draw] : rows) {
        Page page(QSizeF(12, 6) * step);
        page.setViewH(1000); // It does not grow.
        page.setCurrentLineWidth(2);
        draw(page);
        const QImage image = pictureOf(page, 1, {12 * step, 6 * step});
        std::string seen;
        for (int y = step / 2; y < image.height(); y += step) {
            for (int x = step / 2; x < image.width(); x += step) {
                seen += letters.value(image.pixel(x, y), '+');
            }
            seen += '/';
        }
        EXPECT_EQ(seen, expected + '/') << name;
    }
}

// A picture and how it is drawn, in two lines each.
// clang-format off

TEST(Pictures, ofShapes)
{
    const auto line = [](quint32 cap) {
        return [cap](Page &page) {
            page.setCurrentLineWidth(4);
            page.setCurrentLineCapStyle(cap);
            page.setCurrentLinePoint({4, 3});
            page.addLines({{8, 3}}, true);
        };
    };
    const auto dashed = [](double width, const QList<double> &dashes, double phase) {
        return [=](Page &page) {
            page.setCurrentLineWidth(width);
            page.setCurrentLineDashPattern(dashes);
            page.setCurrentLineDashPhase(phase);
            page.setCurrentLinePoint({1, 2.5});
            page.addLines({{11, 2.5}}, true);
        };
    };
    compare({
        {"line", "............/....kkkk..../....kkkk..../....kkkk..../....kkkk..../............", line(0)},
        {"square cap", "............/..kkkkkkkk../..kkkkkkkk../..kkkkkkkk../..kkkkkkkk../............", line(2)},
        {"round cap", "............/..++kkkk++../..+kkkkkk+../..+kkkkkk+../..++kkkk++../............", line(1)},
        {"dashes in pixels", "............/.kkkkk...kk./.kkkkk...kk./.kkkkk...kk./............/............",
         dashed(3, {5, 3}, 0)},
        {"dashes of the thinnest", "............/............/.kkkkk...kk./............/............/............",
         dashed(0, {5, 3}, 0)},
        {"phase", "............/............/.kkk...kkkk./............/............/............", dashed(1, {5, 3}, 2)},
        {"odd pattern", "............/............/.kkkk....kk./............/............/............", dashed(1, {4}, 0)},
        {"useless pattern", "............/............/.kkkkkkkkkk./............/............/............",
         dashed(1, {0, 0}, 0)},
        {"dashes much wider than long", "............/.kkkkkkkkkk./.kkkkkkkkkk./.kkkkkkkkkk./............/............",
         dashed(3, {0.05, 0.05}, 0)},
        {"stroke colour", "............/.rr........./.rr........./.rr........./.rrrrrrrr.../..rrrrrrr...",
         [](Page &page) { page.setCurrentStrokeColor(Qt::red); page.addLines({{2, 1}, {2, 5}, {9, 5}}, false); }},
        {"open rectangle", ".rrrrrrrrrr./.rrrrrrrrrr./.rr......rr./.rr......rr./.rrrrrrrrrr./.rrrrrrrrrr.",
         [](Page &page) { page.addRect({2, 1, 8, 4}, Qt::red, QColor()); }},
        {"rectangle without end", "............/............/.....rrrrrrr/.....rrrrrrr/.....rrggggg/.....rrggggg",
         [](Page &page) { page.addRect({6, 3, 1e300, 1e300}, Qt::red, Qt::green); }},
        {"filled rectangle", ".rrrrrrrrrr./.rrrrrrrrrr./.rrggggggrr./.rrggggggrr./.rrrrrrrrrr./.rrrrrrrrrr.",
         [](Page &page) { page.addRect({2, 1, 8, 4}, Qt::red, Qt::green); }},
        {"open oval", "+++rrrrrr+++/+r++++++++r+/+r+......+r+/+r+......+r+/+r++++++++r+/+++rrrrrr+++",
         [](Page &page) { page.addOval({1, 0, 10, 6}, Qt::red, QColor()); }},
        {"filled oval", "+++rrrrrr+++/+r++++++++r+/+r+gggggg+r+/+r+gggggg+r+/+r++++++++r+/+++rrrrrr+++",
         [](Page &page) { page.addOval({1, 0, 10, 6}, Qt::red, Qt::green); }},
        {"negative width", "......++++++/......+gggg+/.gggg.+gggg+/.gggg.+gggg+/.gggg.+gggg+/......++++++",
         [](Page &page) {
             page.setCurrentLineWidth(-1); page.addRect({1, 2, 4, 3}, Qt::red, Qt::green);
             page.addOval({6, 0, 6, 6}, Qt::red, Qt::green); page.addLines({{1, 1}, {11, 1}}, false);
         }},
        {"later ones on top", ".rrrrrrrr.../.rrrrrrrrrr./.rrggrrrrrr./.rrrrrrkkrr./.rrrrrrrrrr./.....rrrrrr.",
         [](Page &page) {
             page.addRect({2, 1, 6, 3}, Qt::red, Qt::green); page.addRect({6, 2, 4, 3}, Qt::red, Qt::black);
         }},
        {"upwards", ".......kkkk./......kkkkk./rrrr..kk..../rrrr..kk..../rrrr..kk..../rrrr........",
         [](Page &page) {
             page.setFlipView(false); page.addRect({1, 1, 2, 2}, Qt::red, Qt::green);
             page.addLines({{7, 1}, {7, 5}, {11, 5}}, false);
         }},
    }, 1);
}

TEST(Pictures, ofTexts)
{
    compare({
        {"at its point", "............/..kk......../..kk......../..kk......../............/............",
         [](Page &page) { page.addString(block, {8, 4}); }},
        {"colour", "............/............/......rr..../......rr..../......rr..../............",
         [](Page &page) { page.setForegroundColor(Qt::red); page.addString(block, {24, 8}); }},
        {"background", "............/..g+k+g...../..g+k+g...../..g+k+g...../............/............",
         [](Page &page) { page.setBackgroundColor(Qt::green); page.addString(u" \u2588 \b"_s, {8, 4}); }},
        {"font size", "............/..kkk......./..kkk......./..kkk......./..kkk......./..kkk.......",
         [](Page &page) { page.setFontSize(18); page.addString(block, {8, 4}); }},
        {"font name", "............/..kkk+....../..kkk+....../..kkk+....../..kkk+....../..kkk+......",
         [](Page &page) { page.setFontName(u"DejaVu Serif"_s); page.setFontSize(18); page.addString(block, {8, 4}); }},
        {"cell of 18 points", "............/............/............/............/.....kkk..../.....kkk....",
         [](Page &page) { page.setFontSize(18); page.setColumnRow(2, 0.75); page.addString(block); }},
        {"tab", "............/........kk../........kk../........kk../............/............",
         [](Page &page) { page.addString(u"\t\u2588\b"_s, {4, 4}); }},
        {"tab stops", "............/..kk.kk...../..kk.kk...../..kk.kk...../............/............",
         [](Page &page) {
             const ParagraphStyle style{.defaultTabInterval = 20, .tabStops = {8}};
             page.setAttributes({{u"paragraphStyle"_s, QVariant::fromValue(style)}});
             page.addString(u"\t\u2588\t\u2588\b"_s, {0, 4});
         }},
        {"upwards", "............/..kk......../..kk......../..kk......../..kk......../............",
         [](Page &page) { page.setFlipView(false); page.addString(block, {8, 4}); }},
        {"selected, then partly covered", "......gggggg/..kkrrgggggg/..kkrrgggggg/..kkrrr...../............/............",
         [](Page &page) {
             page.addString(u"\u2588\u2588\u2588\b"_s, {8, 4}); page.reader().select(1, 3);
             page.setCurrentLineWidth(-1); page.addRect({24, 0, 30, 12}, QColor(), Qt::green);
         }},
    }, 4);
}

// clang-format on

TEST(Emoji, areFoundInTheText)
{
    const Table<QString, QList<TextRun>> rows = {
        {"digits never", u"0123456789#*+-/() 1\ufe0f"_s, {}},
        {"white circle", u"\u26aa Easy"_s, {{0, 1}}},
        {"level label", u"a 🔴 🔴 Medium"_s, {{2, 2}, {5, 2}}},
        {"neighbours are one run", u"🟡🟡"_s, {{0, 4}}},
        {"selector makes one", u"x\u2764\ufe0fy"_s, {{1, 2}}},
        {"without selector a text", u"\u2764"_s, {}},
        {"text selector unmakes one", u"\u26aa\ufe0e"_s, {}},
        {"skin tone and joiner", u"👩🏽\u200d🚀!"_s, {{0, 7}}},
        {"lone surrogate", QString(QChar(0xD83D)) + QChar(u'a'), {}},
    };
    for (const auto &[name, text, runs] : rows) {
        EXPECT_EQ(emojiRuns(text), runs) << name;
    }
}

TEST(Emoji, andNothingElseIsInTheColourFont)
{
    if (!QFontDatabase::hasFamily(u"Noto Color Emoji"_s)) {
        GTEST_SKIP() << "install fonts-noto-color-emoji";
    }
    const ShapedText label(u"\u26aa 0123456789"_s, TextAttributes());
    QMap<QString, qsizetype> glyphs;
    for (const QGlyphRun &run : label.glyphRuns()) {
        glyphs[run.rawFont().familyName()] += run.glyphIndexes().size();
    }
    const QString textFamily = QRawFont::fromFont(TextAttributes().facts().font).familyName();
    EXPECT_EQ(glyphs, (QMap<QString, qsizetype>{{u"Noto Color Emoji"_s, 1}, {textFamily, 11}}));
}

TEST_F(Console, rowsTouchAtEveryScale)
{
    page.setBackgroundColor(QColor(0, 0, 255, 128));
    page.setForegroundColor(Qt::transparent);
    page.setCurrentLineWidth(-1);
    for (int row = 0; row < 12; ++row) {
        page.addString(u"xxxxxxxxxxxx"_s);
        page.addRect({200, row * lineHeight, 100, lineHeight}, QColor(), QColor(0, 0, 255, 128));
    }
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const QImage rows = pictureOf(page, scale, {400, 300});
        for (const int x : {qRound(20 * scale), qRound(220 * scale)}) {
            EXPECT_NE(rows.pixelColor(x, 0), QColor(Qt::white)) << scale;
            for (int y = 0; y < qFloor(12 * lineHeight * scale); ++y) {
                EXPECT_EQ(rows.pixelColor(x, y), rows.pixelColor(x, 0))
                    << "seam or overlap at " << y << " of " << scale;
            }
        }
    }
}

} // namespace
