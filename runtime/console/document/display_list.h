#pragma once

#include <tetrad/console/console_document.h>

namespace tetrad {

/// What drawing an item may touch, rounded outwards; empty when it draws nothing. Floats, since every printed line has
/// two.
struct Ink
{
    float left = 0;
    float top = 0;
    float right = -1;
    float bottom = -1;

    Ink() = default;
    /// Empty for a rectangle that is empty or not finite.
    explicit Ink(const QRectF &rect);

    bool isEmpty() const { return left > right; }
    bool meets(const QRectF &part) const
    {
        return right >= part.left() && left <= part.right() && bottom >= part.top() && top <= part.bottom();
    }
};

struct DisplayList::Entry
{
    CUI_PrintToWindowItem item;
    Ink ink;
    /// A text's measured width: whole 64ths of a pixel, which a float holds as they are.
    float width = 0;
    /// A text that was followed by the end of its line.
    bool endsLine = false;

    /// Measures what the item draws.
    static Entry of(const CUI_PrintToWindowItem &item);
    /// A text's box.
    QRectF box() const;
};

} // namespace tetrad
