#!/usr/bin/env python3
"""Makes the sample well files of data/ (see data/README.md).

Deterministic: a fixed seed, standard library only, so running it again
writes the same bytes.  Usage:  python3 data/generate.py [output directory]

The files are in the program's own table format: a quoted title line, a line
of quoted 16-character column names each followed by a tab, then one sample
per line, each value in 15 characters with 4 decimals followed by a tab.
Depths in metres, calipers in centimetres, angles in degrees.

Convention of the four-arm tool: C1 is measured along P1Az (pads 1 and 3),
C2 along P1Az + 90 (pads 2 and 4).  RB is the bearing of pad 1 from the high
side of the hole, so P1Az = HAZI + RB, and the long axis of the hole lies at
RB (C1 larger) or RB + 90 (C2 larger) from the high side.
"""

import math
import os
import random
import sys

SEED = 20240914
STEP = 0.1524          # metres between samples (half a foot)
BIT_DEFAULT = 25.0825  # 9 7/8 in, the program's default bit size
BIT_85 = 21.59         # 8.5 in
CSAT = 37.0            # caliper arms fully open

NAMES_210 = ["Depth", "P1Az", "C1", "C2", "RB", "DEVI", "HAZI", "AzCmax"]


def r2(x):
    return round(x, 2)


def wrap(a, period=360.0):
    a = math.fmod(a, period)
    if a < 0:
        a += period
    a = r2(a)
    return 0.0 if a >= period else a


def table_text(title, names, rows):
    lines = [" '" + title + "'"]
    lines.append(" " + "".join("'" + n.ljust(16) + "'\t" for n in names))
    for row in rows:
        lines.append(" " + "".join("%15.4f\t" % v for v in row))
    return "\n".join(lines) + "\n"


FT = 0.3048  # metres in a foot
IN = 2.54    # centimetres in an inch


def las_text(well, bit_in, rows):
    """A LAS 2.0 file of the rows of a type 200 well, as logging companies
    deliver them: depth in feet, calipers in inches, wrapped, each depth step
    on three lines (the depth alone, then three values, then three)."""
    def ft(z):
        return "%.4f" % (z / FT)
    lines = [
        "# Written by data/generate.py from well200.txt",
        "~VERSION INFORMATION",
        " VERS.                2.0 :   CWLS LOG ASCII STANDARD -VERSION 2.0",
        " WRAP.                YES :   MULTIPLE LINES PER DEPTH STEP",
        "~WELL INFORMATION",
        "#MNEM.UNIT      DATA                 DESCRIPTION",
        " STRT.F         %-20s :START DEPTH" % ft(rows[0][0]),
        " STOP.F         %-20s :STOP DEPTH" % ft(rows[-1][0]),
        " STEP.F         %-20s :STEP" % "0.5000",
        " NULL.          %-20s :NULL VALUE" % "-999.25",
        " COMP.          %-20s :COMPANY" % "TARNOLIX SAMPLES",
        " WELL.          %-20s :WELL" % well,
        " SRVC.          %-20s :SERVICE COMPANY" % "SYNTHETIC LOGGING",
        "~CURVE INFORMATION",
        "#MNEM.UNIT      API CODE             DESCRIPTION",
        " DEPT.F                              :MEASURED DEPTH",
        " P1AZ.DEG                            :PAD 1 AZIMUTH",
        " C1  .IN                             :CALIPER 1-3",
        " C2  .IN                             :CALIPER 2-4",
        " RB  .DEG                            :RELATIVE BEARING",
        " DEVI.DEG                            :HOLE DEVIATION",
        " HAZI.DEG                            :HOLE AZIMUTH",
        "~PARAMETER INFORMATION",
        " BS  .IN        %-20s :BIT SIZE" % ("%.4f" % bit_in),
        "~A  DEPT",
    ]
    for r in rows:
        lines.append(" " + ft(r[0]))
        lines.append(" %12.2f %12.4f %12.4f" % (r[1], r[2] / IN, r[3] / IN))
        lines.append(" %12.2f %12.2f %12.2f" % (r[4], r[5], r[6]))
    return "\n".join(lines) + "\n"


def write(outdir, name, text):
    with open(os.path.join(outdir, name), "w", newline="\n") as f:
        f.write(text)


class Tool:
    """The pad 1 azimuth of a tool that turns at a given rate or holds."""

    def __init__(self, rng, az):
        self.rng = rng
        self.az = az

    def rotate(self, rate):
        self.az = (self.az + rate * STEP + self.rng.gauss(0.0, 0.3)) % 360.0
        return self.az

    def hold(self, target, spread=1.2):
        self.az = (target + self.rng.gauss(0.0, spread)) % 360.0
        return self.az


def clamp(x, lo, hi):
    return max(lo, min(hi, x))


def calipers(rng, kind, bit, k):
    """C1, C2 for one sample of an interval of the given kind; k counts the
    samples inside the interval."""
    g = lambda s: rng.gauss(0.0, s)
    gauge = lambda: r2(clamp(bit + 0.25 + g(0.12), bit - 0.85, bit + 0.85))
    if kind == "gauge":
        return gauge(), gauge()
    if kind in ("breakout1", "breakout2"):
        # One diameter in gauge, the other enlarged by 3.5 to 7.5 cm.
        big = r2(clamp(bit + 5.2 + 1.3 * math.sin(k / 37.0) + g(0.45), bit + 3.5, bit + 7.5))
        small = r2(clamp(bit + 0.3 + g(0.12), bit - 0.6, bit + 0.85))
        return (big, small) if kind == "breakout1" else (small, big)
    if kind == "washout":
        c1 = r2(clamp(bit + 5.5 + g(1.5), bit + 1.6, CSAT - 0.5))
        c2 = r2(clamp(bit + 4.5 + g(1.5), bit + 1.6, CSAT - 0.5))
        return c1, c2
    if kind in ("keyseat1", "keyseat2"):
        # The pipe groove: one diameter under gauge, the other enlarged.
        small = r2(clamp(bit - 1.6 + g(0.12), bit - 2.2, bit - 1.15))
        big = r2(clamp(bit + 4.0 + g(0.6), bit + 2.0, bit + 6.0))
        return (big, small) if kind == "keyseat1" else (small, big)
    if kind == "sat1":
        return CSAT, r2(clamp(bit + 6.0 + g(1.0), bit + 1.6, CSAT - 0.5))
    if kind == "sat2":
        return CSAT, CSAT
    if kind == "cal_washout":
        return r2(clamp(bit + 4.0 + g(1.5), bit + 1.2, CSAT - 0.5)), None
    raise ValueError(kind)


def make_well(rng, plan):
    """rows of Depth, P1Az, C1, C2, RB, DEVI, HAZI, AzCmax for a list of
    intervals (first, last, kind, tool) where tool is ("rot", rate) or
    ("hold", long axis azimuth)."""
    bit, z0, hazi0, devi_of = plan["bit"], plan["z0"], plan["hazi"], plan["devi"]
    tool = Tool(rng, plan["az0"])
    rows = []
    for first, last, kind, motion in plan["intervals"]:
        for i in range(first, last + 1):
            k = i - first
            depth = round(z0 + (i - 1) * STEP, 4)
            devi = devi_of(i)
            # The azimuth of a nearly vertical hole is poorly defined.
            hazi = wrap(hazi0 + rng.gauss(0.0, 6.0 if devi < 3.0 else 0.4))
            c1, c2 = calipers(rng, kind, bit, k)
            if motion[0] == "rot":
                p1az = tool.rotate(motion[1])
            elif motion[0] == "hold":
                # The pads sit in the elongation: the larger caliper's
                # direction is the long axis azimuth.
                target = motion[1] if c1 >= c2 else motion[1] - 90.0
                p1az = tool.hold(target)
            else:
                # Held by its bearing from the high side of the hole.
                p1az = tool.hold(hazi + motion[1], 1.0)
            p1az = wrap(p1az)
            rb = wrap(p1az - hazi)
            azcmax = wrap(p1az if c1 >= c2 else p1az + 90.0, 180.0)
            rows.append([depth, p1az, c1, c2, rb, r2(devi), hazi, azcmax])
    return rows


def main_well_devi(rng):
    def devi(i):
        if i <= 2300:
            return abs(1.0 + rng.gauss(0.0, 0.25))
        # Held below 30 degrees with room for its scatter: the deviation
        # histogram of the statistics pages ends at 30.
        if i <= 2900:
            return 1.0 + 27.5 * (i - 2300) / 600.0 + rng.gauss(0.0, 0.15)
        return 28.5 + rng.gauss(0.0, 0.3)
    return devi


# The intervals of the main well, documented in data/README.md.
MAIN_INTERVALS = [
    (1, 600, "gauge", ("rot", 6.0)),
    (601, 1200, "breakout1", ("hold", 65.0)),
    (1201, 1800, "gauge", ("rot", 6.0)),
    (1801, 2300, "washout", ("rot", 6.0)),
    (2301, 2900, "gauge", ("rot", 6.0)),
    (2901, 3500, "keyseat2", ("bearing", 90.0)),
    (3501, 4200, "gauge", ("rot", 6.0)),
    (4201, 4800, "breakout2", ("hold", 65.0)),
    (4801, 5100, "sat1", ("rot", 3.0)),
    (5101, 5400, "sat2", ("rot", 3.0)),
    (5401, 6200, "gauge", ("rot", 20.0)),
    (6201, 6800, "breakout1", ("hold", 65.0)),
    (6801, 8000, "gauge", ("rot", 6.0)),
]


def main(outdir):
    rng = random.Random(SEED)

    # Type 210: the main sample well.
    main_rows = make_well(rng, {
        "bit": BIT_DEFAULT, "z0": 2000.0, "hazi": 135.0, "az0": 10.0,
        "devi": main_well_devi(rng), "intervals": MAIN_INTERVALS})
    write(outdir, "well210.txt", table_text(
        "Synthetic well A, 9 7/8 in bit, type 210", NAMES_210, main_rows))

    # Picks of the main well's breakouts and washout, as an interpreter
    # would list them: every tenth sample of each interval, in depth order,
    # each with the well's line at that depth (depth in column 1, AzCmax in
    # column 8).  Taken from the rows above, so no draw of the generator.
    for name, title, kinds in (
            ("well210_BO.txt", "Breakout picks of synthetic well A",
             ("breakout1", "breakout2")),
            ("well210_POW.txt", "Washout picks of synthetic well A", ("washout",))):
        picks = [main_rows[i - 1] for first, last, kind, _ in MAIN_INTERVALS
                 if kind in kinds for i in range(first + 4, last + 1, 10)]
        write(outdir, name, table_text(title, NAMES_210, picks))

    # Type 200: a deviated well drilled with an 8.5 in bit.
    rows = make_well(rng, {
        "bit": BIT_85, "z0": 1800.0, "hazi": 250.0, "az0": 300.0,
        "devi": lambda i: 25.0 + rng.gauss(0.0, 0.3),
        "intervals": [(1, 300, "gauge", ("rot", 8.0)),
                      (301, 600, "keyseat1", ("bearing", 180.0)),
                      (601, 900, "breakout2", ("hold", 160.0)),
                      (901, 1200, "gauge", ("rot", 8.0))]})
    write(outdir, "well200.txt", table_text(
        "Synthetic well B, 8.5 in bit, type 200", NAMES_210[:7], [r[:7] for r in rows]))
    write(outdir, "well200.las", las_text("SYNTHETIC WELL B", BIT_85 / IN, rows))

    # Type 100 and 110: a vertical well drilled with an 8.5 in bit.
    vertical = {
        "bit": BIT_85, "z0": 1000.0, "hazi": 0.0, "az0": 120.0,
        "devi": lambda i: abs(0.8 + rng.gauss(0.0, 0.2)),
        "intervals": [(1, 400, "gauge", ("rot", 10.0)),
                      (401, 800, "breakout1", ("hold", 20.0)),
                      (801, 1100, "washout", ("rot", 10.0)),
                      (1101, 1500, "gauge", ("rot", 10.0))]}
    rows = make_well(rng, vertical)
    write(outdir, "well100.txt", table_text(
        "Synthetic well C, 8.5 in bit, type 100", NAMES_210[:4], [r[:4] for r in rows]))
    rows = make_well(rng, dict(vertical, z0=2500.0, intervals=[
        (1, 300, "gauge", ("rot", 10.0)),
        (301, 700, "breakout2", ("hold", 20.0)),
        (701, 1000, "gauge", ("rot", 10.0))]))
    write(outdir, "well110.txt", table_text(
        "Synthetic well D, 8.5 in bit, type 110", NAMES_210[:4] + ["AzCmax"],
        [r[:4] + [r[7]] for r in rows]))

    # Type 300: a single caliper.
    rows = []
    for i in range(1, 801):
        depth = round(500.0 + (i - 1) * STEP, 4)
        kind = "cal_washout" if 301 <= i <= 500 else "gauge"
        rows.append([depth, calipers(rng, kind, BIT_85, i)[0]])
    write(outdir, "well300.txt", table_text(
        "Synthetic well E, 8.5 in bit, type 300", ["Depth", "CAL"], rows))

    # Broken files, cut from the head of the main well.
    head = main_rows[:20]
    title = "Broken well, type 210"
    text = table_text(title, NAMES_210, head).split("\n")
    # Line 8 of the data: the letter O in place of a zero in C1.
    bad = text[2 + 7].split("\t")
    bad[2] = bad[2][:-1] + "O"
    text_letter = list(text)
    text_letter[2 + 7] = "\t".join(bad)
    write(outdir, "broken_letter.txt", "\n".join(text_letter))
    # Line 5 of the data: AzCmax left out.
    text_short = list(text)
    text_short[2 + 4] = "\t".join(text[2 + 4].split("\t")[:7]) + "\t"
    write(outdir, "broken_short_line.txt", "\n".join(text_short))
    # The data without the title and column names lines.
    write(outdir, "broken_no_header.txt", "\n".join(text[2:]))
    # Only the two header lines; only the title line; nothing at all.
    write(outdir, "broken_header_only.txt", "\n".join(text[:2]) + "\n")
    write(outdir, "broken_title_only.txt", text[0] + "\n")
    write(outdir, "broken_empty.txt", "")


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else os.path.dirname(os.path.abspath(__file__)))
