"""What an assistive-technology client sees of a program: its tree of accessible objects."""

from desktop import Atspi, GLib

TEXT_EVENTS = ("object:text-changed:insert", "object:text-changed:delete", "object:text-caret-moved",
               "object:text-selection-changed")


def _ask(question, default):
    """An object may vanish between finding it and asking it; that is an answer, not an error."""
    try:
        return question()
    except GLib.Error:
        return default


def _asked(question, default):
    """A property that the program is asked for each time, with the accessible object."""
    return property(lambda node: _ask(lambda: question(node._accessible), default))


def _children(accessible):
    children = (_ask(lambda: accessible.get_child_at_index(index), None) for index in range(accessible.get_child_count()))
    return [Node(child) for child in children if child]


def _selection(accessible):
    if Atspi.Text.get_n_selections(accessible) != 1:
        return None
    selected = Atspi.Text.get_selection(accessible, 0)
    return selected.start_offset, selected.end_offset


def _sides(place):
    return place.x, place.y, place.width, place.height


def application_of(process_id):
    """The application object of a process; None while it has not joined the accessibility bus."""
    for application in _ask(lambda: _children(Atspi.get_desktop(0)), []):
        if application.process_id == process_id:
            # Always ask the program itself: a remembered name would be yesterday's prompt.
            _ask(lambda: application._accessible.set_cache_mask(Atspi.Cache.NONE), None)
            return application
    return None


class Node:
    """One accessible object. Rectangles are x, y, width and height on the screen."""

    name = _asked(Atspi.Accessible.get_name, "")
    description = _asked(Atspi.Accessible.get_description, "")
    # Newer versions of AT-SPI call a push button a button.
    role = _asked(lambda it: {"button": "push button"}.get(name := it.get_role_name(), name), "")
    process_id = _asked(Atspi.Accessible.get_process_id, 0)
    states = _asked(lambda it: {state.value_nick for state in it.get_state_set().get_states()}, frozenset())
    children = _asked(_children, [])
    rectangle = _asked(lambda it: _sides(Atspi.Component.get_extents(it, Atspi.CoordType.SCREEN)), (0, 0, 0, 0))
    text = _asked(lambda it: Atspi.Text.get_text(it, 0, -1) if "Text" in it.get_interfaces() else "", "")
    # Where the selected text starts and where it ends; None when there is none.
    selection = _asked(_selection, None)

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def centre(self):
        x, y, width, height = self.rectangle
        return x + width // 2, y + height // 2

    def __eq__(self, other):
        return isinstance(other, Node) and self._accessible == other._accessible

    def find_all(self, *roles, name=None):
        """The objects below this one, nearest first, that are shown and have one of the roles and the name."""
        found = []
        level = self.children
        while level:
            found += [node for node in level if node.role in roles and name in (None, node.name) and "showing" in node.states]
            level = [child for node in level for child in node.children]
        return found

    def find(self, *roles, name=None):
        return next(iter(self.find_all(*roles, name=name)), None)

    def tree(self, depth=0):
        """The tree as text, one object a line, for a person to read."""
        line = (f'{"  " * depth}{self.role} "{self.name}" described {self.description!r} text {self.text!r}'
                f" {sorted(self.states)} {self.rectangle}\n")
        return line + "".join(child.tree(depth + 1) for child in self.children)

    def character_rectangle(self, offset):
        return _sides(Atspi.Text.get_character_extents(self._accessible, offset, Atspi.CoordType.SCREEN))

    def sent(self, events):
        """The kinds of its own among focus_and_caret_events()."""
        return [kind.removeprefix("object:") for source, kind in events if source == self._accessible]

    def grab_focus(self):
        return Atspi.Component.grab_focus(self._accessible)

    def press(self):
        """Asks the program to do what a press, as of a button, would do."""
        actions = range(Atspi.Action.get_n_actions(self._accessible))
        names = [Atspi.Action.get_action_name(self._accessible, index) for index in actions]
        return Atspi.Action.do_action(self._accessible, names.index("Press"))


def text_events(node):
    """The events of one text from now on, in the order of their arrival: kind, number and text. They end with the listener,
    which is returned as well."""
    events = []

    def hear(event):
        # GObject's boxed event is only lent.
        if event.source == node._accessible:
            events.append((event.type.removeprefix("object:"), event.detail1, event.any_data))

    listener = Atspi.EventListener.new(hear)
    for name in TEXT_EVENTS:
        listener.register(name)
    return events, listener


def focus_and_caret_events():
    """Those of every object from now on, for Node.sent; and the listener, with which they end."""
    events = []
    listener = Atspi.EventListener.new(lambda event: events.append((event.source, event.type)))
    for name in ("object:state-changed:focused", "object:text-caret-moved"):
        listener.register(name)
    return events, listener


def replayed(events, text):
    """What a client that follows only the events makes of the text it had before."""
    for kind, start, changed in events:
        if kind == "text-changed:insert":
            if start > len(text):
                raise AssertionError(f"{changed!r} was said to be inserted at {start} of {text!r}")
            text = text[:start] + changed + text[start:]
        elif kind == "text-changed:delete":
            if not text.startswith(changed, start):
                raise AssertionError(f"{changed!r} was said to be deleted at {start} of {text!r}")
            text = text[:start] + text[start + len(changed):]
    return text
