#pragma once

// Implemented in runtime/controls/views/view_sc.cpp.
#include <tetrad/app/content_view.h>
#include <tetrad/events/tag.h>

#include <QMenu>
#include <QPointer>
#include <QRectF>
#include <QStringList>
#include <QWidget>

namespace tetrad {

/// A view that reports its own mouse, key, drag and drawing events to the dialog function (codes 2000 to 2029). Its tag
/// is the number in its objectName.
///
/// It takes the keyboard only when event 2001 is answered yes. The question is sent when the view is clicked, when Tab
/// reaches it and when it would have the keyboard of a window that becomes active. The cursor question 2015 is
/// sent when the view is shown and when its size changes.
class ViewSC : public EventView
{
    Q_OBJECT

public:
    explicit ViewSC(QWidget *parent = nullptr);

    /// The menu that event 2026 starts from; not owned, null at first.
    QMenu *menu() const { return m_menu; }
    void setMenu(QMenu *menu) { m_menu = menu; }

    /// MIME types, one of which a drag must offer to be reported; an empty list refuses every drag. Files are
    /// "text/uri-list".
    const QStringList &draggedTypes() const { return m_draggedTypes; }
    void setDraggedTypes(const QStringList &types);

    /// Call it once after loading the view from an interface file, when its tag is set.
    virtual void awakeFromNib();

protected:
    ReportingView source() override;
    bool reportsEvents() const override { return true; }
    bool acceptsDrag(const QMimeData &dragged) const override;
    QObject *contextMenu() const override { return m_menu; }
    bool report(QEvent *event) override;

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void confirmFocus(bool forward);

    QPointer<QMenu> m_menu;
    QStringList m_draggedTypes;
    QPointer<ViewSC> m_searchStart;
};

/// The view statement: makes the ViewSC |tag| in the output window or moves it; shows it when the tag is
/// positive, hides it when negative.
void CUI_ViewSubclass(Tag tag, const QRectF &rect);

/// A backdrop for other views: lets what its window draws behind it show through a veil of the window's
/// colour. Its objectName carries its tag.
class VisualEffectView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// How much of the veil covers what lies behind: 0 nothing, 1 everything.
    qreal coverage() const { return m_coverage; }
    void setCoverage(qreal coverage);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    qreal m_coverage = 0.75;
};

} // namespace tetrad
