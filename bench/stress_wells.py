#!/usr/bin/env python3
"""Wells for the stress command benchmark: type 210 tables of 15000 samples
(every 0.1524 m), in gauge with the tool turning, and a dozen breakouts with
the tool stopped, long axis about 60 degrees.

    python3 bench/stress_wells.py DIR [N]   # N distinct wells, default 10
"""
import math
import random
import sys

NS = 15000
BIT = 21.59


def well(path, seed):
    rnd = random.Random(seed)
    zones = []
    for k in range(12):
        first = 600 + k * 1200 + rnd.randrange(200)
        zones.append((first, first + 60 + rnd.randrange(300), 60 + rnd.gauss(0, 8)))
    with open(path, "w") as f:
        f.write(" 'Benchmark well %d, type 210'\n" % seed)
        f.write("".join(" '%-16s'\t" % n for n in
                        ("Depth", "P1Az", "C1", "C2", "RB", "DEVI", "HAZI", "AzCmax")) + "\n")
        az = 0.0
        zi = 0
        for i in range(NS):
            z = 1000.0 + 0.1524 * i
            c1 = BIT + 0.2 + rnd.gauss(0, 0.1)
            c2 = BIT + 0.2 + rnd.gauss(0, 0.1)
            while zi < len(zones) and i > zones[zi][1]:
                zi += 1
            if zi < len(zones) and zones[zi][0] <= i <= zones[zi][1]:
                az = zones[zi][2] + rnd.gauss(0, 1.5)
                c1 = BIT + 4.0 + rnd.gauss(0, 0.8)
            else:
                az = (az + 0.9) % 360.0
            devi = 1.0 + rnd.gauss(0, 0.3)
            hazi = 135.0 + rnd.gauss(0, 5)
            rb = (az - hazi) % 360.0
            azc = (az if c1 >= c2 else az + 90.0) % 180.0
            f.write("".join("%15.4f\t" % v for v in (z, az % 360.0, c1, c2, rb, devi, hazi, azc)) + "\n")


if __name__ == "__main__":
    out = sys.argv[1]
    n = int(sys.argv[2]) if len(sys.argv) > 2 else 10
    for k in range(n):
        well("%s/bench_well_%02d.txt" % (out, k), 1000 + k)
