"""What a screen reader is given: objects of the tree, and what is spoken of its own accord."""


class Seen:
    """An object of the tree as it was when it was looked at."""

    def __init__(self, node, Atspi):
        self.node = node
        self.role = node.get_role_name()
        self.name = node.get_name() or ""
        self.description = node.get_description() or ""
        states = node.get_state_set()
        self.showing = states.contains(Atspi.StateType.SHOWING)
        self.focused = states.contains(Atspi.StateType.FOCUSED)
        self.enabled = states.contains(Atspi.StateType.ENABLED)
        self.focusable = states.contains(Atspi.StateType.FOCUSABLE)
        self.checked = states.contains(Atspi.StateType.CHECKED)
        self.text = ""
        if "Text" in node.get_interfaces():
            self.text = Atspi.Text.get_text(node, 0, -1) or ""

    def words(self):
        return " ".join(part for part in (self.name, self.text) if part)

    def __repr__(self):
        text = f" text={self.text!r}" if self.text and self.text != self.name else ""
        focus = " focused" if self.focused else ""
        return f"{self.role} {self.name!r}{text}{focus}"


class Heard:
    """What a screen reader is told to speak of its own accord, in order."""

    def __init__(self, desk):
        self.desk = desk
        self.texts = []
        self.listener = desk.Atspi.EventListener.new(self._told)
        self.listener.register("object:state-changed:showing")
        self.listener.register("object:announcement")
        self.focus = []  # what the keyboard focus has come to, windows with their titles among it
        self.focus_listener = desk.Atspi.EventListener.new(self._moved)
        self.focus_listener.register("object:state-changed:focused")
        self.focus_listener.register("window:activate")

    def _moved(self, event):
        if event.type.startswith("window:") or event.detail1 == 1:
            try:
                event.source.clear_cache()
                self.focus.append(Seen(event.source, self.desk.Atspi))
            except self.desk.GLib.Error:
                pass

    def _told(self, event):
        try:
            if event.type.startswith("object:announcement"):
                self.texts.append(event.any_data)
            elif event.detail1 == 1 and event.source.get_role_name() == "notification":
                event.source.clear_cache()
                self.texts.append(event.source.get_name())
        except self.desk.GLib.Error:
            pass  # What has gone since is no notification: those stay.

    def forget(self):
        """What has been spoken until now counts no more."""
        self.desk.look()
        self.texts.clear()

    def wait(self, part):
        """The first text with `part` in it."""
        return self.desk.wait(
            lambda: next((text for text in self.texts if part in text), None),
            lambda: f"{part!r} is spoken; it was {self.texts}",
        )
