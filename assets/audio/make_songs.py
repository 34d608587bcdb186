#!/usr/bin/python3
"""Turns the song texts of songs/*.txt into Standard MIDI Files (format 1).

    make_songs.py SONG_FOLDER OUTPUT_FOLDER

A song text holds a header of `key: value` lines, then sections of bars. See songs/README.md
for the notation. Each song becomes five tracks: a conductor track (name, meter, key, tempo),
the melody, a second lead instrument, the accompaniment and the bass, each on its own channel
with its own program change. The melody is written out by hand; the accompaniment and the
bass are worked out from the chord names of the bars by the style of the song (polka, march,
waltz, ballad), and a section played with a star in the form gives the melody to the second
instrument while the first plays a third below it.

Every bar must add up to the meter; a bar that doesn't stops the script with its place, so a
typing slip in a melody can't slip into the game.
"""

import os
import random
import re
import struct
import sys

TICKS = 480  # ticks per quarter note

NOTE_NAMES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
LENGTHS = {"w": 4.0, "h": 2.0, "q": 1.0, "e": 0.5, "s": 0.25}
QUALITIES = {
    "": (0, 4, 7),
    "m": (0, 3, 7),
    "7": (0, 4, 7, 10),
    "m7": (0, 3, 7, 10),
    "maj7": (0, 4, 7, 11),
    "dim": (0, 3, 6),
    "6": (0, 4, 7, 9),
}
MAJOR = (0, 2, 4, 5, 7, 9, 11)
HARMONIC_MINOR = (0, 2, 3, 5, 7, 8, 11)

NOTE_RE = re.compile(r"^([A-Ga-g])(#|b)?(-?\d)([whqes])(\.?)$")
REST_RE = re.compile(r"^[rR]([whqes])(\.?)$")
CHORD_RE = re.compile(r"^([A-G])(#|b)?(maj7|m7|dim|m|7|6)?$")

CHANNEL_MELODY, CHANNEL_SECOND, CHANNEL_CHORDS, CHANNEL_BASS = 0, 1, 2, 3


class SongError(Exception):
    pass


def pitch_class(letter, accidental):
    pc = NOTE_NAMES[letter.upper()]
    if accidental == "#":
        pc += 1
    elif accidental == "b":
        pc -= 1
    return pc % 12


def length_ticks(letter, dot):
    beats = LENGTHS[letter] * (1.5 if dot else 1.0)
    return int(round(beats * TICKS))


def parse_chord(text):
    m = CHORD_RE.match(text)
    if not m:
        raise SongError("unknown chord " + text)
    root = pitch_class(m.group(1), m.group(2))
    return root, QUALITIES[m.group(3) or ""]


def parse_key(text):
    m = re.match(r"^([A-G])(#|b)?(m?)$", text)
    if not m:
        raise SongError("unknown key " + text)
    tonic = pitch_class(m.group(1), m.group(2))
    scale = HARMONIC_MINOR if m.group(3) else MAJOR
    return tuple((tonic + step) % 12 for step in scale)


class Section:
    def __init__(self, name, attrs, bar_ticks, place):
        self.name = name
        self.key = parse_key(attrs.get("key", "C"))
        self.style = attrs.get("style")
        self.rit = float(attrs.get("rit", "1.0"))
        self.bar_ticks = bar_ticks
        self.place = place
        self.notes = []   # (start, length, midi pitch)
        self.chords = []  # (start, root pitch class, intervals)
        self.length = 0

    def add_bar(self, text, bar_number):
        where = "%s, section %s, bar %d" % (self.place, self.name, bar_number)
        start = self.length
        pos = start
        for token in re.findall(r"\[[^\]]*\]|\S+", text):
            if token.startswith("["):
                names = token[1:-1].split()
                if len(names) != 1:
                    raise SongError(where + ": one chord per bracket, got " + token)
                root, intervals = parse_chord(names[0])
                self.chords.append((pos, root, intervals))
                continue
            m = NOTE_RE.match(token)
            if m:
                letter, accidental, octave, length, dot = m.groups()
                midi = 12 * (int(octave) + 1) + NOTE_NAMES[letter.upper()]
                midi += {"#": 1, "b": -1}.get(accidental, 0)
                ticks = length_ticks(length, dot)
                self.notes.append((pos, ticks, midi))
                pos += ticks
                continue
            m = REST_RE.match(token)
            if m:
                pos += length_ticks(m.group(1), m.group(2))
                continue
            raise SongError(where + ": cannot read " + repr(token))
        if pos - start != self.bar_ticks:
            raise SongError("%s: the bar holds %g beats, the meter %g"
                            % (where, (pos - start) / TICKS, self.bar_ticks / TICKS))
        if not self.chords or self.chords[0][0] > 0:
            raise SongError(where + ": the section must start with a chord")
        self.length = pos

    def chord_at(self, tick):
        current = self.chords[0]
        for chord in self.chords:
            if chord[0] <= tick:
                current = chord
            else:
                break
        return current

    def chord_spans(self):
        spans = []
        for i, (start, root, intervals) in enumerate(self.chords):
            end = self.chords[i + 1][0] if i + 1 < len(self.chords) else self.length
            if end > start:
                spans.append((start, end, root, intervals))
        return spans


def parse_song(path):
    header = {}
    sections = {}
    current = None
    bar_ticks = None
    bar_number = 0
    with open(path, encoding="utf-8") as source:
        lines = source.readlines()
    for line_number, raw in enumerate(lines, 1):
        line = raw.split(";", 1)[0].strip()
        if not line:
            continue
        place = "%s:%d" % (os.path.basename(path), line_number)
        if line.startswith("section "):
            words = line.split()
            attrs = dict(word.split("=", 1) for word in words[2:])
            if bar_ticks is None:
                raise SongError(place + ": the meter must come before the sections")
            current = Section(words[1], attrs, bar_ticks, place)
            sections[current.name] = current
            bar_number = 0
            continue
        if current is None:
            if ":" not in line:
                raise SongError(place + ": expected `name: value`")
            name, value = (part.strip() for part in line.split(":", 1))
            header[name] = value
            if name == "meter":
                upper, lower = value.split("/")
                bar_ticks = int(upper) * TICKS * 4 // int(lower)
            continue
        for bar in line.split("|"):
            if bar.strip():
                bar_number += 1
                current.add_bar(bar, bar_number)
    for needed in ("title", "tempo", "meter", "style", "melody", "second", "accompaniment", "bass",
                   "form"):
        if needed not in header:
            raise SongError("%s: the header has no %s" % (path, needed))
    for item in header["form"].split():
        if item.rstrip("*") not in sections:
            raise SongError("%s: the form names an unknown section %s" % (path, item))
    return header, sections


def third_below(pitch, key, chord):
    """The second voice under a melody note: a chord tone a third below if the chord has one,
    else the diatonic third of the key, else the chord's tone a fourth below, else a minor third."""
    pc = pitch % 12
    root, intervals = chord
    tones = {(root + step) % 12 for step in intervals}
    for gap in (3, 4):
        if (pc - gap) % 12 in tones:
            return pitch - gap
    if pc in key:
        below = key[(key.index(pc) - 2) % 7]
        return pitch - ((pc - below) % 12)
    if (pc - 5) % 12 in tones:
        return pitch - 5
    return pitch - 3


def bass_pitch(pc):
    """The root in the octave E1..D#2 of the bass."""
    return 28 + (pc - 4) % 12


def chord_voicing(root, intervals):
    """The chord's notes folded into the octave from F3 up to E4, lowest first."""
    return sorted(53 + (root + step - 5) % 12 for step in intervals)


class Arranger:
    def __init__(self, header, sections, seed):
        self.header = header
        self.sections = sections
        self.rng = random.Random(seed)
        self.style = header["style"]
        self.beats = int(header["meter"].split("/")[0])
        self.events = {ch: [] for ch in (CHANNEL_MELODY, CHANNEL_SECOND, CHANNEL_CHORDS, CHANNEL_BASS)}
        self.tempo_changes = []

    def note(self, channel, start, length, pitch, velocity):
        velocity = max(1, min(127, velocity + self.rng.randint(-4, 4)))
        length = max(30, length)
        self.events[channel].append((start, 0x90 | channel, pitch, velocity))
        self.events[channel].append((start + length, 0x80 | channel, pitch, 0))

    def accent(self, tick_in_bar):
        return 10 if tick_in_bar == 0 else (4 if tick_in_bar % TICKS == 0 else 0)

    def play_melody(self, section, offset, varied):
        for start, length, pitch in section.notes:
            gap = min(60, length // 6)
            accent = self.accent(start % section.bar_ticks)
            if varied:
                self.note(CHANNEL_SECOND, offset + start, length - gap, pitch, 92 + accent)
                _, root, intervals = section.chord_at(start)
                self.note(CHANNEL_MELODY, offset + start, length - gap,
                          third_below(pitch, section.key, (root, intervals)), 74 + accent)
            else:
                self.note(CHANNEL_MELODY, offset + start, length - gap, pitch, 96 + accent)

    def play_accompaniment(self, section, offset):
        style = section.style or self.style
        beat = TICKS
        bar = section.bar_ticks
        if style == "hold":
            for start, end, root, intervals in section.chord_spans():
                for pitch in chord_voicing(root, intervals):
                    self.note(CHANNEL_CHORDS, offset + start, end - start - 20, pitch, 70)
                self.note(CHANNEL_BASS, offset + start, end - start - 20, bass_pitch(root), 92)
            return
        for bar_start in range(0, section.length, bar):
            bar_index = bar_start // bar
            if style == "polka":
                bass_hits = [(0, "root"), (beat, "fifth")]
                chord_hits = [(beat // 2, beat // 3), (beat + beat // 2, beat // 3)]
            elif style == "march":
                bass_hits = [(0, "root"), (2 * beat, "fifth")]
                chord_hits = [(beat, beat // 2), (3 * beat, beat // 2)]
            elif style == "waltz":
                bass_hits = [(0, "root" if bar_index % 2 == 0 else "fifth")]
                chord_hits = [(beat, beat // 2), (2 * beat, beat // 2)]
            elif style == "ballad":
                bass_hits = [(0, "root")] + ([(2 * beat, "fifth")] if self.beats == 4 else [])
                chord_hits = []
            else:
                raise SongError("unknown style " + style)
            for at, which in bass_hits:
                tick = bar_start + at
                if tick >= section.length:
                    continue
                _, root, intervals = section.chord_at(tick)
                pitch = bass_pitch(root)
                if which == "fifth":
                    pitch = pitch + 7 if pitch + 7 <= 43 else pitch - 5
                length = beat * (2 if style == "ballad" else 1) - 40
                self.note(CHANNEL_BASS, offset + tick, length, pitch, 92 + self.accent(at))
            for at, length in chord_hits:
                tick = bar_start + at
                _, root, intervals = section.chord_at(tick)
                for pitch in chord_voicing(root, intervals):
                    self.note(CHANNEL_CHORDS, offset + tick, length, pitch, 62)
            if style == "ballad":
                # a kantele-like broken chord in eighths over the bar
                steps = self.beats * 2
                shape = [0, 1, 2, 3, 4, 3, 2, 1][:steps] if steps != 6 else [0, 1, 2, 3, 2, 1]
                for i in range(steps):
                    tick = bar_start + i * beat // 2
                    _, root, intervals = section.chord_at(tick)
                    low = 48 + (root - 0) % 12
                    if low > 55:
                        low -= 12
                    third = intervals[1]
                    arpeggio = [low, low + 7, low + 12, low + 12 + third, low + 19]
                    self.note(CHANNEL_CHORDS, offset + tick, beat, arpeggio[shape[i]], 58 + (6 if i == 0 else 0))

    def arrange(self):
        tempo = float(self.header["tempo"])
        offset = 0
        self.tempo_changes.append((0, tempo))
        for item in self.header["form"].split():
            section = self.sections[item.rstrip("*")]
            varied = item.endswith("*")
            self.play_melody(section, offset, varied)
            self.play_accompaniment(section, offset)
            if section.rit != 1.0:
                bars = section.length // section.bar_ticks
                for b in range(bars):
                    factor = 1.0 - (1.0 - section.rit) * (b + 1) / bars
                    self.tempo_changes.append((offset + b * section.bar_ticks, tempo * factor))
            offset += section.length
        # back to the song's tempo for nothing: the song ends here, with a short ring-out
        return offset + TICKS


# --- Standard MIDI File writing --------------------------------------------------

def varlen(value):
    out = [value & 0x7F]
    value >>= 7
    while value:
        out.append(0x80 | (value & 0x7F))
        value >>= 7
    return bytes(reversed(out))


def track_chunk(events, end_tick):
    """events: (tick, bytes) pairs; sorted here, note-offs before note-ons at one tick."""
    data = bytearray()
    last = 0
    for tick, payload in sorted(events, key=lambda e: (e[0], e[1][0] & 0xF0 == 0x90, e[1])):
        data += varlen(tick - last) + payload
        last = tick
    data += varlen(max(0, end_tick - last)) + b"\xff\x2f\x00"
    return b"MTrk" + struct.pack(">I", len(data)) + bytes(data)


def meta(kind, payload):
    return bytes([0xFF, kind]) + varlen(len(payload)) + payload


def text_bytes(text):
    return text.encode("latin-1", errors="replace")


KEY_SIGNATURES = {  # tonic pitch class, minor -> sharps (+) or flats (-)
    (0, False): 0, (7, False): 1, (2, False): 2, (9, False): 3, (5, False): -1, (10, False): -2,
    (3, False): -3, (9, True): 0, (4, True): 1, (11, True): 2, (2, True): -1, (7, True): -2,
}


def song_bytes(header, sections, seed):
    arranger = Arranger(header, sections, seed)
    end_tick = arranger.arrange()
    upper, lower = (int(v) for v in header["meter"].split("/"))
    first = sections[header["form"].split()[0].rstrip("*")]
    tonic_pc = first.key[0]
    minor = (first.key[2] - tonic_pc) % 12 == 3
    sharps = KEY_SIGNATURES.get((tonic_pc, minor), 0)

    conductor = [(0, meta(0x03, text_bytes(header["title"]))),
                 (0, meta(0x58, bytes([upper, {2: 1, 4: 2, 8: 3}[lower], 24, 8]))),
                 (0, meta(0x59, struct.pack(">bB", sharps, 1 if minor else 0)))]
    for tick, bpm in arranger.tempo_changes:
        conductor.append((tick, meta(0x51, struct.pack(">I", int(round(60000000 / bpm)))[1:])))
    tracks = [track_chunk(conductor, end_tick)]

    parts = ((CHANNEL_MELODY, "melody", "Melodia", 100, 64, 40),
             (CHANNEL_SECOND, "second", "Toinen soitin", 92, 84, 45),
             (CHANNEL_CHORDS, "accompaniment", "Säestys", 82, 44, 35),
             (CHANNEL_BASS, "bass", "Basso", 100, 64, 20))
    for channel, field, name, volume, pan, reverb in parts:
        program = int(header[field].split()[0])
        events = [(0, meta(0x03, text_bytes(name))),
                  (0, bytes([0xC0 | channel, program])),
                  (0, bytes([0xB0 | channel, 7, volume])),
                  (0, bytes([0xB0 | channel, 10, pan])),
                  (0, bytes([0xB0 | channel, 91, reverb]))]
        for tick, status, pitch, velocity in arranger.events[channel]:
            if not 0 <= pitch <= 127:
                raise SongError("%s: a note falls outside the MIDI range" % header["title"])
            events.append((tick, bytes([status, pitch, velocity])))
        tracks.append(track_chunk(events, end_tick))
    head = b"MThd" + struct.pack(">IHHH", 6, 1, len(tracks), TICKS)
    return head + b"".join(tracks)


def main(argv):
    if len(argv) != 3:
        sys.stderr.write("usage: make_songs.py SONG_FOLDER OUTPUT_FOLDER\n")
        return 2
    source, target = argv[1], argv[2]
    os.makedirs(target, exist_ok=True)
    names = sorted(n for n in os.listdir(source) if n.endswith(".txt"))
    if not names:
        sys.stderr.write("no songs in %s\n" % source)
        return 1
    for seed, name in enumerate(names):
        try:
            header, sections = parse_song(os.path.join(source, name))
            data = song_bytes(header, sections, seed)
        except SongError as failure:
            sys.stderr.write("make_songs: %s\n" % failure)
            return 1
        with open(os.path.join(target, name[:-4] + ".mid"), "wb") as out:
            out.write(data)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
