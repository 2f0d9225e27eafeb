"""Running programs and measuring the runs."""

import contextlib
import os
import pathlib
import statistics
import subprocess
import time


class Run:
    """One run of a program: wall-clock seconds and standard output."""

    def __init__(self, command, directory=None):
        start = time.perf_counter()
        done = subprocess.run(command, cwd=directory, capture_output=True)
        self.seconds = time.perf_counter() - start
        self.output = done.stdout.decode()
        if done.returncode != 0:
            raise RuntimeError(f"{command} ended with {done.returncode}:\n{done.stderr.decode()}")

    def values(self):
        """The "name value" lines of the output."""
        return {name: float(value) for name, value in map(str.split, self.output.splitlines())}


def alternating_seconds(ours, peer, rounds, pick=min):
    """Runs both (functions that return a Run) in turn, so that a disturbance of the machine falls
    on both, and picks from the seconds of each."""
    pairs = [(ours().seconds, peer().seconds) for _ in range(rounds)]
    return tuple(pick(column) for column in zip(*pairs))


def median_seconds(ours, peer, rounds):
    return alternating_seconds(ours, peer, rounds, statistics.median)


@contextlib.contextmanager
def on_one_processor():
    """Where only one processor may be used, as peers that are programs of one thread do."""
    allowed = os.sched_getaffinity(0)
    os.sched_setaffinity(0, {min(allowed)})
    try:
        yield
    finally:
        os.sched_setaffinity(0, allowed)


def memory_of_tree(process):
    """What a process and those below it have for themselves, and their parts of what they share."""
    try:
        rows = pathlib.Path(f"/proc/{process}/smaps_rollup").read_text().splitlines()
        children = pathlib.Path(f"/proc/{process}/task/{process}/children").read_text().split()
    except OSError:
        return 0
    own = sum(int(row.split()[1]) * 1024 for row in rows if row.startswith("Pss:"))
    return own + sum(memory_of_tree(child) for child in children)


def peak_of_tree(command):
    """The most that a run takes in all its processes, looked at every few milliseconds."""
    peak = 0
    with subprocess.Popen(command) as run:
        while run.poll() is None:
            peak = max(peak, memory_of_tree(run.pid))
            time.sleep(0.01)
    return peak
