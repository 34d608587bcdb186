"""Every picture of Tanhua: its path under the program folder and how it is drawn.

PICTURES maps a path such as "Kuvat/tuotteet/maito.jpg" to a function that returns a Pillow image (or, for an
icon file, a list of images of different sizes). The scenery comes from scene.py, surfaces from textures.py.
Every position and size here is in units (see scene.py); what Pillow draws directly goes through px().
"""
import math
import os
import random

from PIL import Image, ImageDraw, ImageFont

import scene as S
import textures as T
from scene import Canvas, icon, px

PICTURES = {}

FONT_DIR = "/usr/share/fonts/truetype/dejavu"


def font(size, bold=True, serif=False):
    """A DejaVu font of `size` units."""
    name = ("DejaVuSerif" if serif else "DejaVuSans") + ("-Bold" if bold else "") + ".ttf"
    return ImageFont.truetype(os.path.join(FONT_DIR, name), px(size))


def text(draw, x, y, words, size, fill, bold=True, serif=False, stroke=0, stroke_fill=None):
    """Words centred on the point (x, y) in a DejaVu font of `size` units, with an outline `stroke` units wide."""
    draw.text((px(x), px(y)), words, font=font(size, bold, serif), fill=fill, anchor="mm",
              stroke_width=px(stroke), stroke_fill=stroke_fill)


def blank(w, h, colour):
    """A picture of one colour, w x h units."""
    return Image.new("RGB", (px(w), px(h)), colour)


def pic(path):
    def reg(fn):
        assert path not in PICTURES, path
        PICTURES[path] = fn
        return fn
    return reg


def over(base, top):
    """Paste the RGBA image top over base (both the same size) and return RGBA."""
    base = base.convert("RGBA")
    base.alpha_composite(top)
    return base


# ============================================================== cards (products, staff)

def card(w, h, inner=("#fff8e6", "#f0dcb0"), frame="#8a5a2b"):
    """The common frame of a small picture: a warm gradient field inside a thin wooden border."""
    gid, d = S.rad_grad([(0, inner[0]), (1, inner[1])], cx=0.5, cy=0.42, r=0.7)
    b = max(3, w // 32)
    return [d, f'<rect width="{w}" height="{h}" fill="{frame}"/>',
            f'<rect x="{b}" y="{b}" width="{w - 2 * b}" height="{h - 2 * b}" rx="{b}" fill="url(#{gid})"/>',
            f'<rect x="{b}" y="{b}" width="{w - 2 * b}" height="{h - 2 * b}" rx="{b}" fill="none" stroke="#ffffff" stroke-opacity="0.5" stroke-width="1"/>']


def product(*layers, inner=("#fff8e6", "#f0dcb0")):
    c = Canvas(128, 128)
    c.add(*card(128, 128, inner))
    c.add(S.shadow(64, 112, 44, 7, 0.18))
    c.add(*layers)
    return c.render()


def planks_stack(x, y, w, n=4):
    """Sawn boards stacked on each other, end grain showing: the product 'lauta'."""
    out = []
    bh = w * 0.12
    for i in range(n):
        yy = y - (i + 1) * bh * 1.05
        off = (i % 2) * w * 0.06
        out.append(f'<rect x="{x + off:.1f}" y="{yy:.1f}" width="{w * 0.86:.1f}" height="{bh:.1f}" fill="#e2b877" stroke="#8a5a2b" stroke-width="1.2"/>')
        out.append(f'<path d="M{x + off + w * 0.1:.1f},{yy + bh * 0.35:.1f} q{w * 0.2:.1f},-3 {w * 0.6:.1f},0 M{x + off + w * 0.05:.1f},{yy + bh * 0.7:.1f} q{w * 0.3:.1f},3 {w * 0.5:.1f},0" '
                   f'stroke="#b98a4f" stroke-width="1" fill="none"/>')
        out.append(f'<rect x="{x + off + w * 0.86:.1f}" y="{yy:.1f}" width="{w * 0.1:.1f}" height="{bh:.1f}" fill="#f3d29b" stroke="#8a5a2b" stroke-width="1.2"/>')
    return "".join(out)


def sack(cx, bottom, s, cloth="#e9dcc0", line="#a88f63", label=None, spill=None):
    """A tied cloth sack standing on its bottom; label is an icon printed on it, spill an icon at its mouth."""
    w, h = s * 0.8, s
    x0 = cx - w / 2
    d = (f"M{x0 + w * 0.12:.1f},{bottom:.1f} Q{x0 - w * 0.05:.1f},{bottom - h * 0.5:.1f} {x0 + w * 0.2:.1f},{bottom - h * 0.78:.1f} "
         f"L{x0 + w * 0.32:.1f},{bottom - h * 0.86:.1f} L{x0 + w * 0.68:.1f},{bottom - h * 0.86:.1f} L{x0 + w * 0.8:.1f},{bottom - h * 0.78:.1f} "
         f"Q{x0 + w * 1.05:.1f},{bottom - h * 0.5:.1f} {x0 + w * 0.88:.1f},{bottom:.1f} Z")
    out = [f'<path d="{d}" fill="{cloth}" stroke="{line}" stroke-width="{max(1, s * 0.02):.1f}"/>',
           f'<path d="M{x0 + w * 0.32:.1f},{bottom - h * 0.86:.1f} L{x0 + w * 0.25:.1f},{bottom - h:.1f} L{x0 + w * 0.75:.1f},{bottom - h:.1f} L{x0 + w * 0.68:.1f},{bottom - h * 0.86:.1f} Z" fill="{cloth}" stroke="{line}" stroke-width="{max(1, s * 0.02):.1f}"/>',
           f'<rect x="{x0 + w * 0.3:.1f}" y="{bottom - h * 0.88:.1f}" width="{w * 0.4:.1f}" height="{h * 0.05:.1f}" rx="2" fill="#b5452f"/>',
           f'<path d="M{x0 + w * 0.3:.1f},{bottom - h * 0.6:.1f} q{w * 0.2:.1f},{h * 0.05:.1f} {w * 0.45:.1f},0" stroke="{line}" stroke-width="1" fill="none" opacity="0.6"/>']
    if label:
        out.append(icon(label, cx - s * 0.22, bottom - h * 0.5, s * 0.44))
    if spill:
        out.append(spill)
    return "".join(out)


def sausages(cx, cy, s):
    out = []
    for i, (dx, dy, rot) in enumerate([(-0.18, 0.12, -18), (0.1, 0.0, 12), (-0.02, -0.18, -4)]):
        x, y = cx + dx * s, cy + dy * s
        out.append(f'<g transform="rotate({rot} {x:.1f} {y:.1f})">'
                   f'<rect x="{x - s * 0.42:.1f}" y="{y - s * 0.11:.1f}" width="{s * 0.84:.1f}" height="{s * 0.22:.1f}" rx="{s * 0.11:.1f}" fill="#b5483a" stroke="#7a2a20" stroke-width="1.5"/>'
                   f'<rect x="{x - s * 0.3:.1f}" y="{y - s * 0.07:.1f}" width="{s * 0.5:.1f}" height="{s * 0.04:.1f}" rx="2" fill="#e07a62" opacity="0.7"/>'
                   + "".join(f'<circle cx="{x + k * s * 0.12:.1f}" cy="{y + s * 0.02:.1f}" r="{s * 0.015:.1f}" fill="#f3e0c8"/>' for k in (-2, -1, 0, 1, 2))
                   + f'<path d="M{x - s * 0.42:.1f},{y:.1f} l{-s * 0.06:.1f},{-s * 0.04:.1f} M{x + s * 0.42:.1f},{y:.1f} l{s * 0.06:.1f},{s * 0.04:.1f}" stroke="#d9c7a0" stroke-width="2"/></g>')
    return "".join(out)


def manure(cx, bottom, s):
    d = (f"M{cx - s * 0.55:.1f},{bottom:.1f} Q{cx - s * 0.45:.1f},{bottom - s * 0.3:.1f} {cx - s * 0.2:.1f},{bottom - s * 0.42:.1f} "
         f"Q{cx:.1f},{bottom - s * 0.62:.1f} {cx + s * 0.2:.1f},{bottom - s * 0.44:.1f} Q{cx + s * 0.5:.1f},{bottom - s * 0.3:.1f} {cx + s * 0.58:.1f},{bottom:.1f} Z")
    out = [f'<path d="{d}" fill="#6b4a2f"/>',
           f'<path d="M{cx - s * 0.35:.1f},{bottom - s * 0.15:.1f} Q{cx:.1f},{bottom - s * 0.45:.1f} {cx + s * 0.35:.1f},{bottom - s * 0.15:.1f}" fill="none" stroke="#83603e" stroke-width="{s * 0.08:.1f}"/>']
    rnd = random.Random(5)
    for _ in range(14):
        x = cx + rnd.uniform(-s * 0.45, s * 0.45)
        y = bottom - rnd.uniform(0.05, 0.4) * s
        a = rnd.uniform(0, math.pi)
        out.append(f'<line x1="{x:.1f}" y1="{y:.1f}" x2="{x + math.cos(a) * s * 0.12:.1f}" y2="{y - math.sin(a) * s * 0.12:.1f}" stroke="#e6c56a" stroke-width="1.6"/>')
    for k in range(3):
        x = cx - s * 0.2 + k * s * 0.2
        out.append(f'<path d="M{x:.1f},{bottom - s * 0.6:.1f} q{-s * 0.06:.1f},{-s * 0.08:.1f} 0,{-s * 0.16:.1f} q{s * 0.06:.1f},{-s * 0.08:.1f} 0,{-s * 0.16:.1f}" '
                   f'stroke="#c8c2b4" stroke-width="2" fill="none" opacity="0.7"/>')
    return "".join(out)


EGG = {"#f3ad61": "#efe0c0"}
EGG_BROWN = {"#f3ad61": "#e8b07a", "#d3883e": "#c98a55"}

PRODUCTS = {
    "maito": lambda: product(icon("glass-of-milk", 18, 14, 92)),
    "liha": lambda: product(icon("cut-of-meat", 16, 16, 96)),
    "villa": lambda: product(icon("yarn", 14, 16, 100)),
    "muna": lambda: product(icon("basket", 16, 40, 96, height=80),
                            icon("egg", 28, 34, 40, rotate=-16, recolor=EGG), icon("egg", 60, 30, 40, rotate=14),
                            icon("egg", 44, 40, 42, recolor=EGG_BROWN),
                            '<path d="M22,70 Q64,82 106,70 L104,80 Q64,92 24,80 Z" fill="#d3883e"/>'),
    "turkki": lambda: product(icon("coat", 22, 14, 92, recolor={"#ffdea7": "#d8793a", "#f9c23c": "#b85d27",
                                                                  "#ffb02e": "#b85d27", "#fcd53f": "#c46a2e",
                                                                  "#ffce7c": "#e0894a", "#e1d8ec": "#f4ece0"}),
                              icon("fox", 78, 70, 40)),
    "rehu": lambda: product(sack(64, 114, 92, cloth="#d9c79c", label="sheaf-of-rice"),
                            icon("ear-of-corn", 82, 60, 40)),
    "puu": lambda: product(icon("wood", 14, 14, 100)),
    "lauta": lambda: product(planks_stack(18, 112, 96, 5), icon("carpentry-saw", 70, 14, 44)),
    "vihannes": lambda: product(icon("broccoli", 52, 18, 60), icon("carrot", 12, 30, 70, rotate=-10),
                                icon("potato", 56, 60, 52)),
    "juusto": lambda: product(icon("cheese-wedge", 14, 14, 100)),
    "jauho": lambda: product(sack(60, 114, 96, cloth="#f5f1e6", line="#b9ad92", label="sheaf-of-rice"),
                             '<ellipse cx="64" cy="24" rx="20" ry="5" fill="#ffffff"/>'),
    "vilja": lambda: product(icon("sheaf-of-rice", 10, 12, 104)),
    "lanta": lambda: product(manure(64, 112, 100), icon("fly", 82, 22, 28), icon("seedling", 14, 62, 34)),
    "leipä": lambda: product(icon("bread", 14, 16, 100)),
    "vaate": lambda: product(icon("scarf", 12, 12, 70), icon("socks", 52, 48, 68)),
    "makkara": lambda: product(sausages(64, 70, 100)),
    "leivos": lambda: product(icon("shortcake", 16, 14, 98)),
    "marja": lambda: product(icon("strawberry", 12, 20, 64), icon("blueberries", 56, 42, 62)),
    "viini": lambda: product(icon("grapes", 10, 40, 66), icon("wine-glass", 48, 12, 72)),
    "hunaja": lambda: product(icon("honey-pot", 16, 16, 96), icon("honeybee", 84, 10, 34)),
}
for _name, _fn in PRODUCTS.items():
    pic(f"Kuvat/tuotteet/{_name}.jpg")(_fn)


# ============================================================== animals

def gender_badge(x, y, r, male):
    col = "#3b7dd8" if male else "#d8577e"
    out = [f'<circle cx="{x}" cy="{y}" r="{r}" fill="#ffffff" stroke="{col}" stroke-width="2"/>']
    cr = r * 0.32
    if male:
        out.append(f'<circle cx="{x - r * 0.12:.1f}" cy="{y + r * 0.12:.1f}" r="{cr:.1f}" fill="none" stroke="{col}" stroke-width="2.2"/>'
                   f'<path d="M{x + r * 0.1:.1f},{y - r * 0.1:.1f} L{x + r * 0.48:.1f},{y - r * 0.48:.1f} M{x + r * 0.18:.1f},{y - r * 0.48:.1f} L{x + r * 0.48:.1f},{y - r * 0.48:.1f} L{x + r * 0.48:.1f},{y - r * 0.18:.1f}" '
                   f'stroke="{col}" stroke-width="2.2" fill="none"/>')
    else:
        out.append(f'<circle cx="{x:.1f}" cy="{y - r * 0.18:.1f}" r="{cr:.1f}" fill="none" stroke="{col}" stroke-width="2.2"/>'
                   f'<path d="M{x:.1f},{y + r * 0.14:.1f} L{x:.1f},{y + r * 0.62:.1f} M{x - r * 0.22:.1f},{y + r * 0.4:.1f} L{x + r * 0.22:.1f},{y + r * 0.4:.1f}" '
                   f'stroke="{col}" stroke-width="2.2"/>')
    return "".join(out)


def animal_card(name, male, place="pasture", flip=False, recolor=None, size=100, dy=0):
    c = Canvas(128, 128)
    if place == "forest":
        c.add(S.sky(128, 128, "dawn"))
        c.add(S.forest_edge(128, 78, 60, seed=3, density=1.6))
        c.add('<rect y="74" width="128" height="54" fill="#7a9a4a"/>')
        c.add(S.grass(128, 80, 128, 40, 4, colors=("#5f8a35", "#6f9a3f")))
    elif place == "yard":
        c.add(S.sky(128, 128, "summer"))
        c.add(S.barn(70, 76, 70, 34))
        c.add('<rect y="74" width="128" height="54" fill="#b89a6a"/>')
        c.add(S.grass(128, 96, 128, 30, 7, colors=("#8a9a4a", "#7a8a3f")))
    else:
        c.add(S.sky(128, 128, "summer"))
        c.add(S.cloud(30, 22, 12))
        h, pts = S.hill(128, 128, 70, 4, "#7cb342", seed=2, waves=1)
        c.add(h)
        c.add(S.fence(0, 128, 84, 16))
        c.add('<rect y="84" width="128" height="44" fill="#6aa33a"/>')
        c.add(S.grass(128, 86, 128, 40, 9))
        c.add(S.flowers(128, 90, 126, 10, 11))
    c.add(S.shadow(64, 118, 46, 6, 0.22))
    c.add(icon(name, 64 - size / 2, 122 - size + dy, size, flip=flip, recolor=recolor))
    c.add(gender_badge(112, 16, 11, male))
    return c.render()


BOAR = {"#ff8687": "#d98a78", "#fbb8ab": "#f0b8a0", "#ff5e59": "#b55a4a"}
HEN = {"#44911b": "#8a5a3a", "#6d4534": "#b07a45", "#a56953": "#e0b27a", "#ff6723": "#f8312f"}
STALLION = {"#a56953": "#4b3a33", "#6d4534": "#2a201c", "#e39d89": "#8a6f66"}
SILVER_FOX = {"#ff6723": "#4f5563", "#ff822d": "#7d8594", "#ffdea7": "#eef1f5"}

ANIMALS = {
    "Lehmä.gif": lambda: animal_card("cow", False),
    "Sonni.gif": lambda: animal_card("ox", True, flip=True),
    "Emakko.gif": lambda: animal_card("pig", False, place="yard"),
    "Karju.gif": lambda: animal_card("pig", True, place="yard", flip=True, recolor=BOAR, size=108),
    "Lammas.gif": lambda: animal_card("ewe", False),
    "Pässi.gif": lambda: animal_card("ram", True, flip=True),
    "Kana.gif": lambda: animal_card("rooster", False, place="yard", recolor=HEN, size=88),
    "Kukko.gif": lambda: animal_card("rooster", True, place="yard", flip=True, size=96),
    "KettuNaaras.gif": lambda: animal_card("fox", False, place="forest", size=84, dy=-6),
    "KettuUros.gif": lambda: animal_card("fox", True, place="forest", size=88, dy=-6, recolor=SILVER_FOX),
    "Tamma.gif": lambda: animal_card("horse", False),
    "Ori.gif": lambda: animal_card("horse", True, flip=True, recolor=STALLION),
}
for _name, _fn in ANIMALS.items():
    pic(f"Kuvat/Eläimet/{_name}")(_fn)


@pic("Kuvat/Kohdistin.gif")
def kohdistin():
    """The marker laid over the animal picture under the pointer: a golden frame with corner brackets."""
    c = Canvas(128, 128)
    c.add('<rect x="3" y="3" width="122" height="122" rx="6" fill="none" stroke="#5a3b00" stroke-width="6"/>',
          '<rect x="3" y="3" width="122" height="122" rx="6" fill="none" stroke="#ffd23f" stroke-width="3"/>')
    for x, y, sx, sy in ((2, 2, 1, 1), (126, 2, -1, 1), (2, 126, 1, -1), (126, 126, -1, -1)):
        c.add(f'<path d="M{x},{y + sy * 30} L{x},{y} L{x + sx * 30},{y}" stroke="#5a3b00" stroke-width="10" fill="none"/>'
              f'<path d="M{x},{y + sy * 30} L{x},{y} L{x + sx * 30},{y}" stroke="#ffe680" stroke-width="6" fill="none"/>')
    img = c.render()
    a = img.split()[3].point(lambda v: 255 if v >= 100 else 0)
    img.putalpha(a)
    return img


# ============================================================== buildings

def building_scene(draw, sign=None, ground="#7cb342", sky="summer", sign_at=None, extra=""):
    c = Canvas(160, 120)
    c.add(S.sky(160, 120, sky))
    c.add(S.cloud(128, 20, 10), S.cloud(30, 14, 8))
    c.add(S.forest_edge(160, 84, 34, seed=9, density=1.2))
    c.add(f'<rect y="84" width="160" height="36" fill="{ground}"/>')
    c.add(S.grass(160, 88, 120, 30, 3))
    c.add(draw)
    c.add(extra)
    if sign:
        x, y, r = sign_at or (136, 96, 16)
        c.add(S.round_sign(x, y, r, sign))
    return c.render()


BUILDINGS = {
    "Navetta.jpg": lambda: building_scene(S.barn(24, 106, 112, 52, sign="cow-face")),
    "Siilo.jpg": lambda: building_scene(S.barn(12, 106, 76, 36) + S.silo(96, 106, 30, 86)
                                        + S.silo(128, 106, 22, 64), sign="sheaf-of-rice", sign_at=(22, 24, 14)),
    "Varasto.jpg": lambda: building_scene(S.house(30, 106, 100, 40, wall="#9b6a3c", roof="#5a3b22", windows=0,
                                                  chimney=False)
                                          + icon("package", 10, 84, 24) + icon("package", 22, 92, 20),
                                          sign="package", sign_at=(80, 40, 13)),
    "Saha.jpg": lambda: building_scene(S.house(8, 104, 92, 36, wall="#8a5a3a", roof="#3b3b3b", windows=1, door=False,
                                               chimney=False)
                                       + S.logpile(96, 110, 50, 4), sign="carpentry-saw", sign_at=(54, 36, 13)),
    "Kasvihuone.jpg": lambda: building_scene(S.greenhouse(14, 106, 108, 58), sign="tomato"),
    "Meijeri.jpg": lambda: building_scene(S.house(18, 106, 96, 44, wall="#f1ece0", roof="#4a6b8a", trim="#4a6b8a"),
                                          sign="glass-of-milk"),
    "Mylly.jpg": lambda: building_scene(S.windmill(64, 110, 90), sign="sheaf-of-rice"),
    "Ompelimo.jpg": lambda: building_scene(S.house(16, 106, 96, 42, wall="#d9b44a", roof="#5a3b22"), sign="thread"),
    "Leipomo.jpg": lambda: building_scene(S.house(16, 106, 96, 42, smoke=True), sign="bread"),
    "Teurastamo.jpg": lambda: building_scene(S.house(12, 106, 104, 42, wall="#c9c1b0", roof="#6b2b22", trim="#6b2b22",
                                                     windows=3, door=False),
                                             sign="cut-of-meat"),
    "Rehuntuotanto.jpg": lambda: building_scene(S.house(10, 106, 80, 40, wall="#7a8a5a", roof="#3b3b3b", windows=1)
                                                + S.silo(96, 106, 26, 76),
                                                sign="ear-of-corn", sign_at=(140, 94, 15)),
    "Hevostalli.jpg": lambda: building_scene(S.barn(14, 106, 100, 42, wall="#8a3a22")
                                             + S.fence(110, 160, 108, 14), sign="horse-face"),
    "Marjat.jpg": lambda: building_scene(
        "".join(f'<ellipse cx="{x}" cy="{y}" rx="{16 + (y - 84) * 0.2}" ry="{9 + (y - 84) * 0.12}" fill="#3f7a25"/>'
                + "".join(f'<circle cx="{x + dx}" cy="{y + dy}" r="2.4" fill="{col}"/>'
                          for dx, dy, col in ((-8, -2, "#d62d3a"), (4, -5, "#3a4bb0"), (9, 1, "#d62d3a"), (-2, 3, "#3a4bb0")))
                for y in (90, 100, 112) for x in range(12 + (y % 20), 160, 36)),
        sign="strawberry", sign_at=(136, 70, 15)),
    "Viinitehdas.jpg": lambda: building_scene(S.house(16, 106, 96, 42, wall="#7a2a4a", roof="#3b3b3b"), sign="grapes",
                                              extra=icon("bottle-with-popping-cork", 4, 84, 24)),
    "Mehiläistarha.jpg": lambda: building_scene(S.beehive(14, 110, 34) + S.beehive(60, 112, 36, "#f6d67a")
                                                + S.beehive(104, 110, 34, "#e9b04a") + S.flowers(160, 90, 118, 40, 4),
                                                sign="honeybee", sign_at=(136, 30, 14)),
    "Pakkaamo.jpg": lambda: building_scene(S.house(12, 106, 104, 40, wall="#5c7a9a", roof="#3b3b3b", windows=2)
                                           + icon("package", 112, 86, 24) + icon("package", 130, 92, 22),
                                           sign="package", sign_at=(140, 36, 14)),
}
for _name, _fn in BUILDINGS.items():
    pic(f"Kuvat/Rakennukset/{_name}")(_fn)


# ============================================================== land

def land(kind):
    c = Canvas(160, 120)
    c.add(S.sky(160, 120, "summer"), S.cloud(120, 18, 10))
    if kind == "metsä":
        c.add(S.hill(160, 120, 60, 3, "#3e6e3a", 1)[0])
        c.add(S.forest_edge(160, 80, 52, seed=21, density=1.6))
        c.add('<rect y="80" width="160" height="40" fill="#4f7a35"/>')
        c.add(S.forest_edge(160, 104, 70, seed=22, density=1.3))
        c.add(S.grass(160, 104, 120, 20, 1))
    elif kind == "pelto":
        c.add(S.forest_edge(160, 56, 26, seed=23, density=1.6))
        c.add('<rect y="54" width="160" height="66" fill="#d8b34a"/>')
        c.add(S.field(0, 56, 160, 64, ["#d8b34a", "#b88a2c", "#e8c860"], rows=14))
        c.add(S.grain_ears(160, 70, 120, 160, 5))
        c.add(S.house(120, 60, 26, 12))
    elif kind == "jouto":
        c.add(S.forest_edge(160, 56, 26, seed=24, density=1.1))
        c.add('<rect y="54" width="160" height="66" fill="#a7a15a"/>')
        c.add(S.grass(160, 58, 120, 160, 6, colors=("#8f8a45", "#b3ad62", "#7d7a3a", "#9a8f55")))
        c.add(S.rocks(160, 70, 115, 7, 3))
        c.add(S.stump(40, 100, 16), S.stump(112, 86, 11), S.stump(84, 112, 18))
        c.add(S.birch(140, 112, 40, seed=2, crown="#9bbf5a", crown2="#b6cf6a"))
    else:
        c.add(S.forest_edge(160, 56, 26, seed=25, density=1.6))
        c.add('<rect y="54" width="160" height="66" fill="#79b445"/>')
        c.add(S.grass(160, 58, 120, 120, 7))
        c.add(S.flowers(160, 60, 118, 40, 8))
        c.add(S.fence(0, 160, 80, 12))
        c.add(S.icon_on_ground("cow", 56, 108, 40), S.icon_on_ground("ewe", 110, 112, 34, flip=True))
    return c.render()


for _name, _kind in (("metsä.jpg", "metsä"), ("pelto.jpg", "pelto"), ("jouto.jpg", "jouto"), ("laidun.jpg", "laidun")):
    pic(f"Kuvat/maat/{_name}")(lambda k=_kind: land(k))


def crop_rows(y1, y2, n, seed, name, leaf="#3f8a2c", soil="#7a5432", line="#5e3f24"):
    """Rows of a crop in brown furrows: leaves everywhere, the crop's icon showing here and there."""
    rnd = random.Random(seed)
    out = [S.furrow_band(160, y1, y2, soil, line, 9, seed)]
    for i in range(n):
        t = (i + 0.5) / n
        yy = y1 + (y2 - y1) * t ** 1.4
        s = 5 + 16 * t ** 1.4
        for k in range(int(160 / (s * 1.3)) + 1):
            xx = k * s * 1.3 + rnd.uniform(-s * 0.3, s * 0.3)
            out.append(f'<ellipse cx="{xx:.1f}" cy="{yy:.1f}" rx="{s * 0.55:.1f}" ry="{s * 0.3:.1f}" fill="{leaf}"/>')
            if name and rnd.random() < 0.35:
                out.append(icon(name, xx - s * 0.35, yy - s * 0.5, s * 0.7))
    return "".join(out)


def crop(kind):
    """A crop of the sowing screen, or the sowing and harvest of the land screen: 160 x 120 like the land."""
    c = Canvas(160, 120)
    c.add(S.sky(160, 120, "summer"), S.cloud(36, 16, 9), S.forest_edge(160, 54, 24, seed=31, density=1.4))
    if kind == "mansikka":
        c.add(crop_rows(52, 120, 7, 41, "strawberry", leaf="#3c8a30"))
        c.add(S.icon_on_ground("basket", 128, 116, 30), icon("strawberry", 118, 80, 18))
    elif kind == "peruna":
        c.add(crop_rows(52, 120, 7, 42, None, leaf="#4d9436"))
        c.add(S.flowers(160, 56, 110, 30, 43, colors=("#ffffff", "#e9dcf7")))
        c.add(S.icon_on_ground("potato", 30, 116, 26), S.icon_on_ground("potato", 52, 114, 20, flip=True))
    elif kind == "rypsi":
        c.add('<rect y="52" width="160" height="68" fill="#d9c21c"/>')
        c.add(S.field(0, 52, 160, 68, ["#e6cf24", "#f4e04a", "#b9a414"], rows=16))
        c.add(S.flowers(160, 54, 118, 160, 44, colors=("#ffe436", "#f7d21a", "#fff27a")))
        c.add(S.house(118, 56, 24, 11))
    elif kind == "kylvö":
        c.add(S.furrow_band(160, 52, 120, "#6e4a2c", "#4f331d", 11, 45))
        c.add(crop_rows(92, 120, 2, 46, "seedling", leaf="#6fb04a"))
        c.add(S.icon_on_ground("tractor", 60, 88, 52), S.icon_on_ground("sheaf-of-rice", 128, 112, 26))
    else:  # nosto: the crop lifted into a basket on a ripe field
        c.add('<rect y="52" width="160" height="68" fill="#d8b34a"/>')
        c.add(S.field(0, 52, 160, 68, ["#d8b34a", "#b88a2c", "#e8c860"], rows=12))
        c.add(S.grain_ears(160, 60, 96, 90, 47))
        c.add(S.icon_on_ground("basket", 96, 116, 40), icon("potato", 84, 78, 18), icon("strawberry", 104, 76, 16))
        c.add(S.icon_on_ground("woman-farmer", 40, 118, 46))
    return c.render()


for _kind in ("mansikka", "peruna", "rypsi", "kylvö", "nosto"):
    pic(f"Kuvat/maat/{_kind}.jpg")(lambda k=_kind: crop(k))


# ============================================================== weather

def weather(*layers, dark=False):
    c = Canvas(64, 64)
    gid, d = S.lin_grad([(0, "#5e7f9f" if dark else "#6fb2e8"), (1, "#b8c8d8" if dark else "#dff0fb")])
    c.add(d, f'<rect width="64" height="64" rx="8" fill="url(#{gid})"/>')
    c.add(*layers)
    return c.render()


def hail(x, y, n, seed):
    rnd = random.Random(seed)
    return "".join(f'<circle cx="{x + rnd.uniform(0, 36):.1f}" cy="{y + rnd.uniform(0, 14):.1f}" r="{rnd.uniform(2, 3.4):.1f}" '
                   f'fill="#f4fbff" stroke="#7fa3c4" stroke-width="0.8"/>' for _ in range(n))


WEATHER = {
    "aurinkoinen.gif": lambda: weather(icon("sun", 6, 6, 52)),
    "aurinkopuolipilvinen.gif": lambda: weather(icon("sun-behind-small-cloud", 4, 4, 56)),
    "aurinkopilvinen.gif": lambda: weather(icon("sun-behind-cloud", 4, 4, 56)),
    "pilvinen.gif": lambda: weather(icon("cloud", 16, 2, 40, opacity=0.8), icon("cloud", 4, 14, 50), dark=True),
    "sadekuuro.gif": lambda: weather(icon("sun-behind-rain-cloud", 4, 4, 56)),
    "sateinen.gif": lambda: weather(icon("cloud-with-rain", 4, 4, 56), dark=True),
    "lumisateinen.gif": lambda: weather(icon("cloud-with-snow", 6, 6, 52), dark=True),
    "lumipyry.gif": lambda: weather(icon("cloud", 4, 0, 50), S.snowfall(64, 64, 46, 3, 0.9, 2.4),
                                    '<path d="M4,44 q20,-8 36,0 t22,-4 M8,54 q16,-6 30,0 t20,-2" stroke="#ffffff" '
                                    'stroke-width="2.2" fill="none" stroke-linecap="round"/>', dark=True),
    "ukkonen.gif": lambda: weather(icon("cloud-with-lightning-and-rain", 4, 4, 56), dark=True),
    "raekuuro.gif": lambda: weather(icon("cloud", 6, 2, 52, recolor={"#ffffff": "#c9d3de", "#b4acbc": "#7d8a99",
                                                                     "#e1d8ec": "#aab6c4", "#d3d3d3": "#9aa5b1"}),
                                    hail(14, 44, 9, 5), dark=True),
}
for _name, _fn in WEATHER.items():
    pic(f"Kuvat/sää/{_name}")(_fn)


# ============================================================== stars, cursor

def star_pic(fill, edge, shine):
    c = Canvas(32, 32)
    pts = []
    for k in range(10):
        a = -math.pi / 2 + k * math.pi / 5
        r = 15 if k % 2 == 0 else 6.5
        pts.append(f"{16 + r * math.cos(a):.2f},{16.8 + r * math.sin(a):.2f}")
    c.add(f'<polygon points="{" ".join(pts)}" fill="{fill}" stroke="{edge}" stroke-width="1.6" stroke-linejoin="round"/>')
    c.add(f'<path d="M16,5 L13.4,13 L9,13.6" fill="none" stroke="{shine}" stroke-width="1.4" stroke-linecap="round" opacity="0.8"/>')
    img = c.render()
    img.putalpha(img.split()[3].point(lambda v: 255 if v >= 110 else 0))
    return img


pic("Kuvat/Tähti.gif")(lambda: star_pic("#ffcc1a", "#a86a00", "#fff6b0"))
pic("Kuvat/Tähti2.gif")(lambda: star_pic("#2b2b2b", "#000000", "#777777"))


@pic("Kuvat/Puhelin.gif")
def ringing_phone():
    """The main screen's phone: an old desk telephone with the rings of its bell either side, on a clear ground."""
    c = Canvas(64, 64)
    c.add(S.shadow(32, 57, 20, 3.5, 0.3))
    c.add(icon("telephone", 10, 12, 44, rotate=-8))
    for side in (-1, 1):
        for k, r in enumerate((9, 14)):
            x0 = 32 + side * (20 + k * 5)
            c.add(f'<path d="M{x0:.1f},{16 - r * 0.6:.1f} q{side * r * 0.5:.1f},{r * 0.6:.1f} 0,{r * 1.2:.1f}" '
                  f'fill="none" stroke="#c0392b" stroke-width="2.4" stroke-linecap="round"/>')
    img = c.render()
    img.putalpha(img.split()[3].point(lambda v: 255 if v >= 110 else 0))
    return img


def pitchfork(size):
    """The game's pointer: a pitchfork pointing up and left, its middle tine tip at the top left corner."""
    c = Canvas(size, size)
    k = size / 32
    g = (f'<g transform="scale({k}) rotate(-45 16 16) translate(0 2)">'
         f'<rect x="14.6" y="11" width="2.8" height="22" rx="1.2" fill="#8a5a2b" stroke="#3b2410" stroke-width="0.9"/>'
         f'<path d="M9.5,-6 L9.5,7 Q9.5,11 16,11 Q22.5,11 22.5,7 L22.5,-6" fill="none" stroke="#262626" stroke-width="3.4" stroke-linecap="round"/>'
         f'<path d="M16,-8 L16,11" stroke="#262626" stroke-width="3.4" stroke-linecap="round"/>'
         f'<path d="M9.5,-6 L9.5,7 Q9.5,11 16,11 Q22.5,11 22.5,7 L22.5,-6" fill="none" stroke="#d0d6dc" stroke-width="1.6" stroke-linecap="round"/>'
         f'<path d="M16,-8 L16,11" stroke="#d0d6dc" stroke-width="1.6" stroke-linecap="round"/>'
         f'</g>')
    c.add(f'<g transform="translate({-3 * k} {-3 * k}) translate({size * 0.18} {size * 0.18})">{g}</g>')
    img = c.render()
    img.putalpha(img.split()[3].point(lambda v: 255 if v >= 96 else 0))
    return img


pic("Kuvat/talikko.ico")(lambda: [pitchfork(32), pitchfork(16), pitchfork(48)])


# ============================================================== staff

def portrait(person, tools, bg=("#eaf4fb", "#b9d6ea"), recolor=None):
    """A staff card: the worker's bust on a soft backdrop with the tools of the job beside."""
    c = Canvas(128, 128)
    c.add(*card(128, 128, bg, frame="#5a6b7a"))
    c.add(icon(person, 6, 22, 100, recolor=recolor))
    for name, x, y, s in tools:
        c.add(S.shadow(x + s / 2, y + s * 0.95, s * 0.32, s * 0.06, 0.18), icon(name, x, y, s))
    return c.render()


CLEANER = {"#00d26a": "#f49ac1", "#008463": "#c0608a", "#46a4fb": "#9b7ae0", "#0084ce": "#6a4ab0", "#7d4533": "#c0608a"}
MILLER = {"#00d26a": "#f4efe0", "#008463": "#cfc6b0", "#46a4fb": "#b09070", "#0084ce": "#806040", "#7d4533": "#e8e2d0"}
BEEKEEPER = {"#00d26a": "#fbfaf4", "#008463": "#d8d4c8", "#46a4fb": "#f0ede4", "#0084ce": "#c8c2b4", "#7d4533": "#e8d9a0"}
LUMBERJACK = {"#ff6723": "#c0392b", "#ff9c38": "#2b2b2b", "#fcd53f": "#ff7a1a", "#fff478": "#ffb066"}
TANNER = {"#0074ba": "#7a4a2a", "#0084ce": "#9a6a40", "#26eafc": "#d0a070", "#50e2ff": "#e0b080", "#b4f6fc": "#f0d0a0"}

STAFF = {
    "Tallimestari.jpg": lambda: portrait("woman-farmer", [("horse-face", 70, 62, 56)], ("#f4f0e0", "#d9c9a0")),
    "kirjanpitäjä.jpg": lambda: portrait("office-worker", [("ledger", 78, 64, 46), ("abacus", 80, 14, 38)]),
    "kirvesmies.jpg": lambda: portrait("construction-worker", [("carpentry-saw", 72, 60, 52)], ("#f6efe2", "#e0c9a0")),
    "mylläri.jpg": lambda: portrait("man-farmer", [("sheaf-of-rice", 78, 50, 48)], ("#fbf6e6", "#e8dab0"), MILLER),
    "koira.jpg": lambda: portrait("dog", [], ("#eef6e4", "#bcd9a0")),
    "siivooja.jpg": lambda: portrait("woman-farmer", [("broom", 76, 44, 52), ("sponge", 10, 84, 30)],
                                     ("#eef6fb", "#c4e2f2"), CLEANER),
    "nahkuri.jpg": lambda: portrait("factory-worker", [("coat", 78, 58, 46), ("fox", 86, 14, 32)], ("#f6ece4", "#dcc0a8"), TANNER),
    "puutarhuri.jpg": lambda: portrait("woman-farmer", [("potted-plant", 80, 62, 44), ("tulip", 86, 18, 32)],
                                       ("#eef8e8", "#bfe0a8")),
    "leipuri.jpg": lambda: portrait("cook", [("bread", 76, 66, 46)], ("#fff6e8", "#f0d8b0")),
    "teurastaja.jpg": lambda: portrait("cook", [("cut-of-meat", 76, 64, 46), ("kitchen-knife", 84, 18, 34)],
                                       ("#fbeeee", "#e6c2c2")),
    "metsuri.jpg": lambda: portrait("construction-worker", [("axe", 80, 50, 44), ("wood", 76, 84, 36)],
                                    ("#eef6e8", "#b8d4a8"), LUMBERJACK),
    "ompelija.jpg": lambda: portrait("woman-cook", [("thread", 78, 62, 44), ("yarn", 84, 16, 34)], ("#f8eef8", "#dcc4e0")),
    "meijeri.jpg": lambda: portrait("woman-cook", [("glass-of-milk", 80, 58, 44), ("cheese-wedge", 84, 14, 34)]),
    "siementäjä.jpg": lambda: portrait("health-worker", [("syringe", 80, 62, 40), ("cow-face", 84, 14, 34)],
                                       ("#eef8f4", "#b8e0d0")),
    "viinimestari.jpg": lambda: portrait("man-office-worker", [("wine-glass", 80, 58, 44), ("grapes", 84, 14, 34)],
                                         ("#f6eef4", "#d8b8cc")),
    "mehiläishoitaja.jpg": lambda: portrait("man-farmer", [("honey-pot", 78, 62, 46), ("honeybee", 86, 16, 30)],
                                            ("#fff8e0", "#f0d890"), BEEKEEPER),
    "Varastotyöntekijä.jpg": lambda: portrait("factory-worker", [("package", 80, 64, 42), ("package", 88, 28, 34)],
                                             ("#f2f0ea", "#d0c8b8")),
}
for _name, _fn in STAFF.items():
    pic(f"Kuvat/ihmiset/{_name}")(_fn)


# ============================================================== events

EW, EH = 400, 300


def yard(c, season="summer", sky="summer", house=True, barn=True, ground="#79b445", seed=1, snow=False, lit=False):
    """The farmyard every event happens in: sky, forest edge, the red house and barn, the yard in front."""
    c.add(S.sky(EW, EH, sky))
    if sky in ("summer", "spring", "autumn"):
        c.add(S.clouds(EW, 20, 90, 4, seed, 14, 26))
    c.add(S.forest_edge(EW, 170, 70, seed=seed + 10, snow=snow, season=season))
    c.add(f'<rect y="166" width="{EW}" height="{EH - 166}" fill="{ground}"/>')
    if house:
        c.add(S.house(24, 200, 110, 48, snow=snow, lit=lit, smoke=snow))
    if barn:
        c.add(S.barn(250, 204, 130, 60, snow=snow))


def fire_scene(variant):
    c = Canvas(EW, EH)
    night_yard(c, seed=4)
    gid, d = S.rad_grad([(0, "#ff9a3c", 0.8), (1, "#ff5a1f", 0)])
    c.add(d, f'<ellipse cx="315" cy="160" rx="190" ry="140" fill="url(#{gid})"/>')
    for i in range(6):
        c.add(f'<circle cx="{300 + i * 18}" cy="{100 - i * 14}" r="{24 + i * 8}" fill="#6a6470" opacity="{0.6 - i * 0.07:.2f}"/>')
    for x, y, s in ((250, 96, 70), (300, 76, 86), (350, 100, 64), (280, 140, 50)):
        c.add(icon("fire", x, y, s))
    if variant == 2:
        c.add(S.shadow(110, 282, 80, 8), icon("fire-engine", 30, 196, 110, flip=True), icon("firefighter", 150, 200, 84))
    else:
        c.add(icon("woman-raising-hand", 150, 200, 84), icon("bucket", 110, 250, 40))
    return c.render()


def indoor(c, wall="#e8dcc4", floor="#8a6a4a", panel=None):
    c.add(f'<rect width="{EW}" height="{EH}" fill="{wall}"/>')
    if panel:
        c.add(S.planks(0, 0, EW, 200, panel, "#000000", step=26))
    c.add(f'<rect y="200" width="{EW}" height="100" fill="{floor}"/>')
    c.add(f'<rect y="196" width="{EW}" height="8" fill="#5a3b22"/>')


def court():
    c = Canvas(EW, EH)
    indoor(c, wall="#e8dcc4", floor="#6b4a2f", panel="#8a5a33")
    c.add(S.rounded_panel(150, 20, 100, 60, 6, "#f3ead2", "#5a3b22", 3))
    c.add(icon("balance-scale", 170, 22, 58))
    c.add('<rect x="60" y="170" width="280" height="130" fill="#5a3b22"/>',
          S.planks(66, 176, 268, 124, "#7a5030", "#000000", vertical=True, step=22))
    c.add(icon("judge", 140, 66, 120))
    c.add('<rect x="40" y="168" width="320" height="14" fill="#3b2410"/>')
    c.add(icon("scroll", 250, 140, 40))
    return c.render()


def lawyer_office():
    c = Canvas(EW, EH)
    indoor(c, wall="#dfe6ea", floor="#7a6a5a")
    c.add(S.window(270, 30, 100, 110, frame="#f6f6f0"))
    c.add(S.rounded_panel(30, 30, 90, 120, 4, "#6b4a2f"))
    for i in range(3):
        c.add(f'<rect x="36" y="{56 + i * 32}" width="78" height="4" fill="#4a3020"/>')
        for k in range(6):
            c.add(f'<rect x="{40 + k * 12}" y="{34 + i * 32}" width="9" height="22" fill="{["#b5452f", "#2f5d8a", "#3f7a25", "#c9a227"][(i + k) % 4]}"/>')
    c.add(icon("man-office-worker", 140, 70, 130))
    c.add('<rect x="40" y="190" width="320" height="20" fill="#6b4a2f"/><rect x="50" y="210" width="300" height="90" fill="#5a3b22"/>')
    c.add(icon("briefcase", 60, 140, 56), icon("scroll", 280, 150, 44), icon("fountain-pen", 250, 160, 34))
    return c.render()


def night_yard(c, seed=7):
    yard(c, sky="night", seed=seed, lit=True)
    c.add(S.stars_field(EW, 140, 60, seed))
    c.add(S.moon(340, 50, 22))
    c.add(f'<rect width="{EW}" height="{EH}" fill="#0b1330" opacity="0.35"/>')


def storm():
    c = Canvas(EW, EH)
    c.add(S.sky(EW, EH, "storm"))
    c.add(S.clouds(EW, 10, 70, 6, 3, 30, 50, color="#6b737d", shade="#4b525b"))
    c.add('<path d="M250,40 L236,96 L252,96 L232,160" stroke="#fff6a8" stroke-width="4" fill="none"/>')
    c.add(S.forest_edge(EW, 170, 70, seed=30))
    c.add(f'<rect y="166" width="{EW}" height="{EH - 166}" fill="#4f7a35"/>')
    c.add(S.house(24, 210, 110, 48))
    c.add('<g transform="rotate(-25 120 150)"><rect x="100" y="130" width="40" height="10" fill="#3b3b3b"/></g>',
          '<g transform="rotate(35 160 110)"><rect x="150" y="100" width="30" height="8" fill="#a52a22"/></g>')
    c.add(icon("tornado", 250, 90, 150))
    c.add(S.rain(EW, EH, 140, 8, length=22, slant=-10))
    for x, y, r, col in ((60, 60, 30, "#3b3b3b"), (330, 40, -50, "#a52a22"), (200, 120, 15, "#8a6a4a")):
        c.add(f'<rect x="{x}" y="{y}" width="26" height="7" fill="{col}" transform="rotate({r} {x} {y})"/>')
    return c.render()


def escape(w, h):
    c = Canvas(w, h)
    k = w / EW
    c.add(S.sky(w, h, "summer"), S.clouds(w, 20 * k, 90 * k, 5, 2, 14 * k, 28 * k))
    c.add(S.forest_edge(w, 170 * k, 70 * k, seed=12))
    c.add(f'<rect y="{166 * k}" width="{w}" height="{h - 166 * k}" fill="#79b445"/>')
    c.add(S.grass(w, 170 * k, h, int(200 * k), 3))
    c.add(S.fence(0, 140 * k, 230 * k, 40 * k))
    c.add(f'<g transform="rotate(20 {170 * k} {210 * k})">' + S.fence(140 * k, 200 * k, 230 * k, 40 * k) + "</g>")
    c.add(S.fence(240 * k, w, 230 * k, 40 * k))
    for x, y in ((78, 236), (212, 226), (276, 262), (14, 258)):
        c.add(f'<path d="M{(x + 4) * k},{y * k} l{22 * k},0 M{x * k},{(y + 9) * k} l{26 * k},0 M{(x + 8) * k},{(y + 18) * k} l{18 * k},0" '
              f'stroke="#ffffff" stroke-width="{3 * k}" stroke-linecap="round" opacity="0.9"/>')
    c.add(S.icon_on_ground("cow", 150 * k, 286 * k, 100 * k, flip=True))
    c.add(S.icon_on_ground("ewe", 270 * k, 262 * k, 70 * k, flip=True))
    c.add(S.icon_on_ground("pig", 330 * k, 290 * k, 70 * k, flip=True))
    c.add(S.icon_on_ground("rooster", 70 * k, 280 * k, 56 * k, flip=True))
    return c.render()


def newspaper():
    img = T.wood(EW, EH, 31, light=(190, 140, 90), dark=(120, 80, 45), boards=4)
    c = Canvas(EW, EH)
    c.add('<g transform="rotate(-4 200 150)"><rect x="62" y="32" width="280" height="236" fill="#000" opacity="0.3"/>'
          '<rect x="56" y="24" width="280" height="236" fill="#f6f1e4"/>'
          '<rect x="72" y="70" width="248" height="3" fill="#222"/>'
          '<rect x="72" y="152" width="120" height="90" fill="#e6e0d0"/>'
          + "".join(f'<rect x="{x}" y="{y}" width="{w}" height="4" fill="#9a968c"/>'
                    for x, w in ((204, 116), (72, 120)) for y in range(156 if x == 204 else 248, 248 if x == 204 else 252, 9))
          + '</g>')
    c.add(icon("chart-decreasing", 138, 150, 86))
    top = c.render()
    base = over(img, top)
    mast = Image.new("RGBA", (px(EW), px(EH)), (0, 0, 0, 0))
    md = ImageDraw.Draw(mast)
    text(md, 196, 50, "MAASEUDUN SANOMAT", 18, (30, 30, 30), serif=True)
    text(md, 196, 102, "KURSSI ROMAHTI!", 24, (170, 30, 30), serif=True)
    text(md, 196, 134, "Hinnat laskussa", 16, (40, 40, 40))
    mast = mast.rotate(4, resample=Image.BICUBIC, center=(px(200), px(150)))
    base.alpha_composite(mast)
    return base


def christmas():
    c = Canvas(EW, EH)
    c.add(S.sky(EW, EH, "night"), S.stars_field(EW, 150, 80, 9), S.moon(60, 50, 18))
    c.add(S.forest_edge(EW, 170, 70, seed=5, snow=True, season="winter"))
    c.add(f'<rect y="166" width="{EW}" height="{EH - 166}" fill="#eef3f8"/>')
    c.add(S.house(30, 214, 140, 60, snow=True, lit=True, smoke=True))
    c.add(S.shadow(290, 268, 70, 8), icon("christmas-tree", 220, 100, 160))
    c.add(icon("wrapped-gift", 190, 230, 46), icon("wrapped-gift", 330, 226, 50, recolor={"#f8312f": "#2f7d3a", "#ca0b4a": "#1c5a2a"}),
          icon("wrapped-gift", 266, 244, 40, recolor={"#f8312f": "#2f5d9a", "#ca0b4a": "#1c3a6a"}))
    c.add(icon("santa-claus", 150, 150, 60))
    c.add(S.snowfall(EW, EH, 120, 4))
    return c.render()


def congratulations():
    c = Canvas(EW, EH)
    yard(c, seed=11)
    c.add(S.sun(330, 50, 26))
    c.add(S.grass(EW, 170, EH, 200, 6), S.flowers(EW, 200, EH, 60, 2))
    c.add(S.shadow(200, 282, 70, 10), icon("trophy", 130, 120, 140))
    c.add(icon("party-popper", 30, 180, 90), icon("party-popper", 290, 180, 90, flip=True))
    c.add(icon("confetti-ball", 100, 30, 70), icon("confetti-ball", 240, 20, 70))
    for x, y in ((80, 120), (330, 130), (180, 40)):
        c.add(icon("glowing-star", x, y, 36))
    return c.render()


def spoiled():
    c = Canvas(EW, EH)
    indoor(c, wall="#b8a27a", floor="#6b5a45", panel="#8a6a45")
    for y in (90, 170):
        c.add(f'<rect x="20" y="{y}" width="360" height="10" fill="#4a3020"/>')
    for i, n in enumerate(["glass-of-milk", "cheese-wedge", "bread", "cut-of-meat", "egg"]):
        c.add(icon(n, 30 + i * 70, 34, 56, recolor=lambda r, g, b: (r * 0.75 + 20, g * 0.85 + 30, b * 0.6)))
    for i, n in enumerate(["sheaf-of-rice", "strawberry", "carrot", "grapes"]):
        c.add(icon(n, 50 + i * 80, 114, 56, recolor=lambda r, g, b: (r * 0.7 + 25, g * 0.8 + 35, b * 0.55)))
    for x in (70, 190, 300):
        c.add(f'<path d="M{x},150 q-14,-20 0,-40 q14,-20 0,-40" stroke="#8bc34a" stroke-width="5" fill="none" opacity="0.7"/>')
    c.add(icon("microbe", 250, 200, 60), icon("microbe", 320, 230, 40), icon("fly", 110, 190, 50), icon("fly", 170, 240, 34, flip=True))
    return c.render()


def relatives(variant):
    c = Canvas(EW, EH)
    yard(c, seed=13 + variant, barn=variant == 1)
    c.add(S.grass(EW, 170, EH, 200, 6 + variant))
    if variant == 1:
        c.add(S.road(EW, EH, 200, 200, 150, 40, 240))
        c.add(S.shadow(230, 284, 100, 10), icon("automobile", 120, 130, 200, flip=True))
        c.add(icon("wrapped-gift", 170, 146, 40), icon("wrapped-gift", 206, 140, 46, recolor={"#f8312f": "#2f7d3a", "#ca0b4a": "#1c5a2a"}),
              icon("wrapped-gift", 250, 148, 38, recolor={"#f8312f": "#2f5d9a", "#ca0b4a": "#1c3a6a"}))
        c.add(S.icon_on_ground("woman-walking", 360, 292, 110, flip=True), icon("basket", 20, 236, 56))
    else:
        c.add(S.barn(260, 204, 130, 60))
        c.add(S.icon_on_ground("woman-walking", 170, 290, 120, flip=True), S.icon_on_ground("man-walking", 250, 290, 130, flip=True),
              S.icon_on_ground("dog", 90, 290, 64, flip=True))
        c.add(icon("wrapped-gift", 300, 230, 56), icon("honey-pot", 340, 246, 44))
    return c.render()


def hunter():
    c = Canvas(EW, EH)
    c.add(S.sky(EW, EH, "autumn"))
    c.add(S.forest_edge(EW, 200, 130, seed=41, season="autumn", density=1.4))
    c.add(f'<rect y="196" width="{EW}" height="{EH - 196}" fill="#8a8a45"/>')
    c.add(S.grass(EW, 200, EH, 200, 8, colors=("#7a7a3a", "#9a8f4a", "#6b6a35")))
    c.add(S.icon_on_ground("deer", 310, 262, 110, flip=True))
    c.add(S.icon_on_ground("dog", 170, 286, 80, flip=True))
    c.add(S.icon_on_ground("man-farmer", 70, 296, 130, recolor={"#00d26a": "#f46a1f", "#00a6ed": "#4a5a35", "#0074ba": "#3a4a2a"}))
    c.add(icon("collision", 240, 170, 40))
    return c.render()


def thieves(variant):
    c = Canvas(EW, EH)
    night_yard(c, seed=7 + variant)
    if variant == 1:
        c.add(S.icon_on_ground("ninja", 200, 290, 130), icon("money-bag", 260, 220, 60))
        c.add(icon("package", 120, 240, 46))
    else:
        c.add(S.icon_on_ground("person-running", 180, 292, 130, recolor=lambda r, g, b: (r * 0.45, g * 0.45, b * 0.55)),
              icon("package", 222, 200, 50), S.icon_on_ground("pig", 300, 290, 56, flip=True))
    return c.render()


def activists():
    c = Canvas(EW, EH)
    yard(c, seed=17, house=False)
    c.add(S.grass(EW, 170, EH, 200, 9))
    c.add(S.fence(0, 120, 230, 36))
    c.add(S.icon_on_ground("woman-raising-hand", 80, 296, 120))
    c.add(icon("placard", 120, 120, 110))
    c.add(S.icon_on_ground("cow", 230, 270, 90, flip=True), S.icon_on_ground("pig", 330, 292, 64, flip=True),
          S.icon_on_ground("rooster", 370, 250, 44, flip=True))
    img = c.render()
    d = ImageDraw.Draw(img)
    d.rectangle([px(143), px(143), px(207) - 1, px(170) - 1], fill=(205, 201, 212))
    text(d, 175, 157, "VAPAUS!", 12, (160, 30, 30))
    return img


def disease(variant):
    c = Canvas(EW, EH)
    indoor(c, wall="#d8c8a8", floor="#a8926a", panel="#9a6a3a")
    for x in (0, 140, 280):
        c.add(f'<rect x="{x}" y="120" width="10" height="180" fill="#5a3b22"/>')
    c.add('<rect y="200" width="400" height="100" fill="#c9b078"/>', S.grass(EW, 210, EH, 120, 4, colors=("#e6c56a", "#d4b055")))
    if variant == 1:
        c.add(icon("cow-face", 60, 70, 150, recolor=lambda r, g, b: (r * 0.85 + 10, g * 0.95 + 12, b * 0.8)))
        c.add(icon("face-with-thermometer", 250, 40, 80))
        c.add(icon("microbe", 240, 170, 70), icon("microbe", 320, 200, 50), icon("microbe", 200, 230, 40))
    else:
        c.add(S.icon_on_ground("pig", 270, 292, 140))
        c.add(icon("health-worker", 30, 80, 150), icon("syringe", 160, 160, 60), icon("pill", 170, 230, 40))
        c.add(icon("microbe", 320, 60, 50))
    return c.render()


def accident():
    c = Canvas(EW, EH)
    yard(c, seed=19)
    c.add(S.grass(EW, 170, EH, 150, 10))
    c.add(S.logpile(280, 260, 100, 4))
    c.add(S.shadow(130, 286, 110, 10), icon("ambulance", 20, 150, 170))
    c.add(icon("construction-worker", 230, 150, 90), icon("adhesive-bandage", 300, 130, 60))
    return c.render()


def repairman():
    c = Canvas(EW, EH)
    yard(c, seed=23, house=False)
    c.add(S.grass(EW, 170, EH, 150, 11))
    c.add(S.shadow(150, 282, 110, 10), icon("tractor", 40, 100, 200, flip=True))
    c.add(S.icon_on_ground("mechanic", 300, 296, 130))
    c.add(icon("toolbox", 220, 240, 54), icon("wrench", 330, 150, 50), icon("collision", 120, 90, 50))
    return c.render()


def underworld():
    c = Canvas(EW, EH)
    c.add(S.sky(EW, EH, "night"), S.stars_field(EW, 100, 30, 21))
    c.add('<rect x="0" y="40" width="120" height="260" fill="#2a2f3d"/><rect x="290" y="20" width="110" height="280" fill="#262a36"/>')
    for x in (14, 54, 310, 350):
        for y in (70, 130, 190):
            c.add(S.window(x, y, 36, 40, frame="#1b1e27", lit=(x + y) % 3 == 0))
    c.add('<rect y="250" width="400" height="50" fill="#1b1d24"/>')
    gid, d = S.rad_grad([(0, "#ffe6a0", 0.6), (1, "#ffe6a0", 0)])
    c.add(d, f'<ellipse cx="200" cy="270" rx="120" ry="40" fill="url(#{gid})"/>')
    c.add('<rect x="196" y="60" width="8" height="200" fill="#3a3a3a"/><rect x="180" y="52" width="40" height="14" rx="4" fill="#ffe6a0"/>')
    c.add(S.icon_on_ground("person-in-suit-levitating", 140, 290, 180), icon("money-bag", 240, 200, 80))
    return c.render()


EVENTS = {
    "joulu.jpg": christmas,
    "Onnittelu.jpg": congratulations,
    "tuomari.jpg": court,
    "lakimies.jpg": lawyer_office,
    "lehti.jpg": newspaper,
    "pilaantunut.jpg": spoiled,
    "suku.jpg": lambda: relatives(1),
    "suku2.jpg": lambda: relatives(2),
    "Metsästäjä.jpg": hunter,
    "varkaita.jpg": lambda: thieves(1),
    "varkaita2.jpg": lambda: thieves(2),
    "tulipalo.jpg": lambda: fire_scene(1),
    "tulipalo2.jpg": lambda: fire_scene(2),
    "aktivisti.jpg": activists,
    "Tauti.jpg": lambda: disease(1),
    "Tauti2.jpg": lambda: disease(2),
    "tapaturma.jpg": accident,
    "myrsky.jpg": storm,
    "korjaaja.jpg": repairman,
    "alamaailma.jpg": underworld,
}
for _name, _fn in EVENTS.items():
    pic(f"Kuvat/sattumat/{_name}")(_fn)

# The start screen's backdrop and the picture of escaped animals are one file: a full-size picture.
pic("Kuvat/sattumat/pako.jpg")(lambda: escape(1024, 768))


# ============================================================== backdrops

W, H = 1024, 768

SEASON = {
    "summer": dict(sky="summer", far="#8fb0a0", hill="#6fae3f", hill_top="#8cc653", field=("#b9c94a", "#9bb53a", "#d6d865"),
                   fg="#5f9f35", snow=False, grass=("#4f8f2f", "#6aa83a", "#3f7a25")),
    "winter": dict(sky="winter", far="#c9d5e2", hill="#eef3f8", hill_top="#ffffff", field=("#f2f6fa", "#dfe7ef", "#e9eff5"),
                   fg="#f4f8fc", snow=True, grass=()),
    "spring": dict(sky="spring", far="#9cb8b0", hill="#8cbf55", hill_top="#a9d46e", field=("#8a6a48", "#6f5238", "#9bc45a"),
                   fg="#7db848", snow=False, grass=("#6aa83a", "#8cc653", "#5a9a2f")),
    "autumn": dict(sky="autumn", far="#a49c8a", hill="#a59a45", hill_top="#c4b158", field=("#c9a45a", "#a4783a", "#d9b86a"),
                   fg="#8f8a3a", snow=False, grass=("#8a7a3a", "#a08a45", "#6f6a30")),
}


def farm_scene(season):
    s = SEASON[season]
    c = Canvas(W, H)
    c.add(S.sky(W, H, s["sky"]))
    if season == "summer":
        c.add(S.sun(850, 110, 42))
    elif season == "spring":
        c.add(S.sun(180, 100, 36))
    elif season == "autumn":
        c.add(S.sun(760, 150, 34, color="#ffe2a0", glow="#ffd890"))
    c.add(S.clouds(W, 40, 220, 7 if season != "winter" else 9, 3, 40, 80,
                   color="#ffffff" if season != "winter" else "#e8edf3"))
    c.add(S.hill(W, H, 330, 18, s["far"], seed=5, waves=2)[0])
    c.add(S.forest_edge(W, 392, 110, seed=6, snow=s["snow"], season=season))
    path, pts = S.hill(W, H, 400, 10, s["hill"], seed=7, waves=2, top_color=s["hill_top"])
    c.add(path)
    # fields in the middle distance
    c.add(S.field(300, 430, 720, 130, list(s["field"]), rows=26))
    if season == "summer":
        c.add(S.grain_ears(W, 440, 560, 600, 3, color="#e3d36a", dark="#a7a53a", x1=340))
    if season == "spring":
        c.add(S.grass(W, 440, 560, 400, 4, colors=("#7fbf4a", "#9bd35a"), x1=340))
    c.add(S.fence(300, 1024, 566, 22, color="#7a5a3a" if not s["snow"] else "#6a5040"))
    # the farm
    c.add(S.birch(90, 560, 190, bare=season == "winter", seed=1,
                  crown="#e3a52a" if season == "autumn" else "#6cab3c", crown2="#f2c94c" if season == "autumn" else "#8cc653"))
    c.add(S.house(120, 580, 230, 100, snow=s["snow"], lit=season == "winter", smoke=season in ("winter", "autumn")))
    c.add(S.barn(560, 560, 250, 110, snow=s["snow"]))
    c.add(S.silo(830, 560, 60, 190, snow=s["snow"]))
    c.add(S.birch(400, 610, 230, bare=season == "winter", seed=2,
                  crown="#e8b02f" if season == "autumn" else "#6cab3c", crown2="#d9822b" if season == "autumn" else "#8cc653"))
    # the yard
    gid, d = S.lin_grad([(0, s["fg"]), (1, S.mix(s["fg"], "#000000", 0.15))])
    c.add(d, f'<path d="M0,590 Q512,560 1024,585 L1024,768 L0,768 Z" fill="url(#{gid})"/>')
    c.add(S.road(W, H, 590, 470, 380, 40, 300, color="#c9b48a" if not s["snow"] else "#dfe6ee"))
    if s["grass"]:
        c.add(S.grass(W, 600, H, 500, 8, colors=s["grass"], skip=lambda x, y: abs(x - (470 - (y - 590) * 0.5)) < 20 + (y - 590) * 0.85))
    if season == "summer":
        c.add(S.flowers(W, 610, H, 160, 9))
        c.add(S.icon_on_ground("cow", 780, 680, 110), S.icon_on_ground("rooster", 610, 700, 60, flip=True))
    elif season == "spring":
        c.add(S.flowers(W, 610, H, 90, 9, colors=("#ffffff", "#ffe45a", "#8aa8ff")))
        c.add('<ellipse cx="780" cy="700" rx="110" ry="22" fill="#8fb7d6" opacity="0.8"/>')
        c.add(icon("tulip", 120, 660, 56), icon("tulip", 170, 680, 50))
        for x, y, rx in ((140, 420, 60), (900, 405, 80), (520, 412, 40), (60, 630, 70), (960, 640, 60), (620, 740, 50)):
            c.add(f'<ellipse cx="{x}" cy="{y}" rx="{rx}" ry="{rx * 0.22:.0f}" fill="#f4f8fb"/>'
                  f'<ellipse cx="{x + rx * 0.3:.0f}" cy="{y - 3}" rx="{rx * 0.5:.0f}" ry="{rx * 0.12:.0f}" fill="#ffffff"/>')
        for x in (640, 690, 900):
            c.add(f'<path d="M{x},150 q10,-10 20,0 q10,-10 20,0" stroke="#333" stroke-width="3" fill="none"/>')
    elif season == "autumn":
        rnd = random.Random(4)
        c.add(S.logpile(820, 700, 150, 4))
        for _ in range(40):
            x, y = rnd.uniform(0, W), rnd.uniform(620, H)
            c.add(f'<circle cx="{x:.0f}" cy="{y:.0f}" r="{rnd.uniform(3, 7):.1f}" fill="{rnd.choice(["#e3a52a", "#c9512a", "#f2c94c"])}"/>')
    else:
        c.add(S.spruce(960, 760, 260, snow=True), S.spruce(1010, 740, 200, snow=True), S.spruce(30, 768, 230, snow=True))
        c.add('<ellipse cx="790" cy="690" rx="60" ry="10" fill="#c9d6e3" opacity="0.7"/>',
              S.logpile(730, 690, 120, 3), '<path d="M726,660 Q790,630 854,660 L850,650 Q790,618 730,650 Z" fill="#f6f9fc"/>')
        c.add(S.snowfall(W, H, 400, 5, 1, 4))
    return c.render()


pic("Kuvat/Kesä.jpg")(lambda: farm_scene("summer"))
pic("Kuvat/Talvi.jpg")(lambda: farm_scene("winter"))
pic("Kuvat/Kevät.jpg")(lambda: farm_scene("spring"))
pic("Kuvat/Syksy.jpg")(lambda: farm_scene("autumn"))


@pic("Kuvat/mökki.jpg")
def cottage():
    c = Canvas(W, H)
    c.add(S.sky(W, H, "evening"), S.sun(700, 400, 40, color="#ffe7a0", glow="#ffcf7a"))
    c.add(S.clouds(W, 60, 200, 5, 8, 40, 70, color="#f7c6a8", shade="#d79a8a", opacity=0.7))
    c.add(S.hill(W, H, 380, 14, "#4a5a6a", seed=3)[0])
    c.add(S.forest_edge(W, 424, 100, seed=31, density=1.2, season="evening"))
    gid, d = S.lin_grad([(0, "#f0b48a"), (0.35, "#9a7f9a"), (1, "#3f4a72")])
    c.add(d, f'<rect y="420" width="{W}" height="{H - 420}" fill="url(#{gid})"/>')
    rnd = random.Random(9)
    for i in range(26):
        y = 430 + i * 13
        wdt = 30 + i * 6 + rnd.uniform(0, 30)
        c.add(f'<rect x="{700 - wdt / 2 + rnd.uniform(-20, 20):.0f}" y="{y}" width="{wdt:.0f}" height="3" fill="#ffe7a0" opacity="{0.7 - i * 0.02:.2f}"/>')
    gid, d = S.lin_grad([(0, "#4f6a3a"), (1, "#2f4a25")])
    c.add(d, f'<path d="M0,540 Q300,520 560,560 Q600,650 540,768 L0,768 Z" fill="url(#{gid})"/>',
          f'<path d="M1024,600 Q900,570 820,620 Q780,700 800,768 L1024,768 Z" fill="url(#{gid})"/>')
    c.add(S.house(100, 600, 220, 100, wall="#9a3428", lit=True, smoke=True))
    c.add(S.house(400, 590, 110, 60, wall="#7a4a30", lit=True, chimney=True, smoke=True, windows=1))
    c.add('<rect x="520" y="580" width="200" height="12" fill="#7a5a3a"/>' +
          "".join(f'<rect x="{x}" y="584" width="6" height="36" fill="#4a3020"/>' for x in (530, 580, 630, 680, 714)))
    c.add(S.birch(50, 640, 280, seed=4, crown="#6f8f4a", crown2="#86a35a"),
          S.birch(920, 680, 300, seed=5, crown="#6f8f4a", crown2="#86a35a"))
    c.add(S.grass(560, 600, H, 160, 5, colors=("#3f5a2a", "#55703a", "#4a6530")))
    c.add(S.grass(W, 640, H, 60, 6, colors=("#3f5a2a", "#55703a"), x1=820))
    return c.render()


@pic("Kuvat/varasto.jpg")
def storehouse():
    img = T.wood(W, H, 41, light=(196, 150, 100), dark=(130, 88, 52), boards=1, vertical=True, rings=40)
    d = ImageDraw.Draw(img)

    def band(x1, y1, x2, y2, colour):  # the units x1..x2, y1..y2, both ends in
        d.rectangle([px(x1), px(y1), px(x2 + 1) - 1, px(y2 + 1) - 1], fill=colour)

    for x in range(0, W, 128):
        band(x, 0, x + 3, H, (90, 58, 30))
        band(x + 4, 0, x + 4, H, (222, 184, 135))
    band(0, 70, W, 96, (110, 72, 40))
    band(0, 96, W, 100, (70, 45, 22))
    band(0, 700, W, H, (100, 66, 36))
    c = Canvas(W, H)
    c.add(S.vignette(W, H, 0.45))
    c.add(S.window(440, 130, 140, 110, frame="#e9dfc8"))
    c.add(icon("package", 20, 600, 100), icon("package", 110, 620, 86), icon("package", 50, 530, 80))
    c.add(icon("wood", 900, 610, 110), icon("basket", 820, 640, 80))
    return over(img, c.render())


@pic("Kuvat/Metsä.jpg")
def forest():
    c = Canvas(W, H)
    c.add(S.sky(W, H, "summer"), S.clouds(W, 30, 150, 5, 2, 40, 70))
    c.add(S.hill(W, H, 300, 20, "#6e8f88", seed=4)[0])
    c.add(S.forest_edge(W, 380, 150, seed=50, density=1.4))
    c.add('<rect y="376" width="1024" height="400" fill="#4f7a35"/>')
    c.add(S.forest_edge(W, 460, 230, seed=51, density=1.0))
    gid, d = S.lin_grad([(0, "#5f8a3a"), (1, "#3f6a28")])
    c.add(d, f'<path d="M0,520 Q512,500 1024,520 L1024,768 L0,768 Z" fill="url(#{gid})"/>')
    c.add(S.road(W, H, 520, 560, 480, 20, 260, color="#a88e62"))
    c.add(S.spruce(120, 760, 420), S.birch(300, 740, 330, seed=7), S.spruce(900, 768, 460), S.birch(760, 740, 300, seed=8))
    c.add(S.grass(W, 530, H, 400, 12), S.flowers(W, 560, H, 60, 13, colors=("#ffffff", "#e05a9a")))
    c.add(S.logpile(600, 700, 160, 4))
    gid2, d2 = S.lin_grad([(0, "#fff6c8", 0.35), (1, "#fff6c8", 0)], x1=0, y1=0, x2=0.4, y2=1)
    c.add(d2, f'<path d="M400,0 L520,0 L760,768 L540,768 Z" fill="url(#{gid2})"/>')
    return c.render()


@pic("Kuvat/Tuotteet.jpg")
def market():
    img = T.wood(W, H, 42, light=(214, 176, 128), dark=(150, 104, 62), boards=8)
    c = Canvas(W, H)
    stripes = "".join(f'<rect x="{x}" y="0" width="64" height="120" fill="{"#c0392b" if (x // 64) % 2 == 0 else "#fbf3e4"}"/>'
                      for x in range(0, W, 64))
    scallops = "".join(f'<path d="M{x},120 a32,24 0 0 0 64,0 Z" fill="{"#c0392b" if (x // 64) % 2 == 0 else "#fbf3e4"}"/>'
                       for x in range(0, W, 64))
    c.add(stripes, scallops, '<rect y="0" width="1024" height="8" fill="#7a2a1e"/>')
    c.add('<rect y="148" width="1024" height="12" fill="#000" opacity="0.12"/>')
    c.add('<rect y="640" width="1024" height="128" fill="#7a5030"/>', '<rect y="632" width="1024" height="14" fill="#5a3b22"/>')
    row = ["cheese-wedge", "bread", "glass-of-milk", "honey-pot", "basket", "strawberry", "wine-glass", "egg",
           "yarn", "carrot", "cut-of-meat", "sheaf-of-rice"]
    for i, n in enumerate(row):
        c.add(S.shadow(50 + i * 84, 636, 30, 5), icon(n, 14 + i * 84, 566, 72))
    c.add(S.vignette(W, H, 0.3))
    return over(img, c.render())


@pic("Kuvat/Kirja.jpg")
def book():
    leather = T.noise(W, H, 40, 61, 4)
    arr = T.ramp(leather, [(0, (70, 38, 24)), (1, (120, 70, 44))])
    img = T.to_image(arr)
    pg = T.paper(470, 700, 62)
    pg2 = T.paper(470, 700, 63)
    img.paste(pg, (px(40), px(34)))
    img.paste(pg2.transpose(Image.Transpose.FLIP_LEFT_RIGHT), (px(514), px(34)))
    c = Canvas(W, H)
    gid, d = S.lin_grad([(0, "#000000", 0), (0.8, "#000000", 0.22), (1, "#000000", 0.4)], x1=0, y1=0, x2=1, y2=0)
    c.add(d, f'<rect x="430" y="34" width="82" height="700" fill="url(#{gid})"/>')
    gid2, d2 = S.lin_grad([(0, "#000000", 0.4), (0.2, "#000000", 0.22), (1, "#000000", 0)], x1=0, y1=0, x2=1, y2=0)
    c.add(d2, f'<rect x="512" y="34" width="82" height="700" fill="url(#{gid2})"/>')
    for y in (28, 736):
        c.add(f'<rect x="36" y="{y}" width="952" height="6" fill="#e6dcc4"/>')
    c.add('<path d="M90,80 h360 M574,80 h360" stroke="#b59a6a" stroke-width="2"/>')
    c.add('<path d="M90,690 h360 M574,690 h360" stroke="#b59a6a" stroke-width="2"/>')
    c.add(icon("sheaf-of-rice", 240, 692, 36, opacity=0.6), icon("sheaf-of-rice", 752, 692, 36, opacity=0.6))
    return over(img, c.render())


@pic("Kuvat/pankki.jpg")
def bank():
    marble = T.noise(W, H, 60, 71, 5)
    wall = T.to_image(T.ramp(marble, [(0, (238, 232, 220)), (0.6, (222, 214, 198)), (1, (206, 196, 180))]))
    c = Canvas(W, H)
    # floor in perspective
    c.add('<rect y="560" width="1024" height="208" fill="#d9cfbd"/>')
    for i in range(-12, 14):
        c.add(f'<line x1="{512 + i * 40}" y1="560" x2="{512 + i * 160}" y2="768" stroke="#b9ad96" stroke-width="2"/>')
    for y in (590, 630, 684, 752):
        c.add(f'<line x1="0" y1="{y}" x2="1024" y2="{y}" stroke="#b9ad96" stroke-width="2"/>')
    for x in (60, 300, 664, 904):
        gid, d = S.lin_grad([(0, "#c9bfae"), (0.4, "#f6f1e8"), (1, "#b9ae9b")], x1=0, y1=0, x2=1, y2=0)
        c.add(d, f'<rect x="{x}" y="90" width="60" height="470" fill="url(#{gid})"/>',
              f'<rect x="{x - 12}" y="70" width="84" height="24" fill="#e9e2d4" stroke="#b9ad96"/>',
              f'<rect x="{x - 12}" y="546" width="84" height="20" fill="#e9e2d4" stroke="#b9ad96"/>')
    c.add('<rect y="40" width="1024" height="34" fill="#e2d9c6" stroke="#b9ad96"/>')
    c.add(S.rounded_panel(392, 120, 240, 160, 8, "#2f4f3f", "#c9a227", 6))
    c.add(icon("classical-building", 452, 140, 120))
    c.add('<rect x="150" y="470" width="724" height="100" fill="#6b4a2f"/><rect x="140" y="456" width="744" height="18" fill="#4a3020"/>')
    for x in range(170, 860, 90):
        c.add(f'<rect x="{x}" y="486" width="70" height="70" fill="none" stroke="#8a6a4a" stroke-width="3"/>')
    c.add(icon("money-bag", 180, 390, 70), icon("coin", 260, 420, 40), icon("coin", 290, 426, 36), icon("ledger", 760, 396, 64))
    c.add(S.vignette(W, H, 0.3))
    return over(wall, c.render())


@pic("Kuvat/iltapelto.jpg")
def evening_field():
    c = Canvas(W, H)
    c.add(S.sky(W, H, "evening"), S.sun(640, 430, 50, color="#ffe9a8", glow="#ffc46a"))
    c.add(S.clouds(W, 60, 260, 6, 14, 40, 80, color="#f6b8a0", shade="#c7808a", opacity=0.75))
    c.add(S.hill(W, H, 420, 10, "#3b3550", seed=8)[0])
    c.add(S.forest_edge(W, 460, 110, seed=80, season="evening"))
    c.add('<rect y="456" width="1024" height="320" fill="#3a3040" opacity="0"/>')
    gid, d = S.lin_grad([(0, "#d69a4a"), (1, "#7a5030")])
    c.add(d, '<rect y="456" width="1024" height="312" fill="url(#%s)"/>' % gid)
    c.add(S.grain_ears(W, 470, H, 900, 81, color="#f2c46a", dark="#8a5a2a"))
    c.add(S.barn(140, 470, 130, 56, wall="#5a2a2a", roof="#2a2a2a", trim="#c9a48a"))
    c.add(S.birch(880, 720, 300, seed=82, crown="#5f7a4a", crown2="#70884f"))
    return c.render()


@pic("Kuvat/kirkonkylä.jpg")
def village():
    c = Canvas(W, H)
    c.add(S.sky(W, H, "summer"), S.sun(120, 100, 36), S.clouds(W, 40, 200, 6, 6, 40, 70))
    c.add(S.hill(W, H, 360, 16, "#86a89a", seed=10)[0])
    c.add(S.forest_edge(W, 420, 100, seed=90))
    path, pts = S.hill(W, H, 440, 8, "#7cb342", seed=11, top_color="#95c85a")
    c.add(path)
    c.add(S.road(W, H, 470, 520, 560, 30, 360))
    c.add(S.church(420, 470, 200, 80))
    c.add(S.house(90, 520, 150, 64, wall="#d9b44a"))
    c.add(S.house(700, 520, 160, 66))
    c.add(S.house(260, 480, 100, 44, wall="#f1ece0", trim="#4a6b8a"))
    c.add(S.house(880, 480, 110, 46, wall="#7a9ab8"))
    c.add(S.fence(0, 380, 560, 20), S.fence(680, 1024, 560, 20))
    c.add(S.birch(40, 660, 280, seed=91), S.birch(980, 690, 320, seed=92), S.leafy_tree(640, 600, 200, seed=93))
    c.add(S.grass(W, 560, H, 400, 94), S.flowers(W, 580, H, 100, 95))
    return c.render()


@pic("Kuvat/PeltoTaloja.jpg")
def fields_houses():
    c = Canvas(W, H)
    c.add(S.sky(W, H, "summer"), S.clouds(W, 40, 200, 7, 12, 40, 80))
    c.add(S.hill(W, H, 330, 16, "#8fb0a0", seed=12)[0])
    c.add(S.forest_edge(W, 370, 80, seed=100))
    c.add(S.hill(W, H, 380, 8, "#9bc45a", seed=13)[0])
    bands = [(390, 440, "#d9c35a", "#b89a3a"), (440, 510, "#8fbf4a", "#6f9f35"), (510, 600, "#e0c060", "#b8953a"),
             (600, 768, "#7cb342", "#5f9a35")]
    for y1, y2, a, b in bands:
        c.add(S.furrow_band(W, y1, y2, a, b, int((y2 - y1) / 6)))
    for x, y, w, wall in ((120, 430, 70, "#b8332b"), (330, 420, 60, "#d9b44a"), (600, 436, 80, "#b8332b"), (820, 424, 60, "#f1ece0")):
        c.add(S.house(x, y, w, w * 0.42, wall=wall))
    c.add(S.barn(690, 438, 90, 40))
    c.add(S.fence(0, 1024, 620, 24))
    c.add(S.grass(W, 620, H, 300, 14))
    c.add(S.icon_on_ground("horse", 300, 720, 130), S.icon_on_ground("horse", 500, 700, 100, flip=True,
                                                                    recolor={"#a56953": "#d8b48a", "#6d4534": "#a8845a"}))
    return c.render()


@pic("Kuvat/Käyrät.jpg")
def charts():
    img = T.paper(W, H, 110, base=(250, 247, 238), spot=(236, 228, 210))
    c = Canvas(W, H)
    for x in range(0, W, 16):
        c.add(f'<line x1="{x}" y1="0" x2="{x}" y2="{H}" stroke="#9cc0dc" stroke-width="{1.4 if x % 80 == 0 else 0.6}" opacity="0.6"/>')
    for y in range(0, H, 16):
        c.add(f'<line x1="0" y1="{y}" x2="{W}" y2="{y}" stroke="#9cc0dc" stroke-width="{1.4 if y % 80 == 0 else 0.6}" opacity="0.6"/>')
    rnd = random.Random(7)
    for col, base in (("#c0392b", 520), ("#2f7d3a", 400), ("#2f5d9a", 600)):
        pts, y = [], base
        for x in range(0, W + 40, 40):
            y += rnd.uniform(-30, 26)
            pts.append(f"{x},{y:.0f}")
        c.add(f'<polyline points="{" ".join(pts)}" fill="none" stroke="{col}" stroke-width="3" opacity="0.25"/>')
    c.add('<line x1="80" y1="40" x2="80" y2="720" stroke="#555" stroke-width="2" opacity="0.35"/>'
          '<line x1="80" y1="720" x2="1000" y2="720" stroke="#555" stroke-width="2" opacity="0.35"/>')
    return over(img, c.render())


@pic("Kuvat/Kylväminen.jpg")
def sowing():
    c = Canvas(W, H)
    c.add(S.sky(W, H, "spring"), S.sun(860, 110, 40), S.clouds(W, 40, 200, 6, 15, 40, 70))
    c.add(S.hill(W, H, 340, 14, "#9cb8b0", seed=15)[0])
    c.add(S.forest_edge(W, 400, 100, seed=110, season="spring"))
    c.add(S.furrow_band(W, 398, H, "#8a6a48", "#5f4530", 60))
    c.add(S.grass(W, 400, 470, 200, 16, colors=("#7fbf4a", "#9bd35a")))
    c.add(S.house(60, 410, 120, 50))
    c.add(S.shadow(560, 640, 170, 18), icon("tractor", 380, 360, 320, flip=True))
    c.add('<path d="M700,560 Q840,600 1024,600 L1024,660 Q840,650 720,610 Z" fill="#6f5238" opacity="0.6"/>')
    for x, y in ((760, 300), (820, 260), (880, 330), (260, 250)):
        c.add(f'<path d="M{x},{y} q12,-12 24,0 q12,-12 24,0" stroke="#f4f4f4" stroke-width="4" fill="none"/>')
    c.add(icon("sheaf-of-rice", 60, 600, 120), icon("seedling", 200, 660, 70))
    return c.render()


def light_backdrop(n):
    if n == 1:
        c = Canvas(W, H)
        c.add(S.sky(W, H, "summer"), f'<rect width="{W}" height="{H}" fill="#ffffff" opacity="0.45"/>')
        c.add(S.clouds(W, 60, 700, 14, 1, 60, 110, opacity=0.8))
        return c.render()
    if n == 2:
        c = Canvas(W, H)
        gid, d = S.lin_grad([(0, "#eef7e2"), (0.6, "#d6ecbc"), (1, "#b9dc96")])
        c.add(d, f'<rect width="{W}" height="{H}" fill="url(#{gid})"/>')
        c.add(S.hill(W, H, 520, 20, "#a9d480", seed=16)[0], S.grass(W, 560, H, 500, 17, colors=("#9ccc70", "#b6dc8c")))
        c.add(S.flowers(W, 560, H, 120, 18))
        c.add(f'<rect width="{W}" height="{H}" fill="#ffffff" opacity="0.35"/>')
        return c.render()
    if n == 3:
        return T.wood(W, H, 120, light=(246, 226, 196), dark=(216, 186, 148), boards=6)
    if n == 4:
        return T.paper(W, H, 121)
    img = T.birch_bark(W, H, 122, per_mark=5000)
    return Image.blend(img, blank(W, H, (250, 248, 242)), 0.35)


for _n in range(1, 6):
    pic(f"Kuvat/Valotausta{_n}.jpg")(lambda n=_n: light_backdrop(n))


@pic("Kuvat/Sopimukset.jpg")
def contracts():
    img = T.wood(W, H, 130, light=(176, 120, 72), dark=(112, 70, 38), boards=5)
    c = Canvas(W, H)
    for x, y, r in ((120, 120, -8), (660, 90, 6)):
        c.add(f'<g transform="rotate({r} {x + 130} {y + 170})"><rect x="{x + 8}" y="{y + 8}" width="260" height="340" fill="#000" opacity="0.3"/>'
              f'<rect x="{x}" y="{y}" width="260" height="340" fill="#fbf7ec"/>'
              + "".join(f'<rect x="{x + 30}" y="{y + 70 + k * 22}" width="{200 - (k % 3) * 30}" height="5" fill="#b8b2a4"/>' for k in range(10))
              + f'<rect x="{x + 30}" y="{y + 30}" width="140" height="12" fill="#5a5a5a"/>'
              f'<path d="M{x + 130},{y + 310} q20,-30 40,0 t40,-5" stroke="#1f3f8a" stroke-width="3" fill="none"/></g>')
    c.add(icon("handshake", 420, 470, 190), icon("fountain-pen", 580, 420, 90, rotate=20))
    c.add(S.vignette(W, H, 0.35))
    return over(img, c.render())


@pic("Kuvat/OhraPelto2.jpg")
def barley():
    c = Canvas(W, H)
    c.add(S.sky(W, H, "summer"), S.clouds(W, 30, 220, 6, 20, 50, 90))
    c.add(S.forest_edge(W, 330, 90, seed=140))
    gid, d = S.lin_grad([(0, "#e6c866"), (1, "#b88a2c")])
    c.add(d, f'<rect y="326" width="1024" height="442" fill="url(#{gid})"/>')
    c.add(S.grain_ears(W, 330, H, 1800, 141, color="#f2d77a", dark="#b08a3a"))
    return c.render()


def misty_field(n):
    c = Canvas(W, H)
    c.add(S.sky(W, H, "dawn"))
    if n == 2:
        c.add(S.sun(300, 300, 36, color="#fff4d6", glow="#fff0c8"))
    c.add(S.forest_edge(W, 400, 120, seed=150 + n, density=1.2))
    c.add(S.mist(W, H, 300, 460, 0.8, "#f3ede6"))
    if n == 2:
        c.add(S.barn(640, 470, 160, 70, wall="#9a5a52", roof="#7a7a7a"))
    else:
        c.add(S.house(140, 470, 120, 50, wall="#a06a62", roof="#8a8a8a"))
    gid, d = S.lin_grad([(0, "#9fb08a"), (1, "#55703a")])
    c.add(d, f'<rect y="466" width="1024" height="302" fill="url(#{gid})"/>')
    c.add(S.furrow_band(W, 470, H, "#7f9460", "#5f7440", 40))
    c.add(S.mist(W, H, 420, 640, 0.75, "#eef0ec"))
    c.add(S.birch(880 if n == 1 else 120, 740, 330, seed=152 + n, crown="#7f9f6a", crown2="#98b880"))
    c.add(S.mist(W, H, 600, 800, 0.4, "#f2f2ee"))
    return c.render()


pic("Kuvat/peltosumu.jpg")(lambda: misty_field(1))
pic("Kuvat/peltosumu2.jpg")(lambda: misty_field(2))


# ============================================================== button textures, plate, logos

pic("Kuvat/nappi.jpg")(lambda: T.bevel(T.wood(256, 64, 160, light=(236, 206, 160), dark=(196, 152, 100), rings=6), 3))
pic("Kuvat/nappi2.jpg")(lambda: T.bevel(T.paper(256, 64, 161, base=(246, 238, 216), spot=(226, 210, 170)), 3, 60, 50))
pic("Kuvat/nappi3.jpg")(lambda: T.bevel(Image.blend(T.birch_bark(256, 64, 162, per_mark=2500), blank(256, 64, (240, 238, 230)), 0.6),
                                       3, 40, 60))
pic("Kuvat/rahakyltti.jpg")(lambda: T.brass(320, 80, 170))


def emblem(c, cx, cy, r):
    """The farm's mark: a round badge with a red barn under the sun between two sheaves."""
    gid, d = S.lin_grad([(0, "#8fc8ef"), (1, "#e8f4fb")])
    c.add(f'<circle cx="{cx}" cy="{cy}" r="{r}" fill="#6b3a1f"/>', d,
          f'<circle cx="{cx}" cy="{cy}" r="{r * 0.9}" fill="url(#{gid})"/>')
    cid = S.uid("cp")
    parts = [S.sun(cx + r * 0.35, cy - r * 0.4, r * 0.14),
             f'<rect x="{cx - r}" y="{cy + r * 0.15}" width="{2 * r}" height="{r}" fill="#6aa83a"/>',
             S.furrow_band(4000, cy + r * 0.5, cy + r, "#d9b84a", "#a4783a", 8).replace('x="0"', f'x="{cx - r}"').replace('width="4000"', f'width="{2 * r}"'),
             S.barn(cx - r * 0.42, cy + r * 0.3, r * 0.84, r * 0.42),
             S.spruce(cx - r * 0.62, cy + r * 0.28, r * 0.5), S.spruce(cx + r * 0.62, cy + r * 0.28, r * 0.45)]
    c.add(f'<clipPath id="{cid}"><circle cx="{cx}" cy="{cy}" r="{r * 0.9}"/></clipPath><g clip-path="url(#{cid})">'
          + "".join(parts) + "</g>")
    c.add(f'<circle cx="{cx}" cy="{cy}" r="{r * 0.9}" fill="none" stroke="#e8c05a" stroke-width="{r * 0.04}"/>')
    c.add(icon("sheaf-of-rice", cx - r * 1.35, cy - r * 0.1, r * 0.7, rotate=-20),
          icon("sheaf-of-rice", cx + r * 0.65, cy - r * 0.1, r * 0.7, rotate=20, flip=True))


@pic("Kuvat/ahma.jpg")
def logo():
    c = Canvas(420, 320)
    c.add('<rect width="420" height="320" fill="#ffffff"/>')
    emblem(c, 210, 130, 100)
    img = c.render()
    text(ImageDraw.Draw(img), 210, 278, "TANHUA", 50, (110, 40, 24), serif=True, stroke=1, stroke_fill=(60, 20, 10))
    return img


@pic("Kuvat/software.jpg")
def wordmark():
    img = blank(400, 90, (255, 255, 255))
    c = Canvas(400, 90)
    c.add(icon("sheaf-of-rice", 10, 16, 58), icon("sheaf-of-rice", 332, 16, 58, flip=True))
    c.add('<path d="M80,70 h240" stroke="#b88a2c" stroke-width="3"/>')
    img = over(img, c.render())
    text(ImageDraw.Draw(img), 200, 40, "maatilapeli", 38, (60, 90, 40), serif=True, bold=False)
    return img


@pic("Kuvat/ahmasofta.jpg")
def makers_plate():
    img = T.wood(300, 110, 180, light=(210, 164, 110), dark=(150, 100, 58), boards=1, rings=5)
    img = T.bevel(img, 4)
    c = Canvas(300, 110)
    emblem(c, 52, 55, 36)
    img = over(img, c.render())
    d = ImageDraw.Draw(img)
    text(d, 190, 40, "TANHUA", 34, (70, 30, 14), serif=True)
    text(d, 190, 76, "suomalainen maatilapeli", 14, (60, 34, 18), bold=False)
    return img


@pic("Kuvat/PlayerLogo.gif")
def player_logo():
    """The music player's badge on the main screen: an accordion with notes rising from it on a round
    wooden plate."""
    c = Canvas(64, 64)
    gid, d = S.rad_grad([(0, "#f3d9a4"), (1, "#b9854a")], cx=0.45, cy=0.4, r=0.65)
    c.add(d, '<circle cx="32" cy="32" r="30" fill="#6b3a1f"/>',
          f'<circle cx="32" cy="32" r="27" fill="url(#{gid})"/>',
          '<circle cx="32" cy="32" r="27" fill="none" stroke="#fff4d6" stroke-opacity="0.6" stroke-width="1"/>')
    c.add(icon("accordion", 6, 20, 36), icon("musical-notes", 32, 6, 26))
    img = c.render()
    img.putalpha(img.split()[3].point(lambda v: 255 if v >= 110 else 0))
    return img
