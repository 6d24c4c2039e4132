// How the runtime sets up every kind of widget, compared as a whole with widgets.txt. After a change that was meant,
// copy the file that the failing test names over it and read the difference.

#include "tests/support/windows.h"

#include <QtWidgets>

using namespace tetrad;

namespace {

using Properties = QMap<QString, QString>;

QString textOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::QKeySequence:
        return value.toString();
    case QMetaType::QString:
        return u'"' + value.toString().replace(u'\n', u"\\n"_s) + u'"';
    default:
        // Enumerators and flags.
        return value.metaType().sizeOf() == sizeof(int) ? QString::number(*static_cast<const int *>(value.constData()))
                                                        : QString();
    }
}

// Without what depends on fonts, on the desktop or on what happened last.
Properties propertiesOf(const QObject *object)
{
    Properties found;
    for (int i = 0; i < object->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = object->metaObject()->property(i);
        found.insert(QString::fromLatin1(property.name()), textOf(property.read(object)));
    }
    if (const auto *widget = qobject_cast<const QWidget *>(object)) {
        for (const auto attribute :
             {Qt::WA_DeleteOnClose, Qt::WA_InputMethodEnabled, Qt::WA_NoMousePropagation, Qt::WA_StaticContents,
              Qt::WA_TranslucentBackground, Qt::WA_TransparentForMouseEvents}) {
            found.insert(u"attribute %1"_s.arg(attribute), QString::number(widget->testAttribute(attribute)));
        }
        found.insert(u"font pixelSize"_s, QString::number(widget->font().pixelSize()));
        if (widget->isWindow()) {
            found.insert(u"windowFlags"_s, QString::number(widget->windowFlags(), 16));
        }
        if (QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget))) {
            found.insert(u"role"_s, QString::number(accessible->role()));
            found.insert(u"name"_s, accessible->text(QAccessible::Name));
        }
    }
    if (const auto *action = qobject_cast<const QAction *>(object)) {
        found.insert(u"separator"_s, QString::number(action->isSeparator()));
    }
    static const QRegularExpression passing(
        u"^(x|y|(minimum|maximum)?([Ww]idth|[Hh]eight)|isActiveWindow|focus|visible|sizePolicy)$"_s);
    found.removeIf([](const auto &each) { return passing.match(each.key()).hasMatch(); });
    return found;
}

// What each of Qt's classes has that is set up here, unless a program sets it.
template <typename... Classes>
QMap<QString, Properties> defaultsOf()
{
    return {{QString::fromLatin1(Classes::staticMetaObject.className()),
             propertiesOf(std::make_unique<Classes>().get())}...};
}

// A line for each widget and action: its class, and each property that it does not share with any other of Qt's class.
// What Qt builds its widgets of is left out.
void describe(const QObject *object, const QString &indent, QStringList &lines)
{
    static const QMap<QString, Properties> defaults =
        defaultsOf<QAction, QCheckBox, QColorDialog, QComboBox, QDateEdit, QDialogButtonBox, QDoubleSpinBox,
                   QFileDialog, QFontDialog, QFrame, QLabel, QLineEdit, QMainWindow, QMenu, QMenuBar, QMessageBox,
                   QPlainTextEdit, QProgressBar, QPushButton, QRadioButton, QScrollArea, QSlider, QSplitter, QTabBar,
                   QTabWidget, QTableWidget, QToolBar, QToolButton, QTreeWidget, QWidget>();
    const QMetaObject *kind = object->metaObject();
    while (QByteArrayView(kind->className()).startsWith("tetrad::")) {
        kind = kind->superClass();
    }
    const auto found = defaults.constFind(QString::fromLatin1(kind->className()));
    if (found == defaults.cend()) {
        return;
    }
    static const QRegularExpression parts(u"^(Scroll|qt_(?!msgbox))"_s);
    const bool isPart = parts.match(object->objectName()).hasMatch();
    if (!isPart) {
        lines << indent + QString::fromLatin1(object->metaObject()->className());
        for (const auto &[name, value] : propertiesOf(object).asKeyValueRange()) {
            if (found->value(name) != value) {
                lines.last() += u' ' + name + u'=' + value;
            }
        }
    }
    const bool isPanel = qobject_cast<const QDialog *>(object) && !qobject_cast<const QMessageBox *>(object);
    for (const QObject *child : isPanel ? QObjectList() : object->children()) {
        describe(child, isPart ? indent : indent + u"  "_s, lines);
    }
}

using Widgets = WindowTest;

TEST_F(Widgets, areSetUpAsInTheFile)
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    resetMainMenu();
    CUI_EditMenu(2);
    CUI_Menu(3, 0, menuItemEnabled, u"A & B"_s, QString());
    CUI_Menu(3, 1, menuItemEnabled, u"A & B/K"_s, u"k"_s);
    open(1);
    const QRectF rect(10, 10, 100, 30);
    CUI_Button(2, u"A && &B"_s, rect);
    CUI_CheckBox(3, u"A & B"_s, rect);
    CUI_RadioButton(4, u"A & B"_s, rect);
    CUI_TextField(5, u"text"_s, rect);
    CUI_TextLabel(6, u"A & B"_s, rect);
    CUI_Slider(7, 5, -10, 10, rect);
    CUI_Stepper(8, 1.5, 0, 10, 0.125, rect);
    CUI_ProgressIndicator(9, 5, 0, 10, rect);
    CUI_PopUpButton(10, {u"a"_s, u"b"_s}, 1, rect);
    CUI_ComboBox(11, u"c"_s, {u"a"_s, u"b"_s}, rect);
    CUI_SegmentedControl(12, {u"x"_s, u"y"_s}, 1, rect);
    CUI_DateField(13, QDate(2001, 2, 3), rect);
    CUI_ImageView(14, QImage(2, 2, QImage::Format_RGB32), rect);
    CUI_SplitView(15, Qt::Horizontal, rect);
    CUI_TabView(16, {u"A & B"_s, u"C"_s}, rect);
    CUI_TableView(17, {u"A & B"_s, u"C"_s}, rect);
    CUI_OutlineView(18, {u"A & B"_s, u"C"_s}, rect);
    CUI_TextView(21, u"text"_s, rect);
    CUI_ViewSubclass(22, rect);
    CUI_TokenField(23, {u"a"_s, u"b"_s}, rect);
    CUI_Toolbar(3);
    CUI_ToolbarAddItem(3, 19, u"Go"_s);
    CUI_PrintToWindowPrintStatement({u"printed"_s});
    QStringList lines;
    describe(CUI_WindowWithTag(1), {}, lines);
    for (const QMenu *const menu : mainMenu()->menus) {
        describe(menu, {}, lines);
    }
    const auto describeAndEnd = [&](const QWidget *widget) {
        describe(widget, {}, lines);
        abortModal();
    };
    whenRuns<Alert>(describeAndEnd);
    CUI_Alert(1, alertStyleCritical, u"A & B"_s, u"text"_s, u"A & B;C"_s, notGiven);
    whenRuns<ZRInputWindow>(describeAndEnd);
    ZRInput(10, 190, u"A & B"_s, QString(), notGiven, notGiven, notGiven);
    whenRuns<ZRInkeyWindow>(describeAndEnd);
    ZRInkey(10, 190, u"A & B"_s, QString(), notGiven, notGiven);
    whenRuns<QMessageBox>(describeAndEnd);
    orderFrontStandardAboutPanel();
    whenRuns<QFileDialog>(describeAndEnd);
    CUI_SavePanel(9, u"title"_s, u"/name"_s, u"txt;text"_s);
    whenRuns<QFileDialog>(describeAndEnd);
    CUI_OpenPanel(9, u"title"_s, u"/"_s, u"txt;text"_s);
    describe(CUI_ColorPanel(Qt::red), {}, lines);
    describe(CUI_FontPanel(QFont()), {}, lines);
    CUI_Popover(9, QSizeF(80, 60), popoverTransient);
    const std::unique_ptr<Popover> popover(CUI_PopoverWithTag(9));
    describe(popover.get(), {}, lines);

    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    const QString text = lines.join(u'\n') + u'\n';
    QFile expected(QStringLiteral(TEST_WIDGETS));
    ASSERT_TRUE(expected.open(QIODevice::ReadOnly));
    if (text != QString::fromUtf8(expected.readAll())) {
        QFile found(u"widgets_found.txt"_s);
        ASSERT_TRUE(found.open(QIODevice::WriteOnly));
        found.write(text.toUtf8());
        FAIL() << "compare widgets.txt with " << QFileInfo(found).absoluteFilePath().toStdString();
    }
}

} // namespace
