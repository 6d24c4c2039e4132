#include "runtime/console/document/text_layout.h"

#include "runtime/console/document/emoji_runs.h"
#include "runtime/console/document/font_facts.h"
#include <tetrad/console/console_item.h>

#include <algorithm>

namespace tetrad {

namespace {

constexpr double measuringLimit = 10000;

// The layout engine counts 64ths of a pixel in 32 bits.
constexpr double unlimited = 16000000;

bool isControl(QChar c)
{
    return c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0);
}

bool isPlain(QChar c)
{
    return c.unicode() >= 0x20 && c.unicode() < 0x7F;
}

bool tabsAdvance(const ParagraphStyle &style)
{
    return style.defaultTabInterval > 0 || !style.tabStops.isEmpty();
}

QTextOption textOption(const ParagraphStyle &style, QTextOption::WrapMode wrap)
{
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(wrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setTabStopDistance(style.defaultTabInterval);
    QList<QTextOption::Tab> tabs;
    for (const double stop : style.tabStops) {
        tabs.append({stop, QTextOption::LeftTab});
    }
    option.setTabs(tabs);
    return option;
}

void layOut(QTextLayout &layout, const QString &drawn, const TextAttributes &attributes, double limit)
{
    layout.setText(drawn);
    layout.setFont(attributes.facts().font);
    QList<QTextLayout::FormatRange> formats;
    for (const TextRun &run : emojiRuns(drawn)) {
        QTextLayout::FormatRange range;
        range.start = static_cast<int>(run.start);
        range.length = static_cast<int>(run.length);
        range.format.setFont(attributes.facts().emojiFont);
        formats.append(range);
    }
    layout.setFormats(formats);
    const bool wraps = limit < unlimited;
    layout.setTextOption(textOption(attributes.paragraphStyle(),
                                    wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap));
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(limit);
    }
    layout.endLayout();
}

double widestLine(const QTextLayout &layout)
{
    double width = 0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        width = std::max(width, layout.lineAt(i).horizontalAdvance());
    }
    // A blank that hangs over the end of a full line does not count.
    return std::min(width, measuringLimit);
}

} // namespace

QString drawnText(const QString &text, const TextAttributes &attributes)
{
    if (std::none_of(text.begin(), text.end(), isControl)) {
        return text;
    }
    const bool keepTabs = tabsAdvance(attributes.paragraphStyle());
    QString drawn;
    drawn.reserve(text.size());
    for (const QChar c : text) {
        if (!isControl(c) || (c == u'\t' && keepTabs)) {
            drawn += c;
        }
    }
    return drawn;
}

TextExtent measureText(const QString &text, const TextAttributes &attributes)
{
    const QString drawn = drawnText(text, attributes);
    if (drawn.isEmpty()) {
        return {};
    }
    const FontFacts &facts = attributes.facts();
    const double room = facts.lineHeight;
    const auto extent = [&](double width, const QRectF &glyphs) {
        return TextExtent{width, (QRectF(0, 0, width, facts.lineHeight) | glyphs).adjusted(-room, -room, room, room)};
    };
    const double plainWidth = static_cast<double>(drawn.size()) * facts.plainAdvance;
    if (plainWidth > 0 && plainWidth <= measuringLimit && std::all_of(drawn.begin(), drawn.end(), isPlain)) {
        return extent(plainWidth, QRectF());
    }
    const auto shape = shapedText(text, attributes);
    QRectF glyphs;
    for (const QGlyphRun &run : shape->glyphRuns()) {
        glyphs |= run.boundingRect().translated(0, shape->baseline());
    }
    if (shape->width() <= measuringLimit) {
        return extent(shape->width(), glyphs);
    }
    QTextLayout layout;
    layOut(layout, drawn, attributes, measuringLimit);
    return extent(widestLine(layout), glyphs);
}

std::shared_ptr<const ShapedText> shapedText(const QString &text, const TextAttributes &attributes)
{
    const QString drawn = drawnText(text, attributes);
    // The paragraph style counts where there is a tab; long texts would fill the memory.
    constexpr qsizetype longest = 1000;
    if (drawn.contains(u'\t') || drawn.size() > longest) {
        return std::make_shared<ShapedText>(drawn, attributes);
    }
    auto &shapes = attributes.facts().shapes;
    if (const auto *known = shapes.object(drawn)) {
        return *known;
    }
    auto shape = std::make_shared<const ShapedText>(drawn, attributes);
    shapes.insert(drawn, new auto(shape));
    return shape;
}

ShapedText::ShapedText(const QString &text, const TextAttributes &attributes)
{
    layOut(m_layout, text, attributes, unlimited);
    m_layout.setCacheEnabled(true);
    // A taller fallback font must not push the text below its neighbours on the same line.
    m_baseline = attributes.facts().ascent - line().ascent();
    m_glyphRuns = m_layout.glyphRuns();
}

} // namespace tetrad
