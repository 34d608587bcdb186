#!/usr/bin/python3
"""Synthesises the game's wave sounds into the folder given on the command line.

Every sound is built from sine partials, filtered noise and envelopes, with a fixed
random seed per sound, so the files come out byte for byte the same at each build.
Output: RIFF WAVE, PCM, 16-bit, mono, 22050 Hz.

    make_sounds.py OUTPUT_FOLDER
"""

import math
import os
import random
import struct
import sys
import wave

RATE = 22050
TWO_PI = 2.0 * math.pi


def silence(seconds):
    return [0.0] * int(round(seconds * RATE))


def mix_into(target, source, start_seconds, gain=1.0):
    """Adds source into target from the given time, growing target if needed."""
    start = int(round(start_seconds * RATE))
    end = start + len(source)
    if end > len(target):
        target.extend([0.0] * (end - len(target)))
    for i, value in enumerate(source):
        target[start + i] += gain * value
    return target


def noise(rng, seconds):
    return [rng.uniform(-1.0, 1.0) for _ in range(int(round(seconds * RATE)))]


class Biquad:
    """Second-order filter after the well-known audio cookbook formulas."""

    def __init__(self, kind, freq, q=0.707):
        w0 = TWO_PI * freq / RATE
        cos_w0 = math.cos(w0)
        alpha = math.sin(w0) / (2.0 * q)
        if kind == "lowpass":
            b0, b1, b2 = (1 - cos_w0) / 2, 1 - cos_w0, (1 - cos_w0) / 2
        elif kind == "highpass":
            b0, b1, b2 = (1 + cos_w0) / 2, -(1 + cos_w0), (1 + cos_w0) / 2
        elif kind == "bandpass":
            b0, b1, b2 = alpha, 0.0, -alpha
        else:
            raise ValueError("unknown filter kind " + kind)
        a0, a1, a2 = 1 + alpha, -2 * cos_w0, 1 - alpha
        self.b = (b0 / a0, b1 / a0, b2 / a0)
        self.a = (a1 / a0, a2 / a0)
        self.x1 = self.x2 = self.y1 = self.y2 = 0.0

    def step(self, x):
        b0, b1, b2 = self.b
        a1, a2 = self.a
        y = b0 * x + b1 * self.x1 + b2 * self.x2 - a1 * self.y1 - a2 * self.y2
        self.x2, self.x1 = self.x1, x
        self.y2, self.y1 = self.y1, y
        return y

    def run(self, samples):
        return [self.step(x) for x in samples]


def filtered(samples, kind, freq, q=0.707):
    return Biquad(kind, freq, q).run(samples)


def decaying_sine(freq, tau, seconds, phase=0.0):
    n = int(round(seconds * RATE))
    return [math.sin(TWO_PI * freq * i / RATE + phase) * math.exp(-i / (tau * RATE))
            for i in range(n)]


def envelope_exp(samples, tau):
    return [v * math.exp(-i / (tau * RATE)) for i, v in enumerate(samples)]


def fade(samples, fade_in, fade_out):
    n = len(samples)
    a = max(1, int(fade_in * RATE))
    b = max(1, int(fade_out * RATE))
    out = list(samples)
    for i in range(min(a, n)):
        out[i] *= i / a
    for i in range(min(b, n)):
        out[n - 1 - i] *= i / b
    return out


def normalise(samples, peak):
    top = max(abs(v) for v in samples)
    if top == 0.0:
        raise ValueError("a sound came out silent")
    return [v * peak / top for v in samples]


# --- the sounds ---------------------------------------------------------------

def klik1(rng):
    """A bright, short tick: a 2.6 kHz ping on a band of noise."""
    burst = envelope_exp(filtered(noise(rng, 0.035), "bandpass", 3200, 1.5), 0.004)
    ping = decaying_sine(2600, 0.006, 0.035)
    return normalise(fade(mix_into(burst, ping, 0, 0.8), 0.0005, 0.005), 0.7)


def klik2(rng):
    """A wooden tock: two damped partials of a small block, lower than klik1."""
    body = decaying_sine(880, 0.011, 0.06)
    mix_into(body, decaying_sine(1930, 0.006, 0.06, 0.5), 0, 0.5)
    attack = envelope_exp(filtered(noise(rng, 0.01), "highpass", 2500), 0.0015)
    mix_into(body, attack, 0, 0.6)
    return normalise(fade(body, 0.0003, 0.008), 0.7)


def klik3(rng):
    """A soft pop: a quick downward chirp, like a push button letting go."""
    n = int(0.05 * RATE)
    out = []
    phase = 0.0
    for i in range(n):
        t = i / RATE
        freq = 600 + 900 * math.exp(-t / 0.01)
        phase += TWO_PI * freq / RATE
        out.append(math.sin(phase) * math.exp(-t / 0.009))
    tick = envelope_exp(filtered(noise(rng, 0.006), "highpass", 4000), 0.001)
    mix_into(out, tick, 0, 0.4)
    return normalise(fade(out, 0.0003, 0.008), 0.7)


def siirto(rng):
    """A soft swish: noise through a band that sweeps up and back, rising and falling."""
    seconds = 0.26
    n = int(seconds * RATE)
    src = noise(rng, seconds)
    out = []
    for start in range(0, n, 64):
        t = start / n
        centre = 700 + 2800 * math.sin(math.pi * min(1.0, t * 1.2)) ** 2
        filt = Biquad("bandpass", centre, 1.2)
        # run a short warm-up so each block starts settled
        for x in src[max(0, start - 128):start]:
            filt.step(x)
        for x in src[start:start + 64]:
            out.append(filt.step(x))
    out = [v * math.sin(math.pi * i / n) ** 2 for i, v in enumerate(out)]
    return normalise(fade(out, 0.005, 0.01), 0.45)


def virhe(rng):
    """A refusing buzz: two short, harsh, slightly detuned low square tones."""
    def buzz(seconds):
        n = int(seconds * RATE)
        out = []
        for i in range(n):
            t = i / RATE
            value = 0.0
            for harmonic in range(1, 26, 2):
                value += math.sin(TWO_PI * 110 * harmonic * t) / harmonic
                value += 0.7 * math.sin(TWO_PI * 116.5 * harmonic * t) / harmonic
            out.append(value)
        out = filtered(out, "lowpass", 2600)
        return fade(out, 0.004, 0.02)
    total = silence(0.0)
    mix_into(total, buzz(0.15), 0.0)
    mix_into(total, buzz(0.17), 0.2)
    return normalise(total, 0.8)


def koputus(rng):
    """Three knocks of a knuckle on a wooden door."""
    def knock(strength):
        hit = envelope_exp(filtered(noise(rng, 0.12), "lowpass", 1400), 0.012)
        panel = decaying_sine(165 + rng.uniform(-5, 5), 0.045, 0.12)
        mix_into(panel, decaying_sine(410 + rng.uniform(-10, 10), 0.02, 0.12, 0.3), 0, 0.6)
        mix_into(panel, decaying_sine(1020, 0.008, 0.12, 1.1), 0, 0.25)
        mix_into(panel, hit, 0, 0.9)
        return [v * strength for v in fade(panel, 0.0005, 0.02)]
    total = silence(0.0)
    for start, strength in ((0.0, 1.0), (0.19, 0.85), (0.37, 0.95)):
        mix_into(total, knock(strength), start)
    total.extend(silence(0.12))
    return normalise(total, 0.85)


def karpanen(rng):
    """A fly buzzing past: a wobbling sawtooth wing tone that comes near and goes away."""
    seconds = 1.7
    n = int(seconds * RATE)
    out = []
    phase = 0.0
    drift = 0.0
    for i in range(n):
        t = i / RATE
        drift += rng.uniform(-1.0, 1.0) * 0.6
        drift *= 0.999
        freq = 205 + 22 * math.sin(TWO_PI * 5.7 * t) + 14 * math.sin(TWO_PI * 1.1 * t + 0.4) + drift
        phase = (phase + freq / RATE) % 1.0
        out.append(2.0 * phase - 1.0)
    out = filtered(filtered(out, "highpass", 250), "lowpass", 4200)
    shaped = []
    for i, v in enumerate(out):
        t = i / n
        near = math.exp(-((t - 0.45) / 0.28) ** 2)
        flutter = 0.85 + 0.15 * math.sin(TWO_PI * 9.0 * i / RATE)
        shaped.append(v * (0.12 + 0.88 * near) * flutter)
    return normalise(fade(shaped, 0.08, 0.15), 0.75)


def sairas(rng):
    """A groan of pain: a voiced 'ooh' that swells, then sinks and dies away."""
    seconds = 1.35
    n = int(seconds * RATE)
    pulses = []
    phase = 0.0
    for i in range(n):
        t = i / RATE
        if t < 0.3:
            pitch = 128 + 30 * (t / 0.3)
        else:
            pitch = 158 - 68 * ((t - 0.3) / (seconds - 0.3)) ** 0.8
        pitch *= 1.0 + rng.uniform(-0.012, 0.012)
        phase = (phase + pitch / RATE) % 1.0
        # a glottal-like pulse: steep rise, slow fall
        pulses.append((phase ** 3 - 0.25) * 2.0)
    breath = filtered(noise(rng, seconds), "bandpass", 900, 0.8)
    source = [p + 0.08 * b for p, b in zip(pulses, breath)]
    voice = [0.0] * n
    for freq, q, gain in ((430, 6.0, 1.0), (780, 7.0, 0.55), (2600, 8.0, 0.12)):
        for i, v in enumerate(filtered(source, "bandpass", freq, q)):
            voice[i] += gain * v
    voice = filtered(voice, "lowpass", 2400)
    shaped = []
    for i, v in enumerate(voice):
        t = i / RATE
        swell = min(1.0, t / 0.18)
        die = 1.0 if t < 0.75 else max(0.0, 1.0 - (t - 0.75) / (seconds - 0.75)) ** 1.5
        shaped.append(v * swell * die)
    return normalise(fade(shaped, 0.01, 0.05), 0.8)


def kolina(rng):
    """A clatter: pans and tins tumbling, many metallic hits thinning out."""
    total = silence(1.2)
    t = 0.0
    strength = 1.0
    while t < 0.95:
        partials = []
        base = rng.uniform(700, 1500)
        hit = silence(0.0)
        for ratio in (1.0, 2.32, 3.87, 5.41):
            f = base * ratio * rng.uniform(0.97, 1.03)
            if f < RATE / 2.2:
                partials.append(f)
                mix_into(hit, decaying_sine(f, rng.uniform(0.03, 0.11), 0.25, rng.uniform(0, 6)), 0,
                         1.0 / ratio)
        click = envelope_exp(filtered(noise(rng, 0.02), "highpass", 2000), 0.002)
        mix_into(hit, click, 0, 0.8)
        mix_into(total, hit, t, strength * rng.uniform(0.55, 1.0))
        t += rng.uniform(0.02, 0.05) + t * 0.12
        strength *= 0.9
    return normalise(fade(total, 0.0005, 0.06), 0.85)


def tuli(rng):
    """A fire: a low roar, a hiss, and sharp crackles and pops at random."""
    seconds = 2.6
    n = int(seconds * RATE)
    roar = filtered(filtered(noise(rng, seconds), "lowpass", 320), "lowpass", 320)
    hiss = filtered(noise(rng, seconds), "highpass", 3500)
    flicker_phase = rng.uniform(0, 6)
    out = []
    for i in range(n):
        t = i / RATE
        flicker = 0.7 + 0.2 * math.sin(TWO_PI * 1.3 * t + flicker_phase) + 0.1 * math.sin(TWO_PI * 3.1 * t)
        out.append(2.2 * roar[i] * flicker + 0.05 * hiss[i])
    t = 0.02
    while t < seconds - 0.05:
        size = rng.expovariate(1.0)
        length = rng.uniform(0.001, 0.005)
        crack = envelope_exp(filtered(noise(rng, length + 0.01), "highpass", 1500), length / 2)
        if rng.random() < 0.3:
            mix_into(crack, decaying_sine(rng.uniform(900, 2800), 0.006, 0.02), 0, 0.6)
        mix_into(out, crack, t, 0.35 * min(size, 3.0))
        t += rng.expovariate(28.0)
    out = out[:n]
    return normalise(fade(out, 0.25, 0.4), 0.8)


SOUNDS = {
    "klik1": klik1,
    "klik2": klik2,
    "klik3": klik3,
    "siirto": siirto,
    "virhe": virhe,
    "Koputus": koputus,
    "Kärpänen": karpanen,
    "Sairas": sairas,
    "Kolina": kolina,
    "Tuli": tuli,
}


def write_wave(path, samples):
    frames = bytearray()
    for v in samples:
        frames += struct.pack("<h", max(-32767, min(32767, int(round(v * 32767)))))
    with wave.open(path, "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(bytes(frames))


def main(argv):
    if len(argv) != 2:
        sys.stderr.write("usage: make_sounds.py OUTPUT_FOLDER\n")
        return 2
    folder = argv[1]
    os.makedirs(folder, exist_ok=True)
    for seed, (name, make) in enumerate(SOUNDS.items()):
        samples = make(random.Random(1980 + seed))
        write_wave(os.path.join(folder, name + ".wav"), samples)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
