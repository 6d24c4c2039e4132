#pragma once

#include <QtGlobal>

namespace tetrad {

/// Codes of the events that views report about themselves. Unless a line says otherwise the object
/// passed is the platform event (see tagFromEvent) and boolVal, preset to false, is the answer "handled".
enum ViewEvent : qint64 {
    viewEventDraw = 2000,                  ///< rectVal: the part to draw, in pixels from the view's top left; object 0
    viewEventAcceptsFirstResponder = 2001, ///< boolVal: whether the view takes the keyboard; object 0
    viewEventMouseDown = 2002,
    viewEventMouseDragged = 2003,
    viewEventMouseUp = 2004,
    viewEventMouseMoved = 2005,
    viewEventMouseEntered = 2006,
    viewEventMouseExited = 2007,
    viewEventRightMouseDown = 2008,
    viewEventRightMouseDragged = 2009,
    viewEventRightMouseUp = 2010,
    viewEventKeyDown = 2011,
    viewEventKeyUp = 2012,
    viewEventFlagsChanged = 2013,     ///< a modifier key went down or up
    viewEventResetCursorRects = 2015, ///< object 0
    viewEventDraggingEntered =
        2016, ///< arrayObj: file addresses; pbTypes: MIME types; pasteboardObj: the data; pointVal
    viewEventDraggingExited = 2020,
    viewEventPerformDrag = 2022,       ///< the same; boolVal: whether the drop was taken
    viewEventAppearanceChanged = 2025, ///< object 0
    viewEventMenu = 2026,              ///< menuObj: the menu to pop up, in and out
    viewEventWantsUpdateLayer = 2027,  ///< boolVal: whether 2028 is sent in place of 2000; object 0
    viewEventUpdateLayer = 2028,       ///< object 0
    viewEventAwakeFromNib = 2029,      ///< object 0
};

} // namespace tetrad
