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

namespace tetrad {

namespace {

using namespace testing_helpers;

class ViewSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        CUI_ViewSubclass(5, QRectF(10, 10, 100, 80));
        m_view = settled<ViewSC>(5);
    }

    ViewSC *m_view = nullptr;
};

void move(QWidget *view, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    const QPointF place(20, 30);
    QMouseEvent event(type, place, view->mapToGlobal(place), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(view, &event);
}

void key(QWidget *view, QEvent::Type type, Qt::Key code)
{
    QKeyEvent event(type, code, Qt::NoModifier, QStringLiteral("x"));
    QApplication::sendEvent(view, &event);
}

struct Happening
{
    const char *name;
    qint64 code;
    std::function<void(QWidget *)> happen;
};

const QList<Happening> &happenings()
{
    static const QList<Happening> all = {
        {"left down", 2002, [](QWidget *v) { QTest::mousePress(v, Qt::LeftButton); }},
        {"left drag", 2003, [](QWidget *v) { move(v, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton); }},
        {"left up", 2004, [](QWidget *v) { QTest::mouseRelease(v, Qt::LeftButton); }},
        {"move", 2005, [](QWidget *v) { move(v, QEvent::MouseMove, Qt::NoButton, Qt::NoButton); }},
        {"right down", 2008, [](QWidget *v) { QTest::mousePress(v, Qt::RightButton); }},
        {"right drag", 2009, [](QWidget *v) { move(v, QEvent::MouseMove, Qt::NoButton, Qt::RightButton); }},
        {"right up", 2010, [](QWidget *v) { QTest::mouseRelease(v, Qt::RightButton); }},
        {"key down", 2011, [](QWidget *v) { key(v, QEvent::KeyPress, Qt::Key_A); }},
        {"Tab down", 2011, [](QWidget *v) { key(v, QEvent::KeyPress, Qt::Key_Tab); }},
        {"key up", 2012, [](QWidget *v) { key(v, QEvent::KeyRelease, Qt::Key_A); }},
        {"Shift down", 2013, [](QWidget *v) { key(v, QEvent::KeyPress, Qt::Key_Shift); }},
        {"Shift up", 2013, [](QWidget *v) { key(v, QEvent::KeyRelease, Qt::Key_Shift); }},
        {"double click", 2002,
         [](QWidget *v) { move(v, QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton); }},
        {"menu", 2026,
         [](QWidget *v) {
             QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
             QApplication::sendEvent(v, &event);
         }},
    };
    return all;
}

TEST_F(ViewSite, EveryEventCarriesItsCodeTagsAndPlatformEvent)
{
    m_view->setFocus();
    takeSiteCalls();
    for (const Happening &row : happenings()) {
        SCOPED_TRACE(row.name);
        bool isCurrent = false;
        atEvent = [&isCurrent](qint64 event) {
            isCurrent = event != viewEventAcceptsFirstResponder && CUI_EventEvent() == eventFromTag(lastObject);
        };
        CUI_OutputWindowSetTag(0);
        row.happen(m_view);
        EXPECT_EQ(takeSiteCalls(), std::to_string(row.code) + " 5 7");
        EXPECT_TRUE(isCurrent);
        EXPECT_EQ(CUI_OutputWindowTag(), 7);
        EXPECT_FALSE(CUI_EventEvent());
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
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::KeyPress}) {
            listener.seen.clear();
            type == QEvent::KeyPress ? key(m_view, type, Qt::Key_A)
                                     : move(m_view, type, Qt::LeftButton, Qt::LeftButton);
            EXPECT_EQ(listener.seen.contains(type), !handles) << type;
        }
    }
}

TEST_F(ViewSite, SurvivesBeingDeletedByEveryEventItReports)
{
    for (const Happening &row : happenings()) {
        SCOPED_TRACE(row.name);
        CUI_ViewSubclass(6, QRectF(0, 100, 50, 50));
        QPointer<ViewSC> victim = settled<ViewSC>(6);
        atEvent = [&](qint64 event) {
            if (event == row.code) {
                delete victim;
            }
        };
        row.happen(victim);
        EXPECT_TRUE(siteCalls.contains(u"%1 6 7"_qs.arg(row.code)));
        EXPECT_FALSE(victim);
        atEvent = nullptr;
    }
}

TEST_F(ViewSite, TellsThatTheMouseCameAndWentWhenItMayBeDeleted)
{
    QEnterEvent enter(QPointF(3, 4), QPointF(3, 4), QPointF(3, 4));
    QEvent leave(QEvent::Leave);
    valuesOf = [](qint64 event) {
        const QPointF place = event == 2006 ? static_cast<QEnterEvent *>(CUI_EventEvent())->position() : QPointF();
        return QString::asprintf("%g,%g", place.x(), place.y());
    };
    QApplication::sendEvent(m_view, &enter);
    QApplication::sendEvent(m_view, &leave);
    EXPECT_TRUE(siteCalls.isEmpty());
    const QPointer<ViewSC> guard(m_view);
    atEvent = [this](qint64 event) {
        if (event == viewEventMouseExited) {
            delete m_view;
        }
    };
    EXPECT_EQ(takeSiteCalls(), "2006 5 7 3,4, 2007 5 7 0,0");
    EXPECT_FALSE(guard);
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
    EXPECT_EQ(std::exchange(siteCalls, {}).constLast(), u"2000 5 7 5,6,20,10"_qs);
    EXPECT_EQ(lastObject, 0);
    EXPECT_EQ(m_view->grab().toImage().pixelColor(50, 40), QColor(Qt::red));
    takeSiteCalls();
    wantsLayer = true;
    m_view->repaint();
    EXPECT_EQ(siteCalls.size(), 2);
    EXPECT_TRUE(siteCalls.constFirst().startsWith(u"2027"_qs) && siteCalls.constLast().startsWith(u"2028"_qs));
}

TEST_F(ViewSite, TakesTheKeyboardOnlyWhenTheProgramLetsIt)
{
    for (const bool lets : {false, true}) {
        atEvent = [lets](qint64 event) { answer(lets && event == viewEventAcceptsFirstResponder); };
        QTest::mouseClick(m_view, Qt::LeftButton);
        EXPECT_EQ(m_view->hasFocus(), lets);
        EXPECT_EQ(takeSiteCodes(), "2001 2002 2004");
    }
}

TEST_F(ViewSite, TabPassesByViewsThatRefuseTheKeyboard)
{
    CUI_ViewSubclass(6, QRectF(0, 100, 50, 50));
    auto *const second = settled<ViewSC>(6);
    Tag accepts = 6;
    valuesOf = [](qint64) { return QString(); };
    atEvent = [&](qint64) { answer(siteCalls.constLast() == u"2001 %1 7"_qs.arg(accepts)); };
    m_view->setFocus(Qt::TabFocusReason);
    takeSiteCalls();
    EXPECT_TRUE(second->hasFocus());
    accepts = 0;
    m_view->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(takeSiteCalls(), "2001 5 7, 2001 6 7");
    EXPECT_FALSE(m_view->hasFocus() || second->hasFocus());
}

TEST_F(ViewSite, TellsOfCursorAppearanceAndLoading)
{
    m_view->resize(60, 60);
    EXPECT_EQ(takeSiteCalls(), "2015 5 7");
    m_view->setPalette(QPalette(Qt::green));
    EXPECT_EQ(takeSiteCalls(), "2025 5 7");
    m_view->awakeFromNib();
    EXPECT_EQ(takeSiteCalls(), "2029 5 7");
}

TEST_F(ViewSite, PopsUpTheMenuThatTheProgramLeavesInTheRecord)
{
    struct Row
    {
        const char *name;
        bool handled;
        bool replaced;
    };
    QMenu own;
    QMenu other;
    own.addAction(u"a"_qs);
    other.addAction(u"b"_qs);
    m_view->setMenu(&own);
    for (const Row &row :
         {Row{"the view's own", false, false}, Row{"another", false, true}, Row{"none", true, false}}) {
        SCOPED_TRACE(row.name);
        atEvent = [&](qint64 event) {
            if (event == viewEventMenu) {
                EXPECT_EQ(CUI_DialogEventObj()->menuObj, &own);
                CUI_DialogEventObj()->menuObj = row.replaced ? &other : &own;
                answer(row.handled);
            }
        };
        happenings().constLast().happen(m_view);
        EXPECT_EQ(own.isVisible(), !row.handled && !row.replaced);
        EXPECT_EQ(other.isVisible(), row.replaced);
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
    EXPECT_EQ(takeSiteCalls(), "2016 5 7 file:///a");
    for (const bool takes : {false, true}) {
        atEvent = [takes](qint64) { answer(takes); };
        QDragEnterEvent enter(QPoint(2, 3), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_view, &enter);
        QDropEvent drop(QPoint(2, 3), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_view, &drop);
        EXPECT_EQ(drop.isAccepted(), takes);
        EXPECT_EQ(CUI_DialogEventObj()->pointVal, QPointF(2, 3));
        EXPECT_EQ(takeSiteCodes(), "2016 2022");
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
    EXPECT_EQ(takeSiteCalls(), "2001 8 9, 2002 8 9");
    EXPECT_EQ(CUI_OutputWindowTag(), 9);
    delete CUI_PopoverWithTag(9);
}

} // namespace

} // namespace tetrad
