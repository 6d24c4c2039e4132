// Implemented in console_document.cpp, display_list.cpp, console_archive.cpp and console_dump.cpp of
// runtime/console/document
#pragma once

#include <tetrad/console/console_item.h>

#include <QSizeF>
#include <QTransform>
#include <QVariantList>

#include <memory>
#include <vector>

namespace tetrad {

class ConsoleDocument;
class ConsoleReader;

/// A document's items in drawing order, later ones on top. Appending an item draws it alone; any other change draws
/// again what is visible.
class DisplayList
{
public:
    explicit DisplayList(ConsoleDocument &document);
    ~DisplayList();

    qsizetype size() const;
    const CUI_PrintToWindowItem &at(qsizetype index) const;

    void append(const CUI_PrintToWindowItem &item);
    /// Indexes start at 0; those of no item are ignored with a warning.
    void replace(qsizetype index, const CUI_PrintToWindowItem &item);
    void insert(qsizetype index, const CUI_PrintToWindowItem &item);
    void removeAt(qsizetype index);
    void clear();

    /// One line per item for people and tests to read, as in `text (3,14) "abc" size 12 color #ffffff` or
    /// `rect (10,200) size 400x15 width 1 stroke #000000 fill none`.
    QString dump() const;

    /// An item with what the runtime knows of it.
    struct Entry;
    const Entry &entry(qsizetype index) const;
    void append(Entry entry);
    /// The items from one index on, in drawing order, that may touch a part of the document.
    std::vector<quint32> itemsIn(const QRectF &part, qsizetype from = 0) const;

private:
    struct Contents;

    void changed();
    bool has(qsizetype index) const;

    ConsoleDocument &m_document;
    std::unique_ptr<Contents> m_contents;
};

/// What a console shows, without the widget that shows it: the list of items and the pen, the state that later items
/// take their look from. Lengths are device-independent pixels from the document's top left, y growing downwards.
///
/// Printing "abc" at (3, 0) adds the items "abc" and "" and leaves the current point at (3, line height).
class ConsoleDocument
{
public:
    explicit ConsoleDocument(const QSizeF &size);
    virtual ~ConsoleDocument();
    Q_DISABLE_COPY_MOVE(ConsoleDocument)

    DisplayList &items() { return m_items; }
    const DisplayList &items() const { return m_items; }

    /// Every printed string, each completed with its newline, since the last clear; null when there was none.
    QString textString() const { return m_textString; }

    /// The x at which each new line starts.
    double textInset() const { return m_textInset; }
    void setTextInset(double inset) { m_textInset = inset; }

    /// The height that the document has grown to, 0 after a clear.
    double viewH() const { return m_viewH; }
    void setViewH(double height) { m_viewH = height; }
    double viewW() const { return m_viewW; }
    void setViewW(double width) { m_viewW = width; }

    virtual QSizeF documentSize() const { return m_size; }

    // Texts

    /// Where the next text is placed.
    QPointF currentPoint() const { return m_currentPoint; }
    void setCurrentPoint(QPointF point) { m_currentPoint = point; }

    /// Prints one line, or several where the string holds newlines, and returns the new current point. The position
    /// stays on the last line when the string ends with a backspace (code 8) or a tab, else goes to a new line.
    QPointF addString(const QString &string);
    QPointF addString(const QString &string, QPointF at);

    /// Goes to a cell as wide as "0" and as high as a line; deliberately without textInset, so that (0, 0) is the
    /// corner.
    void setColumnRow(double column, double row);

    /// As a dictionary, see TextAttributes. Setting copies the keys given; the others stay.
    QVariantMap currentAttributes() const { return m_attributes.toMap(); }
    void setAttributes(const QVariantMap &attributes) { m_attributes.merge(attributes); }
    /// Keeps the size. The name of a family that is not installed is ignored.
    void setFontName(const QString &name);
    /// Keeps the family. See TextAttributes for sizes out of range.
    void setFontSize(double size) { m_attributes.setFontSize(size); }
    void setForegroundColor(const QColor &color) { m_attributes.setForegroundColor(color); }
    void setBackgroundColor(const QColor &color) { m_attributes.setBackgroundColor(color); }
    void setTabInterval(double interval);

    /// 0 left, 1 centred, 2 right; anything else acts as left.
    qint64 currentAlignment() const { return m_alignment; }
    void setAlignment(qint64 alignment) { m_alignment = alignment; }

    /// The initial attributes and left alignment.
    void resetAttributes();

    /// Empties the document. Attributes, alignment and line style stay, deliberately: a program sets its style once.
    virtual void clear();

    // Shapes

    QPointF currentLinePoint() const { return m_linePoint; }
    void setCurrentLinePoint(QPointF point) { m_linePoint = point; }
    double currentLineWidth() const { return m_lineStyle.lineWidth; }
    void setCurrentLineWidth(double width) { m_lineStyle.lineWidth = width; }
    quint32 currentLineCapStyle() const { return m_lineStyle.lineCapStyle; }
    void setCurrentLineCapStyle(quint32 style) { m_lineStyle.lineCapStyle = style; }
    QList<double> currentLineDashPattern() const { return m_lineStyle.lineDashPattern; }
    void setCurrentLineDashPattern(const QList<double> &pattern) { m_lineStyle.lineDashPattern = pattern; }
    double currentLineDashPhase() const { return m_lineStyle.lineDashPhase; }
    void setCurrentLineDashPhase(double phase) { m_lineStyle.lineDashPhase = phase; }
    QColor currentStrokeColor() const { return m_lineStyle.strokeColor; }
    void setCurrentStrokeColor(const QColor &color) { m_lineStyle.strokeColor = color; }
    /// Invalid when there is no fill colour.
    QColor currentFillColor() const { return m_fillColor; }
    void setCurrentFillColor(const QColor &color) { m_fillColor = color; }

    /// Joins the points with segments, from the last line's end or from the first point. In the second case the first
    /// segment has no length, deliberately: a round or square cap shows it as a dot.
    void addLines(const QList<QPointF> &points, bool fromCurrentLocation);
    /// An invalid fill colour: no fill.
    void addRect(const QRectF &rect, const QColor &strokeColor, const QColor &fillColor)
    {
        addFilled(CUI_PrintToWindowItem::rectangle, rect, strokeColor, fillColor);
    }
    void addOval(const QRectF &rect, const QColor &strokeColor, const QColor &fillColor)
    {
        addFilled(CUI_PrintToWindowItem::oval, rect, strokeColor, fillColor);
    }
    void setLineStyleForItem(CUI_PrintToWindowItem &item) const { item.setLineStyle(m_lineStyle); }

    // Document

    /// Grows the document to 20 pixels below a height unless it reaches farther already.
    void fixFrameHeight(double height);

    /// Whether y grows downwards.
    bool flipView() const { return m_flipView; }
    void setFlipView(bool flip);
    bool isFlipped() const { return m_flipView; }
    /// From the document to what shows it, and back: the identity unless y grows upwards.
    QTransform mirror() const;

    /// One dictionary per item, in drawing order, with the ten keys "type", "pt", "pt1", "pt2", "rect", "lineWidth",
    /// "lineCapStyle", "lineDashPhase", "strokeFlag" and "fillFlag", and "text", "attributes", "lineDashPattern",
    /// "strokeColor" and "fillColor" where present.
    QVariantList itemArray() const;

    /// The document as a text that is read, selected and copied.
    ConsoleReader &reader() const { return *m_reader; }

protected:
    friend DisplayList;

    virtual void setDocumentSize(const QSizeF &size) { m_size = size; }
    /// ink: all that drawing the item may touch; empty when it draws nothing.
    virtual void itemAppended(const QRectF &ink);
    /// After any other change of the list.
    virtual void itemsChanged();
    /// Everything visible has to be drawn again.
    virtual void setNeedsDisplay() {}

private:
    double pieceX(double width) const;
    void addPiece(const QString &piece, bool last);
    void addFilled(quint32 type, const QRectF &rect, const QColor &strokeColor, const QColor &fillColor);

    DisplayList m_items{*this};
    std::unique_ptr<ConsoleReader> m_reader;
    QSizeF m_size;
    QString m_textString;
    double m_textInset = 3.0;
    double m_viewH = 0;
    double m_viewW = 0;
    QPointF m_currentPoint{3.0, 0};
    TextAttributes m_attributes;
    qint64 m_alignment = 0;
    bool m_flipView = true;
    QPointF m_linePoint;
    LineStyle m_lineStyle;
    QColor m_fillColor;
};

} // namespace tetrad
