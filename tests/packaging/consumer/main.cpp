#include <tetrad/tetrad.h>

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

// What a project whose code uses Qt's own keywords and conversions sees.
using namespace tetrad;

int main()
{
    QCoreApplication::setApplicationName("Consumer");
    CocoaInit();
    CUI_Window(1, "Consumer", notGiven, QRectF(0, 0, 300, 150));
    CUI_PrintToWindowPrintStatement({"printed from outside"});
    QTimer::singleShot(0, [] {
        std::puts(qPrintable(dumpViews()));
        std::fflush(stdout);
        AppTerminate();
    });
    ZRInput(10, 60, "Name?", QString(), notGiven, notGiven, notGiven);
    return 1;
}
