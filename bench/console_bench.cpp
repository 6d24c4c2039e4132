// The console beside what Qt offers for printing lines: one window of 580 x 250 pixels each, the same font. Arguments
// are numbers of lines. Memory is what the C library has handed out.
#include "runtime/console/document/font_facts.h"
#include <tetrad/app/application.h>
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/console/console_statements.h>
#include <tetrad/console/console_view.h>
#include <tetrad/strings/not_given.h>

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsView>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextEdit>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <memory>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize viewSize(580, 250);
constexpr QSize boardSize(600, 360);
constexpr int boardColumns = 80;
constexpr int boardRows = 25;

QFont sameFont()
{
    return TextAttributes().facts().font;
}

QString lineText(int number)
{
    return u"Line %1: enter an expression that equates to 24."_s.arg(number);
}

// Each of the four is made shown and empty, prints a line at its end and knows the widget that shows the lines.

class ConsoleLines
{
public:
    explicit ConsoleLines(const QSize &size = viewSize)
    {
        CUI_Window(windowTag, QString(), notGiven, QRectF(QPointF(), size));
        m_window = CUI_WindowWithTag(windowTag);
        m_view = CUI_PrintToWindowViewObj(m_window);
    }
    ~ConsoleLines() { delete m_window; }

    void print(int number) { m_view->addString(lineText(number)); }
    void printBoard()
    {
        for (int cell = 0; cell < boardColumns * boardRows; ++cell) {
            m_view->setColumnRow(cell % boardColumns, cell / boardColumns);
            m_view->addString(QChar(u'A' + cell % 26) + u"\b"_s);
        }
    }
    /// As the game does with its error line.
    void eraseAndPrint(int number)
    {
        m_view->addRect({10, 200, 400, 15}, Qt::black, Qt::black);
        m_view->addString(lineText(number), {10, 200});
    }
    QWidget *shown() const { return m_view->scrollView()->viewport(); }
    QScrollBar *scrollBar() const { return m_view->scrollView()->verticalScrollBar(); }

private:
    static constexpr Tag windowTag = 1;
    Window *m_window = nullptr;
    CUI_PrintToWindowView *m_view = nullptr;
};

template <typename Edit>
class EditLines
{
public:
    explicit EditLines(const QSize &size = viewSize)
    {
        m_edit.setFont(sameFont());
        m_edit.setReadOnly(true);
        m_edit.setUndoRedoEnabled(false);
        m_edit.setFixedSize(size);
        m_edit.show();
    }

    void print(int number) { print(lineText(number)); }
    void printBoard()
    {
        for (int row = 0; row < boardRows; ++row) {
            QString line;
            for (int column = 0; column < boardColumns; ++column) {
                line += QChar(u'A' + (row * boardColumns + column) % 26);
            }
            print(line);
        }
    }
    QWidget *shown() const { return m_edit.viewport(); }
    QScrollBar *scrollBar() const { return m_edit.verticalScrollBar(); }

private:
    void print(const QString &line)
    {
        if constexpr (requires { m_edit.appendPlainText(line); }) {
            m_edit.appendPlainText(line);
        } else {
            m_edit.append(line);
        }
    }

    Edit m_edit;
};

class SceneLines
{
public:
    SceneLines()
    {
        m_view.setFixedSize(viewSize);
        m_view.show();
    }

    void print(int number)
    {
        QGraphicsSimpleTextItem *const item = m_scene.addSimpleText(lineText(number), m_font);
        item->setPos(3, number * m_lineHeight);
    }
    QWidget *shown() const { return m_view.viewport(); }
    QScrollBar *scrollBar() const { return m_view.verticalScrollBar(); }

private:
    QFont m_font = sameFont();
    double m_lineHeight = QFontMetricsF(m_font).lineSpacing();
    QGraphicsScene m_scene;
    QGraphicsView m_view{&m_scene};
};

template <typename Lines>
void printLines(Lines &lines, qint64 count)
{
    for (int i = 0; i < count; ++i) {
        lines.print(i);
    }
}

template <typename Lines>
void print(benchmark::State &state)
{
    for (auto step : state) {
        state.PauseTiming();
        auto lines = std::make_unique<Lines>();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        printLines(*lines, state.range(0));
        state.PauseTiming();
        lines.reset();
        state.ResumeTiming();
    }
}

template <typename Lines>
void printAndRepaint(benchmark::State &state)
{
    for (auto step : state) {
        state.PauseTiming();
        auto lines = std::make_unique<Lines>();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        for (int i = 0; i < state.range(0); ++i) {
            lines->print(i);
            QCoreApplication::processEvents();
            lines->shown()->repaint();
        }
        state.PauseTiming();
        lines.reset();
        state.ResumeTiming();
    }
}

// The second argument is the place in the document in percent.
template <typename Lines>
void repaint(benchmark::State &state)
{
    Lines lines;
    printLines(lines, state.range(0));
    QCoreApplication::processEvents();
    lines.scrollBar()->setValue(static_cast<int>(lines.scrollBar()->maximum() * state.range(1) / 100));
    QCoreApplication::processEvents();
    for (auto step : state) {
        lines.shown()->repaint();
    }
}

template <typename Lines>
void board(benchmark::State &state)
{
    Lines lines(boardSize);
    lines.printBoard();
    QCoreApplication::processEvents();
    for (auto step : state) {
        lines.shown()->repaint();
    }
}

void eraseAndPrint(benchmark::State &state)
{
    ConsoleLines lines;
    for (int i = 0; i < state.range(0); ++i) {
        lines.eraseAndPrint(i);
    }
    QCoreApplication::processEvents();
    for (auto step : state) {
        lines.eraseAndPrint(0);
        QCoreApplication::processEvents();
    }
}

template <typename Lines>
void memory(benchmark::State &state)
{
    Lines lines;
    QCoreApplication::processEvents();
    double bytes = 0;
    for (auto step : state) {
        const auto before = static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd);
        printLines(lines, state.range(0));
        QCoreApplication::processEvents();
        bytes = static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) - before;
    }
    state.counters["bytes"] = bytes / static_cast<double>(state.range(0));
}

template <typename Lines>
void registerAll(const std::string &name)
{
    using benchmark::RegisterBenchmark;
    RegisterBenchmark(("print/" + name).c_str(), &print<Lines>)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
    RegisterBenchmark(("print/" + name).c_str(), &print<Lines>)
        ->Arg(100000)
        ->Iterations(1)
        ->Unit(benchmark::kMicrosecond);
    RegisterBenchmark(("printAndRepaint/" + name).c_str(), &printAndRepaint<Lines>)
        ->Arg(1000)
        ->Iterations(1)
        ->Unit(benchmark::kMicrosecond);
    RegisterBenchmark(("repaint/" + name).c_str(), &repaint<Lines>)
        ->ArgsProduct({{1000, 100000}, {50, 100}})
        ->Iterations(50)
        ->Unit(benchmark::kMicrosecond);
    RegisterBenchmark(("memory/" + name).c_str(), &memory<Lines>)->Arg(10000)->Iterations(1);
}

} // namespace

int main(int argc, char **argv)
{
    CocoaInit();
    benchmark::Initialize(&argc, argv);
    registerAll<ConsoleLines>("console");
    registerAll<EditLines<QPlainTextEdit>>("QPlainTextEdit");
    registerAll<EditLines<QTextEdit>>("QTextEdit");
    registerAll<SceneLines>("QGraphicsScene");
    for (const auto &[name, run] : {std::pair("board/console", &board<ConsoleLines>),
                                    std::pair("board/QPlainTextEdit", &board<EditLines<QPlainTextEdit>>)}) {
        benchmark::RegisterBenchmark(name, run)->Iterations(50)->Unit(benchmark::kMicrosecond);
    }
    benchmark::RegisterBenchmark("erase/console", &eraseAndPrint)
        ->RangeMultiplier(10)
        ->Range(10, 100000)
        ->Iterations(500)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RunSpecifiedBenchmarks();
}
