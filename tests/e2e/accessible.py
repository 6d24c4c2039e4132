"""What an assistive-technology client sees of a program: its tree of accessible objects."""

from desktop import Atspi, GLib


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

    def _has(self, interface):
        return interface in _ask(self._accessible.get_interfaces, [])
