# SPDX-License-Identifier: MIT
"""Puts faults into the library, one at a time, and tells which ones no suite notices.

campaign.py <tree> <work folder> <count> <seed>
"""

import hashlib
import json
import math
import os
import shutil
import signal
import subprocess
import sys
import threading
from collections import Counter
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))

from mutation.changes import faults_of  # noqa: E402
from mutation.reach import Reach  # noqa: E402
from mutation.workshop import Build, Worker  # noqa: E402

FOLDERS = ("device", "keypad", "character")
LEAST_SCORE = 98  # %
QUICK = 0.3  # seconds: suites that are asked whether what is explained is true
NO_COPY = {".git", "build", "__pycache__"}


def say(text):
    print(text, flush=True)


def copy_tree(source, target):
    """Brings a copy up to date; files that are the same keep their time, and are not built again."""
    names = set()
    for folder, folders, files in os.walk(source):
        folders[:] = [name for name in folders if name not in NO_COPY]
        names.update(os.path.relpath(os.path.join(folder, file), source) for file in files)
    for folder, folders, files in os.walk(target):
        folders[:] = [name for name in folders if name not in NO_COPY]
        for file in files:
            path = Path(folder, file)
            if str(path.relative_to(target)) not in names:
                path.unlink()
    for name in sorted(names):
        old, new = target / name, source / name
        if not old.exists() or old.read_bytes() != new.read_bytes():
            old.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(new, old)


def all_faults(tree):
    faults = {}
    for folder in FOLDERS:
        for path in sorted([*(tree / folder).glob("*.cpp"), *(tree / folder).glob("*_p.h")]):
            name = "%s/%s" % (folder, path.name)
            faults[name] = faults_of(name, path.read_text())
    return faults


def drawn(tree, seed):
    """All faults in a random order, in which kinds of faults count alike, and within a kind files
    by their size. What is drawn hardly changes where a file does."""
    faults = all_faults(tree)
    sizes = {name: len((tree / name).read_text().split()) for name in faults}
    numbers = {name: Counter(fault.kind for fault in faults[name]) for name in faults}
    totals = Counter()
    for name in faults:
        totals.update({kind: sizes[name] for kind in numbers[name]})

    def place(fault):
        text = "%s %s" % (seed, fault.id)
        chance = (int(hashlib.sha256(text.encode()).hexdigest()[:13], 16) + 1) / 16.0**13
        return -math.log(chance) * totals[fault.kind] * numbers[fault.file][fault.kind] / sizes[fault.file]

    return sorted((fault for name in faults for fault in faults[name]), key=place)


class Results:
    """What is known of each fault, kept from run to run as long as its file stays as it is."""

    def __init__(self, path, tree):
        self.path, self.tree = path, tree
        self.kept = {}
        if path.exists():
            for line in path.read_text().splitlines():
                result = json.loads(line)
                self.kept[result["id"], result["source"]] = result

    def source(self, fault):
        return hashlib.sha256((self.tree / fault.file).read_bytes()).hexdigest()[:16]

    def of(self, fault):
        return self.kept.get((fault.id, self.source(fault)))

    def keep(self, fault, **result):
        result.update(id=fault.id, source=self.source(fault), file=fault.file, line=fault.line,
                      was=fault.was, becomes=fault.becomes)
        self.kept[fault.id, result["source"]] = result
        with self.path.open("a") as file:
            file.write(json.dumps(result, sort_keys=True) + "\n")
        return result


class Campaign:
    def __init__(self, build, suites, reach, results, explained):
        self.build, self.suites, self.reach = build, suites, reach
        self.results, self.explained = results, explained
        self.kills = Counter()
        for result in results.kept.values():
            self.count_kill(result)

    def count_kill(self, result):
        if result["outcome"] == "killed":
            self.kills[result["by"], result["file"]] += 1
            self.kills[result["by"]] += 1

    # First those that have noticed the most in the least time; those on a display at last.
    def in_order(self, fault):
        def cost(suite):
            noticed = 5 * self.kills[suite.name, fault.file] + self.kills[suite.name] + 1
            return suite.needs_display, (suite.seconds + 0.2) / noticed

        return sorted((suite for suite in self.suites if self.reach.reaches(suite, fault)), key=cost)

    def attempt(self, worker, fault):
        former = self.results.of(fault)
        if former and self.still_holds(former):
            return former
        survived = former.get("survived", {}) if former else {}
        suites = [suite for suite in self.in_order(fault)
                  if survived.get(suite.name) != self.reach.programs[suite.name]]
        if fault.key in self.explained:
            suites = [suite for suite in suites if suite.seconds < QUICK]
        if survived and not suites:
            return former
        outcome = self.build_with(worker, fault)
        if outcome:
            return self.results.keep(fault, outcome=outcome)
        for suite in suites:
            outcome = self.outcome(worker, suite)
            if outcome in ("failed", "too slow"):
                result = self.results.keep(fault, outcome="killed", by=suite.name, how=outcome,
                                           program=self.reach.programs[suite.name])
                self.count_kill(result)
                return result
            survived[suite.name] = self.reach.programs[suite.name]
        if self.is_optimized_away(worker, fault):
            return self.results.keep(fault, outcome="changes nothing")
        return self.results.keep(fault, outcome="survived", survived=survived)

    # A suite that has changed may no longer notice what it did.
    def still_holds(self, result):
        if result["outcome"] == "killed":
            return result.get("program") == self.reach.programs.get(result["by"], "")
        return result["outcome"] != "survived"

    # Other work on the machine can slow a suite down once.
    def outcome(self, worker, suite):
        for _ in range(2):
            outcome, _ = worker.run(suite, 10 + 5 * suite.seconds)
            if outcome != "too slow":
                break
        return outcome

    # What keeps a fault from being tried, if anything does.
    def build_with(self, worker, fault):
        parts = self.build.parts_of(fault.file)
        originals = [worker.original(part) for part in parts]
        objects = {}
        worker.write(fault.file, fault.text)
        try:
            for part, original in zip(parts, originals):
                compiled = worker.compile(part)
                if not compiled:
                    return "does not build"
                if compiled.read_bytes() != original:
                    objects[part] = compiled
        finally:
            worker.restore(fault.file)
        if not objects:
            return "changes nothing"
        worker.link(objects)
        return None

    # Whether the compiler makes the same of it, once it thinks about it.
    def is_optimized_away(self, worker, fault):
        parts = self.build.parts_of(fault.file)
        originals = [worker.original(part, "-O2") for part in parts]
        worker.write(fault.file, fault.text)
        try:
            return originals == [worker.code(part, "-O2") for part in parts]
        finally:
            worker.restore(fault.file)

    def counts(self, fault, result):
        return result["outcome"] in ("killed", "survived") and not self.is_excused(fault, result)

    def is_excused(self, fault, result):
        return result["outcome"] == "survived" and fault.key in self.explained

    def run(self, faults, count, workers):
        """Tries faults, in their order, until `count` of them have been tried; pairs of fault and
        result."""
        state = State(faults, count)

        def work(worker):
            try:
                while True:
                    place = state.take()
                    if place is None:
                        return
                    fault = faults[place]
                    result = self.attempt(worker, fault)
                    state.give(place, result, self.counts(fault, result))
                    say("%4d  %s:%d  %s%s" % (state.tried, fault.file, fault.line, result["outcome"],
                                              " by " + result["by"] if "by" in result else ""))
            except BaseException as problem:
                state.fail(problem)

        threads = [threading.Thread(target=work, args=(worker,), daemon=True) for worker in workers]
        for thread in threads:
            thread.start()
        try:
            for thread in threads:
                thread.join()
        finally:
            for worker in workers:
                worker.stop()
        if state.problem:
            raise state.problem
        return [(faults[place], result) for place, result in sorted(state.results.items())]


class State:
    """Which faults are being tried, shared by the workers: never more than are asked for."""

    def __init__(self, faults, count):
        self.total, self.count = len(faults), count
        self.next = self.busy = self.tried = 0
        self.results, self.problem = {}, None
        self.change = threading.Condition()

    def take(self):
        with self.change:
            while not self.problem and self.next < self.total and self.tried < self.count:
                if self.tried + self.busy < self.count:
                    self.next += 1
                    self.busy += 1
                    return self.next - 1
                self.change.wait()
            return None

    def give(self, place, result, is_counted):
        with self.change:
            self.results[place] = result
            self.busy -= 1
            self.tried += is_counted
            self.change.notify_all()

    def fail(self, problem):
        with self.change:
            self.problem = self.problem or problem
            self.change.notify_all()


def read_explanations(path):
    """Blocks of four lines: the file, the line as it was, what it became, and why that changes
    nothing."""
    explained = {}
    for block in path.read_text().split("\n\n"):
        lines = [line.strip() for line in block.splitlines() if line and not line.startswith("#")]
        if lines:
            if len(lines) < 4:
                sys.exit("%s: no reason is given for: %s" % (path, " / ".join(lines)))
            explained[tuple(lines[:3])] = " ".join(lines[3:])
    return explained


def describe(fault):
    return "%s:%d\n  was      %s\n  becomes  %s" % (fault.file, fault.line, fault.was, fault.becomes)


def report(campaign, pairs):
    outcomes = Counter(result["outcome"] for _, result in pairs)
    excused = [fault for fault, result in pairs if campaign.is_excused(fault, result)]
    survivors = [fault for fault, result in pairs
                 if result["outcome"] == "survived" and not campaign.is_excused(fault, result)]
    if excused:
        say("\nThese change nothing that can be seen:")
    for fault in excused:
        say("%s\n  because  %s" % (describe(fault), campaign.explained[fault.key]))
    if survivors:
        say("\nThese were noticed by no suite:")
    for fault in survivors:
        say(describe(fault))
    slow = sum(result.get("how") == "too slow" for _, result in pairs)
    killed = outcomes["killed"]
    score = 100.0 * killed / max(1, killed + len(survivors))
    say("\n%d faults drawn: %d do not build, %d change nothing in the compiled code, %d nothing that "
        "can be seen." % (len(pairs), outcomes["does not build"], outcomes["changes nothing"], len(excused)))
    say("%d of the other %d were noticed (%d of these by taking too long): %.1f %%"
        % (killed, killed + len(survivors), slow, score))
    return score >= LEAST_SCORE


def prepare(root, work):
    tree = work / "tree"
    copy_tree(root, tree)
    log = work / "build.log"
    with log.open("w") as file:
        for command in (["cmake", "--preset", "mutants"],
                        ["cmake", "--build", "--preset", "mutants", "--parallel", str(len(os.sched_getaffinity(0)))]):
            if subprocess.run(command, cwd=tree, stdout=file, stderr=subprocess.STDOUT).returncode != 0:
                sys.exit("%s: the build failed" % log)
    return Build(tree, tree / "build" / "mutants")


def main(root, work, count, seed):
    say("Building without faults ...")
    build = prepare(root, work)
    suites = build.suites()
    reach = Reach(build, suites, work / "reach.json")
    places = [Worker(build, work / ("worker-%d" % n)) for n in range(min(2, len(os.sched_getaffinity(0))))]
    try:
        reach.measure(suites, places[0], say)
        failed = [suite.name for suite in suites if reach.outcome(suite) not in ("passed", "skipped")]
        if failed:
            sys.exit("Without any fault fail: " + " ".join(failed))
        suites = [suite for suite in suites if reach.outcome(suite) == "passed"]
        explained = read_explanations(root / "tests" / "proof" / "equivalent-mutants.txt")
        results = Results(work / "results", build.tree)
        campaign = Campaign(build, suites, reach, results, explained)
        faults = drawn(build.tree, seed)
        for stale in sorted(set(explained) - {fault.key for fault in faults}):
            say("There is no such fault any more, though it is explained: %s: %s" % (stale[0], stale[2]))
        return report(campaign, campaign.run(faults, count, places))
    finally:
        for place in places:
            place.stop()


def interrupt(*_):
    raise KeyboardInterrupt


if __name__ == "__main__":
    signal.signal(signal.SIGTERM, interrupt)
    signal.signal(signal.SIGHUP, interrupt)
    try:
        is_kept = main(Path(sys.argv[1]), Path(sys.argv[2]), int(sys.argv[3]), int(sys.argv[4]))
    except KeyboardInterrupt:
        sys.exit(130)
    sys.exit(0 if is_kept else 1)
