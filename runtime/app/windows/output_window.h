#pragma once

class QWidget;

namespace tetrad {

/// The content view that views are looked up in: the output window's, else the frontmost window's, or null.
QWidget *searchedContentView();

/// The content view of a window or popover, or null.
QWidget *contentViewOf(const QWidget *windowOrPopover);

} // namespace tetrad
