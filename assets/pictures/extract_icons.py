#!/usr/bin/python3
"""Copy the emoji icons the pictures use out of the Fluent Emoji Flat icon set.

Run by hand, only when the list below changes; the build never runs it and needs no network:

    cd /tmp && npm pack @iconify-json/fluent-emoji-flat && tar xzf iconify-json-fluent-emoji-flat-*.tgz
    /usr/bin/python3 assets/pictures/extract_icons.py /tmp/package/icons.json

Each icon becomes icons/<name>.svg, a standalone SVG file (MIT licence, see licenses/fluent-emoji-MIT.txt).
"""
import json
import os
import sys

USED = """
cow ox pig ewe ram rooster fox horse horse-face cow-face glass-of-milk cut-of-meat yarn egg coat bucket
sheaf-of-rice wood carpentry-saw carrot broccoli potato cheese-wedge ear-of-corn bread scarf socks shortcake
strawberry blueberries wine-glass grapes honey-pot seedling fly package tomato kitchen-knife thread honeybee
deer dog ninja money-bag person-running fire fire-engine firefighter placard woman-raising-hand judge
balance-scale man-office-worker office-worker briefcase scroll microbe face-with-thermometer syringe pill
health-worker ambulance adhesive-bandage construction-worker tornado mechanic tractor wrench toolbox
person-in-suit-levitating christmas-tree santa-claus party-popper confetti-ball trophy chart-decreasing ledger
abacus broom sponge woman-farmer man-farmer potted-plant tulip cook woman-cook axe factory-worker wrapped-gift
woman-walking man-walking handshake fountain-pen classical-building coin basket sun sun-behind-small-cloud
sun-behind-cloud cloud sun-behind-rain-cloud cloud-with-rain cloud-with-snow cloud-with-lightning-and-rain
glowing-star collision bottle-with-popping-cork automobile accordion musical-notes telephone
""".split()


def main():
    src = sys.argv[1]
    out = os.path.join(os.path.dirname(os.path.abspath(__file__)), "icons")
    data = json.load(open(src, encoding="utf-8"))
    os.makedirs(out, exist_ok=True)
    for name in USED:
        icon = data["icons"][name]
        w = icon.get("width", data.get("width", 16))
        h = icon.get("height", data.get("height", 16))
        svg = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" '
               f'viewBox="0 0 {w} {h}">{icon["body"]}</svg>\n')
        with open(os.path.join(out, name + ".svg"), "w", encoding="utf-8") as f:
            f.write(svg)
    print(len(USED), "icons written to", out)


if __name__ == "__main__":
    main()
