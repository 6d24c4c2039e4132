#pragma once

#include <tetrad/console/console_picture.h>
#include <tetrad/console/console_reader.h>
#include <tetrad/console/display_list.h>
#include <tetrad/console/item_painter.h>

#include <QPointer>
#include <QWidget>

namespace tetrad {

class CUI_PrintToWindowScrollView;
class ConsoleSelection;

/// The surface that a program prints and draws into: a document as wide as its scroll view and as high as what was
/// printed, kept as a list of items and redrawn from it. Every operation edits the list and the pen, the state that
/// later items take their look from; nothing is drawn directly. Lengths are device-independent pixels from the
/// document's top left, y growing downwards.
///
/// Printing "abc" at (3, 0) adds the items "abc" and "" and leaves the current point at (3, line height).
class CUI_PrintToWindowView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString textString READ textString)
    Q_PROPERTY(double textInset READ textInset WRITE setTextInset)
    Q_PROPERTY(double viewH READ viewH WRITE setViewH)
    Q_PROPERTY(double viewW READ viewW WRITE setViewW)
    Q_PROPERTY(QPointF currentPoint READ currentPoint WRITE setCurrentPoint)
    Q_PROPERTY(QVariantMap currentAttributes READ currentAttributes WRITE setAttributes)
    Q_PROPERTY(qint64 currentAlignment READ currentAlignment WRITE setAlignment)
    Q_PROPERTY(bool flipView READ flipView WRITE setFlipView)
    Q_PROPERTY(QPointF currentLinePoint READ currentLinePoint WRITE setCurrentLinePoint)
    Q_PROPERTY(double currentLineWidth READ currentLineWidth WRITE setCurrentLineWidth)
    Q_PROPERTY(quint32 currentLineCapStyle READ currentLineCapStyle WRITE setCurrentLineCapStyle)
    Q_PROPERTY(QList<double> currentLineDashPattern READ currentLineDashPattern WRITE setCurrentLineDashPattern)
    Q_PROPERTY(double currentLineDashPhase READ currentLineDashPhase WRITE setCurrentLineDashPhase)
    Q_PROPERTY(QColor currentStrokeColor READ currentStrokeColor WRITE setCurrentStrokeColor)
    Q_PROPERTY(QColor currentFillColor READ currentFillColor WRITE setCurrentFillColor)
    Q_PROPERTY(bool canCopy READ canCopy)

public:
    explicit CUI_PrintToWindowView(const QRectF &frame, QWidget *parent = nullptr);
    ~CUI_PrintToWindowView() override;

    static CUI_PrintToWindowView *viewWithFrame(const QRectF &frame);

    CUI_PrintToWindowScrollView *scrollView() const;
    void setScrollView(CUI_PrintToWindowScrollView *scrollView);

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

    /// The size of the document. The widget follows it, rounded up, with the next event; its height stops at
    /// QWIDGETSIZE_MAX.
    QSizeF documentSize() const { return {static_cast<double>(width()), m_documentHeight}; }

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
    void setAttributes(const QVariantMap &attributes);
    /// Keeps the size. The name of a family that is not installed is ignored.
    void setFontName(const QString &name);
    /// Keeps the family. A size that is not above 0 is ignored with a warning.
    void setFontSize(double size);
    void setForegroundColor(const QColor &color);
    void setBackgroundColor(const QColor &color);
    void setTabInterval(double interval);

    /// 0 left, 1 centred, 2 right; anything else acts as left.
    qint64 currentAlignment() const { return m_alignment; }
    void setAlignment(qint64 alignment) { m_alignment = alignment; }

    /// The initial attributes and left alignment.
    void resetAttributes();

    /// Empties the document. Attributes, alignment and line style stay, deliberately: a program sets its style once.
    void clear();

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
    /// Invalid: none.
    QColor currentFillColor() const { return m_fillColor; }
    void setCurrentFillColor(const QColor &color) { m_fillColor = color; }

    /// Joins the points with segments, from the last line's end or from the first point. In the second case the first
    /// segment has no length, deliberately: a round or square cap shows it as a dot. An empty list is ignored.
    void addLines(const QList<QPointF> &points, bool fromCurrentLocation);
    /// An invalid fill colour: no fill.
    void addRect(const QRectF &rect, const QColor &strokeColor, const QColor &fillColor);
    void addOval(const QRectF &rect, const QColor &strokeColor, const QColor &fillColor);
    void setLineStyleForItem(CUI_PrintToWindowItem &item) const;

    // Document

    /// Grows the document to 20 pixels below a height unless it reaches farther already.
    void fixFrameHeight(double height);

    /// Whether y grows downwards.
    bool flipView() const { return m_flipView; }
    void setFlipView(bool flip);
    bool isFlipped() const { return m_flipView; }

    /// See DisplayList.
    Q_INVOKABLE QVariantList itemArray() const { return m_items.itemArray(); }
    Q_INVOKABLE QString dump() const { return m_items.dump(); }

    // Reading

    /// What was printed since the last call or clear, as readable text.
    Q_INVOKABLE QString takeNewText();

    ConsoleReader &reader() { return m_reader; }
    bool canCopy() const { return m_reader.hasSelection(); }
    /// Selects from one place between characters to another, where the caret goes, and brings that into view.
    void select(qsizetype anchor, qsizetype caret);
    void scrollTo(const QRectF &rect);

    /// Between the list's coordinates and the widget's, which differ when y grows upwards. Each is its own inverse.
    QRectF mirrored(const QRectF &rect) const;
    QPointF mirrored(QPointF point) const
    {
        return m_flipView ? point : QPointF(point.x(), m_documentHeight - point.y());
    }

    Q_INVOKABLE void copy();
    Q_INVOKABLE void selectAll();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    double pieceX(double width) const;
    void addPiece(const QString &piece, bool last);
    void addShape(CUI_PrintToWindowItem item);
    void addFilled(quint32 type, const QRectF &rect, const QColor &strokeColor, const QColor &fillColor);
    void append(DisplayList::Entry entry, const QRectF &ink);
    void scheduleRefresh();
    void refresh();
    void paintItems(QPainter &painter, const QRegion &part);
    ItemPainter::Canvas canvasOf(QPainter &painter) const;

    QPointer<CUI_PrintToWindowScrollView> m_scrollView;
    ConsoleSelection *m_selection = nullptr; ///< A child of this.
    DisplayList m_items;
    ItemPainter m_itemPainter;
    ConsoleReader m_reader{m_items, m_itemPainter};
    QString m_textString;
    double m_textInset = 3.0;
    double m_viewH = 0;
    double m_viewW = 0;
    double m_documentHeight = 0;
    QPointF m_currentPoint{3.0, 0};
    TextAttributes m_attributes;
    qint64 m_alignment = 0;
    bool m_flipView = true;
    QPointF m_linePoint;
    LineStyle m_lineStyle;
    QColor m_fillColor;
    ConsolePicture m_picture;
    QRectF m_dirty;
    bool m_refreshScheduled = false;
};

} // namespace tetrad
