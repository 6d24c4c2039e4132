#include "runtime/console/document/font_facts.h"

#include "runtime/console/document/text_layout.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHashFunctions>
#include <QScreen>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

struct ChoiceHash
{
    size_t operator()(const FontChoice &choice) const
    {
        return qHashMulti(0, choice.family, choice.size, choice.weight, choice.italic, choice.underline,
                          choice.strikeOut);
    }
};

using FactsTable = std::unordered_map<FontChoice, std::shared_ptr<const FontFacts>, ChoiceHash>;

FactsTable &factsTable()
{
    static FactsTable table;
    return table;
}

QString standardFamily()
{
    return QString::fromUtf16(standardFontFamily);
}

bool isStandardFamily(const QString &family)
{
    // The font database ignores case too.
    return family.compare(standardFamily(), Qt::CaseInsensitive) == 0;
}

QString installedFamily(const QString &family)
{
    if (!isStandardFamily(family) || QFontDatabase::hasFamily(family)) {
        return family;
    }
    // It has the same advance (0.602 em) and nearly the same height.
    const QString substitute = u"DejaVu Sans Mono"_s;
    return QFontDatabase::hasFamily(substitute) ? substitute
                                                : QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

QString emojiFamily()
{
    for (const char16_t *name : {u"Noto Color Emoji", u"Apple Color Emoji", u"Segoe UI Emoji"}) {
        if (QString family = QString::fromUtf16(name); QFontDatabase::hasFamily(family)) {
            return family;
        }
    }
    return {};
}

// Typographic points per device-independent pixel.
double pointsPerPixel()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return 72.0 / (screen ? std::round(screen->logicalDotsPerInchY()) : 96.0);
}

void setPixelSize(QFont &font, double size)
{
    if (size == std::floor(size)) {
        font.setPixelSize(static_cast<int>(size));
    } else {
        font.setPointSizeF(size * pointsPerPixel());
    }
}

QFont drawnFont(const FontChoice &choice)
{
    QFont font = fontObject(choice);
    font.setFamilies({installedFamily(choice.family)});
    font.setStyleHint(QFont::Monospace);
    // Advances must not change with the scale factor, or texts would not be as wide as they were measured.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setKerning(false);
    return font;
}

// One layout is enough: widths are whole 64ths of a pixel and add up without rounding.
double plainAdvance(const QFont &font)
{
    if (!QFontInfo(font).fixedPitch()) {
        return 0;
    }
    QString probe;
    for (char16_t c = 0x20; c < 0x7F; ++c) {
        probe += QChar(c);
    }
    probe += u"fi -> != =="_s;
    QTextLayout layout(probe, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const double advance = line.cursorToX(1);
    for (int i = 1; i <= probe.size(); ++i) {
        if (line.cursorToX(i) != i * advance) {
            return 0;
        }
    }
    return advance;
}

std::shared_ptr<const FontFacts> computeFacts(const FontChoice &choice)
{
    auto facts = std::make_shared<FontFacts>();
    facts->choice = choice;
    facts->font = drawnFont(choice);
    facts->emojiFont = facts->font;
    if (const QString emoji = emojiFamily(); !emoji.isEmpty()) {
        facts->emojiFont.setFamilies({emoji});
    }
    const QFontMetricsF metrics(facts->font);
    facts->ascent = metrics.ascent();
    facts->lineHeight = metrics.lineSpacing();
    facts->plainAdvance = plainAdvance(facts->font);
    return facts;
}

} // namespace

FontFacts::FontFacts() = default;

FontFacts::~FontFacts() = default;

bool isFontSize(double size)
{
    constexpr double largest = 4096;
    return size >= 1 && size <= largest;
}

std::shared_ptr<const FontFacts> fontFacts(const FontChoice &choice)
{
    FactsTable &table = factsTable();
    if (table.empty()) {
        // Fonts must not outlive the application object that loaded them.
        qAddPostRoutine([] { factsTable().clear(); });
    }
    std::shared_ptr<const FontFacts> &facts = table[choice];
    if (!facts) {
        facts = computeFacts(choice);
    }
    return facts;
}

FontChoice fontChoice(const QFont &font)
{
    const double size = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() / pointsPerPixel();
    return {.family = font.family(),
            .size = size,
            .weight = font.weight(),
            .italic = font.italic(),
            .underline = font.underline(),
            .strikeOut = font.strikeOut()};
}

QFont fontObject(const FontChoice &choice)
{
    QFont font(choice.family);
    font.setWeight(static_cast<QFont::Weight>(choice.weight));
    font.setItalic(choice.italic);
    font.setUnderline(choice.underline);
    font.setStrikeOut(choice.strikeOut);
    setPixelSize(font, choice.size);
    return font;
}

bool isKnownFontFamily(const QString &family)
{
    return isStandardFamily(family) || QFontDatabase::hasFamily(family);
}

} // namespace tetrad
