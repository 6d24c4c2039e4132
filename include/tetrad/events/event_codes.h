#pragma once

#include <QtGlobal>

namespace tetrad {

/// The table of event codes: every code that the dialog function can be called with, family by family.
///
/// A question has its answer in the record, preset to 0 (no, or nothing) or to what the platform proposes. Questions
/// are worded so that this changes nothing ("refuse?", "handled?"): a program that does not know an event may ignore
/// it. The exceptions: the questions about windows are preset to yes, and 1301, 1307, 1901, 2905 and 2906 ("may it
/// close?", "may it be dragged off?", "is it enabled?", "may it be chosen?") are sent only to a program that asked for
/// them, with PopoverSetAsks, ToolbarItemSetValidates or FilePanelSetAsks, since their preset is no.
///
/// Unless a line says otherwise, the object that an event comes with is the view, item, panel or popover concerned.

enum AlertEvent : qint64 {
    alertEndedEvent = 1000, ///< tag: the button's code or 0; wndTag: the alert's tag; object 0
    alertHelpEvent = 1001,  ///< tag and wndTag: the alert's tag; boolVal: whether help was shown; object 0
};

/// Codes of the window delegate's notifications. The gaps in the numbering are intended: no other
/// code of this family is ever sent by the delegate.
enum WindowEvent : qint64 {
    windowEventWillPositionSheet = 10000,
    windowEventWillBeginSheet = 10001,
    windowEventDidEndSheet = 10002,
    windowEventWillResize = 10003,
    windowEventDidResize = 10004,
    windowEventWillStartLiveResize = 10005,
    windowEventDidEndLiveResize = 10006,
    windowEventWillMiniaturize = 10007,
    windowEventDidMiniaturize = 10008,
    windowEventDidDeminiaturize = 10009,
    windowEventWillUseStandardFrame = 10010,
    windowEventShouldZoom = 10011,
    windowEventWillUseFullScreenContentSize = 10012,
    windowEventWillUseFullScreenPresentationOptions = 10013,
    windowEventWillEnterFullScreen = 10014,
    windowEventDidEnterFullScreen = 10015,
    windowEventWillExitFullScreen = 10016,
    windowEventDidExitFullScreen = 10017,
    windowEventDidFailToEnterFullScreen = 10022,
    windowEventDidFailToExitFullScreen = 10025,
    windowEventWillMove = 10026,
    windowEventDidMove = 10027,
    windowEventDidChangeScreen = 10028,
    windowEventShouldClose = 10031,
    windowEventWillClose = 10032,
    windowEventDidBecomeKey = 10033,
    windowEventDidResignKey = 10034,
    windowEventDidBecomeMain = 10035,
    windowEventDidResignMain = 10036,
    windowEventDidUpdate = 10037,
    windowEventShouldPopUpDocumentPathMenu = 10038,
    /// Sent for a window that was loaded from an interface file, not by the delegate.
    windowEventAwakeFromNib = 10059,
};

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

enum ControlEvent : qint64 {
    controlEventAction = 1, ///< object: the control; sent by the shared control target
};

enum PopoverEvent : qint64 {
    popoverEventDetachableWindow = 1300, ///< viewObj: a window to show instead; null makes the popover one
    popoverEventShouldClose = 1301,      ///< boolVal: the answer; see PopoverSetAsks
    popoverEventWillShow = 1302,
    popoverEventDidShow = 1303,
    popoverEventWillClose = 1304,
    popoverEventDidClose = 1305,
    popoverEventDidDetach = 1306,
    popoverEventShouldDetach = 1307, ///< boolVal: the answer; see PopoverSetAsks
};

enum MenuEvent : qint64 {
    menuEventItem = 1400,        ///< tag: the menu; longVal: the item chosen
    menuEventDisableItem = 1401, ///< tag: the menu, which opens; longVal: an item; boolVal: whether to disable it
};

enum TimerEvent : qint64 {
    timerEventFired = 1450, ///< tag: the timer; wndTag: the output window when it was started
};

/// Coordinates are pixels from the split view's left or top edge. They travel in floatVal, so in single
/// precision; indices count from 0 and travel in longVal.
enum SplitViewEvent : qint64 {
    splitViewEventWillResizeSubviews = 1501,
    splitViewEventDidResizeSubviews = 1502,
    splitViewEventCanCollapseSubview = 1503,        ///< longVal: subview; boolVal: the answer
    splitViewEventShouldAdjustSizeOfSubview = 1504, ///< longVal: subview; boolVal: the answer
    splitViewEventShouldHideDivider = 1506,         ///< longVal: divider; boolVal: the answer
    splitViewEventConstrainMaxCoordinate = 1508,    ///< longVal: divider; floatVal: proposal and answer
    splitViewEventConstrainMinCoordinate = 1509,    ///< longVal: divider; floatVal: proposal and answer
    splitViewEventConstrainSplitPosition = 1510,    ///< longVal: divider; floatVal: proposal and answer
    splitViewEventDividerColor = 1511,              ///< colorObj: the answer
    splitViewEventDividerThickness = 1512,          ///< floatVal: the answer
    splitViewEventDrawDivider =
        1513, ///< longVal: divider; viewObj: what to draw on; rectVal: its part; boolVal: whether drawn
};

enum TabViewEvent : qint64 {
    tabViewEventRefuseSelect = 1600,   ///< longVal: tab; stringObj: its label; viewObj: its page; boolVal: the answer
    tabViewEventWillSelect = 1601,     ///< the same fields
    tabViewEventDidSelect = 1602,      ///< the same fields
    tabViewEventDidChangeCount = 1603, ///< longVal: how many tabs
};

/// Rows and columns count from 0. A column is also in tableColumnObj.
enum TableViewEvent : qint64 {
    tableViewEventRowCount = 1700,         ///< longVal: the answer
    tableViewEventValue = 1701,            ///< longVal: row; tableColumnObj: column; object: the answer
    tableViewEventShouldEdit = 1702,       ///< longVal: row; tableColumnObj: column; boolVal: the answer
    tableViewEventViewForCell = 1703,      ///< longVal: row; tableColumnObj: column; viewObj: the answer
    tableViewEventRowHeight = 1704,        ///< longVal: row; doubleVal: pixels, in and out
    tableViewEventDidEdit = 1705,          ///< longVal: row; tableColumnObj: column; object: the new value
    tableViewEventRefuseSelectRow = 1706,  ///< longVal: row; boolVal: the answer
    tableViewEventSelectionChanged = 1707, ///< longVal: the current row, -1 for none
    tableViewEventColumnClicked = 1708,    ///< tableColumnObj: column
    tableViewEventDrawRow = 1709,          ///< longVal: row; viewObj: what to draw on; rectVal: its part
};

/// An item is whatever value the program gave for it, an invalid one for the root, and is in `object`.
enum OutlineViewEvent : qint64 {
    outlineViewEventChildCount = 1800,       ///< object: item; longVal: the answer
    outlineViewEventChild = 1801,            ///< object: parent in, child out; longVal: index
    outlineViewEventText = 1802,             ///< object: item; tableColumnObj: column; stringObj: the answer
    outlineViewEventDidExpand = 1803,        ///< object: item
    outlineViewEventDidCollapse = 1804,      ///< object: item
    outlineViewEventRefuseSelectItem = 1805, ///< object: item; boolVal: the answer
    outlineViewEventSelectionChanged = 1806, ///< object: the current item, invalid for none
    outlineViewEventColumnClicked = 1807,    ///< tableColumnObj: column
};

enum ToolbarEvent : qint64 {
    toolbarEventItemAction = 1900,
    toolbarEventValidateItem = 1901, ///< boolVal: whether the item is enabled; see ToolbarItemSetValidates
};

/// Ranges are in UTF-16 units.
enum TextViewEvent : qint64 {
    textViewEventRefuseChange = 2100, ///< rangeVal: what is replaced; stringObj: by what; boolVal: the answer
    textViewEventDidChange = 2101,
    textViewEventSelectionChanged = 2102, ///< rangeVal: the selection
    textViewEventDidBeginEditing = 2103,
    textViewEventDidEndEditing = 2104,
};

enum FontPanelEvent : qint64 {
    fontPanelEventChanged = 2200, ///< fontObj: the font chosen
};

enum TokenFieldEvent : qint64 {
    tokenFieldEventCompletions = 2300, ///< stringObj: what is being typed; arrayObj: the answer
    tokenFieldEventAddTokens = 2301,   ///< arrayObj: new tokens in, those to keep out
    tokenFieldEventDidChange = 2302,   ///< arrayObj: all tokens
};

enum ColorPanelEvent : qint64 {
    colorPanelEventAction = 2600, ///< colorObj: the colour chosen
};

enum TableHeaderEvent : qint64 {
    tableHeaderEventFont = 4200,
    tableHeaderEventTextColor = 4300,
};

enum FilePanelEvent : qint64 {
    filePanelEventUserEnteredName = 2901,  ///< stringObj: the name to save under, in and out; an empty one refuses it
    filePanelEventSelectionChanged = 2902, ///< urlObj: the file or folder
    filePanelEventDirectoryChanged = 2903, ///< urlObj: the folder now shown
    filePanelEventShouldEnableUrl = 2905,  ///< urlObj: a file listed; boolVal: the answer; see FilePanelSetAsks
    filePanelEventValidateUrl = 2906,      ///< urlObj: the file chosen; boolVal: the answer; see FilePanelSetAsks
};

/// Named only, since nothing on this platform sends them: moving files, gesture recognisers, expanding save panels,
/// network sessions, sounds, detached stack views, the preview panel, errors with recovery (alertEndedEvent ends those
/// here), printing and sharing.
enum UnsentEvent : qint64 {
    fileManagerEventShouldMove = 2400,
    fileManagerEventProceedAfterMoveError = 2401,
    fileManagerEventShouldCopy = 2402,
    fileManagerEventProceedAfterCopyError = 2403,
    fileManagerEventShouldRemove = 2404,
    gestureEventAction = 2700,
    filePanelEventWillExpand = 2904,
    urlSessionEventBecameInvalid = 3600,
    urlSessionEventFinishedBackgroundEvents = 3601,
    urlSessionEventDownloadFinished = 3604,
    urlSessionEventDownloadResumed = 3605,
    urlSessionEventDownloadWroteData = 3606,
    urlSessionEventTaskCompleted = 3607,
    urlSessionEventTaskSentBodyData = 3609,
    urlSessionEventTaskWaitingForConnectivity = 3613,
    urlSessionEventTaskFinishedCollectingMetrics = 3614,
    urlSessionEventDataTaskReceivedData = 3618,
    urlSessionEventBetterRouteDiscovered = 3620,
    urlSessionEventBecameStreams = 3621,
    urlSessionEventReadClosed = 3622,
    urlSessionEventWriteClosed = 3623,
    soundEventFinished = 3700,
    stackViewEventReattached = 4500,
    stackViewEventWillDetach = 4501,
    previewPanelEventItemCount = 4700,
    previewPanelEventItemAtIndex = 4701,
    errorEventPresentedWithRecovery = 4900,
    printEventDidRun = 5200,
    sharingEventServicesForItems = 5700,
    sharingEventServiceChosen = 5701,
};

} // namespace tetrad
