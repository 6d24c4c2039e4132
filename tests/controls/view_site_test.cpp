#include "runtime/app/content_view.h"
#include "runtime/app/current_event.h"
#include "runtime/app/popover.h"
#include "runtime/controls/popover_statements.h"
#include "runtime/controls/view_sc.h"
#include "tests/controls/site_helper.h"

#include <QContextMenuEvent>
#include <QMenu>
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
        QKeyEvent event(type, code, Qt::NoModifier, QStringLiteral("x"));
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
        atEvent = [&isCurrent](qint64 event) {
            isCurrent = event != viewEventAcceptsFirstResponder && CUI_EventEvent() == eventFromTag(lastObject);
        };
        CUI_OutputWindowSetTag(0);
        happen(m_view);
        EXPECT_EQ(takeSiteCalls(), QString::number(code) + u" 5 7"_qs);
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
    for (const bool handles : {false, true}) {
        atEvent = [handles](qint64 event) { answer(handles && event != viewEventAcceptsFirstResponder); };
        for (const auto &[type, happen] : std::vector<std::pair<QEvent::Type, Happening>>{
                 {QEvent::MouseButtonPress, mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton)},
                 {QEvent::MouseMove, mouse(QEvent::MouseMove, Qt::LeftButton, Qt::LeftButton)},
                 {QEvent::KeyPress, key(QEvent::KeyPress, Qt::Key_A)}}) {
            listener.seen.clear();
            happen(m_view);
            EXPECT_EQ(listener.seen.contains(type), !handles) << type;
        }
    }
}

TEST_F(ViewSite, TellsThatTheMouseCameAndWentWhenItMayBeDeleted)
{
    QEnterEvent enter(QPointF(3, 4), QPointF(3, 4), QPointF(3, 4));
    QEvent leave(QEvent::Leave);
    valuesOf = [](qint64 event) {
        const QPointF place = event == 2006 ? static_cast<QEnterEvent *>(CUI_EventEvent())->position() : QPointF();
        return QString::asprintf("%g:%g", place.x(), place.y());
    };
    QApplication::sendEvent(m_view, &enter);
    QApplication::sendEvent(m_view, &leave);
    EXPECT_TRUE(dialogCalls.isEmpty());
    atEvent = [this](qint64 event) {
        if (event == viewEventMouseExited) {
            delete m_view;
        }
    };
    EXPECT_EQ(takeSiteCalls(), u"2006 5 7 3:4, 2007 5 7 0:0"_qs);
    EXPECT_FALSE(m_view);
}

TEST_F(ViewSite, DrawsTheDirtyPartOrUpdatesItsLayer)
{
    bool wantsLayer = false;
    valuesOf = [](qint64) {
        const QRectF rect = CUI_DialogEventObj()->rectVal;
        return QString::asprintf("%g,%g,%g,%g", rect.x(), rect.y(), rect.width(), rect.height());
    };
    atEvent = [&](qint64 event) {
        if (event == viewEventDraw) {
            QPainter(m_view).fillRect(CUI_DialogEventObj()->rectVal, Qt::red);
        }
        answer(event == viewEventWantsUpdateLayer && wantsLayer);
    };
    m_view->repaint(5, 6, 20, 10);
    EXPECT_EQ(std::exchange(dialogCalls, {}).constLast(), u"2000 5 7 5,6,20,10"_qs);
    EXPECT_EQ(lastObject, 0);
    EXPECT_EQ(m_view->grab().toImage().pixelColor(50, 40), QColor(Qt::red));
    takeSiteCalls();
    wantsLayer = true;
    m_view->repaint();
    EXPECT_EQ(dialogCalls.size(), 2);
    EXPECT_TRUE(dialogCalls.constFirst().startsWith(u"2027"_qs) && dialogCalls.constLast().startsWith(u"2028"_qs));
}

TEST_F(ViewSite, TakesTheKeyboardOnlyWhenTheProgramLetsIt)
{
    for (const bool lets : {false, true}) {
        atEvent = [lets](qint64 event) { answer(lets && event == viewEventAcceptsFirstResponder); };
        QTest::mouseClick(m_view, Qt::LeftButton);
        EXPECT_EQ(m_view->hasFocus(), lets);
        EXPECT_EQ(takeSiteCodes(), u"2001 2002 2004"_qs);
    }
    m_view->clearFocus();
    ViewSC *const second = makeView(6);
    Tag accepts = 6;
    atEvent = [&](qint64) { answer(dialogCalls.constLast() == u"2001 %1 7"_qs.arg(accepts)); };
    m_view->setFocus(Qt::TabFocusReason);
    takeSiteCalls();
    EXPECT_TRUE(second->hasFocus()) << "Tab passes by views that refuse";
    accepts = 0;
    m_view->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(takeSiteCalls(), u"2001 5 7, 2001 6 7"_qs);
    EXPECT_FALSE(m_view->hasFocus() || second->hasFocus());
}

TEST_F(ViewSite, TellsOfCursorAppearanceAndLoading)
{
    m_view->resize(60, 60);
    EXPECT_EQ(takeSiteCalls(), u"2015 5 7"_qs);
    m_view->setPalette(QPalette(Qt::green));
    EXPECT_EQ(takeSiteCalls(), u"2025 5 7"_qs);
    m_view->awakeFromNib();
    EXPECT_EQ(takeSiteCalls(), u"2029 5 7"_qs);
}

TEST_F(ViewSite, PopsUpTheMenuThatTheProgramLeavesInTheRecord)
{
    QMenu own;
    QMenu other;
    own.addAction(u"a"_qs);
    other.addAction(u"b"_qs);
    m_view->setMenu(&own);
    const Table<bool, QMenu *> rows = {
        {"the view's own", false, &own}, {"another", false, &other}, {"none", true, &own}};
    for (const auto &[name, handled, menu] : rows) {
        SCOPED_TRACE(name);
        atEvent = [&own, isHandled = handled, left = menu](qint64 event) {
            if (event == viewEventMenu) {
                EXPECT_EQ(CUI_DialogEventObj()->menuObj, &own);
                CUI_DialogEventObj()->menuObj = left;
                answer(isHandled);
            }
        };
        askForMenu(m_view);
        EXPECT_EQ(own.isVisible(), !handled && menu == &own);
        EXPECT_EQ(other.isVisible(), menu == &other);
        own.close();
        other.close();
    }
}

TEST_F(ViewSite, DragsAreReportedThatOfferAnAskedForType)
{
    QMimeData text;
    text.setText(u"t"_qs);
    QMimeData files;
    files.setUrls({QUrl(u"file:///a"_qs)});
    m_view->setDraggedTypes({u"text/uri-list"_qs});
    valuesOf = [](qint64) { return QVariant(CUI_DialogEventObj()->arrayObj).toStringList().join(u'|'); };
    for (const QMimeData *data : {&text, &files}) {
        QDragEnterEvent enter(QPoint(2, 3), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(m_view, &enter);
        EXPECT_EQ(enter.isAccepted(), data == &files);
    }
    EXPECT_EQ(takeSiteCalls(), u"2016 5 7 file:///a"_qs);
    for (const bool takes : {false, true}) {
        atEvent = [takes](qint64) { answer(takes); };
        QDragEnterEvent enter(QPoint(2, 3), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_view, &enter);
        QDropEvent drop(QPoint(2, 3), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_view, &drop);
        EXPECT_EQ(drop.isAccepted(), takes);
        EXPECT_EQ(CUI_DialogEventObj()->pointVal, QPointF(2, 3));
        EXPECT_EQ(takeSiteCodes(), u"2016 2022"_qs);
    }
}

TEST_F(ViewSite, InAPopoverReportsThePopoversTag)
{
    CUI_Popover(9, QSizeF(80, 60), popoverApplicationDefined);
    PopoverShow(9, contentViewTag, QRectF(), Qt::TopEdge);
    auto *const inner = new ViewSC(CUI_PopoverWithTag(9)->contentView());
    inner->setObjectName(u"8"_qs);
    inner->show();
    takeSiteCalls();
    CUI_OutputWindowSetTag(7);
    QTest::mousePress(inner, Qt::LeftButton);
    EXPECT_EQ(takeSiteCalls(), u"2001 8 9, 2002 8 9"_qs);
    EXPECT_EQ(CUI_OutputWindowTag(), 9);
    delete CUI_PopoverWithTag(9);
}

} // namespace
