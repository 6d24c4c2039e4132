#pragma once

#include <QtGlobal>

namespace tetrad {

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

} // namespace tetrad
