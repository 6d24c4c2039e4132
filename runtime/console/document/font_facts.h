#pragma once

#include <QCache>
#include <QFont>
#include <QString>

#include <memory>

namespace tetrad {

class ShapedText;

/// A font as the console draws it. Sizes and lengths are device-independent pixels, fractions kept.
struct FontFacts
{
    QFont asked; ///< as the program set it
    double size = 0;
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
};

/// The facts of a font, looked up once. The standard family is replaced by an installed fixed-pitch one where it is
/// missing.
std::shared_ptr<const FontFacts> fontFacts(const QFont &asked);

/// What the console starts with.
QFont standardFont();

double fontSize(const QFont &font);
void setFontSize(QFont &font, double size);

/// Whether text can be set in the family: it is installed or the standard one, which is accepted whether or not it is.
bool isKnownFontFamily(const QString &family);

} // namespace tetrad
