"""Running programs and measuring the runs."""

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
