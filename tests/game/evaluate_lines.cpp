// Evaluates each line of standard input for evaluator_against_python.py: the value in hexadecimal, or "error".

#include "game/rules/expression.h"

#include <iostream>
#include <string>

using namespace tetrad;

int main()
{
    std::ios::sync_with_stdio(false);
    std::cout << std::hexfloat;
    std::string line;
    while (std::getline(std::cin, line)) {
        const auto value = ExpressionValueWithObject({QString::fromStdString(line)}, QVariant(), QVariant());
        if (const auto *number = std::get_if<double>(&value)) {
            std::cout << *number << '\n';
        } else {
            std::cout << "error\n";
        }
    }
}
