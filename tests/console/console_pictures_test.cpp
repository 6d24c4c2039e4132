#include "tests/console/printing.h"

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

const QString block = u"\u2588\b"_s; // fills its cell

/// Every step-th pixel of a document over white: the letter of its colour, '.' for white, '+' for any other.
std::string seen(ConsoleDocument &page, int step)
{
    const QImage image = pictureOf(page, 1, {12 * step, 6 * step});
    const QMap<QRgb, char> letters{{0xFFFFFFFF, '.'}, {0xFF000000, 'k'}, {0xFFFF0000, 'r'}, {0xFF00FF00, 'g'}};
    std::string all;
    for (int y = step / 2; y < image.height(); y += step) {
        for (int x = step / 2; x < image.width(); x += step) {
            all += letters.value(image.pixel(x, y), '+');
        }
        all += '\n';
    }
    return all;
}

using Drawn = Table<std::function<void(ConsoleDocument &)>, const char *>;

void compare(const Drawn &rows, int step)
{
    for (const auto &[name, draw, expected] : rows) {
        ConsoleDocument page(QSizeF(12, 6) * step);
        page.setViewH(1000); // It does not grow.
        page.setCurrentLineWidth(2);
        draw(page);
        EXPECT_EQ('\n' + seen(page, step), std::string("\n") + expected) << name;
    }
}

TEST(Pictures, ofShapes)
{
    const auto line = [](quint32 cap) {
        return [cap](ConsoleDocument &page) {
            page.setCurrentLineWidth(4);
            page.setCurrentLineCapStyle(cap);
            page.setCurrentLinePoint({4, 3});
            page.addLines({{8, 3}}, true);
        };
    };
    compare(
        {
            {"line", line(0),
             "............\n"
             "....kkkk....\n"
             "....kkkk....\n"
             "....kkkk....\n"
             "....kkkk....\n"
             "............\n"},
            {"square cap", line(2),
             "............\n"
             "..kkkkkkkk..\n"
             "..kkkkkkkk..\n"
             "..kkkkkkkk..\n"
             "..kkkkkkkk..\n"
             "............\n"},
            {"round cap", line(1),
             "............\n"
             "..++kkkk++..\n"
             "..+kkkkkk+..\n"
             "..+kkkkkk+..\n"
             "..++kkkk++..\n"
             "............\n"},
            {"stroke colour",
             [](auto &page) {
                 page.setCurrentStrokeColor(Qt::red);
                 page.addLines({{2, 1}, {2, 5}, {9, 5}}, false);
             },

             "............\n"
             ".rr.........\n"
             ".rr.........\n"
             ".rr.........\n"
             ".rrrrrrrr...\n"
             "..rrrrrrr...\n"},
            {"open rectangle",
             [](auto &page) {
                 page.addRect({2, 1, 8, 4}, Qt::red, QColor());
             },

             ".rrrrrrrrrr.\n"
             ".rrrrrrrrrr.\n"
             ".rr......rr.\n"
             ".rr......rr.\n"
             ".rrrrrrrrrr.\n"
             ".rrrrrrrrrr.\n"},
            {"filled rectangle",
             [](auto &page) {
                 page.addRect({2, 1, 8, 4}, Qt::red, Qt::green);
             },

             ".rrrrrrrrrr.\n"
             ".rrrrrrrrrr.\n"
             ".rrggggggrr.\n"
             ".rrggggggrr.\n"
             ".rrrrrrrrrr.\n"
             ".rrrrrrrrrr.\n"},
            {"open oval",
             [](auto &page) {
                 page.addOval({1, 0, 10, 6}, Qt::red, QColor());
             },

             "+++rrrrrr+++\n"
             "+r++++++++r+\n"
             "+r+......+r+\n"
             "+r+......+r+\n"
             "+r++++++++r+\n"
             "+++rrrrrr+++\n"},
            {"filled oval",
             [](auto &page) {
                 page.addOval({1, 0, 10, 6}, Qt::red, Qt::green);
             },

             "+++rrrrrr+++\n"
             "+r++++++++r+\n"
             "+r+gggggg+r+\n"
             "+r+gggggg+r+\n"
             "+r++++++++r+\n"
             "+++rrrrrr+++\n"},
            {"negative width",
             [](auto &page) {
                 page.setCurrentLineWidth(-1);
                 page.addRect({1, 2, 4, 3}, Qt::red, Qt::green);
                 page.addOval({6, 0, 6, 6}, Qt::red, Qt::green);
                 page.addLines({{1, 1}, {11, 1}}, false);
             },

             "......++++++\n"
             "......+gggg+\n"
             ".gggg.+gggg+\n"
             ".gggg.+gggg+\n"
             ".gggg.+gggg+\n"
             "......++++++\n"},
            {"later ones on top",
             [](auto &page) {
                 page.addRect({2, 1, 6, 3}, Qt::red, Qt::green);
                 page.addRect({6, 2, 4, 3}, Qt::red, Qt::black);
             },

             ".rrrrrrrr...\n"
             ".rrrrrrrrrr.\n"
             ".rrggrrrrrr.\n"
             ".rrrrrrkkrr.\n"
             ".rrrrrrrrrr.\n"
             ".....rrrrrr.\n"},
            {"upwards",
             [](auto &page) {
                 page.setFlipView(false);
                 page.addRect({1, 1, 2, 2}, Qt::red, Qt::green);
                 page.addLines({{7, 1}, {7, 5}, {11, 5}}, false);
             },

             ".......kkkk.\n"
             "......kkkkk.\n"
             "rrrr..kk....\n"
             "rrrr..kk....\n"
             "rrrr..kk....\n"
             "rrrr........\n"},
        },
        1);
}

TEST(Pictures, ofTexts)
{
    compare(
        {
            {"at its point",
             [](auto &page) {
                 page.addString(block, {8, 4});
             },

             "............\n"
             "..kk........\n"
             "..kk........\n"
             "..kk........\n"
             "............\n"
             "............\n"},
            {"colour",
             [](auto &page) {
                 page.setForegroundColor(Qt::red);
                 page.addString(block, {24, 8});
             },

             "............\n"
             "............\n"
             "......rr....\n"
             "......rr....\n"
             "......rr....\n"
             "............\n"},
            {"background",
             [](auto &page) {
                 page.setBackgroundColor(Qt::green);
                 page.addString(u" \u2588 \b"_s, {8, 4});
             },

             "............\n"
             "..g+k+g.....\n"
             "..g+k+g.....\n"
             "..g+k+g.....\n"
             "............\n"
             "............\n"},
            {"font size",
             [](auto &page) {
                 page.setFontSize(18);
                 page.addString(block, {8, 4});
             },

             "............\n"
             "..kkk.......\n"
             "..kkk.......\n"
             "..kkk.......\n"
             "..kkk.......\n"
             "..kkk.......\n"},
            {"font name",
             [](auto &page) {
                 page.setFontName(u"DejaVu Serif"_s);
                 page.setFontSize(18);
                 page.addString(block, {8, 4});
             },

             "............\n"
             "..kkk+......\n"
             "..kkk+......\n"
             "..kkk+......\n"
             "..kkk+......\n"
             "..kkk+......\n"},
            {"cell of 18 points",
             [](auto &page) {
                 page.setFontSize(18);
                 page.setColumnRow(2, 0.25);
                 page.addString(block);
             },

             "............\n"
             ".....kkk....\n"
             ".....kkk....\n"
             ".....kkk....\n"
             ".....kkk....\n"
             ".....kkk....\n"},
            {"tab",
             [](auto &page) {
                 page.addString(u"\t\u2588\b"_s, {4, 4});
             },

             "............\n"
             "........kk..\n"
             "........kk..\n"
             "........kk..\n"
             "............\n"
             "............\n"},
            {"tab interval",
             [](auto &page) {
                 page.setTabInterval(12);
                 page.addString(u"\t\t\u2588\b"_s, {4, 4});
             },

             "............\n"
             ".......kk...\n"
             ".......kk...\n"
             ".......kk...\n"
             "............\n"
             "............\n"},
            {"tab stops",
             [](auto &page) {
                 const ParagraphStyle style{.defaultTabInterval = 20, .tabStops = {8}};
                 page.setAttributes({{u"paragraphStyle"_s, QVariant::fromValue(style)}});
                 page.addString(u"\t\u2588\t\u2588\b"_s, {0, 4});
             },

             "............\n"
             "..kk.kk.....\n"
             "..kk.kk.....\n"
             "..kk.kk.....\n"
             "............\n"
             "............\n"},
            {"aligned",
             [](auto &page) {
                 page.setAlignment(1);
                 page.addString(block, {7, 4});
                 page.setAlignment(2);
                 page.addString(block, {7, 4});
             },

             "............\n"
             ".....kk...kk\n"
             ".....kk...kk\n"
             ".....kk...kk\n"
             "............\n"
             "............\n"},
            {"upwards",
             [](auto &page) {
                 page.setFlipView(false);
                 page.addString(block, {8, 4});
             },

             "............\n"
             "..kk........\n"
             "..kk........\n"
             "..kk........\n"
             "..kk........\n"
             "............\n"},
            {"selected, then partly covered",
             [](auto &page) {
                 page.addString(u"\u2588\u2588\u2588\b"_s, {8, 4});
                 page.reader().select(1, 3);
                 page.setCurrentLineWidth(-1);
                 page.addRect({24, 0, 30, 12}, QColor(), Qt::green);
             },

             "......gggggg\n"
             "..kkrrgggggg\n"
             "..kkrrgggggg\n"
             "..kkrrr.....\n"
             "............\n"
             "............\n"},
        },
        4);
}

TEST(Pictures, ofUnderlinedAndStruckTexts)
{
    const auto inkOf = [](void (QFont::*set)(bool)) {
        QFont font = TextAttributes().toMap().value(u"font"_s).value<QFont>();
        (font.*set)(true);
        ConsoleDocument page({48, 24});
        page.setAttributes({{u"font"_s, font}});
        page.addString(u"    \b"_s, {8, 4});
        return pictureOf(page, 1, {48, 24});
    };
    ConsoleDocument empty({48, 24});
    EXPECT_NE(inkOf(&QFont::setUnderline), pictureOf(empty, 1, {48, 24}));
    EXPECT_NE(inkOf(&QFont::setStrikeOut), inkOf(&QFont::setUnderline));
}

} // namespace
