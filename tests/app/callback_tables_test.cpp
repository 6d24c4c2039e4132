// Every callback of the delegates and every accessor of the event record, each once: code, preset, object, answer.

#include "tests/support/windows.h"

using namespace tetrad;

namespace {

using App = CUI_AppDelegate;
using Delegate = CUI_WindowDelegate;

#define ASK(call) [](App &it) -> QVariant { return call; }
#define TELL(call) [](App &it) { return (call), QVariant(); }

App *queried = nullptr;
QString seen;
QMenu *dockMenu = nullptr;

QString worded(const QVariant &value)
{
    return value.value<QObject *>() == qApp           ? u"application"_s
           : value.typeId() == QMetaType::QVariantMap ? value.toMap().keys().join(u' ')
           : value.canConvert<ErrorObject>()          ? value.value<ErrorObject>().description
           : value.canConvert<QStringList>()          ? value.toStringList().join(u' ')
                                                      : value.toString();
}

// Keeps what a callback stored that was not there before, then changes each answer.
QVariant look(qint64 event, const QVariant &object)
{
    seen = (queried->boolVal ? u"yes "_s : u"no "_s) + QString::number(event) + u' ' + worded(object);
    for (const QVariant &field : {QVariant(queried->longVal), QVariant(queried->stringVal), QVariant(queried->arrayVal),
                                  QVariant(queried->dictVal), QVariant(queried->urlVal)}) {
        seen += worded(field) == u"77"_s || worded(field).isEmpty() ? u""_s : u", " + worded(field);
    }
    seen += queried->menuObj ? u""_s : u", no menu"_s;
    queried->boolVal = !queried->boolVal;
    queried->longVal = queried->longVal + 1;
    queried->menuObj = dockMenu;
    return {};
}

// A preset answer is the same whatever was there before; one that is not preset is left out.
QString happen(const std::function<QVariant(App &)> &callback)
{
    QStringList both;
    for (const bool before : {false, true}) {
        App own;
        queried = &own;
        own.boolVal = before;
        own.longVal = 77;
        own.menuObj = dockMenu;
        const QVariant answer = callback(own);
        both << (answer.isValid() ? QString(seen % u" -> " % worded(answer)) : seen);
    }
    return both.at(0) == both.at(1) ? both.at(0) : both.at(0).section(u' ', 1);
}

TEST(AppDelegateTable, NotificationsQuestionsAndArguments)
{
    CUI_SetOnAppEventFunction(look);
    QMenu menu;
    dockMenu = &menu;
    // clang-format off
    void (App::*const all[])() = {
        &App::applicationWillFinishLaunching, &App::applicationDidFinishLaunching, &App::applicationWillTerminate,
        &App::applicationWillBecomeActive, &App::applicationDidBecomeActive, &App::applicationWillResignActive,
        &App::applicationDidResignActive, &App::applicationWillHide, &App::applicationDidHide,
        &App::applicationWillUnhide, &App::applicationDidUnhide, &App::applicationWillUpdate,
        &App::applicationDidUpdate, &App::applicationDidChangeScreenParameters,
        &App::applicationDidChangeOcclusionState};
    // clang-format on
    QStringList codes;
    for (const auto callback : all) {
        codes << happen([callback](App &own) { return (own.*callback)(), QVariant(); });
    }
    EXPECT_EQ(codes.join(u','), u"1 ,2 ,5 ,6 ,7 ,8 ,9 ,10 ,11 ,12 ,13 ,14 ,15 ,19 ,35 "_s);
    const std::pair<std::function<QVariant(App &)>, QString> rows[] = {
        {ASK(it.applicationShouldTerminate()), u"3 application, 1 -> 2"_s},
        {ASK(it.applicationShouldTerminateAfterLastWindowClosed()), u"no 4 application -> true"_s},
        {ASK(it.applicationShouldHandleReopen(true)), u"yes 16 application -> false"_s},
        {ASK(it.applicationDockMenu() == dockMenu), u"17 application, no menu -> true"_s},
        {ASK(it.openFileWithoutUI(u"f"_s)), u"no 20 f, f -> true"_s},
        {ASK(it.openTempFile(u"f"_s)), u"no 21 f, f -> true"_s},
        {ASK(it.applicationOpenUntitledFile()), u"no 22 application -> true"_s},
        {ASK(it.applicationShouldOpenUntitledFile()), u"no 23 application -> true"_s},
        {ASK(it.printFile(u"f"_s)), u"yes 24 f, f -> false"_s},
        {ASK(it.printFiles({u"f"_s, u"g"_s}, {{u"k"_s, 1}}, true)), u"yes 25 f g, 1, f g, k -> 2"_s},
        {TELL(it.didRegisterForRemoteNotificationsWithDeviceToken("t")), u"26 t"_s},
        {TELL(it.didFailToRegisterForRemoteNotificationsWithError({u"d"_s, 1, u"why"_s})), u"27 why"_s},
        {TELL(it.didReceiveRemoteNotification({{u"k"_s, 1}})), u"28 k, k"_s},
        {TELL(it.didDecodeRestorableState(u"c"_s)), u"29 c"_s},
        {TELL(it.willEncodeRestorableState(u"c"_s)), u"30 c"_s},
        {TELL(it.didUpdateUserActivity(u"c"_s)), u"34 c"_s},
        {ASK(it.willContinueUserActivityWithType(u"a"_s)), u"no 31 a, a -> true"_s},
        {TELL(it.didFailToContinueUserActivityWithType(u"a"_s, {})), u"33 a, a"_s},
        {TELL(it.openFiles({u"/d/f.x"_s, u"/g"_s})),
         u"36 file:///d/f.x file:///g, f.x, file:///d/f.x file:///g, file:///d/f.x"_s},
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

using WindowDelegateTable = WindowTest;

TEST_F(WindowDelegateTable, NotificationsAndQuestions)
{
    Window *const window = open(7);
    Delegate &it = *CUI_WindowDelegateObj();
    EXPECT_FALSE(Delegate().boolVal || Delegate().dragInside || App().boolVal || App().longVal ||
                 App().delegateUserData || CUI_AlertDelegate().lastSuppressionButtonState ||
                 ContentViewSC().isFlipped() || ContentViewSC().dragInside() ||
                 Window(QRectF()).autorecalculatesKeyViewLoop() || window->windowController()->window() != window);
    CUI_SetOnDialogFunction(recordCall);
    // A star: the window is the output window by then.
    valuesOf = [](qint64 /*event*/) -> QString {
        const CUI_DialogEvent &record = *CUI_DialogEventObj();
        return (CUI_OutputWindowTag() == 7 ? u"*"_s : u""_s) % (record.boolVal ? u"yes"_s : u""_s) %
               (record.longVal == 3 ? u"3"_s : u""_s) % (record.sizeVal.isEmpty() ? u""_s : u"size"_s) %
               (record.rectVal.isEmpty() ? u""_s : u"rect"_s);
    };
    atEvent = [](qint64) {
        CUI_DialogEvent &record = *CUI_DialogEventObj();
        record.boolVal = !record.boolVal;
        ++record.longVal;
        record.sizeVal += QSizeF(1, 1);
        record.rectVal.translate(1, 1);
    };
    const auto callsOf = [](const auto &callback) {
        *CUI_DialogEventObj() = {};
        CUI_OutputWindowSetTag(0);
        callback();
        return std::exchange(dialogCalls, {}).join(u'|').remove(u" 7 7"_s);
    };
    // clang-format off
    void (Delegate::*const all[])(Window *) = {
        &Delegate::windowWillBeginSheet, &Delegate::windowDidEndSheet, &Delegate::windowDidResize,
        &Delegate::windowWillStartLiveResize, &Delegate::windowDidEndLiveResize, &Delegate::windowWillMiniaturize,
        &Delegate::windowDidMiniaturize, &Delegate::windowDidDeminiaturize, &Delegate::windowWillEnterFullScreen,
        &Delegate::windowDidEnterFullScreen, &Delegate::windowWillExitFullScreen, &Delegate::windowDidExitFullScreen,
        &Delegate::windowDidFailToEnterFullScreen, &Delegate::windowDidFailToExitFullScreen, &Delegate::windowWillMove,
        &Delegate::windowDidMove, &Delegate::windowDidChangeScreen, &Delegate::windowWillClose,
        &Delegate::windowDidBecomeKey, &Delegate::windowDidResignKey, &Delegate::windowDidBecomeMain,
        &Delegate::windowDidResignMain, &Delegate::windowDidUpdate};
    // clang-format on
    QStringList codes;
    for (const auto callback : all) {
        codes << callsOf([&] { (it.*callback)(window); });
    }
    EXPECT_EQ(codes.join(u','),
              u"10001 *,10002 *,10004,10005,10006 *,10007,10008,10009 *,10014,10015 *,10016,10017 *,10022,10025,"
              "10026 *,10027 *,10028 *,10032,10033 *,10034,10035 *,10036,10037"_s);
    QMenu menu;
    const Tag object = tagFromObject(&menu);
    const QRectF rect(1, 2, 30, 40);
    const QRectF movedRect = rect.translated(1, 1);
    const QSizeF size(30, 40);
    const QSizeF larger(31, 41);
    // Whether the callback's answer came back.
    const std::pair<std::function<bool()>, QString> rows[] = {
        {[&] { return it.windowWillPositionSheet(window, &menu, rect) == movedRect && lastObject == object; },
         u"10000 rect"_s},
        {[&] { return it.windowWillResize(window, size) == larger; }, u"10003 *size"_s},
        {[&] { return it.windowWillUseStandardFrame(window, rect) == movedRect; }, u"10010 rect"_s},
        {[&] { return !it.windowShouldZoom(window, rect); }, u"10011 yesrect"_s},
        {[&] { return it.windowWillUseFullScreenContentSize(window, size) == larger; }, u"10012 size"_s},
        {[&] { return it.windowWillUseFullScreenPresentationOptions(window, 3) == 4; }, u"10013 3"_s},
        {[&] { return !it.windowShouldClose(window); }, u"10031 yes"_s},
        {[&] { return !it.windowShouldPopUpDocumentPathMenu(window, &menu) && lastObject == object; }, u"10038 yes"_s},
    };
    for (const auto &[ask, expected] : rows) {
        EXPECT_EQ(callsOf([&answers = ask] { EXPECT_TRUE(answers()); }), expected);
    }
}

TEST(DialogEventRecord, AccessorsHaveTheirFieldsAndReleaseKeepsTwo)
{
    CUI_DialogEvent *const record = CUI_DialogEventObj();
    QObject object;
    record->boolVal = true;
    DialogEventSetNSRect(1, 2, 3, 4);
    DialogEventSetNSPoint(5, 6);
    DialogEventSetNSSize(7, 8);
    DialogEventSetNSRange(9, 10);
    EXPECT_TRUE(record->rectVal == QRectF(1, 2, 3, 4) && record->pointVal == QPointF(5, 6));
    EXPECT_TRUE(record->sizeVal == QSizeF(7, 8) && record->rangeVal.location == 9 && record->rangeVal.length == 10);
    record->arrayObj = {1};
    record->urlObj = QUrl(u"a:b"_s);
    record->caAction = u"kept"_s;
    DialogEventSetOtherNSURL(QUrl(u"c:d"_s));
    DialogEventSetColor(Qt::red);
    DialogEventSetNSObject(u"object"_s);
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
