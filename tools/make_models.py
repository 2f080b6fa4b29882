"""Generates the sample finite-element models in share/models.

Units are metres and kN/m; Z points up.  Every model is checked before it is
written: unknown keys, duplicate numbers and dangling references raise an error.
"""

import json
import math
from itertools import pairwise
from pathlib import Path

TARGET = Path(__file__).resolve().parents[1] / "share" / "models"
LARGEST_FILE = 400_000                        # bytes
KEYS = ("title kindOfSystem crossSections groups secondaryGroups nodes supports beams trusses cables springs "
        "quads bricks quadTendons beamTendons points lines areas axes sectionCuts designLines loadCases designParameters").split()

# The columns of a row: the name of the list that the number refers to, or of a plain value. A
# number in "nodes?" may be 0.
BAR = "number groups crossSections nodes nodes"
ROWS = {"nodes": "number x y z", "supports": "nodes directions", "beams": BAR, "trusses": BAR, "cables": BAR,
        "springs": "number groups nodes nodes? stiffness", "bricks": "number groups" + 8 * " nodes",
        "quads": "number groups nodes nodes nodes nodes? thickness", "points": "number x y z",
        "lines": "number points points", "areas": "number points points points"}
PATHS = dict.fromkeys("quadTendons beamTendons axes sectionCuts designLines".split(), {"points"})
RECORDS = {"crossSections": set(), "groups": set(), "loadCases": {"kind"}, **PATHS}
DIRECTIONS = "x y z rx ry rz".split()
DESIGN = ("Tragfähigkeit, Grundkombination=ULS, fundamental combination; Einhüllende Tragfähigkeit=ULS envelope;"
          "Gebrauchstauglichkeit, quasi-ständig=SLS, quasi-permanent")


def text(pair):
    german, english = pair.split("=")
    return {"german": german.strip(), "english": english.strip()}


def tidy(values):
    return [round(value, 4) + 0.0 for value in values]     # + 0.0 turns -0.0 into 0.0


def steps(start, stop, size):
    count = round((stop - start) / size)
    return tidy(start + (stop - start) * i / count for i in range(count + 1))


def shares(values):
    """Returns the tributary width of each station: half the distance between its neighbours."""
    padded = [values[0], *values, values[-1]]
    return [(right - left) / 2 for left, right in zip(padded, padded[2:])]


def rectangle(x0, x1, y0, y1, z=0.0):
    return [(x0, y0, z), (x1, y0, z), (x1, y1, z), (x0, y1, z)]


def level(z):
    return lambda x, y: (x, y, z)


def near(places, x, y, distance):
    return any(max(abs(x - px), abs(y - py)) < distance for px, py in places)


class Model:
    def __init__(self, title, kind_of_system):
        self.data = {"title": text(title), "kindOfSystem": kind_of_system}
        self.known = {}         # (list, coordinates or ends) -> number, so that adjacent parts share them
        self.last = {}          # group -> last running number of an element
        self.centres = {}       # element number -> centre

    def rows(self, key):
        return self.data.setdefault(key, [])

    def shared(self, key, identity, values):
        if (key, identity) not in self.known:
            self.known[key, identity] = len(self.rows(key)) + 1
            self.rows(key).append([self.known[key, identity], *values])
        return self.known[key, identity]

    def node(self, place, key="nodes"):
        return self.shared(key, tuple(tidy(place)), tidy(place))

    def element(self, key, group, corners, before=(), after=()):
        """Adds an element. Its number shows its group: 10000 * group + sequential number."""
        self.last[group] = self.last.get(group, 0) + 1
        number = 10000 * group + self.last[group]
        self.centres[number] = tidy(sum(axis) / len(corners) for axis in zip(*corners))
        self.rows(key).append([number, group, *before, *map(self.node, corners), *after])

    def chain(self, key, group, section, *stations):
        for ends in pairwise(stations):
            self.element(key, group, ends, before=[section])

    def quad(self, group, thickness, *corners):
        self.element("quads", group, corners, after=[0] * (4 - len(corners)) + [thickness])

    def sheet(self, us, vs, place, pick):
        """Meshes a grid; pick returns (group, thickness) for a cell's centre, or None in openings."""
        for v0, v1 in pairwise(vs):
            for u0, u1 in pairwise(us):
                if kind := pick((u0 + u1) / 2, (v0 + v1) / 2):
                    self.quad(*kind, place(u0, v0), place(u1, v0), place(u1, v1), place(u0, v1))

    def bedding(self, group, xs, ys, z, modulus):
        for y, depth in zip(ys, shares(ys)):
            for x, width in zip(xs, shares(xs)):
                self.element("springs", group, [(x, y, z)], after=[0, round(modulus * width * depth, 4)])

    def support(self, directions, *places):
        for place in places:
            self.rows("supports").append([self.node(place), directions])

    def records(self, key, first, pairs, **more):
        """Adds numbered records; pairs are titles "german=english", separated by semicolons."""
        for number, pair in enumerate(pairs.split(";"), first):
            self.rows(key).append({"number": number, "title": text(pair), **more})

    def loads(self, cases, designs=DESIGN):
        self.records("loadCases", 1, cases, kind=1)
        self.records("loadCases", 101, designs, kind=2)

    def design(self, groups, **values):
        self.rows("designParameters").append({"groups": groups.split(), "values": values})

    def path(self, key, title, *points):
        self.records(key, len(self.rows(key)) + 1, title, points=list(map(tidy, points)))

    def axes(self, across, along):
        """Adds axes that extend 1.5 m beyond the grid; across: label -> x, along: label -> y."""
        (x0, *_, x1), (y0, *_, y1) = across.values(), along.values()
        for label, x in across.items():
            self.path("axes", f"Achse {label}=Axis {label}", (x, y0 - 1.5, 0), (x, y1 + 1.5, 0))
        for label, y in along.items():
            self.path("axes", f"Achse {label}=Axis {label}", (x0 - 1.5, y, 0), (x1 + 1.5, y, 0))

    def outline(self, corners, opening=False):
        points = [self.node(corner, "points") for corner in corners]
        for ends in zip(points, points[1:] + points[:1]):
            self.shared("lines", frozenset(ends), ends)
        if not opening:
            self.shared("areas", tuple(points), points)

    def collect(self, name, title, inside, **groups):
        """Adds a secondary group: for each list, the elements of the given groups with a centre inside."""
        members = {key: [row[0] for row in self.rows(key)
                         if row[1] in numbers and inside(*self.centres[row[0]])]
                   for key, numbers in groups.items()}
        self.rows("secondaryGroups").append({"name": name, "title": text(title), **members})


class Building(Model):
    def __init__(self):
        super().__init__("Bürogebäude mit zwei Geschossen=Two-storey office building", 0)
        columns = [(x, y) for x in (6, 12, 18) for y in (0, 6, 12)]       # axis A has a wall instead of columns
        corners = [(x, y) for x in (0, 18) for y in (0, 12)]
        self.records("crossSections", 1, "Innenstütze 40/40=Inner column 40/40; Randstütze 30/40=Edge column 30/40;"
                     "Eckstütze 30/30=Corner column 30/30; Unterzug 30/60=Downstand beam 30/60")
        self.records("groups", 1, "Bodenplatte=Raft; Geschossdecke=Floor slab; Dachdecke=Roof slab; Kernwände=Core walls;"
                     "Außenwand=Outer wall; Stützen=Columns; Randunterzüge=Edge beams; Bettung=Bedding")
        self.slabs()
        self.walls()
        self.frame(columns)
        self.collect("CORN", "Deckenecken=Slab corners", lambda x, y, z: near(corners, x, y, 1.5), quads={2, 3})
        self.collect("COLS", "Deckenstreifen an Stützen=Slab strips at columns",
                     lambda x, y, z: near(columns, x, y, 1.5), quads={2, 3})
        self.collect("LOW", "Tragglieder im Erdgeschoss=Ground-floor members",
                     lambda x, y, z: z < 3.2, quads={4, 5}, beams={6})
        self.geometry()
        self.loads("Eigengewicht=Self-weight; Ausbaulasten=Superimposed dead load; Nutzlast Geschossdecke=Live load "
                   "floor slab; Nutzlast Dach=Live load roof; Schnee=Snow; Wind in X=Wind in X; Wind in Y=Wind in Y")
        self.design("1", type=1, hio=0.05, hiu=0.06, dio=16, dioq=16, diu=16, diuq=16, aso=7.85, asu=7.85,
                    wko=0.3, wkoq=0.3, wku=0.2, wkuq=0.2)
        self.design("2 3", type=2, hio=0.03, hiu=0.03, dio=12, dioq=12, aso=3.35, asoq=3.35, asu=3.35, asuq=3.35,
                    sigo=280, sigoq=280, sigu=320, siguq=320)
        self.design("COLS", type=2, hio=0.03, hiu=0.03, dio=14, dioq=14, aso=7.7, asoq=7.7, amo=25, amoq=25)
        self.design("4 5", type=1, hio=0.035, hiu=0.035, aso=2.5, asu=2.5, wko=0.3, wku=0.3)

    def slabs(self):
        xs, ys = steps(0, 18, 0.75), steps(0, 12, 0.75)
        raft_xs, raft_ys = [-0.75, *xs, 18.75], [-0.75, *ys, 12.75]
        in_core = lambda x, y: 7.5 < x < 10.5 and 6 < y < 10.5
        in_vent = lambda x, y: 8.25 < x < 9.75 and 7.5 < y < 9       # smoke vent above the stairs
        self.sheet(raft_xs, raft_ys, level(0), lambda x, y: (1, 0.4))
        self.sheet(xs, ys, level(3.2), lambda x, y: None if in_core(x, y) else (2, 0.26))
        self.sheet(xs, ys, level(6.4), lambda x, y: None if in_vent(x, y) else (3, 0.24))
        self.bedding(8, raft_xs, raft_ys, 0, 20000)
        self.support("x y", (0, 0, 0))       # the bedding supports vertically only
        self.support("y", (18, 0, 0))

    def walls(self):
        xs, ys, zs = steps(7.5, 10.5, 0.75), steps(6, 10.5, 0.75), steps(0, 6.4, 0.8)
        door = lambda x, z: 8.25 < x < 9.75 and z % 3.2 < 2.4
        window = lambda y, z: (1.5 < y < 4.5 or 7.5 < y < 10.5) and 0.8 < z % 3.2 < 2.4
        self.sheet(ys, zs, lambda y, z: (7.5, y, z), lambda y, z: (4, 0.25))
        self.sheet(ys, zs, lambda y, z: (10.5, y, z), lambda y, z: (4, 0.25))
        self.sheet(xs, zs, lambda x, z: (x, 6, z), lambda x, z: None if door(x, z) else (4, 0.25))
        self.sheet(xs, zs, lambda x, z: (x, 10.5, z), lambda x, z: (4, 0.25))
        self.sheet(steps(0, 12, 0.75), zs, lambda y, z: (0, y, z), lambda y, z: None if window(y, z) else (5, 0.24))

    def frame(self, columns):
        for x, y in columns:
            section = 1 + (x == 18) + (y in (0, 12))       # inside, edge, corner
            self.chain("beams", 6, section, *((x, y, z) for z in steps(0, 6.4, 0.8)))
        for z in (3.2, 6.4):
            self.chain("beams", 7, 4, *((x, 0, z) for x in steps(0, 18, 0.75)))
            self.chain("beams", 7, 4, *((18, y, z) for y in steps(0, 12, 0.75)))
            self.chain("beams", 7, 4, *((x, 12, z) for x in steps(18, 0, -0.75)))

    def geometry(self):
        self.outline(rectangle(-0.75, 18.75, -0.75, 12.75))
        self.outline(rectangle(0, 18, 0, 12, 3.2))
        self.outline(rectangle(0, 18, 0, 12, 6.4))
        self.outline([(0, 12, 0), (0, 0, 0), (0, 0, 6.4), (0, 12, 6.4)])
        self.outline(rectangle(7.5, 10.5, 6, 10.5, 3.2), opening=True)
        self.outline(rectangle(8.25, 9.75, 7.5, 9, 6.4), opening=True)
        self.axes({"A": 0, "B": 6, "C": 12, "D": 18}, {"1": 0, "2": 6, "3": 12})
        self.path("sectionCuts", "Deckenschnitt quer=Slab section across", (3.375, 0, 3.2), (3.375, 12, 3.2))
        self.path("sectionCuts", "Deckenschnitt längs=Slab section along", (0, 3.375, 3.2), (18, 3.375, 3.2))
        self.path("designLines", "Bemessungslinie Achse B=Design line axis B", (6, 0, 3.2), (6, 6, 3.2), (6, 12, 3.2))


class Slab(Model):
    def __init__(self):
        super().__init__("Punktgestützte Flachdecke mit Balkon=Flat slab on columns with a balcony", 20)
        self.records("groups", 1, "Feldbereiche=Panels; Stützenkopfverstärkungen=Column heads;"
                     "Gurtstreifen=Column strips; Balkon=Balcony")
        columns = [(x, y) for x in (0, 7, 14, 21) for y in (0, 7)]
        along = lambda x, y, z=0: min(abs(y - axis) for axis in (0, 7)) < 1.5
        across = lambda x, y, z=0: min(abs(x - axis) for axis in (0, 7, 14, 21)) < 1.5
        self.mesh(columns, lambda x, y: along(x, y) or across(x, y))
        self.support("z", *((x, y, 0) for x, y in columns))
        self.support("z", *((x, 14, 0) for x in steps(0, 21, 0.5)))       # a wall below the whole edge
        self.collect("GURX", "Gurtstreifen in X=Column strips in X", along, quads={2, 3})
        self.collect("GURY", "Gurtstreifen in Y=Column strips in Y", across, quads={2, 3})
        self.collect("OPEN", "Streifen um die Öffnung=Strips around the opening",
                     lambda x, y, z: 8 < x < 12.5 and 8.5 < y < 12.5, quads={1, 2, 3})
        self.geometry()
        self.loads("Eigengewicht=Self-weight; Ausbaulasten=Superimposed dead load;"
                   + "".join(f"Nutzlast Feld {i}=Live load panel {i};" for i in range(1, 7))
                   + "Nutzlast Balkon=Live load balcony; Temperatur, oben wärmer=Temperature, top warmer;"
                   "Temperatur, unten wärmer=Temperature, bottom warmer",
                   "Schachbrett, Felder 1, 3 und 5=Chequerboard, panels 1, 3 and 5;"
                   "Schachbrett, Felder 2, 4 und 6=Chequerboard, panels 2, 4 and 6;" + DESIGN)
        self.design("1", type=1, hio=0.03, hiu=0.03, aso=2.57, asu=5.24, wko=0.4, wku=0.4)
        self.design("2 3", type=2, hio=0.035, hiu=0.03, dio=16, dioq=14, aso=7.54, asoq=7.54, amo=40, amoq=40)
        self.design("4", type=3, rioi=0.7853982, hio=0.04, dio=12, dioi=10, aso=5.24, asoq=2.57, asoi=2.57)

    def mesh(self, columns, in_strip):
        def zone(x, y):
            if 9 < x < 11.5 and 9.5 < y < 11.5:
                return None
            return (2, 0.4) if near(columns, x, y, 1) else (3 if in_strip(x, y) else 1, 0.26)
        chamfer = lambda x, y: y < -1 and not 7.5 < x < 13.5
        self.sheet(steps(0, 21, 0.5), steps(0, 14, 0.5), level(0), zone)
        self.sheet(steps(7, 14, 0.5), steps(-1.5, 0, 0.5), level(0), lambda x, y: None if chamfer(x, y) else (4, 0.2))
        self.quad(4, 0.2, (7.5, -1.5, 0), (7.5, -1, 0), (7, -1, 0))
        self.quad(4, 0.2, (13.5, -1.5, 0), (14, -1, 0), (13.5, -1, 0))

    def geometry(self):
        self.outline([(0, 0, 0), (7, 0, 0), (14, 0, 0), (21, 0, 0), (21, 14, 0), (0, 14, 0)])
        self.outline([(7, 0, 0), (7, -1, 0), (7.5, -1.5, 0), (13.5, -1.5, 0), (14, -1, 0), (14, 0, 0)])
        self.outline(rectangle(9, 11.5, 9.5, 11.5), opening=True)
        self.axes({"A": 0, "B": 7, "C": 14, "D": 21}, {"1": 0, "2": 7, "3": 14})
        self.path("sectionCuts", "Feldschnitt längs=Panel section along", (0, 3.25, 0), (21, 3.25, 0))
        self.path("sectionCuts", "Schnitt neben Achse B=Section beside axis B", (7.25, 0, 0), (7.25, 14, 0))
        self.path("sectionCuts", "Balkonanschluss=Balcony support line", (7, -0.25, 0), (14, -0.25, 0))
        self.path("designLines", "Gurtstreifen Achse 2=Column strip axis 2", *((x, 7, 0) for x in (0, 7, 14, 21)))
        self.path("designLines", "Feldstreifen 1–2=Middle strip 1–2", (0, 3.5, 0), (21, 3.5, 0))


class Hall(Model):
    """Six portal frames across Y, 6 m apart; hinged column feet on pads below the floor."""

    def __init__(self):
        super().__init__("Industriehalle mit Kranbahn=Industrial hall with crane runway", 0)
        self.frames = steps(0, 30, 6)
        self.rafter = [(y, 8 - 0.1 * abs(y - 10)) for y in steps(0, 20, 2)]
        self.records("crossSections", 1, "Stütze HEB 300=Column HEB 300; Riegel IPE 450=Rafter IPE 450;"
                     "Konsole HEB 300=Bracket HEB 300; Pfette HEA 140=Purlin HEA 140; Druckrohr 120 × 5=Tube 120 × 5;"
                     "Rundstab Ø 24=Rod Ø 24; Kranbahnträger 40/80=Crane girder 40/80")
        self.records("groups", 1, "Einzelfundamente=Pad footings; Stützen=Columns; Rahmenriegel=Rafters;"
                     "Kranbahnkonsolen=Crane brackets; Pfetten=Purlins; Längsstäbe=Longitudinal struts;"
                     "Dachverband=Roof bracing; Wandverband=Wall bracing; Hallenboden=Floor slab;"
                     "Kranbahnträger=Crane girders; Fundamentbettung=Footing bedding; Bodenbettung=Floor bedding")
        for x in self.frames:
            self.frame(x)
        self.roof_and_walls()
        self.floor()
        self.crane()
        self.collect("FR3", "Rahmen in Achse 3=Frame in axis 3", lambda x, y, z: x == 12, beams={2, 3, 4})
        self.collect("BAY1", "Erstes Hallenfeld=First bay", lambda x, y, z: x < 6,
                     quads={9}, beams={2, 3, 4, 5, 10})
        self.axes({str(i): x for i, x in enumerate(self.frames, 1)}, {"A": 0, "B": 20})
        self.loads("Eigengewicht=Self-weight; Dachaufbau=Roof build-up; Vorspannung Hallenboden=Prestress floor slab;"
                   "Vorspannung Kranbahn=Prestress crane girders; Schnee=Snow; Wind in X=Wind in X; Wind in Y=Wind in Y;"
                   "Nutzlast Hallenboden=Live load floor; Kran, Katze bei Achse A=Crane, trolley at axis A;"
                   "Kran, Katze bei Achse B=Crane, trolley at axis B; Kran, Bremsen=Crane, braking;"
                   "Kran, Seitenstoß=Crane, lateral thrust", "Kran, Einhüllende=Crane envelope;" + DESIGN)

    def frame(self, x):
        for y, inside in (0, 0.6), (20, 19.4):
            self.footing([x - 1.2, x, x + 1.2], [y - 1.2, y, y + 1.2], -1.2, -0.4)
            self.chain("beams", 2, 1, *((x, y, z) for z in (-0.4, *steps(1, 7, 1))))
            self.chain("beams", 4, 3, (x, y, 5), (x, inside, 5))
        self.chain("beams", 3, 2, *((x, y, z) for y, z in self.rafter))

    def footing(self, xs, ys, bottom, top):
        for y0, y1 in pairwise(ys):
            for x0, x1 in pairwise(xs):
                self.element("bricks", 1, rectangle(x0, x1, y0, y1, bottom) + rectangle(x0, x1, y0, y1, top))
        self.bedding(11, xs, ys, bottom, 20000)
        self.support("x y", *((x, y, bottom) for y in ys for x in xs))       # friction in the base

    def roof_and_walls(self):
        for y, z in self.rafter[1:-1]:
            self.chain("beams", 5, 4, *((x, y, z) for x in steps(0, 30, 3)))
        for y in (0, 20):
            for z in (5, 7):
                self.chain("trusses", 6, 5, *((x, y, z) for x in self.frames))
        for x in (0, 24):       # the end bays are braced
            for low, high in pairwise(self.rafter[i] for i in (0, 2, 5, 8, 10)):
                self.cross(7, x, low, high)
            for low, high in pairwise((y, z) for y in (0, 20) for z in (-0.4, 5, 7)):
                if low[0] == high[0]:
                    self.cross(8, x, low, high)

    def cross(self, group, x, low, high):
        self.chain("cables", group, 6, (x, *low), (x + 6, *high))
        self.chain("cables", group, 6, (x + 6, *low), (x, *high))

    def floor(self):
        xs, ys = steps(0.6, 29.4, 1.2), steps(1, 19, 1.2)
        self.sheet(xs, ys, level(0), lambda x, y: (9, 0.25))
        self.bedding(12, xs, ys, 0, 30000)
        self.support("x y", (0.6, 1, 0))       # allows the slab to shorten under its prestress
        self.support("y", (29.4, 1, 0))
        for y in steps(2.8, 17.2, 2.4):        # the two layers cross at different heights
            self.path("quadTendons", f"Längs, Y {y} m=Along, Y {y} m", (0.6, y, 0.02), (29.4, y, 0.02))
        for x in steps(1.8, 28.2, 2.4):
            self.path("quadTendons", f"Quer, X {x} m=Across, X {x} m", (x, 1, -0.02), (x, 19, -0.02))
        self.outline(rectangle(0.6, 29.4, 1, 19))
        self.path("sectionCuts", "Bodenschnitt quer=Floor section across", (15.6, 1, 0), (15.6, 19, 0))
        self.path("designLines", "Bodenmitte längs=Floor centre line", (0.6, 10, 0), (29.4, 10, 0))
        self.design("9", type=1, hio=0.04, hiu=0.04, aso=5.24, asu=5.24, wko=0.2, wkoq=0.2, wku=0.3, wkuq=0.3)

    def crane(self):
        for y, axis in (0.6, "A"), (19.4, "B"):
            self.chain("beams", 10, 7, *((x, y, 5) for x in steps(0, 30, 1)))
            self.path("beamTendons", f"Spannglied Achse {axis}=Tendon axis {axis}",
                      *((x, y, 5 + drape(x)) for x in steps(0, 30, 0.5)))


def drape(x):
    """Returns the height of a tendon: low at midspan of each 6 m span, high above the brackets, centred at the anchors."""
    from_end = min(x, 30 - x)
    return -0.2 * math.sin(math.pi * from_end / 6) if from_end < 3 else 0.2 * math.cos(math.pi * from_end / 3)


def require(condition, message):
    if not condition:
        raise ValueError(message)


def check_row(key, row, known):
    words = ROWS[key].split()
    words += words[-1:] * (len(row) - len(words) if key == "areas" else 0)
    require(len(row) == len(words), f"{key}: wrong length of {row}")
    for word, value in zip(words, row):
        numbers = known.get(word.rstrip("?"), {value})
        require(value in numbers or (word[-1] == "?" and value == 0), f"{key}: {value} is unknown in {row}")
    corners = [value for word, value in zip(words, row) if word.rstrip("?") in ("nodes", "points") and value]
    require(len(corners) == len(set(corners)), f"{key}: a corner occurs twice in {row}")


def check(data):
    require(set(data) <= set(KEYS), "unknown key")
    numbers = {key: [row["number"] if key in RECORDS else row[0] for row in data.get(key, ())]
               for key in [*ROWS, *RECORDS]}
    known = {key: set(values) for key, values in numbers.items()}
    for key, values in numbers.items():
        require(len(values) == len(known[key]), f"{key}: double numbers")
    for key in ROWS:
        for row in data.get(key, ()):
            check_row(key, row, known)
    for key, extra in RECORDS.items():
        for record in data.get(key, ()):
            require(set(record) == {"number", "title"} | extra, f"{key}: keys of {record}")
            require(record.get("kind", 1) in (1, 2), f"{key}: kind of {record}")
    places = {tuple(row[1:]) for row in data["nodes"]}
    require(len(places) == len(data["nodes"]), "two nodes at the same place")
    require(all(1 <= number <= 999 for number in known["groups"]), "groups: number out of range")
    for node, directions in data.get("supports", ()):
        fixed = directions.split()
        require(fixed and fixed == [word for word in DIRECTIONS if word in fixed], f"supports: node {node}")
    check_secondary_groups(data.get("secondaryGroups", ()), known)
    check_design(data.get("designParameters", ()), data)


def check_design(rows, data):
    groups = [str(group["number"]) for group in data["groups"]] + [group["name"] for group in data["secondaryGroups"]]
    named = [name for row in rows for name in row["groups"]]
    require(len(named) == len(set(named)) and set(named) <= set(groups), "designParameters: double or unknown group")


def check_secondary_groups(groups, known):
    names = [group["name"] for group in groups]
    require(len(names) == len(set(names)), "secondaryGroups: double names")
    for group in groups:
        name, members = group["name"], set(group) - {"name", "title"}
        require(len(name) <= 4 and name.isascii() and name.isalnum(), f"secondaryGroups: name {name}")
        require(members <= {"quads", "beams"}, f"secondaryGroups: keys of {name}")
        for key in members:
            require(group[key] and set(group[key]) <= known[key], f"secondaryGroups: {key} of {name}")


def layout(data):
    """Writes one element of a list per line, so that diffs are readable."""
    line = lambda value: json.dumps(value, ensure_ascii=False)
    block = lambda value: "[\n" + ",\n".join(map(line, value)) + "\n]" if isinstance(value, list) else line(value)
    return "{\n" + ",\n".join(f"{line(key)}: {block(data[key])}" for key in KEYS if key in data) + "\n}\n"


def main():
    TARGET.mkdir(parents=True, exist_ok=True)
    for name, model in ("building", Building()), ("slab", Slab()), ("hall", Hall()):
        check(model.data)
        content = layout(model.data).encode("utf-8")
        require(len(content) < LARGEST_FILE, f"{name}: {len(content)} bytes are too many")
        (TARGET / f"{name}.json").write_bytes(content)
        counts = {key: len(model.data[key]) for key in ROWS if key in model.data}
        print(f"{name}.json: {len(content)} bytes, {counts}")


if __name__ == "__main__":
    main()
