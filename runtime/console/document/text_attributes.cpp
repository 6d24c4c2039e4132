#include <tetrad/console/console_item.h>

#include "runtime/console/document/font_facts.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPalette>
#include <QSharedData>

namespace tetrad {

using namespace Qt::StringLiterals;

struct TextAttributes::Data : QSharedData
{
    FontChoice font;
    std::shared_ptr<const FontFacts> facts = fontFacts(font);
    QColor foreground;
    QColor background = Qt::transparent;
    ParagraphStyle paragraph;
    QVariantMap others;

    void setFont(FontChoice choice)
    {
        if (!isFontSize(choice.size)) {
            qWarning("console: font size %g is not between 1 and 4096, ignored", choice.size);
            choice.size = font.size;
        }
        font = choice;
        facts = fontFacts(choice);
    }
};

QSharedDataPointer<TextAttributes::Data> &TextAttributes::initialData()
{
    static QSharedDataPointer<Data> data;
    if (!data) {
        data = new Data;
        // It holds a font, and fonts must not outlive the application object that loaded them.
        qAddPostRoutine([] { initialData().reset(); });
    }
    return data;
}

TextAttributes::TextAttributes() : m_data(initialData()) {}

TextAttributes::TextAttributes(const TextAttributes &) = default;
TextAttributes::TextAttributes(TextAttributes &&) noexcept = default;
TextAttributes &TextAttributes::operator=(const TextAttributes &) = default;
TextAttributes &TextAttributes::operator=(TextAttributes &&) noexcept = default;
TextAttributes::~TextAttributes() = default;

QString TextAttributes::fontName() const
{
    return m_data->font.family;
}

void TextAttributes::setFontName(const QString &name)
{
    m_data->setFont({.family = name, .size = m_data->font.size});
}

double TextAttributes::fontSize() const
{
    return m_data->font.size;
}

void TextAttributes::setFontSize(double size)
{
    FontChoice choice = std::as_const(m_data)->font;
    choice.size = size;
    m_data->setFont(choice);
}

QColor TextAttributes::foregroundColor() const
{
    return m_data->foreground;
}

void TextAttributes::setForegroundColor(const QColor &color)
{
    m_data->foreground = color;
}

QColor TextAttributes::backgroundColor() const
{
    return m_data->background;
}

void TextAttributes::setBackgroundColor(const QColor &color)
{
    m_data->background = color;
}

const ParagraphStyle &TextAttributes::paragraphStyle() const
{
    return m_data->paragraph;
}

void TextAttributes::setParagraphStyle(const ParagraphStyle &style)
{
    m_data->paragraph = style;
}

const FontFacts &TextAttributes::facts() const
{
    return *m_data->facts;
}

QVariantMap TextAttributes::toMap() const
{
    QVariantMap map = m_data->others;
    map.insert(u"font"_s, fontObject(m_data->font));
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
            m_data->setFont(fontChoice(entry->value<QFont>()));
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
