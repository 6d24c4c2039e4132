"""A clipboard manager of the kind a desktop runs: asked by a program that ends, it takes the copied text over, which xclip
serves from then on. Prints "ready" once it is in charge.
"""

import subprocess

from Xlib import X, display
from Xlib.protocol import event

screen = display.Display()
clipboard, manager, utf8 = map(screen.intern_atom, ("CLIPBOARD", "CLIPBOARD_MANAGER", "UTF8_STRING"))
window = screen.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)


def wait_for(kind):
    while (happened := screen.next_event()).type != kind:
        pass
    return happened


window.set_selection_owner(manager, X.CurrentTime)
screen.sync()
print("ready", flush=True)
request = wait_for(X.SelectionRequest)
window.convert_selection(clipboard, utf8, utf8, X.CurrentTime)
wait_for(X.SelectionNotify)
copied = window.get_full_property(utf8, X.AnyPropertyType).value
subprocess.run(["xclip", "-selection", "clipboard"], input=copied, check=True, stdout=subprocess.DEVNULL)
# The answer comes once the text is here; until then the program must wait.
request.requestor.send_event(event.SelectionNotify(
    time=request.time, requestor=request.requestor, selection=request.selection, target=request.target,
    property=request.property))
screen.flush()
