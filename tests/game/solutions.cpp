#include "solutions.h"

#include <set>
#include <vector>

namespace {

// Its value is an exact fraction, not reduced: what four digits make is far from the limits of 64 bits.
struct Term
{
    qint64 numerator = 0;
    qint64 denominator = 1;
    QString text;
};

std::vector<Term> combinations(const Term &a, const Term &b)
{
    const qint64 left = a.numerator * b.denominator;
    const qint64 right = b.numerator * a.denominator;
    const qint64 common = a.denominator * b.denominator;
    const auto text = [](const Term &one, QChar operation, const Term &other) -> QString {
        return u'(' + one.text + operation + other.text + u')';
    };
    std::vector<Term> terms = {{left + right, common, text(a, u'+', b)},
                               {left - right, common, text(a, u'-', b)},
                               {right - left, common, text(b, u'-', a)},
                               {a.numerator * b.numerator, common, text(a, u'*', b)}};
    if (right != 0) {
        terms.push_back({left, right, text(a, u'/', b)});
    }
    if (left != 0) {
        terms.push_back({right, left, text(b, u'/', a)});
    }
    return terms;
}

void collect(const std::vector<Term> &terms, std::set<QString> &solutions)
{
    if (terms.size() == 1 && terms.front().numerator == 24 * terms.front().denominator) {
        solutions.insert(terms.front().text);
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
        terms.push_back({digit.toLongLong(), 1, digit});
    }
    std::set<QString> solutions;
    collect(terms, solutions);
    return {solutions.begin(), solutions.end()};
}
