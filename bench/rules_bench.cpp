// The evaluator beside other expression parsers, an answer's whole way through the checks, and how drawing puzzles
// grows dearer.
#include "game/rules/answer.h"
#include "game/rules/expression.h"
#include "game/rules/puzzle_history.h"

#include <benchmark/benchmark.h>
#include <fparser.hh>
#include <muParser.h>

#include <array>
#include <string>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

const std::array wellFormed{
    std::string("((3*1)*7)+3"),
    std::string("6/(1-3/4)"),
    std::string("9+6+1+8"),
    std::string("8/(3-8/3)"),
};
const std::array malformed{
    std::string("((3*1)*7+3"),
    std::string("6/(1-3/)4"),
    std::string("9+6+1+8)"),
    std::string("8//*3"),
};

using Texts = std::array<std::string, 4>;

const Texts &texts(const benchmark::State &state)
{
    return state.range(0) == 0 ? wellFormed : malformed;
}

// Both our evaluator and fparser's say what is wrong and where without a sentence.
double evaluate(const std::string &text)
{
    const QString expression = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    const ExpressionValue value = ExpressionValueWithObject({expression}, QVariant(), QVariant());
    const double *number = std::get_if<double>(&value);
    return number ? *number : 0;
}

// One parser is kept in each case: making one costs more than an expression.
double evaluateFparser(FunctionParser &parser, const std::string &text)
{
    return parser.Parse(text, "") < 0 ? parser.Eval(nullptr) : 0;
}

double evaluateMuparser(mu::Parser &parser, const std::string &text)
{
    try {
        parser.SetExpr(text);
        return parser.Eval();
    } catch (const mu::Parser::exception_type &) {
        return 0;
    }
}

void evaluator(benchmark::State &state)
{
    for (auto step : state) {
        for (const std::string &text : texts(state)) {
            benchmark::DoNotOptimize(evaluate(text));
        }
    }
}

void fparser(benchmark::State &state)
{
    FunctionParser parser;
    for (auto step : state) {
        for (const std::string &text : texts(state)) {
            benchmark::DoNotOptimize(evaluateFparser(parser, text));
        }
    }
}

void muparser(benchmark::State &state)
{
    mu::Parser parser;
    for (auto step : state) {
        for (const std::string &text : texts(state)) {
            benchmark::DoNotOptimize(evaluateMuparser(parser, text));
        }
    }
}

quint32 unchecked(quint32 index, quint32, quint32, const QString &)
{
    return index;
}

void judging(benchmark::State &state)
{
    PuzzleNumbers numbers(&unchecked);
    const std::array<int, 4> puzzle{1, 3, 3, 7};
    for (qint16 i = 1; i <= 4; ++i) {
        numbers.at(i, 0) = puzzle[static_cast<std::size_t>(i) - 1];
    }
    const QString answer = state.range(0) == 0 ? u"((3*1)*7)+3"_s : u"((3*1)*7+3"_s;
    for (auto step : state) {
        benchmark::DoNotOptimize(judgeAnswer(answer, numbers));
    }
}

// The same random numbers in every run.
RandomSource replayable()
{
    return [state = quint32{20261121}]() mutable {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        return state;
    };
}

// One draw after that many others; those of full cycles leave nothing behind.
void draw(benchmark::State &state)
{
    const RandomSource source = replayable();
    for (auto step : state) {
        state.PauseTiming();
        PuzzleHistory history(&unchecked);
        for (int i = 0; i < state.range(0); ++i) {
            choosePuzzle(history, source);
        }
        state.ResumeTiming();
        benchmark::DoNotOptimize(choosePuzzle(history, source));
    }
}

// A whole cycle of the deck after that many puzzles.
void cycle(benchmark::State &state)
{
    const RandomSource source = replayable();
    PuzzleHistory history(&unchecked);
    for (int i = 0; i < state.range(0); ++i) {
        choosePuzzle(history, source);
    }
    for (auto step : state) {
        for (int i = 0; i < puzzleCount; ++i) {
            benchmark::DoNotOptimize(choosePuzzle(history, source));
        }
    }
}

BENCHMARK(evaluator)->Arg(0)->Arg(1);
BENCHMARK(fparser)->Arg(0)->Arg(1);
BENCHMARK(muparser)->Arg(0)->Arg(1);
BENCHMARK(judging)->Arg(0)->Arg(1);
BENCHMARK(draw)->Arg(0)->Arg(48)->Arg(95)->Iterations(1000);
BENCHMARK(cycle)->Arg(0)->Arg(9984)->Iterations(100);

} // namespace

BENCHMARK_MAIN();
