#include "runtime/controls/lookup/class_names.h"

#include <tetrad/events/tag.h>

#include <QObject>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <iterator>
#include <string_view>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

using Name = std::string_view;

struct ClassRow
{
    Name name;
    Name superclass;
    // This platform's classes, each as its meta-object names it.
    std::array<Name, 3> platformClasses;
};

// The one place where a class of this platform gets its name. The rows with an exact meaning elsewhere (NSView,
// ViewSC, ContentViewSC, NSVisualEffectView, NSSegmentedControl) have one platform class only.
constexpr ClassRow classTable[] = {
    {"NSObject", "", {"QObject"}},
    {"NSView", "NSObject", {"QWidget"}},
    {"ViewSC", "NSView", {"tetrad::ViewSC"}},
    {"ContentViewSC", "NSView", {"tetrad::ContentViewSC"}},
    {"NSVisualEffectView", "NSView", {"tetrad::VisualEffectView"}},
    {"NSBox", "NSView", {"QGroupBox"}},
    {"NSProgressIndicator", "NSView", {"QProgressBar"}},
    {"NSScrollView", "NSView", {"QAbstractScrollArea"}},
    {"NSSplitView", "NSView", {"QSplitter"}},
    {"NSTableHeaderView", "NSView", {"QHeaderView"}},
    {"NSTabView", "NSView", {"QTabWidget"}},
    {"NSText", "NSView", {}},
    {"NSTextView", "NSText", {"QPlainTextEdit", "QTextEdit"}},
    {"NSControl", "NSView", {}},
    {"NSButton", "NSControl", {"QAbstractButton"}},
    {"NSPopUpButton", "NSButton", {"QComboBox"}},
    {"NSComboBox", "NSTextField", {"tetrad::ComboBoxSC"}},
    {"NSImageView", "NSControl", {"tetrad::ImageViewSC"}},
    {"NSSlider", "NSControl", {"QSlider", "QDial"}},
    {"NSScroller", "NSControl", {"QScrollBar"}},
    {"NSStepper", "NSControl", {"QAbstractSpinBox"}},
    {"NSDatePicker", "NSControl", {"QDateTimeEdit", "QCalendarWidget"}},
    {"NSSegmentedControl", "NSControl", {"tetrad::SegmentedControlSC"}},
    {"NSTableView", "NSControl", {"QTableView", "QListView"}},
    {"NSOutlineView", "NSTableView", {"QTreeView"}},
    {"NSTextField", "NSControl", {"QLineEdit", "QLabel"}},
    {"NSTokenField", "NSTextField", {"tetrad::TokenFieldSC"}},
    {"NSToolbar", "NSObject", {"QToolBar"}},
    {"NSToolbarItem", "NSObject", {"QAction"}},
    {"NSMenu", "NSObject", {"QMenu"}},
    {"NSWindow", "NSObject", {"QMainWindow"}},
    {"NSPopover", "NSObject", {"tetrad::Popover"}},
};

const ClassRow *rowOfPlatformClass(Name platformClass)
{
    const auto found = std::find_if(std::begin(classTable), std::end(classTable), [&](const ClassRow &row) {
        return std::find(row.platformClasses.begin(), row.platformClasses.end(), platformClass) !=
               row.platformClasses.end();
    });
    return found == std::end(classTable) ? nullptr : found;
}

const ClassRow *rowNamed(Name name)
{
    const auto found = std::find_if(std::begin(classTable), std::end(classTable),
                                    [name](const ClassRow &row) { return row.name == name; });
    return found == std::end(classTable) ? nullptr : found;
}

// Every object is at least a QObject, which the table has.
const ClassRow *nearestRow(const QMetaObject *metaObject)
{
    const ClassRow *row = rowOfPlatformClass(metaObject->className());
    while (!row) {
        metaObject = metaObject->superClass();
        row = rowOfPlatformClass(metaObject->className());
    }
    return row;
}

bool isNamed(const ClassRow *row, QStringView name)
{
    return name == QLatin1StringView(row->name.data(), qsizetype(row->name.size()));
}

} // namespace

QString viewClassName(const QObject *object)
{
    return viewClassName(*object->metaObject());
}

QString viewClassName(const QMetaObject &platformClass)
{
    const Name name = nearestRow(&platformClass)->name;
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

bool isKindOfViewClass(const QObject *object, QStringView className)
{
    const ClassRow *row = nearestRow(object->metaObject());
    while (row && !isNamed(row, className)) {
        row = rowNamed(row->superclass);
    }
    return row != nullptr;
}

bool isExactlyViewClass(const QObject *object, QStringView className)
{
    const ClassRow *row = rowOfPlatformClass(object->metaObject()->className());
    return row && isNamed(row, className);
}

QString objectDescription(const QObject *object, const QString &className)
{
    return u"<%1: 0x%2>"_s.arg(className, QString::number(tagFromObject(object), 16));
}

} // namespace tetrad
