#include "tests/controls/site_helper.h"
#include <tetrad/controls/text_view.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

void select(TextViewSC *view, int from, int to)
{
    QTextCursor cursor = view->textCursor();
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    view->setTextCursor(cursor);
}

class TextSite : public SiteTest
{
protected:
    /// Text view 6 with "one two", a part of it selected.
    TextViewSC *makeText(int from = 3, int to = 3)
    {
        CUI_TextView(6, u"one two"_s, QRectF(0, 0, 200, 100));
        auto *const text = settled<TextViewSC>(6);
        text->setFocus();
        text->setPlainText(u"one two"_s);
        select(text, from, to);
        takeSiteCalls();
        valuesOf = [](qint64 event) {
            const CUI_DialogEvent &record = *CUI_DialogEventObj();
            const QString range = QString::asprintf("%llu+%llu", record.rangeVal.location, record.rangeVal.length);
            return event == textViewEventRefuseChange       ? QString(range + u'=' + record.stringObj)
                   : event == textViewEventSelectionChanged ? range
                                                            : QString();
        };
        return text;
    }
};

TEST_F(TextSite, EveryChangeByTheUserIsAskedAbout)
{
    using Act = std::function<void(TextViewSC *)>;
    const auto key = [](Qt::Key code, Qt::KeyboardModifiers modifiers = {}) -> Act {
        return [code, modifiers](TextViewSC *view) { QTest::keyClick(view, code, modifiers); };
    };
    const Act typing = [](TextViewSC *view) { QTest::keyClicks(view, u"x"_s); };
    const Act menuCut = [](TextViewSC *view) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(view->viewport(), &event);
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        menu->actions().at(3)->trigger();
        menu->close();
        view->activateWindow();
    };
    QGuiApplication::clipboard()->setText(u"ab"_s);
    const Table<int, int, Act, QString, QString> rows = {
        {"typing", 3, 3, typing, u"3+0=x"_s, u"onex two"_s},
        {"over a selection", 0, 3, typing, u"0+3=x"_s, u"x two"_s},
        {"Return", 3, 3, key(Qt::Key_Return), u"3+0=\n"_s, u"one\n two"_s},
        {"Backspace", 3, 3, key(Qt::Key_Backspace), u"2+1="_s, u"on two"_s},
        {"Delete", 3, 3, key(Qt::Key_Delete), u"3+1="_s, u"onetwo"_s},
        {"Delete of a selection", 0, 4, key(Qt::Key_Delete), u"0+4="_s, u"two"_s},
        {"word before", 3, 3, key(Qt::Key_Backspace, Qt::ControlModifier), u"0+3="_s, u" two"_s},
        {"Paste", 3, 3, key(Qt::Key_V, Qt::ControlModifier), u"3+0=ab"_s, u"oneab two"_s},
        {"Cut in the menu", 0, 3, menuCut, u"0+3="_s, u" two"_s},
        {"Cut key", 0, 3, key(Qt::Key_X, Qt::ControlModifier), u"0+3="_s, u" two"_s},
    };
    for (const auto &[name, from, to, act, question, result] : rows) {
        SCOPED_TRACE(name);
        for (const bool refuses : {true, false}) {
            TextViewSC *const text = makeText(from, to);
            atEvent = [refuses](qint64 event) { answer(refuses && event == textViewEventRefuseChange); };
            act(text);
            EXPECT_EQ(dialogCalls.value(0), u"2100 6 7 "_s + question);
            EXPECT_EQ(TextViewString(6), refuses ? u"one two"_s : result);
            EXPECT_EQ(takeSiteCodes().contains(u"2101"_s), !refuses);
        }
    }
}

TEST_F(TextSite, SelectionAndEditingAreTold)
{
    TextViewSC *const text = makeText();
    select(text, 0, 3);
    EXPECT_EQ(takeSiteCalls(), u"2102 6 7 0+3"_s);
    QTest::keyClick(text, Qt::Key_Right);
    EXPECT_EQ(takeSiteCalls(), u"2102 6 7 3+0"_s) << "moving changes nothing";
    text->clearFocus();
    EXPECT_EQ(takeSiteCalls(), u"2104 6 7"_s);
    text->setFocus();
    EXPECT_EQ(takeSiteCalls(), u"2103 6 7"_s);
    EXPECT_EQ(CUI_OutputWindowTag(), 7);
}

TEST_F(TextSite, SurvivesBeingDeletedAtEveryEvent)
{
    expectSurvival<TextViewSC>(
        {2100, 2101, 2102, 2103, 2104}, [this] { return makeText(); },
        {[](TextViewSC *view) { QTest::keyPress(view, Qt::Key_X); }, [](TextViewSC *view) { select(view, 0, 2); },
         [](TextViewSC *view) { view->clearFocus(); }, [](TextViewSC *view) { view->setFocus(); }});
}

} // namespace
