// How the runtime sets up every kind of widget, compared as a whole with widgets.txt. After a change that was meant,
// copy the file that the failing test names over it and read the difference.

#include "tests/controls/views_helper.h"

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
    }
    const bool isEnumeration = value.metaType().sizeOf() == sizeof(int);
    return isEnumeration ? QString::number(*static_cast<const int *>(value.constData())) : QString();
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
        for (const int attribute :
             {Qt::WA_DeleteOnClose, Qt::WA_InputMethodEnabled, Qt::WA_NoMousePropagation, Qt::WA_StaticContents,
              Qt::WA_TranslucentBackground, Qt::WA_TransparentForMouseEvents}) {
            found.insert(u"attribute %1"_s.arg(attribute),
                         QString::number(widget->testAttribute(Qt::WidgetAttribute(attribute))));
        }
        found.insert(u"font pixelSize"_s, QString::number(widget->font().pixelSize()));
        if (widget->isWindow()) {
            found.insert(u"windowFlags"_s, QString::number(widget->windowFlags(), 16));
        }
        const auto *const accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
        found.insert(u"role"_s, QString::number(accessible->role()));
        found.insert(u"name"_s, accessible->text(QAccessible::Name));
    }
    static const QRegularExpression passing(
        u"^(x|y|(minimum|maximum)?([Ww]idth|[Hh]eight)|isActiveWindow|focus|visible|sizePolicy|canPaste)$"_s);
    found.removeIf([](const auto &each) { return passing.match(each.key()).hasMatch(); });
    return found;
}

template <typename... Classes>
QMap<QString, Properties> defaultsOf()
{
    return {{QString::fromLatin1(Classes::staticMetaObject.className()),
             propertiesOf(std::make_unique<Classes>().get())}...};
}

// A line for each widget and action: its class, and each property that differs from a new widget of its Qt class. The
// parts of Qt's own widgets are left out.
void describe(const QObject *object, const QString &indent, QStringList &lines)
{
    static const QMap<QString, Properties> defaults =
        defaultsOf<QAction, QCheckBox, QColorDialog, QComboBox, QDateEdit, QDialogButtonBox, QDoubleSpinBox,
                   QFileDialog, QFontDialog, QFrame, QLabel, QLineEdit, QMainWindow, QMenu, QMenuBar, QMessageBox,
                   QPlainTextEdit, QProgressBar, QPushButton, QRadioButton, QScrollArea, QSlider, QSplitter, QTabBar,
                   QTabWidget, QTableWidget, QToolBar, QToolButton, QTreeWidget, QWidget>();
    static const QRegularExpression parts(u"^(Scroll|qt_(?!msgbox))"_s);
    const QMetaObject *kind = object->metaObject();
    while (QByteArrayView(kind->className()).startsWith("tetrad::")) {
        kind = kind->superClass();
    }
    const auto found = defaults.constFind(QString::fromLatin1(kind->className()));
    if (found == defaults.cend()) {
        return;
    }
    const bool isPart = parts.match(object->objectName()).hasMatch();
    if (!isPart) {
        lines << indent + QString::fromLatin1(object->metaObject()->className());
        for (const auto &[name, value] : propertiesOf(object).asKeyValueRange()) {
            if (found->value(name) != value) {
                lines.last() += u' ' + name + u'=' + value;
            }
        }
    }
    static const QRegularExpression closed(u"^Q(MenuBar|FileDialog|ColorDialog|FontDialog)$"_s);
    const bool isClosed = closed.match(QString::fromLatin1(kind->className())).hasMatch();
    for (const QObject *child : isClosed ? QObjectList() : object->children()) {
        describe(child, isPart ? indent : indent + u"  "_s, lines);
    }
}

TEST_F(Views, AndAllOtherWidgetsAreSetUpAsTheFileSays)
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    resetMainMenu();
    CUI_EditMenu(2);
    CUI_Menu(3, 1, menuItemEnabled, u"A & B"_s, u"k"_s);
    makeControls();
    const QRectF rect(10, 10, 100, 30);
    CUI_Button(31, u"A && &B"_s, rect);
    CUI_RadioButton(32, u"A & B"_s, rect);
    CUI_TextLabel(33, u"A & B"_s, rect);
    CUI_Stepper(34, 1.5, 0, 10, 0.125, rect);
    CUI_ProgressIndicator(35, 5, 0, 10, rect);
    CUI_ComboBox(36, u"c"_s, {u"a"_s, u"b"_s}, rect);
    CUI_DateField(37, QDate(2001, 2, 3), rect);
    CUI_ImageView(38, QImage(2, 2, QImage::Format_RGB32), rect);
    CUI_ViewSubclass(39, rect);
    CUI_PrintToWindowPrintStatement({u"printed"_s});
    QStringList lines;
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
    for (const auto statement : {CUI_OpenPanel, CUI_SavePanel}) {
        whenRuns<QFileDialog>(describeAndEnd);
        statement(9, u"title"_s, u"/"_s, u"txt;text"_s);
    }
    QObjectList others{m_content->window(), popover, CUI_ColorPanel(Qt::red), CUI_FontPanel(QFont())};
    others << QObjectList(mainMenu()->menus.begin(), mainMenu()->menus.end());
    for (const QObject *other : others) {
        describe(other, {}, lines);
    }
    qDeleteAll(others.sliced(2, 2));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    const QByteArray setUp = lines.join(u'\n').toUtf8() + '\n';
    QFile expected(QStringLiteral(TEST_WIDGETS));
    ASSERT_TRUE(expected.open(QIODevice::ReadOnly));
    if (setUp != expected.readAll()) {
        QFile found(u"widgets_found.txt"_s);
        ASSERT_TRUE(found.open(QIODevice::WriteOnly) && found.write(setUp) == setUp.size());
        FAIL() << "compare " TEST_WIDGETS " with " << QFileInfo(found).absoluteFilePath().toStdString();
    }
}

} // namespace
