"""Runs of the programs in which one call to the system fails, and what must hold behind each.

The environment names korvet-batch (KORVET_BATCH), start_and_save, which does with files what the desktop program does
(KORVET_DESKTOP_FILES), and the library that makes calls fail (KORVET_FAULTS).
"""

import errno
import os
import re
import shutil
import subprocess
import tempfile
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

from batch_program import DONE, PROGRAM, REFUSED, TIMEOUT, cone_file, environment_of, read_json

FAULTS = os.environ.get("KORVET_FAULTS")
DESKTOP = os.environ.get("KORVET_DESKTOP_FILES")
KILLED = -9
ENDS = ("before", "after")  # of the program itself

# What a call may fail with, and whether the program must go on as if nothing had been.
KINDS = {
    "open": {errno.ENOSPC: False, errno.EACCES: False, errno.EINTR: True},
    "read": {errno.EIO: False, errno.EINTR: True},
    "write": {errno.ENOSPC: False, errno.EIO: False, errno.EINTR: True, "short": True},
    "print": {errno.ENOSPC: False, errno.EIO: False, "short": True},
    "close": {errno.EIO: False, errno.ENOSPC: False, errno.EINTR: True},
    "fsync": {errno.EIO: False, errno.EINTR: True, errno.EINVAL: True},
    "rename": {errno.EIO: False, errno.ENOSPC: False, errno.EACCES: False},
    "link": {errno.EIO: False, errno.EPERM: True},
    "unlink": {errno.EIO: False},
    "chmod": {errno.EPERM: True},
    "chown": {errno.EPERM: True},
    "truncate": {errno.EIO: False},
    "lock": {errno.ENOLCK: True},
    "list": {errno.EIO: True},
    "stat": {errno.EIO: False, errno.EACCES: False},
}
LEFT_BY_THE_KILLED = re.compile(r"(korvet-\d+\.tmp|.*\.part)$")


@dataclass(frozen=True)
class Task:
    """A command line in a folder of its own. `before` is what stands in the folder at its start, and a file that it makes
    or replaces is afterwards as before or as a run without faults leaves it: `between` tells what else may stand in one."""

    name: str
    words: tuple
    before: tuple  # of (name, contents)
    between: tuple = ()  # of (name, contents)

    def command(self, folder):
        return [word.replace("FOLDER", str(folder)) for word in self.words]


def of_batch(name, *words, old=()):
    return Task(name, (PROGRAM, "FOLDER/in.Kvt", *words), (("in.Kvt", cone_file()), *old))


def tasks():
    """From the cheapest to the dearest."""
    built_in = "3.b\r\n"  # its first line: the rest is that of a run in an empty folder
    old_options = "3.a\r\nof an earlier version\r\n"
    outputs = [("save", "out.Kvt"), ("dxf", "out.dxf"), ("table", "out.txt"), ("json", "out.json"),
               ("hpgl", "out.plt")]
    pictures = [("svg", "out.svg", "--size", "200x100"), ("png", "out.png", "--size", "200x100"),
                ("pdf", "out.pdf", "--fit")]
    folder = (("in.Kvt", cone_file()), ("config/keep", ""))
    yield of_batch("json to the standard output", "--json", "-")
    for option, name in outputs:
        for old in ((), ((name, "what was there"),)):
            yield of_batch(f"{option}, {'old' if old else 'new'}", f"--{option}", f"FOLDER/{name}", old=old)
    yield Task("desktop, first start", (DESKTOP,), folder, between=(("settings.ini", built_in),
                                                                    ("config/settings.ini", built_in)))
    yield Task("desktop, old settings and file", (DESKTOP,),
               (*folder, ("settings.ini", old_options), ("out.Kvt", "what was there")),
               between=(("settings.ini", built_in), ("config/settings.ini", built_in)))
    yield Task("desktop, settings set aside", (DESKTOP, "--set-aside"), (*folder, ("settings.ini", "3.b\r\nspoilt\r\n")),
               between=(("settings.ini", built_in), ("config/settings.ini", built_in)))
    for option, name, *words in pictures:
        yield of_batch(" ".join((option, *words)), f"--{option}", f"FOLDER/{name}", *words,
                       old=((name, "what was there"),))


def contents_of(folder):
    """The files of a folder, but for its name and the time at which a PDF was made."""
    def comparable(contents):
        return re.sub(rb"(?<=/CreationDate \(D:)\d{14}", b"TIME", contents.replace(str(folder).encode(), b"FOLDER"))

    return {str(path.relative_to(folder)): comparable(path.read_bytes())
            for path in sorted(folder.rglob("*")) if path.is_file()}


def is_refusal(report):
    """Whether it is a whole report that tells of a refused input."""
    try:
        return read_json(report.decode("utf-8"))["refused"] is True
    except (ValueError, KeyError, TypeError):
        return False


class Outcome:
    def __init__(self, task, at=0, kind=""):
        # A folder in memory: flushing it costs nothing.
        place = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
        with tempfile.TemporaryDirectory(prefix="korvet-faults-", dir=place) as outer:
            folder, log = Path(outer, "folder"), Path(outer, "log")
            for name, contents in task.before:
                (folder / name).parent.mkdir(parents=True, exist_ok=True)
                (folder / name).write_bytes(contents.encode())
            result = subprocess.run(task.command(folder), cwd=folder, stdin=subprocess.DEVNULL, capture_output=True,
                                    check=False, timeout=TIMEOUT, env=environment_of({
                                        "LD_PRELOAD": FAULTS, "FAULT_FOLDER": str(folder), "FAULT_AT": str(at),
                                        "FAULT_KIND": str(kind), "FAULT_LOG": str(log)}))
            self.status, self.errors = result.returncode, result.stderr.decode("utf-8", "replace")
            self.output = result.stdout.replace(str(folder).encode(), b"FOLDER")
            self.calls = log.read_text().split() if log.exists() else []
            self.files = contents_of(folder)


class Fault:
    """One run with its fault, and its faults against what must hold."""

    def __init__(self, task, whole, at, kind):
        self.task, self.whole, self.at, self.kind = task, whole, at, kind
        self.call = whole.calls[at - 1]

    def __str__(self):
        kind = errno.errorcode.get(self.kind, self.kind)
        return f"{self.task.name}: call {self.at} ({self.call}) {kind}"

    def complaints(self):
        """What is wrong after the run, in words."""
        run, before, after = Outcome(self.task, self.at, self.kind), dict(self.task.before), self.whole.files
        killed = self.kind in ENDS
        statuses = [KILLED] if killed else [DONE] if KINDS[self.call].get(self.kind) else [DONE, REFUSED]
        if run.status not in statuses:
            yield f"status {run.status}: {run.errors}"
        if run.status == REFUSED and not run.errors.strip():
            yield "refused without a word"
        if run.status == DONE and run.output != self.whole.output:
            yield "done, with another output"
        if not (self.whole.output.startswith(run.output) or is_refusal(run.output)):
            yield "the output is no beginning of the whole one"
        for name, contents in before.items():
            if name not in run.files:
                yield f"{name} is lost"
            elif contents.encode() not in run.files.values():
                if after.get(name) == contents.encode() or contents.encode() in after.values():
                    yield f"what stood in {name} is lost"
        for name, contents in run.files.items():
            yield from self.complaints_of(name, contents, run)
        if run.status == DONE:
            # What is kept may have another end to its name, and the options may have gone to the user's own folder.
            missing = {name for name in set(after) - set(run.files) if after[name] not in run.files.values()}
            if missing:
                yield f"done, without {missing}"

    def complaints_of(self, name, contents, run):
        between = dict(self.task.between).get(name)
        allowed = [contents.encode() for before, contents in self.task.before if before == name.split(".ba")[0]]
        allowed += [self.whole.files.get(name), self.whole.files.get(name.removeprefix("config/"))]
        if re.sub(r"(\.ba[kd])\d+$", r"\1", name) not in self.task_names():
            if not (LEFT_BY_THE_KILLED.match(name) and (self.kind in ENDS or self.call == "unlink")):
                yield f"{name} is left over"
        elif contents not in allowed and not (run.status == REFUSED and is_refusal(contents)) and not (
                between and contents.decode().startswith(between) and contents.count(b"\r\n") == 25):
            yield f"{name} is neither old nor new: {contents[:60]!r} of {len(contents)}"

    def task_names(self):
        names = set(dict(self.task.before)) | set(self.whole.files) | set(dict(self.task.between))
        return names | {f"{name}{end}" for name in names for end in (".bak", ".bad")}


def faults():
    """All of them, those of the cheapest tasks first."""
    for task in tasks():
        whole = Outcome(task)
        assert whole.status == DONE, (task.name, whole.status, whole.errors)
        for at, call in enumerate(whole.calls, 1):
            for kind in (*KINDS[call], *ENDS):
                yield Fault(task, whole, at, kind)


def check(chosen):
    """The complaints about each of the faults, and how many runs there were."""
    count, complaints = 0, []
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for fault, found in pool.map(lambda fault: (fault, list(fault.complaints())), chosen):
            count += 1
            complaints += [f"{fault}: {complaint}" for complaint in found]
    return count, complaints
