#!/usr/bin/env python3
"""Makes the example projects in examples/: the same bytes on every run.

The geometry is laid out by integrating the curvature (Gauss-Legendre), not by the converter's own formulas, so the
examples also hold these against an independent computation. Run it from anywhere; it replaces the input files and
job files, and leaves the expected documents to scripts/update-golden.
"""
import math
import pathlib

EXAMPLES = pathlib.Path(__file__).resolve().parent.parent / "examples"
NODES = [(0.1488743389816312, 0.2955242247147529), (0.4333953941292472, 0.2692667193099964),
         (0.6794095682990244, 0.2190863625159820), (0.8650633666889845, 0.1494513491505806),
         (0.9739065285171717, 0.0666713443086881)]


class Plan:
    """A horizontal alignment: elements of (length, curvature at start, curvature at end), right positive."""

    def __init__(self, chainage, x, y, azimuth, elements):
        self.elements = elements
        self.starts = [(chainage, x, y, azimuth)]  # metres and radians, clockwise from north
        for i, (length, _, _) in enumerate(elements):
            x, y, azimuth = self._run(i, length)
            chainage += length
            self.starts.append((chainage, x, y, azimuth))

    def _run(self, i, s):
        """Point and azimuth s metres into element i, in steps of at most 5 m."""
        length, k0, k1 = self.elements[i]
        _, x, y, azimuth = self.starts[i]

        def bearing(t):
            return azimuth + k0 * t + (k1 - k0) * t * t / (2 * length)

        steps = max(1, math.ceil(s / 5))
        for n in range(steps):
            a, b = s * n / steps, s * (n + 1) / steps
            for node, weight in NODES:
                for sign in (-1, 1):
                    t = (a + b) / 2 + sign * node * (b - a) / 2
                    x += weight * (b - a) / 2 * math.sin(bearing(t))
                    y += weight * (b - a) / 2 * math.cos(bearing(t))
        return x, y, bearing(s)

    @property
    def end(self):
        return self.starts[-1][0]

    def points(self):
        """(chainage, x, y, azimuth in gon, length, radius, parameter) of the element that ends at each point."""
        for i, (chainage, x, y, azimuth) in enumerate(self.starts):
            length, k0, k1 = self.elements[i - 1] if i else (0, 0, 0)
            radius = 1 / k1 if k1 else 0
            parameter = math.sqrt(length / abs(k1 - k0)) if k0 != k1 else 0
            yield chainage, x, y, math.degrees(azimuth) / 0.9 % 400, length, radius, parameter

    def marked(self):
        lines = ["*PLT"]
        for chainage, x, y, gon, _, radius, parameter in self.points():
            lines.append(f"{chainage:.3f},{x:.4f},{y:.4f},{gon:.6f},{radius:.3f},{parameter:.4f}")
        return lines + [""]  # the blank line behind the last point closes a clothoid at the end

    def table(self):
        """Rows of the tab form, each with the cells behind which a tab stands."""
        rows = [["Estación", "Longitud", "Coord. X", "Coord. Y", "Acimut", "Radio", "Parám.", "X Centro", "Y Centro"]]
        for chainage, x, y, gon, length, radius, parameter in self.points():
            row = [kilometres(chainage), f"{length:.3f}", f"{x:.4f}", f"{y:.4f}", f"{gon:.6f}"]
            if parameter:
                row += [f"{radius:.3f}" if radius else "INFINITO", f"{parameter:.4f}"]
            elif radius:
                row += [f"{radius:.3f}", "", ""]
            else:
                row += ["INFINITO"]
            rows.append(row)
        return rows


class Profile:
    """A vertical alignment: vertices of (chainage, height, tangent length)."""

    def __init__(self, vertices):
        self.vertices = vertices
        self.grades = [(b[1] - a[1]) / (b[0] - a[0]) for a, b in zip(vertices, vertices[1:])]

    def height(self, chainage):
        for i in range(1, len(self.vertices) - 1):
            c, z, t = self.vertices[i]
            if t and abs(chainage - c) <= t:
                dx, g0, g1 = chainage - (c - t), self.grades[i - 1], self.grades[i]
                return z - t * g0 + g0 * dx + (g1 - g0) / (4 * t) * dx * dx
        for i, (c, z, _) in enumerate(self.vertices[1:]):
            if chainage <= c or i + 2 == len(self.vertices):
                return z + (chainage - c) * self.grades[i]
        raise ValueError(chainage)

    def curves(self):
        """(start, height, gradient, Kv, end, height at the end, gradient behind) of each curved vertex."""
        for i in range(1, len(self.vertices) - 1):
            c, z, t = self.vertices[i]
            g0, g1 = self.grades[i - 1], self.grades[i]
            yield c - t, z - t * g0, g0, 2 * t / (g1 - g0), c + t, z + t * g1, g1

    def marked(self):
        lines = ["*ALZ"]
        for c, z, t in self.vertices:
            lines.append(f"{c:.3f},{z:.4f}C,{t:.3f}T" if t else f"{c:.3f},{z:.4f}C,0T")
        return lines

    def printed(self):
        """Blocks: where a grade starts, a line of no matter, where it ends and the curve starts."""
        lines = [" ESTADO DE RASANTES", "", " Vert    P.K.        Cota        Pend.", "===== ========== ========== ==========",
                 "", ""]
        start, height, grade = self.vertices[0][0], self.vertices[0][1], self.grades[0]
        for n, (c, z, g, kv, c2, z2, g2) in enumerate(self.curves(), 1):
            lines += [f" {n:3d} {start:12.4f} {height:12.4f} {grade * 100:12.6f}", "",
                      f"  TE TS {c:12.4f} {z:12.4f} {g * 100:12.6f} Kv {kv:14.4f} "]
            start, height, grade = c2, z2, g2
        # The last grade ends in a curve of no length at the end of the profile.
        c, z, _ = self.vertices[-1]
        n = len(self.vertices) - 1
        lines += [f" {n:3d} {start:12.4f} {height:12.4f} {grade * 100:12.6f}", "",
                  f"  TE TS {c:12.4f} {z:12.4f} {grade * 100:12.6f} Kv {0:14.4f} "]
        return lines

    def table(self):
        """Blocks of three rows; the curve's parameter stands in thousands of metres."""
        c, z, _ = self.vertices[0]
        rows = [["ESTADO DE RASANTES"], ["", "P.K.", "P.K. tang.", "Cota", "Pend. %", "", "Kv"],
                ["", kilometres(c)], ["", "", "", f"{z:.4f}", f"{self.grades[0] * 100:.6f}"], [""]]
        for c, z, g, kv, c2, z2, _ in self.curves():
            rows += [["", "", kilometres(c), f"{z:.4f}", f"{g * 100:.6f}", "", f"{kv / 1000:.7f}"],
                     ["", "", kilometres(c2), f"{z2:.4f}"], [""]]
        c, z, _ = self.vertices[-1]
        rows += [["", "", kilometres(c), f"{z:.4f}", f"{self.grades[-1] * 100:.6f}"], ["", "", kilometres(c), f"{z:.4f}"],
                 [""], ["", "fin"]]
        return rows


def kilometres(chainage):
    return f"{int(chainage // 1000)}+{chainage % 1000:07.3f}"


# --- cross-sections -------------------------------------------------------------------------------------------------

def sections(plan, profile, step):
    """(chainage, {letter: [(offset, height)]}): batters and ditches, formation, carriageway."""
    chainage, n = plan.starts[0][0], 0
    while chainage <= plan.end + 1e-9:
        z = profile.height(chainage)
        wave = math.sin(chainage / 90.0)
        widening = 0.75 if 260 <= chainage <= 420 else 0.0
        edge = 3.5 + widening
        cut = 2.0 + 1.2 * wave
        road = [(-edge, z - 0.02 * edge), (0.0, z), (3.5, z - 0.07)]
        base = [(-edge - 0.6, z - 0.55), (0.0, z - 0.45), (4.1, z - 0.55)]
        if 180 <= chainage <= 300:
            road.append((5.5, z - 0.11))  # a lay-by on the right
            base[-1] = (6.1, z - 0.60)
        right = road[-1][0]
        ditch = [(-edge - 1.5, z - 0.5), (right + 1.5, z - 0.5)]
        batter = [(-edge - 2.0 - cut, z + 0.3 + cut), (-edge - 1.0, z - 0.15), (right + 1.0, z - 0.15),
                  (right + 2.0 + 0.8 * cut, z + 0.25 + 0.7 * cut)]
        yield chainage, {"T": batter, "C": ditch, "S": base, "P": road}
        n += 1
        chainage = plan.starts[0][0] + n * step


def sections_marked(items):
    lines = ["*TRV", "PERFILES TRANSVERSALES"]
    for chainage, layers in items:
        lines.append(f"{chainage:.3f},{sum(map(len, layers.values()))}")
        for letter, points in layers.items():
            lines += [f"{offset:.3f},{z:.3f},{letter}{n:02d}" for n, (offset, z) in enumerate(points, 1)]
    return lines + ["FIN"]


def columns(layers):
    """Rows of three points side by side: batter, carriageway, formation."""
    groups = [layers["T"], layers["P"], layers["S"]]
    for n in range(max(map(len, groups))):
        yield [group[n] if n < len(group) else None for group in groups]


def sections_printed(items):
    rule = " " + " ".join(["==========", "==========", "==="] * 2 + ["==========", "=========="])
    lines = [" PERFILES TRANSVERSALES", ""]
    for chainage, layers in items:
        lines += [f" P.K. {chainage:.3f}", " dist       cota        ", rule]
        # A row holds all three points or, where a group has run out, blanks in its columns.
        for row in columns(layers):
            cells = []
            for n, point in enumerate(row):
                cells += [f"{point[0]:10.3f}", f"{point[1]:10.3f}"] if point else [" " * 10] * 2
                cells += [("T" if n == 0 else "P").rjust(3) if point else "   "] if n < 2 else []
            lines.append((" " + " ".join(cells)).rstrip())
        lines.append("")
    return lines[:-1] + [""]


def sections_table(items):
    rows = []
    for chainage, layers in items:
        rows += [["ESTACION", kilometres(chainage)], ["COTA"]]
        for row in columns(layers):
            cells = []
            for point in row:
                cells += [f"{point[0]:.3f}", f"{point[1]:.3f}", "", ""] if point else ["", "", "", ""]
            rows.append(cells[:11])
    return rows


# --- side files -----------------------------------------------------------------------------------------------------

def cant_table(stations, gauge, base, coplanar, rotation):
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', "<!-- Track table, version '2.0.1' -->",
             f'<Cant gauge="{gauge:.3f}" superelevationBase="{base:.3f}" rotationPoint="{rotation}" '
             f'coPlane="{"true" if coplanar else "false"}">']
    for station, cant in stations:
        lines.append(f'  <CantStation station="{station:.3f}" appliedCant="{cant:.1f}" rotationPoint="{rotation}" '
                     f'appliedGauge="{gauge:.3f}" appliedSuperelevation="{base:.3f}"/>')
    return lines + ["</Cant>"]


def bore(plan, step):
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', "<TunnelProfiles>"]
    chainage = plan.starts[0][0] + step
    while chainage < plan.end:
        lines.append(f'  <TunnelProfile sta="{chainage:.3f}" name="P{chainage:.0f}">'
                     '<Arc radius="5.400" from="0" to="3.141593"/><Line><Start>-5.400 0.000</Start>'
                     "<End>5.400 0.000</End></Line></TunnelProfile>")
        chainage += step
    return lines + ["</TunnelProfiles>"]


def rtf(rows):
    """A table as word processors write it: one RTF row for each, a cell behind each text."""
    out = ["{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}}\\f0\\fs18"]
    for row in rows:
        edges = "".join(f"\\cellx{1400 * (n + 1)}" for n in range(len(row)))
        cells = "".join(text + "\\cell " for text in row)
        out.append("\\trowd" + edges + "\\pard\\intbl " + cells + "\\row")
    text = "\n".join(out + ["\\pard\\par}"])
    return "".join(c if ord(c) < 128 else f"\\'{c.encode('cp1252')[0]:02x}" for c in text)


# --- files ----------------------------------------------------------------------------------------------------------

def write(folder, name, content):
    path = EXAMPLES / folder / name
    path.parent.mkdir(parents=True, exist_ok=True)
    if isinstance(content, list):
        content = "".join(line + "\r\n" for line in content)
    encoding = "utf-8" if name.endswith((".xml", ".toml")) else "cp1252"
    path.write_bytes(content.encode(encoding))


def job(folder, text):
    write(folder, "job.toml", text.lstrip("\n"))


CURVE = [(120, 0, 0), (60, 0, 1 / 250), (140, 1 / 250, 1 / 250), (60, 1 / 250, 0), (80, 0, 0), (50, 0, -1 / 180),
         (90, -1 / 180, -1 / 180), (50, -1 / 180, 0), (150, 0, 0)]
ROAD = Plan(0, 431200.0, 4581300.0, math.radians(40), CURVE)
ROAD_PROFILE = Profile([(0, 512.34, 0), (210, 517.59, 60), (520, 511.39, 70), (800, 515.59, 0)])


def make_roads():
    items = list(sections(ROAD, ROAD_PROFILE, 10.0))
    write("road", "Axis 1.plt", ROAD.marked())
    write("road", "Axis 1.alz", ROAD_PROFILE.marked())
    write("road", "Axis 1.trv", sections_marked(items))
    write("road-printed", "Axis 1.plt", ROAD.marked())
    write("road-printed", "Axis 1.alz", ROAD_PROFILE.printed())
    write("road-printed", "Axis 1.trv", sections_printed(items))
    write("road-rtf", "Axis 1 plan.rtf", rtf(ROAD.table()))
    write("road-rtf", "Axis 1 profile.rtf", rtf(ROAD_PROFILE.table()))
    write("road-rtf", "Axis 1 sections.rtf", rtf(sections_table(items)))
    for folder, files in (("road", ("Axis 1.plt", "Axis 1.alz", "Axis 1.trv")),
                          ("road-printed", ("Axis 1.plt", "Axis 1.alz", "Axis 1.trv")),
                          ("road-rtf", ("Axis 1 plan.rtf", "Axis 1 profile.rtf", "Axis 1 sections.rtf"))):
        job(folder, f'''
job     = "road"
output  = "{folder}.xml"
name    = "By-pass road"
creator = "survey office"
formats = 7

[alignment]
horizontal     = "{files[0]}"
vertical       = "{files[1]}"
cross_sections = "{files[2]}"
''')


def make_tunnel():
    plan = Plan(2000, 418350.0, 4602110.0, math.radians(112),
                [(180, 0, 0), (80, 0, -1 / 450), (260, -1 / 450, -1 / 450), (80, -1 / 450, 0), (100, 0, 0)])
    profile = Profile([(2000, 684.2, 0), (2300, 690.2, 80), (2700, 686.2, 0)])
    write("tunnel", "Bore axis.plt", plan.marked())
    write("tunnel", "Bore axis.alz", profile.marked())
    write("tunnel", "Bore profiles.xml", bore(plan, 50))
    job("tunnel", '''
job     = "tunnel"
output  = "tunnel.xml"
name    = "Ridge tunnel"
creator = "survey office"
formats = 7

[alignment]
horizontal = "Bore axis.plt"
vertical   = "Bore axis.alz"
tunnel     = "Bore profiles.xml"
''')


def make_rail():
    plan = Plan(10000, 441870.0, 4593420.0, math.radians(318),
                [(200, 0, 0), (110, 0, 1 / 700), (330, 1 / 700, 1 / 700), (110, 1 / 700, 0), (90, -0.0, -1 / 900),
                 (240, -1 / 900, -1 / 900), (90, -1 / 900, 0), (160, 0, 0)])
    profile = Profile([(10000, 402.5, 0), (10480, 406.34, 90), (11010, 402.63, 110), (11330, 404.23, 0)])
    write("rail", "Track.plt", plan.marked())
    write("rail", "Track.alz", profile.marked())
    write("rail", "Track cant.xml",
          cant_table([(10000, 0), (10200, 0), (10310, 95), (10640, 95), (10750, 0), (10840, 70), (11080, 70), (11170, 0),
                      (11330, 0)], 1.435, 1.5, False, "insideRail"))
    job("rail", '''
job     = "rail"
output  = "rail.xml"
name    = "Single track"
creator = "survey office"

[alignment]
horizontal = "Track.plt"
vertical   = "Track.alz"
cant       = "Track cant.xml"
''')


def parallel(offset):
    """A track beside the axis: straights and an arc in parallel; clothoids of its own, of the axis' deflections."""
    radius, length, turn = 800.0, 120.0, math.radians(28)
    x, y, azimuth = 437500.0, 4570900.0, math.radians(75)
    r = radius - offset  # a right-hand curve: tracks on the right are tighter
    deflection = length / (2 * radius)
    own = 2 * r * deflection
    # The straight in front is longer or shorter so that the arcs lie side by side.
    shift, shift_own = length ** 2 / (24 * radius), own ** 2 / (24 * r)
    before = 300 + (length / 2 + (radius + shift) * math.tan(turn / 2)) - (own / 2 + (r + shift_own) * math.tan(turn / 2))
    before -= offset * math.tan(turn / 2)
    arc = r * (turn - 2 * deflection)
    return Plan(5000, x + offset * math.cos(azimuth), y - offset * math.sin(azimuth), azimuth,
                [(before, 0, 0), (own, 0, 1 / r), (arc, 1 / r, 1 / r), (own, 1 / r, 0), (before, 0, 0)])


def make_double():
    axis, left, right = parallel(0.0), parallel(-2.1), parallel(2.1)
    profile = Profile([(5000, 231.0, 0), (5420, 234.36, 120), (math.floor(axis.end * 1000) / 1000, 231.86, 0)])

    def cant(plan):
        c = [start[0] for start in plan.starts]
        # A table is held against the axis' profile, and the outer track is the longer one.
        last = min(c[5], axis.end) - 1
        return cant_table([(c[0] + 1, 0), (c[1], 0), (c[2], 110), (c[3], 110), (c[4], 0), (last, 0)], 1.435, 1.5, True,
                          "leftRail")

    for name, plan in (("Axis", axis), ("Left track", left), ("Right track", right)):
        write("double", name + ".plt", plan.marked())
    write("double", "Axis.alz", profile.marked())
    write("double", "Left cant.xml", cant(left))
    write("double", "Right cant.xml", cant(right))
    job("double", '''
job     = "double"
output  = "double.xml"
name    = "Double track"
creator = "survey office"

[centre]
horizontal = "Axis.plt"
vertical   = "Axis.alz"
generate_track_verticals = true   # the tracks' profiles come from the axis, over the plane of the cant

[left]
horizontal = "Left track.plt"
cant       = "Left cant.xml"

[right]
horizontal = "Right track.plt"
cant       = "Right cant.xml"
''')


# --- faulty projects: each one fault in an otherwise good project ----------------------------------------------------

def make_faulty():
    def project(folder, **files):
        names = {"plt": ROAD.marked(), "alz": ROAD_PROFILE.marked()}
        names.update(files)
        write("faulty/" + folder, "axis.plt", names["plt"])
        write("faulty/" + folder, "axis.alz", names["alz"])
        lines = ['job     = "rail"', f'output  = "{folder}.xml"', "", "[alignment]", 'horizontal = "axis.plt"',
                 'vertical   = "axis.alz"']
        if "cant" in names:
            write("faulty/" + folder, "cant.xml", names["cant"])
            lines.append('cant       = "cant.xml"')
        write("faulty/" + folder, "job.toml", "\n".join(lines) + "\n")

    gap = ROAD.marked()
    fields = gap[4].split(",")
    fields[1] = f"{float(fields[1]) + 0.35:.4f}"
    gap[4] = ",".join(fields)
    project("gap-in-the-plan", plt=gap)
    # The printed form tells where each curve ends, so it can tell a wrong height there.
    kink = ROAD_PROFILE.printed()
    kink[9] = kink[9].replace(kink[9].split()[2], f"{float(kink[9].split()[2]) + 0.08:.4f}")
    project("kink-in-the-profile", alz=kink)
    stations = [(0, 0), (150, 60), (1250, 0)]
    project("cant-outside-the-profile", cant=cant_table(stations, 1.435, 1.5, False, "insideRail"))
    project("wrong-marker", plt=["*PTL"] + ROAD.marked()[1:])
    broken = cant_table([(0, 0), (150, 60)], 1.435, 1.5, False, "insideRail")
    project("broken-xml", cant=broken[:-1])


if __name__ == "__main__":
    make_roads()
    make_tunnel()
    make_rail()
    make_double()
    make_faulty()
