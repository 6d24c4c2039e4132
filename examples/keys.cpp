// Single keys drive a dot over the console. The program asks for a key, moves, draws anew, and asks again.

#include <tetrad/tetrad.h>

#include <algorithm>

using namespace tetrad;

constexpr int columns = 20;
constexpr int rows = 8;
constexpr double cell = 20; // pixels

static void draw(int column, int row)
{
    CUI_PrintToWindowView &board = *CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow());
    board.clear();
    board.addString(QString("column %1, row %2").arg(column).arg(row), {10, 8});
    board.addRect({10, 30, columns * cell, rows * cell}, Qt::gray, Qt::white);
    board.addOval({10 + column * cell, 30 + row * cell, cell, cell}, Qt::red, Qt::red);
}

int main()
{
    AppSetName("Keys");
    CocoaInit();
    CUI_EditMenu(1);
    CUI_Window(1, "Keys", windowStyleTitled | windowStyleClosable, QRectF(0, 0, 420, 260));

    int column = columns / 2;
    int row = rows / 2;
    for (;;) {
        draw(column, row);
        // Only the four letters are taken, in either case; Escape gives null.
        const QString key = ZRInkey(10, 245, "W A S D move the dot, Escape ends:", "wasd", true, caseForceLower);
        if (key.isNull()) {
            AppTerminate();
        }
        column = std::clamp(column + (key == "d") - (key == "a"), 0, columns - 1);
        row = std::clamp(row + (key == "s") - (key == "w"), 0, rows - 1);
    }
}
