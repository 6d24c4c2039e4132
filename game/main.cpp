#include "game/game_window.h"
#include "game/rules/answer.h"
#include "game/rules/puzzle_history.h"
#include <tetrad/app/application.h>
#include <tetrad/app/menus.h>
#include <tetrad/app/run_time_stop.h>
#include <tetrad/console/console_statements.h>
#include <tetrad/input/line_input.h>
#include <tetrad/strings/not_given.h>
#include <tetrad/strings/numbers.h>
#include <tetrad/strings/pascal_strings.h>
#include <tetrad/strings/text_functions.h>

#include <algorithm>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

constexpr double keepSize = 0.0;

// A print that ends with a backspace stays on its line.
QString staysOnLine()
{
    return u"\b"_s;
}

// The game's fixed messages go through the string stack.
template <std::size_t size>
QString message(const char (&text)[size])
{
    static_assert(size <= sizeof(PascalString));
    PascalString literal = {size - 1};
    std::copy_n(text, size - 1, literal + 1);
    return StringWithPascalString(PSstrcpy(STACK_PUSH(), literal));
}

void setTextStyle(const QColor &foreground, double size)
{
    CUI_PrintToWindowTextStatement(QString(), foreground, QColor(), notGiven, notGiven, size);
}

void print(const QStringList &items)
{
    CUI_PrintToWindowPrintStatement(items);
}

void printAt(double x, double y, const QStringList &items)
{
    CUI_PrintToWindowSetXYStatement(x, y);
    print(items);
}

void startUp()
{
    CocoaInit();
    InitZRGlobals();
    CUI_EditMenu(2);
    BuildWindow();
}

void showInstructions()
{
    CUI_PrintToWindowClearStatement();
    setTextStyle(ColorWhite(), keepSize);
    print({message("")});
    printAt(10, 15, {message("Given four numbers and using just the +, -, *, and / operators; and the")});
    printAt(10, 30, {message("possible use of parenthesis (), enter an expression that equates to 24.")});
    printAt(10, 45, {message("You must use all your numbers and only those numbers.")});
    printAt(10, 60, {message("Examples: 9618 Solution 9 + 6 + 1 + 8 or 3173 Solution ((3 * 1) * 7) + 3")});
    print({message("")});
    printAt(10, 85, {message("Enter Q to quit or S to skip to the next number.")});
}

void showPuzzle(const Puzzle &puzzle)
{
    print({message("")});
    setTextStyle(ColorGreen(), keepSize);
    printAt(15, 110, {message("These are your numbers, difficulty level "), staysOnLine()});
    // The label's circles have no length-prefixed form, so it is printed as it is.
    print({levelLabel(puzzle.level)});
    CUI_PrintToWindowSetXYStatement(55, 125);
    setTextStyle(ColorGreen(), 18.0);
    for (qint16 i = 1; i <= numbersPerPuzzle; ++i) {
        print({CopyDblToString(puzzle.numbers.at(i, source::numberPrinted)), message(" "), staysOnLine()});
    }
    print({message("")});
    setTextStyle(ColorWhite(), 12.0);
    CUI_PrintToWindowPrintFStatement(u"\n\n\n"_s);
}

QString ask(bool wasRejected, const QString &lastAnswer)
{
    const QString prompt = wasRejected
                               ? StringWithFormat(u"Enter math expression: [ '%@' was incorrect ]"_s, lastAnswer)
                               : u"Enter math expression:"_s;
    return ZRInput(10, 190, prompt, u"123456789+-*/()qs"_s, 1, notGiven, 0);
}

void sayError(const QString &text)
{
    EraseErrorText();
    setTextStyle(ColorRed(), keepSize);
    printAt(10, 200, {text, staysOnLine()});
}

// Returns when the puzzle was solved or skipped.
void askUntilDone(const PuzzleNumbers &numbers)
{
    bool wasRejected = false;
    QString lastAnswer;
    for (;;) {
        const QString answer = ask(wasRejected, lastAnswer);
        if (!answer.isNull()) {
            lastAnswer = answer;
        }
        switch (judgeAnswer(answer, numbers)) {
        case Outcome::nothingTyped:
            continue;
        case Outcome::quit:
            AppTerminate();
            continue;
        case Outcome::skip:
            return;
        case Outcome::extraNumbers:
            sayError(message("Error! Extra numbers not allowed"));
            break;
        case Outcome::wrongNumbers:
            sayError(message("ERROR! Must use all your numbers and only those numbers."));
            break;
        case Outcome::noSequence:
            sayError(message("Error! Incorrect math sequence."));
            break;
        case Outcome::incorrect:
            EraseErrorText();
            break;
        case Outcome::correct:
            EraseErrorText();
            QuitOrPlayAlert(u"Correct"_s);
            return;
        }
        wasRejected = true;
    }
}

} // namespace

int main(int, char **)
{
    startUp();
    PuzzleHistory history(ChkBounds);
    for (;;) {
        showInstructions();
        const Puzzle puzzle = choosePuzzle(history);
        showPuzzle(puzzle);
        askUntilDone(puzzle.numbers);
    }
}
