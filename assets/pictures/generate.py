#!/usr/bin/python3
"""Build every picture of Tanhua's program folder from the sources in this directory.

    /usr/bin/python3 generate.py OUTDIR [--stamp FILE] [--jobs N] [--only SUBSTRING]

Writes OUTDIR/Kuvat/... (JPEG for .jpg, GIF for .gif, a Windows icon for .ico). The set of pictures must equal
manifest.txt, the list the game's asset check walks; a difference is an error, so the two cannot drift apart.
"""
import argparse
import os
import struct
import sys
import time
from multiprocessing import Pool

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

import catalogue  # noqa: E402
import numpy as np  # noqa: E402
from PIL import Image  # noqa: E402

# The pictures are shown at two pixels a unit, so a JPEG's blocks are half the size on the screen that they
# would be at one: quality 85 looks as clean as 90 did, and keeps the program folder's size down.
JPEG_QUALITY = 85


def read_manifest():
    with open(os.path.join(HERE, "manifest.txt"), encoding="utf-8") as f:
        return [line.strip() for line in f if line.strip() and not line.startswith("#")]


def flatten(img, background=(255, 255, 255)):
    if img.mode == "RGBA":
        base = Image.new("RGB", img.size, background)
        base.paste(img, mask=img.split()[3])
        return base
    return img.convert("RGB")


def save_gif(img, path):
    """A GIF of up to 255 colours; fully clear pixels of an RGBA picture become the transparent colour."""
    if img.mode == "RGBA" and img.getextrema()[3][0] < 128:
        alpha = img.split()[3]
        rgb = flatten(img, (250, 246, 236))
        pal = rgb.quantize(colors=255, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
        data = np.asarray(pal).copy()
        data[np.asarray(alpha) < 128] = 255
        out = Image.fromarray(data, "P")
        palette = pal.getpalette()[: 255 * 3]
        palette += [0] * (255 * 3 - len(palette)) + [255, 0, 255]
        out.putpalette(palette)
        out.save(path, "GIF", transparency=255, optimize=False)
    else:
        rgb = flatten(img)
        rgb.quantize(colors=256, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.FLOYDSTEINBERG).save(
            path, "GIF", optimize=False)


def ico_entry(img):
    """One image of a Windows icon file: a 32-bit BGRA bitmap, bottom-up, with its 1-bit AND mask."""
    w, h = img.size
    rgba = np.asarray(img.convert("RGBA"))[::-1]
    xor = rgba[..., [2, 1, 0, 3]].tobytes()
    # the AND mask: a bit a pixel, set where the picture is clear, each row padded to whole 32-bit words
    row = ((w + 31) // 32) * 4
    clear = np.zeros((h, row * 8), np.uint8)
    clear[:, :w] = rgba[..., 3] < 128
    mask = np.packbits(clear, axis=1).tobytes()
    header = struct.pack("<IiiHHIIiiII", 40, w, h * 2, 1, 32, 0, len(xor) + len(mask), 0, 0, 0, 0)
    return header + xor + mask


def save_ico(images, path):
    entries = [ico_entry(im) for im in images]
    out = bytearray(struct.pack("<HHH", 0, 1, len(images)))
    offset = 6 + 16 * len(images)
    for im, data in zip(images, entries):
        w, h = im.size
        out += struct.pack("<BBBBHHII", w % 256, h % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    for data in entries:
        out += data
    with open(path, "wb") as f:
        f.write(out)


def build_one(args):
    rel, outdir = args
    t = time.time()
    result = catalogue.PICTURES[rel]()
    path = os.path.join(outdir, rel)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    tmp = path + ".tmp"
    ext = rel.rsplit(".", 1)[1].lower()
    if ext == "jpg":
        flatten(result).save(tmp, "JPEG", quality=JPEG_QUALITY, optimize=True)
    elif ext == "gif":
        save_gif(result, tmp)
    elif ext == "ico":
        save_ico(result if isinstance(result, list) else [result], tmp)
    else:
        raise ValueError(f"no writer for {rel}")
    os.replace(tmp, path)
    return rel, time.time() - t


def main():
    ap = argparse.ArgumentParser(description=__doc__)
    ap.add_argument("outdir")
    ap.add_argument("--stamp")
    ap.add_argument("--jobs", type=int, default=min(2, os.cpu_count() or 1))
    ap.add_argument("--only", help="build only the pictures whose path contains this text")
    args = ap.parse_args()

    manifest = read_manifest()
    made = set(catalogue.PICTURES)
    missing, extra = sorted(set(manifest) - made), sorted(made - set(manifest))
    if missing or extra or len(manifest) != len(set(manifest)):
        sys.exit(f"manifest.txt and the catalogue disagree: not drawn {missing}, not listed {extra}")

    todo = [r for r in manifest if not args.only or args.only.lower() in r.lower()]
    t0 = time.time()
    work = [(r, args.outdir) for r in todo]
    if args.jobs > 1:
        with Pool(args.jobs) as pool:
            done = pool.map(build_one, work, chunksize=1)
    else:
        done = [build_one(w) for w in work]
    slow = sorted(done, key=lambda d: -d[1])[:3]
    print(f"{len(done)} pictures in {time.time() - t0:.1f} s; slowest: "
          + ", ".join(f"{r} {s:.2f} s" for r, s in slow))
    if args.stamp and not args.only:
        with open(args.stamp, "w", encoding="utf-8") as f:
            f.write("\n".join(manifest) + "\n")


if __name__ == "__main__":
    main()
