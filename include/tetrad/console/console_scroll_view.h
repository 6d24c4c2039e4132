#pragma once

#include <QColor>
#include <QScrollArea>

namespace tetrad {

class CUI_PrintToWindowView;

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

    /// The opaque colour that the document stands on; invalid when something else may show below it.
    QColor plainGround() const;

    /// Scrolls as little as brings a rectangle of the document into view.
    void reveal(const QRectF &rect);

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void resizeEvent(QResizeEvent *event) override;
};

} // namespace tetrad
