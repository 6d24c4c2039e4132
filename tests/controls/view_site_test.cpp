#include "runtime/controls/events/current_event.h"
#include "tests/controls/site_helper.h"
#include <tetrad/app/content_view.h>
#include <tetrad/controls/view_sc.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QWindow>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

class ViewSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        m_view = makeView();
    }

    ViewSC *makeView(Tag tag = 5)
    {
        CUI_ViewSubclass(tag, QRectF(10, tag == 5 ? 10 : 100, 100, 80));
        return settled<ViewSC>(tag);
    }

    QPointer<ViewSC> m_view;
};

using Happening = std::function<void(ViewSC *)>;

Happening mouse(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    return [=](ViewSC *view) { sendMouse(view, type, QPointF(20, 30), button, buttons); };
}

Happening key(QEvent::Type type, Qt::Key code)
{
    return [=](ViewSC *view) {
        QKeyEvent event(type, code, Qt::NoModifier, u"x"_s);
        QApplication::sendEvent(view, &event);
    };
}

void askForMenu(ViewSC *view)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(view, &event);
}

const Table<qint64, Happening> &happenings()
{
    static const Table<qint64, Happening> all = {
        {"left down", 2002, [](QWidget *v) { QTest::mousePress(v, Qt::LeftButton); }},
        {"left drag", 2003, mouse(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton)},
        {"left up", 2004, [](QWidget *v) { QTest::mouseRelease(v, Qt::LeftButton); }},
        {"move", 2005, mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton)},
        {"right down", 2008, [](QWidget *v) { QTest::mousePress(v, Qt::RightButton); }},
        {"right drag", 2009, mouse(QEvent::MouseMove, Qt::NoButton, Qt::RightButton)},
        {"right up", 2010, [](QWidget *v) { QTest::mouseRelease(v, Qt::RightButton); }},
        {"key down", 2011, key(QEvent::KeyPress, Qt::Key_A)},
        {"Tab down", 2011, key(QEvent::KeyPress, Qt::Key_Tab)},
        {"key up", 2012, key(QEvent::KeyRelease, Qt::Key_A)},
        {"Shift down", 2013, key(QEvent::KeyPress, Qt::Key_Shift)},
        {"Shift up", 2013, key(QEvent::KeyRelease, Qt::Key_Shift)},
        {"double click", 2002, mouse(QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton)},
        {"menu", 2026, askForMenu},
        {"new size, for the cursor", 2015, [](QWidget *v) { v->resize(60, 60); }},
        {"appearance", 2025, [](QWidget *v) { v->setPalette(QPalette(Qt::green)); }},
    };
    return all;
}

TEST_F(ViewSite, EveryEventCarriesItsCodeTagsAndPlatformEventAndMayDeleteTheView)
{
    m_view->setFocus();
    takeSiteCalls();
    for (const auto &[name, code, happen] : happenings()) {
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
        expectSurvival<ViewSC>({code}, [this] { return makeView(6); }, {happen});
    }
}

// What the view leaves unhandled goes on to the view around it; what the program handled does not.
TEST_F(ViewSite, OnlyUnhandledEventsGetTheirDefaultHandling)
{
    struct Listener : QObject
    {
        QList<QEvent::Type> seen;
        bool eventFilter(QObject *, QEvent *event) override
        {
            seen << event->type();
            return false;
        }
    } listener;
    m_content->installEventFilter(&listener);
    m_view->setStatusTip(u"when the mouse comes or goes"_s);
    for (const bool handles : {false, true}) {
        atEvent = [handles](qint64 event) { answer(handles && event != viewEventAcceptsFirstResponder); };
        mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton)(m_view);
        mouse(QEvent::MouseMove, Qt::LeftButton, Qt::LeftButton)(m_view);
        key(QEvent::KeyPress, Qt::Key_A)(m_view);
        QEnterEvent enter(QPointF(3, 4), QPointF(3, 4), QPointF(3, 4));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(m_view, &enter);
        QApplication::sendEvent(m_view, &leave);
        QApplication::processEvents();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::KeyPress}) {
            EXPECT_EQ(listener.seen.contains(type), !handles) << type;
        }
        EXPECT_EQ(listener.seen.count(QEvent::StatusTip), handles ? 0 : 2);
        listener.seen.clear();
    }
}

TEST_F(ViewSite, TellsThatTheMouseCameAndWentWhenItMayBeDeleted)
{
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, u"a"_s, true);
    QApplication::sendEvent(m_view, &repeated);
    QEnterEvent enter(QPointF(3, 4), QPointF(3, 4), QPointF(3, 4));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_view, &enter);
    QApplication::sendEvent(m_view, &leave);
    EXPECT_TRUE(dialogCalls.isEmpty());
    atEvent = [this](qint64 event) {
        if (event == viewEventMouseExited) {
            delete m_view;
        } else {
            EXPECT_EQ(static_cast<QEnterEvent *>(CUI_EventEvent())->position(), QPointF(3, 4));
        }
    };
    EXPECT_EQ(takeSiteCalls(), u"2006 5 7, 2007 5 7"_s);
    EXPECT_FALSE(m_view);
}

// The events come through the window system's own window, whose delivery goes on behind the view.
TEST_F(ViewSite, DeletingAViewOrItsWindowSurvivesInEveryMouseEvent)
{
    const QList<qint64> order = {2006, 2005, 2001, 2002, 2004, 2008, 2026, 2010, 2007};
    const Table<bool, bool> rows = {
        {"view in its event", false, false},
        {"window in a view's event", false, true},
        {"window in its content view's event", true, true},
    };
    for (const auto &[name, ofContent, harmsWindow] : rows) {
        for (const qint64 dangerous : QList<qint64>{0} + order) {
            if (ofContent && dangerous == viewEventAcceptsFirstResponder) {
                continue; // never the content view's
            }
            SCOPED_TRACE(testing::Message() << name << " at " << dangerous);
            TearDown();
            SetUp();
            qobject_cast<ContentViewSC *>(m_content)->setSubclassFlag(ofContent);
            const QPointer<QWidget> victim = harmsWindow ? m_content->window() : m_view.data();
            const QPointer<QWindow> window = m_content->window()->windowHandle();
            const QPoint outside = m_content->mapTo(m_content->window(), ofContent ? QPoint(20, -5) : QPoint(20, 120));
            const QPoint inside = m_content->mapTo(m_content->window(), QPoint(ofContent ? 200 : 20, 30));
            const auto happens = [&window](const auto &happen) {
                if (window) {
                    happen(window);
                    QApplication::processEvents();
                }
            };
            happens([&](QWindow *w) { QTest::mouseMove(w, outside + QPoint(1, 0)); });
            happens([&](QWindow *w) { QTest::mouseMove(w, outside); });
            takeSiteCalls();
            atEvent = [&, code = dangerous](qint64 event) {
                if (event == code) {
                    delete victim;
                }
            };
            happens([&](QWindow *w) { QTest::mouseMove(w, inside); });
            for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
                happens([&](QWindow *w) { QTest::mousePress(w, button, {}, inside); });
                happens([&](QWindow *w) { QTest::mouseRelease(w, button, {}, inside); });
            }
            QEvent leave(QEvent::Leave);
            happens([&](QWindow *w) { QApplication::sendEvent(w, &leave); });
            EXPECT_EQ(victim.isNull(), dangerous != 0);
            if (dangerous == 0 && !ofContent) {
                EXPECT_EQ(takeSiteCodes(), u"2006 2005 2001 2002 2004 2001 2008 2026 2010 2007"_s);
            }
        }
    }
}

TEST_F(ViewSite, DrawsTheDirtyPartOrUpdatesItsLayer)
{
    bool wantsLayer = false;
    QRectF drawn;
    atEvent = [&](qint64 event) {
        if (event == viewEventDraw) {
            drawn = CUI_DialogEventObj()->rectVal;
            QPainter(m_view).fillRect(drawn, Qt::red);
        }
        answer(event == viewEventWantsUpdateLayer && wantsLayer);
    };
    m_view->repaint(5, 6, 20, 10);
    EXPECT_EQ(drawn, QRectF(5, 6, 20, 10));
    EXPECT_EQ(m_view->grab().toImage().pixelColor(50, 40), QColor(Qt::red));
    takeSiteCalls();
    wantsLayer = true;
    m_view->repaint();
    EXPECT_EQ(codesOf(dialogCalls), u"2027 2028"_s);
}

TEST_F(ViewSite, TakesTheKeyboardOnlyWhenTheProgramLetsIt)
{
    for (const bool lets : {false, true}) {
        atEvent = [lets](qint64 event) { answer(lets && event == viewEventAcceptsFirstResponder); };
        QTest::mouseClick(m_view, Qt::LeftButton);
        EXPECT_EQ(m_view->hasFocus(), lets);
        EXPECT_EQ(takeSiteCodes(), u"2001 2002 2004"_s);
    }
    m_view->clearFocus();
    const ViewSC *const second = makeView(6);
    atEvent = [](qint64) { answer(dialogCalls.constLast() == u"2001 6 7"_s); };
    m_view->setFocus(Qt::TabFocusReason);
    takeSiteCalls();
    EXPECT_TRUE(second->hasFocus()) << "Tab passes by views that refuse";
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
        askForMenu(m_view);
        EXPECT_EQ(other.isVisible(), !isHandled);
    }
    other.close();
}

TEST_F(ViewSite, DragsAreReportedThatOfferAnAskedForType)
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
        QDragEnterEvent enter(QPoint(2, 3), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(m_view, &enter);
        EXPECT_EQ(enter.isAccepted(), data == &files);
        if (enter.isAccepted()) {
            QDropEvent drop(QPoint(2, 3), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(m_view, &drop);
            EXPECT_EQ(drop.isAccepted(), takes);
        }
        EXPECT_EQ(takeSiteCalls(), calls);
    }
    EXPECT_EQ(CUI_DialogEventObj()->pointVal, QPointF(2, 3));
}

} // namespace
