#include "panel_helper.h"

#include "runtime/input/panel_layout.h"
#include "runtime/input/panel_look.h"

#include <QBitmap>
#include <QLabel>
#include <QPainter>

using namespace tetrad;

namespace {

std::string text(const QRect &rect)
{
    return QString::asprintf("%d,%d %dx%d", rect.x(), rect.y(), rect.width(), rect.height()).toStdString();
}

constexpr qint64 none = notGiven;
constexpr QSize game(580, 250);

TEST(Layout, placesAllParts)
{
    const Table<qint64, qint64, int, int, QSize, const char *, const char *, int> rows = {
        {"no prompt is minimal", 10, 190, 0, 0, game, "10,154 110x36", "10,10 5x16", 4},
        {"grows with the text", 10, 190, 140, 100, game, "10,154 270x36", "155,10 105x16", 145},
        {"as wide as the content", 10, 190, 140, 9000, game, "0,154 580x36", "155,10 415x16", 145},
        {"unplaced is centred near the left", none, none, 0, 0, game, "20,107 110x36", "10,10 5x16", 4},
        {"one coordinate given is a position", none, 190, 0, 0, game, "0,154 110x36", "10,10 5x16", 4},
        {"below the content", 10, 2000, 0, 0, game, "10,214 110x36", "10,10 5x16", 4},
        {"above the content", 10, 5, 0, 0, game, "10,0 110x36", "10,10 5x16", 4},
        {"exact up to the right edge", 470, 190, 0, 0, game, "470,154 110x36", "10,10 5x16", 4},
        {"too far right", 5'000'000'000, 190, 0, 0, game, "470,154 110x36", "10,10 5x16", 4},
        {"narrow content gives the prompt its width", 10, 190, 270, 0, {300, 250}, "0,154 300x36", "285,10 5x16", 275},
        {"long prompt leaves a usable field", 10, 190, 2000, 9000, game, "0,154 580x36", "450,10 120x16", 440},
        {"tiny content has no label", 10, 190, 300, 9000, {100, 20}, "0,0 100x36", "10,10 80x16", 0},
    };
    for (const auto &[shows, x, y, promptWidth, entryWidth, content, body, entry, labelWidth] : rows) {
        SCOPED_TRACE(shows);
        const PanelMetrics metrics{promptWidth, entryWidth, 110, 120};
        const PanelGeometry parts = layOutPanel(metrics, requestedPosition(x, y, content), content);
        EXPECT_EQ(text(parts.body), body);
        EXPECT_EQ(text(parts.entry), entry);
        EXPECT_EQ(text(parts.label), text(QRect(8, 10, labelWidth, 16)));
    }
}

TEST(Look, isABodyWithRoundCornersOverItsShadow)
{
    const QList<int> grays = {255, 255, 255, 255, 255, 252, 255, 255, 223, 255, 244, 136, 244, 222, 136,
                              222, 198, 136, 136, 136, 136, 136, 136, 136, 136, 136, 136, 136, 136, 204};
    for (const double scale : {1.0, 1.00001}) { // From parts at a whole scale, in one piece at others.
        QImage image(120, 64, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintPanelBackdrop(painter, {0, 0, 120, 64}, QPalette(Qt::red, Qt::green));
        for (int i = 0; i < grays.size(); ++i) {
            const int at = i / 3 * 3;
            const QPoint places[] = {
                {at, at}, {119 - at, 63 - at}, {60, 2 * at}}; // from two corners, and down the middle
            EXPECT_NEAR(qGray(image.pixel(places[i % 3])), grays[i], 2) << i;
        }
    }
}

using Panel = PanelTest;

TEST_F(Panel, staysInsideTheContentOfAnySize)
{
    ZRInputWindow panel(u"Prompt:"_s, 10, 190);
    EXPECT_EQ(panel.parentWidget(), host->contentView());
    EXPECT_EQ(panel.bodyRect().topLeft(), QPoint(10, 154));
    EXPECT_EQ(panel.field()->height(), 16);
    const int promptEnd = panel.field()->x();
    panel.label()->setFont(QFont(panel.font().family(), 20));
    EXPECT_GT(panel.field()->x(), promptEnd) << "a larger prompt";
    panel.field()->setText(QString(40'000, u'1'));
    EXPECT_EQ(panel.field()->text().size(), 40'000) << "a line edit cuts at 32767 by default";
    for (const QSize &size : {QSize(300, 120), QSize(140, 80)}) {
        host->resize(size);
        QCoreApplication::processEvents();
        EXPECT_TRUE(host->contentView()->rect().contains(panel.bodyRect()));
        EXPECT_GT(panel.field()->width(), 20);
    }
}

// The second family's lines are higher than the field; it is the default of many desktops.
TEST_F(Panel, promptAndAnswerAreAsLargeAndOnOneLineInEveryFamily)
{
    const QFont usual = QApplication::font();
    for (const QString &family : {u"DejaVu Sans"_s, u"Noto Sans"_s}) {
        SCOPED_TRACE(family.toStdString());
        QApplication::setFont(QFont(family));
        ZRInputWindow panel(u"EE"_s, 10, 190);
        panel.field()->setText(u"EE"_s);
        EXPECT_EQ(panel.font().pixelSize(), 13);
        const auto lowestInk = [&panel](const QWidget *part) {
            const QBitmap ink = QBitmap::fromImage(panel.grab(part->geometry()).toImage(), Qt::ThresholdDither);
            return part->y() + QRegion(ink).boundingRect().bottom();
        };
        EXPECT_EQ(lowestInk(panel.label()), lowestInk(panel.field()));
    }
    QApplication::setFont(usual);
}

TEST_F(Panel, whatAKeyPaintsIsWhatPaintingEverythingWouldShow)
{
    ZRInputWindow panel(u"Prompt:"_s, 200, 60);
    panel.show();
    const auto shown = [this] {
        QCoreApplication::processEvents();
        return host->screen()->grabWindow(host->winId()).toImage();
    };
    QImage before = shown();
    const int usual = panel.bodyRect().width();
    for (const QString &text : {u"1"_s, QString(30, u'2'), QString(60, u'3'), u"44"_s, QString()}) {
        panel.field()->setText(text);
        const QImage after = shown();
        EXPECT_NE(after, before) << text.toStdString();
        EXPECT_EQ(panel.bodyRect().width() > usual, text.size() > 2) << "it grows with the text";
        host->contentView()->update();
        EXPECT_EQ(after, shown()) << text.toStdString();
        before = after;
    }
}

TEST_F(Panel, isDraggedWithinTheContentByItsBackground)
{
    ZRInputWindow panel(u""_s, 10, 190);
    panel.show();
    const QPoint start = panel.bodyRect().topLeft();
    dragMouse(&panel, {80, 30}, {120, 0});
    EXPECT_EQ(panel.bodyRect().topLeft(), start + QPoint(40, -30));
    dragMouse(&panel, {80, 30}, {9000, 9000});
    EXPECT_EQ(panel.bodyRect().bottomRight(), host->contentView()->rect().bottomRight());
    panel.center();
    EXPECT_EQ(panel.bodyRect().topLeft(), QPoint(10, 154));
}

TEST_F(Panel, aPromptTooLongIsElidedAndStaysReadable)
{
    const QString prompt = u"A\x85prompt\u2028long, "_s.repeated(300);
    const ZRInputWindow panel(prompt, 10, 190);
    EXPECT_TRUE(panel.label()->text().startsWith(u"A prompt long, A"));
    EXPECT_EQ(panel.label()->toolTip(), prompt);
    EXPECT_EQ(panel.field()->accessibleName(), prompt);
    EXPECT_EQ(ZRInputWindow(u""_s, 10, 190).field()->accessibleName(), u"Input"_s);
    EXPECT_TRUE(host->contentView()->rect().contains(panel.bodyRect()));
}

TEST_F(Panel, takesTheApplicationsColoursWhateverTheContentHas)
{
    QPalette odd;
    odd.setColor(QPalette::WindowText, Qt::magenta);
    host->contentView()->setPalette(odd);
    ZRInputWindow panel(u"Enter:"_s, 10, 190);
    const QPalette before = QApplication::palette();
    EXPECT_EQ(panel.label()->palette().color(QPalette::WindowText), before.color(QPalette::WindowText));
    QApplication::setPalette(QPalette(Qt::black)); // With white text.
    QCoreApplication::processEvents();
    EXPECT_EQ(panel.label()->palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_EQ(panel.field()->palette().color(QPalette::Text), QColor(Qt::white));
    QApplication::setPalette(before);
}

} // namespace
