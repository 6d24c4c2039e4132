// The formatter of a control. Input: case option, length limit, whether the list names what is allowed, the
// cursor, the list, and the proposal, as UTF-16 units or as UTF-8.

#include "tests/fuzz/fuzz_input.h"

#include <tetrad/input/control_formatter.h>
#include <tetrad/input/line_input.h>

using namespace tetrad;
using namespace tetrad::fuzz;

namespace {

void validate(const CUI_ControlFormatter &formatter, const QString &proposal, int cursor, bool isTooLong)
{
    QString text = proposal;
    int place = cursor;
    const QValidator::State state = formatter.validate(text, place);
    require(state == (isTooLong ? QValidator::Invalid : QValidator::Acceptable), "only the long are refused", proposal);
    require(!isTooLong || (text == proposal && place == cursor), "what is refused stays as it was", proposal);
    require(place >= 0 && place <= text.size(), "the cursor stays in the text", proposal);
}

// What a list that knows no case and no option that changes it leave of a proposal.
void formatTwice(const CUI_ControlFormatter &formatter, const QString &proposal, const QString &list, bool pass)
{
    const QString once = formatter.formatted(proposal);
    require(formatter.formatted(once) == once, "what was formatted stays", proposal);
    require(once.size() <= proposal.size(), "characters are only taken away", proposal);
    const CharacterSet listed(list);
    for (qsizetype i = 0; i < once.size(); i += characterAt(once, i).units) {
        require(listed.contains(characterAt(once, i).value) == pass, "no refused character is left", once);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Input input(data, size);
    const qint64 caseOption = input.below(6);
    const int limit = input.below(40);
    const quint8 flags = input.byte();
    const bool pass = (flags & 1) != 0;
    const quint8 cursor = input.byte();
    const QString list = (flags & 2) != 0 ? input.units(8) : input.textUntil('|');
    const QString proposal = (flags & 4) != 0 ? input.units(100) : input.textUntil('\0');

    const CUI_ControlFormatter formatter(list, pass, static_cast<quint64>(limit), caseOption);
    validate(formatter, proposal, static_cast<int>(qMin<qsizetype>(cursor, proposal.size())),
             limit != 0 && characterCount(proposal) > limit);
    if (caseOption == caseSensitiveList) {
        formatTwice(formatter, proposal, list, pass);
    }
    return 0;
}
