"""A clipboard manager of the kind a desktop runs: asked by a program that ends, it takes the copied text over.

Prints "ready" once it is in charge. What it takes over it serves until it is ended.
"""

from Xlib import X, Xatom, display
from Xlib.protocol import event

screen = display.Display()
atom = screen.intern_atom
CLIPBOARD, MANAGER, SAVE_TARGETS, TARGETS, UTF8 = map(
    atom, ("CLIPBOARD", "CLIPBOARD_MANAGER", "SAVE_TARGETS", "TARGETS", "UTF8_STRING"))
window = screen.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
saved = None
asker = None


def answer(request, succeeded):
    request.requestor.send_event(event.SelectionNotify(
        time=request.time, requestor=request.requestor, selection=request.selection, target=request.target,
        property=request.property if succeeded else X.NONE))
    screen.flush()


def serve(request):
    if request.target == TARGETS:
        request.requestor.change_property(request.property, Xatom.ATOM, 32, [TARGETS, UTF8])
    elif request.target == UTF8:
        request.requestor.change_property(request.property, UTF8, 8, saved)
    answer(request, request.target in (TARGETS, UTF8))


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
        answer(asker, True)
        asker = None
    elif happened.type == X.SelectionRequest:
        serve(happened)
