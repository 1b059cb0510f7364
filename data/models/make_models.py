#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the models in this folder. Needs nothing but Python 3:  ./make_models.py

lighthouse.glb   the model of the pictures in the documentation: named parts, glass, a texture inside the file
crate.gltf       a box with its geometry (crate.bin) and its texture (crate.png) beside it
crate.obj        the same box with crate.mtl
knot.stl         triangles and nothing else
rainbow.ply      a ball with a colour at each corner
"""
import json
import math
import os
import random
import struct
import zlib

FOLDER = os.path.dirname(os.path.abspath(__file__))


def write(name, data):
    with open(os.path.join(FOLDER, name), "wb") as out:
        out.write(data if isinstance(data, bytes) else data.encode("ascii"))


# --- pictures ---------------------------------------------------------------------------------------------------

def png(width, height, pixel):
    """RGB; pixel(x, y) gives three numbers 0 to 255, y from the top."""
    rows = b"".join(b"\0" + bytes(c for x in range(width) for c in pixel(x, y)) for y in range(height))

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    head = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")


def stripes(x, y):
    """Bands of weathered red and white paint, with a row of windows."""
    rng = random.Random(x // 2 * 977 + y // 3)
    worn = rng.randint(-7, 7)
    red = (y // 26) % 2 == 0
    r, g, b = (196, 52, 44) if red else (240, 236, 226)
    for wx, wy in ((30, 58), (94, 110), (30, 162), (94, 214)):
        if abs(x - wx) < 5 and abs(y - wy) < 8:
            r, g, b = (66, 84, 104) if abs(x - wx) < 4 and abs(y - wy) < 7 else (120, 110, 100)
    return tuple(max(0, min(255, c + worn)) for c in (r, g, b))


def planks(x, y):
    rng = random.Random(y // 16 * 31 + x // 5)
    shade = rng.randint(-10, 10) + (-55 if y % 16 == 0 else 0) + (-30 if x in (0, 1, 62, 63) else 0)
    return tuple(max(0, min(255, c + shade)) for c in (176, 128, 76))


# --- shapes: (points, normals, texture coordinates, triangles) --------------------------------------------------

def unit(v):
    length = math.sqrt(sum(c * c for c in v)) or 1.0
    return tuple(c / length for c in v)


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def sub(a, b):
    return tuple(x - y for x, y in zip(a, b))


def lathe(profile, sides=40, turns=1.0):
    """Turns (radius, height) pairs around the y axis. A corner given twice is sharp."""
    points, normals, coords, triangles = [], [], [], []
    low, high = profile[0][1], profile[-1][1]
    for i, (radius, height) in enumerate(profile):
        before = profile[i - 1] if i > 0 and profile[i - 1] != profile[i] else None
        after = profile[i + 1] if i + 1 < len(profile) and profile[i + 1] != profile[i] else None
        a, b = before or (radius, height), after or (radius, height)
        slope = unit((b[1] - a[1], a[0] - b[0], 0))
        for s in range(sides + 1):
            angle = 2 * math.pi * s / sides
            c, n = math.cos(angle), math.sin(angle)
            points.append((radius * c, height, -radius * n))
            normals.append(unit((slope[0] * c, slope[1], -slope[0] * n)))
            coords.append((turns * s / sides, (height - low) / ((high - low) or 1)))
    for i in range(len(profile) - 1):
        if profile[i] == profile[i + 1]:
            continue
        for s in range(sides):
            a, b = i * (sides + 1) + s, (i + 1) * (sides + 1) + s
            triangles += [(a, a + 1, b + 1), (a, b + 1, b)]
    return points, normals, coords, triangles


def ball(radius=1.0, rings=24, sides=40, squash=1.0, bump=None):
    profile = [(radius * math.sin(math.pi * (1 - r / rings)), radius * math.cos(math.pi * (1 - r / rings)) * squash)
               for r in range(rings + 1)]
    points, normals, coords, triangles = lathe(profile, sides)
    if bump:
        points = [tuple(c * bump(p) for c in p) for p in points]
        normals = smooth(points, triangles, sides, rings)
    return points, normals, coords, triangles


def smooth(points, triangles, sides, rings):
    sums = [[0.0, 0.0, 0.0] for _ in points]
    for t in triangles:
        n = cross(sub(points[t[1]], points[t[0]]), sub(points[t[2]], points[t[0]]))
        for corner in t:
            for k in range(3):
                sums[corner][k] += n[k]
    for r in range(rings + 1):  # the first and the last corner of a ring are the same place
        first, last = r * (sides + 1), r * (sides + 1) + sides
        for k in range(3):
            sums[first][k] += sums[last][k]
            sums[last][k] = sums[first][k]
    return [unit(s) for s in sums]


def flat(faces):
    """Each face a list of corners, anticlockwise from outside."""
    points, normals, coords, triangles = [], [], [], []
    for face in faces:
        start = len(points)
        normal = unit(cross(sub(face[1], face[0]), sub(face[2], face[0])))
        points += face
        normals += [normal] * len(face)
        coords += [(0, 0), (1, 0), (1, 1), (0, 1)][:len(face)]
        triangles += [(start, start + i, start + i + 1) for i in range(1, len(face) - 1)]
    return points, normals, coords, triangles


def box(x, y, z):
    x, y, z = x / 2, y / 2, z / 2
    return flat([
        [(-x, -y, z), (x, -y, z), (x, y, z), (-x, y, z)], [(x, -y, -z), (-x, -y, -z), (-x, y, -z), (x, y, -z)],
        [(x, -y, z), (x, -y, -z), (x, y, -z), (x, y, z)], [(-x, -y, -z), (-x, -y, z), (-x, y, z), (-x, y, -z)],
        [(-x, y, z), (x, y, z), (x, y, -z), (-x, y, -z)], [(-x, -y, -z), (x, -y, -z), (x, -y, z), (-x, -y, z)]])


def gable(x, y, z):
    """A roof with its ridge along x."""
    x, z = x / 2, z / 2
    return flat([[(-x, 0, z), (x, 0, z), (x, y, 0), (-x, y, 0)], [(x, 0, -z), (-x, 0, -z), (-x, y, 0), (x, y, 0)],
                 [(x, 0, z), (x, 0, -z), (x, y, 0)], [(-x, 0, -z), (-x, 0, z), (-x, y, 0)],
                 [(-x, 0, -z), (x, 0, -z), (x, 0, z), (-x, 0, z)]])


def hull():
    """A small boat, bow towards +x."""
    sections = [(-1.0, 0.36, 0.30), (-0.4, 0.46, 0.38), (0.3, 0.42, 0.38), (0.8, 0.22, 0.34), (1.15, 0.02, 0.2)]
    rim = [(x, 0.25, w) for x, w, _ in sections]
    keel = [(x, 0.25 - d, 0.0) for x, _, d in sections]

    def mirrored(p):
        return (p[0], p[1], -p[2])

    faces = []
    for i in range(len(sections) - 1):
        faces.append([keel[i], keel[i + 1], rim[i + 1], rim[i]])
        faces.append([mirrored(rim[i]), mirrored(rim[i + 1]), keel[i + 1], keel[i]])
        deck = [(p[0], 0.18, p[2] * 0.96) for p in (rim[i], rim[i + 1])]
        faces.append([deck[0], deck[1], mirrored(deck[1]), mirrored(deck[0])])
    faces.append([keel[0], rim[0], mirrored(rim[0])])
    return flat(faces)


def sail():
    a, b, c = (0.05, 0.45, 0), (0.05, 2.0, 0), (-0.95, 0.5, 0.12)
    return flat([[a, b, c], [a, c, b]])


# --- glTF ---------------------------------------------------------------------------------------------------------

class Gltf:
    def __init__(self):
        self.doc = {"asset": {"version": "2.0", "generator": "make_models.py"}, "scene": 0, "scenes": [{"nodes": []}],
                    "nodes": [], "meshes": [], "materials": [], "accessors": [], "bufferViews": [], "buffers": [{}]}
        self.data = b""

    def view(self, body, target=None):
        self.data += b"\0" * (-len(self.data) % 4)
        view = {"buffer": 0, "byteOffset": len(self.data), "byteLength": len(body)}
        if target:
            view["target"] = target
        self.data += body
        self.doc["bufferViews"].append(view)
        return len(self.doc["bufferViews"]) - 1

    def accessor(self, rows, form, kind, component, target, bounds=False):
        flat_rows = [c for row in rows for c in row]
        entry = {"bufferView": self.view(struct.pack("<%d%s" % (len(flat_rows), form), *flat_rows), target),
                 "componentType": component, "count": len(rows) * (3 if kind == "SCALAR" else 1), "type": kind}
        if bounds:
            columns = list(zip(*[struct.unpack("<3f", struct.pack("<3f", *row)) for row in rows]))
            entry["min"], entry["max"] = [min(c) for c in columns], [max(c) for c in columns]
        self.doc["accessors"].append(entry)
        return len(self.doc["accessors"]) - 1

    def material(self, name, color, alpha=1.0, metallic=0.0, rough=0.8, emissive=None, texture=None):
        pbr = {"baseColorFactor": list(color) + [alpha], "metallicFactor": metallic, "roughnessFactor": rough}
        if texture is not None:
            pbr["baseColorTexture"] = {"index": texture}
        entry = {"name": name, "pbrMetallicRoughness": pbr}
        if alpha < 1:
            entry["alphaMode"] = "BLEND"
        if emissive:
            entry["emissiveFactor"] = list(emissive)
        self.doc["materials"].append(entry)
        return len(self.doc["materials"]) - 1

    def texture(self, name, source):
        self.doc.setdefault("images", []).append(dict(source, name=name))
        self.doc.setdefault("samplers", [{"magFilter": 9729, "minFilter": 9987, "wrapS": 10497, "wrapT": 10497}])
        self.doc.setdefault("textures", []).append({"source": len(self.doc["images"]) - 1, "sampler": 0})
        return len(self.doc["textures"]) - 1

    def mesh(self, name, shape, material):
        points, normals, coords, triangles = shape
        attributes = {"POSITION": self.accessor(points, "f", "VEC3", 5126, 34962, True),
                      "NORMAL": self.accessor(normals, "f", "VEC3", 5126, 34962),
                      "TEXCOORD_0": self.accessor([(u, 1 - v) for u, v in coords], "f", "VEC2", 5126, 34962)}
        self.doc["meshes"].append({"name": name, "primitives": [
            {"attributes": attributes, "indices": self.accessor(triangles, "H", "SCALAR", 5123, 34963),
             "material": material}]})
        return len(self.doc["meshes"]) - 1

    def node(self, name, parent=None, mesh=None, move=None, turn=None, scale=None):
        entry = {"name": name}
        if mesh is not None:
            entry["mesh"] = mesh
        if move:
            entry["translation"] = list(move)
        if turn:  # radians around y
            entry["rotation"] = [0, math.sin(turn / 2), 0, math.cos(turn / 2)]
        if scale:
            entry["scale"] = list(scale)
        self.doc["nodes"].append(entry)
        place = len(self.doc["nodes"]) - 1
        if parent is None:
            self.doc["scenes"][0]["nodes"].append(place)
        else:
            self.doc["nodes"][parent].setdefault("children", []).append(place)
        return place

    def sun(self, name, parent, color, intensity, pitch, yaw):
        """Shines along -z, turned down by `pitch` and then around y by `yaw`."""
        lights = self.doc.setdefault("extensions", {"KHR_lights_punctual": {"lights": []}})["KHR_lights_punctual"]["lights"]
        self.doc["extensionsUsed"] = ["KHR_lights_punctual"]
        lights.append({"name": name, "type": "directional", "color": list(color), "intensity": intensity})
        node = self.doc["nodes"][self.node(name, parent)]
        sp, cp, sy, cy = math.sin(pitch / 2), math.cos(pitch / 2), math.sin(yaw / 2), math.cos(yaw / 2)
        node["rotation"] = [cy * sp, sy * cp, -sy * sp, cy * cp]
        node["extensions"] = {"KHR_lights_punctual": {"light": len(lights) - 1}}

    def glb(self):
        self.doc["buffers"][0]["byteLength"] = len(self.data)
        text = json.dumps(self.doc, separators=(",", ":")).encode()
        text += b" " * (-len(text) % 4)
        data = self.data + b"\0" * (-len(self.data) % 4)
        size = 12 + 8 + len(text) + 8 + len(data)
        return (struct.pack("<4sII", b"glTF", 2, size) + struct.pack("<I4s", len(text), b"JSON") + text
                + struct.pack("<I4s", len(data), b"BIN\0") + data)

    def separate(self, binary):
        self.doc["buffers"][0] = {"uri": binary, "byteLength": len(self.data)}
        write(binary, self.data)
        return json.dumps(self.doc, indent=1) + "\n"


def lighthouse():
    g = Gltf()
    picture = g.view(png(128, 256, stripes))
    paint_texture = g.texture("stripes", {"bufferView": picture, "mimeType": "image/png"})

    stone = g.material("Stone", (0.42, 0.39, 0.36), rough=0.95)
    grass = g.material("Grass", (0.34, 0.52, 0.22), rough=0.95)
    water = g.material("Water", (0.10, 0.38, 0.55), alpha=0.62, rough=0.15)
    paint = g.material("Paint", (1, 1, 1), rough=0.55, texture=paint_texture)
    iron = g.material("Iron", (0.20, 0.22, 0.25), metallic=0.4, rough=0.45)
    glass = g.material("Glass", (0.75, 0.90, 1.0), alpha=0.28, rough=0.05)
    lamp = g.material("LampLight", (1.0, 0.86, 0.45), rough=0.3, emissive=(0.95, 0.72, 0.25))
    roof = g.material("RoofRed", (0.72, 0.16, 0.12), rough=0.4)
    wood = g.material("Wood", (0.45, 0.28, 0.15), rough=0.8)
    plaster = g.material("Plaster", (0.90, 0.87, 0.80), rough=0.9)
    canvas = g.material("Canvas", (0.97, 0.95, 0.88), rough=0.9)
    hull_paint = g.material("HullBlue", (0.13, 0.29, 0.55), rough=0.35)

    rng = random.Random(7)
    waves = [(rng.uniform(1, 4), rng.uniform(0, 6), rng.uniform(-3, 3), rng.uniform(-3, 3)) for _ in range(6)]

    def rough(p):
        d = unit((p[0], p[1] * 2, p[2]))
        return 1 + 0.035 * sum(math.sin(f * (d[0] + a * d[2] * 0.6 + b * d[1]) * 2 + o) for f, o, a, b in waves)

    root = g.node("Harbour")
    g.sun("Sun", root, (1.0, 0.96, 0.88), 0.95, -0.85, -0.35)
    g.sun("Sky", root, (0.75, 0.85, 1.0), 0.35, -0.5, 2.2)
    g.node("Sea", root, g.mesh("SeaSurface", lathe([(6.6, -0.25), (6.6, 0.0), (6.6, 0.0), (0.0, 0.0)], 72), water))
    g.node("Seabed", root, g.mesh("SeabedSurface", lathe([(6.6, -0.9), (6.6, -0.7), (6.6, -0.7), (0.0, -0.7)], 72),
                                  g.material("Sand", (0.78, 0.70, 0.50), rough=1.0)))
    island = g.node("Island", root, move=(-0.8, 0, -0.6))
    g.node("Rock", island, g.mesh("RockShape", ball(3.6, 28, 56, 0.42, rough), stone), move=(0, -0.35, 0))
    g.node("Meadow", island, g.mesh("MeadowShape", ball(2.7, 20, 56, 0.20, rough), grass), move=(0, 0.72, 0))

    tower = g.node("Lighthouse", island, move=(-0.3, 1.1, -0.4))
    g.node("Foundation", tower, g.mesh("FoundationRing", lathe(
        [(1.25, -0.3), (1.25, 0.18), (1.25, 0.18), (1.0, 0.18)], 48), stone))
    g.node("Tower", tower, g.mesh("TowerWall", lathe([(1.0, 0.1), (0.82, 2.0), (0.72, 3.6), (0.68, 5.0)], 56, 2), paint))
    g.node("Door", tower, g.mesh("DoorPanel", box(0.5, 0.9, 0.14), wood), move=(0.38, 0.62, 0.86), turn=0.42)
    gallery = g.node("Gallery", tower, move=(0, 5.0, 0))
    g.node("Walkway", gallery, g.mesh("WalkwayRing", lathe(
        [(0.66, -0.12), (1.12, 0.0), (1.12, 0.0), (1.12, 0.09), (1.12, 0.09), (0.0, 0.09)], 48), iron))
    rail = [(1.06, 0.0), (1.09, 0.03), (1.06, 0.06), (1.03, 0.03), (1.06, 0.0)]
    g.node("Handrail", gallery, g.mesh("HandrailRing", lathe(rail, 48), iron), move=(0, 0.47, 0))
    post = g.mesh("Post", box(0.045, 0.42, 0.045), iron)
    posts = g.node("Posts", gallery)
    for i in range(12):
        angle = 2 * math.pi * i / 12
        g.node("Post%d" % (i + 1), posts, post, move=(1.06 * math.cos(angle), 0.29, 1.06 * math.sin(angle)), turn=-angle)
    lantern = g.node("Lantern", tower, move=(0, 5.09, 0))
    g.node("Lamp", lantern, g.mesh("LampBall", ball(0.26, 20, 32), lamp), move=(0, 0.52, 0))
    g.node("LampFoot", lantern, g.mesh("LampFootShape", lathe([(0.2, 0.0), (0.12, 0.3)], 32), iron))
    g.node("Panes", lantern, g.mesh("PaneRing", lathe([(0.55, 0.0), (0.55, 1.0)], 48), glass))
    g.node("Roof", lantern, g.mesh("RoofCone", lathe([(0.0, 0.98), (0.7, 0.98), (0.7, 0.98), (0.42, 1.3), (0.0, 1.62)], 48),
                                   roof))
    g.node("Finial", lantern, g.mesh("FinialBall", ball(0.08, 12, 20), iron), move=(0, 1.66, 0))

    house = g.node("House", island, move=(1.35, 1.18, 0.45), turn=-0.5)
    g.node("Walls", house, g.mesh("WallsBox", box(1.3, 0.8, 0.9), plaster), move=(0, 0.3, 0))
    g.node("HouseRoof", house, g.mesh("HouseRoofShape", gable(1.5, 0.5, 1.14), roof), move=(0, 0.69, 0))
    g.node("Chimney", house, g.mesh("ChimneyBox", box(0.18, 0.5, 0.18), stone), move=(0.35, 1.05, -0.15))
    g.node("HouseDoor", house, g.mesh("HouseDoorPanel", box(0.26, 0.5, 0.06), wood), move=(0.25, 0.15, 0.45))
    g.node("Window", house, g.mesh("WindowPane", box(0.3, 0.26, 0.04), glass), move=(-0.3, 0.35, 0.46))

    boat = g.node("Boat", root, move=(3.3, 0.02, 2.9), turn=-0.75)
    g.node("Hull", boat, g.mesh("HullShape", hull(), hull_paint))
    g.node("Mast", boat, g.mesh("MastPole", lathe([(0.04, 0.0), (0.03, 2.1)], 16), wood), move=(0.1, 0.1, 0))
    g.node("Sail", boat, g.mesh("SailCloth", sail(), canvas))
    write("lighthouse.glb", g.glb())


def crate():
    write("crate.png", png(64, 64, planks))
    g = Gltf()
    texture = g.texture("crate", {"uri": "crate.png"})
    wood = g.material("Planks", (1, 1, 1), rough=0.8, texture=texture)
    shape = box(2, 2, 2)
    g.node("Crate", None, g.mesh("CrateBox", shape, wood), move=(0, 1, 0))
    write("crate.gltf", g.separate("crate.bin"))

    points, normals, coords, triangles = shape
    lines = ["# A wooden crate.", "mtllib crate.mtl", "o Crate"]
    lines += ["v %g %g %g" % p for p in points]
    lines += ["vt %g %g" % c for c in coords]
    lines += ["vn %g %g %g" % n for n in normals]
    lines.append("usemtl Planks")
    lines += ["f " + " ".join("%d/%d/%d" % (i + 1, i + 1, i + 1) for i in t) for t in triangles]
    write("crate.obj", "\n".join(lines) + "\n")
    write("crate.mtl", "newmtl Planks\nKa 0.3 0.3 0.3\nKd 1 1 1\nKs 0.1 0.1 0.1\nNs 16\nd 1\nmap_Kd crate.png\n")


def knot():
    """A trefoil of a round tube."""
    steps, sides, tube = 120, 12, 0.45

    def centre(i):
        t = 2 * math.pi * i / steps
        return (math.sin(t) + 2 * math.sin(2 * t), math.cos(t) - 2 * math.cos(2 * t), -math.sin(3 * t))

    rings = []
    for i in range(steps):
        along = unit(sub(centre(i + 1), centre(i - 1)))
        side = unit(cross(along, unit(centre(i))))
        up = cross(side, along)
        rings.append([tuple(c + tube * (math.cos(a) * s + math.sin(a) * u) for c, s, u in zip(centre(i), side, up))
                      for a in (2 * math.pi * k / sides for k in range(sides))])
    body = b""
    count = 0
    for i in range(steps):
        a, b = rings[i], rings[(i + 1) % steps]
        for k in range(sides):
            n = (k + 1) % sides
            for t in ((a[k], a[n], b[n]), (a[k], b[n], b[k])):
                normal = unit(cross(sub(t[1], t[0]), sub(t[2], t[0])))
                body += struct.pack("<12fH", *normal, *t[0], *t[1], *t[2], 0)
                count += 1
    write("knot.stl", b"Made by make_models.py".ljust(80) + struct.pack("<I", count) + body)


def rainbow():
    points, normals, _, triangles = ball(1.0, 16, 24)
    lines = ["ply", "format ascii 1.0", "element vertex %d" % len(points)]
    lines += ["property float " + c for c in ("x", "y", "z", "nx", "ny", "nz")]
    lines += ["property uchar " + c for c in ("red", "green", "blue")]
    lines += ["element face %d" % len(triangles), "property list uchar int vertex_indices", "end_header"]
    for p, n in zip(points, normals):
        color = tuple(int(127.5 * (c + 1)) for c in p)
        lines.append("%g %g %g %g %g %g %d %d %d" % (p + n + color))
    lines += ["3 %d %d %d" % t for t in triangles]
    write("rainbow.ply", "\n".join(lines) + "\n")


if __name__ == "__main__":
    lighthouse()
    crate()
    knot()
    rainbow()
