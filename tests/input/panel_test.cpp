#include "panel_helper.h"

#include <tetrad/input/line_input.h>
#include <tetrad/strings/not_given.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>

using namespace tetrad;
using namespace Qt::Literals::StringLiterals;

namespace {

using Panel = PanelTest;

TEST_F(Panel, standsOverTheContentAndMakesRoomForThePrompt)
{
    ZRInputWindow panel(u"Prompt:"_s, 10, 190);
    EXPECT_EQ(panel.parentWidget(), host->contentView());
    EXPECT_EQ(panel.bodyRect().topLeft(), QPoint(10, 154));
    EXPECT_EQ(panel.field()->height(), 16);
    QFont larger = panel.font();
    larger.setPixelSize(26);
    panel.label()->setFont(larger);
    const int promptWidth = panel.label()->fontMetrics().horizontalAdvance(panel.prompt());
    EXPECT_EQ(panel.field()->x() - panel.label()->x(), promptWidth + 7) << "the field makes room";
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
            const QImage image = panel.grab(part->geometry()).toImage();
            int lowest = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    lowest = qGray(image.pixel(x, y)) < 80 ? part->y() + y : lowest;
                }
            }
            return lowest;
        };
        EXPECT_EQ(lowestInk(panel.label()), lowestInk(panel.field()));
    }
    QApplication::setFont(usual);
}

TEST_F(Panel, growsWithTheTextUntilTheEdgeWhereTheFieldScrolls)
{
    const ZRInputWindow panel(u""_s, 10, 190);
    const QString some(30, u'0');
    const std::pair<QString, int> rows[] = {{u""_s, 110},
                                            {some, panel.field()->fontMetrics().horizontalAdvance(some) + 25},
                                            {QString(200'000, u'0'), 580},
                                            {u""_s, 110}};
    for (const auto &[text, width] : rows) {
        panel.field()->setText(text);
        EXPECT_EQ(panel.bodyRect().width(), width);
    }
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
    for (const QString &text : {u"1"_s, QString(30, u'2'), QString(60, u'3'), u"44"_s, QString()}) {
        panel.field()->setText(text);
        const QImage after = shown();
        EXPECT_NE(after, before) << text.toStdString();
        host->contentView()->update();
        EXPECT_EQ(after, shown()) << text.toStdString();
        before = after;
    }
}

TEST_F(Panel, isDraggedWithinTheContentByItsBackground)
{
    ZRInputWindow panel(u""_s, 10, 190);
    panel.show();
    const QPoint grip(80, 30);
    QTest::mousePress(&panel, Qt::LeftButton, {}, grip);
    const auto dragTo = [&](QPoint shift) {
        const QPointF at = panel.mapFromGlobal(host->contentView()->mapToGlobal(QPoint(100, 154)) + shift);
        sendMouse(&panel, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
    };
    dragTo(QPoint(0, 0));
    const QPoint start = panel.bodyRect().topLeft();
    dragTo(QPoint(40, -30));
    EXPECT_EQ(panel.bodyRect().topLeft(), start + QPoint(40, -30));
    dragTo(QPoint(9000, 9000));
    EXPECT_EQ(panel.bodyRect().bottomRight(), host->contentView()->rect().bottomRight());
    panel.center();
    EXPECT_EQ(panel.bodyRect().topLeft(), QPoint(10, 154));
}

TEST_F(Panel, aPromptTooLongIsElidedAndStaysReadable)
{
    const QString prompt = u"Very long prompt, "_s.repeated(30);
    const ZRInputWindow panel(prompt, 10, 190);
    EXPECT_TRUE(panel.label()->text().contains(u'\u2026'));
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

    QPalette dark = before;
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Window, Qt::black);
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    EXPECT_EQ(panel.label()->palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_EQ(panel.field()->palette().color(QPalette::Text), QColor(Qt::white));
    const QImage seen = panel.grab().toImage();
    EXPECT_LT(seen.pixelColor(seen.rect().center() + QPoint(0, 14)).lightness(), 40) << "the body";
    QApplication::setPalette(before);
}

} // namespace
