#include <tetrad/console/console_view.h>

#include "runtime/console/document/console_reader.h"
#include "runtime/console/view/console_accessible.h"
#include "runtime/console/view/console_selection.h"
#include "runtime/console/view/item_painter.h"
#include "runtime/console/view/kept_picture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tetrad {

namespace {

int widgetExtent(double extent)
{
    return static_cast<int>(std::ceil(std::clamp(extent, 0.0, static_cast<double>(QWIDGETSIZE_MAX))));
}

} // namespace

CUI_PrintToWindowView::CUI_PrintToWindowView(const QRectF &frame, QWidget *parent)
    : QWidget(parent), ConsoleDocument(frame.size()), m_selection(new ConsoleSelection(this)),
      m_picture(std::make_unique<KeptPicture>())
{
    installConsoleAccessibility();
    setGeometry(frame.toAlignedRect());
    // What was drawn stays where it is when the document grows, so only the new part is drawn.
    setAttribute(Qt::WA_StaticContents);
    setAccessibleName(tr("Console"));
}

CUI_PrintToWindowView::~CUI_PrintToWindowView() = default;

CUI_PrintToWindowScrollView *CUI_PrintToWindowView::scrollView() const
{
    return m_scrollView;
}

void CUI_PrintToWindowView::setScrollView(CUI_PrintToWindowScrollView *scrollView)
{
    m_scrollView = scrollView;
}

QSizeF CUI_PrintToWindowView::documentSize() const
{
    const double height = ConsoleDocument::documentSize().height();
    return QSizeF(width(), this->height() == widgetExtent(height) ? height : this->height());
}

void CUI_PrintToWindowView::setDocumentSize(const QSizeF &size)
{
    const double before = documentSize().height();
    if (size.height() > QWIDGETSIZE_MAX && before <= QWIDGETSIZE_MAX) {
        qWarning("console: the document is %g pixels high; what lies below %d cannot be shown until it is cleared",
                 size.height(), QWIDGETSIZE_MAX);
    }
    ConsoleDocument::setDocumentSize(size);
    resize(widgetExtent(size.width()), widgetExtent(size.height()));
    if (!isFlipped() && size.height() != before) {
        setNeedsDisplay();
    }
}

void CUI_PrintToWindowView::clear()
{
    ConsoleDocument::clear();
    if (m_scrollView) {
        resize(m_scrollView->parentWidget()->width(), height());
    }
}

QRect CUI_PrintToWindowView::visiblePart() const
{
    return parentWidget() ? rect() & parentWidget()->rect().translated(-pos()) : rect();
}

void CUI_PrintToWindowView::itemAppended(const QRectF &ink)
{
    const QRectF part = mirror().mapRect(ink) & visiblePart();
    if (!part.isEmpty()) {
        // One rectangle: a region of many would take longer to keep than to paint.
        m_dirty |= part.toAlignedRect();
        update(m_dirty);
    }
    announceInsertion(this);
}

void CUI_PrintToWindowView::itemsChanged()
{
    const QString before = reader().knownText();
    ConsoleDocument::itemsChanged();
    announceRemoval(this, before);
    announceInsertion(this);
}

void CUI_PrintToWindowView::setNeedsDisplay()
{
    m_picture->forget();
    update();
}

QString CUI_PrintToWindowView::takeNewText()
{
    return reader().takeNew();
}

bool CUI_PrintToWindowView::canCopy() const
{
    return reader().hasSelection();
}

void CUI_PrintToWindowView::select(qsizetype anchor, qsizetype caret)
{
    reader().select(anchor, caret);
    scrollTo(reader().characterRect(reader().caret()));
    setNeedsDisplay();
    announceSelection(this);
}

void CUI_PrintToWindowView::scrollTo(const QRectF &rect)
{
    if (m_scrollView) {
        m_scrollView->reveal(mirror().mapRect(rect));
    }
}

void CUI_PrintToWindowView::copy()
{
    if (canCopy()) {
        QGuiApplication::clipboard()->setText(reader().selectedText());
    }
}

void CUI_PrintToWindowView::selectAll()
{
    select(0, reader().text().text().size());
}

void CUI_PrintToWindowView::paintEvent(QPaintEvent *event)
{
    m_dirty = QRect();
    QPainter painter(this);
    const QColor ground = m_scrollView ? m_scrollView->plainGround() : QColor();
    if (!ground.isValid() || !m_picture->paint(painter, *this, visiblePart(), ground)) {
        drawItems({painter, mirror(), palette()}, *this, mirror().mapRect(QRectF(event->rect())));
    }
    m_selection->drawFocus(painter);
}

} // namespace tetrad
