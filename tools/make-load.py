#!/usr/bin/env python3
"""Makes a road of any size for timing: make-load.py FOLDER SECTIONS POINTS. Deterministic.

Each section has the offsets of the one before with small moves, so that the lines go on as on a real road; every
tenth section a batter point comes or goes.
"""
import pathlib
import sys

folder, sections, points = pathlib.Path(sys.argv[1]), int(sys.argv[2]), int(sys.argv[3])
folder.mkdir(parents=True, exist_ok=True)
step = 5.0
end = sections * step
x, y = 431200.0, 4581300.0

(folder / "load.plt").write_bytes(
    f"*PLT\r\n0.000,{x:.3f},{y:.3f},0.000000,0.000,0.000\r\n{end:.3f},{x:.3f},{y + end:.3f},0.000000,0.000,0.000\r\n".encode())
(folder / "load.alz").write_bytes(f"*ALZ\r\n0.000,500.000C,0T\r\n{end:.3f},520.000C,0T\r\n".encode())

LETTERS = "TCSP"
state = 12345


def noise():
    global state
    state = (state * 1103515245 + 12345) % 2147483648
    return state / 2147483648


with (folder / "load.trv").open("wb") as out:
    out.write(b"*TRV\r\nROAD\r\n")
    for n in range(sections):
        lines = []
        per_layer = points // 4
        for layer in LETTERS:
            width = {"T": 60.0, "C": 12.0, "S": 9.0, "P": 7.5}[layer]
            count = per_layer + (1 if layer == "T" and n // 10 % 2 else 0)
            for i in range(count):
                offset = -width / 2 + width * i / per_layer
                moves = 0.05 * noise() if i % 7 == 3 else 0.0
                lines.append(f"{offset + moves:.3f},{500 + n * 0.001 + noise():.3f},{layer}{i:02d}")
        out.write(f"{n * step:.3f},{len(lines)}\r\n".encode())
        out.write(("\r\n".join(lines) + "\r\n").encode())
    out.write(b"FIN\r\n")
