#pragma once

// Implemented in runtime/app/popovers/popover.cpp

#include <tetrad/events/tag.h>

#include <QWidget>

namespace tetrad {

/// When a popover closes automatically.
enum PopoverBehavior : qint64 {
    popoverApplicationDefined = 0, ///< never
    popoverTransient = 1,          ///< on Escape and on a click outside, until it is dragged off
};

/// A small window that hangs on an edge of a rectangle in some widget. A tag that a popover has
/// cannot be used for a window.
class Popover : public QWidget
{
    Q_OBJECT

public:
    /// contentSize: in device-independent pixels. Not shown yet; who makes it owns it.
    Popover(Tag tag, const QSize &contentSize);
    ~Popover() override;

    Tag tag() const { return objectTag(this); }
    ContentViewSC *contentView() const { return m_contentView; }

    PopoverBehavior behavior() const { return m_behavior; }
    /// Takes effect the next time the popover is shown.
    void setBehavior(PopoverBehavior behavior) { m_behavior = behavior; }

    /// Shows the popover next to a rectangle in the widget's coordinates; an empty one stands for the
    /// whole widget. Where the preferred edge has no room on the screen the opposite one is taken.
    void showRelativeTo(QWidget *view, const QRect &rect, Qt::Edge preferredEdge);

Q_SIGNALS:
    void willShow();
    void didShow();
    /// A receiver refuses by setting *answer to false.
    void shouldClose(bool *answer);
    void willClose();
    void didClose();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    ContentViewSC *m_contentView = nullptr;
    PopoverBehavior m_behavior = popoverApplicationDefined;
};

/// The popover with the tag |tag|, or null; 0 gives null.
Popover *CUI_PopoverWithTag(Tag tag);

/// The popover shown last that is still visible, or null.
Popover *CUI_PopoverShown();

} // namespace tetrad
