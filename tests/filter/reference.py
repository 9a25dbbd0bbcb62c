#!/usr/bin/env python3
"""reference.py FILE: designs filters with SciPy and writes what came out, a filter after the other, for the tests of
filter/ to compare with. Every filter is

    family kind order rate edge upperEdge ripple attenuation besselEdge
    count and poles; count and zeros; gain            (poles and zeros in pairs of real and imaginary part)
    count and sections, five coefficients each; 0 where their pairing is a matter of rounding
    count and points of the response                  (radians a sample, real and imaginary part, delay in samples)
"""
import sys
import warnings

import numpy as np
from scipy import signal

warnings.simplefilter("ignore")  # SciPy's remarks on filters that would be badly conditioned as two polynomials

FAMILIES = {"butter": 0, "cheby1": 1, "cheby2": 2, "ellip": 3, "bessel": 4}
KINDS = {"lowpass": 0, "highpass": 1, "bandpass": 2, "bandstop": 3}
NORMS = {"phase": 0, "delay": 1, "mag": 2}


def prototype(family, order, ripple, attenuation, norm):
    if family == "butter":
        return signal.buttap(order)
    if family == "cheby1":
        return signal.cheb1ap(order, ripple)
    if family == "cheby2":
        return signal.cheb2ap(order, attenuation)
    if family == "ellip":
        return signal.ellipap(order, ripple, attenuation)
    return signal.besselap(order, norm)


def within(value, wanted, tolerance):
    return np.all(np.abs(np.asarray(value) / wanted - 1) < tolerance)


def design(family, kind, order, rate, low, high, ripple, attenuation, norm):
    """Zeros, poles and gain; None where SciPy loses digits, as its own result then shows."""
    zeros, poles, gain = prototype(family, order, ripple, attenuation, norm)
    at_edge = gain * np.prod(1j - zeros) / np.prod(1j - poles)
    if family == "ellip" and not within(abs(at_edge), 10 ** (-ripple / 20), 1e-11):
        return None
    low, high = (2 * np.tan(np.pi * edge / rate) for edge in (low, high))
    if kind == "lowpass":
        analogue = signal.lp2lp_zpk(zeros, poles, gain, low)
    elif kind == "highpass":
        analogue = signal.lp2hp_zpk(zeros, poles, gain, low)
    elif kind == "bandpass":
        analogue = signal.lp2bp_zpk(zeros, poles, gain, np.sqrt(low * high), high - low)
    else:
        analogue = signal.lp2bs_zpk(zeros, poles, gain, np.sqrt(low * high), high - low)
    if kind.startswith("band"):
        pairs = np.reshape(analogue[1], (2, order))
        if not within(pairs[0] * pairs[1], low * high, 1e-12):  # of two poles that came from one
            return None
    zeros, poles, gain = signal.bilinear_zpk(*analogue, 1)
    if abs(gain) < 1e-290 or np.max(abs(poles)) > 1 - 1e-13:
        return None
    return np.asarray(zeros, complex), np.asarray(poles, complex), float(gain)


def points(kind, rate, low, high):
    """Frequencies on both sides of the edges, on them, and far off."""
    middle = np.sqrt(low * high) if kind.startswith("band") else low
    found = [low * 0.1, low * 0.9, low, middle * 1.003, low * 1.2, high, high * 1.1, rate * 0.31]
    return sorted({2 * np.pi * f / rate for f in found if f < rate / 2})


def delay(zeros, poles, w):
    z = np.exp(1j * w)
    return (np.sum(poles / (z - poles)) - np.sum(zeros / (z - zeros)) + len(poles) - len(zeros)).real


def numbers(values):
    return " ".join(repr(float(value)) for value in values)


def roots(values):
    return f"{len(values)} " + numbers(np.column_stack((values.real, values.imag)).ravel())


def write(file, family, kind, order, rate, low, high, ripple, attenuation, norm):
    designed = design(family, kind, order, rate, low, high, ripple, attenuation, norm)
    if designed is None:
        return
    zeros, poles, gain = designed
    request = (FAMILIES[family], KINDS[kind], order, rate, low, high, ripple, attenuation, NORMS[norm])
    print(*(repr(value) for value in request), file=file)
    print(roots(poles), roots(zeros), repr(gain), sep="\n", file=file)
    try:
        sections = signal.zpk2sos(zeros, poles, gain)[:, [0, 1, 2, 4, 5]]
    except ValueError:  # it did not recognise the pairs among its own roots
        sections = np.zeros((0, 5))
    print(len(sections), numbers(sections.ravel()), file=file)
    at = []
    for w in points(kind, rate, low, high):
        # SciPy multiplies all of them before it divides.
        if min(np.prod(abs(np.exp(1j * w) - zeros)), np.prod(abs(np.exp(1j * w) - poles))) > 1e-280:
            value = signal.freqz_zpk(zeros, poles, gain, [w])[1][0]
            at.append((w, value.real, value.imag, delay(zeros, poles, w)))
    print(len(at), numbers(np.ravel(at)), file=file)


def main():
    with open(sys.argv[1], "w", encoding="ascii") as file:
        for family in FAMILIES:
            for kind in KINDS:
                for order in (1, 2, 3, 4, 7, 12, 25, 50):
                    # The usual places, both ends, a narrow band and one over nearly all frequencies.
                    for rate, low, high in ((48000.0, 1234.5, 3210.7), (96000.0, 20.0, 47000.0), (192000.0, 3.1, 17.3),
                                            (44100.0, 21700.0, 21950.0), (96000.0, 9973.0, 10117.0)):
                        for ripple, attenuation, norm in ((0.37, 71.3, "phase"), (3.1, 24.7, "delay"),
                                                          (0.011, 118.9, "mag")):
                            if family == "butter" and norm != "phase":
                                continue
                            write(file, family, kind, order, rate, low, high, ripple, attenuation, norm)


main()
