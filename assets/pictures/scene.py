"""Drawing kit for Tanhua's pictures: SVG pieces of a Finnish countryside and the emoji icons placed on them.

Every function returns SVG markup as text. A picture is a Canvas: pieces are added in painting order and the
canvas renders to a Pillow image through cairosvg. Random shapes come from random.Random(seed), so the same
sources always give the same pictures.

Pictures are drawn in units, the size at which the game lays them out (a backdrop is 1024 x 768 units), and
rendered at SCALE pixels a unit: the game shows them at that device pixel ratio, so they stay sharp on a window
scaled up. Every line width, font size and noise scale is given in units and so grows with the pixels.
"""
import math
import os
import random
import re

import numpy as np
from cairosvg.parser import Tree
from cairosvg.surface import PNGSurface
from PIL import Image

HERE = os.path.dirname(os.path.abspath(__file__))
ICON_DIR = os.path.join(HERE, "icons")

# Pixels a unit of every picture of the program folder.
SCALE = 2

_icon_cache = {}
_uid = [0]


def px(units):
    """A length in units as whole pixels."""
    return int(round(units * SCALE))


def uid(stem="g"):
    _uid[0] += 1
    return f"{stem}{_uid[0]}"


def _load_icon(name):
    if name not in _icon_cache:
        with open(os.path.join(ICON_DIR, name + ".svg"), encoding="utf-8") as f:
            text = f.read()
        m = re.search(r'viewBox="([^"]+)"', text)
        body = re.sub(r"^.*?<svg[^>]*>", "", text, count=1, flags=re.S)
        body = body[: body.rfind("</svg>")]
        _icon_cache[name] = (m.group(1), body)
    return _icon_cache[name]


def hexmap(body, fn):
    """Apply fn(r, g, b) -> (r, g, b) to every #rrggbb and #rgb colour in body."""
    def repl(m):
        h = m.group(1)
        if len(h) == 3:
            h = "".join(c * 2 for c in h)
        r, g, b = (int(h[i:i + 2], 16) for i in (0, 2, 4))
        r, g, b = (max(0, min(255, int(round(v)))) for v in fn(r, g, b))
        return f"#{r:02x}{g:02x}{b:02x}"
    return re.sub(r"#([0-9a-fA-F]{6}|[0-9a-fA-F]{3})\b", repl, body)


def icon(name, x, y, size, flip=False, recolor=None, opacity=1.0, rotate=0, height=None):
    """The icon `name` drawn in the box (x, y, size, height or size)."""
    viewbox, body = _load_icon(name)
    if recolor is not None:
        if isinstance(recolor, dict):
            table = {k.lower(): v for k, v in recolor.items()}
            body = re.sub(r"#[0-9a-fA-F]{6}\b", lambda m: table.get(m.group(0).lower(), m.group(0)), body)
        else:
            body = hexmap(body, recolor)
    if 'id="' in body:
        tag = uid("i")
        body = re.sub(r'id="([^"]+)"', lambda m: f'id="{tag}{m.group(1)}"', body)
        body = re.sub(r"url\(#([^)]+)\)", lambda m: f"url(#{tag}{m.group(1)})", body)
        body = re.sub(r'href="#([^"]+)"', lambda m: f'href="#{tag}{m.group(1)}"', body)
    h = size if height is None else height
    vb = [float(v) for v in viewbox.split()]
    inner = body
    if flip:
        inner = f'<g transform="translate({vb[0] * 2 + vb[2]} 0) scale(-1 1)">{inner}</g>'
    svg = (f'<svg x="{x:.1f}" y="{y:.1f}" width="{size:.1f}" height="{h:.1f}" viewBox="{viewbox}" '
           f'overflow="visible">{inner}</svg>')
    if rotate:
        svg = f'<g transform="rotate({rotate} {x + size / 2:.1f} {y + h / 2:.1f})">{svg}</g>'
    if opacity < 1:
        svg = f'<g opacity="{opacity}">{svg}</g>'
    return svg


def shadow(cx, cy, rx, ry, opacity=0.25):
    return f'<ellipse cx="{cx:.1f}" cy="{cy:.1f}" rx="{rx:.1f}" ry="{ry:.1f}" fill="#000" opacity="{opacity}"/>'


def icon_on_ground(name, cx, ground, size, **kw):
    """An icon standing on the ground line at cx, with a soft shadow under it."""
    return shadow(cx, ground - size * 0.06, size * 0.38, size * 0.07, 0.2) + \
        icon(name, cx - size / 2, ground - size * 0.97, size, **kw)


# ---------------------------------------------------------------- colours

def mix(c1, c2, t):
    a = [int(c1[i:i + 2], 16) for i in (1, 3, 5)]
    b = [int(c2[i:i + 2], 16) for i in (1, 3, 5)]
    return "#" + "".join(f"{int(round(a[i] + (b[i] - a[i]) * t)):02x}" for i in range(3))


def lin_grad(stops, x1=0, y1=0, x2=0, y2=1):
    gid = uid("lg")
    s = "".join(f'<stop offset="{o}" stop-color="{c}" stop-opacity="{a}"/>' for o, c, a in
                [(st + (1,))[:3] if len(st) == 2 else st for st in stops])
    return gid, f'<defs><linearGradient id="{gid}" x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}">{s}</linearGradient></defs>'


def rad_grad(stops, cx=0.5, cy=0.5, r=0.5):
    gid = uid("rg")
    s = "".join(f'<stop offset="{o}" stop-color="{c}" stop-opacity="{a}"/>' for o, c, a in
                [(st + (1,))[:3] if len(st) == 2 else st for st in stops])
    return gid, f'<defs><radialGradient id="{gid}" cx="{cx}" cy="{cy}" r="{r}">{s}</radialGradient></defs>'


# ---------------------------------------------------------------- canvas

class Canvas:
    """A picture of w x h units, rendered at SCALE pixels a unit."""

    def __init__(self, w, h):
        self.w, self.h = w, h
        self.parts = []

    def add(self, *parts):
        self.parts.extend(parts)
        return self

    def svg(self):
        return (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
                f'width="{self.w}" height="{self.h}" viewBox="0 0 {self.w} {self.h}">'
                + "".join(self.parts) + "</svg>")

    def render(self):
        # Drawn straight into a cairo image and read from its memory: encoding a PNG only to decode it again
        # costs more than the drawing at the size of a backdrop.
        tree = Tree(bytestring=self.svg().encode("utf-8"))
        surface = PNGSurface(tree, None, 96, output_width=px(self.w), output_height=px(self.h))
        image = surface.cairo
        image.flush()
        size = (image.get_width(), image.get_height())
        # cairo keeps each pixel as a native-endian 32-bit ARGB word with premultiplied alpha: as little-endian
        # words its bytes are B, G, R, A
        words = np.frombuffer(image.get_data(), "=u4").astype("<u4", copy=True)
        return Image.frombuffer("RGBA", size, words.tobytes(), "raw", "BGRa", image.get_stride(), 1)


# ---------------------------------------------------------------- landscape

SKIES = {
    "summer": [(0, "#4f9be0"), (0.6, "#a9d4f5"), (1, "#e8f4fb")],
    "winter": [(0, "#7e97b8"), (0.6, "#c3d2e3"), (1, "#eef2f7")],
    "spring": [(0, "#6fb2e8"), (0.7, "#c9e6f7"), (1, "#f3f9e8")],
    "autumn": [(0, "#7d93b0"), (0.55, "#d9c7a8"), (1, "#f2dcb0")],
    "evening": [(0, "#2d3a6b"), (0.45, "#b0587a"), (0.75, "#f29a56"), (1, "#ffd98a")],
    "night": [(0, "#0b1330"), (0.7, "#233a6a"), (1, "#3d5a8a")],
    "dawn": [(0, "#9fb4cc"), (0.6, "#e6d9cf"), (1, "#f6eadb")],
    "storm": [(0, "#2e3440"), (0.6, "#59636f"), (1, "#8b939b")],
}


def sky(w, h, kind="summer"):
    gid, d = lin_grad(SKIES[kind])
    return d + f'<rect width="{w}" height="{h}" fill="url(#{gid})"/>'


def sun(x, y, r, color="#fff3b0", glow="#fff6c8"):
    gid, d = rad_grad([(0, glow, 0.9), (0.35, glow, 0.35), (1, glow, 0)])
    return d + f'<circle cx="{x}" cy="{y}" r="{r * 4}" fill="url(#{gid})"/>' + \
        f'<circle cx="{x}" cy="{y}" r="{r}" fill="{color}"/>'


def moon(x, y, r):
    gid, d = rad_grad([(0, "#fffbe0", 0.6), (1, "#fffbe0", 0)])
    return d + f'<circle cx="{x}" cy="{y}" r="{r * 3}" fill="url(#{gid})"/>' + \
        f'<circle cx="{x}" cy="{y}" r="{r}" fill="#fdf6d3"/>' + \
        f'<circle cx="{x + r * 0.35}" cy="{y - r * 0.2}" r="{r * 0.18}" fill="#ece2b4"/>' + \
        f'<circle cx="{x - r * 0.3}" cy="{y + r * 0.35}" r="{r * 0.12}" fill="#ece2b4"/>'


def stars_field(w, h, n, seed):
    rnd = random.Random(seed)
    out = []
    for _ in range(n):
        x, y, r = rnd.uniform(0, w), rnd.uniform(0, h), rnd.uniform(0.6, 1.8)
        out.append(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{r:.1f}" fill="#fff" opacity="{rnd.uniform(0.4, 1):.2f}"/>')
    return "".join(out)


def cloud(x, y, s, color="#ffffff", opacity=0.92, shade="#dfe8f0"):
    blobs = [(-0.9, 0.15, 0.45), (-0.4, -0.15, 0.6), (0.25, -0.3, 0.7), (0.85, 0.0, 0.5), (0.1, 0.2, 0.55)]
    base = "".join(f'<circle cx="{x + dx * s:.1f}" cy="{y + dy * s + s * 0.08:.1f}" r="{r * s:.1f}" fill="{shade}"/>'
                   for dx, dy, r in blobs)
    top = "".join(f'<circle cx="{x + dx * s:.1f}" cy="{y + dy * s:.1f}" r="{r * s:.1f}" fill="{color}"/>'
                  for dx, dy, r in blobs)
    return f'<g opacity="{opacity}">{base}{top}</g>'


def clouds(w, top, bottom, n, seed, smin=30, smax=70, **kw):
    rnd = random.Random(seed)
    return "".join(cloud(rnd.uniform(0, w), rnd.uniform(top, bottom), rnd.uniform(smin, smax), **kw)
                   for _ in range(n))


def hill(w, h, y, amp, color, seed, waves=3, top_color=None):
    """A band of rolling land whose top edge is near y, filled down to the bottom of the picture."""
    rnd = random.Random(seed)
    phases = [(rnd.uniform(0, 6.28), rnd.uniform(0.5, 1.5) * waves, rnd.uniform(0.3, 1)) for _ in range(3)]
    pts = []
    steps = 48
    for i in range(steps + 1):
        x = w * i / steps
        t = x / w * 2 * math.pi
        dy = sum(a * math.sin(t * f + p) for p, f, a in phases) / 1.8
        pts.append((x, y + dy * amp))
    d = f"M0,{h} L" + " L".join(f"{px:.1f},{py:.1f}" for px, py in pts) + f" L{w},{h} Z"
    fill = color
    defs = ""
    if top_color:
        gid, defs = lin_grad([(0, top_color), (0.35, color)])
        fill = f"url(#{gid})"
    return defs + f'<path d="{d}" fill="{fill}"/>', pts


def ground_y(pts, x):
    for (x1, y1), (x2, y2) in zip(pts, pts[1:]):
        if x1 <= x <= x2:
            return y1 + (y2 - y1) * (x - x1) / (x2 - x1 or 1)
    return pts[-1][1]


def field(x, y, w, h, colors, rows=10):
    """A field seen in perspective: furrows fanning out from the far edge (y) to the near edge (y + h)."""
    parts = [f'<rect x="{x}" y="{y}" width="{w}" height="{h}" fill="{colors[0]}"/>']
    for i in range(rows + 1):
        t = i / rows
        xb = x - w * 0.25 + (w * 1.5) * t
        xt = x + w * t
        c = colors[1 + i % (len(colors) - 1)]
        parts.append(f'<line x1="{xt:.1f}" y1="{y}" x2="{xb:.1f}" y2="{y + h}" stroke="{c}" stroke-width="{1 + 5 * abs(t - 0.5):.1f}" opacity="0.7"/>')
    cid = uid("cp")
    return f'<clipPath id="{cid}"><rect x="{x}" y="{y}" width="{w}" height="{h}"/></clipPath>' + \
        f'<g clip-path="url(#{cid})">' + "".join(parts) + "</g>"


def furrow_band(w, y1, y2, base, line, n, seed=1):
    """Horizontal furrows across the whole width between y1 and y2, denser towards the horizon."""
    out = [f'<rect x="0" y="{y1}" width="{w}" height="{y2 - y1}" fill="{base}"/>']
    for i in range(n):
        t = (i / n) ** 1.7
        yy = y1 + (y2 - y1) * t
        out.append(f'<rect x="0" y="{yy:.1f}" width="{w}" height="{1 + 6 * t:.1f}" fill="{line}" opacity="0.55"/>')
    return "".join(out)


def grain_ears(w, y1, y2, n, seed, color="#e8c15a", dark="#b88a2c", x1=-10):
    rnd = random.Random(seed)
    out = []
    for _ in range(n):
        yy = rnd.uniform(y1, y2)
        t = (yy - y1) / (y2 - y1)
        s = 3 + 16 * t
        xx = rnd.uniform(x1, w + 10)
        c = color if rnd.random() < 0.6 else dark
        out.append(f'<path d="M{xx:.1f},{yy + s * 2:.1f} q{s * 0.2:.1f},{-s:.1f} {s * 0.1:.1f},{-s * 2:.1f}" stroke="{dark}" '
                   f'stroke-width="{max(0.6, s * 0.08):.1f}" fill="none"/>'
                   f'<ellipse cx="{xx + s * 0.1:.1f}" cy="{yy:.1f}" rx="{s * 0.16:.1f}" ry="{s * 0.45:.1f}" fill="{c}"/>')
    return "".join(out)


def grass(w, y1, y2, n, seed, colors=("#4f8f2f", "#6aa83a", "#3f7a25"), x1=0, skip=None):
    """Tufts of grass scattered between y1 and y2 (x from x1 to w), bigger towards the viewer; skip(x, y) leaves a spot bare."""
    rnd = random.Random(seed)
    out = []
    for _ in range(n):
        yy = rnd.uniform(y1, y2)
        t = (yy - y1) / max(1, (y2 - y1))
        s = 2 + 12 * t
        xx = rnd.uniform(x1, w)
        c = rnd.choice(colors)
        if skip and skip(xx, yy):
            continue
        out.append(f'<path d="M{xx - s * 0.5:.1f},{yy:.1f} l{s * 0.15:.1f},{-s:.1f} l{s * 0.2:.1f},{s:.1f} '
                   f'l{s * 0.2:.1f},{-s * 1.2:.1f} l{s * 0.15:.1f},{s * 1.2:.1f} l{s * 0.25:.1f},{-s * 0.8:.1f} '
                   f'l{s * 0.1:.1f},{s * 0.8:.1f}Z" fill="{c}"/>')
    return "".join(out)


def flowers(w, y1, y2, n, seed, colors=("#ffffff", "#ffd84a", "#e05a9a", "#7aa7ff")):
    rnd = random.Random(seed)
    out = []
    for _ in range(n):
        yy = rnd.uniform(y1, y2)
        t = (yy - y1) / max(1, (y2 - y1))
        r = 1 + 3.5 * t
        xx = rnd.uniform(0, w)
        out.append(f'<circle cx="{xx:.1f}" cy="{yy:.1f}" r="{r:.1f}" fill="{rnd.choice(colors)}"/>'
                   f'<circle cx="{xx:.1f}" cy="{yy:.1f}" r="{r * 0.35:.1f}" fill="#f5b000"/>')
    return "".join(out)


def spruce(x, y, h, color="#2f5d3a", dark="#23452b", snow=False):
    """A Finnish spruce standing at (x, y) with height h."""
    w = h * 0.42
    out = [f'<rect x="{x - h * 0.03:.1f}" y="{y - h * 0.12:.1f}" width="{h * 0.06:.1f}" height="{h * 0.12:.1f}" fill="#5a3b22"/>']
    tiers = 5
    for i in range(tiers):
        t0 = i / tiers
        top = y - h + h * t0 * 0.85
        bot = y - h * 0.1 - h * (1 - (i + 1) / tiers) * 0.7
        half = w * (0.35 + 0.65 * (i + 1) / tiers) / 2
        out.append(f'<path d="M{x:.1f},{top:.1f} L{x + half:.1f},{bot:.1f} Q{x:.1f},{bot - h * 0.05:.1f} {x - half:.1f},{bot:.1f} Z" '
                   f'fill="{color if i % 2 == 0 else dark}"/>')
        if snow:
            out.append(f'<path d="M{x:.1f},{top:.1f} L{x + half * 0.7:.1f},{bot - (bot - top) * 0.25:.1f} '
                       f'Q{x:.1f},{bot - (bot - top) * 0.35:.1f} {x - half * 0.8:.1f},{bot - (bot - top) * 0.2:.1f} Z" fill="#f4f8fc"/>')
    return "".join(out)


def birch(x, y, h, crown="#6cab3c", crown2="#8cc653", bare=False, seed=0):
    """A birch: white trunk with black marks and a light crown (none when bare)."""
    rnd = random.Random(seed)
    tw = max(2, h * 0.045)
    out = []
    if not bare:
        for _ in range(9):
            cx = x + rnd.uniform(-h * 0.2, h * 0.2)
            cy = y - h * rnd.uniform(0.55, 0.95)
            r = h * rnd.uniform(0.12, 0.2)
            out.append(f'<circle cx="{cx:.1f}" cy="{cy:.1f}" r="{r:.1f}" fill="{rnd.choice([crown, crown2])}"/>')
    out.append(f'<path d="M{x - tw / 2:.1f},{y:.1f} L{x - tw * 0.25:.1f},{y - h * 0.9:.1f} L{x + tw * 0.25:.1f},{y - h * 0.9:.1f} '
               f'L{x + tw / 2:.1f},{y:.1f} Z" fill="#f4f1ea"/>')
    for i in range(int(h / 12) + 2):
        yy = y - rnd.uniform(0.05, 0.85) * h
        out.append(f'<rect x="{x - tw * 0.4:.1f}" y="{yy:.1f}" width="{tw * rnd.uniform(0.3, 0.7):.1f}" height="{max(1, h * 0.012):.1f}" fill="#2b2b2b"/>')
    if bare:
        for i in range(6):
            yy = y - h * rnd.uniform(0.5, 0.9)
            dx = rnd.choice([-1, 1]) * h * rnd.uniform(0.1, 0.22)
            out.append(f'<path d="M{x:.1f},{yy:.1f} q{dx * 0.5:.1f},{-h * 0.05:.1f} {dx:.1f},{-h * 0.15:.1f}" stroke="#5b4a3d" '
                       f'stroke-width="{max(1, tw * 0.3):.1f}" fill="none"/>')
    else:
        for i in range(4):
            cx = x + rnd.uniform(-h * 0.15, h * 0.15)
            cy = y - h * rnd.uniform(0.6, 0.9)
            out.append(f'<circle cx="{cx:.1f}" cy="{cy:.1f}" r="{h * 0.1:.1f}" fill="{crown2}" opacity="0.8"/>')
    return "".join(out)


def leafy_tree(x, y, h, crown="#4e8f32", crown2="#6bab3f", trunk="#6b4a2f", seed=0):
    rnd = random.Random(seed)
    out = [f'<rect x="{x - h * 0.04:.1f}" y="{y - h * 0.45:.1f}" width="{h * 0.08:.1f}" height="{h * 0.45:.1f}" fill="{trunk}"/>']
    for _ in range(10):
        cx = x + rnd.uniform(-h * 0.22, h * 0.22)
        cy = y - h * rnd.uniform(0.5, 0.85)
        r = h * rnd.uniform(0.14, 0.22)
        out.append(f'<circle cx="{cx:.1f}" cy="{cy:.1f}" r="{r:.1f}" fill="{rnd.choice([crown, crown2])}"/>')
    return "".join(out)


def forest_edge(w, y, h, seed, snow=False, season="summer", density=1.0):
    """A row of spruces and birches along the line y."""
    rnd = random.Random(seed)
    out = []
    x = -20
    birch_crowns = {"summer": ("#6cab3c", "#8cc653"), "spring": ("#9bd35a", "#b9e27a"),
                    "autumn": ("#e3a52a", "#f2c94c"), "winter": None, "evening": ("#5f7a4a", "#70884f")}
    while x < w + 20:
        hh = h * rnd.uniform(0.7, 1.15)
        if rnd.random() < 0.7:
            out.append(spruce(x, y + rnd.uniform(0, h * 0.08), hh, snow=snow,
                              color=rnd.choice(["#2f5d3a", "#2b5535", "#36663f"])))
        else:
            c = birch_crowns[season]
            out.append(birch(x, y + rnd.uniform(0, h * 0.08), hh * 0.9, bare=c is None,
                             crown=c[0] if c else "", crown2=c[1] if c else "", seed=rnd.randint(0, 10 ** 6)))
        x += h * rnd.uniform(0.12, 0.3) / density
    return "".join(out)


def window(x, y, w, h, frame="#ffffff", glass="#9cc3dd", lit=False):
    g = "#ffd76a" if lit else glass
    return (f'<rect x="{x:.1f}" y="{y:.1f}" width="{w:.1f}" height="{h:.1f}" fill="{frame}"/>'
            f'<rect x="{x + w * 0.12:.1f}" y="{y + h * 0.1:.1f}" width="{w * 0.76:.1f}" height="{h * 0.8:.1f}" fill="{g}"/>'
            f'<rect x="{x + w * 0.46:.1f}" y="{y + h * 0.1:.1f}" width="{w * 0.08:.1f}" height="{h * 0.8:.1f}" fill="{frame}"/>'
            f'<rect x="{x + w * 0.12:.1f}" y="{y + h * 0.45:.1f}" width="{w * 0.76:.1f}" height="{h * 0.07:.1f}" fill="{frame}"/>')


def planks(x, y, w, h, color, line, vertical=True, step=None):
    step = step or max(3, w / 14)
    out = [f'<rect x="{x:.1f}" y="{y:.1f}" width="{w:.1f}" height="{h:.1f}" fill="{color}"/>']
    if vertical:
        xx = x + step
        while xx < x + w - 1:
            out.append(f'<rect x="{xx:.1f}" y="{y:.1f}" width="{max(0.6, step * 0.08):.1f}" height="{h:.1f}" fill="{line}" opacity="0.5"/>')
            xx += step
    else:
        yy = y + step
        while yy < y + h - 1:
            out.append(f'<rect x="{x:.1f}" y="{yy:.1f}" width="{w:.1f}" height="{max(0.6, step * 0.08):.1f}" fill="{line}" opacity="0.5"/>')
            yy += step
    return "".join(out)


def house(x, y, w, h, wall="#b8332b", roof="#3b3b3b", trim="#ffffff", snow=False, lit=False, chimney=True,
          smoke=False, door=True, windows=2):
    """A Finnish red wooden house; (x, y) is the bottom left corner of the wall, h the wall height."""
    rh = h * 0.75
    out = []
    if chimney:
        out.append(f'<rect x="{x + w * 0.68:.1f}" y="{y - h - rh * 0.85:.1f}" width="{w * 0.08:.1f}" height="{rh * 0.6:.1f}" fill="#8a4b3a"/>')
        if smoke:
            sx, sy = x + w * 0.72, y - h - rh * 0.9
            out.append("".join(f'<circle cx="{sx + i * w * 0.06 + i * i * 2:.1f}" cy="{sy - i * h * 0.28:.1f}" r="{h * (0.09 + i * 0.05):.1f}" '
                               f'fill="#e6e9ee" opacity="{0.7 - i * 0.12:.2f}"/>' for i in range(5)))
    out.append(planks(x, y - h, w, h, wall, "#000000", vertical=True, step=w / 24))
    out.append(f'<rect x="{x:.1f}" y="{y - h:.1f}" width="{w * 0.035:.1f}" height="{h:.1f}" fill="{trim}"/>')
    out.append(f'<rect x="{x + w * 0.965:.1f}" y="{y - h:.1f}" width="{w * 0.035:.1f}" height="{h:.1f}" fill="{trim}"/>')
    out.append(f'<path d="M{x - w * 0.06:.1f},{y - h:.1f} L{x + w * 0.5:.1f},{y - h - rh:.1f} L{x + w * 1.06:.1f},{y - h:.1f} Z" fill="{roof}"/>')
    out.append(f'<path d="M{x + w * 0.04:.1f},{y - h:.1f} L{x + w * 0.5:.1f},{y - h - rh * 0.82:.1f} L{x + w * 0.96:.1f},{y - h:.1f} Z" fill="{wall}"/>')
    out.append(f'<path d="M{x + w * 0.04:.1f},{y - h:.1f} L{x + w * 0.5:.1f},{y - h - rh * 0.82:.1f} L{x + w * 0.96:.1f},{y - h:.1f}" '
               f'stroke="{trim}" stroke-width="{max(1, w * 0.02):.1f}" fill="none"/>')
    if snow:
        out.append(f'<path d="M{x - w * 0.07:.1f},{y - h + 2:.1f} L{x + w * 0.5:.1f},{y - h - rh - 3:.1f} L{x + w * 1.07:.1f},{y - h + 2:.1f} '
                   f'L{x + w * 0.98:.1f},{y - h - 2:.1f} L{x + w * 0.5:.1f},{y - h - rh + rh * 0.12:.1f} L{x + w * 0.02:.1f},{y - h - 2:.1f} Z" fill="#f6f9fc"/>')
    ww, wh = w * 0.16, h * 0.42
    slots = [0.14, 0.62] if windows == 2 else [0.12, 0.42, 0.72][:windows]
    for s in slots:
        out.append(window(x + w * s, y - h * 0.78, ww, wh, frame=trim, lit=lit))
    if door:
        out.append(f'<rect x="{x + w * 0.40:.1f}" y="{y - h * 0.62:.1f}" width="{w * 0.15:.1f}" height="{h * 0.62:.1f}" fill="#6b3a22" stroke="{trim}" stroke-width="{max(1, w * 0.01):.1f}"/>')
    out.append(window(x + w * 0.44, y - h - rh * 0.5, w * 0.12, rh * 0.28, frame=trim, lit=lit))
    return "".join(out)


def barn(x, y, w, h, wall="#a52a22", roof="#4a4a4a", trim="#f2efe6", snow=False, sign=None):
    """A big red barn with a gambrel roof and a cross-braced door; (x, y) is the bottom left corner."""
    out = [planks(x, y - h, w, h, wall, "#000000", step=w / 22)]
    rh = h * 0.7
    pts = [(x - w * 0.04, y - h), (x + w * 0.12, y - h - rh * 0.62), (x + w * 0.5, y - h - rh),
           (x + w * 0.88, y - h - rh * 0.62), (x + w * 1.04, y - h)]
    d = "M" + " L".join(f"{px:.1f},{py:.1f}" for px, py in pts) + " Z"
    out.append(f'<path d="{d}" fill="{roof}"/>')
    inner = [(x + w * 0.05, y - h), (x + w * 0.17, y - h - rh * 0.52), (x + w * 0.5, y - h - rh * 0.86),
             (x + w * 0.83, y - h - rh * 0.52), (x + w * 0.95, y - h)]
    d2 = "M" + " L".join(f"{px:.1f},{py:.1f}" for px, py in inner) + " Z"
    out.append(f'<path d="{d2}" fill="{wall}"/>')
    out.append(f'<path d="{d2}" fill="none" stroke="{trim}" stroke-width="{max(1, w * 0.015):.1f}"/>')
    if snow:
        out.append(f'<path d="M{pts[0][0]:.1f},{pts[0][1]:.1f} L{pts[1][0]:.1f},{pts[1][1] - 3:.1f} L{pts[2][0]:.1f},{pts[2][1] - 4:.1f} '
                   f'L{pts[3][0]:.1f},{pts[3][1] - 3:.1f} L{pts[4][0]:.1f},{pts[4][1]:.1f} L{pts[3][0]:.1f},{pts[3][1] + rh * 0.1:.1f} '
                   f'L{pts[2][0]:.1f},{pts[2][1] + rh * 0.1:.1f} L{pts[1][0]:.1f},{pts[1][1] + rh * 0.1:.1f} Z" fill="#f6f9fc"/>')
    dw, dh = w * 0.34, h * 0.72
    dx = x + w * 0.33
    out.append(f'<rect x="{dx:.1f}" y="{y - dh:.1f}" width="{dw:.1f}" height="{dh:.1f}" fill="#7d1f19" stroke="{trim}" stroke-width="{max(1, w * 0.015):.1f}"/>')
    out.append(f'<path d="M{dx:.1f},{y - dh:.1f} L{dx + dw:.1f},{y:.1f} M{dx + dw:.1f},{y - dh:.1f} L{dx:.1f},{y:.1f} '
               f'M{dx + dw / 2:.1f},{y - dh:.1f} L{dx + dw / 2:.1f},{y:.1f}" stroke="{trim}" stroke-width="{max(1, w * 0.015):.1f}"/>')
    for s in (0.08, 0.78):
        out.append(window(x + w * s, y - h * 0.75, w * 0.14, h * 0.3, frame=trim))
    if sign:
        out.append(round_sign(x + w * 0.5, y - h - rh * 0.4, rh * 0.28, sign))
    else:
        out.append(f'<rect x="{x + w * 0.44:.1f}" y="{y - h - rh * 0.55:.1f}" width="{w * 0.12:.1f}" height="{rh * 0.3:.1f}" fill="#5a1510" stroke="{trim}" stroke-width="{max(1, w * 0.01):.1f}"/>')
    return "".join(out)


def round_sign(cx, cy, r, name, ring="#6b4a2f", face="#fbf6ea"):
    """A round plaque carrying an icon: the mark of a building's trade."""
    return (f'<circle cx="{cx:.1f}" cy="{cy + r * 0.08:.1f}" r="{r * 1.02:.1f}" fill="#000" opacity="0.25"/>'
            f'<circle cx="{cx:.1f}" cy="{cy:.1f}" r="{r:.1f}" fill="{ring}"/>'
            f'<circle cx="{cx:.1f}" cy="{cy:.1f}" r="{r * 0.86:.1f}" fill="{face}"/>'
            + icon(name, cx - r * 0.62, cy - r * 0.62, r * 1.24))


def silo(x, y, w, h, color="#c9ccd1", band="#9aa0a8", roof="#6f7780", snow=False):
    gid, defs = lin_grad([(0, "#8d939b"), (0.35, color), (0.7, "#e6e8eb"), (1, "#8d939b")], x1=0, y1=0, x2=1, y2=0)
    out = [defs, f'<rect x="{x:.1f}" y="{y - h:.1f}" width="{w:.1f}" height="{h:.1f}" fill="url(#{gid})"/>']
    for i in range(1, 7):
        out.append(f'<rect x="{x:.1f}" y="{y - h * i / 7:.1f}" width="{w:.1f}" height="{max(1, h * 0.012):.1f}" fill="{band}"/>')
    out.append(f'<path d="M{x - w * 0.05:.1f},{y - h:.1f} Q{x + w / 2:.1f},{y - h - w * 0.75:.1f} {x + w * 1.05:.1f},{y - h:.1f} Z" fill="{roof if not snow else "#f4f7fa"}"/>')
    out.append(f'<rect x="{x + w * 0.38:.1f}" y="{y - h * 0.95:.1f}" width="{w * 0.06:.1f}" height="{h * 0.9:.1f}" fill="#5d636b"/>')
    for i in range(12):
        out.append(f'<rect x="{x + w * 0.35:.1f}" y="{y - h * 0.93 + i * h * 0.075:.1f}" width="{w * 0.12:.1f}" height="{max(1, h * 0.008):.1f}" fill="#5d636b"/>')
    return "".join(out)


def windmill(x, y, h, body="#b8332b", sail="#efe6d2", angle=20):
    """A Finnish post mill: a tall wooden body on a stone base and four lattice sails."""
    w = h * 0.38
    out = [f'<path d="M{x - w * 0.55:.1f},{y:.1f} L{x - w * 0.35:.1f},{y - h * 0.3:.1f} L{x + w * 0.35:.1f},{y - h * 0.3:.1f} L{x + w * 0.55:.1f},{y:.1f} Z" fill="#8d8a84"/>',
           f'<rect x="{x - w / 2:.1f}" y="{y - h * 0.82:.1f}" width="{w:.1f}" height="{h * 0.55:.1f}" fill="{body}"/>',
           f'<path d="M{x - w * 0.6:.1f},{y - h * 0.8:.1f} L{x:.1f},{y - h * 1.0:.1f} L{x + w * 0.6:.1f},{y - h * 0.8:.1f} Z" fill="#4a4a4a"/>',
           window(x - w * 0.15, y - h * 0.6, w * 0.3, h * 0.12),
           f'<rect x="{x - w * 0.18:.1f}" y="{y - h * 0.42:.1f}" width="{w * 0.36:.1f}" height="{h * 0.12:.1f}" fill="#6b3a22"/>']
    hx, hy = x, y - h * 0.78
    for k in range(4):
        a = math.radians(angle + k * 90)
        L = h * 0.55
        ex, ey = hx + math.cos(a) * L, hy + math.sin(a) * L
        px, py = -math.sin(a) * h * 0.07, math.cos(a) * h * 0.07
        out.append(f'<line x1="{hx:.1f}" y1="{hy:.1f}" x2="{ex:.1f}" y2="{ey:.1f}" stroke="#5a3b22" stroke-width="{h * 0.02:.1f}"/>')
        mx, my = hx + math.cos(a) * L * 0.25, hy + math.sin(a) * L * 0.25
        out.append(f'<path d="M{mx:.1f},{my:.1f} L{ex:.1f},{ey:.1f} L{ex + px:.1f},{ey + py:.1f} L{mx + px:.1f},{my + py:.1f} Z" '
                   f'fill="{sail}" stroke="#5a3b22" stroke-width="{h * 0.006:.1f}"/>')
    out.append(f'<circle cx="{hx:.1f}" cy="{hy:.1f}" r="{h * 0.03:.1f}" fill="#3b2a1d"/>')
    return "".join(out)


def greenhouse(x, y, w, h):
    out = [f'<path d="M{x:.1f},{y:.1f} L{x:.1f},{y - h * 0.6:.1f} L{x + w / 2:.1f},{y - h:.1f} L{x + w:.1f},{y - h * 0.6:.1f} L{x + w:.1f},{y:.1f} Z" '
           f'fill="#cfeef0" opacity="0.85" stroke="#e9f6f5" stroke-width="{max(1, w * 0.012):.1f}"/>']
    for i in range(1, 6):
        xx = x + w * i / 6
        top = y - h * 0.6 - (h * 0.4) * (1 - abs(xx - (x + w / 2)) / (w / 2))
        out.append(f'<line x1="{xx:.1f}" y1="{y:.1f}" x2="{xx:.1f}" y2="{top:.1f}" stroke="#f7fbfb" stroke-width="{max(1, w * 0.01):.1f}"/>')
    out.append(f'<line x1="{x:.1f}" y1="{y - h * 0.3:.1f}" x2="{x + w:.1f}" y2="{y - h * 0.3:.1f}" stroke="#f7fbfb" stroke-width="{max(1, w * 0.01):.1f}"/>')
    for i in range(7):
        cx = x + w * (0.08 + i * 0.14)
        out.append(f'<circle cx="{cx:.1f}" cy="{y - h * 0.12:.1f}" r="{w * 0.05:.1f}" fill="#4f9a35"/>'
                   f'<circle cx="{cx + w * 0.02:.1f}" cy="{y - h * 0.14:.1f}" r="{w * 0.018:.1f}" fill="#e0362c"/>')
    return "".join(out)


def beehive(x, y, s, color="#f2c14e"):
    out = [f'<rect x="{x:.1f}" y="{y - s * 0.15:.1f}" width="{s * 0.12:.1f}" height="{s * 0.15:.1f}" fill="#5a3b22"/>',
           f'<rect x="{x + s * 0.88:.1f}" y="{y - s * 0.15:.1f}" width="{s * 0.12:.1f}" height="{s * 0.15:.1f}" fill="#5a3b22"/>']
    for i in range(3):
        out.append(f'<rect x="{x:.1f}" y="{y - s * (0.15 + 0.28 * (i + 1)):.1f}" width="{s:.1f}" height="{s * 0.27:.1f}" fill="{color}" stroke="#a4742b" stroke-width="{s * 0.02:.1f}"/>')
    out.append(f'<path d="M{x - s * 0.08:.1f},{y - s * 0.99:.1f} L{x + s * 0.5:.1f},{y - s * 1.2:.1f} L{x + s * 1.08:.1f},{y - s * 0.99:.1f} Z" fill="#8a5a2b"/>')
    out.append(f'<rect x="{x + s * 0.35:.1f}" y="{y - s * 0.22:.1f}" width="{s * 0.3:.1f}" height="{s * 0.05:.1f}" fill="#3b2a1d"/>')
    return "".join(out)


def fence(x1, x2, y, h, color="#8a6a4a", step=None):
    step = step or h * 0.9
    out = [f'<rect x="{x1:.1f}" y="{y - h * 0.75:.1f}" width="{x2 - x1:.1f}" height="{h * 0.1:.1f}" fill="{color}"/>',
           f'<rect x="{x1:.1f}" y="{y - h * 0.4:.1f}" width="{x2 - x1:.1f}" height="{h * 0.1:.1f}" fill="{color}"/>']
    xx = x1
    while xx <= x2:
        out.append(f'<rect x="{xx - h * 0.05:.1f}" y="{y - h:.1f}" width="{h * 0.1:.1f}" height="{h:.1f}" fill="{mix(color, "#000000", 0.15)}"/>')
        xx += step
    return "".join(out)


def church(x, y, w, h, wall="#f4efe4", roof="#3d4a56", snow=False):
    """A white wooden village church with a bell tower; (x, y) is the bottom left corner of the nave."""
    out = [planks(x, y - h, w, h, wall, "#b9b2a3", step=w / 20)]
    out.append(f'<path d="M{x - w * 0.05:.1f},{y - h:.1f} L{x + w * 0.5:.1f},{y - h * 1.8:.1f} L{x + w * 1.05:.1f},{y - h:.1f} Z" fill="{roof if not snow else "#eef3f8"}"/>')
    tx, tw = x - w * 0.28, w * 0.3
    out.append(planks(tx, y - h * 1.9, tw, h * 1.9, wall, "#b9b2a3", step=tw / 6))
    out.append(f'<path d="M{tx - tw * 0.1:.1f},{y - h * 1.9:.1f} L{tx + tw / 2:.1f},{y - h * 3.0:.1f} L{tx + tw * 1.1:.1f},{y - h * 1.9:.1f} Z" fill="{roof}"/>')
    out.append(f'<rect x="{tx + tw * 0.48:.1f}" y="{y - h * 3.25:.1f}" width="{tw * 0.04:.1f}" height="{h * 0.3:.1f}" fill="#c9a227"/>')
    out.append(f'<rect x="{tx + tw * 0.38:.1f}" y="{y - h * 3.17:.1f}" width="{tw * 0.24:.1f}" height="{tw * 0.04:.1f}" fill="#c9a227"/>')
    out.append(f'<path d="M{tx + tw * 0.3:.1f},{y - h * 1.4:.1f} v{-h * 0.25:.1f} a{tw * 0.2:.1f},{tw * 0.2:.1f} 0 0 1 {tw * 0.4:.1f},0 v{h * 0.25:.1f} Z" fill="#3b3b3b"/>')
    for s in (0.15, 0.45, 0.75):
        out.append(f'<path d="M{x + w * s:.1f},{y - h * 0.25:.1f} v{-h * 0.4:.1f} a{w * 0.05:.1f},{w * 0.05:.1f} 0 0 1 {w * 0.1:.1f},0 v{h * 0.4:.1f} Z" fill="#8fb3cc" stroke="#fff" stroke-width="1.5"/>')
    out.append(f'<rect x="{tx + tw * 0.3:.1f}" y="{y - h * 0.55:.1f}" width="{tw * 0.4:.1f}" height="{h * 0.55:.1f}" fill="#6b3a22"/>')
    return "".join(out)


def lake(x, y, w, h, color="#5b8fb9", light="#a9cbe3"):
    gid, d = lin_grad([(0, light), (1, color)])
    out = [d, f'<ellipse cx="{x + w / 2:.1f}" cy="{y + h / 2:.1f}" rx="{w / 2:.1f}" ry="{h / 2:.1f}" fill="url(#{gid})"/>']
    rnd = random.Random(int(x + y))
    for _ in range(8):
        lx = x + w * rnd.uniform(0.2, 0.7)
        ly = y + h * rnd.uniform(0.3, 0.8)
        out.append(f'<rect x="{lx:.1f}" y="{ly:.1f}" width="{w * rnd.uniform(0.05, 0.15):.1f}" height="1.5" fill="#ffffff" opacity="0.5"/>')
    return "".join(out)


def snowfall(w, h, n, seed, rmin=1, rmax=3.5):
    rnd = random.Random(seed)
    return "".join(f'<circle cx="{rnd.uniform(0, w):.1f}" cy="{rnd.uniform(0, h):.1f}" r="{rnd.uniform(rmin, rmax):.1f}" '
                   f'fill="#ffffff" opacity="{rnd.uniform(0.6, 1):.2f}"/>' for _ in range(n))


def rain(w, h, n, seed, color="#c8d6e6", length=18, slant=-5):
    rnd = random.Random(seed)
    return "".join(f'<line x1="{(x := rnd.uniform(0, w)):.1f}" y1="{(y := rnd.uniform(0, h)):.1f}" x2="{x + slant:.1f}" y2="{y + length:.1f}" '
                   f'stroke="{color}" stroke-width="1.5" opacity="0.7"/>' for _ in range(n))


def mist(w, h, y1, y2, opacity=0.6, color="#ffffff"):
    gid, d = lin_grad([(0, color, 0), (0.5, color, opacity), (1, color, 0)])
    return d + f'<rect x="0" y="{y1}" width="{w}" height="{y2 - y1}" fill="url(#{gid})"/>'


def vignette(w, h, strength=0.35, color="#000000"):
    gid, d = rad_grad([(0.55, color, 0), (1, color, strength)], r=0.75)
    return d + f'<rect width="{w}" height="{h}" fill="url(#{gid})"/>'


def rounded_panel(x, y, w, h, r, fill, stroke=None, sw=2, opacity=1):
    s = f' stroke="{stroke}" stroke-width="{sw}"' if stroke else ""
    return f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{r}" fill="{fill}" opacity="{opacity}"{s}/>'


def road(w, h, y, x_far, x_near, width_far, width_near, color="#c9b48a"):
    return (f'<path d="M{x_far - width_far / 2:.1f},{y:.1f} L{x_far + width_far / 2:.1f},{y:.1f} '
            f'L{x_near + width_near / 2:.1f},{h:.1f} L{x_near - width_near / 2:.1f},{h:.1f} Z" fill="{color}"/>')


def rocks(w, y1, y2, n, seed):
    rnd = random.Random(seed)
    out = []
    for _ in range(n):
        yy = rnd.uniform(y1, y2)
        t = (yy - y1) / max(1, y2 - y1)
        s = 3 + 20 * t
        xx = rnd.uniform(0, w)
        out.append(f'<ellipse cx="{xx:.1f}" cy="{yy:.1f}" rx="{s:.1f}" ry="{s * 0.6:.1f}" fill="#8e8a83"/>'
                   f'<ellipse cx="{xx - s * 0.2:.1f}" cy="{yy - s * 0.2:.1f}" rx="{s * 0.6:.1f}" ry="{s * 0.3:.1f}" fill="#aaa69f"/>')
    return "".join(out)


def stump(x, y, s):
    return (f'<rect x="{x - s / 2:.1f}" y="{y - s * 0.6:.1f}" width="{s:.1f}" height="{s * 0.6:.1f}" fill="#7a5535"/>'
            f'<ellipse cx="{x:.1f}" cy="{y - s * 0.6:.1f}" rx="{s / 2:.1f}" ry="{s * 0.18:.1f}" fill="#d9b98a"/>'
            f'<ellipse cx="{x:.1f}" cy="{y - s * 0.6:.1f}" rx="{s * 0.25:.1f}" ry="{s * 0.09:.1f}" fill="none" stroke="#a9875a" stroke-width="{max(0.5, s * 0.04):.1f}"/>')


def logpile(x, y, s, n=3):
    out = []
    r = s / (2 * n)
    for row in range(n):
        for i in range(n - row):
            cx = x + r + i * 2 * r + row * r
            cy = y - r - row * 1.7 * r
            out.append(f'<circle cx="{cx:.1f}" cy="{cy:.1f}" r="{r:.1f}" fill="#c89b63" stroke="#7a5535" stroke-width="{max(0.8, r * 0.18):.1f}"/>'
                       f'<circle cx="{cx:.1f}" cy="{cy:.1f}" r="{r * 0.45:.1f}" fill="none" stroke="#a9875a" stroke-width="{max(0.5, r * 0.08):.1f}"/>')
    return "".join(out)
