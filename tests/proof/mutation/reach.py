# SPDX-License-Identifier: MIT
"""Which lines of the library each suite reaches, and how long it takes: what does not reach a line
cannot notice a fault in it."""

import hashlib
import json
import subprocess
from pathlib import Path

GENEROUS = 300  # seconds, for a suite that nothing is known of


def digest(*files):
    return hashlib.sha256(b"".join(Path(file).read_bytes() for file in files)).hexdigest()


class Reach:
    def __init__(self, build, suites, store):
        self.build, self.store = build, store
        self.known = json.loads(store.read_text()) if store.exists() else {}
        self.sources = digest(*sorted(file for file in build.includes if str(build.tree) in file))
        self.programs = {suite.name: self._program(suite) for suite in suites}

    def _program(self, suite):
        made = str(self.build.folder)
        return digest(*[word for word in suite.command if word.startswith(made) and Path(word).is_file()
                        and not word.endswith(".log")])

    def is_known(self, suite):
        found = self.known.get(suite.name, {})
        return found.get("program") == self.programs[suite.name] and found.get("sources") == self.sources

    def measure(self, suites, worker, say):
        """Runs those suites that have changed on a library that counts its lines."""
        new = [suite for suite in suites if not self.is_known(suite)]
        if new:
            objects = {part: worker.compile(part, "--coverage") for part in self.build.compile}
            worker.link(objects, "--coverage")
        for suite in new:
            counts = worker.folder / "counts" / suite.name
            counts.mkdir(parents=True)
            extra = {"GCOV_PREFIX": str(counts), "GCOV_PREFIX_STRIP": "99"}
            outcome, seconds = worker.run(suite, GENEROUS, extra)
            say("%-28s %s, %.1f s" % (suite.name, outcome, seconds))
            self.known[suite.name] = {
                "program": self.programs[suite.name],
                "sources": self.sources,
                "outcome": outcome,
                "seconds": seconds,
                "lines": self._lines(worker, counts),
            }
            self.store.write_text(json.dumps(self.known))
        for suite in suites:
            suite.seconds = self.known[suite.name]["seconds"]

    def _lines(self, worker, counts):
        files = sorted(counts.glob("*.gcda"))
        for file in files:
            notes = worker.folder / "objects" / (file.stem + ".gcno")
            (counts / notes.name).symlink_to(notes)
        if not files:
            return {}
        command = ["gcov", "--json-format", "--stdout", *[file.name for file in files]]
        text = subprocess.run(command, cwd=counts, check=True, capture_output=True, text=True).stdout
        lines = {}
        for document in text.splitlines():
            for file in json.loads(document)["files"]:
                if file["file"].startswith(str(worker.folder)):
                    name = str(Path(file["file"]).relative_to(worker.folder))
                    reached = lines.setdefault(name, {})
                    for line in file["lines"]:
                        number = str(line["line_number"])
                        reached[number] = reached.get(number, False) or line["count"] > 0
        return lines

    def outcome(self, suite):
        return self.known[suite.name]["outcome"]

    # Lines of tables and declarations are run by nobody: then the whole file counts.
    def reaches(self, suite, fault):
        everywhere = [known["lines"].get(fault.file, {}) for known in self.known.values()]
        span = [str(line) for line in range(fault.line, fault.last_line + 1)]
        if not any(everywhere):
            return True
        own = self.known[suite.name]["lines"].get(fault.file, {})
        if any(line in lines for lines in everywhere for line in span):
            return any(own.get(line) for line in span)
        return any(own.values())
