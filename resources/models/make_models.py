#!/usr/bin/env python3
"""Writes the models of the 3D view: make_models.py FOLDER writes NAME.obj and NAME.mtl for each model.

X points forward, Y up, Z to the right; a model reaches about 50 units from the origin. Faces run counter-clockwise seen
from outside. There is one object per material, named like it. Tops are light, undersides dark, noses orange, port
(left) red and starboard (right) green, so that a pose can be read from any side.
"""

import math
import pathlib
import sys

MATERIALS = {
    "skin": "#DCE3EC", "belly": "#475569", "nose": "#F59E0B", "glass": "#1E3A5F", "dark": "#1F2937", "accent": "#2563EB",
    "port": "#EF4444", "starboard": "#22C55E", "glow": "#7DD3FC", "edge": "#B6C0CE",
    "face_front": "#F9C877", "face_back": "#C7CFDA", "face_left": "#F4B4B4", "face_right": "#B4E3C4",
    "face_up": "#F8FAFC", "face_down": "#8492A6",
}


def sub(a, b):
    return [p - q for p, q in zip(a, b)]


def cross(a, b):
    return [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]]


def unit(v):
    length = math.sqrt(sum(c * c for c in v)) or 1
    return [c / length for c in v]


class Model:
    """Faces by material, each a list of (position, normal)."""

    def __init__(self, name):
        self.name = name
        self.faces = {}

    def face(self, material, points, normals=None):
        if normals is None:
            normals = [unit(cross(sub(points[1], points[0]), sub(points[2], points[0])))] * len(points)
        self.faces.setdefault(material, []).append(list(zip(points, normals)))

    def fin(self, root, tip, thickness, material, under=None):
        """Wing, stabiliser or fin. root and tip: ((x front, y, z), (x back, y, z)); it is sharp at both edges."""
        span = unit(sub(tip[0], root[0]))
        across = unit(cross([1, 0, 0], span))
        if across[1] < -1e-9:  # a wing's upper side is above
            across = [-c for c in across]

        def outline(chord, half):
            front, back = chord
            middle = [f * 0.45 + b * 0.55 for f, b in zip(front, back)]
            return (front, [m + c * half for m, c in zip(middle, across)], back,
                    [m - c * half for m, c in zip(middle, across)])

        a, b = outline(root, thickness / 2), outline(tip, thickness / 5)
        flip = sum(p * q for p, q in zip(cross([1, 0, 0], span), across)) < 0

        def add(paint, points):
            self.face(paint, points[::-1] if flip else points)

        lower = under or material
        for i, j, paint in ((0, 1, material), (1, 2, material), (2, 3, lower), (3, 0, lower)):
            add(paint, [a[j], a[i], b[i], b[j]])
        add(material, list(b))
        add(material, [a[0], a[3], a[2], a[1]])

    def loft(self, sections, material, under=None, centre=(0, 0), steps=28):
        """Round body along X: sections (x, half height, half width, y), front first. `under` paints its lower half."""
        cy, cz = centre
        rings = []
        for x, height, width, y in sections:
            angles = [2 * math.pi * k / steps for k in range(steps)]
            rings.append([[x, cy + y + height * math.sin(a), cz + width * math.cos(a)] for a in angles])
        normals = []
        for i, ring in enumerate(rings):
            ahead, behind = rings[max(i - 1, 0)], rings[min(i + 1, len(rings) - 1)]
            row = []
            for k in range(steps):
                around = sub(ring[(k + 1) % steps], ring[k - 1])
                if not any(around):  # a point: its neighbours tell
                    near = behind if i == 0 else ahead
                    around = sub(near[(k + 1) % steps], near[k - 1])
                row.append(unit(cross(around, sub(behind[k], ahead[k]))))
            normals.append(row)
        for i in range(len(rings) - 1):
            for k in range(steps):
                j = (k + 1) % steps
                lower = under and k >= steps // 2
                paint = under if lower else material
                corners = [(i, k), (i, j), (i + 1, j), (i + 1, k)]
                kept = [c for n, c in enumerate(corners)
                        if rings[c[0]][c[1]] != rings[corners[n - 1][0]][corners[n - 1][1]]]
                self.face(paint, [rings[r][c] for r, c in kept], [normals[r][c] for r, c in kept])
        for ring, forward in ((rings[0], True), (rings[-1], False)):
            if ring[0] != ring[1]:
                self.face(material, ring[::-1] if forward else ring)

    def write(self, folder):
        lines = [f"# {self.name}: written by make_models.py", f"mtllib {self.name}.mtl"]
        points, directions = {}, {}
        body = []
        for material, faces in self.faces.items():
            body += [f"o {material}", f"usemtl {material}"]
            for face in faces:
                words = []
                for position, normal in face:
                    p = points.setdefault(tuple(f"{c + 0.0:.3f}" for c in position), len(points) + 1)
                    n = directions.setdefault(tuple(f"{c + 0.0:.3f}" for c in normal), len(directions) + 1)
                    words.append(f"{p}//{n}")
                body.append("f " + " ".join(words))
        lines += ["v " + " ".join(p) for p in points] + ["vn " + " ".join(n) for n in directions] + body
        paints = []
        for material in self.faces:
            red, green, blue = (int(MATERIALS[material][i:i + 2], 16) / 255 for i in (1, 3, 5))
            paints += [f"newmtl {material}", f"Kd {red:.3f} {green:.3f} {blue:.3f}", "illum 1"]
        (folder / f"{self.name}.obj").write_text("\n".join(lines) + "\n", encoding="ascii")
        (folder / f"{self.name}.mtl").write_text("\n".join(paints) + "\n", encoding="ascii")


def both_sides(make):
    for side, light in ((1, "starboard"), (-1, "port")):
        make(side, light)


def jet():
    m = Model("jet")
    m.loft([(52, 0, 0, -1), (48, 1.1, 1.2, -0.9), (42, 2.5, 2.7, -0.6), (36, 3.6, 3.9, -0.3)], "nose")
    m.loft([(36, 3.6, 3.9, -0.3), (26, 4.8, 5, 0), (12, 5.6, 6.2, 0), (-8, 5.6, 7.4, 0), (-28, 4.8, 7, 0),
                        (-42, 3.8, 5.2, 0)], "skin", "belly")
    m.loft([(-42, 3.6, 4.8, 0), (-48, 3, 4, 0)], "dark")
    m.loft([(-48, 2.2, 3.1, 0), (-48.6, 2.2, 3.1, 0)], "glow")
    m.loft([(31, 0, 0, 3), (27, 2.2, 1.8, 3.4), (21, 3.6, 2.7, 4), (14, 3.2, 2.6, 4.4), (6, 1.2, 1.6, 5),
                      (2, 0, 0, 5.2)], "glass")

    def side(s, light):
        m.fin(((16, -0.6, s * 5), (-34, -0.6, s * 5)), ((-20, -1.4, s * 33), (-33, -1.4, s * 33)), 3,
              "skin", "belly")
        m.fin(((-17, -1.4, s * 33), (-36, -1.4, s * 33)), ((-21, -1.4, s * 37), (-36, -1.4, s * 37)), 2.4,
              light)
        m.fin(((-32, 0.4, s * 5), (-48, 0.4, s * 5)), ((-44, 0.4, s * 19), (-52, 0.4, s * 19)),
              1.8, "skin", "belly")
        m.fin(((-24, 4, s * 4.4), (-44, 4, s * 4.4)), ((-40, 18, s * 8), (-49, 18, s * 8)), 1.8, "accent")
        m.loft([(19, 2.6, 2.2, 0), (8, 3, 2.4, 0), (-14, 2.4, 1.6, 0)], "belly",
               centre=(-1.6, s * 6.2))

    both_sides(side)
    return m


def plane():
    m = Model("plane")
    m.loft([(50, 0, 0, -1.2), (49, 1.2, 1.2, -1.1), (46, 2.8, 2.8, -0.8), (43, 3.8, 3.8, -0.5)], "nose")
    m.loft([(43, 3.8, 3.8, -0.5), (38, 4.8, 4.8, -0.1), (32, 5.2, 5.2, 0), (-20, 5.2, 5.2, 0),
                        (-34, 4, 4, 1.2), (-46, 1.8, 1.8, 2.8), (-50, 0.8, 0.8, 3.4)], "skin", "belly")
    m.loft([(45.2, 0, 0, 1.6), (43, 1.2, 2.6, 2.2), (40.5, 1.6, 3.2, 3), (38, 0.4, 2.4, 4.4)], "glass")
    m.fin(((-30, 5, 0), (-47, 4.4, 0)), ((-44, 22, 0), (-51, 22, 0)), 1.8, "accent")

    def side(s, light):
        m.fin(((14, -2.4, s * 4), (-9, -2.4, s * 4)), ((-13, 2.2, s * 46), (-20, 2.2, s * 46)), 2.8,
              "skin", "belly")
        m.fin(((-12.6, 2.2, s * 45.5), (-20, 2.2, s * 45.5)), ((-17, 5.4, s * 49), (-21, 5.4, s * 49)), 1.4,
              light)
        m.fin(((-36, 2.6, s * 2), (-47, 2.6, s * 2)), ((-46, 3.8, s * 18), (-51, 3.8, s * 18)), 1.6,
              "skin", "belly")
        m.loft([(14, 2.9, 2.9, 0), (11, 3.3, 3.3, 0), (3, 3, 3, 0), (-2, 1.8, 1.8, 0)], "accent",
               centre=(-5.6, s * 17))
        m.loft([(14.2, 2.3, 2.3, 0), (14, 2.3, 2.3, 0)], "dark", centre=(-5.6, s * 17))

    both_sides(side)
    return m


def spaceship():
    m = Model("spaceship")
    m.loft([(48, 0, 0, 0), (45, 1.4, 3.4, 0), (38, 2.8, 6.6, 0)], "nose")
    m.loft([(38, 2.8, 6.6, 0), (24, 5, 10.5, 0.4), (4, 6.6, 13, 0.6), (-20, 6.6, 13.6, 0.4),
                    (-38, 5, 11.6, 0)], "skin", "belly")
    m.loft([(24, 0, 0, 4.4), (19, 2.6, 3.2, 5), (10, 4, 4.6, 6), (0, 3.2, 4, 6.6), (-6, 0, 0, 6.6)], "glass")
    m.loft([(-38, 4.2, 9.6, 0), (-43, 3.2, 8, 0)], "dark")
    m.loft([(-43, 2.2, 6.4, 0), (-43.8, 2.2, 6.4, 0)], "glow")
    m.fin(((-14, 6, 0), (-38, 5, 0)), ((-34, 19, 0), (-44, 19, 0)), 2.4, "accent")

    def side(s, light):
        m.fin(((6, 0, s * 10), (-24, 0, s * 10)), ((-8, -3.4, s * 31), (-24, -3.4, s * 31)), 3, "skin",
              "belly")
        m.loft([(14, 0, 0, 0), (11, 1.8, 1.8, 0), (4, 3.2, 3.2, 0), (-28, 3.6, 3.6, 0),
                                    (-40, 2.6, 2.6, 0)], "skin", "belly", centre=(-3.4, s * 33))
        m.loft([(-2, 3.6, 3.6, 0), (-3, 3.9, 3.9, 0), (-9, 4, 4, 0), (-10, 3.7, 3.7, 0)], light,
               centre=(-3.4, s * 33))
        m.loft([(-40, 2, 2, 0), (-40.8, 2, 2, 0)], "glow", centre=(-3.4, s * 33))

    both_sides(side)
    return m


# Strokes of the face letters in a field of 4 x 6 units, (x0, y0, x1, y1) from the lower left.
LETTERS = {
    "F": [(0, 0, 1, 6), (1, 5, 4, 6), (1, 2.7, 3.2, 3.7)],
    "B": [(0, 0, 1, 6), (1, 5, 3.4, 6), (1, 2.6, 3.4, 3.5), (1, 0, 3.4, 1), (3, 3.3, 4, 5.4), (3, 0.5, 4, 2.8)],
    "L": [(0, 0, 1, 6), (1, 0, 4, 1)],
    "R": [(0, 0, 1, 6), (1, 5, 3.4, 6), (1, 2.6, 3.4, 3.5), (3, 3.3, 4, 5.4), (2.9, 0, 4, 2.6)],
    "U": [(0, 0.6, 1, 6), (3, 0.6, 4, 6), (0.6, 0, 3.4, 1)],
    "D": [(0, 0, 1, 6), (1, 5, 3.3, 6), (1, 0, 3.3, 1), (3, 0.6, 4, 5.4)],
}


def cube():
    m = Model("cube")
    half, bevel = 30, 3
    flat = half - bevel
    # Face: part, paint, letter, outward, letter's right, letter's up.
    sides = (("front", "F", [1, 0, 0], [0, 0, -1], [0, 1, 0]), ("back", "B", [-1, 0, 0], [0, 0, 1], [0, 1, 0]),
             ("left", "L", [0, 0, -1], [-1, 0, 0], [0, 1, 0]), ("right", "R", [0, 0, 1], [1, 0, 0], [0, 1, 0]),
             ("up", "U", [0, 1, 0], [0, 0, 1], [1, 0, 0]), ("down", "D", [0, -1, 0], [0, 0, 1], [-1, 0, 0]))

    def at(out, right, up, depth, x, y):
        return [o * depth + r * x + u * y for o, r, u in zip(out, right, up)]

    for part, letter, out, right, up in sides:
        corners = [(-flat, -flat), (flat, -flat), (flat, flat), (-flat, flat)]
        m.face(f"face_{part}", [at(out, right, up, half, x, y) for x, y in corners])
        for x0, y0, x1, y1 in LETTERS[letter]:
            scale, height = 5.6, 0.3
            low, high = ((x0 - 2) * scale, (y0 - 3) * scale), ((x1 - 2) * scale, (y1 - 3) * scale)
            ring = [low, (high[0], low[1]), high, (low[0], high[1])]
            m.face("dark", [at(out, right, up, half + height, x, y) for x, y in ring])
    directions = [s[2] for s in sides]
    for i, a in enumerate(directions):
        for b in directions[i + 1:]:
            if not any(cross(a, b)):
                continue
            c = cross(a, b)
            ring = [[half * p + flat * q + s * flat * r for p, q, r in zip(a, b, c)] for s in (1, -1)]
            ring += [[flat * p + half * q + s * flat * r for p, q, r in zip(a, b, c)] for s in (-1, 1)]
            m.face("edge", ring if outward(ring) else ring[::-1])
    for sx in (1, -1):
        for sy in (1, -1):
            for sz in (1, -1):
                ring = [[sx * half, sy * flat, sz * flat], [sx * flat, sy * half, sz * flat],
                        [sx * flat, sy * flat, sz * half]]
                m.face("edge", ring if outward(ring) else ring[::-1])
    return m


def outward(ring):
    normal = cross(sub(ring[1], ring[0]), sub(ring[2], ring[0]))
    return sum(n * c for n, c in zip(normal, ring[0])) > 0


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for model in (jet(), cube(), plane(), spaceship()):
        model.write(folder)


if __name__ == "__main__":
    main()
