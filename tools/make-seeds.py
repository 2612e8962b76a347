#!/usr/bin/env python3
"""Makes the seeds of the fuzz targets from the examples: each listing cut to its first sections, each project packed
into one text (fuzz/Project.h). Replaces fuzz/seeds/*/example-*; what stands beside them stays."""
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent
EXAMPLES = ROOT / "examples"
SEEDS = ROOT / "fuzz" / "seeds"
PART_END = b"\x1e"


def read(name):
    return (EXAMPLES / name).read_bytes()


def put(target, name, data):
    folder = SEEDS / target
    folder.mkdir(parents=True, exist_ok=True)
    (folder / f"example-{name}").write_bytes(data)


def first_sections(listing, head, count):
    """A listing up to its section number count; head matches where a section begins."""
    starts = [m.start() for m in re.finditer(head, listing, re.MULTILINE)]
    return listing[:starts[count]] if len(starts) > count else listing


def rtf_sections(listing, count):
    return first_sections(listing, rb"^.*ESTACION", count) + b"}"


def rtf_text(rtf):
    """What the tab readers see of an RTF table: the same file as plain text."""
    rows = re.findall(rb"\\intbl (.*?)\\row", rtf, re.DOTALL)
    plain = b"\r\n".join(re.sub(rb"\\cell ?", b"\t", row) for row in rows) + b"\r\n"
    return re.sub(rb"\\'([0-9a-f]{2})", lambda m: bytes([int(m[1], 16)]), plain)


def pack(head, *files):
    return PART_END.join([head, *files])


def main():
    for old in SEEDS.glob("*/example-*"):
        old.unlink()
    road = {kind: read(f"road/Axis 1.{kind}") for kind in ("plt", "alz", "trv")}
    printed = {kind: read(f"road-printed/Axis 1.{kind}") for kind in ("plt", "alz", "trv")}
    rtf = [read(f"road-rtf/Axis 1 {kind}.rtf") for kind in ("plan", "profile", "sections")]
    rail = [read(f"rail/{name}") for name in ("Track.plt", "Track.alz", "Track cant.xml")]
    tunnel = [read(f"tunnel/{name}") for name in ("Bore axis.plt", "Bore axis.alz", "Bore profiles.xml")]
    double = [read(f"double/{name}") for name in ("Axis.plt", "Axis.alz", "Left track.plt", "Left cant.xml",
                                                  "Right track.plt", "Right cant.xml")]
    road["trv"] = first_sections(road["trv"], rb"^[0-9.]+,\d+\r", 3)
    printed["trv"] = first_sections(printed["trv"], rb"^ P\.K\.", 3)
    rtf[2] = rtf_sections(rtf[2], 2)

    put("hz_marked", "road", road["plt"])
    put("hz_marked", "rail", rail[0])
    put("hz_marked", "long", road["plt"].replace(b"*PLT\r\n", b"*PLT1\r\nAxis\r\n"))
    put("vt_marked", "road", road["alz"])
    put("vt_marked", "rail", rail[1])
    put("vt_printed", "road", printed["alz"])
    put("cr_marked", "road", road["trv"])
    put("cr_marked", "skip", road["trv"].replace(b"10.000,12\r", b"10.000E,12\r") + b"FIN\r\n")
    put("cr_printed", "road", printed["trv"])
    for target, data in zip(("hz_tab", "vt_tab", "cr_tab"), rtf):
        put(target, "rtf", data)
        put(target, "plain", rtf_text(data))
    for name, data in zip(("plan", "profile", "sections"), rtf):
        put("rtf_text", name, data)
    put("rtf_text", "words", (rb"{\rtf1\ansi\ansicpg1252\uc1{\fonttbl{\f0\fcharset204 A;}}{\*\list\b x}\f0 a\u8364?"
                              rb"\'f1\~\_\-{\field{\*\fldinst X}{\fldrslt r}}\tab\bin3 {}{\par\nestcell}\line}"))
    put("cant", "rail", rail[2])
    put("cant", "double", double[3])
    put("tunnel", "tunnel", tunnel[2])
    put("language", "texts", b"# a\r\nLBL = text\r\nTWO = a\\nb\r\nNO = = \r\n")
    put("language", "lf", b"# a\nLBL = text\nOK= yes")
    put("command_line", "host", b'-o "C:\\t\\road.xml" -n "Road1"')
    put("command_line", "register", b'-reg -o "info.txt"')
    put("command_line", "arguments", b"-o\na b.xml\n-n\nRoad 1")
    put("command_line", "rail", b"rail\n--hz\na.plt\n--vt\na.alz\n--cant\nc.xml\n-o\no.xml\n--from\n1.5\n--json")
    put("command_line", "check", b"check\ndouble\n--centre-hz\na\n--vt-from-centre\n--layers\nA,B\n--formats\n7")
    for name in ("road", "rail", "double", "tunnel"):
        put("job_file", name, read(f"{name}/job.toml"))
    put("job_file", "export", b'job = "road"\n[export]\nfrom = 1\nto = 1e3\nlayers = ["A"]\n[tolerance]\nvertical = 0.1\n'
        b'[alignment]\nhorizontal = "a.plt"\n')

    put("conversion", "road", pack(b"0", road["plt"], road["alz"], road["trv"]))
    put("conversion", "printed", pack(b"0;5;300", printed["plt"], printed["alz"], printed["trv"]))
    put("conversion", "rtf", pack(b"0", *rtf))
    put("conversion", "tunnel", pack(b"1", *tunnel))
    put("conversion", "rail", pack(b"2;10100;10300", *rail))
    put("conversion", "double", pack(b"3c", double[0], double[1], double[2], b"", double[3], double[4], b"", double[5]))
    put("conversion", "generated", pack(b"3l", b"", b"", double[2], b"", double[3], double[4], double[1], double[5]))


main()
