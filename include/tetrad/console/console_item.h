// Implemented in runtime/console/document/console_item.cpp and text_attributes.cpp
#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QMetaType>
#include <QPointF>
#include <QRectF>
#include <QSharedData>
#include <QString>
#include <QVariantMap>

#include <memory>

namespace tetrad {

struct FontFacts;

/// Where tabs lead, in device-independent pixels from the start of the text.
struct ParagraphStyle
{
    /// A tab past the explicit stops goes to the next multiple of this; with 0 or less it does not advance.
    double defaultTabInterval = 28.0;
    QList<double> tabStops;

    bool operator==(const ParagraphStyle &) const = default;
};

/// What a text is drawn with: font, colours and paragraph style. A value that is shared until it is changed, so that an
/// item's private copy costs one pointer. As a dictionary it has the keys "font" (QFont), "foregroundColor",
/// "backgroundColor" (QColor) and "paragraphStyle" (ParagraphStyle), and those that were merged into it.
class TextAttributes
{
public:
    /// The standard font at 12 pixels, the palette's text colour, nothing behind it, tabs every 28 pixels.
    TextAttributes();

    QString fontName() const;
    void setFontName(const QString &name);

    double fontSize() const;
    /// A size outside 1 to 4096 pixels is ignored with a warning, here and in a dictionary's font.
    void setFontSize(double size);

    /// Invalid: the palette's text colour at the time of drawing.
    QColor foregroundColor() const { return m_data->foreground; }
    void setForegroundColor(const QColor &color) { m_data->foreground = color; }

    /// Invalid or transparent: nothing is drawn behind the text.
    QColor backgroundColor() const { return m_data->background; }
    void setBackgroundColor(const QColor &color) { m_data->background = color; }

    const ParagraphStyle &paragraphStyle() const { return m_data->paragraph; }
    void setParagraphStyle(const ParagraphStyle &style) { m_data->paragraph = style; }

    const FontFacts &facts() const { return *m_data->facts; }

    /// Holds the palette's text colour as it is now where no colour was set: once merged back, it stays that colour.
    QVariantMap toMap() const;

    /// Copies every key of the map; keys not mentioned stay, keys with no meaning here are kept and given back.
    void merge(const QVariantMap &map);

private:
    struct Data : QSharedData
    {
        std::shared_ptr<const FontFacts> facts;
        QColor foreground;
        QColor background = Qt::transparent;
        ParagraphStyle paragraph;
        QVariantMap others;
    };
    static QSharedDataPointer<Data> &initialData();
    void setFont(QFont font, double size);

    QSharedDataPointer<Data> m_data;
};

/// How a line or an outline is stroked. Lengths are device-independent pixels, whatever the width.
struct LineStyle
{
    /// 0: one pixel of the screen; negative: not stroked.
    double lineWidth = 1.0;
    /// 1 round, 2 square; 0 leaves the default, which ends flush with the line's end.
    quint32 lineCapStyle = 0;
    /// Lengths of dashes and gaps in turn. Solid when it is empty, has a part that is negative or not finite, or is
    /// shorter in all than a twentieth of the width.
    QList<double> lineDashPattern = {};
    double lineDashPhase = 0;
    /// Invalid: black.
    QColor strokeColor = Qt::black;

    bool operator==(const LineStyle &) const = default;
};

/// One entry of the console's display list: a line of text, a line segment, a rectangle or an oval. A value whose parts
/// are shared until they are changed; a text does not pay for those of shapes.
class CUI_PrintToWindowItem
{
public:
    enum Type : quint32 { text = 0, line = 1, rectangle = 2, oval = 3 };

    static CUI_PrintToWindowItem itemWithString(const QString &string, QPointF pt, const TextAttributes &attributes);
    static CUI_PrintToWindowItem itemWithLinePoint1(QPointF linePt1, QPointF linePt2);
    /// An unknown type counts as a text without characters and draws nothing.
    static CUI_PrintToWindowItem itemWithType(quint32 type, const QRectF &rect, const QColor &strokeColor,
                                              const QColor &fillColor);

    quint32 type() const { return m_type; }
    /// Whether it is a line, a rectangle or an oval; anything else is drawn as a text.
    bool isShape() const { return m_type >= line && m_type <= oval; }
    /// A text's top left.
    QPointF pt() const { return m_pt; }
    const QString &string() const { return m_string; }
    const TextAttributes &attributes() const { return m_attributes; }

    QPointF linePt1() const { return shape().linePt1; }
    QPointF linePt2() const { return shape().linePt2; }
    QRectF rect() const { return shape().rect; }

    /// Width 0 and no colour until it is set; a text's stays so.
    const LineStyle &lineStyle() const { return shape().lineStyle; }
    void setLineStyle(const LineStyle &style) { editShape().lineStyle = style; }

    /// Sets the colours alone; they replace those of the line style.
    void setColors(const QColor &strokeColor, const QColor &fillColor);
    /// Invalid: no fill.
    QColor fillColor() const { return shape().fillColor; }

    /// Carried and archived but deliberately never consulted when drawing: an item is stroked by its width and filled
    /// by its colour, and archives are read by programs that expect the two keys.
    bool strokeFlag() const { return shape().strokeFlag; }
    void setStrokeFlag(bool flag) { editShape().strokeFlag = flag; }
    bool fillFlag() const { return shape().fillFlag; }
    void setFillFlag(bool flag) { editShape().fillFlag = flag; }

private:
    struct Shape : QSharedData
    {
        QPointF linePt1;
        QPointF linePt2;
        QRectF rect;
        LineStyle lineStyle{.lineWidth = 0, .strokeColor = {}};
        QColor fillColor;
        bool strokeFlag = false;
        bool fillFlag = false;
    };
    const Shape &shape() const
    {
        static const Shape none;
        return m_shape ? *m_shape : none;
    }
    Shape &editShape();

    quint32 m_type = text;
    QPointF m_pt;
    QString m_string;
    TextAttributes m_attributes;
    QSharedDataPointer<Shape> m_shape;
};

} // namespace tetrad

Q_DECLARE_METATYPE(tetrad::ParagraphStyle)
