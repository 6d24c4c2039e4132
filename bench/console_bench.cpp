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
    ConsoleLines()
    {
        CUI_Window(windowTag, QString(), notGiven, QRectF(QPointF(), viewSize));
        m_window = CUI_WindowWithTag(windowTag);
        m_view = CUI_PrintToWindowViewObj(m_window);
    }
    ~ConsoleLines() { delete m_window; }

    void print(int number) { m_view->addString(lineText(number)); }
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
    EditLines()
    {
        m_edit.setFont(sameFont());
        m_edit.setReadOnly(true);
        m_edit.setUndoRedoEnabled(false);
        m_edit.setFixedSize(viewSize);
        m_edit.show();
    }

    void print(int number)
    {
        if constexpr (requires { m_edit.appendPlainText(QString()); }) {
            m_edit.appendPlainText(lineText(number));
        } else {
            m_edit.append(lineText(number));
        }
    }
    QWidget *shown() const { return m_edit.viewport(); }
    QScrollBar *scrollBar() const { return m_edit.verticalScrollBar(); }

private:
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
    benchmark::RunSpecifiedBenchmarks();
}
