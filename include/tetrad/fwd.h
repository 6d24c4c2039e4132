#pragma once

#include <QtGlobal>

namespace tetrad {

/// The number that names a window, alert, menu, view or control: 1 to largestTag. Its absolute value
/// is the identity; window and alert statements read a positive tag as "show" and a zero or
/// negative one as "define without showing". 0 names nothing. Wherever a tag is expected a value
/// above largestTag is an object's address instead.
using Tag = qint64;

class Alert;
class CUI_AlertDelegate;
class CUI_AppDelegate;
class CUI_ControlFormatter;
class CUI_ControlTarget;
class CUI_DialogEvent;
class CUI_OutlineViewDelegate;
class CUI_PrintToWindowItem;
class CUI_PrintToWindowScrollView;
class CUI_PrintToWindowView;
class CUI_TabViewDelegate;
class CUI_TableViewDelegate;
class CUI_TextViewDelegate;
class CUI_TokenFieldDelegate;
class CUI_WindowController;
class CUI_WindowDelegate;
class CharacterSet;
class ComboBoxSC;
class ConsoleDocument;
class ContentViewSC;
class DisplayList;
class EventView;
class FloatingPanel;
class FormatArgument;
class ImageViewSC;
class MDAObj;
class MainMenu;
class OutlineItem;
class OutlineViewSC;
class PanelSC;
class Popover;
class SegmentedControlSC;
class SplitViewSC;
class TabViewSC;
class TableRowViewSC;
class TableViewSC;
class TextAttributes;
class TextViewSC;
class TokenFieldSC;
class ViewSC;
class VisualEffectView;
class Window;
class WindowSC;
class ZRInkeyFormat;
class ZRInkeyWindow;
class ZRInputFormat;
class ZRInputWindow;

struct CUI_PrintToWindowDefaults;
struct ErrorObject;
struct EventRange;
struct LineStyle;
struct ParagraphStyle;
struct ReportingView;

} // namespace tetrad
