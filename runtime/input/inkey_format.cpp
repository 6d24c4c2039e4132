#include <tetrad/input/key_input.h>

#include <tetrad/strings/not_given.h>

#include <optional>

namespace tetrad {

namespace {

std::optional<ZRInkeyFormat> sPendingInkeyFormat;

} // namespace

void InkeySetFormat(const QString &characters, qint64 pass, qint64 caseOption)
{
    const CharacterSet listed(characters);
    const bool accepted = pass != 0;
    sPendingInkeyFormat = ZRInkeyFormat{
        .characterSet = accepted ? listed : listed.inverted(),
        .characters = characters,
        .pass = accepted,
        .caseOption = caseOption == notGiven ? 0 : caseOption,
    };
}

void InkeyRemoveFormat()
{
    sPendingInkeyFormat.reset();
}

const ZRInkeyFormat *pendingInkeyFormat()
{
    return sPendingInkeyFormat ? &*sPendingInkeyFormat : nullptr;
}

} // namespace tetrad
