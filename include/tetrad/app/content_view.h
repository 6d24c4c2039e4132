#pragma once

// Implemented in runtime/app/windows/content_view.cpp

#include <QColor>
#include <QStringList>
#include <QWidget>

class QMimeData;

namespace tetrad {

/// The content view of every window and popover. Usually a plain surface that paints its background;
/// with the subclass flag set it reports its own mouse, key, drag and drawing events to the dialog
/// function, and does the default handling only of what the function left unhandled (boolVal false).
///
/// Its objectName is the text of contentViewTag, which is also the view tag its events carry.
class ContentViewSC : public QWidget
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

    /// Whether the view takes the keyboard focus.
    bool responderFlag() const { return m_responderFlag; }
    void setResponderFlag(bool flag);

    /// MIME types, and file extensions without the dot, that a drag must offer to be reported; none
    /// of either refuses every drag.
    const QStringList &dragFileTypes() const { return m_dragFileTypes; }
    void setDragFileTypes(const QStringList &types);
    const QStringList &dragFileExtensions() const { return m_dragFileExtensions; }
    void setDragFileExtensions(const QStringList &extensions);
    bool dragInside() const { return m_dragInside; }
    void setDragInside(bool inside) { m_dragInside = inside; }

    /// An invalid colour stands for the one that windows have.
    void setBackgroundColor(const QColor &color);
    QColor backgroundColor() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool reports(qint64 code, QEvent *event);
    bool acceptsDrag(const QMimeData *dragged) const;

    bool m_flip = false;
    bool m_subclassFlag = false;
    bool m_responderFlag = false;
    bool m_dragInside = false;
    QStringList m_dragFileTypes;
    QStringList m_dragFileExtensions;
    // Painted rather than put into the palette, which every child would inherit.
    QColor m_backgroundColor;
};

} // namespace tetrad
