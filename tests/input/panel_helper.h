#pragma once

#include "tests/support/windows.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace tetrad {

/// Types what an input method composed.
inline void compose(QWidget *target, const QString &text)
{
    QInputMethodEvent commit;
    commit.setCommitString(text);
    QCoreApplication::sendEvent(target, &commit);
}

/// One repetition of a key that was already down before the panel came.
inline void repeatHeldKey(QWidget *target, Qt::Key key)
{
    send<QKeyEvent>(target, QEvent::KeyPress, key, Qt::NoModifier, u"\r"_s, true);
}

/// Plays the user's part in the panel that is run next, and fails the test if it still waits afterwards.
template <typename Panel>
void whenPanelRuns(std::function<void(Panel &)> user)
{
    whenRuns<Panel>([user = std::move(user)](Panel *panel) {
        const QPointer<Panel> waiting = panel;
        user(*panel);
        if (waiting) {
            // Not reached when the user's last key ended the run, since the panel is deleted then.
            QTimer::singleShot(0, waiting, [waiting] {
                if (modalWindow() == waiting) {
                    ADD_FAILURE() << "the panel still waits";
                    abortModal();
                }
            });
        }
    });
}

/// A window of the game's size, in front and active.
class PanelTest : public WindowTest
{
protected:
    void SetUp() override
    {
        CocoaInit();
        host = open(1, QRectF(100, 100, 580, 250));
        ASSERT_TRUE(QTest::qWaitForWindowActive(host));
    }
    void TearDown() override
    {
        EXPECT_EQ(modalWindow(), nullptr);
        WindowTest::TearDown();
    }

    QPointer<Window> host;
};

} // namespace tetrad
