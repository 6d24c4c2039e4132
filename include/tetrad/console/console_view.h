// Implemented in runtime/console/view/console_view.cpp and console_scroll_view.cpp
#pragma once

#include <tetrad/app/content_view.h>
#include <tetrad/console/console_document.h>

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

namespace tetrad {

class CUI_PrintToWindowScrollView;
class ConsoleSelection;
class KeptPicture;

/// The widget that shows a document and lets its text be selected: as wide as its scroll view and as high as the
/// document, whose height it follows rounded up and up to QWIDGETSIZE_MAX.
class CUI_PrintToWindowView : public QWidget, public ConsoleDocument, public PrintedView
{
    Q_OBJECT
    Q_PROPERTY(bool canCopy READ canCopy)

public:
    explicit CUI_PrintToWindowView(const QRectF &frame, QWidget *parent = nullptr);
    ~CUI_PrintToWindowView() override;

    static CUI_PrintToWindowView *viewWithFrame(const QRectF &frame) { return new CUI_PrintToWindowView(frame); }

    CUI_PrintToWindowScrollView *scrollView() const;
    void setScrollView(CUI_PrintToWindowScrollView *scrollView);

    /// The height is the document's own unless a program resized the widget.
    QSizeF documentSize() const override;
    void clear() override;

    QString takeNewText() override;
    Q_INVOKABLE QString dump() const { return items().dump(); }

    bool canCopy() const;
    /// Selects from one position between characters to another, where the caret goes, and brings that into view.
    void select(qsizetype anchor, qsizetype caret);
    /// Brings a rectangle of the document into view.
    void scrollTo(const QRectF &rect);

    Q_INVOKABLE void copy();
    Q_INVOKABLE void selectAll();

protected:
    void paintEvent(QPaintEvent *event) override;

    void setDocumentSize(const QSizeF &size) override;
    void itemAppended(const QRectF &ink) override;
    void itemsChanged() override;
    void setNeedsDisplay() override;

private:
    QRect visiblePart() const;

    QPointer<CUI_PrintToWindowScrollView> m_scrollView;
    ConsoleSelection *m_selection = nullptr; ///< A child of this.
    std::unique_ptr<KeptPicture> m_picture;
    QRect m_dirty; ///< What was printed to since the last time the widget was painted.
};

/// Fills a content view, below everything else in it, and scrolls the console's document. It has no frame and no
/// background of its own, no horizontal bar, and a vertical bar while the document is higher than itself; its document
/// is always as wide as what it shows.
class CUI_PrintToWindowScrollView : public QScrollArea
{
    Q_OBJECT

public:
    explicit CUI_PrintToWindowScrollView(QWidget *contentView);

    /// Takes the ownership of the view.
    void setDocumentView(CUI_PrintToWindowView *view);
    CUI_PrintToWindowView *documentView() const;

    /// The opaque colour behind the document; invalid when something else may show through.
    QColor plainGround() const;

    /// Scrolls as little as brings a rectangle of the document view into view.
    void reveal(const QRectF &rect);

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void resizeEvent(QResizeEvent *event) override;
};

} // namespace tetrad
