#!/usr/bin/python3
"""Writes the data files that ship in the program folder's Data folder.

    make_data.py SOURCE_FOLDER OUTPUT_FOLDER

From readable sources beside this script:
  asetukset.txt   -> Asetukset.dat    nine setting values, one a line
  (nothing)       -> Savetus.dat      empty: no farm has been saved yet
  ravihevoset.txt -> RaviHevoset.txt  a header line, then one trotter name a line
  topten.txt      -> Topten.dat, Topmilj.dat, Top10v.dat
                                      ten names, then ten results, every character
                                      shifted up by one code

All files are in the game's 8-bit code page (Windows-1252) and every line ends in CR LF.
"""

import os
import sys

CODE_PAGE = "cp1252"
SETTINGS = ("Resoluutio800", "Animaatiot", "AnimNopeus", "Kursorit", "Musiikki",
            "BiisiSatunnainen", "Autotallennus", "Äänitehosteet", "Prosessorisäästö")
WHOLE_NUMBER_SETTINGS = {"AnimNopeus": (0, 100)}
TOP_TEN_FILES = ("Topten.dat", "Topmilj.dat", "Top10v.dat")
MAX_HORSES = 100
MIN_HORSES = 11  # a race shows ten horses, and the last name of the list is never drawn


class DataError(Exception):
    pass


def source_lines(path):
    """The lines of a source file without comments (;) and blank lines, with their numbers."""
    with open(path, encoding="utf-8") as source:
        for number, raw in enumerate(source, 1):
            line = raw.rstrip("\n")
            if line.strip() and not line.lstrip().startswith(";"):
                yield number, line.strip()


def encode_lines(lines):
    return b"".join(line.encode(CODE_PAGE) + b"\r\n" for line in lines)


def shift_up(data):
    """The character shift of the lists: every byte but the line ends is raised by one."""
    out = bytearray()
    for byte in data:
        if byte in (0x0D, 0x0A):
            out.append(byte)
        elif byte == 0xFF:
            raise DataError("a character with code 255 cannot be shifted")
        else:
            out.append(byte + 1)
    return bytes(out)


def settings_file(path):
    values = []
    for number, line in source_lines(path):
        parts = line.split()
        if len(parts) != 2:
            raise DataError("%s:%d: expected a name and a value" % (path, number))
        name, value = parts
        if len(values) >= len(SETTINGS) or name != SETTINGS[len(values)]:
            expected = SETTINGS[len(values)] if len(values) < len(SETTINGS) else "nothing"
            raise DataError("%s:%d: expected %s, found %s" % (path, number, expected, name))
        if name in WHOLE_NUMBER_SETTINGS:
            low, high = WHOLE_NUMBER_SETTINGS[name]
            if not value.lstrip("-").isdigit() or not low <= int(value) <= high:
                raise DataError("%s:%d: %s must be a whole number from %d to %d"
                                % (path, number, name, low, high))
        elif value not in ("True", "False"):
            raise DataError("%s:%d: %s must be True or False" % (path, number, name))
        values.append(value)
    if len(values) != len(SETTINGS):
        raise DataError("%s: %d settings, expected %d" % (path, len(values), len(SETTINGS)))
    return encode_lines(values)


def horses_file(path):
    header = None
    names = []
    for number, line in source_lines(path):
        if line.startswith("header:"):
            header = line[len("header:"):].strip()
            continue
        if line in names:
            raise DataError("%s:%d: %s is already in the list" % (path, number, line))
        line.encode(CODE_PAGE)  # fails on a character the game's code page doesn't have
        names.append(line)
    if header is None:
        raise DataError("%s: no header line" % path)
    if not MIN_HORSES <= len(names) <= MAX_HORSES:
        raise DataError("%s: %d names, the races need %d to %d"
                        % (path, len(names), MIN_HORSES, MAX_HORSES))
    return encode_lines([header] + names)


def top_ten_file(path):
    rows = []
    for number, line in source_lines(path):
        name, _, result = line.rpartition(" ")
        if not name.strip() or not result.lstrip("-").isdigit():
            raise DataError("%s:%d: expected a name and a whole-number result" % (path, number))
        rows.append((name.strip(), result))
    if len(rows) != 10:
        raise DataError("%s: %d rows, a list has 10" % (path, len(rows)))
    return shift_up(encode_lines([name for name, _ in rows] + [result for _, result in rows]))


def main(argv):
    if len(argv) != 3:
        sys.stderr.write("usage: make_data.py SOURCE_FOLDER OUTPUT_FOLDER\n")
        return 2
    source, target = argv[1], argv[2]
    try:
        files = {
            "Asetukset.dat": settings_file(os.path.join(source, "asetukset.txt")),
            "Savetus.dat": b"",
            "RaviHevoset.txt": horses_file(os.path.join(source, "ravihevoset.txt")),
        }
        rows = top_ten_file(os.path.join(source, "topten.txt"))
        for name in TOP_TEN_FILES:
            files[name] = rows
    except (DataError, UnicodeEncodeError) as failure:
        sys.stderr.write("make_data: %s\n" % failure)
        return 1
    os.makedirs(target, exist_ok=True)
    for name, data in files.items():
        with open(os.path.join(target, name), "wb") as out:
            out.write(data)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
