#pragma once

#include <tetrad/console/font_facts.h>

#include <QColor>
#include <QList>
#include <QMetaType>
#include <QSharedDataPointer>
#include <QVariantMap>

namespace tetrad {

/// Where tabs lead to, in device-independent pixels from the start of the text.
struct ParagraphStyle
{
    /// A tab past the explicit stops goes to the next multiple of this; with 0 or less it does not advance.
    double defaultTabInterval = 28.0;
    QList<double> tabStops;

    bool operator==(const ParagraphStyle &) const = default;
};

/// What a text is drawn with: font, colours and paragraph style. A value that is shared until it is changed, so that an
/// item's private copy costs one pointer. As a dictionary it has the keys "font" (QFont), "foregroundColor",
/// "backgroundColor" (QColor) and "paragraphStyle" (ParagraphStyle).
class TextAttributes
{
public:
    /// The standard font at 12 pixels, the palette's text colour, nothing behind it, tabs every 28 pixels.
    TextAttributes();
    TextAttributes(const TextAttributes &);
    TextAttributes(TextAttributes &&) noexcept;
    TextAttributes &operator=(const TextAttributes &);
    TextAttributes &operator=(TextAttributes &&) noexcept;
    ~TextAttributes();

    QString fontName() const;
    void setFontName(const QString &name);

    double fontSize() const;
    void setFontSize(double size);

    /// Invalid: the palette's text colour at the time of drawing.
    QColor foregroundColor() const;
    void setForegroundColor(const QColor &color);

    /// Invalid or transparent: nothing is drawn behind the text.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);

    const ParagraphStyle &paragraphStyle() const;
    void setParagraphStyle(const ParagraphStyle &style);

    const FontFacts &facts() const;

    QVariantMap toMap() const;

    /// Copies every key of the map; keys not mentioned stay, keys with no meaning here are kept and given back.
    void merge(const QVariantMap &map);

private:
    struct Data;
    static QSharedDataPointer<Data> &initialData();

    QSharedDataPointer<Data> m_data;
};

} // namespace tetrad

Q_DECLARE_METATYPE(tetrad::ParagraphStyle)
