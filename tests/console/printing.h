#pragma once

#include "runtime/console/document/console_reader.h"
#include "runtime/console/document/display_list.h"
#include "runtime/console/document/font_facts.h"
#include "runtime/console/document/text_layout.h"
#include "tests/support/table.h"
#include <tetrad/console/console_view.h>

#include <QImage>
#include <QPainter>

namespace tetrad {

using namespace Qt::StringLiterals;

/// A console view of its own, 400 pixels wide, and the measures of its initial font.
class Console : public testing::Test
{
protected:
    CUI_PrintToWindowView view{QRectF(0, 0, 400, 1)};
    const double lineHeight = TextAttributes().facts().lineHeight;
    const double advance = measureText(u"0"_s, TextAttributes()).width;

    /// Every item on one line as "text@x,y", x in pixels and y in lines.
    QString items() const
    {
        QStringList all;
        for (qsizetype i = 0; i < view.items().size(); ++i) {
            const CUI_PrintToWindowItem &item = view.items().at(i);
            all.append(item.string() + u'@' + QString::number(item.pt().x()) + u',' +
                       QString::number(item.pt().y() / lineHeight));
        }
        return all.join(u' ');
    }

    /// The view's picture over white, as the screen would show it.
    QImage picture(double scale, const QSize &size = QSize(400, 300))
    {
        QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        view.resize(size);
        QPainter painter(&image);
        view.render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }
};

inline void PrintTo(const QPointF &point, std::ostream *out)
{
    *out << '(' << point.x() << ',' << point.y() << ')';
}

} // namespace tetrad

inline void PrintTo(const QImage &image, std::ostream *out)
{
    *out << image.width() << " x " << image.height() << " pixels";
}
