#include "runtime/console/document/font_facts.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
#include <QScreen>
#include <QTextLayout>

#include <cmath>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

using FactsTable = QHash<QFont, std::shared_ptr<const FontFacts>>;

FactsTable &factsTable()
{
    static FactsTable table;
    return table;
}

bool isStandardFamily(const QString &family)
{
    // The font database ignores case too.
    return family.compare(u"Menlo", Qt::CaseInsensitive) == 0;
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

QFont drawnFont(const QFont &asked)
{
    QFont font = asked;
    font.setFamilies({installedFamily(asked.family())});
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

std::shared_ptr<const FontFacts> computeFacts(const QFont &asked)
{
    auto facts = std::make_shared<FontFacts>();
    facts->asked = asked;
    facts->size = fontSize(asked);
    facts->font = drawnFont(asked);
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

std::shared_ptr<const FontFacts> fontFacts(const QFont &asked)
{
    FactsTable &table = factsTable();
    if (table.isEmpty()) {
        // Fonts must not outlive the application object that loaded them.
        qAddPostRoutine([] { factsTable().clear(); });
    }
    std::shared_ptr<const FontFacts> &facts = table[asked];
    if (!facts) {
        facts = computeFacts(asked);
    }
    return facts;
}

QFont standardFont()
{
    QFont font(u"Menlo"_s);
    font.setPixelSize(12);
    return font;
}

double fontSize(const QFont &font)
{
    return font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() / pointsPerPixel();
}

void setFontSize(QFont &font, double size)
{
    if (size == std::floor(size)) {
        font.setPixelSize(static_cast<int>(size));
    } else {
        font.setPointSizeF(size * pointsPerPixel());
    }
}

bool isKnownFontFamily(const QString &family)
{
    return isStandardFamily(family) || QFontDatabase::hasFamily(family);
}

} // namespace tetrad
