#!/usr/bin/env python3
"""Times the start of the built program on a virtual display, from the call to its first window painted on the screen:
start.py APP PLUGINS [RUNS]. The first run warms the machine up and doesn't count; the data folder is there by then."""
import os
import statistics
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'tests', 'program'))
from screen import Program, until  # noqa: E402


def first_window(program):
    seen = program.look()
    if not seen:
        return None
    entry = program.find('mnuFile', seen)
    return entry and program.ask('see %d %d %d %d' % (entry['x'], entry['y'], entry['width'], entry['height']))


def times_of(program, plugins, runs):
    program.window('QMessageBox')
    program.keys('Return')
    program.window('frmMain')
    times = []
    for _ in range(runs):
        program.process.kill()
        program.process.wait()
        os.remove(program.socket_path)
        begin = time.monotonic()
        program.start_program(plugins)
        until(lambda: first_window(program), 'the first window')
        times.append(time.monotonic() - begin)
    return times


def main():
    app, plugins = sys.argv[1:3]
    runs = int(sys.argv[3]) if len(sys.argv) > 3 else 7
    program = Program(app, plugins)
    try:
        kept = sorted(times_of(program, plugins, runs + 1)[1:])
    finally:
        program.close()
    print('first window after %.0f ms (median of %d; %.0f to %.0f)' %
          (1000 * statistics.median(kept), runs, 1000 * kept[0], 1000 * kept[-1]))


main()
