// The display list: random operations, then drawing, then the archive. Input: operations, each a byte with
// its operands. Drawing a strip at a time must give, pixel for pixel, what drawing everything gives.

#include "tests/fuzz/fuzz_input.h"

#include "runtime/console/console_view.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

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

void printOrPlace(Input &input, CUI_PrintToWindowView &view)
{
    switch (input.below(4)) {
    case 0:
        view.addString(text(input), point(input));
        break;
    case 1: {
        const double column = length(input);
        view.setColumnRow(column, length(input));
        break;
    }
    default:
        view.addString(text(input));
    }
}

void setTextStyle(Input &input, CUI_PrintToWindowView &view)
{
    switch (input.below(6)) {
    case 0:
        view.setFontSize(input.byte() < 250 ? input.byte() / 8.0 : input.number<double>());
        break;
    case 1:
        view.setForegroundColor(color(input));
        break;
    case 2:
        view.setBackgroundColor(color(input));
        break;
    case 3:
        view.setAlignment(input.number<qint8>());
        break;
    case 4:
        view.setTabInterval(length(input));
        break;
    default:
        view.resetAttributes();
    }
}

void setLineStyle(Input &input, CUI_PrintToWindowView &view)
{
    switch (input.below(5)) {
    case 0:
        view.setCurrentLineWidth(input.byte() < 250 ? input.number<qint8>() / 4.0 : input.number<double>());
        break;
    case 1:
        view.setCurrentLineCapStyle(input.byte());
        break;
    case 2: {
        QList<double> pattern;
        for (int i = input.below(5); i > 0; --i) {
            pattern.append(input.byte() < 250 ? input.byte() / 8.0 : input.number<double>());
        }
        view.setCurrentLineDashPattern(pattern);
        break;
    }
    case 3:
        view.setCurrentLineDashPhase(length(input));
        break;
    default:
        view.setCurrentStrokeColor(color(input));
    }
}

void draw(Input &input, CUI_PrintToWindowView &view)
{
    const QRectF area = rect(input);
    const QColor stroke = color(input);
    switch (input.below(3)) {
    case 0:
        view.addRect(area, stroke, color(input));
        break;
    case 1:
        view.addOval(area, stroke, color(input));
        break;
    default: {
        QList<QPointF> points;
        for (int i = input.below(4); i > 0; --i) {
            points.append(point(input));
        }
        view.addLines(points, input.below(2) == 0);
    }
    }
}

void operate(Input &input, CUI_PrintToWindowView &view)
{
    switch (input.below(8)) {
    case 0:
        setTextStyle(input, view);
        break;
    case 1:
        setLineStyle(input, view);
        break;
    case 2:
    case 3:
        draw(input, view);
        break;
    case 4:
        view.setFlipView(input.below(2) == 0);
        break;
    case 5:
        if (input.below(4) == 0) {
            view.clear();
        } else {
            view.select(input.number<qint16>(), input.number<qint16>());
        }
        break;
    default:
        printOrPlace(input, view);
    }
}

void render(CUI_PrintToWindowView &view, QImage &image, const QRect &part)
{
    QPainter painter(&image);
    view.render(&painter, part.topLeft(), part, QWidget::RenderFlags());
}

void drawInStrips(CUI_PrintToWindowView &view, int height)
{
    view.resize(picture);
    QImage whole(picture, QImage::Format_ARGB32_Premultiplied);
    whole.fill(Qt::white);
    QImage strips = whole;
    render(view, whole, QRect(QPoint(), picture));
    for (int top = 0; top < picture.height(); top += height) {
        render(view, strips, QRect(0, top, picture.width(), qMin(height, picture.height() - top)));
    }
    require(whole == strips, "strips together are the whole picture", view.dump());
}

void archive(const CUI_PrintToWindowView &view)
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
    CUI_PrintToWindowView view(QRectF(0, 0, picture.width(), 1));
    for (int count = 0; count < 60 && !input.isEmpty(); ++count) {
        operate(input, view);
    }
    QCoreApplication::sendPostedEvents(&view);
    view.takeNewText();
    drawInStrips(view, 1 + static_cast<int>(size % 50));
    archive(view);
    return 0;
}
