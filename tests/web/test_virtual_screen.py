# SPDX-License-Identifier: MIT
"""The screen that a browser or a VNC viewer shows: who can reach it, and what it leaves behind."""
import os
import re
import signal
import socket
import subprocess
import unittest
import urllib.request

import processes
from needs import needs
from virtual_screen import DEMO, Holdings, VirtualScreen
from waiting import wait_for

NOBODY = 65534
PROGRAM = os.path.basename(DEMO)


def reachable(screen):
    with urllib.request.urlopen(screen.url().split("#")[0]) as page:
        return page.status == 200


def greeting(port):
    with socket.create_connection(("127.0.0.1", port)) as viewer:
        return viewer.recv(4)


@needs("Xtigervnc", "tigervncpasswd", "xauth", "websockify", "/usr/share/novnc/vnc.html")
class Reach(unittest.TestCase):
    def test_listens_on_loopback_alone(self):
        for way in "web", "vnc":
            with self.subTest(way), VirtualScreen(way) as screen:
                port = screen.port()
                listeners = screen.holdings().tcp
                self.assertIn(port, [number for _, _, number in listeners])
                self.assertEqual([], [str(address) for _, address, _ in listeners if not address.is_loopback])

    def test_answers_elsewhere_only_when_told(self):
        addresses = processes.other_addresses()
        if not addresses:
            self.skipTest("this machine has no address but loopback")
        for told, expected in (("127.0.0.1", []), ("0.0.0.0", [a for a in addresses if ":" not in a])):
            with self.subTest(told), VirtualScreen(address=told) as screen:
                port = screen.port()
                found = [address for address in addresses if processes.answers(address, port)]
                self.assertEqual(expected, found)
                self.assertTrue(processes.answers("127.0.0.1", port))

    def test_listens_by_ipv6(self):
        if not processes.read("/proc/net/if_inet6"):
            self.skipTest("this machine has no IPv6")
        with VirtualScreen(address="::1") as screen:
            self.assertTrue(screen.url().startswith("http://[::1]:"))
            self.assertTrue(reachable(screen))

    def test_wrong_address(self):
        for way in "web", "vnc":
            with self.subTest(way), VirtualScreen(way, "198.51.100.1") as screen:
                self.assertEqual(1, screen.status())
                self.assertIn("Cannot assign requested address", screen.said())

    def test_runs_beside_others(self):
        users = [None, None] + [NOBODY] * self.nobody_can_run_it()
        screens = [VirtualScreen(user=user) for user in users] + [VirtualScreen("vnc"), VirtualScreen("vnc")]
        try:
            self.assertEqual(len(screens), len({screen.password() for screen in screens}))
            self.assertEqual(len(screens), len({screen.port() for screen in screens}))
            for screen in screens[:-2]:
                self.assertTrue(reachable(screen))
            for screen in screens[-2:]:
                self.assertEqual(b"RFB ", greeting(screen.port()))
            for screen in screens:
                screen.program_surroundings()
        finally:
            for screen in screens:
                screen.__exit__()

    def nobody_can_run_it(self):
        able = os.geteuid() == 0 and subprocess.run(
            ["setpriv", "--reuid", str(NOBODY), "--regid", str(NOBODY), "--clear-groups", DEMO, "--help"],
            check=False, capture_output=True).returncode == 0
        if not able:
            print("A run of another user is left out: that takes root, and a folder that all may enter.")
        return able

    def test_takes_another_port(self):
        with VirtualScreen("vnc") as first, VirtualScreen("vnc") as second:
            self.assertNotEqual(first.port(), second.port())
            self.assertEqual(b"RFB ", greeting(second.port()))


@needs("Xtigervnc", "tigervncpasswd", "xauth", "websockify", "/usr/share/novnc/vnc.html")
class Secrets(unittest.TestCase):
    def test_password_is_on_no_command_line(self):
        for way in "web", "vnc":
            with self.subTest(way), VirtualScreen(way) as screen:
                password = screen.password()
                self.assertRegex(password, r"\A[A-Za-z0-9]{8}\Z")
                commands = [processes.command(process) for process in screen.holdings().processes]
                self.assertGreaterEqual(len(commands), 2)
                self.assertNotIn(password, str(commands))

    def test_files_are_the_owners_alone(self):
        with VirtualScreen() as screen:
            screen.url()
            self.assertEqual([], screen.open_files())

    def test_x_server_refuses_strangers(self):
        with VirtualScreen() as screen:
            number = screen.program_surroundings()["DISPLAY"].lstrip(":")
            with socket.socket(socket.AF_UNIX) as client:
                client.connect(f"\0/tmp/.X11-unix/X{number}")
                client.sendall(b"l\0\x0b\0\0\0\0\0\0\0\0\0")  # protocol 11.0, no authorization
                self.assertEqual(b"\0", client.recv(1))  # refused; 1 is success


@needs("Xtigervnc", "tigervncpasswd", "xauth", "websockify", "/usr/share/novnc/vnc.html")
class End(unittest.TestCase):
    def assert_nothing_left(self, holdings):
        self.assertTrue(holdings.processes)
        self.assertTrue(holdings.folder)
        wait_for("an empty list of what is left", lambda: not holdings.left())

    def end_by(self, way, act, status):
        with VirtualScreen(way) as screen:
            screen.password()
            holdings = screen.holdings()
            self.assertGreaterEqual(len(holdings.left()), 5)
            act(screen)
            self.assertIn(screen.status(), status, screen.said())
            self.assert_nothing_left(holdings)

    def test_interrupted(self):
        for way in "web", "vnc":
            with self.subTest(way):
                self.end_by(way, VirtualScreen.interrupt, [130])

    def test_terminated(self):
        self.end_by("web", lambda screen: screen.process.send_signal(signal.SIGTERM), [143])

    def test_terminal_closed(self):
        self.end_by("web", lambda screen: screen.process.send_signal(signal.SIGHUP), [129])

    def test_server_ended(self):
        # Without its display the program ends as well, and may be noticed first.
        for name, status in (("websockify", [1]), ("Xtigervnc", range(1, 256))):
            with self.subTest(name):
                self.end_by("web", lambda screen, name=name: os.kill(screen.find_process(name), signal.SIGTERM),
                            status)

    def test_script_killed(self):
        self.end_by("web", lambda screen: screen.process.kill(), [-signal.SIGKILL])

    def test_program_ended(self):
        with VirtualScreen(program=("sh", "-c", "exit 7")) as screen:
            self.assertEqual(7, screen.status())
        with VirtualScreen(program=("/nowhere/program",)) as screen:
            self.assertEqual(127, screen.status())

    def test_interrupted_at_its_start(self):
        for name in "sh", "Xtigervnc", "xauth", "listen", "websockify", PROGRAM:
            with self.subTest(name), VirtualScreen() as screen:
                while not screen.lines or name == PROGRAM:
                    children = processes.descendants(screen.process.pid)
                    if any(name in str(processes.command(child)[:2]) for child in children):
                        break
                holdings = Holdings(screen.process.pid)
                screen.interrupt()
                self.assertIn(screen.status(), (130, -signal.SIGINT))
                wait_for("an empty list of what is left", lambda: not holdings.left())
