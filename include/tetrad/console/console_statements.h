// Implemented in runtime/console/console_statements.cpp
#pragma once

#include <tetrad/strings/text_format.h>

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QStringList>

class QWidget;

namespace tetrad {

class CUI_PrintToWindowView;

/// A plain record that a program may keep its own console defaults in; nothing in the console reads it.
struct CUI_PrintToWindowDefaults
{
    QFont font;
    double textInset = 0;
    bool showScroller = false;
    bool autoHideScroller = false;
};

inline QColor ColorBlack()
{
    return Qt::black;
}
inline QColor ColorGreen()
{
    return Qt::green;
}
inline QColor ColorRed()
{
    return Qt::red;
}
inline QColor ColorWhite()
{
    return Qt::white;
}

/// The window that prints go to; one with tag 999999 and the title "• Print to Window •" is made when
/// the program has none. Null only if that failed.
QWidget *CUI_PrintToWindowWindow();

/// The console view of a window or popover, made inside its content view on first use.
CUI_PrintToWindowView *CUI_PrintToWindowViewObj(QWidget *window);

/// Prints the texts joined, up to the first null one. A text that ends with a backspace (code 8) or
/// a tab keeps the next output on the same line; any other ends the line. No text at all prints an
/// empty line.
void CUI_PrintToWindowPrintStatement(const QStringList &items);

/// Formatted print: printf conventions and "%@" for a text or object.
template <typename... Args>
void CUI_PrintToWindowPrintFStatement(const QString &format, const Args &...args)
{
    CUI_PrintToWindowPrintStatement({StringWithFormat(format, args...)});
}

/// Where the next text goes, in device-independent pixels from the document's top left.
void CUI_PrintToWindowSetXYStatement(double x, double y);

void CUI_PrintToWindowClearStatement();

/// Applies what is given: a null name, an invalid colour, notGiven and a size of 0 or less keep what
/// is in force. alignment: 0 left, 1 centred, 2 right. tabInterval and size in pixels.
void CUI_PrintToWindowTextStatement(const QString &fontName, const QColor &foreground, const QColor &background,
                                    qint64 alignment, qint64 tabInterval, double size);

/// A rectangle in the current stroke colour, filled with `color` when `fill` is true (with the last
/// fill colour when `color` is invalid). A valid colour becomes the fill colour even without fill.
void CUI_DrawToWindowRectStatement(const QColor &color, bool fill, const QRectF &rect);

/// The same operations on a given window.
QPointF CUI_PrintToWindowPrint(QWidget *window, const QString &text);
void CUI_PrintToWindowSetXY(QWidget *window, double x, double y);
void CUI_PrintToWindowClear(QWidget *window);
void CUI_PrintToWindowTextSetFontName(QWidget *window, const QString &name);
void CUI_PrintToWindowTextSetFontSize(QWidget *window, double size);
void CUI_PrintToWindowTextSetForegroundColor(QWidget *window, const QColor &color);
void CUI_PrintToWindowTextSetBackgroundColor(QWidget *window, const QColor &color);
void CUI_PrintToWindowTextSetAlignment(QWidget *window, qint64 alignment);
void CUI_PrintToWindowTextSetTabInterval(QWidget *window, double interval);
void CUI_DrawToWindowRect(QWidget *window, const QColor &color, bool fill, const QRectF &rect);

} // namespace tetrad
