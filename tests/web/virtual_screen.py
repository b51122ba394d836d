# SPDX-License-Identifier: MIT
"""scripts/virtual-screen at work, watched from outside."""
import os
import re
import signal
import stat
import subprocess
import tempfile
import threading

import processes
from waiting import wait_for

SCRIPT = os.environ["HMI_VIRTUAL_SCREEN"]
DEMO = os.environ["HMI_DEMO"]


class Holdings:
    """What a run has of the machine at one moment."""

    def __init__(self, leader):
        self.processes = processes.descendants(leader)
        inodes = processes.socket_inodes(self.processes)
        self.tcp = [(inode, address, port) for inode, address, port in processes.tcp_listeners() if inode in inodes]
        self.unix = [(inode, name) for inode, name in processes.unix_listeners() if inode in inodes]
        self.folder = None
        for process in self.processes:
            match = re.search(r"/tmp/hmi-screen\.\w+", " ".join(processes.command(process)))
            if match:
                self.folder = match.group()

    def left(self):
        """What of it is still there."""
        inodes = {inode for inode, *_ in [*processes.tcp_listeners(), *processes.unix_listeners()]}
        found = [f"process {process}" for process in self.processes if processes.is_running(process)]
        found += [f"port {port}" for inode, _, port in self.tcp if inode in inodes]
        found += [f"socket {name}" for inode, name in self.unix if inode in inodes]
        if self.folder and os.path.exists(self.folder):
            found.append(f"folder {self.folder}")
        return found


class VirtualScreen:
    """One run of the script, in a group of processes of its own, as a terminal would start it."""

    def __init__(self, way="web", address="127.0.0.1", program=(DEMO,), user=None):
        prefix = ["setpriv", "--reuid", str(user), "--regid", str(user), "--clear-groups"] if user else []
        self.complaints = tempfile.TemporaryFile(mode="w+")
        self.lines = []
        self.process = subprocess.Popen(
            prefix + [SCRIPT, way, address, "1280x800", *program], cwd="/", start_new_session=True, text=True,
            encoding="utf-8", stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=self.complaints)
        threading.Thread(target=self.read, daemon=True).start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.terminate()
        self.process.wait()
        self.complaints.close()

    def read(self):
        with self.process.stdout as lines:  # open as long as anybody can write to it
            for line in lines:
                self.lines.append(line.rstrip("\n"))

    def said(self):
        self.complaints.seek(0)
        return self.complaints.read()

    def find(self, pattern):
        return next(filter(None, (re.search(pattern, line) for line in list(self.lines))), None)

    def wait_for_line(self, pattern):
        def look():
            found = self.find(pattern)
            if not found and self.process.poll() is not None:
                raise AssertionError(f"ended with {self.process.returncode} before \"{pattern}\": {self.said()}")
            return found
        return wait_for(f"a line \"{pattern}\"", look)

    def url(self):
        return self.wait_for_line(r"http://\S+").group()

    def password(self):
        return self.wait_for_line(r"password[= ](\w+)").group(1)

    def port(self):
        return int(self.wait_for_line(r":(\d+)(/|  password)").group(1))

    def find_process(self, name):
        """The descendant that runs the program of that name."""
        def look():
            return next((process for process in processes.descendants(self.process.pid)
                         if any(os.path.basename(word) == name for word in processes.command(process)[:2])), None)
        return wait_for(f"process {name}", look)

    def program_surroundings(self):
        """The environment of the program on the screen, when it has one."""
        program = self.find_process(os.path.basename(DEMO))
        return wait_for("the program's display", lambda: (lambda found: found if "DISPLAY" in found else None)(
            processes.environment(program)))

    def holdings(self):
        """When all of it has been started."""
        self.find_process(os.path.basename(DEMO))
        return Holdings(self.process.pid)

    def open_files(self):
        """Files of the private folder, the folder itself included, that others may use."""
        folder = self.holdings().folder
        paths = [folder, *(os.path.join(folder, name) for name in os.listdir(folder))]
        return [path for path in paths if stat.S_IMODE(os.stat(path).st_mode) & 0o077]

    def interrupt(self):
        """Ctrl+C: the terminal sends it to the whole group."""
        os.killpg(self.process.pid, signal.SIGINT)

    def status(self):
        wait_for("the script's end", lambda: self.process.poll() is not None)
        return self.process.returncode
