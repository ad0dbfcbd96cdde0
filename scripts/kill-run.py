#!/usr/bin/env python3
"""kill-run.py PROGRAM [KILLS [WORKERS]]: ends the running program at random moments, and looks what is lost.

Each round types lines into the program on a virtual screen of its own and ends it after some seconds: by
SIGKILL, SIGTERM, SIGINT or SIGHUP, or by killing its X server. A line whose "=" was pressed more than two
seconds before must be in the saved history, however the program ended; after a signal that asks the program
to end, every line must. Run by hand: it takes some seconds a kill. Needs Xvfb and xdotool.
"""

import os
import pathlib
import plistlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

ENDINGS = ["KILL", "TERM", "INT", "HUP", "X server"]
POLITE = {"TERM", "INT", "HUP"}
GRACE = 2.0  # seconds between "=" and what is safe from everything


class Round:
    """One start of the program, what was typed into it, and its end."""

    def __init__(self, program, home):
        self.home = home
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "400x700x24", "-nolisten", "tcp"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as numbers:
            self.display = ":" + numbers.readline().strip()
        self.environment = dict(os.environ, DISPLAY=self.display, XDG_DATA_HOME=str(home),
                                QT_QPA_PLATFORM="xcb", QT_QUICK_BACKEND="software")
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.program = subprocess.Popen([program], env=self.environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *arguments], env=self.environment, capture_output=True,
                              text=True, timeout=60, check=False)

    def wait_for_window(self):
        until = time.monotonic() + 60
        while time.monotonic() < until:
            found = self.xdotool("search", "--onlyvisible", "--name", "Velmora").stdout.split()
            if found:
                self.xdotool("windowfocus", found[0])
                time.sleep(0.5)
                return
            time.sleep(0.1)
        raise RuntimeError("no window")

    def type_lines(self, first, seconds):
        """Enters one number a line until the time is over: (number, when its "=" was pressed)."""
        entered = []
        until = time.monotonic() + seconds
        number = first
        while time.monotonic() < until:
            self.xdotool("type", "--delay", "5", str(number))
            self.xdotool("key", "Return")
            entered.append((number, time.monotonic()))
            number += 1
            time.sleep(random.uniform(0, 0.8))
        return entered

    def end(self, how):
        if how == "X server":
            self.server.kill()
        else:
            self.program.send_signal(getattr(signal, "SIG" + how))
        moment = time.monotonic()
        self.program.wait(timeout=60)
        return moment

    def clean_up(self):
        for process in (self.program, self.server):
            process.kill()
            process.wait()


def text_of(token):
    if isinstance(token, str):
        return token
    texts = [value for key, value in token.items() if key != "kind" and isinstance(value, str)]
    return "".join(text for text in texts if text.isdigit())


def saved_numbers(home):
    """The lines of the saved history, as far as they are plain numbers."""
    path = home / "velmora" / "Calculator archive"
    if not path.exists():
        return set()
    with path.open("rb") as file:
        history = plistlib.load(file)["ModelHistoryTokenArrays"]
    numbers = set()
    for row in history:
        tokens = next((value for value in row.values() if isinstance(value, list)), [])
        numbers.add("".join(text_of(token) for token in tokens))
    return numbers


def one_kill(program, home, first):
    how = random.choice(ENDINGS)
    run = Round(program, home)
    try:
        run.wait_for_window()
        entered = run.type_lines(first, random.uniform(0.3, 6))
        time.sleep(random.uniform(0, 1.5))
        moment = run.end(how)
    finally:
        run.clean_up()
    saved = saved_numbers(home)
    grace = 0.0 if how in POLITE else GRACE
    due = [number for number, pressed in entered[-40:] if moment - pressed > grace]
    lost = [number for number in due if str(number) not in saved]
    return how, len(entered), len(due), lost


def main():
    program = str(pathlib.Path(sys.argv[1]).resolve())
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else 1000
    workers = int(sys.argv[3]) if len(sys.argv) > 3 else 2
    lock = threading.Lock()
    counts = {how: [0, 0, 0, 0] for how in ENDINGS}  # kills, lines, lines due, lines lost
    left = [kills]
    failures = []

    def work(worker):
        home = pathlib.Path(tempfile.mkdtemp(prefix="velmora-kills-"))
        number = (worker + 1) * 1_000_000
        while True:
            with lock:
                if left[0] <= 0:
                    break
                left[0] -= 1
            try:
                how, lines, due, lost = one_kill(program, home, number)
            except (RuntimeError, subprocess.TimeoutExpired) as problem:
                with lock:
                    failures.append(str(problem))
                continue
            number += lines
            with lock:
                for place, amount in enumerate([1, lines, due, len(lost)]):
                    counts[how][place] += amount
                if lost:
                    print(f"{how}: lost {lost} of worker {worker}", flush=True)
        shutil.rmtree(home, ignore_errors=True)

    threads = [threading.Thread(target=work, args=[worker]) for worker in range(workers)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    for how, (ended, lines, due, lost) in counts.items():
        print(f"{how:9} {ended:5} kills, {lines:6} lines, {due:6} due, {lost:4} lost")
    for problem in failures:
        print("not counted:", problem)
    lost = sum(count[3] for count in counts.values())
    due = sum(count[2] for count in counts.values())
    print(f"{sum(count[0] for count in counts.values())} kills, {due} lines due, {lost} lost")
    sys.exit(1 if lost or due == 0 else 0)


if __name__ == "__main__":
    main()
