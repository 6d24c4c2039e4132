#pragma once

// Implemented in runtime/app/windows/content_view.cpp and event_view.cpp

#include <tetrad/fwd.h>

#include <QColor>
#include <QStringList>
#include <QWidget>

#include <memory>

class QMimeData;

namespace tetrad {

/// What the views share that report their own mouse, key, drag and drawing events to the dialog function (ContentViewSC
/// and ViewSC). The default handling is done only of what the function left unhandled (boolVal false).
///
/// A callback may delete the view and its window, except while the view draws. For that, the events that the platform
/// goes on working with (enter, leave, right press) are reported from a copy: before the view's next
/// event, or once control is back in the event loop.
class EventView : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    /// The view's name in its events.
    virtual ReportingView source() = 0;
    /// Whether the view reports at all.
    virtual bool reportsEvents() const = 0;
    virtual bool acceptsDrag(const QMimeData &dragged) const = 0;
    /// The menu that event 2026 starts from; not owned, may be null.
    virtual QObject *contextMenu() const { return nullptr; }
    /// True when nothing is left to do: the program handled the event or deleted the view.
    virtual bool report(QEvent *event);

    bool event(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    bool m_dragInside = false;

private:
    void hold(const QEvent *event);
    bool reportHeld();
    void handleByDefault(QEvent *event);

    QList<std::shared_ptr<QEvent>> m_held;
};

/// The content view of every window and popover: a surface that paints its background and, with the subclass flag
/// set, reports its own events. Its objectName is the text of contentViewTag, which is also the view tag its
/// events carry.
class ContentViewSC : public EventView
{
    Q_OBJECT

public:
    explicit ContentViewSC(QWidget *parent = nullptr);

    /// Whether the program counts y downwards. Only remembered: positions on this platform always
    /// count from the top left.
    bool isFlipped() const { return m_flip; }
    void setFlip(bool flip) { m_flip = flip; }

    bool subclassFlag() const { return m_subclassFlag; }
    void setSubclassFlag(bool flag) { m_subclassFlag = flag; }

    /// Whether the view takes the keyboard focus, without which it reports no keys; false at first.
    bool responderFlag() const { return m_responderFlag; }
    void setResponderFlag(bool flag);

    /// MIME types, and file extensions without the dot, that a drag must offer to be reported; without either every
    /// drag is refused.
    const QStringList &dragFileTypes() const { return m_dragFileTypes; }
    void setDragFileTypes(const QStringList &types) { m_dragFileTypes = types; }
    const QStringList &dragFileExtensions() const { return m_dragFileExtensions; }
    void setDragFileExtensions(const QStringList &extensions) { m_dragFileExtensions = extensions; }

    /// Whether a drag that the view accepted is over it.
    bool dragInside() const { return m_dragInside; }
    void setDragInside(bool inside) { m_dragInside = inside; }

    /// An invalid colour stands for the one that windows have.
    void setBackgroundColor(const QColor &color);
    QColor backgroundColor() const;

protected:
    ReportingView source() override;
    bool reportsEvents() const override { return m_subclassFlag; }
    bool acceptsDrag(const QMimeData &dragged) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_flip = false;
    bool m_subclassFlag = false;
    bool m_responderFlag = false;
    QStringList m_dragFileTypes;
    QStringList m_dragFileExtensions;
    // Painted rather than put into the palette, which every child would inherit.
    QColor m_backgroundColor;
};

/// A view that the program prints to, as the input panels know it.
class PrintedView
{
public:
    /// What was printed since the last call or clear, as readable text.
    virtual QString takeNewText() = 0;

protected:
    ~PrintedView() = default;
};

} // namespace tetrad
