#pragma once

#include <QGlyphRun>
#include <QList>
#include <QRectF>
#include <QString>
#include <QTextLayout>

#include <memory>

namespace tetrad {

class TextAttributes;

/// The text as it is drawn and measured: without control characters, which have neither shape nor width. Tabs stay
/// unless they cannot advance.
QString drawnText(const QString &text, const TextAttributes &attributes);

/// A text without control characters, shaped for drawing and for finding characters in it.
class ShapedText
{
public:
    ShapedText(const QString &text, const TextAttributes &attributes);

    const QList<QGlyphRun> &glyphRuns() const { return m_glyphRuns; }

    double width() const { return line().horizontalAdvance(); }

    /// How far the glyph runs' own baseline lies below the top of the text.
    double baseline() const { return m_baseline; }

    /// Between a character index of the drawn text and a distance from its left edge.
    double xOf(qsizetype index) const { return line().cursorToX(static_cast<int>(index)); }
    qsizetype indexAt(double x) const { return line().xToCursor(x); }

private:
    QTextLine line() const { return m_layout.lineAt(0); }

    QTextLayout m_layout;
    QList<QGlyphRun> m_glyphRuns;
    double m_baseline = 0;
};

/// A measured text, relative to its top left.
struct TextExtent
{
    /// Of the bounding rectangle of the text laid out within 10000 pixels.
    double width = 0;
    /// Covers every pixel that drawing the text on one line may touch, with room to spare.
    QRectF ink;
};

/// A text as it is drawn, laid out at most once while it is in use.
std::shared_ptr<const ShapedText> shapedText(const QString &text, const TextAttributes &attributes);

/// Measures a text on one line, in device-independent pixels.
TextExtent measureText(const QString &text, const TextAttributes &attributes);

} // namespace tetrad
