#include "runtime/input/panel_layout.h"

#include <tetrad/strings/not_given.h>

#include "tests/support/table.h"

using namespace tetrad;

namespace {

std::string text(const QRect &rect)
{
    return QString::asprintf("%d,%d %dx%d", rect.x(), rect.y(), rect.width(), rect.height()).toStdString();
}

constexpr qint64 none = notGiven;
constexpr QSize game(580, 250);

TEST(Layout, placesAllParts)
{
    const Table<qint64, qint64, int, int, QSize, const char *, const char *, int> rows = {
        {"no prompt is minimal", 10, 190, 0, 0, game, "10,154 110x36", "10,10 5x16", 4},
        {"prompt pushes the field", 10, 190, 140, 0, game, "10,154 170x36", "155,10 5x16", 145},
        {"grows with the text", 10, 190, 140, 100, game, "10,154 270x36", "155,10 105x16", 145},
        {"slides left at the right edge", 400, 190, 140, 100, game, "310,154 270x36", "155,10 105x16", 145},
        {"as wide as the content", 10, 190, 140, 9000, game, "0,154 580x36", "155,10 415x16", 145},
        {"unplaced is centred near the left", none, none, 0, 0, game, "20,107 110x36", "10,10 5x16", 4},
        {"one coordinate given is a position", none, 190, 0, 0, game, "0,154 110x36", "10,10 5x16", 4},
        {"below the content", 10, 2000, 0, 0, game, "10,214 110x36", "10,10 5x16", 4},
        {"above the content", 10, 5, 0, 0, game, "10,0 110x36", "10,10 5x16", 4},
        {"exact up to the right edge", 470, 190, 0, 0, game, "470,154 110x36", "10,10 5x16", 4},
        {"too far right", 5'000'000'000, 190, 0, 0, game, "470,154 110x36", "10,10 5x16", 4},
        {"narrow content gives the prompt its width", 10, 190, 270, 0, {300, 250}, "0,154 300x36", "285,10 5x16", 275},
        {"long prompt has the whole width", 10, 190, 2000, 0, game, "0,154 580x36", "565,10 5x16", 555},
        {"long prompt leaves a usable field", 10, 190, 2000, 9000, game, "0,154 580x36", "450,10 120x16", 440},
        {"tiny content has no label", 10, 190, 300, 9000, {100, 20}, "0,0 100x36", "10,10 80x16", 0},
    };
    for (const auto &[shows, x, y, promptWidth, entryWidth, content, body, entry, labelWidth] : rows) {
        SCOPED_TRACE(shows);
        const PanelMetrics metrics{promptWidth, entryWidth, 110, 120};
        const PanelGeometry parts = layOutPanel(metrics, requestedPosition(x, y, content), content);
        EXPECT_EQ(text(parts.body), body);
        EXPECT_EQ(text(parts.entry), entry);
        EXPECT_EQ(text(parts.label), text(QRect(8, 10, labelWidth, 16)));
    }
}

} // namespace
