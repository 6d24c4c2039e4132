#include <tetrad/console/console_document.h>

#include "runtime/console/document/console_reader.h"
#include "runtime/console/document/display_list.h"
#include "runtime/console/document/font_facts.h"
#include "runtime/console/document/text_layout.h"

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

} // namespace

ConsoleDocument::ConsoleDocument(const QSizeF &size) : m_reader(std::make_unique<ConsoleReader>(m_items)), m_size(size)
{}

ConsoleDocument::~ConsoleDocument() = default;

QPointF ConsoleDocument::addString(const QString &string)
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
    return m_currentPoint;
}

QPointF ConsoleDocument::addString(const QString &string, QPointF at)
{
    m_currentPoint = at;
    return addString(string);
}

// A centred or right-aligned piece deliberately ignores the inset and the current x. The current x still moves on as
// for any other piece: programs position what follows by it.
double ConsoleDocument::pieceX(double width) const
{
    switch (m_alignment) {
    case 1:
        return (documentSize().width() - width) / 2;
    case 2:
        return documentSize().width() - width;
    default:
        return m_currentPoint.x();
    }
}

// An empty piece becomes an item too, deliberately: archives count two items for one printed line.
void ConsoleDocument::addPiece(const QString &piece, bool last)
{
    const TextExtent extent = measureText(piece, m_attributes);
    const QPointF pt(pieceX(extent.width), m_currentPoint.y());
    if (last) {
        m_currentPoint.rx() += extent.width;
    } else {
        m_currentPoint = {m_textInset, m_currentPoint.y() + m_attributes.facts().lineHeight};
    }
    m_items.append(DisplayList::Entry{.item = CUI_PrintToWindowItem::itemWithString(piece, pt, m_attributes),
                                      .ink = pixelsOf(extent.ink.translated(pt)),
                                      .width = static_cast<float>(extent.width),
                                      .endsLine = !last});
}

void ConsoleDocument::setColumnRow(double column, double row)
{
    const double cellWidth = measureText(u"0"_s, m_attributes).width;
    m_currentPoint = {column * cellWidth, row * m_attributes.facts().lineHeight};
    fixFrameHeight(m_currentPoint.y());
}

void ConsoleDocument::setFontName(const QString &name)
{
    if (isKnownFontFamily(name)) {
        m_attributes.setFontName(name);
    }
}

void ConsoleDocument::setTabInterval(double interval)
{
    m_attributes.setParagraphStyle({.defaultTabInterval = interval, .tabStops = {}});
}

void ConsoleDocument::resetAttributes()
{
    m_attributes = TextAttributes();
    m_alignment = 0;
}

void ConsoleDocument::clear()
{
    m_items.clear();
    m_textString = QString();
    m_currentPoint = {m_textInset, 0};
    m_viewH = 0;
    m_viewW = 0;
    setDocumentSize({documentSize().width(), 1.0});
}

void ConsoleDocument::addLines(const QList<QPointF> &points, bool fromCurrentLocation)
{
    if (!fromCurrentLocation) {
        if (points.isEmpty()) {
            return;
        }
        m_linePoint = points.first();
        if (points.size() == 1) {
            return;
        }
    }
    double lowest = 0;
    for (const QPointF &point : points) {
        auto item = CUI_PrintToWindowItem::itemWithLinePoint1(m_linePoint, point);
        setLineStyleForItem(item);
        m_items.append(item);
        if (lowest < point.y()) {
            lowest = point.y() + item.lineStyle().lineWidth / 2;
        }
        m_linePoint = point;
    }
    fixFrameHeight(lowest);
}

void ConsoleDocument::addFilled(quint32 type, const QRectF &rect, const QColor &strokeColor, const QColor &fillColor)
{
    auto item = CUI_PrintToWindowItem::itemWithType(type, rect, strokeColor, fillColor);
    setLineStyleForItem(item);
    item.setColors(strokeColor, fillColor);
    m_items.append(item);
    fixFrameHeight(rect.y() + rect.height() + item.lineStyle().lineWidth / 2);
}

void ConsoleDocument::fixFrameHeight(double height)
{
    if (!std::isfinite(height)) {
        qWarning("console: the document cannot grow to a height of %g", height);
        return;
    }
    if (height < m_viewH) {
        return;
    }
    m_viewH = height + growthBelow;
    const QSizeF size = documentSize();
    setDocumentSize({size.width(), std::max(size.height(), m_viewH)});
}

void ConsoleDocument::setFlipView(bool flip)
{
    m_flipView = flip;
    setNeedsDisplay();
}

QTransform ConsoleDocument::mirror() const
{
    return m_flipView ? QTransform() : QTransform(1, 0, 0, -1, 0, documentSize().height());
}

void ConsoleDocument::itemAppended(const QRectF &) {}

void ConsoleDocument::itemsChanged()
{
    m_reader->clear();
    setNeedsDisplay();
}

} // namespace tetrad
