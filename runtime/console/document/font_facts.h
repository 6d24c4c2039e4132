#pragma once

#include <QCache>
#include <QFont>
#include <QString>

#include <memory>

namespace tetrad {

class ShapedText;

/// The family that the console starts with, accepted by name whether or not it is installed.
inline constexpr char16_t standardFontFamily[] = u"Menlo";

/// A font as a program asks for it: the size is in device-independent pixels, 1 to 4096, fractions kept.
struct FontChoice
{
    QString family = QString::fromUtf16(standardFontFamily);
    double size = 12;
    int weight = QFont::Normal;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;

    bool operator==(const FontChoice &) const = default;
};

/// Whether text can be set in a size: not in NaN, nor outside 1 to 4096.
bool isFontSize(double size);

/// A font as the console draws it. Sizes and lengths are device-independent pixels, fractions kept.
struct FontFacts
{
    FontChoice choice;
    QFont font;
    QFont emojiFont;
    double ascent = 0;
    double lineHeight = 0;
    /// The advance that every printable ASCII character has, when it is certain that n of them are exactly n times as
    /// wide; 0 when a text has to be laid out to know its width.
    double plainAdvance = 0;
    /// What was laid out last, by text, since the same texts are drawn again and again. Laying out decodes the picture
    /// of each emoji.
    mutable QCache<QString, std::shared_ptr<const ShapedText>> shapes{256};

    FontFacts();
    ~FontFacts();
};

/// The facts of a choice, looked up once. The standard family is replaced by an installed fixed-pitch one where it is
/// missing.
std::shared_ptr<const FontFacts> fontFacts(const FontChoice &choice);

/// The choice that a font object stands for.
FontChoice fontChoice(const QFont &font);

/// The font object that stands for a choice.
QFont fontObject(const FontChoice &choice);

/// Whether text can be set in the family: it is installed or the standard one.
bool isKnownFontFamily(const QString &family);

} // namespace tetrad
