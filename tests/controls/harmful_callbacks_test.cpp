#include "tests/controls/views_helper.h"

#include <QColorDialog>

using namespace tetrad;

namespace {

// At each event that these acts bring about, once.
TEST_F(Views, SurviveWhatACallbackDoes)
{
    using Acts = QList<std::function<void()>>;
    using Harm = std::function<void(QObject *)>;
    const auto control = [](Tag tag) {
        return [tag] {
            makeControls();
            return ControlWithTag(tag);
        };
    };
    const Acts click = {[] { QTest::mouseClick(ControlWithTag(2), Qt::LeftButton, {}, QPoint(8, 15)); }};
    const Acts toTable = {[] { TableViewReloadData(17); }, [&] { pressRow(1); }};
    const Acts toOutline = {[&] { expand(true); }, [&] { expand(false); }, [&] { pressItem(); }};
    const Acts toTabs = {[&] { pressTab(); }};
    const Acts toSplit = {[&] { dragDivider(-95); }, [&] { split->hide(); }, [&] { split->show(); },
                          [&] { split->resize(300, 80); }};
    const Acts toText = {[&] { text->setFocus(); }, key(21, Qt::Key_X), [&] { select(0, 2); },
                         [&] { text->clearFocus(); }};
    const Acts toTokens = {[&] { tokens->setFocus(); }, key(23, Qt::Key_X), key(23, Qt::Key_Return)};
    const Acts toPopover = {showPopover, [&] { dragPopover(); }, showPopover, [] { PopoverClose(9); }};
    const Acts toItem = {[] { ToolbarItemSetValidates(3, 19, true); }, [&] { clickItem(); }};
    const Acts toPanel = {[] { CUI_ColorPanel(Qt::red)->setCurrentColor(Qt::green); }};
    const Harm deletes = [](const QObject *victim) { delete victim; };
    const Harm deletesAll = [&](QObject *) { qDeleteAll(m_content->children()); };
    const Harm reloads = [](QObject *) { TableViewReloadData(17), OutlineViewReloadData(18); };
    const Harm closes = [&](QObject *) { m_content->window()->close(); };
    const Harm opensAlert = [](QObject *) {
        whenRuns<Alert>(clicks(0));
        CUI_Alert(1, notGiven, u"Now"_s, {}, u"OK"_s, notGiven);
    };
    const std::tuple<std::function<QObject *()>, QList<qint64>, Acts, Harm> rows[] = {
        {control(2), {1}, click, deletes},
        {control(2), {1}, click, deletesAll},
        {control(2), {1}, click, closes},
        {control(2), {1}, click, opensAlert},
        {control(2), {1}, {[] { QTest::keyClick(ControlWithTag(2), Qt::Key_Space); }}, deletes},
        {control(3), {1}, {key(3, Qt::Key_Right)}, deletes},
        {control(4), {1}, {key(4, Qt::Key_Return)}, deletes},
        {control(5), {1}, {key(5, Qt::Key_Down)}, opensAlert},
        {[&] { return table; }, {1700, 1701, 1702, 1703, 1704, 1706, 1707, 4200, 4300}, toTable, deletes},
        {[&] { return table; }, {1700, 1701, 1702, 1703, 1704, 1706, 1707, 4200, 4300}, toTable, reloads},
        {[&] { return outline; }, {1800, 1801, 1802, 1803, 1804, 1805, 1806}, toOutline, deletes},
        {[&] { return outline; }, {1800, 1801, 1802, 1803, 1804, 1805, 1806}, toOutline, reloads},
        {[&] { return tabs; }, {1600, 1601, 1602}, toTabs, deletes},
        {[&] { return tabs->widget(1); }, {1600, 1601}, toTabs, deletes},
        {[&] { return split; }, {1501, 1502, 1503, 1504, 1506, 1508, 1509, 1510, 1511, 1512}, toSplit, deletes},
        {[&] { return text; }, {2100, 2101, 2102, 2103, 2104}, toText, deletes},
        {[&] { return tokens; }, {2300, 2301, 2302, 1}, toTokens, deletes},
        {[&] { return popover; }, {1300, 1301, 1302, 1304, 1305, 1306, 1307}, toPopover, deletes},
        {[&] { return item; }, {1900, 1901}, toItem, deletes},
        {[] { return CUI_ColorPanel(Qt::red); }, {2600}, toPanel, deletes},
    };
    for (const auto &[find, events, acts, harm] : rows) {
        for (const qint64 dangerous : events) {
            TearDown();
            SetUp();
            const QPointer<QObject> victim = find();
            bool isHarmed = false;
            atEvent = [&, respond = atEvent, harms = harm](qint64 event) {
                respond(event);
                if (event == dangerous && !std::exchange(isHarmed, true)) {
                    harms(victim);
                }
            };
            for (const auto &act : acts) {
                if (victim) {
                    act();
                    takeSiteCalls();
                }
            }
            atEvent = nullptr;
            EXPECT_TRUE(isHarmed) << dangerous;
        }
    }
}

} // namespace
