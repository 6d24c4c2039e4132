// Evaluates each line of standard input for evaluator_against_python.py: the value in hexadecimal, or "error",
// and in the same line, after a tab, the text that the game makes of the line as an answer.

#include "game/answer.h"
#include "game/expression.h"

#include <array>
#include <charconv>
#include <cmath>
#include <iostream>
#include <string>

using namespace tetrad;

namespace {

std::string valueOf(const QString &line)
{
    try {
        const double value = evaluateExpression(line);
        std::array<char, 64> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), std::abs(value), std::chars_format::hex).ptr;
        const std::string sign = std::signbit(value) && !std::isnan(value) ? "-" : "";
        return sign + std::string(digits.begin(), end);
    } catch (const ExpressionError &) {
        return "error";
    }
}

} // namespace

int main()
{
    std::ios::sync_with_stdio(false);
    std::string bytes;
    while (std::getline(std::cin, bytes)) {
        const QString line = QString::fromStdString(bytes);
        std::cout << valueOf(line) << '\t' << EvaluateMath(line).toStdString() << '\n';
    }
}
