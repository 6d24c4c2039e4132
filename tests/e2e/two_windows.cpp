// Two windows at once. Asks in the one made last until it is answered "other", then in the other one.

#include <tetrad/app/application.h>
#include <tetrad/app/menus.h>
#include <tetrad/app/windows.h>
#include <tetrad/console/console_statements.h>
#include <tetrad/input/line_input.h>
#include <tetrad/strings/not_given.h>

#include <QCoreApplication>

using namespace tetrad;
using namespace Qt::StringLiterals;

static void askUntilOther()
{
    QString answer;
    while (answer != u"other"_s) {
        answer = ZRInput(10, 60, u"Which?"_s, QString(), notGiven, notGiven, notGiven);
        CUI_PrintToWindowPrintStatement({answer});
    }
}

int main()
{
    QCoreApplication::setApplicationName(u"Windows"_s);
    CocoaInit();
    CUI_EditMenu(1);
    CUI_Window(1, u"First"_s, notGiven, QRectF(100, 100, 400, 150));
    CUI_Window(2, u"Second"_s, notGiven, QRectF(600, 300, 400, 150));
    askUntilOther();
    CUI_Window(1, QString(), notGiven, QRectF());
    askUntilOther();
}
