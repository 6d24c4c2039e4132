// The display list: random operations, then drawing, then the archive. Input: operations, each a byte with
// its operands. Every part must show, pixel for pixel, what drawing the whole list shows there.

#include "tests/fuzz/fuzz_input.h"

#include "runtime/console/view/item_painter.h"
#include <tetrad/console/console_view.h>

#include <QApplication>
#include <QPainter>

using namespace tetrad;
using namespace Qt::StringLiterals;
using namespace tetrad::fuzz;

namespace {

constexpr QSize picture(200, 160);

void ensureApplication()
{
    static int count = 0;
    if (qApp == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        new QApplication(count, nullptr);
    }
}

// Mostly lengths that can be seen, and now and then any double whatever, infinite ones and NaN included.
double length(Input &in)
{
    const quint8 kind = in.byte();
    return kind < 250 ? kind - 20.0 + in.byte() / 16.0 : in.number<double>();
}

// The same for sizes of fonts, dashes and lines.
template <typename Number>
double size(Input &in, double unit)
{
    return in.byte() < 250 ? in.number<Number>() * unit : in.number<double>();
}

QPointF point(Input &in)
{
    const double x = length(in);
    return {x, length(in)};
}

QColor color(Input &in)
{
    const quint8 value = in.byte();
    return value == 0 ? QColor() : QColor::fromRgb(value, 255 - value, value * 7 % 256, value % 3 == 0 ? 128 : 255);
}

// Any UTF-16 units whatever, halves of pairs included, or what UTF-8 spells.
QString text(Input &in)
{
    if (in.byte() % 4 != 0) {
        return in.textUntil('|').left(60);
    }
    QString units;
    while (units.size() < 12 && !in.isEmpty()) {
        units += QChar(in.number<char16_t>());
    }
    return units;
}

using View = CUI_PrintToWindowView;
using Operation = void (*)(Input &, View &);

constexpr Operation textStyles[] = {
    [](Input &in, View &view) { view.setFontSize(size<quint8>(in, 0.125)); },
    [](Input &in, View &view) { view.setForegroundColor(color(in)); },
    [](Input &in, View &view) { view.setBackgroundColor(color(in)); },
    [](Input &in, View &view) { view.setAlignment(in.number<qint8>()); },
    [](Input &in, View &view) { view.setTabInterval(length(in)); },
    [](Input &, View &view) { view.resetAttributes(); },
};

constexpr Operation lineStyles[] = {
    [](Input &in, View &view) { view.setCurrentLineWidth(size<qint8>(in, 0.25)); },
    [](Input &in, View &view) { view.setCurrentLineCapStyle(in.byte()); },
    [](Input &in, View &view) {
        QList<double> pattern(in.below(5));
        std::generate(pattern.begin(), pattern.end(), [&] { return size<quint8>(in, 0.125); });
        view.setCurrentLineDashPattern(pattern);
    },
    [](Input &in, View &view) { view.setCurrentLineDashPhase(length(in)); },
    [](Input &in, View &view) { view.setCurrentStrokeColor(color(in)); },
};

void draw(Input &in, View &view)
{
    const QPointF corner = point(in);
    const QPointF extent = point(in);
    const QRectF area(corner.x(), corner.y(), extent.x(), extent.y());
    const QColor stroke = color(in);
    const int shape = in.below(3);
    if (shape == 0) {
        view.addRect(area, stroke, color(in));
    } else if (shape == 1) {
        view.addOval(area, stroke, color(in));
    } else {
        QList<QPointF> points(in.below(4));
        std::generate(points.begin(), points.end(), [&] { return point(in); });
        view.addLines(points, in.below(2) == 0);
    }
}

void print(Input &in, View &view)
{
    const int where = in.below(4);
    const QPointF place = where < 2 ? point(in) : QPointF();
    if (where == 0) {
        view.addString(text(in), place);
    } else if (where == 1) {
        view.setColumnRow(place.x(), place.y());
    } else {
        view.addString(text(in));
    }
}

void clearOrSelect(Input &in, View &view)
{
    if (in.below(4) == 0) {
        view.clear();
    } else {
        const auto anchor = in.number<qint16>();
        view.select(anchor, in.number<qint16>());
    }
}

// One that stands twice is chosen twice as often.
constexpr Operation operations[] = {
    [](Input &in, View &view) { textStyles[in.below(std::size(textStyles))](in, view); },
    [](Input &in, View &view) { lineStyles[in.below(std::size(lineStyles))](in, view); },
    draw,
    draw,
    [](Input &in, View &view) { view.setFlipView(in.below(2) == 0); },
    clearOrSelect,
    print,
    print,
};

// Draws every item of a view's list in order, wherever it is.
class WholeList : public QWidget
{
public:
    explicit WholeList(View &view) : m_view(view) { resize(view.size()); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        for (qsizetype i = 0; i < m_view.items().size(); ++i) {
            drawItem({painter, m_view.mirror(), palette()}, m_view, static_cast<quint32>(i));
        }
    }

private:
    View &m_view;
};

QImage partOf(QWidget &widget, const QRect &part)
{
    QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    widget.render(&image, QPoint(), part, QWidget::RenderFlags());
    return image;
}

// Rows and columns, each drawn alone, as a partial repaint does.
void drawInParts(View &view, int extent)
{
    view.resize(picture);
    WholeList whole(view);
    for (int at = 0; at < picture.width(); at += extent) {
        for (const QRect &part : {QRect(0, at, picture.width(), extent), QRect(at, 0, extent, picture.height())}) {
            require(partOf(view, part) == partOf(whole, part), "a part shows what the whole list does", view.dump());
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    ensureApplication();
    Input input(data, size);
    View view(QRectF(0, 0, picture.width(), 1));
    for (int count = 0; count < 60 && !input.isEmpty(); ++count) {
        operations[input.below(std::size(operations))](input, view);
    }
    QCoreApplication::sendPostedEvents(&view);
    view.takeNewText();
    drawInParts(view, 1 + static_cast<int>(size % 50));
    require(view.itemArray().size() == view.items().size(), "every item is archived", view.dump());
    return 0;
}
