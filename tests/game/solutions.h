#pragma once

#include <QStringList>

/// Every way to make 24 of the puzzle's numbers that combining two values at a time finds, written
/// with full parentheses as in "(6/(1-(3/4)))". Values are exact fractions. A sum and a product are
/// combined in one order only, and each text counts once: 1438 for the whole deck.
QStringList solutionsOf(const QString &puzzle);
