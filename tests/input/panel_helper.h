#pragma once

#include "runtime/app/application.h"
#include "tests/windows.h"

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
    QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(target, &held);
}

/// Waits for the panel of the next modal run, plays the user's part, and fails the test if the panel
/// still waits afterwards.
template <typename Panel>
class WithPanel
{
public:
    explicit WithPanel(std::function<void(Panel &)> user) : m_user(std::move(user))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { play(); });
        m_timer.start(0);
    }
    ~WithPanel() { EXPECT_TRUE(m_played) << "no panel came"; }

private:
    void play()
    {
        const QPointer<Panel> panel = qobject_cast<Panel *>(modalWindow());
        if (!panel || !panel->isVisible() || !panel->window()->isActiveWindow()) {
            return;
        }
        m_timer.stop();
        m_played = true;
        m_user(*panel);
        if (panel) {
            // Not reached when the user's last key ended the run, since the panel is deleted then.
            QTimer::singleShot(0, panel, [] {
                ADD_FAILURE() << "the panel still waits";
                abortModal();
            });
        }
    }

    std::function<void(Panel &)> m_user;
    QTimer m_timer;
    bool m_played = false;
};

/// A window of the game's size, in front and active.
class PanelTest : public testing::Test
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
        delete host;
    }

    QPointer<Window> host;
};

} // namespace tetrad
