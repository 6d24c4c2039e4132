// Everything that can be put on the console: shapes, dashes, alignments, tabs, cells, fonts and colours.

#include <tetrad/tetrad.h>

using namespace tetrad;

int main()
{
    AppSetName("Sketch");
    CocoaInit();
    CUI_EditMenu(1);
    CUI_Window(1, "Sketch", notGiven, QRectF(0, 0, 480, 330));
    WindowSetBackgroundColor(1, ColorWhite());
    // Statements act on the output window; its console can do a little more than they do.
    CUI_PrintToWindowView &page = *CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow());
    page.setForegroundColor(ColorBlack());

    for (const auto &[alignment, text] : {std::pair(0, "left"), {1, "centred"}, {2, "right"}}) {
        page.setAlignment(alignment);
        page.addString(text, {3, 4});
    }
    page.setAlignment(0);
    page.addString("one\ttwo\tthree", {10, 30});
    page.setTabInterval(80); // from here on a tab leads to the next multiple of 80 pixels
    page.addString("one\ttwo\tthree", {10, 46});
    page.setColumnRow(40, 2); // a cell is one digit wide and one line high
    page.addString("column 40, row 2");

    CUI_PrintToWindowTextStatement("DejaVu Serif", Qt::darkBlue, Qt::yellow, notGiven, notGiven, 24);
    page.addString("large, blue on yellow", {10, 70});
    page.resetAttributes();

    page.setCurrentLineWidth(2);
    page.addRect({10, 120, 120, 80}, Qt::black, QColor());
    page.addRect({30, 140, 80, 40}, Qt::red, Qt::green); // the outline red, the inside green
    page.addOval({150, 120, 120, 80}, Qt::blue, Qt::cyan);

    page.setCurrentLineWidth(6);
    page.setCurrentLineCapStyle(1); // round ends
    page.addLines({{300, 120}, {380, 200}}, false);
    page.addLines({{460, 120}}, true); // from where the last line ended
    page.setCurrentLineDashPattern({12, 10});
    page.setCurrentStrokeColor(Qt::magenta);
    page.addLines({{10, 230}, {470, 230}}, false);

    ZRInkey(10, 310, "Any key ends the program:", QString(), notGiven, notGiven);
    AppTerminate();
}
