#include "tests/controls/site_helper.h"
#include <tetrad/controls/control_statements.h>
#include <tetrad/controls/mda.h>
#include <tetrad/controls/menu_items.h>
#include <tetrad/controls/timers.h>

#include <QDateEdit>
#include <QLineEdit>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

using FormSite = SiteTest;

TEST_F(FormSite, EveryControlHasItsValuesAndOneAction)
{
    CUI_RadioButton(1, u"One"_s, QRectF(0, 0, 90, 20));
    CUI_RadioButton(2, u"Two"_s, QRectF(0, 20, 90, 20));
    CUI_Stepper(3, 1.5, 0, 9, 0.25, QRectF(0, 40, 90, 30));
    CUI_ComboBox(4, u"red"_s, {u"red"_s, u"green"_s}, QRectF(0, 70, 90, 30));
    CUI_DateField(5, QDate(2024, 2, 28), QRectF(0, 100, 120, 30));
    CUI_ProgressIndicator(6, 3, 0, 10, QRectF(0, 130, 90, 20));
    const auto press = [](Qt::Key key) { return [key](Tag tag) { QTest::keyClick(ControlWithTag(tag), key); }; };
    const auto retype = [](Tag tag) {
        auto *const field = ControlWithTag(tag)->findChild<QLineEdit *>();
        field->setText(u"green"_s);
        QTest::keyClick(field, Qt::Key_Return);
    };
    const auto chooseDate = [](Tag tag) { qobject_cast<QDateEdit *>(ControlWithTag(tag))->setDate({2025, 2, 28}); };
    const Table<Tag, std::function<void(Tag)>, double, QString> rows = {
        {"radio button", 1, press(Qt::Key_Space), 1, u"One"_s},
        {"stepper", 3, press(Qt::Key_Up), 1.75, u"1.75"_s},
        {"combo box", 4, retype, 1, u"green"_s},
        {"date field", 5, chooseDate, 0, u"2025-02-28"_s},
    };
    for (const auto &[name, tag, act, number, text] : rows) {
        SCOPED_TRACE(name);
        act(tag);
        EXPECT_EQ(takeSiteCalls(), u"1 %1 7"_s.arg(tag));
        EXPECT_EQ(ControlDoubleValue(tag), number);
        EXPECT_EQ(ControlStringValue(tag), text);
    }
    ControlSetIntegerValue(2, 1);
    EXPECT_EQ(ControlIntegerValue(1), 0) << "exclusive";
    ControlSetDoubleValue(3, 2.5);
    EXPECT_EQ(ControlIntegerValue(3), 2);
    ControlSetStringValue(5, u"2026-11-22"_s);
    EXPECT_EQ(ControlStringValue(5), u"2026-11-22"_s);
    ControlSetIntegerValue(6, 7);
    EXPECT_EQ(ControlIntegerValue(6), 7);
    ControlSetIntegerValue(4, 0);
    EXPECT_EQ(ControlStringValue(4), u"red"_s);
    EXPECT_EQ(ControlItems(4), (QStringList{u"red"_s, u"green"_s}));
    EXPECT_EQ(takeSiteCalls(), QString()) << "what the program sets is not reported";
    ViewSetFocus(4);
    EXPECT_TRUE(CUI_ViewWithTag(4)->hasFocus());
    ViewSetHidden(6, true);
    EXPECT_TRUE(CUI_ViewWithTag(6)->isHidden());
}

TEST_F(FormSite, ImagesKeepTheirProportions)
{
    QImage image(10, 5, QImage::Format_RGB32);
    image.fill(Qt::red);
    CUI_ImageView(8, image, QRectF(0, 0, 40, 40));
    const QImage drawn = CUI_ViewWithTag(8)->grab().toImage();
    EXPECT_EQ(drawn.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_NE(drawn.pixelColor(20, 5), QColor(Qt::red));
}

TEST_F(FormSite, MenuItemsAreChosenAndDisabledByNumber)
{
    CUI_Menu(20, 0, menuItemEnabled, u"File"_s, {});
    CUI_Menu(20, 1, menuItemTicked, u"Save & go"_s, u"S"_s);
    CUI_Menu(20, 2, notGiven, u"-"_s, {});
    CUI_Menu(20, 3, menuItemDisabled, u"Never"_s, {});
    QMenu *const menu = mainMenu()->menus.constLast();
    const QList<QAction *> items = menu->actions();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[0]->shortcut().toString(), u"Ctrl+Shift+S"_s);
    EXPECT_TRUE(items[0]->isChecked() && items[1]->isSeparator() && !items[2]->isEnabled());
    valuesOf = [](qint64) { return QString::number(CUI_DialogEventObj()->longVal); };
    takeSiteCalls();
    items[0]->trigger();
    EXPECT_EQ(takeSiteCalls(), u"1400 20 7 1"_s);
    EXPECT_TRUE(items[0]->isChecked()) << "only the statement ticks";
    for (const bool disables : {true, false}) {
        atEvent = [disables](qint64) { answer(disables); };
        Q_EMIT menu->aboutToShow();
        EXPECT_EQ(takeSiteCalls(), u"1401 20 7 1, 1401 20 7 3"_s);
        EXPECT_NE(items[0]->isEnabled(), disables);
        EXPECT_FALSE(items[2]->isEnabled()) << "by its own state";
    }
    EXPECT_EQ(alertsOf([] { CUI_Menu(0, 1, 0, {}, {}); }), u"Tag error.|There can be no item 1 in a menu 0."_s);
    EXPECT_EQ(mainMenu()->menus.size(), 2) << "the application's own menu came with the first";
}

TEST_F(FormSite, TimersFireUntilTheyAreStopped)
{
    CUI_Timer(30, 0.001, true);
    CUI_Timer(31, 0.001, false);
    const auto fired = [](const QString &timer) { return dialogCalls.count(timer); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return fired(u"1450 30 7"_s) > 2; }));
    CUI_Timer(-30, 0, false);
    EXPECT_EQ(fired(u"1450 31 7"_s), 1);
    takeSiteCalls();
    QTest::qWait(20);
    EXPECT_EQ(takeSiteCalls(), QString());
}

TEST(MDAObj, GrowsAndKeepsElementsAndKeys)
{
    MDAObj array({3, 3});
    EXPECT_TRUE(array.setValue({1, 2}, u"x"_s));
    EXPECT_TRUE(array.setValue({1, 7}, 5));
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
