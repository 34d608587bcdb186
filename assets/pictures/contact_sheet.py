#!/usr/bin/python3
"""One PNG that shows every picture of the program folder with its path under it.

    /usr/bin/python3 contact_sheet.py PROGRAM_DIR OUT.png [--only SUBSTRING]

Reads the list of pictures from manifest.txt beside this script; a picture that is missing from PROGRAM_DIR is
shown as a red box with the word PUUTTUU, so a gap is seen at once.
"""
import argparse
import os

from PIL import Image, ImageDraw, ImageFont

HERE = os.path.dirname(os.path.abspath(__file__))
CELL_W, THUMB_H, LABEL_H, PAD = 200, 150, 30, 8


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("program_dir")
    ap.add_argument("out")
    ap.add_argument("--only")
    ap.add_argument("--columns", type=int, default=8)
    args = ap.parse_args()
    with open(os.path.join(HERE, "manifest.txt"), encoding="utf-8") as f:
        paths = [p.strip() for p in f if p.strip()]
    if args.only:
        paths = [p for p in paths if args.only.lower() in p.lower()]
    cols = args.columns
    rows = (len(paths) + cols - 1) // cols
    cell_h = THUMB_H + LABEL_H + PAD
    sheet = Image.new("RGB", (cols * (CELL_W + PAD) + PAD, rows * cell_h + PAD), (64, 64, 64))
    draw = ImageDraw.Draw(sheet)
    try:
        fnt = ImageFont.truetype("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", 10)
    except OSError:
        fnt = ImageFont.load_default()
    missing = 0
    for i, rel in enumerate(paths):
        x = PAD + (i % cols) * (CELL_W + PAD)
        y = PAD + (i // cols) * cell_h
        # a checkerboard shows the transparent parts of GIF pictures
        for cy in range(0, THUMB_H, 10):
            for cx in range(0, CELL_W, 10):
                shade = 200 if (cx // 10 + cy // 10) % 2 else 230
                draw.rectangle([x + cx, y + cy, x + cx + 9, y + cy + 9], fill=(shade, shade, shade))
        path = os.path.join(args.program_dir, rel)
        try:
            img = Image.open(path)
            size = img.size
            if getattr(img, "n_frames", 1) > 1 or img.format == "ICO":
                img = Image.open(path)
                if img.format == "ICO":
                    img.size = max(img.info.get("sizes", [img.size]))
            img = img.convert("RGBA")
            img.thumbnail((CELL_W, THUMB_H), Image.LANCZOS if max(img.size) > CELL_W else Image.NEAREST)
            if max(img.size) < 64:
                k = 64 // max(img.size)
                img = img.resize((img.width * k, img.height * k), Image.NEAREST)
            sheet.paste(img, (x + (CELL_W - img.width) // 2, y + (THUMB_H - img.height) // 2), img)
            label2 = f"{size[0]}x{size[1]}"
        except (OSError, ValueError):
            missing += 1
            draw.rectangle([x, y, x + CELL_W - 1, y + THUMB_H - 1], fill=(180, 30, 30))
            draw.text((x + CELL_W // 2, y + THUMB_H // 2), "PUUTTUU", fill="white", font=fnt, anchor="mm")
            label2 = ""
        draw.text((x + 2, y + THUMB_H + 3), rel.replace("Kuvat/", ""), fill=(255, 255, 255), font=fnt)
        draw.text((x + 2, y + THUMB_H + 16), label2, fill=(190, 190, 190), font=fnt)
    sheet.save(args.out)
    print(f"{args.out}: {len(paths)} pictures, {missing} missing")


if __name__ == "__main__":
    main()
