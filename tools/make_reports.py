#!/usr/bin/env python3
"""Makes reports of the samples, each with a line of its own: make_reports.py COUNT DIRECTORY"""
import pathlib
import shutil
import sys

count, directory = int(sys.argv[1]), pathlib.Path(sys.argv[2])
samples = sorted((pathlib.Path(__file__).parent.parent / "samples").glob("*.txt"))
directory.mkdir(parents=True, exist_ok=True)
shutil.copytree(samples[0].parent / "pictures", directory / "pictures", dirs_exist_ok=True)
for i in range(count):
    text = samples[i % len(samples)].read_bytes()
    (directory / f"report-{i + 1:04}.txt").write_bytes(b"Number %d\r\n" % (i + 1) + text)
