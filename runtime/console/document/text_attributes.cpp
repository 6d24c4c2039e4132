#include <tetrad/console/console_item.h>

#include "runtime/console/document/font_facts.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPalette>

namespace tetrad {

using namespace Qt::StringLiterals;

QSharedDataPointer<TextAttributes::Data> &TextAttributes::initialData()
{
    static QSharedDataPointer<Data> data;
    if (!data) {
        data = new Data;
        data->facts = fontFacts(standardFont());
        // It holds a font, and fonts must not outlive the application object that loaded them.
        qAddPostRoutine([] { initialData().reset(); });
    }
    return data;
}

TextAttributes::TextAttributes() : m_data(initialData()) {}

void TextAttributes::setFont(QFont font, double size)
{
    constexpr double largest = 4096;
    if (!(size >= 1 && size <= largest)) {
        qWarning("console: font size %g is not between 1 and 4096, ignored", size);
        size = fontSize();
    }
    tetrad::setFontSize(font, size);
    m_data->facts = fontFacts(font);
}

QString TextAttributes::fontName() const
{
    return facts().asked.family();
}

void TextAttributes::setFontName(const QString &name)
{
    QFont font = facts().asked;
    font.setFamily(name);
    setFont(font, fontSize());
}

double TextAttributes::fontSize() const
{
    return facts().size;
}

void TextAttributes::setFontSize(double size)
{
    setFont(facts().asked, size);
}

QVariantMap TextAttributes::toMap() const
{
    QVariantMap map = m_data->others;
    map.insert(u"font"_s, facts().asked);
    const QColor standard = QGuiApplication::palette().color(QPalette::WindowText);
    map.insert(u"foregroundColor"_s, m_data->foreground.isValid() ? m_data->foreground : standard);
    map.insert(u"backgroundColor"_s, m_data->background);
    map.insert(u"paragraphStyle"_s, QVariant::fromValue(m_data->paragraph));
    return map;
}

void TextAttributes::merge(const QVariantMap &map)
{
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        if (entry.key() == u"font") {
            const auto font = entry->value<QFont>();
            setFont(font, tetrad::fontSize(font));
        } else if (entry.key() == u"foregroundColor") {
            m_data->foreground = entry->value<QColor>();
        } else if (entry.key() == u"backgroundColor") {
            m_data->background = entry->value<QColor>();
        } else if (entry.key() == u"paragraphStyle") {
            m_data->paragraph = entry->value<ParagraphStyle>();
        } else {
            m_data->others.insert(entry.key(), entry.value());
        }
    }
}

} // namespace tetrad
