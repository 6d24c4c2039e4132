#pragma once

#include "runtime/console/document/console_reader.h"
#include "runtime/console/document/display_list.h"
#include "runtime/console/document/font_facts.h"
#include "runtime/console/document/text_layout.h"
#include "runtime/console/view/item_painter.h"
#include "tests/support/table.h"
#include <tetrad/console/console_document.h>

#include <QImage>
#include <QPainter>

#include <functional>

namespace tetrad {

/// A document over white; what is selected is red.
inline QImage pictureOf(ConsoleDocument &document, double scale, const QSize &size)
{
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPalette palette(Qt::black, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::red);
    palette.setColor(QPalette::HighlightedText, Qt::red);
    QPainter painter(&image);
    drawItems({painter, document.mirror(), palette}, document, QRectF(QPointF(), size));
    return image;
}

/// A document 400 pixels wide, and the measures of its initial font.
class Console : public testing::Test
{
protected:
    ConsoleDocument page{{400, 1}};
    const double lineHeight = TextAttributes().facts().lineHeight;
    const double advance = measureText(u"0"_s, TextAttributes()).width;

    /// Every item on one line as "text@x,y", x in pixels and y in lines.
    QString items() const
    {
        QStringList all;
        for (qsizetype i = 0; i < page.items().size(); ++i) {
            const CUI_PrintToWindowItem &item = page.items().at(i);
            all.append(item.string() + u'@' + QString::number(item.pt().x()) + u',' +
                       QString::number(item.pt().y() / lineHeight));
        }
        return all.join(u' ');
    }
};

inline void PrintTo(const QPointF &point, std::ostream *out)
{
    *out << '(' << point.x() << ',' << point.y() << ')';
}

} // namespace tetrad
