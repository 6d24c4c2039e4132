#include "panel_helper.h"

#include "runtime/input/field_formatter.h"

using namespace tetrad;

namespace {

const QString answerKeys = u"123456789+-*/()qs"_s;

TEST(Formatter, judgesAProposal)
{
    const Table<QString, bool, quint64, qint64, QString, QString> rows = {
        {"the other case is in the list", answerKeys, true, 0, 0, u"Q"_s, u"Q"_s},
        {"zero and blank are removed", answerKeys, true, 0, 0, u"1 0+2"_s, u"1+2"_s},
        {"case-sensitive list", u"q"_s, true, 0, 1, u"qQ"_s, u"q"_s},
        {"refusing list", u"ab"_s, false, 0, 0, u"aBcA1"_s, u"c1"_s},
        {"empty allowing list refuses all", u""_s, true, 0, 0, u"abc"_s, u""_s},
        {"at the limit", u""_s, false, 3, 0, u"abc"_s, u"abc"_s},
        {"beyond the limit", u""_s, false, 3, 0, u"abcd"_s, QString()},
        {"limit counts what would be removed", u"1"_s, true, 2, 0, u"1xx"_s, QString()},
        {"limit counts pairs once", u""_s, false, 2, 0, u"\U0001F600\U0001F601"_s, u"\U0001F600\U0001F601"_s},
        {"lowered", u"ab"_s, true, 0, 2, u"aXB"_s, u"ab"_s},
        {"raised", u"ab"_s, true, 0, 3, u"abc"_s, u"AB"_s},
        {"capitalized", u""_s, false, 0, 4, u"o'neil mcDONALD\tx"_s, u"O'neil Mcdonald\tX"_s},
        {"half a pair is not the pair", u"\U0001F600"_s, true, 0, 0, u"\U0001F600\U0001F601"_s, u"\U0001F600"_s},
        {"marks and controls", answerKeys, true, 0, 0, u"\u202E1\u0007\r\n+\u05D0\0172"_s, u"1+2"_s},
        {"dotless i is no i", u"i"_s, true, 0, 0, u"iI\u0131\u0130"_s, u"iI"_s},
    };
    for (const auto &[shows, list, pass, length, caseOption, proposal, expected] : rows) {
        SCOPED_TRACE(shows);
        const CUI_ControlFormatter formatter(list, pass, length, caseOption);
        QString text = proposal;
        int cursor = static_cast<int>(text.size());
        const bool refused = formatter.validate(text, cursor) == QValidator::Invalid;
        EXPECT_EQ(refused ? QString() : text, expected);
        EXPECT_EQ(cursor, text.size());
    }
}

TEST(Field, isFilteredWhicheverWayATextComesIn)
{
    // What the program set and selected of it, what is typed and pasted then, the result and where the cursor is.
    const Table<QString, quint64, QString, int, int, QString, QString, QString, int> rows = {
        {"no turn of the event loop between keys", answerKeys, 0, u""_s, 0, 0, u"0q1 s"_s, u""_s, u"q1s"_s, 3},
        {"pasted", answerKeys, 0, u"1"_s, 1, 0, u""_s, u"x(\n"_s, u"1("_s, 2},
        {"pasted in the middle", answerKeys, 0, u"12"_s, 1, 0, u""_s, u"0+x*"_s, u"1+*2"_s, 3},
        {"typed over a selection", answerKeys, 0, u"1+*2"_s, 1, 2, u"x"_s, u""_s, u"12"_s, 1},
        {"a paste that is too long", u"1"_s, 3, u""_s, 0, 0, u"11"_s, u"11"_s, u"11"_s, 2},
        {"beyond the limit by the program", answerKeys, 3, u"1+20"_s, 4, 0, u"5"_s, u""_s, u"1+20"_s, 4},
        {"refused text of the program stands", answerKeys, 3, u"0"_s, 1, 0, u""_s, u""_s, u"0"_s, 1},
        {"until the next edit", answerKeys, 3, u"0"_s, 1, 0, u"5"_s, u""_s, u"5"_s, 1},
        {"large", answerKeys, 0, u""_s, 0, 0, u""_s, u"\u202Eא0\u0001"_s.repeated(100'000) + u'7', u"7"_s, 1},
    };
    for (const auto &[shows, list, length, set, at, selected, typed, pasted, text, cursor] : rows) {
        SCOPED_TRACE(shows);
        QLineEdit field;
        attachFormatter(&field, u"another"_s, true, 1, 0);
        attachFormatter(&field, list, true, length, 0);
        field.show();
        field.setText(set);
        selected ? field.setSelection(at, selected) : field.setCursorPosition(at);
        QTest::keyClicks(&field, typed);
        QCoreApplication::processEvents();
        QGuiApplication::clipboard()->setText(pasted);
        field.paste();
        QCoreApplication::processEvents();
        EXPECT_EQ(field.text(), text);
        EXPECT_EQ(field.cursorPosition(), cursor);
    }
}

TEST(Field, undoesAndRedoesThroughTheFilterAndTakesAnInputMethodsText)
{
    QLineEdit field;
    attachFormatter(&field, answerKeys, true, 0, caseForceUpper);
    field.show();
    QStringList texts;
    const auto note = [&] {
        QCoreApplication::processEvents();
        texts << field.text();
    };
    QTest::keyClicks(&field, u"1q"_s);
    note();
    QGuiApplication::clipboard()->setText(u"+ é3"_s);
    field.paste();
    note();
    QTest::keyClicks(&field, u"0"_s);
    note();
    for (void (QLineEdit::*const step)() : {&QLineEdit::undo, &QLineEdit::undo, &QLineEdit::redo, &QLineEdit::redo}) {
        (field.*step)();
        note();
    }
    compose(&field, u"0+é"_s);
    note();
    EXPECT_EQ(texts.join(u' '), u"1Q 1Q+3 1Q+3 1Q  1Q 1Q+3 1Q+3+"_s);
}

} // namespace
