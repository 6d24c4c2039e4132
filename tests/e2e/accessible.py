"""What an assistive-technology client sees of a program: its tree of accessible objects."""

from desktop import Atspi, GLib

TEXT_EVENTS = ("object:text-changed:insert", "object:text-changed:delete", "object:text-caret-moved",
               "object:text-selection-changed")


def _ask(question, default=None):
    """An object may vanish between finding it and asking it; that is an answer, not an error."""
    try:
        return question()
    except GLib.Error:
        return default


def application_of(process_id):
    """The application object of a process; None while it has not joined the accessibility bus."""
    desktop = Atspi.get_desktop(0)
    for index in range(_ask(desktop.get_child_count, 0)):
        application = _ask(lambda: desktop.get_child_at_index(index))
        if application and _ask(application.get_process_id) == process_id:
            # Always ask the program itself: a remembered name would be yesterday's prompt.
            _ask(lambda: application.set_cache_mask(Atspi.Cache.NONE))
            return Node(application)
    return None


class Node:
    """One accessible object; every question goes to the program."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def name(self):
        return _ask(self._accessible.get_name, "")

    @property
    def description(self):
        return _ask(self._accessible.get_description, "")

    @property
    def role(self):
        return _ask(self._accessible.get_role_name, "")

    @property
    def text(self):
        return _ask(lambda: Atspi.Text.get_text(self._accessible, 0, -1), "") if self._has("Text") else ""

    @property
    def states(self):
        states = _ask(lambda: self._accessible.get_state_set().get_states(), [])
        return {state.value_nick for state in states}

    @property
    def children(self):
        count = _ask(self._accessible.get_child_count, 0)
        children = (_ask(lambda: self._accessible.get_child_at_index(index)) for index in range(count))
        return [Node(child) for child in children if child]

    @property
    def rectangle(self):
        """x, y, width, height on the screen."""
        place = _ask(lambda: Atspi.Component.get_extents(self._accessible, Atspi.CoordType.SCREEN))
        return (place.x, place.y, place.width, place.height) if place else (0, 0, 0, 0)

    @property
    def centre(self):
        x, y, width, height = self.rectangle
        return x + width // 2, y + height // 2

    def is_the_same_as(self, other):
        return other is not None and self._accessible == other._accessible

    def find_all(self, *roles, name=None, showing=True):
        """The objects below this one, nearest first, that have one of the roles and the name."""
        found = []
        level = self.children
        while level:
            for node in level:
                if node.role in roles and (name is None or node.name == name):
                    if not showing or "showing" in node.states:
                        found.append(node)
            level = [child for node in level for child in node.children]
        return found

    def find(self, *roles, name=None, showing=True):
        found = self.find_all(*roles, name=name, showing=showing)
        return found[0] if found else None

    def tree(self, depth=0):
        """The tree as text, one object a line, for a person to read."""
        line = f'{"  " * depth}{self.role} "{self.name}"'
        if self.description:
            line += f" described {self.description!r}"
        if self.text:
            line += f" text {self.text!r}"
        line += f" {sorted(self.states)} {self.rectangle}\n"
        return line + "".join(child.tree(depth + 1) for child in self.children)

    # -- text

    @property
    def caret(self):
        return _ask(lambda: Atspi.Text.get_caret_offset(self._accessible), -1)

    @property
    def selection(self):
        """Where the selected text starts and where it ends; None when there is none."""
        if _ask(lambda: Atspi.Text.get_n_selections(self._accessible), 0) != 1:
            return None
        selected = Atspi.Text.get_selection(self._accessible, 0)
        return selected.start_offset, selected.end_offset

    def select(self, start, end):
        return Atspi.Text.add_selection(self._accessible, start, end)

    def character_rectangle(self, offset):
        """x, y, width, height on the screen."""
        place = Atspi.Text.get_character_extents(self._accessible, offset, Atspi.CoordType.SCREEN)
        return place.x, place.y, place.width, place.height

    def offset_at(self, x, y):
        return Atspi.Text.get_offset_at_point(self._accessible, x, y, Atspi.CoordType.SCREEN)

    # -- actions

    def grab_focus(self):
        return Atspi.Component.grab_focus(self._accessible)

    def do(self, action):
        """Asks the program to do what a press, as of a button, would do."""
        for index in range(Atspi.Action.get_n_actions(self._accessible)):
            if Atspi.Action.get_action_name(self._accessible, index) == action:
                return Atspi.Action.do_action(self._accessible, index)
        return False

    def _has(self, interface):
        return interface in _ask(self._accessible.get_interfaces, [])


class TextEvents:
    """What a program tells about one text while it changes, in the order in which it is told."""

    def __init__(self, node):
        self._node = node
        self.events = []
        self._listener = Atspi.EventListener.new(self._heard)

    def __enter__(self):
        for name in TEXT_EVENTS:
            self._listener.register(name)
        return self

    def __exit__(self, *_):
        for name in TEXT_EVENTS:
            self._listener.deregister(name)

    def _heard(self, event):
        if self._node.is_the_same_as(Node(event.source)):
            # GObject's boxed event is only lent.
            self.events.append((event.type.removeprefix("object:"), event.detail1, event.detail2, event.any_data))

    def replay(self, text):
        """What a client that follows only the events makes of the text it had before."""
        for kind, start, _, changed in self.events:
            if kind.startswith("text-changed:insert"):
                text = text[:start] + changed + text[start:]
            elif kind.startswith("text-changed:delete"):
                if not text.startswith(changed, start):
                    raise AssertionError(f"{changed!r} was said to be deleted at {start} of {text!r}")
                text = text[:start] + text[start + len(changed):]
        return text

    def named(self, name):
        return [event for event in self.events if event[0] == name]
