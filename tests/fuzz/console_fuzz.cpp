// The display list: random operations, then drawing, then the archive. Input: operations, each a byte with
// its operands. Every part must show, pixel for pixel, what drawing the whole list shows there.

#include "tests/console/whole_list.h"
#include "tests/fuzz/fuzz_input.h"

#include <QApplication>

#include <array>

using namespace tetrad;
using namespace tetrad::fuzz;

namespace {

constexpr QSize picture(200, 160);

void ensureApplication()
{
    static int count = 1;
    static std::array<char, 5> name = {"fuzz"};
    static std::array<char *, 2> arguments = {name.data(), nullptr};
    if (qApp == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        new QApplication(count, arguments.data());
    }
}

// Mostly lengths that can be seen, and now and then any double whatever, infinite ones and NaN included.
double length(Input &input)
{
    const quint8 kind = input.byte();
    return kind < 250 ? kind - 20.0 + input.byte() / 16.0 : input.number<double>();
}

QPointF point(Input &input)
{
    const double x = length(input);
    return {x, length(input)};
}

QRectF rect(Input &input)
{
    const QPointF corner = point(input);
    const QPointF extent = point(input);
    return {corner.x(), corner.y(), extent.x(), extent.y()};
}

QColor color(Input &input)
{
    const quint8 value = input.byte();
    return value == 0 ? QColor() : QColor::fromRgb(value, 255 - value, value * 7 % 256, value % 3 == 0 ? 128 : 255);
}

QString text(Input &input)
{
    return input.byte() % 4 == 0 ? input.units(12) : input.textUntil('|').left(60);
}

using View = CUI_PrintToWindowView;
using Operation = void (*)(Input &, View &);

// The next byte chooses; an operation that stands twice is chosen twice as often.
void choose(Input &input, View &view, const QList<Operation> &operations)
{
    operations.at(input.below(static_cast<int>(operations.size())))(input, view);
}

void print(Input &in, View &view)
{
    view.addString(text(in));
}

void printOrPlace(Input &input, View &view)
{
    choose(input, view,
           {[](Input &in, View &v) { v.addString(text(in), point(in)); },
            [](Input &in, View &v) {
                const QPointF cell = point(in);
                v.setColumnRow(cell.x(), cell.y());
            },
            print, print});
}

void setTextStyle(Input &input, View &view)
{
    choose(input, view,
           {[](Input &in, View &v) { v.setFontSize(in.byte() < 250 ? in.byte() / 8.0 : in.number<double>()); },
            [](Input &in, View &v) { v.setForegroundColor(color(in)); },
            [](Input &in, View &v) { v.setBackgroundColor(color(in)); },
            [](Input &in, View &v) { v.setAlignment(in.number<qint8>()); },
            [](Input &in, View &v) { v.setTabInterval(length(in)); }, [](Input &, View &v) { v.resetAttributes(); }});
}

void setDashes(Input &in, View &view)
{
    QList<double> pattern;
    for (int i = in.below(5); i > 0; --i) {
        pattern.append(in.byte() < 250 ? in.byte() / 8.0 : in.number<double>());
    }
    view.setCurrentLineDashPattern(pattern);
}

void setLineStyle(Input &input, View &view)
{
    choose(input, view,
           {[](Input &in, View &v) {
                v.setCurrentLineWidth(in.byte() < 250 ? in.number<qint8>() / 4.0 : in.number<double>());
            },
            [](Input &in, View &v) { v.setCurrentLineCapStyle(in.byte()); }, setDashes,
            [](Input &in, View &v) { v.setCurrentLineDashPhase(length(in)); },
            [](Input &in, View &v) { v.setCurrentStrokeColor(color(in)); }});
}

void draw(Input &input, View &view)
{
    const QRectF area = rect(input);
    const QColor stroke = color(input);
    const int shape = input.below(3);
    if (shape < 2) {
        shape == 0 ? view.addRect(area, stroke, color(input)) : view.addOval(area, stroke, color(input));
        return;
    }
    QList<QPointF> points;
    for (int i = input.below(4); i > 0; --i) {
        points.append(point(input));
    }
    view.addLines(points, input.below(2) == 0);
}

void clearOrSelect(Input &in, View &view)
{
    in.below(4) == 0 ? view.clear() : view.select(in.number<qint16>(), in.number<qint16>());
}

void operate(Input &input, View &view)
{
    choose(input, view,
           {setTextStyle, setLineStyle, draw, draw, [](Input &in, View &v) { v.setFlipView(in.below(2) == 0); },
            clearOrSelect, printOrPlace, printOrPlace});
}

// Rows and columns, each drawn alone, as a partial repaint does.
void drawInParts(View &view, int extent)
{
    view.resize(picture);
    WholeList whole(view);
    const auto compare = [&](const QRect &part) {
        require(partOf(view, part, 1) == partOf(whole, part, 1), "a part shows what the whole list does", view.dump());
    };
    for (int top = 0; top < picture.height(); top += extent) {
        compare({0, top, picture.width(), extent});
    }
    for (int left = 0; left < picture.width(); left += extent) {
        compare({left, 0, extent, picture.height()});
    }
}

void archive(const View &view)
{
    const QVariantList items = view.itemArray();
    require(items.size() == view.items().size(), "every item is archived", view.dump());
    for (const QVariant &item : items) {
        const QVariantMap map = item.toMap();
        require(map.size() >= 10 && map.contains(QStringLiteral("type")), "an item has its ten keys", view.dump());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    ensureApplication();
    Input input(data, size);
    View view(QRectF(0, 0, picture.width(), 1));
    for (int count = 0; count < 60 && !input.isEmpty(); ++count) {
        operate(input, view);
    }
    QCoreApplication::sendPostedEvents(&view);
    view.takeNewText();
    drawInParts(view, 1 + static_cast<int>(size % 50));
    archive(view);
    return 0;
}
