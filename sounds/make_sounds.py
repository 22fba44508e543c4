#!/usr/bin/python3
"""Write the tones and sequences that come with Tonebench.

Usage: /usr/bin/python3 sounds/make_sounds.py FOLDER

Makes FOLDER/Tones/JX-8P/*.syx, FOLDER/Tones/Alpha Juno/*.syx and
FOLDER/Sequences/*.seq. The tones stand in jx8p_tones.py and juno_tones.py,
the sequences in sequences.py; what their words mean stands here.
"""

import os
import sys

from jx8p_tones import jx8p_tones
from juno_tones import juno_tones
from sequences import sequences


def fail(text):
    sys.exit("make_sounds.py: " + text)


# ---------------------------------------------------------------------------
# The JX-8P: a switch is given by the word printed beside its position.
# ---------------------------------------------------------------------------

four = [0, 32, 64, 96]
three = [0, 32, 64]

ranges = dict(zip(["16'", "8'", "4'", "2'"], four))
waves = dict(zip(["noise", "square", "pulse", "saw"], four))
crossmods = dict(zip(["off", "sync1", "sync2", "xmod"], four))
dynamics = dict(zip([0, 1, 2, 3], four))
env_modes = dict(zip(["-env2", "env2", "-env1", "env1"], four))
chorus = dict(zip([0, 1, 2], three))
lfo_waves = dict(zip(["random", "square", "triangle"], three))
vca_modes = {"gate": 0, "env2": 64}

# Semitones to the byte that the instrument's tune knob sends.
tunes = dict(zip(range(-12, 13),
                 [0, 8, 12, 16, 20, 24, 32, 36, 40, 44, 48, 52, 56,
                  72, 76, 80, 84, 88, 92, 96, 104, 108, 112, 116, 120]))

# name: (parameter, words of a switch or None for 0 to 127, start value)
jx8p_parameters = {
    "dco1_range":    (11, ranges, "8'"),
    "dco1_wave":     (12, waves, "saw"),
    "dco1_tune":     (13, tunes, 0),
    "dco1_lfo":      (14, None, 0),
    "dco1_env":      (15, None, 0),
    "dco2_range":    (16, ranges, "8'"),
    "dco2_wave":     (17, waves, "saw"),
    "crossmod":      (18, crossmods, "off"),
    "dco2_tune":     (19, tunes, 0),
    "dco2_fine":     (20, None, 64),
    "dco2_lfo":      (21, None, 0),
    "dco2_env":      (22, None, 0),
    "dco_dynamics":  (26, dynamics, 0),
    "dco_mode":      (27, env_modes, "env1"),
    "mix_dco1":      (28, None, 127),
    "mix_dco2":      (29, None, 0),
    "mix_env":       (30, None, 0),
    "mix_dynamics":  (31, dynamics, 0),
    "mix_mode":      (32, env_modes, "env1"),
    "hpf":           (33, dynamics, 0),
    "cutoff":        (34, None, 127),
    "resonance":     (35, None, 0),
    "vcf_lfo":       (36, None, 0),
    "vcf_env":       (37, None, 0),
    "vcf_key":       (38, None, 64),
    "vcf_dynamics":  (39, dynamics, 0),
    "vcf_mode":      (40, env_modes, "env1"),
    "level":         (41, None, 110),
    "vca_dynamics":  (42, dynamics, 1),
    "chorus":        (43, chorus, 0),
    "lfo_wave":      (44, lfo_waves, "triangle"),
    "lfo_delay":     (45, None, 0),
    "lfo_rate":      (46, None, 74),
    "env1_key":      (51, dynamics, 0),
    "env2_key":      (56, dynamics, 0),
    "vca_mode":      (58, vca_modes, "env2"),
}
jx8p_envelopes = {"env1": 47, "env2": 52}  # attack, decay, sustain, release

# The performance settings that ride along in the file.
bend_ranges = dict(zip([2, 3, 4, 7], four))
key_modes = {"poly1": 0, "unison1": 1, "solo1": 2, "poly2": 4, "unison2": 5, "solo2": 6}
patch_parameters = {
    "bend_range":    (0, bend_ranges, 2),
    "portamento":    (1, None, 0),
    "porta_switch":  (2, {"off": 0, "on": 64}, "off"),
    "key_mode":      (3, key_modes, "poly1"),
    "after_touch":   (4, {"off": 0, "vibrato": 1, "brilliance": 2, "volume": 4}, "vibrato"),
    "bend_lfo":      (5, None, 40),
    "unison_detune": (6, None, 64),
}


def value_of(sound, word, words, given):
    if words is None:
        if not (isinstance(given, int) and 0 <= given <= 127):
            fail(f"{sound}: {word} is 0 to 127, not {given}")
        return given
    if given not in words:
        fail(f"{sound}: {word} is one of {list(words)}, not {given}")
    return words[given]


def jx8p_file(name, settings):
    settings = dict(settings)
    record = bytearray(59)
    record[0:10] = name.ljust(10).encode("ascii")
    for envelope, first in jx8p_envelopes.items():
        stages = settings.pop(envelope, (0, 0, 127, 30))
        for step, stage in enumerate(stages):
            record[first + step] = value_of(name, envelope, None, stage)
    for word, (number, words, start) in jx8p_parameters.items():
        record[number] = value_of(name, word, words, settings.pop(word, start))
    patch = []
    for word, (number, words, start) in patch_parameters.items():
        patch += [number, value_of(name, word, words, settings.pop(word, start))]
    if settings:
        fail(f"{name}: unknown {list(settings)}")
    return (bytes.fromhex("F0 41 35 00 21 20 01") + record + b"\xF7" +
            bytes.fromhex("F0 41 36 00 21 30 01") + bytes(patch) + b"\xF7")


# ---------------------------------------------------------------------------
# The Alpha Juno: switches are the counts that its panel prints.
# ---------------------------------------------------------------------------

# name: (parameter, highest value, start value)
juno_parameters = {
    "dco_mode": (0, 3, 0), "vcf_mode": (1, 3, 0), "vca_mode": (2, 3, 0),
    "pulse": (3, 3, 0), "saw": (4, 5, 0), "sub": (5, 5, 0),
    "range": (6, 3, 1), "sub_level": (7, 3, 0), "noise": (8, 3, 0),
    "hpf": (9, 3, 1), "chorus": (10, 1, 0),
    "dco_lfo": (11, 127, 0), "dco_env": (12, 127, 0), "dco_after": (13, 127, 0),
    "pwm": (14, 127, 0), "pwm_rate": (15, 127, 0),
    "cutoff": (16, 127, 127), "resonance": (17, 127, 0), "vcf_lfo": (18, 127, 0),
    "vcf_env": (19, 127, 0), "vcf_key": (20, 127, 64), "vcf_after": (21, 127, 0),
    "level": (22, 127, 110), "vca_after": (23, 127, 0),
    "lfo_rate": (24, 127, 70), "lfo_delay": (25, 127, 0),
    "env_key": (33, 127, 0), "chorus_rate": (34, 127, 40), "bend_range": (35, 12, 2),
}
juno_codes = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 -"


def juno_file(name, settings):
    settings = dict(settings)
    record = bytearray(49)
    # T1 L1 T2 L2 T3 L3 T4
    for step, stage in enumerate(settings.pop("env", (0, 127, 0, 127, 0, 127, 40))):
        record[26 + step] = value_of(name, "env", None, stage)
    for word, (number, highest, start) in juno_parameters.items():
        given = settings.pop(word, start)
        if not 0 <= given <= highest:
            fail(f"{name}: {word} is 0 to {highest}, not {given}")
        record[number] = given
    if settings:
        fail(f"{name}: unknown {list(settings)}")
    for place, letter in enumerate(name.ljust(10)):
        record[36 + place] = juno_codes.index(letter)
    return bytes.fromhex("F0 41 35 00 23 20 01") + record + b"\xF7"


# ---------------------------------------------------------------------------
# Sequences: eight steps, each the notes above the base note. "!" is loud.
# ---------------------------------------------------------------------------

loud, soft = 127, 63


def sequence_file(name, tempo, base, steps):
    if not 1 <= tempo <= 120:
        fail(f"{name}: tempo is 1 to 120")
    cells = bytearray(8 * 13)
    columns = steps.split("|")
    if len(columns) != 8:
        fail(f"{name}: a sequence has eight steps")
    for step, column in enumerate(columns):
        for note in column.split():
            height = int(note.rstrip("!"))
            if not 0 <= height <= 12:
                fail(f"{name}: a note lies 0 to 12 above the base note")
            cells[step * 13 + 12 - height] = loud if note.endswith("!") else soft
    return b"SEQ1" + bytes([tempo, base]) + cells


def write(folder, name, contents):
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, name), "wb") as file:
        file.write(contents)


def main():
    if len(sys.argv) != 2:
        fail("name the folder to write to")
    folder = sys.argv[1]
    for name, settings in jx8p_tones.items():
        write(os.path.join(folder, "Tones", "JX-8P"), name.title() + ".syx",
              jx8p_file(name, settings))
    for name, settings in juno_tones.items():
        write(os.path.join(folder, "Tones", "Alpha Juno"), name + ".syx",
              juno_file(name, settings))
    for name, (tempo, base, steps) in sequences.items():
        write(os.path.join(folder, "Sequences"), name + ".seq",
              sequence_file(name, tempo, base, steps))


main()
