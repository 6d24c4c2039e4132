#include "tests/support/windows.h"

#include <QScrollArea>
#include <QScrollBar>

using namespace tetrad;

namespace {

using Act = std::function<void()>;

// A window with a panel raised over it, and one next to it; each has a button and a field.
class Modal : public QObject, public testing::Test
{
protected:
    QWidget carrier;
    QPushButton *outsideButton = new QPushButton(u"outside"_s, &carrier);
    QLineEdit *outsideField = new QLineEdit(&carrier);
    QWidget *panel = new QWidget(&carrier);
    QLineEdit *field = new QLineEdit(panel);
    QPushButton *button = new QPushButton(u"inside"_s, panel);
    QWidget other;
    QPushButton *otherButton = new QPushButton(u"other"_s, &other);
    QLineEdit *otherField = new QLineEdit(&other);
    QStringList clicked;
    // The keys pressed in each widget, in order. Which ones get a release differs from version to version of Qt.
    QString keys;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched->isWidgetType() && event->type() == QEvent::KeyPress) {
            const QString key = QKeySequence(static_cast<QKeyEvent *>(event)->key()).toString();
            keys += watched->objectName() + u'+' + key + u' ';
        }
        return false;
    }

    void SetUp() override
    {
        CocoaInit();
        carrier.setGeometry(0, 0, 400, 300);
        panel->setGeometry(50, 100, 200, 80);
        panel->hide();
        button->setFocusPolicy(Qt::NoFocus);
        other.setGeometry(500, 0, 200, 200);
        for (QPushButton *const each : {outsideButton, button, otherButton}) {
            each->setGeometry(100, 0, 80, 30);
            QObject::connect(each, &QPushButton::clicked, [this, each] { clicked << each->text(); });
        }
        for (QLineEdit *const each : {outsideField, field, otherField}) {
            each->setGeometry(0, 0, 80, 30);
        }
        field->setObjectName(u"field"_s);
        qApp->installEventFilter(this);
        other.show();
        carrier.show();
        carrier.activateWindow();
        outsideField->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([this] { return outsideField->hasFocus(); }));
    }

    // Runs the panel and, inside the run, what the player does; the run is aborted after that if it is still on.
    qint64 runWhile(const Act &act)
    {
        QTimer::singleShot(0, panel, [act] {
            act();
            abortModal();
        });
        return runModalForWindow(panel);
    }
};

void click(const QWidget *inside)
{
    QWidget *top = inside->window();
    QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, inside->mapTo(top, inside->rect().center()));
}

TEST_F(Modal, EveryWayToEndGivesItsCode)
{
    QMenu menu;
    menu.addAction(u"Item"_s);
    QMenu menuAbove;
    menuAbove.addAction(u"Item"_s);
    QWidget inner(&carrier, Qt::Window);
    QLineEdit innerField(&inner);
    const auto stopInAMenu = [&] {
        QTimer::singleShot(0, &menu, [&] { menuAbove.popup(QPoint()), stopModalWithCode(4); });
        menu.exec(carrier.mapToGlobal(QPoint(10, 10)));
    };
    const auto typeIntoInner = [&] {
        QTimer::singleShot(0, &inner, [&] {
            EXPECT_EQ(modalWindow(), &inner);
            QTest::keyClick(field, Qt::Key_7);
            stopModalWithCode(11);
        });
        EXPECT_EQ(runModalForWindow(&inner), 11);
        EXPECT_EQ(modalWindow(), panel);
        EXPECT_FALSE(panel->actions().isEmpty()) << "the shortcuts of the menus";
        inner.hide();
        EXPECT_TRUE(QTest::qWaitFor([this] { return field->hasFocus(); }));
        EXPECT_EQ(innerField.text() % u'|' % field->text(), u"7|"_s);
        stopModalWithCode(12);
    };
    const auto deleteInInner = [&] {
        QTimer::singleShot(0, &inner, [this] { delete panel, stopModalWithCode(3); });
        EXPECT_EQ(runModalForWindow(&inner), 3);
        stopModalWithCode(9);
    };
    const Table<Act, qint64> rows = {
        {"stopped", [] { stopModalWithCode(modalStopped); }, modalStopped},
        {"any code", [] { stopModalWithCode(1001); }, 1001},
        {"aborted", [] { abortModal(); }, modalAborted},
        {"the first end counts", [] { stopModalWithCode(7), stopModalWithCode(8); }, 7},
        {"nothing left over from before it", [] {}, modalAborted},
        {"hidden under the run", [this] { panel->hide(), QCoreApplication::processEvents(), stopModalWithCode(9); },
         modalAborted},
        {"stopped after a hide", [this] { panel->hide(), stopModalWithCode(5); }, 5},
        {"shown again at once is not the end",
         [this] { panel->hide(), panel->show(), QCoreApplication::processEvents(), stopModalWithCode(6); }, 6},
        {"inside an open menu", stopInAMenu, 4},
        {"after an inner one, which took the keys", typeIntoInner, 12},
        {"deleted while an inner one runs", deleteInInner, modalAborted},
    };
    stopModalWithCode(1); // nothing to stop yet
    EXPECT_EQ(runModalForWindow(nullptr), modalAborted);
    carrier.hide();
    EXPECT_EQ(runModalForWindow(panel), modalAborted) << "nobody could see it";
    EXPECT_TRUE(panel->actions().isEmpty()) << "no shortcut of the menus is left";
    carrier.show();
    for (const auto &[name, act, code] : rows) {
        EXPECT_EQ(runWhile(act), code) << name;
        EXPECT_EQ(modalWindow(), nullptr) << name;
    }
}

TEST_F(Modal, ClicksAndKeysReachOnlyTheWidgetAndWhatWorksInModalRuns)
{
    runWhile([this] {
        for (const QWidget *const each : QWidgetList{outsideButton, outsideField, otherButton, otherField}) {
            click(each);
        }
        QTest::mouseClick(outsideButton, Qt::LeftButton);
        EXPECT_TRUE(field->hasFocus() && other.focusWidget() != otherField);
        click(button);
        outsideField->setFocus();
        EXPECT_TRUE(field->hasFocus());
        QTest::keyClicks(outsideField, u"12"_s);
        QTest::keyClick(other.windowHandle(), Qt::Key_3);
        QTest::keyClick(carrier.windowHandle(), Qt::Key_F5);
        setWorksWhenModal(&other, true);
        click(otherButton);
        click(otherField);
        QTest::keyClick(other.windowHandle(), Qt::Key_4);
    });
    EXPECT_EQ(field->text() % u'|' % outsideField->text() % u'|' % otherField->text(), u"123||4"_s);
    EXPECT_EQ(keys, u"field+1 field+2 field+3 field+F5 +F5 +4 ");
    click(outsideButton);
    EXPECT_EQ(clicked.join(u' '), u"inside other outside"_s) << "the filter must be gone after the run";
}

TEST_F(Modal, AMinimisedWindowComesBackAndNothingElseHappens)
{
    QTimer::singleShot(0, &other, [this] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
        for (const bool byKey : {true, false}) {
            other.showMinimized();
            QApplication::processEvents();
            EXPECT_TRUE(other.isMinimized());
            byKey ? QTest::keyClick(carrier.windowHandle(), Qt::Key_Space) : click(outsideButton);
            EXPECT_FALSE(other.isMinimized());
        }
        abortModal();
    });
    runModalForWindow(&other);
    EXPECT_EQ(clicked, QStringList());
}

TEST_F(Modal, CarrierScrolls)
{
    QScrollArea area(&carrier);
    area.setGeometry(260, 100, 100, 100);
    auto *const content = new QWidget;
    content->setFixedSize(50, 1000);
    area.setWidget(content);
    area.show();
    const QScrollBar *const bar = area.verticalScrollBar();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    runWhile([&] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&carrier));
        EXPECT_EQ(carrier.children().constLast(), panel) << "raised";
        const QPointF at = content->mapTo(&carrier, QPoint(5, 5));
        QWheelEvent wheel(at, carrier.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        qApp->notify(carrier.windowHandle(), &wheel);
        const int scrolledByWheel = bar->value();
        EXPECT_GT(scrolledByWheel, 0);
        const QPoint underTheHandle = bar->mapTo(&carrier, QPoint(3, bar->height() - 25));
        QTest::mouseClick(carrier.windowHandle(), Qt::LeftButton, {}, underTheHandle);
        EXPECT_GT(bar->value(), scrolledByWheel);
    });
}

TEST_F(Modal, KeysTypedAheadWaitForTheNextRun)
{
    QObject::connect(field, &QLineEdit::returnPressed, panel, [] { stopModalWithCode(modalStopped); });
    const auto typeAhead = [&] {
        for (const auto key : {Qt::Key_1, Qt::Key_Return, Qt::Key_2, Qt::Key_3, Qt::Key_Return, Qt::Key_4}) {
            QTest::keyClick(carrier.windowHandle(), key);
        }
        send<QKeyEvent>(carrier.windowHandle(), QEvent::KeyPress, Qt::Key_5, Qt::NoModifier, u"5"_s, true);
        QTest::keyClick(other.windowHandle(), Qt::Key_6);
    };
    setWorksWhenModal(&other, true);
    otherField->setFocus();
    EXPECT_EQ(runWhile(typeAhead), modalStopped);
    EXPECT_EQ(field->text(), u"1"_s);
    EXPECT_EQ(runModalForWindow(panel), modalStopped);
    EXPECT_EQ(field->text(), u"123"_s);
    EXPECT_EQ(keys, u"field+1 field+Return field+2 field+3 field+Return ");
    EXPECT_EQ(runWhile([] {}), modalAborted);
    EXPECT_EQ(field->text(), u"12346"_s);
}

TEST_F(Modal, TheMenuBarGivesTheKeyboardBackAtOnce)
{
    // Ways in and out by keys; no way out is a click outside panel and bar.
    const Table<QList<Qt::Key>, QList<Qt::Key>> rows = {
        {"Escape in a menu", {Qt::Key_F10}, {Qt::Key_Escape}},
        {"Escape in the next menu", {Qt::Key_F10, Qt::Key_Down, Qt::Key_Right}, {Qt::Key_Escape}},
        {"Escape in a menu of a bar entered before", {Qt::Key_Alt, Qt::Key_Down}, {Qt::Key_Escape}},
        {"Escape in the bar", {Qt::Key_Alt, Qt::Key_Right}, {Qt::Key_Escape}},
        {"Alt in the bar", {Qt::Key_Alt}, {Qt::Key_Alt}},
        {"an item", {Qt::Key_Alt, Qt::Key_Right, Qt::Key_Up}, {Qt::Key_Return}},
        {"a click", {Qt::Key_Alt}, {}},
    };
    resetMainMenu();
    CUI_EditMenu(1);
    QMenuBar bar(&carrier);
    showMainMenuIn(&bar);
    bar.show();
    const auto press = [this](Qt::Key key) {
        QWidget *popup = QApplication::activePopupWidget();
        QTest::keyClick((popup ? popup : &carrier)->windowHandle(), key,
                        key == Qt::Key_Alt ? Qt::AltModifier : Qt::NoModifier);
    };
    runWhile([&] {
        for (const auto &[name, enter, leave] : rows) {
            SCOPED_TRACE(name);
            field->setText(u"1"_s);
            std::ranges::for_each(enter, press);
            EXPECT_TRUE(bar.hasFocus() || QApplication::activePopupWidget());
            std::ranges::for_each(leave, press);
            if (leave.isEmpty()) {
                QTest::mouseClick(carrier.windowHandle(), Qt::LeftButton, {}, carrier.rect().bottomRight());
            }
            EXPECT_TRUE(field->hasFocus() && !QApplication::activePopupWidget() && !bar.activeAction());
        }
        press(Qt::Key_Alt);
        other.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return other.isActiveWindow() || field->hasFocus(); }));
        carrier.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return field->hasFocus(); })) << "its window was left and entered again";
    });
}

} // namespace
