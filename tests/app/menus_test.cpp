#include "runtime/app/menus.h"

#include "runtime/app/application.h"
#include "runtime/app/modal.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace tetrad;

namespace {

QString titles()
{
    QStringList list;
    for (const QMenu *menu : mainMenu()->menus) {
        list << menu->title();
    }
    return list.join(u'|');
}

QString items(const QMenu *menu)
{
    QStringList list;
    for (const QAction *action : menu->actions()) {
        list << (action->isSeparator() ? u"-"_qs : action->text() + u' ' + action->shortcut().toString());
    }
    return list.join(u'|');
}

void choose(const QString &text)
{
    for (QAction *action : mainMenu()->menus.last()->actions()) {
        if (action->text() == text) {
            action->trigger();
        }
    }
}

TEST(Menus, BarOfEveryIndex)
{
    const std::pair<qint64, const char *> rows[] = {
        {-1, "G"}, {0, "G"}, {1, "G|Edit"}, {2, "G||Edit"}, {4, "G||||Edit"}};
    CocoaInit();
    QCoreApplication::setApplicationName(u"G"_qs);
    CUI_BuildMinimalMenu();
    const QList<QMenu *> minimal = mainMenu()->menus;
    for (const auto &[index, bar] : rows) {
        mainMenu()->menus = minimal;
        CUI_EditMenu(index);
        EXPECT_EQ(titles(), QLatin1String(bar)) << index;
        CUI_EditMenu(index < 0 ? 0 : index);
        EXPECT_EQ(titles(), QLatin1String(bar)) << index << ", a second time";
    }
}

TEST(Menus, ItemsAndShortcutsInWindowsOfBeforeAndAfter)
{
    CocoaInit();
    QCoreApplication::setApplicationName(u"R&D"_qs);
    QMainWindow early;
    showMainMenuIn(early.menuBar());
    CUI_EditMenu(2);
    QMainWindow late;
    showMainMenuIn(late.menuBar());
    EXPECT_EQ(items(mainMenu()->menus.first()), u"About R&&D |-|Quit R&&D Ctrl+Q");
    EXPECT_EQ(items(mainMenu()->menus.last()), u"Undo Ctrl+Z|Redo Ctrl+Shift+Z|-|Cut Ctrl+X|Copy Ctrl+C|Paste Ctrl+V|"
                                               "Delete |Select All Ctrl+A");
    EXPECT_EQ(late.menuBar()->actions(), early.menuBar()->actions());

    QMenu *const untitled = mainMenu()->menus.at(1);
    EXPECT_EQ(late.menuBar()->actions().indexOf(untitled->menuAction()), 1);
    EXPECT_FALSE(untitled->menuAction()->isVisible()) << "it would draw a gap";
    untitled->setTitle(u"View"_qs);
    EXPECT_TRUE(untitled->menuAction()->isVisible());
}

/// A view that answers some actions of its own.
class View : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool canCopy MEMBER m_canCopy)

public:
    bool m_canCopy = false;
    int pastes = 0;
    int deletions = 0;
    Q_INVOKABLE void copy() {}
    Q_INVOKABLE void paste() { ++pastes; }
    Q_INVOKABLE void del() { ++deletions; }
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

TEST_F(EditMenu, OpensWithWhatTheFirstResponderCanDo)
{
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(enabledWhileOpen(), QString()) << "an empty field and nothing to paste";
    QTest::keyClicks(field, u"12"_qs);
    QGuiApplication::clipboard()->setText(u"x"_qs);
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

// On a field every item is tried end to end.
TEST_F(EditMenu, ActsOnTheFirstResponderOnce)
{
    QGuiApplication::clipboard()->setText(u"12"_qs);
    for (int pastes = 0; pastes < 2; ++pastes) {
        QTest::keyClick(window.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    }
    EXPECT_EQ(field->text(), u"1212");
    EXPECT_EQ(view->pastes + view->deletions, 0);
    view->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    choose(u"Delete"_qs);
    EXPECT_EQ(view->pastes, 1);
    EXPECT_EQ(view->deletions, 1);
}

TEST_F(EditMenu, AboutPanelShowsWhatItMustAndCloses)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        QString shown;
        QTimer::singleShot(0, &window, [&shown, key] {
            for (const QLabel *label : modalWindow()->findChildren<QLabel *>()) {
                if (!label->text().isEmpty()) { // the icon, where the game is installed, has none
                    shown += label->text() + u'|';
                }
            }
            QTest::keyClick(modalWindow(), key);
        });
        orderFrontStandardAboutPanel();
        EXPECT_EQ(shown, applicationName() + u"|Version " + applicationVersion() + u"|License: MIT|");
    }
    auto *over = new QWidget;
    over->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(over));
    QTimer::singleShot(0, over, [over] { delete over; });
    orderFrontStandardAboutPanel();
    EXPECT_EQ(modalWindow(), nullptr) << "gone with the window that it stood over";
}

} // namespace

#include "menus_test.moc"
