#include "tests/support/windows.h"

#include <QMainWindow>
#include <QMessageBox>

using namespace tetrad;

namespace {

// What a bar or a menu shows, with the shortcuts.
QString items(const QWidget *menu)
{
    QStringList list;
    for (const QAction *action : menu->actions()) {
        list << (action->isSeparator() ? u"-"_s : QString(action->text() % u' ' % action->shortcut().toString()));
    }
    return list.join(u'|');
}

TEST(Menus, BarOfEveryIndexInWindowsOfBeforeAndAfter)
{
    CocoaInit();
    const QString name = applicationName();
    QCoreApplication::setApplicationName(u"R&D"_s);
    QMainWindow early;
    showMainMenuIn(early.menuBar());
    const std::pair<qint64, QString> rows[] = {
        {-1, u"R&&D "_s}, {0, u"R&&D "_s}, {1, u"R&&D |Edit "_s}, {2, u"R&&D | |Edit "_s}, {4, u"R&&D | | | |Edit "_s}};
    for (const auto &[index, bar] : rows) {
        SCOPED_TRACE(index);
        resetMainMenu();
        CUI_EditMenu(index);
        CUI_EditMenu(qMax(index, 0)); // once more changes nothing
        QMainWindow late;
        showMainMenuIn(late.menuBar());
        EXPECT_EQ(items(early.menuBar()), bar);
        EXPECT_EQ(items(late.menuBar()), bar);
    }
    EXPECT_EQ(items(mainMenu()->menus.first()), u"About R&&D |-|Quit R&&D Ctrl+Q");
    EXPECT_EQ(items(mainMenu()->menus.last()), u"Undo Ctrl+Z|Redo Ctrl+Shift+Z|-|Cut Ctrl+X|Copy Ctrl+C|Paste Ctrl+V|"
                                               "Delete |Select All Ctrl+A");
    QMenu *const untitled = mainMenu()->menus.at(1);
    EXPECT_FALSE(untitled->menuAction()->isVisible()) << "it would draw a gap";
    untitled->setTitle(u"View"_s);
    EXPECT_TRUE(untitled->menuAction()->isVisible());
    QCoreApplication::setApplicationName(name);
}

/// A view that answers some actions of its own.
class View : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool canCopy MEMBER m_canCopy)

public:
    bool m_canCopy = false;
    int pastes = 0;
    Q_INVOKABLE void copy() {}
    Q_INVOKABLE void paste() { ++pastes; }
    Q_INVOKABLE void del() {}
};

class EditMenu : public testing::Test
{
protected:
    QMainWindow window;
    View *view = new View;
    QLineEdit *field = new QLineEdit(view);

    void SetUp() override
    {
        CocoaInit();
        resetMainMenu();
        CUI_EditMenu(2);
        showMainMenuIn(window.menuBar());
        window.setCentralWidget(view);
        view->setFocusPolicy(Qt::StrongFocus);
        window.show();
        window.activateWindow();
        field->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([this] { return field->hasFocus(); }));
    }

    QString enabledWhileOpen() const
    {
        QMenu *menu = mainMenu()->menus.last();
        menu->popup(window.mapToGlobal(QPoint(20, 20)));
        QStringList enabled;
        for (const QAction *action : menu->actions()) {
            if (action->isEnabled() && !action->isSeparator()) {
                enabled << action->text();
            }
        }
        menu->close();
        return enabled.join(u',');
    }
};

// What the items do in a field is tried end to end.
TEST_F(EditMenu, OpensWithWhatTheFirstResponderCanDoAndActsOnIt)
{
    view->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(view->pastes, 1) << "by the name of the action";
    field->setFocus();
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(enabledWhileOpen(), QString()) << "an empty field and nothing to paste";
    QTest::keyClicks(field, u"12"_s);
    QGuiApplication::clipboard()->setText(u"x"_s);
    EXPECT_EQ(enabledWhileOpen(), u"Undo,Paste,Select All");
    field->selectAll();
    EXPECT_EQ(enabledWhileOpen(), u"Undo,Cut,Copy,Paste,Delete,Select All");
    field->setReadOnly(true);
    EXPECT_EQ(enabledWhileOpen(), u"Copy,Select All");
    view->setFocus();
    EXPECT_EQ(enabledWhileOpen(), u"Paste,Delete");
    view->m_canCopy = true;
    EXPECT_EQ(enabledWhileOpen(), u"Copy,Paste,Delete");
    for (const QAction *action : mainMenu()->menus.last()->actions()) {
        EXPECT_TRUE(action->isEnabled()) << "a closed menu must not switch shortcuts off";
    }
}

TEST_F(EditMenu, AboutPanelShowsWhatTheProgramHasSetAndCloses)
{
    const QString name = applicationName();
    const QString version = applicationVersion();
    QString shown;
    const auto showAndPress = [&](Qt::Key key) {
        QTimer::singleShot(0, &window, [&, key] {
            const auto *panel = qobject_cast<QMessageBox *>(modalWindow());
            shown = panel->text() + u'|' + panel->informativeText();
            QTest::keyClick(modalWindow(), key);
        });
        orderFrontStandardAboutPanel();
        return shown;
    };
    EXPECT_EQ(showAndPress(Qt::Key_Escape), QString(name % u"|Version "_s % version % u"\nLicense: MIT"_s));
    QCoreApplication::setApplicationName(u"Sketch"_s);
    QCoreApplication::setApplicationVersion(QString());
    EXPECT_EQ(showAndPress(Qt::Key_Return), u"Sketch|"_s);
    QCoreApplication::setApplicationName(name);
    QCoreApplication::setApplicationVersion(version);
}

} // namespace

#include "menus_test.moc"
