#include "runtime/console/view/console_accessible.h"

#include "runtime/console/document/console_reader.h"
#include "runtime/console/document/display_list.h"
#include <tetrad/console/console_view.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// The bridge to AT-SPI passes offsets on unchanged, and AT-SPI counts characters. Other platforms count UTF-16 units as
// QString does.
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
constexpr bool clientsCountCharacters = true;
#else
constexpr bool clientsCountCharacters = false;
#endif

int outward(CUI_PrintToWindowView *view, qsizetype offset)
{
    return static_cast<int>(clientsCountCharacters ? view->reader().text().charactersBefore(offset) : offset);
}

qsizetype inward(CUI_PrintToWindowView *view, int offset)
{
    return clientsCountCharacters ? view->reader().text().offsetOfCharacter(offset) : offset;
}

// The console as assistive technology sees it: the reader's text, rectangles in screen coordinates. Deliberately not
// a terminal: Orca speaks neither the name nor the description of one.
class ConsoleAccessible : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit ConsoleAccessible(CUI_PrintToWindowView *view)
        : QAccessibleWidget(view, QAccessible::EditableText), m_view(view)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        state.focusable = true;
        state.selectableText = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? all() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override
    {
        // Neither a click nor the Tab key gives the view the focus, but assistive technology may.
        return {setFocusAction()};
    }

    int characterCount() const override { return outward(all().size()); }

    QString text(int startOffset, int endOffset) const override
    {
        const qsizetype start = inward(startOffset);
        return all().mid(start, std::max<qsizetype>(0, inward(endOffset) - start));
    }

    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int *startOffset,
                             int *endOffset) const override
    {
        const QString text = QAccessibleTextInterface::textBeforeOffset(inward(offset), type, startOffset, endOffset);
        return turnedOutward(text, startOffset, endOffset);
    }

    QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int *startOffset,
                            int *endOffset) const override
    {
        const QString text = QAccessibleTextInterface::textAfterOffset(inward(offset), type, startOffset, endOffset);
        return turnedOutward(text, startOffset, endOffset);
    }

    QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int *startOffset,
                         int *endOffset) const override
    {
        const QString text = QAccessibleTextInterface::textAtOffset(inward(offset), type, startOffset, endOffset);
        return turnedOutward(text, startOffset, endOffset);
    }

    QRect characterRect(int offset) const override
    {
        if (offset < 0 || offset >= characterCount()) {
            return {};
        }
        const QRect rect = m_view->mirror().mapRect(m_view->reader().characterRect(inward(offset))).toAlignedRect();
        return {m_view->mapToGlobal(rect.topLeft()), rect.size()};
    }

    int offsetAtPoint(const QPoint &point) const override
    {
        return outward(m_view->reader().characterAt(m_view->mirror().map(QPointF(m_view->mapFromGlobal(point)))));
    }

    int cursorPosition() const override { return outward(m_view->reader().caret()); }
    void setCursorPosition(int position) override { setSelection(0, position, position); }

    int selectionCount() const override { return m_view->reader().hasSelection() ? 1 : 0; }

    void selection(int index, int *startOffset, int *endOffset) const override
    {
        const bool known = index == 0 && selectionCount() == 1;
        *startOffset = known ? outward(m_view->reader().selectionStart()) : 0;
        *endOffset = known ? outward(m_view->reader().selectionEnd()) : 0;
    }

    void addSelection(int startOffset, int endOffset) override { setSelection(0, startOffset, endOffset); }

    void removeSelection(int index) override
    {
        if (index == 0) {
            setCursorPosition(cursorPosition());
        }
    }

    void setSelection(int index, int startOffset, int endOffset) override
    {
        if (index == 0) {
            m_view->select(inward(startOffset), inward(endOffset));
        }
    }

    QString attributes(int offset, int *startOffset, int *endOffset) const override
    {
        const ConsoleText &text = m_view->reader().text();
        const ConsoleText::Piece *piece = text.pieceAt(inward(offset));
        *startOffset = piece ? outward(piece->offset) : 0;
        *endOffset = characterCount();
        if (!piece) {
            return {};
        }
        if (const ConsoleText::Piece *next = text.pieceAfter(*piece)) {
            *endOffset = outward(next->offset);
        }
        return described(m_view->items().at(piece->item).attributes());
    }

    void scrollToSubstring(int startIndex, int endIndex) override
    {
        m_view->scrollTo(m_view->reader().characterRect(inward(std::max(startIndex, endIndex - 1))));
        m_view->scrollTo(m_view->reader().characterRect(inward(startIndex)));
    }

private:
    const QString &all() const { return m_view->reader().text().text(); }

    int outward(qsizetype offset) const { return tetrad::outward(m_view, offset); }
    int inward(int offset) const { return static_cast<int>(tetrad::inward(m_view, offset)); }

    QString turnedOutward(const QString &text, int *startOffset, int *endOffset) const
    {
        *startOffset = outward(*startOffset);
        *endOffset = outward(*endOffset);
        return text;
    }

    static QString colorText(const QColor &color)
    {
        return QString::asprintf("rgb(%d,%d,%d)", color.red(), color.green(), color.blue());
    }

    QString described(const TextAttributes &attributes) const
    {
        const QColor foreground = attributes.foregroundColor();
        QString text = u"font-family:\"%1\";font-size:%2pt;color:%3;"_s.arg(
            attributes.fontName(), QString::number(attributes.fontSize() * 0.75),
            colorText(foreground.isValid() ? foreground : m_view->palette().color(QPalette::WindowText)));
        const QColor background = attributes.backgroundColor();
        if (background.isValid() && background.alpha() != 0) {
            text += u"background-color:%1;"_s.arg(colorText(background));
        }
        return text;
    }

    CUI_PrintToWindowView *m_view = nullptr;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *view = qobject_cast<CUI_PrintToWindowView *>(object);
    return view ? new ConsoleAccessible(view) : nullptr;
}

// Kept, since it is queried for every printed item.
struct Listening : QAccessible::ActivationObserver
{
    bool active = QAccessible::isActive();

    Listening()
    {
        QAccessible::installFactory(makeInterface);
        QAccessible::installActivationObserver(this);
    }

    void accessibilityActiveChanged(bool nowActive) override
    {
        active = nowActive;
        // A client that starts to listen reads what is already there.
        for (QWidget *widget : QApplication::allWidgets()) {
            if (auto *view = qobject_cast<CUI_PrintToWindowView *>(widget)) {
                view->reader().text();
            }
        }
    }
};

Listening &listening()
{
    static Listening observer;
    return observer;
}

} // namespace

void installConsoleAccessibility()
{
    listening();
}

void announceInsertion(CUI_PrintToWindowView *view)
{
    if (!listening().active) {
        return;
    }
    const qsizetype start = view->reader().knownText().size();
    const QString added = view->reader().text().text().mid(start);
    if (!added.isEmpty()) {
        QAccessibleTextInsertEvent event(view, outward(view, start), added);
        QAccessible::updateAccessibility(&event);
    }
}

void announceRemoval(CUI_PrintToWindowView *view, const QString &removed)
{
    if (listening().active) {
        QAccessibleTextRemoveEvent event(view, 0, removed);
        QAccessible::updateAccessibility(&event);
    }
}

void announceSelection(CUI_PrintToWindowView *view)
{
    if (!listening().active) {
        return;
    }
    const ConsoleReader &reader = view->reader();
    QAccessibleTextSelectionEvent event(view, outward(view, reader.selectionStart()),
                                        outward(view, reader.selectionEnd()));
    QAccessible::updateAccessibility(&event);
    // The bridge to AT-SPI does not report the caret together with the selection.
    QAccessibleTextCursorEvent caret(view, outward(view, reader.caret()));
    QAccessible::updateAccessibility(&caret);
}

} // namespace tetrad
