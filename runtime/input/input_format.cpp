#include <tetrad/input/line_input.h>

#include <tetrad/strings/not_given.h>

#include <optional>

namespace tetrad {

namespace {

std::optional<ZRInputFormat> sPendingInputFormat;

} // namespace

void InputSetFormat(const QString &characters, qint64 pass, qint64 maxLength, qint64 caseOption)
{
    sPendingInputFormat = ZRInputFormat{
        .characters = characters,
        .pass = pass != 0,
        .maxLength = maxLength == notGiven ? 0 : static_cast<quint64>(maxLength),
        .caseOption = caseOption == notGiven ? caseInsensitiveList : caseOption,
    };
}

void InputRemoveFormat()
{
    sPendingInputFormat.reset();
}

const ZRInputFormat *pendingInputFormat()
{
    return sPendingInputFormat ? &*sPendingInputFormat : nullptr;
}

} // namespace tetrad
