#pragma once

#include <QtGlobal>

/// The file and the lines that a range error of the game names, one line for each place that accesses an array.
namespace tetrad::source {

inline constexpr char16_t file[] = u"Tetrad Game.zr";

inline constexpr quint32 historyEmptiedAtStart = 128;
inline constexpr quint32 historyEmptiedWhenFull = 166;
inline constexpr quint32 historyCompared = 172;
inline constexpr quint32 historyReadAfterRepeat = 173;
inline constexpr quint32 historyStored = 179;
inline constexpr quint32 firstNumberStored = 181; ///< the others follow
inline constexpr quint32 numberPrinted = 215;
inline constexpr quint32 numberChecked = 272;

} // namespace tetrad::source
