"""A clipboard manager of the kind a desktop runs: asked by a program that ends, it takes the copied text over.

Prints "ready" once it is in charge. What it takes over it serves until it is ended.
"""

from Xlib import X, display
from Xlib.protocol import event

screen = display.Display()
CLIPBOARD, MANAGER, UTF8 = map(screen.intern_atom, ("CLIPBOARD", "CLIPBOARD_MANAGER", "UTF8_STRING"))
window = screen.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
saved = asker = None


def answer(request):
    request.requestor.send_event(event.SelectionNotify(
        time=request.time, requestor=request.requestor, selection=request.selection, target=request.target,
        property=request.property))
    screen.flush()


window.set_selection_owner(MANAGER, X.CurrentTime)
screen.sync()
print("ready", flush=True)
while True:
    happened = screen.next_event()
    if happened.type == X.SelectionRequest and happened.selection == MANAGER:
        # The answer comes once the text is here; until then the program must wait.
        asker = happened
        window.convert_selection(CLIPBOARD, UTF8, UTF8, X.CurrentTime)
    elif happened.type == X.SelectionNotify and asker:
        saved = window.get_full_property(UTF8, X.AnyPropertyType).value
        window.set_selection_owner(CLIPBOARD, X.CurrentTime)
        answer(asker)
        asker = None
    elif happened.type == X.SelectionRequest:
        # xclip asks for nothing but UTF-8.
        happened.requestor.change_property(happened.property, UTF8, 8, saved)
        answer(happened)
