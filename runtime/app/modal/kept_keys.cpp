#include "runtime/app/modal/kept_keys.h"

#include "runtime/app/modal/modal_focus.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace tetrad {

// A key that repeats because it is held down is not typed ahead, and a release counts only after
// its press.
void KeptKeys::keep(QEvent *event)
{
    const auto *key = static_cast<const QKeyEvent *>(event);
    const auto samePress = [key](const auto &kept) { return kept->key() == key->key(); };
    const bool wanted = event->type() == QEvent::KeyPress ||
                        (event->type() == QEvent::KeyRelease && std::ranges::any_of(m_keys, samePress));
    if (wanted && !key->isAutoRepeat()) {
        m_keys.emplace_back(key->clone());
    }
    event->setAccepted(event->type() != QEvent::ShortcutOverride);
}

void KeptKeys::deliverTo(const ModalFocus &newest)
{
    for (auto &key : std::exchange(m_keys, {})) {
        QWidget *focus = newest.widget() ? newest.widget()->window()->focusWidget() : nullptr;
        if (!focus) {
            // The run was ended by one of the keys: the rest is for the one after it.
            m_keys.push_back(std::move(key));
            continue;
        }
        QCoreApplication::sendEvent(focus, key.get());
    }
}

} // namespace tetrad
