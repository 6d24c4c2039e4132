#pragma once

#include <tetrad/events/tag.h>

#include <QPointer>
#include <QRectF>
#include <QStringList>
#include <QWidget>

class QMenu;

namespace tetrad {

/// A view that reports its own mouse, key, drag and drawing events to the dialog function (codes 2000 to 2029) and
/// does the default handling only of what the function left unhandled (boolVal false). Its tag is the
/// number in its objectName.
///
/// It takes the keyboard only when event 2001 is answered yes; the question is put when it is clicked,
/// when Tab reaches it and when it would have the keyboard of a window that becomes active. The cursor question 2015 is
/// put when it is shown and when its size changes.
class ViewSC : public QWidget
{
    Q_OBJECT

public:
    explicit ViewSC(QWidget *parent = nullptr);

    /// The menu that event 2026 starts from; not owned, null at first.
    QMenu *menu() const;
    void setMenu(QMenu *menu);

    /// MIME types, one of which a drag must offer to be reported; none refuses every drag. Files are
    /// "text/uri-list".
    const QStringList &draggedTypes() const { return m_draggedTypes; }
    void setDraggedTypes(const QStringList &types);

    /// Called once by whoever loads the view from an interface file, when its tag is set.
    virtual void awakeFromNib();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void reportSoon(const QEvent *event);
    bool survivesFocusQuestion();
    void confirmFocus(bool forward);

    QPointer<QMenu> m_menu;
    QStringList m_draggedTypes;
};

/// The view statement: makes the ViewSC |tag| in the output window or moves it; shows it when the tag is
/// positive, hides it when negative.
void CUI_ViewSubclass(Tag tag, const QRectF &rect);

} // namespace tetrad
