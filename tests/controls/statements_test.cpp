#include "tests/controls/site_helper.h"

#include <QDateEdit>
#include <QFileDialog>
#include <QListView>
#include <QTemporaryDir>

using namespace tetrad;

namespace {

using Statements = SiteTest;

TEST_F(Statements, EveryControlHasItsValuesAndOneAction)
{
    makeControls();
    CUI_RadioButton(11, u"One"_s, QRectF(0, 160, 90, 20));
    CUI_RadioButton(12, u"Two"_s, QRectF(0, 180, 90, 20));
    CUI_Stepper(13, 1.5, 0, 9, 0.25, QRectF(100, 160, 90, 30));
    CUI_ComboBox(14, u"grey"_s, {u"red"_s, u"green"_s}, QRectF(200, 160, 90, 30));
    CUI_DateField(15, QDate(2024, 2, 28), QRectF(200, 10, 95, 30));
    CUI_ProgressIndicator(16, 3, 0, 10, QRectF(200, 90, 90, 20));
    CUI_TextLabel(17, u"9 lives"_s, QRectF(230, 130, 60, 20));
    const auto press = [](Tag tag, Qt::Key key) { return [=] { QTest::keyClick(ControlWithTag(tag), key); }; };
    const auto click = [] { QTest::mouseClick(ControlWithTag(2), Qt::LeftButton, {}, QPoint(8, 15)); };
    const auto clickSegment = [] { QTest::mouseClick(ControlWithTag(6)->childAt(50, 15), Qt::LeftButton); };
    const auto confirm = [] { QTest::keyClick(ControlWithTag(14)->findChild<QLineEdit *>(), Qt::Key_Return); };
    const auto chooseDate = [] { qobject_cast<QDateEdit *>(ControlWithTag(15))->setDate({2025, 2, 28}); };
    // Only what the user does is reported.
    const Table<Tag, bool, std::function<void()>, double, QString> rows = {
        {"check box", 2, true, click, 1, u"Box"_s},
        {"slider", 3, true, press(3, Qt::Key_Right), 6, {}},
        {"text field", 4, true, press(4, Qt::Key_Return), 12, u"12 apples"_s},
        {"pop-up button", 5, true, press(5, Qt::Key_Down), 1, u"b"_s},
        {"segmented control", 6, true, clickSegment, 1, {}},
        {"radio button", 11, true, press(11, Qt::Key_Space), 1, u"One"_s},
        {"stepper", 13, true, press(13, Qt::Key_Up), 1.75, u"1.75"_s},
        {"combo box", 14, true, confirm, -1, u"grey"_s},
        {"date field", 15, true, chooseDate, 0, u"2025-02-28"_s},
        {"pop-up button by its statement", 5, false, [] { CUI_PopUpButton(5, {}, 0, {}); }, 0, u"a"_s},
        {"segmented control by its statement", 6, false, [] { CUI_SegmentedControl(6, {}, 0, {}); }, 0, {}},
        {"radio buttons exclude each other", 11, false, [] { ControlSetIntegerValue(12, 1); }, 0, u"One"_s},
        {"stepper", 13, false, [] { ControlSetStringValue(13, u"12.5"_s); }, 9, u"9"_s},
        {"combo box", 14, true, press(14, Qt::Key_Down), 0, u"red"_s},
        {"date field", 15, false, [] { ControlSetStringValue(15, u"2026-11-22"_s); }, 0, u"2026-11-22"_s},
        {"progress indicator", 16, false, [] { ControlSetIntegerValue(16, 7); }, 7, u"70%"_s},
        {"label", 17, false, [] { ControlSetDoubleValue(17, 2.5); }, 2.5, u"2.5"_s},
        {"unknown progress", 16, false, [] { CUI_ProgressIndicator(16, 3, 5, 5, {}); }, 3, {}},
        {"stepper of thirds", 13, false, [] { CUI_Stepper(13, 1 / 3.0, 0, 9, 1 / 3.0, {}); }, 0.333333, u"0.333333"_s},
        {"as far as it goes", 3, false, [] { ControlSetDoubleValue(3, 1e12); }, 10, {}},
        {"reversed and upright", 3, false, [] { CUI_Slider(3, 9, 20, -9, QRectF(0, 0, 20, 80)); }, 9, {}},
        {"no segment", 6, false, [] { ControlSetIntegerValue(6, -1); }, -1, {}},
        {"disabled", 2, false, [click] { ControlSetEnabled(2, false), click(); }, 1, u"Box"_s},
    };
    for (const auto &[name, tag, isReported, act, number, text] : rows) {
        SCOPED_TRACE(name);
        act();
        EXPECT_EQ(takeSiteCalls(), isReported ? u"1 %1 7"_s.arg(tag) : QString());
        EXPECT_EQ(ControlDoubleValue(tag), number);
        EXPECT_EQ(ControlIntegerValue(tag), qint64(number));
        EXPECT_EQ(ControlStringValue(tag), text);
    }
    ViewSetFocus(14);
    EXPECT_TRUE(CUI_ViewWithTag(14)->hasFocus());
    for (const Tag tag : {5, 6, 14}) {
        ControlSetItems(tag, {u"p"_s, u"q"_s});
        EXPECT_EQ(ControlItems(tag), (QStringList{u"p"_s, u"q"_s}));
        EXPECT_EQ(ControlIntegerValue(tag), -1);
    }
    EXPECT_EQ(ControlWithTag(3)->property("orientation").toInt(), Qt::Vertical);
    EXPECT_TRUE(ControlWithTag(3)->property("invertedAppearance").toBool());
    EXPECT_EQ(alertsOf([] { ControlSetFormat(14, u"ab"_s, true, 3, caseForceUpper); }), QString());
    QTest::keyClicks(ControlWithTag(14)->findChild<QLineEdit *>(), u"cabab"_s);
    EXPECT_EQ(ControlStringValue(14), u"ABA"_s);
    ViewSetHidden(16, true);
    ViewSetAccessibleName(16, u"Done"_s);
    const QWidget *const bar = CUI_ViewWithTag(16);
    EXPECT_TRUE(bar->isHidden() && bar->accessibleName() == u"Done");
}

TEST_F(Statements, MakeChangeAndMoveViewsAndSayWhatIsWrong)
{
    CUI_Button(-5, u"Try & see"_s, QRectF(10, 10, 80, 30));
    const QPointer<QWidget> button = ControlWithTag(5);
    EXPECT_TRUE(button->isHidden());
    CUI_Button(5, {}, {});
    EXPECT_EQ(ControlStringValue(5), u"Try & see"_s);
    EXPECT_EQ(button->property("text"), u"Try && see"_s) << "or Alt and a letter would press it";
    EXPECT_EQ(button->geometry(), QRect(10, 10, 80, 30));
    EXPECT_TRUE(button->isVisible());
    CUI_TextLabel(16, u"9 lives"_s, {});
    EXPECT_EQ(ControlWithTag(16)->size(), ControlWithTag(16)->sizeHint());
    CUI_Toolbar(3);
    const Table<std::function<void()>, QString> wrong = {
        {"tool bar 0", [] { CUI_Toolbar(0); }, u"Tag error.|A tool bar cannot have the tag 0."_s},
        {"item 0", [] { CUI_ToolbarAddItem(3, 0, {}); }, u"Tag error.|A tool bar item cannot have the tag 0."_s},
        {"no item", [] { ToolbarItemSetValidates(3, 9, true); }, u"Tag error.|Can't find item 9 in tool bar 3."_s},
        {"no window", [] { WindowAddTitlebarAccessoryView(9, 16); }, u"Tag error.|Can't find window 9."_s},
        {"no popover", [] { PopoverShow(9, 16, {}, Qt::TopEdge); }, u"Tag error.|Can't find popover 9."_s},
        {"a class without a name of the vocabulary", [] { CUI_TextField(16, u"x"_s, {}); },
         u"Class error.|View 16 (QLabel), in window 7, cannot respond to QLineEdit messages."_s},
        {"tag 0", [] { CUI_Button(0, u"x"_s, {}); }, u"Tag error.|A view needs a tag from 1 to 1000000, not 0."_s},
        {"content view", [] { ViewRemoveFromSuperview(contentViewTag); },
         u"Tag error.|A content view stays in its window."_s},
        {"text of no control, once", [] { ControlSetStringValue(88, ControlStringValue(5)); },
         u"Tag error.|Can't find view 88 in window 7."_s},
        {"item of no menu", [] { CUI_Menu(0, 1, 0, {}, {}), CUI_Menu(1, -1, 0, {}, {}); },
         u"Tag error.|There can be no item 1 in a menu 0., Tag error.|There can be no item -1 in a menu 1."_s},
    };
    for (const auto &[name, statement, alert] : wrong) {
        EXPECT_EQ(alertsOf(statement), alert) << name;
    }
    EXPECT_EQ(m_content->findChildren<QWidget *>(Qt::FindDirectChildrenOnly).size(), 2);

    open(2);
    auto *const page = new QWidget(CUI_WindowWithTag(2)->contentView());
    page->setObjectName(u"9"_s);
    ViewAddSubview(9, tagFromObject(button));
    EXPECT_EQ(objectWindowTag(button), 2);
    ViewAddSubview(tagFromObject(m_content), 9);
    EXPECT_EQ(objectWindowTag(button), 7) << "with what it lies in";
    CUI_OutputWindowSetTag(7);
    ViewAddSubview(9, 5);
    ViewAddSubview(tagFromObject(button), 9);
    EXPECT_EQ(button->parentWidget(), page) << "nothing lies in itself";
    EXPECT_TRUE(button->geometry() == QRect(10, 10, 80, 30) && !button->isHidden());
    ViewRemoveFromSuperview(5);
    EXPECT_EQ(CUI_ViewWithTag(5), nullptr);
    QTest::qWait(0);
    EXPECT_FALSE(button);
}

TEST_F(Statements, MenuItemsAreChosenAndDisabledByNumber)
{
    resetMainMenu();
    CUI_Menu(1, 0, menuItemEnabled, u"File"_s, {});
    CUI_Menu(1, 1, menuItemTicked, u"Save & go"_s, u"S"_s);
    CUI_Menu(1, 2, notGiven, u"-"_s, {});
    CUI_Menu(1, 3, menuItemDisabled, u"Never"_s, {});
    EXPECT_EQ(mainMenu()->menus.size(), 2) << "after the application's own";
    QMenu *const menu = mainMenu()->menus.constLast();
    const QList<QAction *> items = menu->actions();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(menu->title() + items[0]->text() + items[0]->shortcut().toString(), u"FileSave && goCtrl+Shift+S"_s);
    EXPECT_TRUE(items[0]->isChecked() && items[1]->isSeparator() && !items[2]->isEnabled());
    valuesOf = [](qint64) { return QString::number(CUI_DialogEventObj()->longVal); };
    takeSiteCalls();
    expectCalls({{"chosen", [&] { items[0]->trigger(); }, u"1400 1 7 1"_s}});
    EXPECT_TRUE(items[0]->isChecked()) << "only the statement ticks";
    for (const bool disables : {true, false}) {
        atEvent = [disables](qint64) { answer(disables); };
        expectCalls({{"shown", [menu] { Q_EMIT menu->aboutToShow(); }, u"1401 1 7 1, 1401 1 7 3"_s}});
        EXPECT_NE(items[0]->isEnabled(), disables);
        EXPECT_FALSE(items[2]->isEnabled()) << "by its own state";
    }
}

TEST_F(Statements, TimersFireUntilTheyAreStopped)
{
    CUI_Timer(30, -5, true);
    CUI_Timer(31, 0, false);
    EXPECT_TRUE(QTest::qWaitFor([] { return dialogCalls.count(u"1450 30 7"_s) > 2; }));
    CUI_Timer(-30, 0, false);
    EXPECT_EQ(dialogCalls.count(u"1450 31 7"_s), 1);
    dialogCalls.clear();
    EXPECT_EQ(takeSiteCalls(), QString());
}

TEST_F(Statements, FilesAreOpenedAndSavedAsTheProgramAnswers)
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
        {"another folder to save in", CUI_SavePanel, false, u"/"_s, {}, u"2903 9 7"_s},
        {"saved, with an ending", CUI_SavePanel, false, u"d"_s, u"d.txt"_s, u"2901 9 7 d.txt"_s},
        {"named by the program", CUI_SavePanel, true, u"nod"_s, u"d.txt"_s, u"2901 9 7 nod.txt, 2906 9 7 d.txt"_s},
        {"without a name", CUI_SavePanel, false, u"no.txt"_s, u".txt"_s, u"2901 9 7 no.txt"_s},
    };
    for (const auto &[name, statement, asks, typed, chosen, calls] : rows) {
        SCOPED_TRACE(name);
        FilePanelSetAsks(9, asks);
        whenRuns<QFileDialog>([&, isAsked = asks, text = typed, expected = calls](QFileDialog *panel) {
            EXPECT_EQ(CUI_OpenPanel(9, {}, {}, {}), QString()) << "one at a time";
            auto *const field = panel->findChild<QLineEdit *>();
            EXPECT_EQ(panel->windowTitle() + panel->nameFilters().join(u'|'), u"Choose*.txt *.md"_s);
            takeSiteCalls();
            if (isAsked) {
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
            EXPECT_EQ(panel->findChild<QLineEdit *>()->text(), u"e"_s);
            QTest::keyClick(panel, dangerous == 2905 ? Qt::Key_Shift : Qt::Key_Return);
        });
        EXPECT_EQ(CUI_SavePanel(9, {}, folder.filePath(u"e"_s), {}), QString()) << dangerous;
    }
    FilePanelSetAsks(9, false);
}

TEST(MDAObj, GrowsAndKeepsElementsAndKeys)
{
    MDAObj array({3, 3});
    EXPECT_TRUE(array.setValue({1, 2}, u"x"_s) && array.setValue({1, 7}, 5));
    EXPECT_EQ(array.dimensions(), (MDAObj::Indices{3, 8}));
    EXPECT_EQ(array.value({1, 2}), u"x"_s);
    for (const auto &wrong : QList<MDAObj::Indices>{{1}, {0, -1}, {1, 2, 3}}) {
        EXPECT_FALSE(array.setValue(wrong, 1));
        EXPECT_FALSE(array.value(wrong).isValid());
    }
    array.setValueForKey(u"k"_s, 9);
    EXPECT_EQ(array.valueForKey(u"k"_s), 9);
    array.clear();
    EXPECT_FALSE(array.value({1, 7}).isValid() || array.valueForKey(u"k"_s).isValid());
}

} // namespace
