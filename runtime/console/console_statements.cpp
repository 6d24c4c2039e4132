#include "runtime/app/windows/output_window.h"
#include <tetrad/console/console_statements.h>

#include <tetrad/app/windows.h>
#include <tetrad/console/console_view.h>
#include <tetrad/strings/not_given.h>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr Tag consoleWindowTag = 999999;

QWidget *targetWindow()
{
    Tag tag = 0;
    return CUI_TargetWindow(&tag);
}

// Runs an operation on a window's console, if the window has a content view.
template <typename Action>
void withView(QWidget *window, Action action)
{
    if (CUI_PrintToWindowView *view = CUI_PrintToWindowViewObj(window)) {
        action(*view);
    }
}

} // namespace

QWidget *CUI_PrintToWindowWindow()
{
    if (QWidget *window = targetWindow()) {
        return window;
    }
    CUI_Window(consoleWindowTag, u"• Print to Window •"_s, notGiven, QRectF());
    return targetWindow();
}

CUI_PrintToWindowView *CUI_PrintToWindowViewObj(QWidget *window)
{
    QWidget *content = contentViewOf(window);
    if (!content) {
        return nullptr;
    }
    if (auto *scrollView = content->findChild<CUI_PrintToWindowScrollView *>(QString(), Qt::FindDirectChildrenOnly)) {
        return scrollView->documentView();
    }
    auto *scrollView = new CUI_PrintToWindowScrollView(content);
    auto *view = CUI_PrintToWindowView::viewWithFrame(QRectF(0, 0, content->width(), 1));
    scrollView->setDocumentView(view);
    view->setScrollView(scrollView);
    return view;
}

void CUI_PrintToWindowPrintStatement(const QStringList &items)
{
    QString joined = u""_s;
    for (const QString &item : items) {
        if (item.isNull()) {
            break;
        }
        joined += item;
    }
    CUI_PrintToWindowPrint(CUI_PrintToWindowWindow(), joined);
}

void CUI_PrintToWindowSetXYStatement(double x, double y)
{
    CUI_PrintToWindowSetXY(CUI_PrintToWindowWindow(), x, y);
}

void CUI_PrintToWindowClearStatement()
{
    CUI_PrintToWindowClear(CUI_PrintToWindowWindow());
}

void CUI_PrintToWindowTextStatement(const QString &fontName, const QColor &foreground, const QColor &background,
                                    qint64 alignment, qint64 tabInterval, double size)
{
    withView(CUI_PrintToWindowWindow(), [&](CUI_PrintToWindowView &view) {
        if (!fontName.isNull()) {
            view.setFontName(fontName);
        }
        if (size > 0) {
            view.setFontSize(size);
        }
        if (foreground.isValid()) {
            view.setForegroundColor(foreground);
        }
        if (background.isValid()) {
            view.setBackgroundColor(background);
        }
        if (alignment != notGiven) {
            view.setAlignment(alignment);
        }
        if (tabInterval != notGiven) {
            view.setTabInterval(static_cast<double>(tabInterval));
        }
    });
}

void CUI_DrawToWindowRectStatement(const QColor &color, bool fill, const QRectF &rect)
{
    CUI_DrawToWindowRect(CUI_PrintToWindowWindow(), color, fill, rect);
}

QPointF CUI_PrintToWindowPrint(QWidget *window, const QString &text)
{
    CUI_PrintToWindowView *view = CUI_PrintToWindowViewObj(window);
    return view ? view->addString(text) : QPointF();
}

void CUI_PrintToWindowSetXY(QWidget *window, double x, double y)
{
    withView(window, [&](CUI_PrintToWindowView &view) { view.setCurrentPoint({x, y}); });
}

void CUI_PrintToWindowClear(QWidget *window)
{
    withView(window, [](CUI_PrintToWindowView &view) { view.clear(); });
}

void CUI_PrintToWindowTextSetFontName(QWidget *window, const QString &name)
{
    withView(window, [&](CUI_PrintToWindowView &view) { view.setFontName(name); });
}

void CUI_PrintToWindowTextSetFontSize(QWidget *window, double size)
{
    withView(window, [&](CUI_PrintToWindowView &view) { view.setFontSize(size); });
}

void CUI_PrintToWindowTextSetForegroundColor(QWidget *window, const QColor &color)
{
    withView(window, [&](CUI_PrintToWindowView &view) { view.setForegroundColor(color); });
}

void CUI_PrintToWindowTextSetBackgroundColor(QWidget *window, const QColor &color)
{
    withView(window, [&](CUI_PrintToWindowView &view) { view.setBackgroundColor(color); });
}

void CUI_PrintToWindowTextSetAlignment(QWidget *window, qint64 alignment)
{
    withView(window, [&](CUI_PrintToWindowView &view) { view.setAlignment(alignment); });
}

void CUI_PrintToWindowTextSetTabInterval(QWidget *window, double interval)
{
    withView(window, [&](CUI_PrintToWindowView &view) { view.setTabInterval(interval); });
}

void CUI_DrawToWindowRect(QWidget *window, const QColor &color, bool fill, const QRectF &rect)
{
    withView(window, [&](CUI_PrintToWindowView &view) {
        const QColor fillColor = color.isValid() ? color : view.currentFillColor();
        const QColor strokeColor = view.currentStrokeColor();
        if (color.isValid()) {
            // Deliberately even without a fill: a later rectangle filled without a colour takes this one.
            view.setCurrentFillColor(color);
        }
        view.addRect(rect, strokeColor, fill ? fillColor : QColor());
    });
}

} // namespace tetrad
