// The game's screen in words: what its own loop shows for a fixed draw, compared whole.

#include "tests/support/windows.h"

#include <QRegularExpression>

int gameMain(int argc, char **argv);

namespace tetrad {

// The loop draws from here; position 65 is the first hard puzzle.
quint32 drawnRandom()
{
    return 65;
}

namespace {

// White text of 12 pixels unless told otherwise; places are cut to whole pixels, since fractions are the font's.
const QString first = uR"(|Tetrad Game||Edit|Q
text (3,0) ""
text (3,13) ""
text (10,15) "Given four numbers and using just the +, -, *, and / operators; and the"
text (3,28) ""
text (10,30) "possible use of parenthesis (), enter an expression that equates to 24."
text (3,43) ""
text (10,45) "You must use all your numbers and only those numbers."
text (3,58) ""
text (10,60) "Examples: 9618 Solution 9 + 6 + 1 + 8 or 3173 Solution ((3 * 1) * 7) + 3"
text (3,73) ""
text (3,73) ""
text (3,87) ""
text (10,85) "Enter Q to quit or S to skip to the next number."
text (3,98) ""
text (3,98) ""
text (3,112) ""
text (15,110) "These are your numbers, difficulty level \x08" size 12 color #00ff00
text (310,110) "🟡 🟡 🟡 Hard" size 12 color #00ff00
text (3,123) "" size 12 color #00ff00
text (55,125) " 3 \x08" size 18 color #00ff00
text (87,125) " 4 \x08" size 18 color #00ff00
text (119,125) " 7 \x08" size 18 color #00ff00
text (152,125) " 9 \x08" size 18 color #00ff00
text (184,125) "" size 18 color #00ff00
text (3,145) "" size 18 color #00ff00
text (3,145) ""
text (3,159) ""
text (3,173) ""
text (3,187) ""
text (3,201) ""
)"_s;
const QString erased = uR"(rect (10,200) size 400x15 width 1 stroke #000000 fill #000000
)"_s;
const QString message =
    uR"(text (10,200) "ERROR! Must use all your numbers and only those numbers.\x08" size 12 color #ff0000
)"_s;
const QString prompt = u"10 190 Enter math expression:"_s;

// What is typed next, what the screen shows before and the panel's place and prompt.
const std::tuple<QString, QString, QString> questions[] = {
    {u"9"_s, first, prompt},
    {u"3+4+7+9"_s, first + erased + message, prompt + u" [ '9' was incorrect ]"},
    {u"9"_s, first + erased + message + erased, prompt + u" [ '3+4+7+9' was incorrect ]"},
    {u""_s, first + erased + message + erased + erased + message, prompt + u" [ '9' was incorrect ]"},
    {u"(9-7)*4*3"_s, first + erased + message + erased + erased + message, prompt + u" [ '' was incorrect ]"},
};

QString screen()
{
    static const QRegularExpression fraction(u"(?<=\\d)\\.\\d+(?=[,)])"_s);
    QString bar = u"|"_s;
    for (const QMenu *menu : mainMenu()->menus) {
        bar += menu->title() + u'|';
    }
    const QString items = CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow())->dump();
    return bar + QChar(char16_t(gZRUpperChar[u'q'])) + u'\n' +
           QString(items).remove(u" size 12 color #ffffff"_s).remove(fraction);
}

// Deliberately not beyond x 410, where the eraser ends: the longest message's full stop stays.
bool showsRed()
{
    const QImage seen = CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow())->grab(QRect(0, 198, 410, 20)).toImage();
    for (int i = 0; i < seen.width() * seen.height(); ++i) {
        const QColor color = seen.pixelColor(i % seen.width(), i / seen.width());
        if (color.red() > color.green() + 20) {
            return true;
        }
    }
    return false;
}

void atQuestion(std::size_t number)
{
    whenRuns<ZRInputWindow>([number](ZRInputWindow *panel) {
        const auto &[answer, shown, place] = questions[number];
        EXPECT_EQ(screen(), shown) << number;
        EXPECT_EQ(showsRed(), shown.endsWith(message)) << number << ", where messages stand";
        EXPECT_EQ(QString::asprintf("%lld %lld ", panel->xPos(), panel->yPos()) + panel->prompt(), place);
        QTest::keyClicks(panel->field(), answer);
        QTest::keyClick(panel->field(), Qt::Key_Return);
        if (number + 1 < std::size(questions)) {
            atQuestion(number + 1);
        }
    });
}

TEST(Screen, IsTheTypedOneAtEachQuestionAndAtTheAlert)
{
    // The loop has no end of its own.
    whenRuns<Alert>([](const Alert *alert) {
        EXPECT_EQ(screen(), std::get<1>(questions[4]) + erased);
        EXPECT_EQ(alert->text() + u'|' + alert->informativeText(), u"Correct|You won!");
        std::remove(qgetenv("TEST_PREMATURE_EXIT_FILE").constData());
        std::_Exit(HasFailure() ? 1 : 0);
    });
    atQuestion(0);
    gameMain(0, nullptr);
}

} // namespace
} // namespace tetrad
