#pragma once

#include <QString>

namespace tetrad {

/// What an input format does with the case of letters. Any other value: letters stay as they are and
/// the list is case-insensitive.
enum CaseOption : qint64 {
    caseInsensitiveList = 0,
    caseSensitiveList = 1,
    caseForceLower = 2,
    caseForceUpper = 3,
    caseCapitalizeWords = 4,
};

/// The format that the next line input gives its field.
class ZRInputFormat
{
public:
    QString characters;
    bool pass = true;      ///< the list holds the only characters allowed, else those refused
    quint64 maxLength = 0; ///< in characters; 0 means no limit
    qint64 caseOption = caseInsensitiveList;
};

/// Replaces the pending format. notGiven stands for pass true, maxLength 0, caseOption 0; any other
/// pass is true when it is not 0.
void InputSetFormat(const QString &characters, qint64 pass, qint64 maxLength, qint64 caseOption);

void InputRemoveFormat();

/// The pending format, or null. It stays in force from one line input to the next.
const ZRInputFormat *pendingInputFormat();

} // namespace tetrad
