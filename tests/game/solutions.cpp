#include "solutions.h"

#include <numeric>
#include <set>
#include <vector>

namespace {

struct Fraction
{
    qint64 numerator = 0;
    qint64 denominator = 1;

    bool is(qint64 value) const { return numerator == value * denominator; }
};

Fraction reduced(qint64 numerator, qint64 denominator)
{
    const qint64 divisor = std::gcd(numerator, denominator) * (denominator < 0 ? -1 : 1);
    return {numerator / divisor, denominator / divisor};
}

struct Term
{
    Fraction value;
    QString text;
};

Term combined(const Term &a, QChar operation, const Term &b)
{
    const auto [an, ad] = a.value;
    const auto [bn, bd] = b.value;
    const QString text = u'(' + a.text + operation + b.text + u')';
    switch (operation.unicode()) {
    case u'+':
        return {reduced(an * bd + bn * ad, ad * bd), text};
    case u'-':
        return {reduced(an * bd - bn * ad, ad * bd), text};
    case u'*':
        return {reduced(an * bn, ad * bd), text};
    default:
        return {reduced(an * bd, ad * bn), text};
    }
}

std::vector<Term> combinations(const Term &a, const Term &b)
{
    std::vector<Term> terms = {combined(a, u'+', b), combined(a, u'-', b), combined(b, u'-', a), combined(a, u'*', b)};
    if (!b.value.is(0)) {
        terms.push_back(combined(a, u'/', b));
    }
    if (!a.value.is(0)) {
        terms.push_back(combined(b, u'/', a));
    }
    return terms;
}

void collect(const std::vector<Term> &terms, std::set<QString> &solutions)
{
    if (terms.size() == 1) {
        if (terms.front().value.is(24)) {
            solutions.insert(terms.front().text);
        }
        return;
    }
    for (std::size_t i = 0; i < terms.size(); ++i) {
        for (std::size_t j = i + 1; j < terms.size(); ++j) {
            std::vector<Term> others = terms;
            others.erase(others.begin() + static_cast<std::ptrdiff_t>(j));
            others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
            for (const Term &term : combinations(terms[i], terms[j])) {
                others.push_back(term);
                collect(others, solutions);
                others.pop_back();
            }
        }
    }
}

} // namespace

QStringList solutionsOf(const QString &puzzle)
{
    std::vector<Term> terms;
    for (const QString &digit : puzzle.split(u' ')) {
        terms.push_back({{digit.toLongLong(), 1}, digit});
    }
    std::set<QString> solutions;
    collect(terms, solutions);
    return {solutions.begin(), solutions.end()};
}
