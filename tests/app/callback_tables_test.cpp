// Every callback of the delegates and every accessor of the event record, each once: code, preset, object, answer.

#include "tests/support/windows.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>
#include <tetrad/app/window_delegate.h>
#include <tetrad/events/event_codes.h>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

using App = CUI_AppDelegate;
using Delegate = CUI_WindowDelegate;

#define ASK(call) [](App &it) -> QVariant { return call; }
#define TELL(call) [](App &it) { return (call), QVariant(); }
#define ASK_WINDOW(call) [&](Delegate &it, Window *window) -> QVariant { return call; }

App *asked = nullptr;
QString seen;
QMenu *dockMenu = nullptr;

QString worded(const QVariant &value)
{
    if (value.value<QObject *>() == qApp) {
        return u"application"_s;
    }
    return value.typeId() == QMetaType::QVariantMap ? value.toMap().keys().join(u' ')
           : value.canConvert<ErrorObject>()        ? value.value<ErrorObject>().description
           : value.canConvert<QStringList>()        ? value.toStringList().join(u' ')
                                                    : value.toString();
}

// What a callback stored differs from what was there before; then each answer is changed.
QVariant look(qint64 event, const QVariant &object)
{
    seen = (asked->boolVal ? u"yes "_s : u"no "_s) + QString::number(event) + u' ' + worded(object);
    const QVariant fields[] = {asked->longVal, asked->stringVal, asked->arrayVal, asked->dictVal, asked->urlVal};
    for (const QVariant &field : fields) {
        if (worded(field) != u"77"_s && !worded(field).isEmpty()) {
            seen += u", " + worded(field);
        }
    }
    asked->boolVal = !asked->boolVal;
    asked->longVal = asked->longVal + 1;
    seen += asked->menuObj ? u", a menu"_s : u""_s;
    asked->menuObj = dockMenu;
    return {};
}

// A preset answer is the same whatever was there before; one that is not preset is left out.
QString happen(const std::function<QVariant(App &)> &callback)
{
    QStringList both;
    for (const bool before : {false, true}) {
        App own;
        asked = &own;
        own.boolVal = before;
        own.longVal = 77;
        own.menuObj = dockMenu;
        const QVariant answer = callback(own);
        both << (answer.isValid() ? QString(seen % u" -> " % worded(answer)) : seen);
    }
    return both.at(0) == both.at(1) ? both.at(0) : both.at(0).section(u' ', 1);
}

TEST(AppDelegateTable, Notifications)
{
    CUI_SetOnAppEventFunction(look);
    const std::pair<void (App::*)(), const char *> rows[] = {
        {&App::applicationWillFinishLaunching, "1"},
        {&App::applicationDidFinishLaunching, "2"},
        {&App::applicationWillTerminate, "5"},
        {&App::applicationWillBecomeActive, "6"},
        {&App::applicationDidBecomeActive, "7"},
        {&App::applicationWillResignActive, "8"},
        {&App::applicationDidResignActive, "9"},
        {&App::applicationWillHide, "10"},
        {&App::applicationDidHide, "11"},
        {&App::applicationWillUnhide, "12"},
        {&App::applicationDidUnhide, "13"},
        {&App::applicationWillUpdate, "14"},
        {&App::applicationDidUpdate, "15"},
        {&App::applicationDidChangeScreenParameters, "19"},
        {&App::applicationDidChangeOcclusionState, "35"},
    };
    for (const auto &[callback, code] : rows) {
        const auto call = [act = callback](App &own) { return (own.*act)(), QVariant(); };
        EXPECT_EQ(happen(call), QString(QString::fromLatin1(code) + u' '));
    }
    CUI_SetOnAppEventFunction(nullptr);
}

TEST(AppDelegateTable, QuestionsAndArguments)
{
    CUI_SetOnAppEventFunction(look);
    QMenu menu;
    dockMenu = &menu;
    const std::pair<std::function<QVariant(App &)>, QString> rows[] = {
        {ASK(it.applicationShouldTerminate()), u"3 application, 1, a menu -> 2"_s},
        {ASK(it.applicationShouldTerminateAfterLastWindowClosed()), u"no 4 application, a menu -> true"_s},
        {ASK(it.applicationShouldHandleReopen(true)), u"yes 16 application, a menu -> false"_s},
        {ASK(it.applicationDockMenu() == dockMenu), u"17 application -> true"_s},
        {ASK(it.openFileWithoutUI(u"f"_s)), u"no 20 f, f, a menu -> true"_s},
        {ASK(it.openTempFile(u"f"_s)), u"no 21 f, f, a menu -> true"_s},
        {ASK(it.applicationOpenUntitledFile()), u"no 22 application, a menu -> true"_s},
        {ASK(it.applicationShouldOpenUntitledFile()), u"no 23 application, a menu -> true"_s},
        {ASK(it.printFile(u"f"_s)), u"yes 24 f, f, a menu -> false"_s},
        {ASK(it.printFiles({u"f"_s, u"g"_s}, {{u"k"_s, 1}}, true)), u"yes 25 f g, 1, f g, k, a menu -> 2"_s},
        {TELL(it.didRegisterForRemoteNotificationsWithDeviceToken("t")), u"26 t, a menu"_s},
        {TELL(it.didFailToRegisterForRemoteNotificationsWithError({u"d"_s, 1, u"why"_s})), u"27 why, a menu"_s},
        {TELL(it.didReceiveRemoteNotification({{u"k"_s, 1}})), u"28 k, k, a menu"_s},
        {TELL(it.didDecodeRestorableState(u"c"_s)), u"29 c, a menu"_s},
        {TELL(it.willEncodeRestorableState(u"c"_s)), u"30 c, a menu"_s},
        {TELL(it.didUpdateUserActivity(u"c"_s)), u"34 c, a menu"_s},
        {ASK(it.willContinueUserActivityWithType(u"a"_s)), u"no 31 a, a, a menu -> true"_s},
        {TELL(it.didFailToContinueUserActivityWithType(u"a"_s, {})), u"33 a, a, a menu"_s},
        {TELL(it.openFiles({u"/d/f.x"_s, u"/g"_s})),
         u"36 file:///d/f.x file:///g, f.x, file:///d/f.x file:///g, file:///d/f.x, a menu"_s},
        {[](App &it) {
             static qint64 event = 0;
             it.delegateUserData = 5;
             it.delegateCallback = [](qint64 code, qintptr userData) { event = 10 * code + userData; };
             seen = u"0 "_s;
             it.applicationDidHide();
             return QVariant(event);
         },
         u"0  -> 115"_s},
    };
    for (const auto &[call, expected] : rows) {
        EXPECT_EQ(happen(call), expected);
    }
    dockMenu = nullptr;
    CUI_SetOnAppEventFunction(nullptr);
}

// A star: the window is the output window by then.
QString presets(qint64 /*event*/)
{
    const CUI_DialogEvent &record = *CUI_DialogEventObj();
    return QString(CUI_OutputWindowTag() == 7 ? u"*"_s : u""_s) % (record.boolVal ? u"yes"_s : u""_s) %
           (record.longVal == 3 ? u"3"_s : u""_s) % (record.sizeVal.isEmpty() ? u""_s : u"size"_s) %
           (record.rectVal.isEmpty() ? u""_s : u"rect"_s);
}

class WindowDelegateTable : public WindowTest
{
protected:
    QString happen(const std::function<QVariant(Delegate &, Window *)> &callback)
    {
        CUI_DialogEvent &record = *CUI_DialogEventObj();
        record.boolVal = false;
        record.longVal = 0;
        record.sizeVal = {};
        record.rectVal = {};
        CUI_OutputWindowSetTag(0);
        dialogCalls.clear();
        const QVariant answer = callback(*CUI_WindowDelegateObj(), m_window);
        return dialogCalls.join(u'|') + (answer.isValid() ? (answer.toBool() ? u" -> true"_s : u" -> false"_s) : u""_s);
    }
    void SetUp() override
    {
        m_window = open(7);
        QApplication::processEvents();
        CUI_SetOnDialogFunction(recordCall);
        valuesOf = presets;
        atEvent = [](qint64) {
            CUI_DialogEvent &record = *CUI_DialogEventObj();
            record.boolVal = !record.boolVal;
            ++record.longVal;
            record.sizeVal += QSizeF(1, 1);
            record.rectVal.translate(1, 1);
        };
    }
    Window *m_window = nullptr;
};

TEST_F(WindowDelegateTable, Notifications)
{
    const std::pair<void (Delegate::*)(Window *), const char *> rows[] = {
        {&Delegate::windowWillBeginSheet, "10001 7 7 *"},
        {&Delegate::windowDidEndSheet, "10002 7 7 *"},
        {&Delegate::windowDidResize, "10004 7 7"},
        {&Delegate::windowWillStartLiveResize, "10005 7 7"},
        {&Delegate::windowDidEndLiveResize, "10006 7 7 *"},
        {&Delegate::windowWillMiniaturize, "10007 7 7"},
        {&Delegate::windowDidMiniaturize, "10008 7 7"},
        {&Delegate::windowDidDeminiaturize, "10009 7 7 *"},
        {&Delegate::windowWillEnterFullScreen, "10014 7 7"},
        {&Delegate::windowDidEnterFullScreen, "10015 7 7 *"},
        {&Delegate::windowWillExitFullScreen, "10016 7 7"},
        {&Delegate::windowDidExitFullScreen, "10017 7 7 *"},
        {&Delegate::windowDidFailToEnterFullScreen, "10022 7 7"},
        {&Delegate::windowDidFailToExitFullScreen, "10025 7 7"},
        {&Delegate::windowWillMove, "10026 7 7 *"},
        {&Delegate::windowDidMove, "10027 7 7 *"},
        {&Delegate::windowDidChangeScreen, "10028 7 7 *"},
        {&Delegate::windowWillClose, "10032 7 7"},
        {&Delegate::windowDidBecomeKey, "10033 7 7 *"},
        {&Delegate::windowDidResignKey, "10034 7 7"},
        {&Delegate::windowDidBecomeMain, "10035 7 7 *"},
        {&Delegate::windowDidResignMain, "10036 7 7"},
        {&Delegate::windowDidUpdate, "10037 7 7"},
    };
    for (const auto &[callback, expected] : rows) {
        const auto call = [act = callback](Delegate &it, Window *window) { return (it.*act)(window), QVariant(); };
        EXPECT_EQ(happen(call), QString::fromLatin1(expected));
    }
}

TEST_F(WindowDelegateTable, Questions)
{
    QMenu menu;
    const QRectF rect(1, 2, 30, 40);
    const QRectF movedRect = rect.translated(1, 1);
    const QSizeF size(30, 40);
    const QSizeF larger(31, 41);
    const std::pair<std::function<QVariant(Delegate &, Window *)>, QString> rows[] = {
        {ASK_WINDOW(it.windowWillPositionSheet(window, &menu, rect) == movedRect && lastObject == tagFromObject(&menu)),
         u"10000 7 7 rect -> true"_s},
        {ASK_WINDOW(it.windowWillResize(window, size) == larger), u"10003 7 7 *size -> true"_s},
        {ASK_WINDOW(it.windowWillUseStandardFrame(window, rect) == movedRect), u"10010 7 7 rect -> true"_s},
        {ASK_WINDOW(it.windowShouldZoom(window, rect)), u"10011 7 7 yesrect -> false"_s},
        {ASK_WINDOW(it.windowWillUseFullScreenContentSize(window, size) == larger), u"10012 7 7 size -> true"_s},
        {ASK_WINDOW(it.windowWillUseFullScreenPresentationOptions(window, 3) == 4), u"10013 7 7 3 -> true"_s},
        {ASK_WINDOW(it.windowShouldClose(window)), u"10031 7 7 yes -> false"_s},
        {ASK_WINDOW(it.windowShouldPopUpDocumentPathMenu(window, &menu) || lastObject != tagFromObject(&menu)),
         u"10038 7 7 yes -> false"_s},
    };
    for (const auto &[call, expected] : rows) {
        EXPECT_EQ(happen(call), expected);
    }
}

TEST(DialogEventRecord, EachAccessorHasItsFieldAndReleaseKeepsTwo)
{
    CUI_DialogEvent *const record = CUI_DialogEventObj();
    QObject object;
    DialogEventSetBool(true);
    DialogEventSetLong(1);
    DialogEventSetFloat(2);
    DialogEventSetDouble(3);
    DialogEventSetNSRect(1, 2, 3, 4);
    DialogEventSetNSPoint(5, 6);
    DialogEventSetNSSize(7, 8);
    DialogEventSetNSRange(9, 10);
    EXPECT_TRUE(record->boolVal && DialogEventBool() && record->longVal == 1 && DialogEventLong() == 1);
    EXPECT_TRUE(record->floatVal == 2 && DialogEventFloat() == 2 && record->doubleVal == 3 && DialogEventDouble() == 3);
    EXPECT_TRUE(record->rectVal == QRectF(1, 2, 3, 4) && DialogEventRect() == record->rectVal);
    EXPECT_TRUE(record->pointVal == QPointF(5, 6) && record->sizeVal == QSizeF(7, 8));
    EXPECT_TRUE(DialogEventNSSize() == record->sizeVal && record->rangeVal.location == 9 &&
                record->rangeVal.length == 10);

    record->arrayObj = {1};
    record->urlObj = QUrl(u"a:b"_s);
    record->caAction = u"kept"_s;
    DialogEventSetOtherNSURL(QUrl(u"c:d"_s));
    DialogEventSetColor(Qt::red);
    DialogEventSetNSObject(u"object"_s);
    DialogEventSetNSMenu(&object);
    EXPECT_EQ(DialogEventNSMenu(), &object);
    record->menuObj = nullptr;
    DialogEventSetMenu(&object);
    DialogEventSetView(&object);
    DialogEventSetPasteboard(&object);
    DialogEventSetContext(&object);
    DialogEventSetDraggingInfo(u"drag"_s);
    DialogEventSetTintConfiguration(u"tint"_s);
    DialogEventSetTableColumn(u"column"_s);
    EXPECT_TRUE(DialogEventNSArray() == QVariantList{1} && DialogEventNSURL() == QUrl(u"a:b"_s));
    EXPECT_TRUE(record->otherUrlObj == QUrl(u"c:d"_s) && record->colorObj == Qt::red && DialogEventColor() == Qt::red);
    EXPECT_TRUE(record->object == u"object"_s && DialogEventNSObject() == u"object"_s && record->menuObj == &object);
    EXPECT_TRUE(record->viewObj == &object && DialogEventView() == &object && record->pasteboardObj == &object);
    EXPECT_TRUE(record->context == &object && record->dragInfo == u"drag"_s && record->tableColumnObj == u"column"_s);
    EXPECT_TRUE(record->tintConfigurationObj == u"tint"_s && DialogEventTintConfiguration() == u"tint"_s);

    record->errorObj.code = 1;
    record->pbTypes << u"type"_s;
    record->stringObj = u"text"_s;
    record->fontObj = QFont(u"other"_s, 30);
    record->URLSessionTaskObj = record->URLSessionDataTaskObj = 1;
    record->dataObj = "data";
    record->releaseObjects();
    EXPECT_TRUE(record->errorObj.code == 0 && record->arrayObj.isEmpty() && record->otherUrlObj.isEmpty());
    EXPECT_TRUE(!record->dragInfo.isValid() && record->pbTypes.isEmpty() && record->stringObj.isNull());
    EXPECT_TRUE(record->fontObj == QFont() && !record->colorObj.isValid() && !record->viewObj && !record->menuObj);
    EXPECT_TRUE(!record->object.isValid() && !record->pasteboardObj && !record->URLSessionTaskObj.isValid());
    EXPECT_TRUE(!record->URLSessionDataTaskObj.isValid() && record->dataObj.isEmpty());
    EXPECT_TRUE(!record->tintConfigurationObj.isValid() && !record->tableColumnObj.isValid());
    EXPECT_TRUE(record->urlObj == QUrl(u"a:b"_s) && record->caAction == u"kept"_s) << "programs rely on these";
    EXPECT_TRUE(record->boolVal && record->context == &object) << "no objects";
}

} // namespace
