# SPDX-License-Identifier: MIT
"""Builds the library with one fault in it, and runs the suites against it until one fails."""

import json
import os
import re
import resource
import selectors
import shlex
import shutil
import signal
import subprocess
import time
from pathlib import Path

LIBRARY = "CMakeFiles/HMIDevice.dir/"
FOLDERS = ("device", "keypad", "character", "look", "model", "faults")
SKIPPED = 77
MOST_MEMORY = 6 << 30  # bytes of addresses; a fault may ask for more and more


class Suite:
    """A test of CTest: its command, its surroundings, and the seconds that it usually takes."""

    def __init__(self, test):
        self.name = test["name"]
        self.command = test["command"]
        self.environment = {}
        for item in test["properties"]:
            if item["name"] == "ENVIRONMENT":
                self.environment = dict(entry.split("=", 1) for entry in item["value"])
        self.needs_display = any("with-x-server" in word for word in self.command)
        self.seconds = None


class Build:
    """What CMake has built of a copy of the tree: how to compile and link each part again."""

    def __init__(self, tree, folder):
        self.tree, self.folder = tree, folder
        self.compile = self._compile_commands()
        self.link = self._link_command()
        self.includes = self._included_files()

    def _compile_commands(self):
        commands = {}
        for entry in json.loads((self.folder / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            output = words[words.index("-o") + 1]
            if output.startswith(LIBRARY):
                commands[output] = words
        return commands

    def _link_command(self):
        text = self._ninja("commands", "HMIDevice")
        link = [line for line in text.splitlines() if " -shared " in line][-1]
        return shlex.split(link.split(" && ")[1])

    def _included_files(self):
        files, output = {}, None
        for line in self._ninja("deps").splitlines():
            if not line.startswith(" "):
                output = line.split(":")[0]
            elif output in self.compile:
                files.setdefault(os.path.normpath(self.folder / line.strip()), []).append(output)
        return files

    def _ninja(self, tool, *arguments):
        command = ["ninja", "-C", str(self.folder), "-t", tool, *arguments]
        text = subprocess.run(command, check=True, capture_output=True, text=True).stdout
        return re.sub(r"^ninja: Entering.*\n", "", text)

    # The parts to be compiled when `file` of the tree has changed.
    def parts_of(self, file):
        return [part for part in self.includes.get(str(self.tree / file), []) if "mocs_" not in part]

    def suites(self):
        found = []
        for folder in FOLDERS:
            directory = self.folder / "tests" / folder
            if directory.is_dir():
                command = ["ctest", "--test-dir", str(directory), "--show-only=json-v1"]
                text = subprocess.run(command, check=True, capture_output=True, text=True).stdout
                tests = json.loads(text)["tests"]
                found += [Suite(test) for test in tests if "command" in test]
        return found


class Worker:
    """A place to work: sources of its own, a library of its own, and copies of the programs."""

    def __init__(self, build, folder):
        self.build, self.folder = build, folder
        shutil.rmtree(folder, ignore_errors=True)
        for part in ("device", "keypad", "character"):
            shutil.copytree(build.tree / part, folder / part)
        shutil.copytree(build.folder / "tests", folder / "tests",
                        ignore=shutil.ignore_patterns("*.o", "*_autogen", "*.a", "*.cpp", "*.gc*"))
        self.library = folder / "lib" / self._name_of_library()
        self.library.parent.mkdir()
        (folder / "objects").mkdir()
        self.originals = {}
        self.prelude = self._precompiled_header()
        self.running, self.is_stopped = None, False

    def _name_of_library(self):
        return next(word.split(",")[-1] for word in self.build.link if word.startswith("-Wl,-soname"))

    # Paths of the tree become those of this place; what CMake has made stays where it is.
    def _here(self, word):
        tree, made = str(self.build.tree), str(self.build.folder)
        return word.replace(made, "\0").replace(tree, str(self.folder)).replace("\0", made)

    # Qt's headers are most of what there is to compile.
    def _precompiled_header(self):
        header = self.folder / "Qt.h"
        header.write_text("#include <QtWidgets>\n#include <QtSql>\n")
        words = list(next(iter(self.build.compile.values())))
        words[words.index("-o") + 1] = str(header) + ".gch"
        words[words.index("-c") + 1] = str(header)
        subprocess.run(words, cwd=self.build.folder, check=True)
        return header

    def compile(self, part, *flags):
        """The object file of a part, or None where it does not compile."""
        output = self.folder / "objects" / part.replace("/", "_")
        words = [self._here(word) for word in self.build.compile[part]]
        words[words.index("-o") + 1] = str(output)
        words += ["-include", str(self.prelude), *flags]
        done = subprocess.run(words, cwd=self.build.folder, capture_output=True)
        return output if done.returncode == 0 else None

    def code(self, part, *flags):
        """What the compiler makes of a part, or None."""
        compiled = self.compile(part, *flags)
        return compiled.read_bytes() if compiled else None

    # The same of the part without a fault.
    def original(self, part, *flags):
        key = (part, *flags)
        if key not in self.originals:
            self.originals[key] = self.code(part, *flags)
        return self.originals[key]

    def link(self, objects, *flags):
        words = [str(objects.get(word, word)) for word in self.build.link]
        words[words.index("-o") + 1] = str(self.library)
        subprocess.run(words + list(flags), cwd=self.build.folder, check=True, capture_output=True)

    def write(self, file, text):
        (self.folder / file).write_text(text)

    def restore(self, file):
        shutil.copyfile(self.build.tree / file, self.folder / file)

    def run(self, suite, limit, extra=()):
        """"passed", "skipped", "failed" or "too slow", and the seconds; the first failure ends it."""
        made = str(self.build.folder / "tests") + "/"
        command = [word.replace(made, str(self.folder / "tests") + "/") for word in suite.command]
        environment = dict(os.environ, **suite.environment, **dict(extra))
        environment.update(LD_LIBRARY_PATH=str(self.library.parent), QTEST_DISABLE_STACK_DUMP="1")
        with subprocess.Popen(command, cwd=self.folder, env=environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              start_new_session=True, preexec_fn=limit_resources) as process:
            self.running = process
            start = time.monotonic()
            outcome = watch(process, start + limit)
            if outcome:
                end(process)
            else:
                process.wait()
                outcome = {0: "passed", SKIPPED: "skipped"}.get(process.returncode, "failed")
        if self.is_stopped:
            raise InterruptedError("stopped while %s was running" % suite.name)
        return outcome, time.monotonic() - start

    def stop(self):
        self.is_stopped = True
        if self.running and self.running.poll() is None:
            end(self.running)


def limit_resources():
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


# What can be told before the end of a suite: "failed", "too slow", or nothing.
def watch(process, deadline):
    text = b""
    with selectors.DefaultSelector() as selector:
        selector.register(process.stdout, selectors.EVENT_READ)
        while True:
            if not selector.select(max(0, deadline - time.monotonic())):
                return "too slow"
            piece = os.read(process.stdout.fileno(), 65536)
            if not piece:
                return None
            text = (text + piece)[-100000:]
            if b"\nFAIL!  : " in text:
                return "failed"


# With all that it has started.
def end(process):
    for number, seconds in ((signal.SIGTERM, 2), (signal.SIGKILL, 10)):
        try:
            os.killpg(process.pid, number)
            process.wait(seconds)
        except (ProcessLookupError, subprocess.TimeoutExpired):
            pass
