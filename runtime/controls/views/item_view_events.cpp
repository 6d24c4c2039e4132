#include "runtime/controls/views/item_view_events.h"

#include "runtime/controls/dispatch/event_site.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace tetrad {

namespace {

// Gives access to what the views keep protected.
struct Protected : QAbstractItemView
{
    // Invalid when the key moves nothing.
    static std::pair<bool, QModelIndex> target(QAbstractItemView *view, const QKeyEvent &event)
    {
        static constexpr std::pair<Qt::Key, CursorAction> actions[] = {
            {Qt::Key_Up, MoveUp},         {Qt::Key_Down, MoveDown},         {Qt::Key_Left, MoveLeft},
            {Qt::Key_Right, MoveRight},   {Qt::Key_Home, MoveHome},         {Qt::Key_End, MoveEnd},
            {Qt::Key_PageUp, MovePageUp}, {Qt::Key_PageDown, MovePageDown},
        };
        for (const auto &[key, action] : actions) {
            if (event.key() == key) {
                return {true, (view->*(&Protected::moveCursor))(action, event.modifiers())};
            }
        }
        return {false, {}};
    }
};

bool editsOrLeaves(const QKeyEvent &event)
{
    static constexpr Qt::Key keys[] = {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab};
    return std::ranges::count(keys, event.key()) > 0 || event.modifiers() & Qt::ControlModifier;
}

// In an outline, Left and Right open and close before they move.
bool opensOrCloses(const QAbstractItemView *view, const QKeyEvent &event)
{
    const auto *const tree = qobject_cast<const QTreeView *>(view);
    return tree &&
           (tree->isExpanded(tree->currentIndex()) ? event.key() == Qt::Key_Left : event.key() == Qt::Key_Right);
}

} // namespace

ItemViewEvents::ItemViewEvents(QAbstractItemView *view, QHeaderView *header, const Codes &codes, RecordItem recordItem)
    : QObject(view), m_view(view), m_codes(codes), m_recordItem(std::move(recordItem))
{
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    const auto reportSelection = [this] {
        m_recordItem(m_view->selectionModel()->selectedIndexes().value(0));
        forwardDelegateEvent(m_view, m_codes.selectionChanged);
    };
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, reportSelection,
            Qt::QueuedConnection);
    const auto reportColumn = [this](int column) {
        CUI_DialogEventObj()->tableColumnObj = column;
        forwardDelegateEvent(m_view, m_codes.columnClicked);
    };
    connect(header, &QHeaderView::sectionClicked, this, reportColumn, Qt::QueuedConnection);
}

// A key that moves the selection, if the program lets it, and those that select nothing.
bool ItemViewEvents::letsKey(QKeyEvent *event)
{
    const auto [moves, target] = Protected::target(m_view, *event);
    if (!moves) {
        event->setAccepted(editsOrLeaves(*event));
        return event->isAccepted();
    }
    return opensOrCloses(m_view, *event) || lets(target);
}

bool ItemViewEvents::eventFilter(QObject *watched, QEvent *event)
{
    const auto position = [event] { return static_cast<QMouseEvent *>(event)->position().toPoint(); };
    switch (event->type()) {
    case QEvent::KeyPress:
        return !letsKey(static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
        return !letsPress(position());
    case QEvent::MouseMove:
        return static_cast<QMouseEvent *>(event)->buttons() & Qt::LeftButton && !letsDrag(position());
    default:
        return QObject::eventFilter(watched, event);
    }
}

// False also when the program deleted or reloaded the view instead of answering.
bool ItemViewEvents::lets(const QModelIndex &item)
{
    if (!item.isValid() || m_view->selectionModel()->isSelected(item)) {
        return true;
    }
    const QPointer<ItemViewEvents> guard(this);
    const QPersistentModelIndex target(item);
    m_recordItem(item);
    return !answersYes(m_view, m_codes.refuseSelect) && guard && target.isValid();
}

bool ItemViewEvents::letsPress(const QPoint &position)
{
    m_item = QModelIndex();
    m_isLet = true;
    const QModelIndex item = m_view->indexAt(position);
    // A press on an outline's arrow opens and selects nothing.
    return !m_view->visualRect(item).contains(position) || letsDrag(position);
}

// Each item is asked about once, when the mouse comes to it.
bool ItemViewEvents::letsDrag(const QPoint &position)
{
    const QModelIndex item = m_view->indexAt(position).siblingAtColumn(0);
    if (!item.isValid() || item == m_item) {
        return m_isLet;
    }
    m_item = item;
    const QPointer<ItemViewEvents> guard(this);
    const bool isLet = lets(item);
    if (guard) {
        m_isLet = isLet;
    }
    return isLet;
}

} // namespace tetrad
