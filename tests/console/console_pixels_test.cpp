#include "runtime/console/document/emoji_runs.h"
#include "tests/console/printing.h"
#include <tetrad/app/content_view.h>
#include <tetrad/console/console_view.h>

#include <QBackingStore>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QRandomGenerator>
#include <QRawFont>
#include <QScrollBar>
#include <QTest>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

TEST(Emoji, areFoundInTheText)
{
    const Table<QString, QList<TextRun>> rows = {
        {"digits never", u"0123456789#*+-/() 1\ufe0f"_s, {}},
        {"white circle", u"\u26aa Easy"_s, {{0, 1}}},
        {"level label", u"a 🔴 🔴 Medium"_s, {{2, 2}, {5, 2}}},
        {"neighbours are one run", u"🟡🟡"_s, {{0, 4}}},
        {"selector makes one", u"x\u2764\ufe0fy"_s, {{1, 2}}},
        {"without selector a text", u"\u2764"_s, {}},
        {"text selector unmakes one", u"\u26aa\ufe0e"_s, {}},
        {"skin tone and joiner", u"👩🏽\u200d🚀!"_s, {{0, 7}}},
        {"lone surrogate", QString(QChar(0xD83D)) + QChar(u'a'), {}},
    };
    for (const auto &[name, text, runs] : rows) {
        EXPECT_EQ(emojiRuns(text), runs) << name;
    }
}

TEST_F(Console, emojiAreDrawnInTheColourFontAndNothingElseIs)
{
    if (!QFontDatabase::hasFamily(u"Noto Color Emoji"_s)) {
        GTEST_SKIP() << "install fonts-noto-color-emoji";
    }
    const ShapedText label(u"\u26aa 0123456789"_s, TextAttributes());
    QMap<QString, qsizetype> glyphs;
    for (const QGlyphRun &run : label.glyphRuns()) {
        glyphs[run.rawFont().familyName()] += run.glyphIndexes().size();
    }
    const QString textFamily = QRawFont::fromFont(TextAttributes().facts().font).familyName();
    EXPECT_EQ(glyphs, (QMap<QString, qsizetype>{{u"Noto Color Emoji"_s, 1}, {textFamily, 11}}));
    page.addString(u"🔴"_s, {10, 10});
    EXPECT_GT(pictureOf(page, 1, {40, 40}).pixelColor(18, 17).hsvSaturation(), 100);
}

TEST_F(Console, rowsTouchAtEveryScale)
{
    page.setBackgroundColor(QColor(0, 0, 255, 128));
    page.setForegroundColor(Qt::transparent);
    page.setCurrentLineWidth(-1);
    for (int row = 0; row < 12; ++row) {
        page.addString(u"xxxxxxxxxxxx"_s);
        page.addRect({200, row * lineHeight, 100, lineHeight}, QColor(), QColor(0, 0, 255, 128));
    }
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const QImage rows = pictureOf(page, scale, {400, 300});
        for (const int x : {qRound(20 * scale), qRound(220 * scale)}) {
            EXPECT_NE(rows.pixelColor(x, 0), QColor(Qt::white)) << scale;
            for (int y = 0; y < qFloor(12 * lineHeight * scale); ++y) {
                EXPECT_EQ(rows.pixelColor(x, y), rows.pixelColor(x, 0))
                    << "seam or overlap at " << y << " of " << scale;
            }
        }
    }
}

/// Operations at random places, colours, sizes, widths and alignments, many on top of each other.
void printAtRandom(CUI_PrintToWindowView &view, QRandomGenerator &random, int count, int height)
{
    const auto place = [&] {
        return QPointF(random.bounded(440) - 20 + random.generateDouble(), random.bounded(height));
    };
    const auto rect = [&] {
        const int tall = random.bounded(20) == 0 ? height : random.bounded(4) == 0 ? 6 : 40;
        return QRectF(place(), QSizeF(random.bounded(120) - 20, random.bounded(tall) - 5));
    };
    const auto color = [&] {
        return random.bounded(4) == 0 ? QColor() : QColor::fromRgba(random.generate() | 0x40000000);
    };
    const QStringList texts{u"Make 24"_s,
                            u"gjpqy ÅÉ"_s,
                            u"🔴 Medium\b"_s,
                            u"a\tb\t"_s,
                            u"שלום 12"_s,
                            u"two\nlines"_s,
                            u"e\u0301\u0302\u0303\u0304"_s,
                            u""_s};
    for (int i = 0; i < count; ++i) {
        view.setCurrentLineWidth(random.bounded(random.bounded(4) == 0 ? 40 : 12) - 2 + random.bounded(2) * 0.5);
        view.setCurrentLineCapStyle(random.bounded(4));
        view.setCurrentLineDashPattern(random.bounded(3) == 0 ? QList<double>{6, 3, 1} : QList<double>());
        view.setCurrentStrokeColor(color());
        view.setForegroundColor(color());
        view.setBackgroundColor(color());
        view.setAlignment(random.bounded(4));
        switch (random.bounded(8)) {
        case 0:
            view.addRect(rect(), color(), color());
            break;
        case 1:
            view.addOval(rect(), color(), color());
            break;
        case 2:
            view.addLines({place(), place()}, random.bounded(2) == 0);
            break;
        case 3:
            view.setFontSize(6 + random.bounded(30));
            break;
        default:
            view.addString(texts.at(random.bounded(static_cast<int>(texts.size()))), place());
        }
    }
}

TEST(Culling, leavesDashesWhereTheyAre)
{
    CUI_PrintToWindowView view({0, 0, 400, 300});
    view.setCurrentLineWidth(3);
    view.setCurrentLineDashPattern({6, 3, 1});
    view.addRect({-30, -20, 300.5, 120.25}, Qt::black, QColor());
    view.addOval({100.5, 30, 320, 250}, Qt::red, QColor());
    for (const bool flip : {true, false}) {
        view.setFlipView(flip);
        const QImage whole = view.grab({0, 0, 400, 300}).toImage();
        for (int top = 0; top < whole.height(); top += 15) {
            const QRect part(40, top, 250, 15);
            EXPECT_EQ(view.grab(part).toImage(), whole.copy(part)) << "flip " << flip << " at " << top;
        }
    }
}

/// A window with a console over which a field of its own lies.
class Screen : public testing::Test
{
protected:
    ContentViewSC content;
    CUI_PrintToWindowScrollView *scrollView = new CUI_PrintToWindowScrollView(&content);
    CUI_PrintToWindowView &view = *CUI_PrintToWindowView::viewWithFrame({0, 0, 400, 1});
    QWidget *other = new QWidget(&content);

    void SetUp() override
    {
        content.resize(400, 1200);
        scrollView->setDocumentView(&view);
        view.setScrollView(scrollView);
        other->setAutoFillBackground(true);
        other->resize(200, 150);
        other->setPalette(QColor(0, 255, 255, 200)); // Translucent, or nothing would be painted above it.
        content.show();
        content.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&content));
    }

    /// What the window shows.
    QImage shown() const
    {
        const auto *const pixels = static_cast<const QImage *>(content.backingStore()->paintDevice());
        return pixels->convertToFormat(QImage::Format_RGB32);
    }

    QScrollBar *bar() const { return scrollView->verticalScrollBar(); }
};

/// Run at four scales.
TEST_F(Screen, showsWhatTheWholeListDoes)
{
    QRandomGenerator random(20260102);
    const auto print = [&] { printAtRandom(view, random, 40, 300); };
    const auto dot = CUI_PrintToWindowItem::itemWithType(3, {20, 20, 90, 90}, Qt::red, Qt::green);
    const Table<std::function<void()>> changes = {
        {"printed", print},
        {"printed over", print},
        {"replaced", [&] { view.items().replace(9, dot); }},
        {"inserted", [&] { view.items().insert(5, dot); }},
        {"removed", [&] { view.items().removeAt(7); }},
        {"selected", [&] { view.select(20, 200); }},
        {"printed over the selection", print},
        {"other text colour", [&] { view.setPalette(QPalette(Qt::red, Qt::blue)); }},
        {"other ground", [&] { content.setBackgroundColor(Qt::yellow); }},
        {"focused", [&] { view.setFocus(); }},
        {"grown", [&] { view.fixFrameHeight(500); }},
        {"upside down", [&] { view.setFlipView(false); }},
        {"grown upside down", [&] { view.fixFrameHeight(900); }},
        {"cleared", [&] { view.clear(); }},
        {"printed upside down", print},
        {"grown far", [&] { view.fixFrameHeight(2000); }},
        {"scrolled", [&] { bar()->setValue(3); }},
        {"resized", [&] { content.resize(380, 1000); }},
        {"printed after scrolling", print},
        {"on another view", [&] { other->lower(); }},
        {"on another view of other colour", [&] { other->setPalette(QColor(255, 0, 255, 200)); }},
    };
    for (const auto &[name, change] : changes) {
        change();
        for (int part = 0; part < 9; ++part) {
            content.repaint(random.bounded(100), random.bounded(200), 300, 1 + random.bounded(30));
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(shown(), content.grab().toImage().convertToFormat(QImage::Format_RGB32)) << name;
    }
}

/// Run at four scales. A whole drawing needs the size of the visible part: Qt rounds differently what an edge clips.
TEST_F(Screen, showsWhatTheWholeListDoesBesideAScrollBar)
{
    QRandomGenerator random(20260103);
    const auto print = [&] { printAtRandom(view, random, 200, 300); };
    content.resize(400, 200);
    other->hide();
    view.fixFrameHeight(300);
    const Table<std::function<void()>> changes = {
        {"printed", print},
        {"printed over", print},
        {"scrolled", [&] { bar()->setValue(37); }},
        {"printed after scrolling", print},
        {"upside down", [&] { view.setFlipView(false); }},
        {"printed upside down", print},
        {"grown upside down", [&] { view.fixFrameHeight(2000); }},
        {"scrolled upside down", [&] { bar()->setValue(1790); }},
    };
    for (const auto &[name, change] : changes) {
        change();
        QCoreApplication::processEvents();
        const double scale = content.devicePixelRatioF();
        QImage whole((QSizeF(scrollView->viewport()->size()) * scale).toSize(), QImage::Format_RGB32);
        whole.fill(content.backgroundColor());
        QPainter painter(&whole);
        painter.setTransform(QTransform::fromTranslate(0, -bar()->value()) * QTransform::fromScale(scale, scale));
        for (qsizetype i = 0; i < view.items().size(); ++i) {
            drawItem({painter, view.mirror(), view.palette()}, view, static_cast<quint32>(i));
        }
        EXPECT_EQ(shown().copy(whole.rect()), whole) << name;
    }
}

TEST_F(Screen, isThereWhenTheStatementReturns)
{
    content.resize(400, 200);
    other->hide();
    for (int i = 0; i < 50; ++i) {
        view.addString(QString::number(i));
    }
    EXPECT_NE(content.grab({0, 0, 150, 200}).toImage(), content.grab({200, 0, 150, 200}).toImage());
    bar()->setValue(10000);
    EXPECT_EQ(bar()->value() + scrollView->viewport()->height(), view.height());
    view.clear();
    EXPECT_EQ(bar()->value(), 0);
    view.resize(view.width(), 700);
    view.fixFrameHeight(10);
    EXPECT_EQ(view.height(), 700) << "a program's own height stays";
    EXPECT_EQ(view.viewH(), 30);
}

TEST(Culling, looksAtNoMoreThanWhatIsNear)
{
    CUI_PrintToWindowView view({0, 0, 400, 1});
    for (int i = 0; i < 20000; ++i) {
        view.addString(u"line"_s);
    }
    view.addRect({0, 0, 10, 200000}, Qt::black, QColor());
    const double middle = view.documentSize().height() / 2;
    const auto near = view.items().itemsIn({0, middle, 400, 250});
    EXPECT_EQ(static_cast<qsizetype>(near.back()), view.items().size() - 1) << "the tall one is near everywhere";
    EXPECT_LT(near.size(), 60U);
}

} // namespace
