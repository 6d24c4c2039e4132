#include "runtime/controls/lookup/class_names.h"

#include <QObject>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace tetrad {

namespace {

using Name = std::string_view;

struct ClassRow
{
    Name name;
    Name superclass;
    // This platform's classes, each as its meta-object names it.
    std::array<Name, 2> platformClasses;
};

// The only table from which a class of this platform gets its name.
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

// The row of the nearest class that has one. Every object is at least a QObject, which the table has.
const ClassRow *rowOf(const QMetaObject *metaObject)
{
    const ClassRow *const row = std::ranges::find_if(classTable, [metaObject](const ClassRow &each) {
        return std::ranges::count(each.platformClasses, Name(metaObject->className())) > 0;
    });
    return row == std::end(classTable) ? rowOf(metaObject->superClass()) : row;
}

} // namespace

QString viewClassName(const QMetaObject &platformClass)
{
    const Name name = rowOf(&platformClass)->name;
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

bool isKindOfViewClass(const QObject *object, const QString &className)
{
    const QByteArray wanted = className.toLatin1();
    const ClassRow *row = rowOf(object->metaObject());
    while (row != std::end(classTable) && row->name != wanted.constData()) {
        row = std::ranges::find(classTable, row->superclass, &ClassRow::name);
    }
    return row != std::end(classTable);
}

} // namespace tetrad
