"""The program's system calls: it writes no file and talks to nobody but the display and the session's buses."""

import os
import re

from desktop import Gio
from game import PROGRAM, prompt_after
from playing import PlayingTest

CALLS = ("open,openat,openat2,creat,truncate,mkdir,mkdirat,mknod,mknodat,rename,renameat,renameat2,unlink,unlinkat,rmdir,"
         "link,linkat,symlink,symlinkat,chmod,fchmodat,chown,lchown,fchownat,utimensat,setxattr,socket,connect,bind,listen,"
         "execve,execveat")


class TestTrace(PlayingTest):
    def play_with_everything(self, game):
        game.wait_for_prompt()
        self.desktop.set_clipboard("1+2")
        self.desktop.press("ctrl+v")
        game.wait_for_field_text("1+2")
        game.choose("Edit", "Select All")
        self.desktop.press("ctrl+x")
        game.wait_for_field_text("")
        game.answer("9")
        game.answer("s", prompt_after("9"))
        game.win()
        game.play_again()
        game.wait_for_prompt()
        self.desktop.press("ctrl+q")
        self.assert_clean_end(game)

    def sockets(self):
        """Paths of the display, of the session bus, and of the accessibility bus that the latter knows."""
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        accessibility = bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                      Gio.DBusCallFlags.NONE, -1)[0]
        buses = re.findall(r"path=([^,;]+)", f"{self.desktop.environment['DBUS_SESSION_BUS_ADDRESS']};{accessibility}")
        return [f"/tmp/.X11-unix/X{self.desktop.environment['DISPLAY'][1:]}", *buses]

    def test_it_writes_no_file_and_opens_no_connection_but_to_the_desktop(self):
        path = os.path.join(self.desktop.folder, "trace")
        self.play_with_everything(self.start(command=["strace", "-D", "-f", "-qq", "-s", "200", "-e", f"trace={CALLS}",
                                                      "-e", "signal=none", "-o", path, PROGRAM]))
        with open(path, encoding="utf-8", errors="replace") as trace:
            calls = [line.split(maxsplit=1)[1].strip() for line in trace if not re.search(r"= -1 E", line)]
        allowed = [
            r"open(at|at2)?\((?!.*(O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_TMPFILE))",
            rf'execve\("{re.escape(PROGRAM)}"',
            r"socket\(AF_UNIX",
            rf'connect\(.*sun_path=@?"({"|".join(map(re.escape, self.sockets()))})"',
        ]
        for kind in allowed:
            self.assertTrue(any(re.match(kind, call) for call in calls), f"nothing in the trace is {kind}")
        self.assertEqual([call for call in calls if not re.match("|".join(allowed), call)], [])
