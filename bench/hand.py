#!/usr/bin/env python3
"""A hand on pointer and keys, which notes when it moves, by the clock that the witness and the program count by too.

hand.py drag FILE X TOP BOTTOM SECONDS GAP
    presses the left button at X in the row BOTTOM, and drags up and down between that and the row TOP with a step
    of 5 rows every GAP seconds, for so many seconds; then lets go. FILE gets the microseconds of each move.
hand.py exit PROCESS
    presses Ctrl and X, waits for the end of the process and prints the milliseconds until then.
"""
import ctypes
import os
import random
import select
import sys
import time

STEP = 5
CONTROL, X = 0xFFE3, 0x78


class Screen:
    def __init__(self):
        self.x11, self.test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        if not self.display:
            sys.exit("no screen")

    def move(self, x, y):
        self.test.XTestFakeMotionEvent(self.display, -1, x, y, ctypes.c_ulong(0))
        self.x11.XFlush(self.display)

    def button(self, down):
        self.test.XTestFakeButtonEvent(self.display, 1, down, ctypes.c_ulong(0))
        self.x11.XFlush(self.display)

    def key(self, symbol, down):
        code = self.x11.XKeysymToKeycode(self.display, ctypes.c_ulong(symbol))
        self.test.XTestFakeKeyEvent(self.display, code, down, ctypes.c_ulong(0))
        self.x11.XFlush(self.display)


def rows(top, bottom):
    row, move = bottom, -STEP
    while True:
        if not top <= row + move <= bottom:
            move = -move
        row += move
        yield row


def drag(screen, path, x, top, bottom, seconds, gap):
    x, top, bottom, seconds, gap = int(x), int(top), int(bottom), float(seconds), float(gap)
    screen.move(x, bottom)
    screen.button(True)
    time.sleep(0.3)
    end, times = time.monotonic() + seconds, []
    for row in rows(top, bottom):
        if time.monotonic() >= end:
            break
        times.append(time.monotonic_ns() // 1000)
        screen.move(x, row)
        # Never in step with the periods of the server.
        time.sleep(gap * random.uniform(0.8, 1.2))
    time.sleep(0.3)
    screen.button(False)
    with open(path, "w") as file:
        file.writelines(f"{when}\n" for when in times)


def leave(screen, process):
    ending = select.poll()
    ending.register(os.pidfd_open(int(process)), select.POLLIN)
    screen.key(CONTROL, True)
    begin = time.monotonic()
    screen.key(X, True)
    ending.poll(10000)
    print(f"{(time.monotonic() - begin) * 1000:.1f}")
    screen.key(X, False)
    screen.key(CONTROL, False)


{"drag": drag, "exit": leave}[sys.argv[1]](Screen(), *sys.argv[2:])
