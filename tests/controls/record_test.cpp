#include "runtime/controls/dialog_event_accessors.h"

#include <QFont>

#include <gtest/gtest.h>

#include <memory>

namespace tetrad {

namespace {

/// Notes its name when the last holder lets go.
QVariant noting(QStringList *released, const QString &name)
{
    const auto note = [released, name](int *number) {
        released->append(name);
        delete number;
    };
    return QVariant::fromValue(std::shared_ptr<int>(new int(0), note));
}

TEST(Record, IsOneAndKeepsWhatWasSet)
{
    CUI_DialogEvent *const record = CUI_DialogEventObj();
    EXPECT_EQ(record, CUI_DialogEventObj());
    QObject menu;
    QObject view;
    QObject pasteboard;
    DialogEventSetBool(true);
    DialogEventSetLong(Q_INT64_C(0x7edcba9876543210));
    DialogEventSetFloat(0.1F);
    DialogEventSetDouble(0.1);
    DialogEventSetNSRect(1, 2, 3, 4);
    DialogEventSetNSPoint(5, 6);
    DialogEventSetNSSize(7, 8);
    DialogEventSetNSRange(9, 10);
    DialogEventSetOtherNSURL(QUrl(u"file:///other"_qs));
    DialogEventSetColor(Qt::red);
    DialogEventSetNSObject(u"object"_qs);
    DialogEventSetNSMenu(&menu);
    DialogEventSetView(&view);
    DialogEventSetPasteboard(&pasteboard);
    DialogEventSetContext(&menu);
    DialogEventSetDraggingInfo(1);
    DialogEventSetTintConfiguration(2);
    DialogEventSetTableColumn(3);
    record->urlObj = QUrl(u"file:///one"_qs);
    record->arrayObj = {4, 5};

    EXPECT_TRUE(DialogEventBool());
    EXPECT_EQ(DialogEventLong(), Q_INT64_C(0x7edcba9876543210));
    EXPECT_EQ(double(DialogEventFloat()), double(0.1F));
    EXPECT_NE(double(DialogEventFloat()), 0.1) << "single precision";
    EXPECT_EQ(DialogEventDouble(), 0.1);
    EXPECT_EQ(DialogEventRect(), QRectF(1, 2, 3, 4));
    EXPECT_EQ(record->pointVal, QPointF(5, 6));
    EXPECT_EQ(DialogEventNSSize(), QSizeF(7, 8));
    EXPECT_EQ(record->rangeVal.location, 9U);
    EXPECT_EQ(record->rangeVal.length, 10U);
    EXPECT_EQ(DialogEventNSURL(), QUrl(u"file:///one"_qs));
    EXPECT_EQ(record->otherUrlObj, QUrl(u"file:///other"_qs));
    EXPECT_EQ(DialogEventNSArray(), QVariantList({4, 5}));
    EXPECT_EQ(DialogEventColor(), QColor(Qt::red));
    EXPECT_EQ(DialogEventNSObject(), QVariant(u"object"_qs));
    EXPECT_EQ(DialogEventNSMenu(), &menu);
    EXPECT_EQ(DialogEventView(), &view);
    EXPECT_EQ(record->pasteboardObj, &pasteboard);
    EXPECT_EQ(record->context, &menu);
    EXPECT_EQ(record->dragInfo, QVariant(1));
    EXPECT_EQ(DialogEventTintConfiguration(), QVariant(2));
    EXPECT_EQ(record->tableColumnObj, QVariant(3));
    DialogEventSetMenu(&view);
    EXPECT_EQ(record->menuObj, &view);
}

TEST(Record, ForgetsObjectsThatAreGone)
{
    {
        QObject view;
        DialogEventSetView(&view);
    }
    EXPECT_EQ(DialogEventView(), nullptr);
}

TEST(Record, ReleasesItsObjectsInOrder)
{
    QStringList released;
    QObject object;
    CUI_DialogEvent record;
    record.tableColumnObj = noting(&released, u"column"_qs);
    record.tintConfigurationObj = noting(&released, u"tint"_qs);
    record.URLSessionDataTaskObj = noting(&released, u"data task"_qs);
    record.URLSessionTaskObj = noting(&released, u"task"_qs);
    record.object = noting(&released, u"object"_qs);
    record.dragInfo = noting(&released, u"drag"_qs);
    record.arrayObj = {noting(&released, u"array"_qs)};
    record.caAction = noting(&released, u"action"_qs);
    record.urlObj = QUrl(u"file:///one"_qs);
    record.otherUrlObj = QUrl(u"file:///other"_qs);
    record.errorObj = {u"domain"_qs, 1, u"description"_qs};
    record.pbTypes = QStringList(u"text/plain"_qs);
    record.stringObj = u"text"_qs;
    record.fontObj = QFont(u"Menlo"_qs, 40);
    record.colorObj = Qt::red;
    record.viewObj = record.menuObj = record.pasteboardObj = &object;
    record.dataObj = "data";
    record.longVal = 3;

    record.releaseObjects();

    EXPECT_EQ(released, QStringList({u"array"_qs, u"drag"_qs, u"object"_qs, u"task"_qs, u"data task"_qs, u"tint"_qs,
                                     u"column"_qs}));
    EXPECT_TRUE(record.otherUrlObj.isEmpty());
    EXPECT_EQ(record.errorObj, ErrorObject());
    EXPECT_TRUE(record.pbTypes.isEmpty());
    EXPECT_TRUE(record.stringObj.isNull());
    EXPECT_EQ(record.fontObj, QFont());
    EXPECT_FALSE(record.colorObj.isValid());
    EXPECT_TRUE(!record.viewObj && !record.menuObj && !record.pasteboardObj);
    EXPECT_TRUE(record.dataObj.isNull());
    EXPECT_EQ(record.urlObj, QUrl(u"file:///one"_qs)) << "deliberately kept";
    EXPECT_TRUE(record.caAction.isValid()) << "deliberately kept";
    EXPECT_EQ(record.longVal, 3);
}

qint64 addAll(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    return event + 10 * tag + 100 * wndTag + 1000 * obj;
}

TEST(DialogFunction, IsCalledOnlyWhenInstalled)
{
    EXPECT_EQ(CUI_OnDialogFunction(), nullptr);
    EXPECT_EQ(CallUserDefinedOnDialogFunction(1, 2, 3, 4), 0);
    EXPECT_EQ(CUI_SetOnDialogFunction(addAll), nullptr);
    EXPECT_EQ(CallUserDefinedOnDialogFunction(1, 2, 3, 4), 4321);
    EXPECT_EQ(CUI_SetOnDialogFunction(nullptr), addAll);
    EXPECT_EQ(CallUserDefinedOnDialogFunction(1, 2, 3, 4), 0);
}

} // namespace

} // namespace tetrad
