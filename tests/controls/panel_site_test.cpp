#include "tests/controls/site_helper.h"
#include <tetrad/app/content_view.h>
#include <tetrad/app/popover.h>
#include <tetrad/controls/panels.h>
#include <tetrad/controls/popovers.h>
#include <tetrad/controls/toolbar.h>

#include <QAction>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolBar>

#include <algorithm>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

class PopoverSite : public SiteTest
{
protected:
    void TearDown() override
    {
        SiteTest::TearDown();
        delete CUI_PopoverWithTag(9);
    }

    static Popover *makePopover()
    {
        CUI_Popover(9, QSizeF(80, 60), popoverApplicationDefined);
        PopoverSetAsks(9, true);
        return CUI_PopoverWithTag(9);
    }
    static void show() { PopoverShow(9, contentViewTag, QRectF(0, 0, 5, 5), Qt::BottomEdge); }
    static void drag(Popover *popover) { dragMouse(popover->contentView(), QPoint(10, 10), QPoint(60, 50)); }
};

TEST_F(PopoverSite, TellsWhenItShowsAndCloses)
{
    const Popover *const popover = makePopover();
    show();
    EXPECT_EQ(takeSiteCalls(), u"1302 9 9, 1303 9 9"_s);
    PopoverClose(9);
    EXPECT_EQ(takeSiteCalls(), u"1301 9 9"_s);
    EXPECT_TRUE(popover->isVisible()) << "the preset answer is no";
    atEvent = [](qint64 event) { answer(event == popoverEventShouldClose); };
    PopoverClose(9);
    EXPECT_EQ(takeSiteCalls(), u"1301 9 9, 1304 9 9, 1305 9 9"_s);
    EXPECT_FALSE(popover->isVisible());
    EXPECT_EQ(CUI_OutputWindowTag(), 9);
    PopoverRemove(9);
    EXPECT_EQ(CUI_PopoverWithTag(9), nullptr);
}

TEST_F(PopoverSite, IsDraggedOffAsAWindowOrGivesWayToOne)
{
    QWidget window;
    const Table<bool, QWidget *, QString> rows = {{"refused", false, nullptr, u"1307 9 9"_s},
                                                  {"another window", true, &window, u"1307 9 9, 1300 9 9, 1306 9 9"_s},
                                                  {"itself", true, nullptr, u"1307 9 9, 1300 9 9, 1306 9 9"_s}};
    for (const auto &[name, lets, other, calls] : rows) {
        SCOPED_TRACE(name);
        Popover *const popover = makePopover();
        show();
        takeSiteCalls();
        atEvent = [yes = lets, given = other](qint64 event) {
            answer(yes);
            if (event == popoverEventDetachableWindow && given) {
                CUI_DialogEventObj()->viewObj = given;
            }
        };
        const QWidget *const dragged = other ? other : popover;
        const QPoint before = dragged->pos();
        drag(popover);
        EXPECT_EQ(takeSiteCalls(), calls);
        if (lets && !other) {
            show();
            drag(popover);
            EXPECT_TRUE(takeSiteCalls().endsWith(calls)) << "again, once it is shown at a view again";
        }
        EXPECT_NE(popover->isVisible(), window.isVisible());
        EXPECT_TRUE(dragged->isVisible());
        EXPECT_EQ(dragged->pos() == before, !lets);
        window.hide();
        atEvent = nullptr;
        delete popover;
    }
}

TEST_F(PopoverSite, SurvivesBeingDeletedAtEveryEvent)
{
    const auto appear = [](Popover *) { show(); };
    const auto close = [](Popover *) { PopoverClose(9); };
    const auto yes = [](qint64) { answer(true); };
    expectSurvival<Popover>({1301, 1302, 1304, 1305}, makePopover, {appear, close}, yes);
    expectSurvival<Popover>({1300, 1306, 1307}, makePopover, {appear, drag}, yes);
}

using ToolbarSite = SiteTest;

TEST_F(ToolbarSite, ClicksAreToldAndItemsValidatedWhenAsked)
{
    QToolBar *const toolbar = CUI_Toolbar(3);
    QAction *const item = CUI_ToolbarAddItem(3, 8, u"Go"_s);
    takeSiteCalls();
    QTest::mouseClick(toolbar->widgetForAction(item), Qt::LeftButton);
    EXPECT_EQ(takeSiteCalls(), u"1900 8 7"_s);
    EXPECT_EQ(lastObject, tagFromObject(item));
    for (const bool enabled : {true, false}) {
        atEvent = [enabled](qint64 event) { answer(event == toolbarEventValidateItem && enabled); };
        ToolbarItemSetValidates(3, 8, true);
        QTest::mouseClick(m_content, Qt::LeftButton);
        EXPECT_TRUE(takeSiteCalls().startsWith(u"1901 8 7"_s));
        EXPECT_EQ(item->isEnabled(), enabled);
    }
    const auto yes = [](qint64) { answer(true); };
    const auto make = [yes] {
        atEvent = yes;
        QAction *const fresh = CUI_ToolbarAddItem(3, 9, u"Go"_s);
        ToolbarItemSetValidates(3, 9, true);
        takeSiteCalls();
        return fresh;
    };
    const auto click = [&](QAction *fresh) { QTest::mouseClick(toolbar->widgetForAction(fresh), Qt::LeftButton); };
    expectSurvival<QAction>({1900, 1901}, make, {click}, yes);
}

using PanelSite = SiteTest;

TEST_F(PanelSite, ColoursAndFontsAreToldAsTheyAreChosen)
{
    valuesOf = [](qint64 event) {
        const CUI_DialogEvent &record = *CUI_DialogEventObj();
        return event == colorPanelEventAction ? record.colorObj.name() : QString::number(record.fontObj.pointSize());
    };
    QColorDialog *const colors = CUI_ColorPanel(Qt::red);
    takeSiteCalls();
    colors->setCurrentColor(Qt::blue);
    EXPECT_EQ(takeSiteCalls(), u"2600 0 7 #0000ff"_s);
    EXPECT_EQ(lastObject, tagFromObject(colors));
    expectSurvival<QColorDialog>({2600}, [] { return CUI_ColorPanel(Qt::red); },
                                 {[](QColorDialog *dialog) { dialog->setCurrentColor(Qt::green); }});

    QFont font = QApplication::font();
    font.setPointSize(10);
    QFontDialog *const fonts = CUI_FontPanel(font);
    takeSiteCalls();
    font.setPointSize(14);
    fonts->setCurrentFont(font);
    EXPECT_TRUE(takeSiteCalls().endsWith(u"2200 0 7 14"_s));
    const QWidgetList panels = {CUI_ColorPanel(Qt::red), fonts};
    QTimer::singleShot(0, m_content, [&panels] {
        for (QWidget *panel : panels) {
            const auto buttons = panel->findChildren<QAbstractButton *>();
            const auto inside = std::ranges::find_if(buttons, [](auto *each) { return each->isVisible(); });
            const QSignalSpy pressed(*inside, &QAbstractButton::pressed);
            QTest::mousePress(panel->windowHandle(), Qt::LeftButton, {}, (*inside)->mapTo(panel, QPoint(5, 5)));
            EXPECT_EQ(pressed.count(), 1) << "in a modal run";
            panel->hide();
        }
        abortModal();
    });
    runModalForWindow(m_content->window());
}

TEST_F(PanelSite, FilesAreOpenedAndSavedAsTheProgramAnswers)
{
    const QTemporaryDir folder;
    for (const auto &name : {u"a.txt"_s, u"b.txt"_s, u"c.csv"_s}) {
        EXPECT_TRUE(QFile(folder.filePath(name)).open(QFile::WriteOnly));
    }
    valuesOf = [](qint64 event) {
        const CUI_DialogEvent &record = *CUI_DialogEventObj();
        return event == filePanelEventUserEnteredName ? record.stringObj : record.urlObj.fileName();
    };
    atEvent = [](qint64 event) {
        CUI_DialogEvent &record = *CUI_DialogEventObj();
        answer(record.urlObj.fileName() != u"a.txt");
        record.stringObj.replace(u"no"_s, event == filePanelEventUserEnteredName ? QString() : u"no"_s);
    };
    const Table<decltype(&CUI_OpenPanel), bool, QString, QString, QString> rows = {
        {"opened", CUI_OpenPanel, false, u"b.txt"_s, u"b.txt"_s, {}},
        {"opened, asked", CUI_OpenPanel, true, u"b.txt"_s, u"b.txt"_s, u"2906 9 7 b.txt"_s},
        {"refused", CUI_OpenPanel, true, u"a.txt"_s, {}, u"2906 9 7 a.txt"_s},
        {"another folder", CUI_OpenPanel, false, u"/"_s, {}, u"2903 9 7"_s},
        {"saved, with an ending", CUI_SavePanel, false, u"d"_s, u"d.txt"_s, u"2901 9 7 d.txt"_s},
        {"named by the program", CUI_SavePanel, true, u"nod"_s, u"d.txt"_s, u"2901 9 7 nod.txt, 2906 9 7 d.txt"_s},
        {"without a name", CUI_SavePanel, false, u"no.txt"_s, u".txt"_s, u"2901 9 7 no.txt"_s},
    };
    for (const auto &[name, statement, asks, typed, chosen, calls] : rows) {
        SCOPED_TRACE(name);
        FilePanelSetAsks(9, asks);
        whenRuns<QFileDialog>([&, text = typed, expected = calls](QFileDialog *panel) {
            EXPECT_EQ(CUI_OpenPanel(9, {}, {}, {}), QString()) << "one at a time";
            auto *const field = panel->findChild<QLineEdit *>();
            takeSiteCalls();
            if (asks) {
                const auto *const list = panel->findChild<QListView *>(u"listView"_s);
                const auto file = [list](int row) { return list->model()->index(row, 0, list->rootIndex()); };
                EXPECT_TRUE(
                    QTest::qWaitFor([&] { return file(1).isValid() && !(file(0).flags() & Qt::ItemIsEnabled); }));
                list->selectionModel()->setCurrentIndex(file(1), QItemSelectionModel::Select);
                EXPECT_TRUE(takeSiteCalls().contains(u"2902 9 7 b.txt"_s));
            }
            field->setText(text);
            QTest::keyClick(field, Qt::Key_Return);
            EXPECT_EQ(takeSiteCalls(), expected);
            panel->reject();
        });
        const QString path = statement(9, u"Choose"_s, folder.path(), u"txt;md"_s);
        EXPECT_EQ(path, chosen.isEmpty() ? QString() : folder.filePath(chosen));
    }
    FilePanelSetAsks(9, true);
    for (const qint64 dangerous : {2901, 2905, 2906}) {
        atEvent = [dangerous](qint64 event) {
            answer(true);
            delete (event == dangerous ? objectFromTag(lastObject) : nullptr);
        };
        whenRuns<QFileDialog>([dangerous](QFileDialog *panel) {
            QTest::keyClick(panel, dangerous == 2905 ? Qt::Key_Shift : Qt::Key_Return);
        });
        EXPECT_EQ(CUI_SavePanel(9, {}, folder.filePath(u"e"_s), {}), QString()) << dangerous;
    }
}

} // namespace
