#include "runtime/strings/format_directive.h"

#include <algorithm>

namespace tetrad {

namespace {

class DirectiveParser
{
public:
    explicit DirectiveParser(QStringView text) : m_text(text) {}

    std::optional<FormatDirective> parse()
    {
        skip(u"%");
        m_directive.argument = position();
        parseFlags();
        m_directive.width = number();
        if (skip(u".")) {
            m_directive.precision = number();
            // A point alone is a precision of 0.
            if (m_directive.precision.source == DirectiveNumber::Source::None) {
                m_directive.precision.source = DirectiveNumber::Source::Written;
            }
        }
        parseSize();
        return parseConversion() ? std::optional(m_directive) : std::nullopt;
    }

private:
    char16_t current() const { return m_at < m_text.size() ? m_text[m_at].unicode() : u'\0'; }

    bool skip(QStringView word)
    {
        const bool found = m_text.sliced(m_at).startsWith(word);
        m_at += found ? word.size() : 0;
        return found;
    }

    int digits()
    {
        int value = 0;
        for (; current() >= u'0' && current() <= u'9'; ++m_at) {
            value = std::min(value * 10 + (current() - u'0'), largestDirectiveNumber);
        }
        return value;
    }

    // "2$", or 0 and nothing read if that is not what comes next.
    int position()
    {
        const qsizetype start = m_at;
        const int value = digits();
        if (value > 0 && skip(u"$")) {
            return value;
        }
        m_at = start;
        return 0;
    }

    void parseFlags()
    {
        // "'" groups digits where the locale has groups; the C locale has none.
        for (; QStringView(u"-+ #0'").contains(QChar(current())) && current() != u'\0'; ++m_at) {
            const char flag = static_cast<char>(current());
            if (flag != '\'' && !m_directive.flags.contains(flag)) {
                m_directive.flags += flag;
            }
        }
    }

    DirectiveNumber number()
    {
        if (skip(u"*")) {
            return {DirectiveNumber::Source::Argument, position()};
        }
        const qsizetype start = m_at;
        const int value = digits();
        return {m_at > start ? DirectiveNumber::Source::Written : DirectiveNumber::Source::None, value};
    }

    void parseSize()
    {
        if (skip(u"hh")) {
            m_directive.bits = 8;
        } else if (skip(u"h")) {
            m_directive.bits = 16;
        } else if (skip(u"ll") || skip(u"l") || skip(u"q") || skip(u"j") || skip(u"z") || skip(u"t")) {
            m_directive.bits = 64;
        } else {
            skip(u"L");
        }
    }

    bool parseConversion()
    {
        constexpr QStringView conversions = u"@%diuoxXDUOfFeEgGaAcCsSpn";
        const char16_t conversion = current();
        if (conversion == u'\0' || !conversions.contains(QChar(conversion))) {
            return false;
        }
        const bool isLong = conversion == u'D' || conversion == u'U' || conversion == u'O';
        m_directive.bits = isLong ? 64 : m_directive.bits;
        m_directive.conversion = static_cast<char>(isLong ? conversion + (u'a' - u'A') : conversion);
        m_directive.length = m_at + 1;
        return true;
    }

    QStringView m_text;
    qsizetype m_at = 0;
    FormatDirective m_directive;
};

} // namespace

std::optional<FormatDirective> parseDirective(QStringView text)
{
    return DirectiveParser(text).parse();
}

} // namespace tetrad
