#!/usr/bin/env python3
"""Accounts for every message of a soak: account.py FOLDER

Reads what soak.sh leaves: sent.txt (what the port was given and took), heard.txt (what the witness heard),
moves.txt (the moves of the hand) and memory.txt. Ends with 1 when something is not accounted for.
"""
import collections
import pathlib
import statistics
import sys

SLIDER, OSCILLATOR = "f041360021200123", "f041360021200122"
NOTES = ["90%02x" % (60 - row) for row in range(13)]
STEPS = {tuple("7f" if row == step else "00" for row in range(13)) for step in range(8)}
MOVES_A_CYCLE = 32  # of the hand, from the lowest row to the highest and back
MS = 1000

wrong = []


def say(what, good=True):
    print(what if good else "WRONG: " + what)
    if not good:
        wrong.append(what)


def parted(lines):
    """(time, bytes) of each line; the refused ones apart."""
    taken, refused = [], collections.Counter()
    for line in lines:
        time, message, *result = line.split()
        if result:
            refused[result[-1]] += 1
        else:
            taken.append((int(time), message))
    return taken, refused


def ends_compared(sent, heard):
    sent_bytes, heard_bytes = [message for _, message in sent], [message for _, message in heard]
    if sent_bytes == heard_bytes:
        return say(f"{len(heard)} messages taken by the port, the same {len(heard)} heard, in the same order")
    lost = collections.Counter(sent_bytes) - collections.Counter(heard_bytes)
    more = collections.Counter(heard_bytes) - collections.Counter(sent_bytes)
    place = next((i for i, pair in enumerate(zip(sent_bytes, heard_bytes)) if pair[0] != pair[1]), "the end")
    say(f"{len(sent)} messages taken by the port and {len(heard)} heard: {sum(lost.values())} lost, "
        f"{sum(more.values())} too many, the first difference at {place}", False)


def clock_told(name, times, interval):
    """Lays the ticks on the clock's intervals. A clock that keeps its phase plays one in each, however late, and an
    interval in which none was played ran out before the tick of the one before it was over."""
    interval *= MS
    phase = statistics.median(time % interval for time in times) - 0.1 * interval
    places = [int((time - phase) // interval) for time in times]
    room, twice = places[-1] - places[0] + 1, len(places) - len(set(places))
    empty = room - len(set(places))
    gaps = [after - before for before, after in zip(times, times[1:])]
    say(f"{name}: {len(times)} ticks in {room} intervals; in {empty} ({100 * empty / room:.2f} %) the tick was dropped, as "
        f"the one before came too late; {twice} ticks moved into the next interval; "
        f"longest gap {max(gaps) / MS:.1f} ms, middle one {statistics.median(gaps) / MS:.2f} ms")


def main():
    folder = pathlib.Path(sys.argv[1])
    sent, refused = parted((folder / "sent.txt").read_text().splitlines())
    heard, _ = parted((folder / "heard.txt").read_text().splitlines())
    say(f"refused by the port: {dict(refused) or 'none'}", not refused)
    ends_compared(sent, heard)

    # What the rules of the engines say, of the witness's messages alone.
    curve, notes, drags, other = [], [], [], collections.Counter()
    for time, message in heard:
        if message.startswith(OSCILLATOR) and len(message) == 20 and message.endswith("f7"):
            curve.append((time, message[16:18]))
        elif message.startswith(SLIDER) and len(message) == 20 and message.endswith("f7"):
            drags.append(message[16:18])
        elif len(message) == 6 and message[:4] in NOTES:
            notes.append((time, message))
        else:
            other[message] += 1
    strange = {message: count for message, count in other.items() if message != "b07b00"}
    say(f"{other['b07b00']} all notes off, no torn or strange message" if not strange
        else f"torn or strange messages: {strange}", not strange)

    values = [value for _, value in curve]
    cycle = values[:18]
    gap = next((i for i, value in enumerate(values) if value != cycle[i % 18]), None)
    say(f"oscillator: {len(values)} values step through the 18 points without a gap" if gap is None
        else f"oscillator: a gap at value {gap}", gap is None and len(set(cycle)) == 18)

    ticks = [notes[first:first + 13] for first in range(0, len(notes), 13)]
    bad = sum([message[:4] for _, message in tick] != NOTES
              or tuple(message[4:] for _, message in tick) not in STEPS for tick in ticks)
    say(f"sequencer: {len(ticks)} ticks of 13 notes in order, each one of the 8 steps" if not bad
        else f"sequencer: {bad} of {len(ticks)} ticks are not whole", not bad)

    # The same rows again and again, so the values go round too: what follows three values mostly is the next one.
    # Moves that the toolkit finds together are one value, and behind a turn that was passed over so the thumb is held
    # a little beside the usual place until it comes to its rail's end again.
    moves = len((folder / "moves.txt").read_text().split())
    follower = collections.defaultdict(collections.Counter)
    for place in range(3, len(drags)):
        follower[tuple(drags[place - 3:place])][drags[place]] += 1
    cycle = list(max(follower, key=lambda before: sum(follower[before].values())))
    while len(cycle) < MOVES_A_CYCLE:
        cycle.append(follower[tuple(cycle[-3:])].most_common(1)[0][0])
    moved = drags[1:]  # behind the one that the press sends
    together = moves - len(moved)
    beside = sum(value not in cycle for value in moved)
    say(f"slider: {len(moved)} values for {moves} moves; {together} moves came together with the next, {beside} values "
        "are others behind such a turn", 0 <= together and beside <= together * MOVES_A_CYCLE)

    clock_told("oscillator's clock", [time for time, message in sent if message.startswith(OSCILLATOR)], 1)
    clock_told("sequencer's clock", [time for time, message in sent if message.startswith(NOTES[0])], 62)

    memory = [int(line.split()[1]) for line in (folder / "memory.txt").read_text().splitlines()]
    warm = memory[len(memory) // 5:]
    if len(warm) > 2:
        slope = statistics.linear_regression(range(len(warm)), warm).slope * 6
        say(f"memory: {memory[0]} KB at first, {memory[-1]} KB at last, {slope:+.1f} KB a minute", slope < 20 or len(memory) < 30)
    return 1 if wrong else 0


sys.exit(main())
