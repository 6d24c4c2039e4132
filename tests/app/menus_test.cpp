#include "tests/support/windows.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QPlainTextEdit>

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
    AppSetName(u"R&D"_s);
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
    AppSetName(name);
}

// What the items do in a field is tried end to end.
TEST(EditMenu, OpensWithWhatTheFirstResponderCanDoAndActsOnIt)
{
    CocoaInit();
    resetMainMenu();
    CUI_EditMenu(2);
    QMainWindow window;
    showMainMenuIn(window.menuBar());
    auto *const view = new QPlainTextEdit;
    window.setCentralWidget(view);
    QLineEdit field(view);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QMenu *const menu = mainMenu()->menus.last();
    const auto enabledWhileOpen = [menu] {
        menu->popup(QPoint(20, 20));
        QStringList enabled;
        for (const QAction *action : menu->actions()) {
            enabled << (action->isEnabled() && !action->isSeparator() ? QStringList(action->text()) : QStringList());
        }
        menu->close();
        return enabled.join(u',');
    };
    field.setFocus();
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(enabledWhileOpen(), QString()) << "an empty field and nothing to paste";
    QTest::keyClicks(&field, u"12"_s);
    QGuiApplication::clipboard()->setText(u"x"_s);
    EXPECT_EQ(enabledWhileOpen(), u"Undo,Paste,Select All");
    field.selectAll();
    EXPECT_EQ(enabledWhileOpen(), u"Undo,Cut,Copy,Paste,Delete,Select All");
    field.setReadOnly(true);
    EXPECT_EQ(enabledWhileOpen(), u"Copy,Select All");
    view->setFocus();
    EXPECT_EQ(enabledWhileOpen(), u"Undo,Redo,Cut,Copy,Paste,Select All") << "all that it has a slot for";
    view->setProperty("canCopy", false);
    EXPECT_EQ(enabledWhileOpen(), u"Undo,Redo,Cut,Paste,Select All");
    for (QAction *action : menu->actions()) {
        EXPECT_TRUE(action->isEnabled()) << "a closed menu must not switch shortcuts off";
        action->text() == u"Paste" ? action->trigger() : void();
    }
    EXPECT_EQ(view->toPlainText(), u"x"_s);
}

TEST(AboutPanel, ShowsWhatTheProgramHasSetAndCloses)
{
    CocoaInit();
    const QString name = applicationName();
    const QString version = applicationVersion();
    const auto shownUntil = [](Qt::Key key) {
        QString shown;
        whenRuns<QMessageBox>([&shown, key](QMessageBox *panel) {
            shown = panel->text() + u'|' + panel->informativeText();
            QTest::keyClick(panel, key);
        });
        orderFrontStandardAboutPanel();
        return shown;
    };
    EXPECT_EQ(shownUntil(Qt::Key_Escape), QString(name % u"|Version "_s % version % u"\nLicense: MIT"_s));
    AppSetName(u"Sketch"_s);
    QCoreApplication::setApplicationVersion(QString());
    EXPECT_EQ(shownUntil(Qt::Key_Return), u"Sketch|"_s);
    AppSetName(name);
    QCoreApplication::setApplicationVersion(version);
}

} // namespace
