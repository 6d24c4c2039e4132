#include "runtime/controls/dialog_event_accessors.h"
#include "tests/table.h"

#include <QFont>

#include <memory>

using namespace tetrad;

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

qint64 addAll(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    return event + 10 * tag + 100 * wndTag + 1000 * obj;
}

} // namespace

TEST(DialogEvent, ReleasesItsObjectsInOrder)
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
    record.urlObj = record.otherUrlObj = QUrl(u"file:///one"_qs);
    record.errorObj = {u"domain"_qs, 1, u"description"_qs};
    record.stringObj = u"text"_qs;
    record.fontObj = QFont(u"Menlo"_qs, 40);
    record.colorObj = Qt::red;
    record.viewObj = record.menuObj = record.pasteboardObj = &object;
    record.dataObj = "data";
    record.releaseObjects();
    EXPECT_EQ(released.join(u' '), u"array drag object task data task tint column"_qs);
    EXPECT_TRUE(record.otherUrlObj.isEmpty() && record.stringObj.isNull() && record.dataObj.isNull());
    EXPECT_TRUE(record.errorObj == ErrorObject() && record.fontObj == QFont() && !record.colorObj.isValid());
    EXPECT_TRUE(!record.viewObj && !record.menuObj && !record.pasteboardObj);
    EXPECT_TRUE(!record.urlObj.isEmpty() && record.caAction.isValid()) << "deliberately kept";
}

TEST(DialogEvent, ForgetsObjectsThatAreGone)
{
    DialogEventSetView(std::make_unique<QObject>().get());
    EXPECT_EQ(DialogEventView(), nullptr);
}

TEST(DialogEvent, FunctionIsCalledOnlyWhenInstalled)
{
    EXPECT_EQ(CallUserDefinedOnDialogFunction(1, 2, 3, 4), 0);
    EXPECT_EQ(CUI_SetOnDialogFunction(addAll), nullptr);
    EXPECT_EQ(CallUserDefinedOnDialogFunction(1, 2, 3, 4), 4321);
    EXPECT_EQ(CUI_SetOnDialogFunction(nullptr), addAll);
    EXPECT_EQ(CallUserDefinedOnDialogFunction(1, 2, 3, 4), 0);
}
