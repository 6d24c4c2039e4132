#pragma once

#include <QFont>
#include <QString>

#include <memory>

namespace tetrad {

/// The family that the console starts with, accepted by name whether or not it is installed.
inline constexpr char16_t standardFontFamily[] = u"Menlo";

/// The largest size, in pixels, that text is set in.
inline constexpr double largestFontSize = 4096;

/// A font as a program asks for it: the size is in device-independent pixels, fractions kept.
struct FontChoice
{
    QString family = QString::fromUtf16(standardFontFamily);
    double size = 12;
    int weight = QFont::Normal;
    bool italic = false;

    bool operator==(const FontChoice &) const = default;
};

/// A font as the console draws it. Sizes and lengths are device-independent pixels, fractions kept.
struct FontFacts
{
    QFont font;
    QFont emojiFont;
    double ascent = 0;
    double lineHeight = 0;
    /// The advance that every printable ASCII character has, when it is certain that n of them are exactly n times as
    /// wide; 0 when a text has to be laid out to know its width.
    double plainAdvance = 0;
};

/// The facts of a choice, looked up once. The standard family is replaced by an installed fixed-pitch one where it is
/// missing; a size outside 1 to largestFontSize, or one that is no number, counts as the nearer end.
std::shared_ptr<const FontFacts> fontFacts(const FontChoice &choice);

/// The choice that a font object stands for.
FontChoice fontChoice(const QFont &font);

/// The font object that stands for a choice.
QFont fontObject(const FontChoice &choice);

/// Whether text can be set in the family: it is installed or the standard one.
bool isKnownFontFamily(const QString &family);

} // namespace tetrad
