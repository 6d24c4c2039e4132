#include <tetrad/console/console_view.h>

#include "runtime/console/view/console_accessible.h"
#include "runtime/console/view/console_selection.h"
#include "runtime/console/view/shape_painter.h"
#include <tetrad/console/console_scroll_view.h>
#include <tetrad/console/text_layout.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr double growthBelow = 20.0;

bool keepsLine(const QString &string)
{
    return string.endsWith(u'\b') || string.endsWith(u'\t');
}

bool isNewline(QChar c)
{
    const char16_t code = c.unicode();
    return (code >= 0x0A && code <= 0x0D) || code == 0x85 || code == 0x2028 || code == 0x2029;
}

QEvent::Type refreshEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

int widgetExtent(double extent)
{
    return static_cast<int>(std::ceil(std::clamp(extent, 0.0, static_cast<double>(QWIDGETSIZE_MAX))));
}

} // namespace

CUI_PrintToWindowView::CUI_PrintToWindowView(const QRectF &frame, QWidget *parent)
    : QWidget(parent), m_selection(new ConsoleSelection(this)), m_documentHeight(frame.height())
{
    installConsoleAccessibility();
    setGeometry(frame.toAlignedRect());
    // What was drawn stays where it is when the document grows, so only the new part is drawn.
    setAttribute(Qt::WA_StaticContents);
    setAccessibleName(tr("Console"));
}

CUI_PrintToWindowView::~CUI_PrintToWindowView() = default;

CUI_PrintToWindowView *CUI_PrintToWindowView::viewWithFrame(const QRectF &frame)
{
    return new CUI_PrintToWindowView(frame);
}

CUI_PrintToWindowScrollView *CUI_PrintToWindowView::scrollView() const
{
    return m_scrollView;
}

void CUI_PrintToWindowView::setScrollView(CUI_PrintToWindowScrollView *scrollView)
{
    m_scrollView = scrollView;
}

QPointF CUI_PrintToWindowView::addString(const QString &string)
{
    QString completed = string;
    if (!keepsLine(string)) {
        completed += u'\n';
    }
    m_textString += completed;
    const QStringView text(completed);
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isNewline(text.at(i))) {
            addPiece(text.mid(start, i - start).toString(), false);
            start = i + 1;
        }
    }
    addPiece(text.mid(start).toString(), true);
    fixFrameHeight(m_currentPoint.y() + m_attributes.facts().lineHeight);
    if (assistiveTechnologyListens()) {
        announceInsertion(this);
    }
    return m_currentPoint;
}

QPointF CUI_PrintToWindowView::addString(const QString &string, QPointF at)
{
    m_currentPoint = at;
    return addString(string);
}

/// Deliberately neither the inset nor the current x counts for a centred or right-aligned piece, yet the current x
/// moves on as for any other: programs place what follows by it.
double CUI_PrintToWindowView::pieceX(double pieceWidth) const
{
    switch (m_alignment) {
    case 1:
        return (width() - pieceWidth) / 2;
    case 2:
        return width() - pieceWidth;
    default:
        return m_currentPoint.x();
    }
}

/// An empty piece becomes an item too, deliberately: archives count two items for one printed line.
void CUI_PrintToWindowView::addPiece(const QString &piece, bool last)
{
    TextExtent extent = measureText(piece, m_attributes);
    const QPointF pt(pieceX(extent.width), m_currentPoint.y());
    append({CUI_PrintToWindowItem::itemWithString(piece, pt, m_attributes), extent.width, !last},
           extent.ink.translated(pt));
    if (extent.shape) {
        m_itemPainter.keepShape(m_items.size() - 1, std::move(extent.shape));
    }
    if (last) {
        m_currentPoint.rx() += extent.width;
    } else {
        m_currentPoint = {m_textInset, m_currentPoint.y() + m_attributes.facts().lineHeight};
    }
}

void CUI_PrintToWindowView::setColumnRow(double column, double row)
{
    const double cellWidth = measureText(u"0"_s, m_attributes).width;
    m_currentPoint = {column * cellWidth, row * m_attributes.facts().lineHeight};
    fixFrameHeight(m_currentPoint.y());
}

void CUI_PrintToWindowView::setAttributes(const QVariantMap &attributes)
{
    m_attributes.merge(attributes);
}

void CUI_PrintToWindowView::setFontName(const QString &name)
{
    if (isKnownFontFamily(name)) {
        m_attributes.setFontName(name);
    }
}

void CUI_PrintToWindowView::setFontSize(double size)
{
    if (!(size > 0) || size > largestFontSize) {
        qWarning("console: font size %g is not between 0 and %g, ignored", size, largestFontSize);
        return;
    }
    m_attributes.setFontSize(size);
}

void CUI_PrintToWindowView::setForegroundColor(const QColor &color)
{
    m_attributes.setForegroundColor(color);
}

void CUI_PrintToWindowView::setBackgroundColor(const QColor &color)
{
    m_attributes.setBackgroundColor(color);
}

void CUI_PrintToWindowView::setTabInterval(double interval)
{
    m_attributes.setParagraphStyle({.defaultTabInterval = interval, .tabStops = {}});
}

void CUI_PrintToWindowView::resetAttributes()
{
    m_attributes = TextAttributes();
    m_alignment = 0;
}

void CUI_PrintToWindowView::clear()
{
    const QString removed = assistiveTechnologyListens() ? m_reader.text().text() : QString();
    m_items.clear();
    m_itemPainter.forget();
    m_picture.forget();
    m_reader.clear();
    m_textString = QString();
    m_currentPoint = {m_textInset, 0};
    m_viewH = 0;
    m_viewW = 0;
    m_documentHeight = 1.0;
    // At once and not with the next event: a document that was scrolled starts over at its top.
    const QWidget *content = m_scrollView ? m_scrollView->parentWidget() : nullptr;
    resize(content ? content->width() : width(), 1);
    update();
    if (!removed.isEmpty()) {
        announceRemoval(this, removed);
    }
}

void CUI_PrintToWindowView::addLines(const QList<QPointF> &points, bool fromCurrentLocation)
{
    if (points.isEmpty()) {
        return;
    }
    if (!fromCurrentLocation) {
        m_linePoint = points.first();
        if (points.size() == 1) {
            return;
        }
    }
    double lowest = 0;
    for (const QPointF &point : points) {
        auto item = CUI_PrintToWindowItem::itemWithLinePoint1(m_linePoint, point);
        setLineStyleForItem(item);
        addShape(item);
        if (lowest < point.y()) {
            lowest = point.y() + item.lineStyle().lineWidth / 2;
        }
        m_linePoint = point;
    }
    fixFrameHeight(lowest);
}

void CUI_PrintToWindowView::addRect(const QRectF &rect, const QColor &strokeColor, const QColor &fillColor)
{
    addFilled(CUI_PrintToWindowItem::rectangle, rect, strokeColor, fillColor);
}

void CUI_PrintToWindowView::addOval(const QRectF &rect, const QColor &strokeColor, const QColor &fillColor)
{
    addFilled(CUI_PrintToWindowItem::oval, rect, strokeColor, fillColor);
}

void CUI_PrintToWindowView::addFilled(quint32 type, const QRectF &rect, const QColor &strokeColor,
                                      const QColor &fillColor)
{
    auto item = CUI_PrintToWindowItem::itemWithType(type, rect, strokeColor, fillColor);
    setLineStyleForItem(item);
    item.setColors(strokeColor, fillColor);
    addShape(item);
    fixFrameHeight(rect.y() + rect.height() + item.lineStyle().lineWidth / 2);
}

void CUI_PrintToWindowView::setLineStyleForItem(CUI_PrintToWindowItem &item) const
{
    item.setLineStyle(m_lineStyle);
}

void CUI_PrintToWindowView::addShape(CUI_PrintToWindowItem item)
{
    const QRectF ink = shapeInk(item);
    append({std::move(item)}, ink);
}

void CUI_PrintToWindowView::append(DisplayList::Entry entry, const QRectF &ink)
{
    if (m_items.append(std::move(entry), ink)) {
        m_dirty |= ink;
        scheduleRefresh();
    }
}

void CUI_PrintToWindowView::fixFrameHeight(double height)
{
    if (!std::isfinite(height)) {
        qWarning("console: the document cannot grow to a height of %g", height);
        return;
    }
    if (height < m_viewH) {
        return;
    }
    m_viewH = height + growthBelow;
    if (m_viewH > QWIDGETSIZE_MAX && m_documentHeight <= QWIDGETSIZE_MAX) {
        qWarning("console: the document is %g pixels high; what lies below %d cannot be shown until it is cleared",
                 m_viewH, QWIDGETSIZE_MAX);
    }
    m_documentHeight = std::max(m_documentHeight, m_viewH);
    scheduleRefresh();
}

/// Resizing the widget for every line would lay out the scroll view each time; one event serves all lines of a burst.
void CUI_PrintToWindowView::scheduleRefresh()
{
    if (!m_refreshScheduled) {
        m_refreshScheduled = true;
        QCoreApplication::postEvent(this, new QEvent(refreshEvent()));
    }
}

void CUI_PrintToWindowView::refresh()
{
    m_refreshScheduled = false;
    const int height = widgetExtent(m_documentHeight);
    const bool movesAll = !m_flipView && height != this->height();
    resize(width(), height);
    if (movesAll) {
        update();
    } else if (!m_dirty.isEmpty()) {
        constexpr double reach = QWIDGETSIZE_MAX;
        const QRect part = mirrored(m_dirty).intersected(QRectF(-1, -1, reach, reach)).toAlignedRect();
        m_picture.forget(part);
        update(part);
    }
    m_dirty = QRectF();
}

void CUI_PrintToWindowView::setFlipView(bool flip)
{
    m_flipView = flip;
    update();
}

QRectF CUI_PrintToWindowView::mirrored(const QRectF &rect) const
{
    return m_flipView ? rect : QRectF(rect.left(), m_documentHeight - rect.bottom(), rect.width(), rect.height());
}

QString CUI_PrintToWindowView::takeNewText()
{
    return m_reader.takeNew();
}

void CUI_PrintToWindowView::select(qsizetype anchor, qsizetype caret)
{
    m_reader.select(anchor, caret);
    scrollTo(m_reader.characterRect(m_reader.caret()));
    update();
    if (assistiveTechnologyListens()) {
        announceSelection(this);
    }
}

void CUI_PrintToWindowView::scrollTo(const QRectF &rect)
{
    refresh();
    if (m_scrollView) {
        m_scrollView->reveal(mirrored(rect));
    }
}

void CUI_PrintToWindowView::copy()
{
    if (canCopy()) {
        QGuiApplication::clipboard()->setText(m_reader.selectedText());
    }
}

void CUI_PrintToWindowView::selectAll()
{
    select(0, m_reader.text().text().size());
}

bool CUI_PrintToWindowView::event(QEvent *event)
{
    if (event->type() == refreshEvent()) {
        refresh();
        return true;
    }
    return QWidget::event(event);
}

ItemPainter::Canvas CUI_PrintToWindowView::canvasOf(QPainter &painter) const
{
    return {painter, palette().color(QPalette::WindowText), !m_flipView, m_documentHeight};
}

void CUI_PrintToWindowView::paintItems(QPainter &painter, const QRegion &part)
{
    const auto draw = [&](const QRect &missing) {
        m_itemPainter.drawPart(canvasOf(painter), m_items, mirrored(QRectF(missing)));
    };
    const QColor ground = m_scrollView ? m_scrollView->plainGround() : QColor();
    // What was printed since the last refresh is not yet missing in the picture.
    if (!ground.isValid() || m_refreshScheduled) {
        draw(part.boundingRect());
        return;
    }
    const QRgb textColor = palette().color(QPalette::WindowText).rgba();
    m_picture.paint(painter, *this, part, {width(), ground.rgb(), textColor, m_flipView ? 0 : m_documentHeight}, draw);
}

void CUI_PrintToWindowView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    paintItems(painter, event->region());
    const QRectF part = mirrored(QRectF(event->rect()));
    m_reader.drawSelection(canvasOf(painter), palette(), part.top(), part.bottom());
    m_selection->drawFocus(painter);
}

} // namespace tetrad
