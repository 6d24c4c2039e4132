#include "runtime/controls/lookup/tag_lookup.h"

#include "runtime/app/windows/output_window.h"
#include <tetrad/controls/view_lookup.h>

#include <algorithm>
#include <array>
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

// The name that messages show for a class of this platform, as in "NSButton" for QPushButton.
QString viewClassName(const QMetaObject &platformClass)
{
    const Name name = rowOf(&platformClass)->name;
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

// Whether an object is of a class of the vocabulary or of one derived from it.
bool isKindOfViewClass(const QObject *object, const QString &className)
{
    const QByteArray wanted = className.toLatin1();
    const ClassRow *row = rowOf(object->metaObject());
    while (row != std::end(classTable) && row->name != wanted.constData()) {
        row = std::ranges::find(classTable, row->superclass, &ClassRow::name);
    }
    return row != std::end(classTable);
}

// A class of the vocabulary or, with the vocabulary's name for it, one of this platform.
struct WantedClass
{
    QString name;
    const QMetaObject *platformClass = nullptr;

    bool includes(const QObject *object) const
    {
        return platformClass ? platformClass->cast(object) != nullptr : isKindOfViewClass(object, name);
    }
};

QString ownName(const QMetaObject *platformClass)
{
    return QString::fromLatin1(platformClass->className()).section(u':', -1);
}

// The names of the class found and of the class wanted. Where the vocabulary has one word for both, as it has for a
// label and a field, they are this platform's.
std::pair<QString, QString> classNames(const QObject *found, const WantedClass &wanted)
{
    const QString foundName = viewClassName(*found->metaObject());
    if (foundName == wanted.name && wanted.platformClass) {
        return {ownName(found->metaObject()), ownName(wanted.platformClass)};
    }
    return {foundName, wanted.name};
}

template <typename... Values>
void showClassError(const char *text, const Values &...values)
{
    showStatementAlert(QT_TRANSLATE_NOOP("Runtime", "Class error."), text, values...);
}

QWidget *validated(Tag tagOrView, const WantedClass &wanted)
{
    const bool isTag = !isObjectAddress(tagOrView);
    const QWidget *const contentView = searchedContentView();
    if (isTag && !contentView) {
        showNoWindowsError();
        return nullptr;
    }
    const Tag wndTag = isTag ? CUI_ViewWindowTag(contentView) : 0;
    QObject *const object = isTag ? CUI_ViewWithTag(tagOrView) : objectFromTag(tagOrView);
    if (!object) {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "Can't find view %1 in window %2."), tagOrView, wndTag);
        return nullptr;
    }
    auto *const view = qobject_cast<QWidget *>(object);
    if (view && wanted.includes(view)) {
        return view;
    }
    const auto [found, name] = classNames(object, wanted);
    if (isTag) {
        showClassError(QT_TRANSLATE_NOOP("Runtime", "View %1 (%2), in window %3, cannot respond to %4 messages."),
                       tagOrView, found, wndTag, name);
    } else {
        showClassError(QT_TRANSLATE_NOOP("Runtime", "View %1 cannot respond to %2 messages."),
                       u"<%1: 0x%2>"_s.arg(found, QString::number(tagOrView, 16)), name);
    }
    return nullptr;
}

} // namespace

QWidget *validatedView(Tag tagOrView, const QMetaObject &wanted)
{
    return validated(tagOrView, {viewClassName(wanted), &wanted});
}

QWidget *CUI_ValidateViewKindOfClass(Tag tagOrView, const QString &className)
{
    return validated(tagOrView, {className});
}

QWidget *ControlWithTag(Tag tagOrControl)
{
    return CUI_ValidateViewKindOfClass(tagOrControl, u"NSControl"_s);
}

void showNoWindowsError()
{
    showStatementAlert(QT_TRANSLATE_NOOP("Runtime", "Error."), QT_TRANSLATE_NOOP("Runtime", "Can't find any windows."));
}

bool canBeTag(Tag tag, const char *text)
{
    const bool isTag = tag != 0 && !isObjectAddress(tagIdentity(tag));
    if (!isTag) {
        showTagError(text, tag);
    }
    return isTag;
}

} // namespace tetrad
