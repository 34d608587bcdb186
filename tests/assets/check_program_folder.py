#!/usr/bin/python3
"""Checks the built program folder against the asset manifests.

    check_program_folder.py PROGRAM_FOLDER ASSETS_FOLDER
    check_program_folder.py --self-test

Every ASSETS_FOLDER/*/manifest.txt lists files of the program folder, one path a line
relative to it (blank lines and lines starting with # are skipped). Each listed file must
exist, be readable, be of the format its name says, and hold real content:

  .wav                     RIFF WAVE PCM with frames that are not all silence
  .mid                     a Standard MIDI File with notes, playing 60 to 180 seconds
  .png .jpg .gif .bmp .ico .cur
                           a picture that decodes and has more than one colour; under Kuvat/
                           every size of it even, as the game shows those at two pixels a unit
  Asetukset.dat            nine lines of settings that convert
  Savetus.dat              at most one line (empty is fine: no farm saved yet)
  Topten.dat Topmilj.dat Top10v.dat
                           20 lines once unshifted: ten names, ten numeric results
  RaviHevoset.txt          a header line and 11 to 100 horse names

Every bad file is named with its fault, and the exit status is 1 if there is any.
--self-test builds a small folder of good and broken files and checks that the checker
passes the good ones and names each broken one.
"""

import glob
import io
import os
import struct
import sys
import tempfile
import wave

CODE_PAGE = "cp1252"
SONG_SECONDS = (60.0, 180.0)
PICTURE_FORMATS = {".png": "PNG", ".jpg": "JPEG", ".jpeg": "JPEG", ".gif": "GIF", ".bmp": "BMP",
                   ".ico": "ICO", ".cur": "CUR"}
TOP_TEN_FILES = ("topten.dat", "topmilj.dat", "top10v.dat")
SETTING_COUNT = 9
HORSES = (11, 100)
SILENCE_PEAK = 0.01  # a wave whose loudest sample is under 1 % of full scale is silence
PIXELS_PER_UNIT = 2  # the game lays out the pictures of Kuvat/ at half their pixel size


class Bad(Exception):
    """A fault of one file; the message says what is wrong."""


# --- waves -------------------------------------------------------------------------

def check_wave(path):
    with open(path, "rb") as source:
        head = source.read(12)
    if len(head) < 12 or head[:4] != b"RIFF" or head[8:12] != b"WAVE":
        raise Bad("not a RIFF WAVE file")
    try:
        with wave.open(path, "rb") as sound:
            width = sound.getsampwidth()
            frames = sound.getnframes()
            data = sound.readframes(frames)
    except (wave.Error, EOFError) as failure:
        raise Bad("not a readable PCM wave (%s)" % failure)
    if frames == 0 or not data:
        raise Bad("the wave has no frames")
    if width == 1:
        peak = max(abs(b - 128) for b in data) / 128.0
    elif width == 2:
        count = len(data) // 2
        samples = struct.unpack("<%dh" % count, data[:count * 2])
        peak = max(abs(s) for s in samples) / 32768.0
    else:
        raise Bad("%d-bit samples; the game's sounds are 8- or 16-bit PCM" % (8 * width))
    if peak < SILENCE_PEAK:
        raise Bad("the wave is silent (peak %.4f of full scale)" % peak)


# --- songs -------------------------------------------------------------------------

def read_varlen(data, pos):
    value = 0
    for _ in range(4):
        if pos >= len(data):
            raise Bad("a track ends inside a number")
        byte = data[pos]
        pos += 1
        value = (value << 7) | (byte & 0x7F)
        if not byte & 0x80:
            return value, pos
    raise Bad("a variable-length number is too long")


def parse_track(data):
    """Returns (events, end tick); events are (tick, kind, payload) with kind 'note' or 'tempo'."""
    pos = 0
    tick = 0
    status = None
    events = []
    while pos < len(data):
        delta, pos = read_varlen(data, pos)
        tick += delta
        if pos >= len(data):
            raise Bad("a track ends inside an event")
        byte = data[pos]
        if byte == 0xFF:
            if pos + 1 >= len(data):
                raise Bad("a track ends inside a meta event")
            kind = data[pos + 1]
            length, pos = read_varlen(data, pos + 2)
            payload = data[pos:pos + length]
            if len(payload) != length:
                raise Bad("a meta event runs past its track")
            pos += length
            if kind == 0x51:
                if length != 3:
                    raise Bad("a tempo event of %d bytes" % length)
                events.append((tick, "tempo", int.from_bytes(payload, "big")))
            elif kind == 0x2F:
                return events, tick
            continue
        if byte in (0xF0, 0xF7):
            length, pos = read_varlen(data, pos + 1)
            pos += length
            continue
        if byte & 0x80:
            status = byte
            pos += 1
        elif status is None:
            raise Bad("a data byte with no status before it")
        size = 1 if status & 0xF0 in (0xC0, 0xD0) else 2
        args = data[pos:pos + size]
        if len(args) != size:
            raise Bad("a track ends inside a channel event")
        pos += size
        if status & 0xF0 == 0x90 and args[1] > 0:
            events.append((tick, "note", args[0]))
    raise Bad("a track has no end-of-track event")


def song_seconds(data):
    """Parses a Standard MIDI File; returns (seconds to the end of the last track, note count)."""
    if data[:4] != b"MThd" or len(data) < 14:
        raise Bad("not a Standard MIDI File (no MThd header)")
    header_length, form, track_count, division = struct.unpack(">IHHH", data[4:14])
    if header_length < 6 or form not in (0, 1):
        raise Bad("MIDI file of format %d; the game plays format 0 and 1" % form)
    pos = 8 + header_length
    tempos = []
    notes = 0
    end_tick = 0
    for number in range(track_count):
        if data[pos:pos + 4] != b"MTrk":
            raise Bad("track %d is missing or not an MTrk chunk" % (number + 1))
        (length,) = struct.unpack(">I", data[pos + 4:pos + 8])
        chunk = data[pos + 8:pos + 8 + length]
        if len(chunk) != length:
            raise Bad("track %d is cut short" % (number + 1))
        events, track_end = parse_track(chunk)
        end_tick = max(end_tick, track_end)
        tempos += [(t, value) for t, kind, value in events if kind == "tempo"]
        notes += sum(1 for _, kind, _ in events if kind == "note")
        pos += 8 + length
    if division & 0x8000:
        frames = 256 - (division >> 8)
        return end_tick / (frames * (division & 0xFF)), notes
    seconds = 0.0
    last_tick = 0
    tempo = 500000
    for tick, value in sorted(tempos):
        tick = min(tick, end_tick)
        seconds += (tick - last_tick) * tempo / 1e6 / division
        last_tick, tempo = tick, value
    seconds += (end_tick - last_tick) * tempo / 1e6 / division
    return seconds, notes


def check_song(path):
    with open(path, "rb") as source:
        data = source.read()
    seconds, notes = song_seconds(data)
    if notes == 0:
        raise Bad("the song has no notes")
    low, high = SONG_SECONDS
    if not low <= seconds <= high:
        raise Bad("the song lasts %.1f s, outside %g to %g s" % (seconds, low, high))


# --- pictures ----------------------------------------------------------------------

def check_picture(path, in_units=False):
    try:
        from PIL import Image
    except ImportError:
        raise Bad("cannot check a picture: Pillow (python3-pil) is not installed")
    expected = PICTURE_FORMATS[os.path.splitext(path)[1].lower()]
    try:
        with Image.open(path) as picture:
            picture.verify()
        with Image.open(path) as picture:
            found = picture.format
            sizes = sorted(picture.info.get("sizes") or [picture.size])
            picture.load()
            rgba = picture.convert("RGBA")
    except Exception as failure:  # Pillow raises many kinds on a broken file
        raise Bad("the picture does not decode (%s)" % failure)
    if found != expected:
        raise Bad("a %s picture under a name that says %s" % (found, expected))
    if rgba.getextrema()[3][1] == 0:
        raise Bad("the picture is fully transparent")
    if rgba.getcolors(1) is not None:
        raise Bad("the picture is a single colour")
    if in_units:
        odd = ["%dx%d" % size for size in sizes if any(side % PIXELS_PER_UNIT for side in size)]
        if odd:
            raise Bad("%s pixels: not a whole number of units at %d pixels a unit"
                      % (", ".join(odd), PIXELS_PER_UNIT))


# --- data files --------------------------------------------------------------------

def text_lines(data, what):
    """Splits CR LF lines of Windows-1252 text; a last line without an ending is allowed."""
    try:
        text = data.decode(CODE_PAGE)
    except UnicodeDecodeError:
        raise Bad("%s is not Windows-1252 text" % what)
    if not text:
        return []
    lines = text.split("\r\n")
    if lines[-1] == "":
        lines.pop()
    if any("\n" in line or "\r" in line for line in lines):
        raise Bad("%s has line ends other than CR LF" % what)
    return lines


def converts_to_number(text):
    try:
        float(text.strip())
        return True
    except ValueError:
        return False


def check_settings(data):
    lines = text_lines(data, "the settings file")
    if len(lines) != SETTING_COUNT:
        raise Bad("%d lines, the settings are %d" % (len(lines), SETTING_COUNT))
    for number, line in enumerate(lines, 1):
        value = line.strip()
        if value not in ("True", "False") and not value.lstrip("-").isdigit():
            raise Bad("line %d (%r) does not convert to a setting" % (number, line))
    speed = lines[2].strip()
    if not speed.isdigit() or not 0 <= int(speed) <= 100:
        raise Bad("line 3, the animation speed, is %r, not a whole number from 0 to 100" % lines[2])


def check_last_save(data):
    if len(text_lines(data, "the last-save file")) > 1:
        raise Bad("more than one line")


def check_top_ten(data):
    unshifted = bytes(b if b in (0x0D, 0x0A) else (b - 1) % 256 for b in data)
    lines = text_lines(unshifted, "the list once unshifted")
    if len(lines) != 20:
        raise Bad("%d lines once unshifted, a list has 20" % len(lines))
    for number, line in enumerate(lines[10:], 11):
        if not converts_to_number(line):
            raise Bad("line %d (%r) is not a result once unshifted" % (number, line))


def check_horses(data):
    lines = text_lines(data, "the horse list")
    names = [line for line in lines[1:] if line.strip()]
    low, high = HORSES
    if not low <= len(names) <= high:
        raise Bad("%d horse names after the header line, the races need %d to %d"
                  % (len(names), low, high))
    if len(set(names)) != len(names):
        raise Bad("a horse name is listed twice")


DATA_CHECKS = {
    "asetukset.dat": check_settings,
    "savetus.dat": check_last_save,
    "ravihevoset.txt": check_horses,
}
DATA_CHECKS.update({name: check_top_ten for name in TOP_TEN_FILES})


def check_data(path):
    with open(path, "rb") as source:
        data = source.read()
    name = os.path.basename(path).lower()
    if not data and name != "savetus.dat":
        raise Bad("the file is empty")
    DATA_CHECKS[name](data)


# --- the folder --------------------------------------------------------------------

def checker_for(path):
    name = os.path.basename(path).lower()
    extension = os.path.splitext(name)[1]
    if name in DATA_CHECKS:
        return check_data
    if extension == ".wav":
        return check_wave
    if extension == ".mid":
        return check_song
    if extension in PICTURE_FORMATS:
        return check_picture
    return None


def read_manifests(assets_folder):
    """Returns ([(manifest, relative path)], [problems])."""
    entries = []
    problems = []
    manifests = sorted(glob.glob(os.path.join(assets_folder, "*", "manifest.txt")))
    if not manifests:
        problems.append("%s: no */manifest.txt, nothing to check" % assets_folder)
    seen = {}
    for manifest in manifests:
        with open(manifest, encoding="utf-8") as source:
            for number, raw in enumerate(source, 1):
                line = raw.strip()
                if not line or line.startswith("#"):
                    continue
                where = "%s:%d" % (manifest, number)
                if os.path.isabs(line) or ".." in line.replace("\\", "/").split("/"):
                    problems.append("%s: %s is not a path inside the program folder" % (where, line))
                    continue
                if line in seen:
                    problems.append("%s: %s is listed already at %s" % (where, line, seen[line]))
                    continue
                seen[line] = where
                entries.append((manifest, line))
    return entries, problems


def check_folder(program_folder, assets_folder):
    """Returns the list of problems; empty when every listed file is good."""
    entries, problems = read_manifests(assets_folder)
    for manifest, relative in entries:
        path = os.path.join(program_folder, relative)
        checker = checker_for(relative)
        if checker is None:
            problems.append("%s: no check known for this kind of file (from %s)" % (relative, manifest))
            continue
        if not os.path.isfile(path):
            problems.append("%s: missing" % relative)
            continue
        try:
            if checker is check_picture:
                checker(path, in_units=relative.replace("\\", "/").lower().startswith("kuvat/"))
            else:
                checker(path)
        except Bad as fault:
            problems.append("%s: %s" % (relative, fault))
        except OSError as failure:
            problems.append("%s: unreadable (%s)" % (relative, failure.strerror or failure))
    return problems, len(entries)


# --- self-test ---------------------------------------------------------------------

def sample_wave(seconds=0.2, amplitude=0.5):
    import math
    out = io.BytesIO()
    with wave.open(out, "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(8000)
        count = int(8000 * seconds)
        sound.writeframes(struct.pack("<%dh" % count, *(
            int(amplitude * 32767 * math.sin(2 * math.pi * 440 * i / 8000)) for i in range(count))))
    return out.getvalue()


def sample_song(seconds, with_note=True, bpm=120):
    division = 480
    ticks = int(seconds * bpm / 60 * division)
    tempo = int(60000000 / bpm).to_bytes(3, "big")

    def varlen(value):
        out = [value & 0x7F]
        value >>= 7
        while value:
            out.append(0x80 | (value & 0x7F))
            value >>= 7
        return bytes(reversed(out))

    conductor = b"\x00\xff\x51\x03" + tempo + varlen(ticks) + b"\xff\x2f\x00"
    if with_note:
        notes = b"\x00\xc0\x15\x00\x90\x3c\x60" + varlen(ticks) + b"\x80\x3c\x00\x00\xff\x2f\x00"
    else:
        notes = b"\x00\xc0\x15" + varlen(ticks) + b"\xff\x2f\x00"
    chunks = b"".join(b"MTrk" + struct.pack(">I", len(t)) + t for t in (conductor, notes))
    return b"MThd" + struct.pack(">IHHH", 6, 1, 2, division) + chunks


def sample_picture(colours, size=(16, 16), kind="PNG"):
    from PIL import Image
    picture = Image.new("RGB", size, colours[0])
    for x in range(size[0] // 2):
        for y in range(size[1]):
            picture.putpixel((x, y), colours[-1])
    out = io.BytesIO()
    picture.save(out, kind)
    return out.getvalue()


def sample_icon(sizes):
    from PIL import Image
    picture = Image.new("RGBA", max(sizes), (0, 0, 0, 0))
    picture.paste((30, 120, 30, 255), (0, 0, picture.width // 2, picture.height))
    out = io.BytesIO()
    picture.save(out, "ICO", sizes=sizes)
    return out.getvalue()


def shifted(lines):
    data = b"".join(line.encode(CODE_PAGE) + b"\r\n" for line in lines)
    return bytes(b if b in (0x0D, 0x0A) else b + 1 for b in data)


def self_test():
    good_settings = b"False\r\nTrue\r\n50\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\nTrue\r\n"
    good_list = ["Testi"] * 10 + [str(v) for v in range(100, 0, -10)]
    horses = ["Ravihevoset"] + ["Hevonen %d" % i for i in range(1, 40)]
    good = {
        "Äänet/hyvä.wav": sample_wave(),
        "Midi/hyvä.mid": sample_song(90),
        "Kuvat/hyvä.png": sample_picture([(200, 10, 10), (10, 10, 200)]),
        "Kuvat/hyvä.jpg": sample_picture([(250, 250, 250), (0, 0, 0)], (32, 32), "JPEG"),
        "Kuvat/hyvä.ico": sample_icon([(16, 16), (32, 32)]),
        "Äänet/pariton.png": sample_picture([(200, 10, 10), (10, 10, 200)], (15, 9)),
        "Data/Asetukset.dat": good_settings,
        "Data/Savetus.dat": b"",
        "Data/Topten.dat": shifted(good_list),
        "Data/RaviHevoset.txt": "\r\n".join(horses).encode(CODE_PAGE) + b"\r\n",
    }
    # each broken file, and a word its complaint must hold
    broken = {
        "Äänet/tyhjä.wav": (sample_wave(seconds=0), "no frames"),
        "Äänet/hiljainen.wav": (sample_wave(amplitude=0.001), "silent"),
        "Äänet/teksti.wav": (b"this is not a sound at all", "RIFF"),
        "Midi/lyhyt.mid": (sample_song(30), "lasts"),
        "Midi/pitkä.mid": (sample_song(200), "lasts"),
        "Midi/hiljainen.mid": (sample_song(90, with_note=False), "no notes"),
        "Midi/katkennut.mid": (sample_song(90)[:-10], "track"),
        "Kuvat/yksivärinen.png": (sample_picture([(30, 120, 30)]), "single colour"),
        "Kuvat/väärä.gif": (sample_picture([(1, 2, 3), (200, 0, 0)]), "GIF"),
        "Kuvat/rikki.png": (sample_picture([(1, 2, 3), (200, 0, 0)])[:40], "decode"),
        "Kuvat/pariton.png": (sample_picture([(1, 2, 3), (200, 0, 0)], (16, 15)), "16x15 pixels"),
        "Kuvat/pariton.ico": (sample_icon([(16, 16), (33, 33)]), "33x33 pixels"),
        "Data2/Asetukset.dat": (good_settings.replace(b"50", b"kova"), "convert"),
        "Data3/Asetukset.dat": (good_settings[:-6], "8 lines"),
        "Data2/Topten.dat": (b"".join(line.encode() + b"\r\n" for line in good_list), "result"),
        "Data3/Topten.dat": (shifted(good_list[:19]), "19 lines"),
        "Data2/Savetus.dat": (b"eka\r\ntoka\r\n", "more than one line"),
        "Data2/RaviHevoset.txt": (b"Otsikko\r\nYksi\r\nKaksi\r\n", "2 horse names"),
    }
    failures = []
    with tempfile.TemporaryDirectory() as root:
        program = os.path.join(root, "game")
        assets = os.path.join(root, "assets")
        os.makedirs(os.path.join(assets, "kaikki"))
        listed = list(good) + list(broken) + ["Äänet/puuttuu.wav", "Kuvat/outo.xyz"]
        with open(os.path.join(assets, "kaikki", "manifest.txt"), "w", encoding="utf-8") as out:
            out.write("# self-test\n\n" + "\n".join(listed) + "\n")
        for relative, data in list(good.items()) + [(k, v[0]) for k, v in broken.items()]:
            path = os.path.join(program, relative)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as out:
                out.write(data)
        problems, count = check_folder(program, assets)
        if count != len(listed):
            failures.append("read %d manifest entries, expected %d" % (count, len(listed)))
        expectations = [(k, v[1]) for k, v in broken.items()]
        expectations += [("Äänet/puuttuu.wav", "missing"), ("Kuvat/outo.xyz", "no check known")]
        for relative, word in expectations:
            said = [p for p in problems if p.startswith(relative + ":")]
            if not said:
                failures.append("%s was not reported" % relative)
            elif not any(word in p for p in said):
                failures.append("%s was reported without %r: %s" % (relative, word, said))
        for relative in good:
            said = [p for p in problems if p.startswith(relative + ":")]
            if said:
                failures.append("a good file was reported: %s" % said)
        extra = len(problems) - len(expectations)
        if extra > 0:
            failures.append("%d problems more than expected: %s" % (extra, problems))
        empty_assets = os.path.join(root, "ei-mitään")
        os.makedirs(empty_assets)
        if not check_folder(program, empty_assets)[0]:
            failures.append("a folder with no manifests passed")
    for failure in failures:
        print("self-test: " + failure)
    print("self-test: %s" % ("FAILED" if failures else "passed"))
    return 1 if failures else 0


def main(argv):
    if argv[1:] == ["--self-test"]:
        return self_test()
    if len(argv) != 3:
        sys.stderr.write(__doc__)
        return 2
    program_folder, assets_folder = argv[1], argv[2]
    problems, count = check_folder(program_folder, assets_folder)
    for problem in problems:
        print(problem)
    print("%d files listed, %d problems" % (count, len(problems)))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
