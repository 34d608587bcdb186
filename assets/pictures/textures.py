"""Surface textures for Tanhua's pictures: wood, paper, brass, made from seeded noise with numpy and Pillow.

Sizes, cells and widths are in units (see scene.py); the textures come out at SCALE pixels a unit. The random
grids depend on the units only, so a texture is the same at any scale, with finer pixels.
"""
import numpy as np
from PIL import Image, ImageDraw, ImageFilter

from scene import SCALE, px


def noise(w, h, cell, seed, octaves=3):
    """Smooth value noise in [0, 1] over w x h units: random grids of growing fineness, scaled up bicubically to
    the pixels and summed."""
    rng = np.random.default_rng(seed)
    pw, ph = px(w), px(h)
    total = np.zeros((ph, pw), np.float32)
    amp, norm = 1.0, 0.0
    for o in range(octaves):
        c = max(1, cell // (2 ** o))
        gw, gh = w // c + 3, h // c + 3
        grid = (rng.random((gh, gw)) * 255).astype(np.uint8)
        big = Image.fromarray(grid).resize((px(gw * c), px(gh * c)), Image.BICUBIC)
        total += np.asarray(big, np.float32)[:ph, :pw] / 255.0 * amp
        norm += amp
        amp *= 0.5
    return total / norm


def ramp(values, colors):
    """Map values in [0, 1] to colours through a list of (position, (r, g, b)) stops."""
    pos = np.array([p for p, _ in colors], np.float32)
    out = np.zeros(values.shape + (3,), np.float32)
    for ch in range(3):
        out[..., ch] = np.interp(values, pos, [c[ch] for _, c in colors])
    return out


def to_image(arr):
    return Image.fromarray(np.clip(arr, 0, 255).astype(np.uint8), "RGB")


def wood(w, h, seed, light=(222, 184, 135), dark=(168, 118, 70), boards=1, vertical=False, rings=22.0):
    """Planed wood with long grain along the board; boards > 1 draws that many boards with dark seams."""
    if vertical:
        return wood(h, w, seed, light, dark, boards, False, rings).transpose(Image.Transpose.ROTATE_90)
    pw, ph = px(w), px(h)
    y = np.arange(ph, dtype=np.float32)[:, None] / ph
    x = np.arange(pw, dtype=np.float32)[None, :] / pw
    # grain runs along the board: the noise that bends it changes slowly along x and faster across
    sw = max(8, w // 10)
    slow = np.asarray(Image.fromarray((noise(sw, h, max(4, h // 5), seed, 3) * 255).astype(np.uint8))
                      .resize((pw, ph), Image.BICUBIC), np.float32) / 255
    warp = slow * 1.2 + noise(w, h, max(4, w // 30), seed + 1, 2) * 0.12
    board_h = 1.0 / boards
    phase = (y % board_h) / board_h
    grain = np.sin((phase * rings + warp * 3.0 + x * 0.6) * np.pi * 2)
    fine = noise(w, h, 3, seed + 2, 1)
    streak = np.asarray(Image.fromarray((noise(max(2, w // 16), h, 1, seed + 3, 1) * 255).astype(np.uint8))
                        .resize((pw, ph), Image.BILINEAR), np.float32) / 255
    v = 0.55 + 0.25 * grain + 0.12 * (fine - 0.5) + 0.08 * (streak - 0.5)
    v = np.clip(v, 0, 1)
    arr = ramp(1 - v, [(0, light), (1, dark)])
    if boards > 1:
        # a seam: two units of shadow, then one of light on the edge of the next board
        for b in range(1, boards):
            yy = px(int(b * h / boards))
            arr[max(0, yy - SCALE):yy + SCALE] *= 0.55
            arr[yy + SCALE:yy + 2 * SCALE] *= 1.08
    return to_image(arr)


def paper(w, h, seed, base=(243, 232, 205), spot=(222, 203, 160)):
    """Old paper: soft blotches, fine fibres and slightly darker edges."""
    blot = noise(w, h, max(16, w // 5), seed, 4)
    fib = noise(w, h, 2, seed + 7, 1)
    v = 0.7 * blot + 0.3 * fib
    arr = ramp(np.clip((v - 0.3) * 1.6, 0, 1), [(0, base), (1, spot)])
    pw, ph = px(w), px(h)
    yy, xx = np.mgrid[0:ph, 0:pw].astype(np.float32)
    d = np.minimum(np.minimum(xx, pw - 1 - xx) / pw, np.minimum(yy, ph - 1 - yy) / ph)
    edge = np.clip(1 - d / 0.08, 0, 1)[..., None]
    arr = arr * (1 - 0.18 * edge)
    return to_image(arr)


def brass(w, h, seed):
    """A brushed brass plate with a bevelled edge and four screws."""
    streak = noise(w, h, 2, seed, 1)
    ph = px(h)
    yy = np.arange(ph, dtype=np.float32)[:, None] / ph
    sheen = 0.55 + 0.35 * np.cos((yy - 0.35) * np.pi * 1.6) + 0.1 * (streak - 0.5)
    arr = ramp(np.clip(sheen, 0, 1), [(0, (120, 84, 30)), (0.5, (196, 152, 70)), (1, (248, 221, 150))])
    img = to_image(arr)
    d = ImageDraw.Draw(img)
    b = max(2, h // 16)
    # the plate is laid out in units; the pixel box of a unit span [a, b] is [a * SCALE, (b + 1) * SCALE - 1]
    d.rectangle([0, 0, px(w) - 1, px(h) - 1], outline=(92, 62, 22), width=px(b))
    d.rectangle([px(b), px(b), px(w - b) - 1, px(h - b) - 1], outline=(250, 230, 170), width=SCALE)
    r = max(2, h // 14)
    for cx, cy in ((b * 3, b * 3), (w - b * 3, b * 3), (b * 3, h - b * 3), (w - b * 3, h - b * 3)):
        d.ellipse([px(cx - r), px(cy - r), px(cx + r + 1) - 1, px(cy + r + 1) - 1], fill=(150, 110, 45),
                  outline=(90, 60, 20), width=SCALE)
        d.rectangle([px(cx - r + 1), px(cy), px(cx + r) - 1, px(cy + 1) - 1], fill=(80, 55, 20))
    return img


def bevel(img, depth=3, light=70, dark=70):
    """Raise the picture like a button: a light top-left edge and a dark bottom-right edge, depth units wide."""
    arr = np.asarray(img.convert("RGB"), np.float32).copy()
    h, w = arr.shape[:2]
    depth = px(depth)
    for i in range(depth):
        f = 1 - i / depth
        arr[i, i:w - i] += light * f
        arr[i:h - i, i] += light * f
        arr[h - 1 - i, i:w - i] -= dark * f
        arr[i:h - i, w - 1 - i] -= dark * f
    return to_image(arr)


def birch_bark(w, h, seed, per_mark=900):
    """White birch bark with dark horizontal lenticels, one for every per_mark pixels."""
    base = noise(w, h, max(8, w // 8), seed, 3)
    arr = ramp(base, [(0, (236, 232, 222)), (1, (214, 208, 196))])
    img = to_image(arr)
    d = ImageDraw.Draw(img)
    rng = np.random.default_rng(seed)
    for _ in range(int(w * h / per_mark)):
        x, y = rng.integers(0, w), rng.integers(0, h)
        L = int(rng.integers(4, max(6, w // 10)))
        t = int(rng.integers(1, 3))
        # a mark t units thick, its top edge on the unit row y
        d.rectangle([px(x), px(y), px(x + L + 1) - 1, px(y + t) - 1], fill=tuple(int(v) for v in rng.integers(40, 90, 3)))
    return img.filter(ImageFilter.SMOOTH)
