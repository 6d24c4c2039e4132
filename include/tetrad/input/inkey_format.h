#pragma once

#include <tetrad/input/character_set.h>

#include <QString>

namespace tetrad {

/// The format that the next key input filters its keys with.
class ZRInkeyFormat
{
public:
    CharacterSet characterSet; ///< the keys accepted
    QString characters;        ///< the list the set was made from
    bool pass = true;          ///< the list names the accepted keys, else the refused ones
    qint64 caseOption = 0;     ///< caseForceLower, caseForceUpper; anything else leaves the key as it is
};

/// Replaces the pending key format. The list is case-sensitive: a forced case is applied to the key
/// before it is looked up. notGiven stands for pass true, caseOption 0.
void InkeySetFormat(const QString &characters, qint64 pass, qint64 caseOption);

void InkeyRemoveFormat();

/// The pending key format, or null. It stays in force from one key input to the next.
const ZRInkeyFormat *pendingInkeyFormat();

} // namespace tetrad
