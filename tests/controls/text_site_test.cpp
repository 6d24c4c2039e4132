#include "runtime/controls/text_view.h"
#include "tests/controls/site_helper.h"

#include <QClipboard>
#include <QMenu>

namespace tetrad {

namespace {

using namespace testing_helpers;

/// Text view 6 with "one two", the cursor after "one".
class TextSite : public SiteTest
{
protected:
    void SetUp() override
    {
        SiteTest::SetUp();
        makeText();
    }

    void makeText()
    {
        valuesOf = nullptr;
        CUI_TextView(6, u"one two"_qs, QRectF(0, 0, 200, 100));
        m_text = settled<TextView>(6);
        m_text->setFocus();
        m_text->setPlainText(u"one two"_qs);
        select(3, 3);
        takeSiteCalls();
        valuesOf = [](qint64 event) {
            const CUI_DialogEvent &record = *CUI_DialogEventObj();
            const QString range = QString::asprintf("%llu+%llu", record.rangeVal.location, record.rangeVal.length);
            return event == textViewEventRefuseChange       ? QString(range + u'=' + record.stringObj)
                   : event == textViewEventSelectionChanged ? range
                                                            : QString();
        };
    }

    void select(int from, int to)
    {
        QTextCursor cursor = m_text->textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        m_text->setTextCursor(cursor);
    }

    QPointer<TextView> m_text;
};

TEST_F(TextSite, EveryChangeByTheUserIsAskedAbout)
{
    struct Row
    {
        const char *name;
        int from;
        int to;
        std::function<void(TextView *)> act;
        const char *question;
        const char *result;
    };
    const auto key = [](Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
        return [code, modifiers](TextView *view) { QTest::keyClick(view, code, modifiers); };
    };
    const Row rows[] = {
        {"typing", 3, 3, [](TextView *view) { QTest::keyClicks(view, u"x"_qs); }, "3+0=x", "onex two"},
        {"over a selection", 0, 3, [](TextView *view) { QTest::keyClicks(view, u"x"_qs); }, "0+3=x", "x two"},
        {"Return", 3, 3, key(Qt::Key_Return), "3+0=\n", "one\n two"},
        {"Backspace", 3, 3, key(Qt::Key_Backspace), "2+1=", "on two"},
        {"Delete", 3, 3, key(Qt::Key_Delete), "3+1=", "onetwo"},
        {"Delete of a selection", 0, 4, key(Qt::Key_Delete), "0+4=", "two"},
        {"word before", 3, 3, key(Qt::Key_Backspace, Qt::ControlModifier), "0+3=", " two"},
        {"Cut key", 0, 3, key(Qt::Key_X, Qt::ControlModifier), "0+3=", " two"},
        {"Cut command", 0, 3, [](TextView *view) { QMetaObject::invokeMethod(view, "cut"); }, "0+3=", " two"},
        {"Delete command", 0, 3, [](TextView *view) { QMetaObject::invokeMethod(view, "del"); }, "0+3=", " two"},
        {"Paste", 3, 3,
         [](TextView *view) {
             QGuiApplication::clipboard()->setText(u"ab"_qs);
             QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
         },
         "3+0=ab", "oneab two"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        for (const bool refuses : {true, false}) {
            makeText();
            select(row.from, row.to);
            takeSiteCalls();
            atEvent = [refuses](qint64 event) { answer(refuses && event == textViewEventRefuseChange); };
            row.act(m_text);
            EXPECT_EQ(siteCalls.value(0), u"2100 6 7 "_qs + QLatin1StringView(row.question));
            EXPECT_EQ(TextViewString(6), refuses ? u"one two"_qs : QString::fromLatin1(row.result));
            const std::string codes = takeSiteCodes();
            EXPECT_EQ(codes.find("2101") == std::string::npos, refuses) << codes;
        }
    }
}

TEST_F(TextSite, SelectionAndEditingAreTold)
{
    select(0, 3);
    EXPECT_EQ(takeSiteCalls(), "2102 6 7 0+3");
    QTest::keyClick(m_text, Qt::Key_Right);
    EXPECT_EQ(takeSiteCalls(), "2102 6 7 3+0") << "moving changes nothing";
    m_text->clearFocus();
    EXPECT_EQ(takeSiteCalls(), "2104 6 7");
    m_text->setFocus();
    EXPECT_EQ(takeSiteCalls(), "2103 6 7");
    EXPECT_EQ(CUI_OutputWindowTag(), 7);
}

TEST_F(TextSite, TheContextMenuCutsOnlyWithLeave)
{
    select(0, 3);
    takeSiteCalls();
    atEvent = [](qint64) { answer(true); };
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(m_text->viewport(), &event);
    auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    for (const QString &name : {u"edit-cut"_qs, u"edit-delete"_qs}) {
        auto *const action = menu->findChild<QAction *>(name);
        ASSERT_TRUE(action) << qUtf8Printable(name);
        action->trigger();
        EXPECT_EQ(siteCalls.value(0), u"2100 6 7 0+3="_qs);
        EXPECT_EQ(TextViewString(6), u"one two"_qs);
        takeSiteCalls();
    }
    menu->close();
}

TEST_F(TextSite, SurvivesBeingDeletedAtEveryEvent)
{
    for (const qint64 deadly : {2100, 2101, 2102, 2103, 2104}) {
        atEvent = [&](qint64 event) {
            if (event == deadly) {
                delete m_text;
            }
        };
        QTest::keyPress(m_text, Qt::Key_X);
        takeSiteCalls();
        if (m_text) {
            select(0, 2);
            takeSiteCalls();
        }
        if (m_text) {
            m_text->clearFocus();
            m_text->setFocus();
            takeSiteCalls();
        }
        EXPECT_FALSE(m_text) << deadly;
        atEvent = nullptr;
        makeText();
    }
}

} // namespace

} // namespace tetrad
