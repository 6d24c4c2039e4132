#include "runtime/controls/events/current_event.h"
#include "tests/controls/site_helper.h"

#include <QMimeData>
#include <QPainter>

using namespace tetrad;

namespace {

class ViewSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        CUI_ViewSubclass(5, QRectF(10, 10, 100, 80));
        m_view = m_content->findChild<ViewSC *>();
        takeSiteCalls();
        CUI_OutputWindowSetTag(0);
    }

    QPointer<ViewSC> m_view;
};

using Happening = std::function<void(QWidget *)>;

Happening mouse(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    return [=](QWidget *view) { sendMouse(view, type, QPointF(20, 30), button, buttons); };
}

Happening key(QEvent::Type type, Qt::Key code, bool repeats = false)
{
    return [=](QWidget *view) { send<QKeyEvent>(view, type, code, Qt::NoModifier, u"x"_s, repeats); };
}

TEST_F(ViewSite, EventsCarryTheirCodeTagsAndPlatformEvent)
{
    const Table<qint64, Happening> rows = {
        {"left drag", 2003, mouse(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton)},
        {"right drag", 2009, mouse(QEvent::MouseMove, Qt::NoButton, Qt::RightButton)},
        {"key down", 2011, key(QEvent::KeyPress, Qt::Key_A)},
        {"Tab down", 2011, key(QEvent::KeyPress, Qt::Key_Tab)},
        {"key up", 2012, key(QEvent::KeyRelease, Qt::Key_A)},
        {"Shift down", 2013, key(QEvent::KeyPress, Qt::Key_Shift)},
        {"Shift up", 2013, key(QEvent::KeyRelease, Qt::Key_Shift)},
        {"double click", 2002, mouse(QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton)},
        {"new size, for the cursor", 2015, [](QWidget *view) { view->resize(60, 60); }},
        {"appearance", 2025, [](QWidget *view) { view->setPalette(QPalette(Qt::green)); }},
    };
    m_view->setFocus();
    takeSiteCalls();
    for (const auto &[name, code, happen] : rows) {
        SCOPED_TRACE(name);
        bool isCurrent = false;
        atEvent = [&isCurrent, expected = code](qint64 event) {
            isCurrent = isCurrent || (event == expected && CUI_EventEvent() == eventFromTag(lastObject));
            EXPECT_TRUE(event != viewEventDraw || CUI_EventEvent());
        };
        CUI_OutputWindowSetTag(0);
        happen(m_view);
        EXPECT_EQ(takeSiteCalls(), QString::number(code) + u" 5 7"_s);
        EXPECT_TRUE(isCurrent);
        EXPECT_EQ(CUI_OutputWindowTag(), 7);
        EXPECT_FALSE(CUI_EventEvent());
    }
    atEvent = nullptr;
    key(QEvent::KeyRelease, Qt::Key_A, true)(m_view);
    EXPECT_EQ(takeSiteCalls(), QString()) << "a key that repeats goes up once";
}

// What the view leaves unhandled goes on to the view around it; what the program handled does not.
TEST_F(ViewSite, OnlyUnhandledEventsGetTheirDefaultHandling)
{
    struct Listener : QObject
    {
        QList<QEvent::Type> seen;
        bool eventFilter(QObject *, QEvent *event) override { return seen << event->type(), false; }
    } listener;
    m_content->installEventFilter(&listener);
    m_view->setStatusTip(u"when the mouse comes or goes"_s);
    for (const bool handles : {false, true}) {
        atEvent = [handles](qint64 event) { answer(handles && event != viewEventAcceptsFirstResponder); };
        mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton)(m_view);
        mouse(QEvent::MouseMove, Qt::LeftButton, Qt::LeftButton)(m_view);
        key(QEvent::KeyPress, Qt::Key_A)(m_view);
        send<QEnterEvent>(m_view, QPointF(3, 4), QPointF(3, 4), QPointF(3, 4));
        send<QEvent>(m_view, QEvent::Leave);
        QApplication::processEvents();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::KeyPress}) {
            EXPECT_EQ(listener.seen.removeAll(type) > 0, !handles) << type;
        }
        EXPECT_EQ(listener.seen.removeAll(QEvent::StatusTip), handles ? 0 : 2);
        const QPoint inside = m_view->mapTo(m_view->window(), QPoint(5, 5));
        QTest::mouseClick(m_view->window()->windowHandle(), Qt::RightButton, {}, inside);
        QApplication::processEvents();
        EXPECT_EQ(listener.seen.removeAll(QEvent::MouseButtonPress) > 0, !handles) << "a right press is kept a while";
        listener.seen.clear();
    }
}

// The mouse comes into the view, presses both buttons and leaves, through the window system's own window, whose
// delivery goes on behind the view.
void visit(const QWidget *view)
{
    const QPointer<QWindow> window = view->window()->windowHandle();
    const QPoint inside = view->mapTo(view->window(), QPoint(10, 20));
    const std::pair<QTest::MouseAction, Qt::MouseButton> acts[] = {{QTest::MouseMove, Qt::NoButton},
                                                                   {QTest::MousePress, Qt::LeftButton},
                                                                   {QTest::MouseRelease, Qt::LeftButton},
                                                                   {QTest::MousePress, Qt::RightButton},
                                                                   {QTest::MouseRelease, Qt::RightButton}};
    QTest::mouseMove(window, inside + QPoint(1, 90));
    QTest::mouseMove(window, inside + QPoint(0, 90));
    takeSiteCalls();
    for (const auto &[act, button] : acts) {
        if (window) {
            QTest::mouseEvent(act, window, button, {}, inside);
            QApplication::processEvents();
        }
    }
    if (window) {
        send<QEvent>(window, QEvent::Leave);
        QApplication::processEvents();
    }
}

TEST_F(ViewSite, MouseEventsCarryThatTooAndTheViewOrItsWindowMayBeDeletedInEach)
{
    atEvent = [](qint64 event) {
        EXPECT_TRUE(event == viewEventAcceptsFirstResponder || event == viewEventDraw ||
                    event == viewEventWantsUpdateLayer || CUI_EventEvent() == eventFromTag(lastObject));
    };
    visit(m_view);
    EXPECT_EQ(takeSiteCalls().remove(u" 5 7"_s), u"2006, 2005, 2001, 2002, 2004, 2001, 2008, 2026, 2010, 2007"_s);
    for (const qint64 code : {2006, 2005, 2001, 2002, 2004, 2008, 2026, 2010, 2007}) {
        for (const bool harmsWindow : {false, true}) {
            TearDown();
            SetUp();
            const QPointer<QWidget> victim = harmsWindow ? m_content->window() : m_view.data();
            atEvent = answers({{code, [&](auto &) { delete victim; }}});
            visit(m_view);
            EXPECT_TRUE(victim.isNull()) << code;
        }
    }
}

TEST_F(ViewSite, DrawsTheDirtyPartOrUpdatesItsLayer)
{
    bool wantsLayer = false;
    QRectF drawn;
    const auto draw = [&](const CUI_DialogEvent &it) {
        drawn = it.rectVal;
        QPainter(m_view).fillRect(drawn, Qt::red);
    };
    atEvent = answers({{viewEventDraw, draw}, {viewEventWantsUpdateLayer, [&](auto &it) { it.boolVal = wantsLayer; }}});
    m_view->repaint(5, 6, 20, 10);
    EXPECT_EQ(drawn, QRectF(5, 6, 20, 10));
    EXPECT_EQ(m_view->grab().toImage().pixelColor(50, 40), QColor(Qt::red));
    VisualEffectView veil(m_view);
    veil.setCoverage(3);
    veil.show();
    EXPECT_EQ(m_view->grab().toImage().pixelColor(5, 5), veil.palette().color(QPalette::Window));
    CUI_ImageView(6, QImage::fromData(QByteArray("P3 2 1 255  255 0 0  0 0 255")), QRectF(0, 100, 40, 40));
    const QImage image = CUI_ViewWithTag(6)->grab().toImage();
    const auto colour = [&image](int x, int y) { return image.pixelColor(x, y).name(); };
    EXPECT_EQ(colour(0, 10) + colour(39, 29) + colour(0, 9), u"#ff0000#0000ff"_s + colour(39, 30)) << "in proportion";
    EXPECT_NE(colour(18, 20), colour(0, 20)) << "smoothly";
    takeSiteCalls();
    wantsLayer = true;
    m_view->repaint();
    EXPECT_EQ(dialogCalls, (QStringList{u"2027 5 7"_s, u"2028 5 7"_s}));
}

TEST_F(ViewSite, TakesTheKeyboardOnlyWhenTheProgramLetsIt)
{
    for (const bool lets : {false, true}) {
        atEvent = answers({{viewEventAcceptsFirstResponder, [lets](auto &it) { it.boolVal = lets; }}});
        QTest::mouseClick(m_view, Qt::LeftButton);
        EXPECT_EQ(m_view->hasFocus(), lets);
        EXPECT_EQ(takeSiteCalls(), u"2001 5 7, 2002 5 7, 2004 5 7"_s);
    }
    m_view->clearFocus();
    CUI_ViewSubclass(6, QRectF(10, 100, 100, 80));
    CUI_ViewSubclass(8, QRectF(120, 100, 100, 80));
    takeSiteCalls();
    for (const bool lets : {true, false}) {
        atEvent = [lets](qint64) { answer(lets && dialogCalls.constLast() != u"2001 5 7"_s); };
        m_view->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(takeSiteCalls(), lets ? u"2001 5 7, 2001 6 7"_s : u"2001 5 7, 2001 6 7, 2001 8 7"_s);
        EXPECT_EQ(CUI_ViewWithTag(6)->hasFocus(), lets) << "Tab passes by views that refuse";
    }
    EXPECT_FALSE(QApplication::focusWidget());
}

TEST_F(ViewSite, PopsUpTheMenuThatTheProgramLeavesInTheRecord)
{
    QMenu own;
    QMenu other;
    other.addAction(u"b"_s);
    m_view->setMenu(&own);
    for (const bool isHandled : {true, false}) {
        atEvent = [&, isHandled](qint64) {
            EXPECT_EQ(std::exchange(CUI_DialogEventObj()->menuObj, &other), &own);
            answer(isHandled);
        };
        send<QContextMenuEvent>(m_view, QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
        EXPECT_EQ(other.isVisible(), !isHandled);
    }
    other.close();
}

TEST_F(ViewSite, DragsAreReportedThatOfferAnAcceptedType)
{
    QMimeData text;
    text.setText(u"t"_s);
    QMimeData files;
    files.setUrls({QUrl(u"file:///a"_s)});
    m_view->setDraggedTypes({u"text/uri-list"_s});
    valuesOf = [](qint64) { return QVariant(CUI_DialogEventObj()->arrayObj).toStringList().join(u'|'); };
    const Table<const QMimeData *, bool, QString> rows = {
        {"another type", &text, true, {}},
        {"refused", &files, false, u"2016 5 7 file:///a, 2022 5 7 file:///a"_s},
        {"taken", &files, true, u"2016 5 7 file:///a, 2022 5 7 file:///a"_s},
    };
    for (const auto &[name, data, takes, calls] : rows) {
        SCOPED_TRACE(name);
        atEvent = [yes = takes](qint64) { answer(yes); };
        const bool enters =
            send<QDragEnterEvent>(m_view, QPoint(2, 3), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        EXPECT_EQ(enters, data == &files);
        if (enters) {
            EXPECT_EQ(send<QDropEvent>(m_view, QPoint(2, 3), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier),
                      takes);
            QDragLeaveEvent left; // The application keeps it from where nothing is dragged any more.
            static_cast<QObject *>(m_view)->event(&left);
        }
        EXPECT_EQ(takeSiteCalls(), calls);
    }
    const CUI_DialogEvent &it = *CUI_DialogEventObj();
    EXPECT_TRUE(it.pointVal == QPointF(2, 3) && it.pasteboardObj == &files && it.pbTypes == files.formats());
}

} // namespace
