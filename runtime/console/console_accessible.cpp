#include "runtime/console/console_accessible.h"

#include "runtime/console/console_view.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace tetrad {

namespace {

/// The console to an assistive technology: the reader's text, places in screen coordinates.
class ConsoleAccessible : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit ConsoleAccessible(CUI_PrintToWindowView *view)
        : QAccessibleWidget(view, QAccessible::Terminal), m_view(view)
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
        // The view takes no focus from a click or the Tab key, but an assistive technology may give it.
        return {setFocusAction()};
    }

    int characterCount() const override { return static_cast<int>(all().size()); }

    QString text(int startOffset, int endOffset) const override
    {
        return all().mid(startOffset, std::max(0, endOffset - startOffset));
    }

    QRect characterRect(int offset) const override
    {
        if (offset < 0 || offset >= characterCount()) {
            return {};
        }
        const QRect rect = m_view->mirrored(m_view->reader().characterRect(offset)).toAlignedRect();
        return {m_view->mapToGlobal(rect.topLeft()), rect.size()};
    }

    int offsetAtPoint(const QPoint &point) const override
    {
        return static_cast<int>(m_view->reader().characterAt(m_view->mirrored(QPointF(m_view->mapFromGlobal(point)))));
    }

    int cursorPosition() const override { return static_cast<int>(m_view->reader().caret()); }
    void setCursorPosition(int position) override { m_view->select(position, position); }

    int selectionCount() const override { return m_view->reader().hasSelection() ? 1 : 0; }

    void selection(int index, int *startOffset, int *endOffset) const override
    {
        const bool known = index == 0 && selectionCount() == 1;
        *startOffset = known ? static_cast<int>(m_view->reader().selectionStart()) : 0;
        *endOffset = known ? static_cast<int>(m_view->reader().selectionEnd()) : 0;
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
            m_view->select(startOffset, endOffset);
        }
    }

    QString attributes(int offset, int *startOffset, int *endOffset) const override
    {
        const ConsoleText &text = m_view->reader().text();
        const ConsoleText::Piece *piece = text.pieceAt(offset);
        *startOffset = piece ? static_cast<int>(piece->offset) : 0;
        *endOffset = characterCount();
        if (!piece) {
            return {};
        }
        if (const ConsoleText::Piece *next = text.pieceAfter(*piece)) {
            *endOffset = static_cast<int>(next->offset);
        }
        return described(m_view->items().item(piece->item).attributes());
    }

    void scrollToSubstring(int startIndex, int endIndex) override
    {
        m_view->scrollTo(m_view->reader().characterRect(std::max(startIndex, endIndex - 1)));
        m_view->scrollTo(m_view->reader().characterRect(startIndex));
    }

private:
    const QString &all() const { return m_view->reader().text().text(); }

    static QString colorText(const QColor &color)
    {
        return QString::asprintf("rgb(%d,%d,%d)", color.red(), color.green(), color.blue());
    }

    QString described(const TextAttributes &attributes) const
    {
        const QColor foreground = attributes.foregroundColor();
        QString text =
            QStringLiteral("font-family:\"%1\";font-size:%2pt;color:%3;")
                .arg(attributes.fontName(), QString::number(attributes.fontSize() * 0.75),
                     colorText(foreground.isValid() ? foreground : m_view->palette().color(QPalette::WindowText)));
        const QColor background = attributes.backgroundColor();
        if (background.isValid() && background.alpha() != 0) {
            text += QStringLiteral("background-color:%1;").arg(colorText(background));
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

/// Asked for every printed line, so the answer is kept.
struct Listening : QAccessible::ActivationObserver
{
    bool active = QAccessible::isActive();

    void accessibilityActiveChanged(bool nowActive) override { active = nowActive; }
};

Listening &listening()
{
    static Listening observer;
    return observer;
}

} // namespace

void installConsoleAccessibility()
{
    static const bool once = [] {
        QAccessible::installFactory(makeInterface);
        QAccessible::installActivationObserver(&listening());
        return true;
    }();
    Q_UNUSED(once);
}

bool assistiveTechnologyListens()
{
    return listening().active;
}

void announceInsertion(CUI_PrintToWindowView *view)
{
    const QString added = view->reader().takeUnannounced();
    if (!added.isEmpty()) {
        const auto end = view->reader().text().text().size();
        QAccessibleTextInsertEvent event(view, static_cast<int>(end - added.size()), added);
        QAccessible::updateAccessibility(&event);
    }
}

void announceRemoval(CUI_PrintToWindowView *view, const QString &removed)
{
    QAccessibleTextRemoveEvent event(view, 0, removed);
    QAccessible::updateAccessibility(&event);
}

void announceSelection(CUI_PrintToWindowView *view)
{
    const ConsoleReader &reader = view->reader();
    QAccessibleTextSelectionEvent event(view, static_cast<int>(reader.selectionStart()),
                                        static_cast<int>(reader.selectionEnd()));
    event.setCursorPosition(static_cast<int>(reader.caret()));
    QAccessible::updateAccessibility(&event);
}

} // namespace tetrad
