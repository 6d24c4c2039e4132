// Prints, asks for a line, and answers it.

#include <tetrad/tetrad.h>

using namespace tetrad;

int main()
{
    AppSetName("Hello");
    CocoaInit();
    CUI_EditMenu(1); // right of the application's own menu
    CUI_Window(1, "Hello", notGiven, QRectF(0, 0, 420, 180));

    CUI_PrintToWindowPrintStatement({"Good day."});
    CUI_PrintToWindowPrintStatement({"Return answers, Escape keeps the secret."});

    // Blocks until the line is there. The panel's lower left corner stands at (10, 100).
    const QString name = ZRInput(10, 100, "What is your name?", QString(), notGiven, notGiven, notGiven);

    CUI_PrintToWindowSetXYStatement(10, 60);
    if (name.isNull()) {
        CUI_PrintToWindowPrintStatement({"A secret, then."});
    } else if (name.isEmpty()) {
        CUI_PrintToWindowPrintStatement({"A short name."});
    } else {
        CUI_PrintToWindowPrintFStatement("Hello, %@!", name);
    }

    ZRInkey(10, 160, "Any key ends the program:", QString(), notGiven, notGiven);
    AppTerminate();
}
