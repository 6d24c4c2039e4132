#pragma once

#include <QKeyEvent>

#include <memory>
#include <vector>

namespace tetrad {

class ModalFocus;

/// The keys typed between the end of a modal run and the start of the next one.
class KeptKeys
{
public:
    /// Keeps a copy of a key event and ends the event.
    void keep(QEvent *event);

    /// Sends the keys to what has the focus in the window of the newest run, as long as that run is on.
    void deliverTo(const ModalFocus &newest);

private:
    std::vector<std::unique_ptr<QKeyEvent>> m_keys;
};

} // namespace tetrad
