#include <tetrad/app/modal.h>

#include "tests/support/windows.h"
#include <tetrad/app/application.h>
#include <tetrad/app/menus.h>

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <algorithm>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

// A window with a panel raised over it, and one beside it; each has a button and a field.
class Modal : public testing::Test
{
protected:
    QWidget carrier;
    QPushButton *outsideButton = new QPushButton(&carrier);
    QLineEdit *outsideField = new QLineEdit(&carrier);
    QWidget *panel = new QWidget(&carrier);
    QLineEdit *field = new QLineEdit(panel);
    QPushButton *button = new QPushButton(panel);
    QWidget other;
    QPushButton *otherButton = new QPushButton(&other);

    void SetUp() override
    {
        CocoaInit();
        carrier.setGeometry(0, 0, 400, 300);
        outsideButton->setGeometry(0, 0, 80, 30);
        outsideField->setGeometry(100, 0, 80, 30);
        panel->setGeometry(50, 100, 200, 80);
        field->setGeometry(0, 0, 80, 30);
        button->setGeometry(100, 0, 80, 30);
        panel->hide();
        other.setGeometry(500, 0, 200, 200);
        other.show();
        carrier.show();
        carrier.activateWindow();
        outsideField->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([this] { return outsideField->hasFocus(); }));
    }

    // Runs the panel and, inside the run, what the player does; the run is aborted after that if it is
    // still on.
    qint64 runWhile(const std::function<void()> &act)
    {
        QTimer::singleShot(0, panel, [act] {
            act();
            abortModal();
        });
        return runModalForWindow(panel);
    }
};

void clickInWindow(const QWidget &inside)
{
    QWidget *top = inside.window();
    QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, inside.mapTo(top, inside.rect().center()));
}

TEST_F(Modal, EveryWayToEndGivesItsCode)
{
    const Table<std::function<void()>, qint64> rows = {
        {"stopped", [] { stopModalWithCode(modalStopped); }, modalStopped},
        {"any code", [] { stopModalWithCode(1001); }, 1001},
        {"aborted", [] { abortModal(); }, modalAborted},
        {"the first end counts", [] { stopModalWithCode(7), stopModalWithCode(8); }, 7},
        {"nothing left over from before it", [] {}, modalAborted},
        {"hidden under the run", [this] { panel->hide(), QCoreApplication::processEvents(); }, modalAborted},
        {"stopped after a hide", [this] { panel->hide(), stopModalWithCode(5); }, 5},
        {"shown again at once is not the end",
         [this] { panel->hide(), panel->show(), QCoreApplication::processEvents(), stopModalWithCode(6); }, 6},
    };
    stopModalWithCode(1); // nothing to stop yet
    for (const auto &[name, act, code] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(runWhile(act), code);
        EXPECT_EQ(modalWindow(), nullptr);
    }
}

TEST_F(Modal, WithoutAWidgetToSeeItAborts)
{
    EXPECT_EQ(runModalForWindow(nullptr), modalAborted);
    carrier.hide();
    EXPECT_EQ(runModalForWindow(panel), modalAborted);
    carrier.show();
    QTimer::singleShot(0, &carrier, [this] { delete panel; });
    EXPECT_EQ(runModalForWindow(panel), modalAborted);
}

TEST_F(Modal, ClicksReachOnlyTheWidget)
{
    const QSignalSpy inside(button, &QPushButton::clicked);
    const QSignalSpy outside(outsideButton, &QPushButton::clicked);
    const QSignalSpy elsewhere(otherButton, &QPushButton::clicked);
    runWhile([this] {
        clickInWindow(*outsideButton);
        clickInWindow(*outsideField);
        clickInWindow(*otherButton);
        QTest::mouseClick(outsideButton, Qt::LeftButton);
        EXPECT_TRUE(field->hasFocus());
        clickInWindow(*button);
    });
    EXPECT_EQ(outside.count() + elsewhere.count(), 0);
    EXPECT_EQ(inside.count(), 1);
    clickInWindow(*outsideButton);
    EXPECT_EQ(outside.count(), 1) << "the filter must be gone after the run";
}

TEST_F(Modal, FocusTakenOutsideComesBackWithItsKeys)
{
    runWhile([this] {
        outsideField->setFocus();
        EXPECT_TRUE(field->hasFocus());
        QTest::keyClicks(outsideField, u"12"_s);
        QTest::keyClick(other.windowHandle(), Qt::Key_3);
    });
    EXPECT_EQ(field->text(), u"123");
    EXPECT_EQ(outsideField->text(), QString());
}

TEST_F(Modal, AMinimisedWindowComesBackAndNothingElseHappens)
{
    QWidget window;
    QPushButton answer(&window);
    const QSignalSpy answered(&answer, &QPushButton::clicked);
    QTimer::singleShot(0, &window, [&] {
        for (const bool byKey : {false, true}) {
            window.showMinimized();
            QApplication::processEvents();
            EXPECT_TRUE(window.isMinimized());
            if (byKey) {
                QTest::keyClick(carrier.windowHandle(), Qt::Key_Space);
            } else {
                clickInWindow(*outsideButton);
            }
            EXPECT_FALSE(window.isMinimized());
        }
        EXPECT_EQ(answered.count(), 0);
        abortModal();
    });
    runModalForWindow(&window);
}

TEST_F(Modal, WhatWorksDuringModalRunsGetsClicksAndKeys)
{
    QLineEdit otherField(&other);
    const QSignalSpy elsewhere(otherButton, &QPushButton::clicked);
    otherField.setGeometry(0, 50, 80, 30);
    otherField.show();
    setWorksWhenModal(&other, true);
    runWhile([&] {
        clickInWindow(*otherButton);
        clickInWindow(otherField);
        QTest::keyClick(other.windowHandle(), Qt::Key_3);
    });
    EXPECT_EQ(elsewhere.count(), 1);
    EXPECT_EQ(otherField.text(), u"3");
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
    runWhile([&] {
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

TEST_F(Modal, NestedRunsEndInTurn)
{
    QWidget inner(&carrier, Qt::Window);
    QLineEdit innerField(&inner);
    const auto runInner = [&] {
        QTimer::singleShot(0, &inner, [&] {
            EXPECT_EQ(modalWindow(), &inner);
            QTest::keyClick(field, Qt::Key_7);
            stopModalWithCode(11);
        });
        EXPECT_EQ(runModalForWindow(&inner), 11);
        EXPECT_EQ(modalWindow(), panel);
        inner.hide();
        EXPECT_TRUE(QTest::qWaitFor([this] { return field->hasFocus(); }));
        stopModalWithCode(12);
    };
    EXPECT_EQ(runWhile(runInner), 12);
    EXPECT_EQ(innerField.text(), u"7");
    EXPECT_EQ(field->text(), QString());
}

TEST_F(Modal, OuterWidgetGoneWhileInnerRuns)
{
    QWidget inner;
    const auto runInner = [&] {
        QTimer::singleShot(0, &inner, [this] { delete panel, stopModalWithCode(3); });
        EXPECT_EQ(runModalForWindow(&inner), 3);
    };
    EXPECT_EQ(runWhile(runInner), modalAborted);
}

TEST_F(Modal, StopsFromInsideAnOpenMenu)
{
    QMenu menu;
    menu.addAction(u"Item"_s);
    const auto openAndStop = [&] {
        QTimer::singleShot(0, &menu, [] { stopModalWithCode(4); });
        menu.exec(carrier.mapToGlobal(QPoint(10, 10)));
    };
    EXPECT_EQ(runWhile(openAndStop), 4);
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(Modal, KeysTypedAheadWaitForTheNextRun)
{
    QObject::connect(field, &QLineEdit::returnPressed, panel, [] { stopModalWithCode(modalStopped); });
    const auto typeAhead = [&] {
        for (const auto key : {Qt::Key_1, Qt::Key_Return, Qt::Key_2, Qt::Key_3, Qt::Key_Return, Qt::Key_4}) {
            QTest::keyClick(carrier.windowHandle(), key);
        }
    };
    EXPECT_EQ(runWhile(typeAhead), modalStopped);
    EXPECT_EQ(field->text(), u"1");
    field->clear();
    EXPECT_EQ(runModalForWindow(panel), modalStopped);
    EXPECT_EQ(field->text(), u"23");
    field->clear();
    EXPECT_EQ(runWhile([] {}), modalAborted);
    EXPECT_EQ(field->text(), u"4");
}

TEST_F(Modal, TheMenuBarGivesTheKeyboardBackAtOnce)
{
    // Ways in and out by keys; no way out is a click beside panel and bar.
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
        QTest::keyClick((popup != nullptr ? popup : &carrier)->windowHandle(), key,
                        key == Qt::Key_Alt ? Qt::AltModifier : Qt::NoModifier);
    };
    runWhile([&] {
        for (const auto &[name, enter, leave] : rows) {
            SCOPED_TRACE(name);
            field->setText(u"1"_s);
            std::ranges::for_each(enter, press);
            EXPECT_TRUE(bar.hasFocus() || QApplication::activePopupWidget() != nullptr);
            std::ranges::for_each(leave, press);
            if (leave.isEmpty()) {
                QTest::mouseClick(carrier.windowHandle(), Qt::LeftButton, {}, carrier.rect().bottomRight());
            }
            EXPECT_TRUE(field->hasFocus());
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
            EXPECT_EQ(bar.activeAction(), nullptr);
        }
        press(Qt::Key_Alt);
        other.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return other.isActiveWindow() || field->hasFocus(); }));
        carrier.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return field->hasFocus(); })) << "its window was left and entered again";
    });
}

TEST_F(Modal, AWindowThatGetsTheKeyboardBehindAMenuHasItAfterwards)
{
    QMenu menu;
    menu.addAction(u"Item"_s);
    QWidget window;
    QPushButton inside(&window);
    QTimer::singleShot(0, &menu, [&] {
        menu.popup(QPoint(10, 10));
        window.activateWindow();
        QCoreApplication::processEvents();
        EXPECT_FALSE(window.isActiveWindow());
        menu.close();
        EXPECT_TRUE(QTest::qWaitFor([&] { return inside.hasFocus(); }));
        abortModal();
    });
    runModalForWindow(&window);
}

} // namespace
