#!/usr/bin/env python3
"""Prints the digests that precision_test.cpp expects: make_digests.py

A second reading of the rules, in another language. A rounding to single
precision is a trip through four bytes; everything else is in double precision.
"""
import math
import struct

MASK = (1 << 64) - 1


def f(value):
    return struct.unpack("f", struct.pack("f", value))[0]


class Random:
    def __init__(self, seed):
        self.state = seed

    def bits(self):
        self.state = (self.state + 0x9E3779B97F4A7C15) & MASK
        z = self.state
        z = ((z ^ (z >> 30)) * 0xBF58476D1CE4E5B9) & MASK
        z = ((z ^ (z >> 27)) * 0x94D049BB133111EB) & MASK
        return z ^ (z >> 31)

    def number(self, low, high):
        return low + (self.bits() >> 11) * 2.0 ** -53 * (high - low)

    def point(self, reach):
        return self.number(-reach, reach), self.number(-reach, reach)

    def rect(self, reach, largest):
        return (*self.point(reach), self.number(0, largest), self.number(0, largest))

    def angle(self):
        return f(self.number(-7, 7))


def radians(p, q):
    return f(math.atan2(p[1] - q[1], p[0] - q[0]))


def degrees(p, q):
    turned = f(radians(p, q) * 180 / math.pi)
    return f(turned + 360) if turned < 0 else turned


def squared(p, q):
    dx, dy = p[0] - q[0], p[1] - q[1]
    return f(dx * dx + dy * dy)


def to_segment(p, a, b):
    d = f(b[0] - a[0]), f(b[1] - a[1])
    t = f(((p[0] - a[0]) * d[0] + (p[1] - a[1]) * d[1]) / (d[0] * d[0] + d[1] * d[1]))
    t = min(max(t, 0), 1)
    delta = f(a[0] + t * d[0] - p[0]), f(a[1] + t * d[1] - p[1])
    return f(math.sqrt(f(delta[0] * delta[0] + delta[1] * delta[1]))), *delta


def crossing(p1, p2, p3, p4):
    difference = {}
    for axis in (0, 1):
        a, b = f(p2[axis] - p1[axis]), f(p3[axis] - p4[axis])
        low, high = (f(p2[axis]), f(p1[axis])) if a < 0 else (f(p1[axis]), f(p2[axis]))
        if (high < p4[axis] or p3[axis] < low) if b > 0 else (high < p3[axis] or p4[axis] < low):
            return -1, -1
        difference[axis] = a, b, f(p1[axis] - p3[axis])
    (ax, bx, cx), (ay, by, cy) = difference[0], difference[1]
    d, g, e = f(f(by * cx) - f(bx * cy)), f(f(ay * bx) - f(ax * by)), f(f(ax * cy) - f(ay * cx))
    outside = (d < 0 or d > g or e < 0 or e > g) if g > 0 else (d > 0 or d < g or e > 0 or e < g)
    if outside or g == 0:
        return -1, -1

    def moved(start, length):
        n = f(d * length)
        offset = 0.5 * g if (n >= 0 and g >= 0) or (n < 0 and g < 0) else -0.5 * g
        return start + f(f(n + offset) / g)
    return moved(p1[0], ax), moved(p1[1], ay)


def on_outline(rect, angle):
    sine, cosine = f(math.sin(angle)), f(math.cos(angle))

    def offset(extent, along, across):
        if abs(across) <= f(0.0001):
            return extent if along >= 0 else 0
        part = f(extent * ((along / abs(across) + 1) * 0.5))
        return 0 if part < 0 else extent if part > extent else part
    return rect[0] + offset(rect[2], cosine, sine), rect[1] + offset(rect[3], sine, cosine)


def angle_on(rect, p):
    x, y, w, h = rect
    return f(math.atan2(f(p[1] - (y + h / 2)) * w, f(p[0] - (x + w / 2)) * h))


def half_units(rect):
    def stretch(start, length):
        first = math.floor(f(start)) + 0.5
        return first, math.floor(f(length + first)) + 0.5 - first
    (x, w), (y, h) = stretch(rect[0], rect[2]), stretch(rect[1], rect[3])
    return x, y, w, h


def scaled(r, c):
    k = f(min(c[2] / r[2], c[3] / r[3]))
    return r[0], r[1], r[2] * k, r[3] * k


def gap(r, c):
    def along(a, size_a, b, size_b):
        return a - (b + size_b) if a > b + size_b else b - (a + size_a) if a + size_a < b else 0
    dx, dy = along(r[0], r[2], c[0], c[2]), along(r[1], r[3], c[1], c[3])
    return f(math.sqrt(f(dx * dx + dy * dy)))


def is_near(p, a, b):
    tolerance = 5
    left, top = min(a[0], b[0]) - tolerance, min(a[1], b[1]) - tolerance
    right, bottom = left + abs(b[0] - a[0]) + 2 * tolerance, top + abs(b[1] - a[1]) + 2 * tolerance
    if not (left <= p[0] < right and top <= p[1] < bottom):
        return 0
    m = f((a[1] - b[1]) / (a[0] - b[0]))
    k = f(a[1] - a[0] * m)
    return int(min(abs(f((p[1] - k) / m) - p[0]), abs(f(m * p[0] + k) - p[1])) <= tolerance)


CASES = {
    "radiansBetweenPoints": lambda r: [radians(r.point(1000), r.point(1000))],
    "degreesBetweenPoints": lambda r: [degrees(r.point(1000), r.point(1000))],
    "radiansFromDegrees": lambda r: [f(r.angle() * math.pi / 180)],
    "degreesFromRadians": lambda r: [f(r.angle() * 180 / math.pi)],
    "distanceBetweenPoints": lambda r: [f(math.sqrt(squared(r.point(1000), r.point(1000))))],
    "distanceBetweenPointAndLine": lambda r: to_segment(r.point(99), r.point(99), r.point(99)),
    "isPointNearLine": lambda r: [is_near(r.point(20), r.point(20), r.point(20))],
    "intersectionOfLineSegments": lambda r: crossing(r.point(9), r.point(9), r.point(9), r.point(9)),
    "pointOnRectFromAngle": lambda r: on_outline(r.rect(100, 100), r.angle()),
    "angleOfPointOnRect": lambda r: [angle_on(r.rect(100, 100), r.point(100))],
    "nonIntegralRect": lambda r: half_units(r.rect(1e6, 100)),
    "scaleRectProportionallyInRect": lambda r: scaled(r.rect(99, 99), r.rect(99, 99)),
    "distanceBetweenRectangles": lambda r: [gap(r.rect(99, 20), r.rect(99, 20))],
}

for name, results in CASES.items():
    random, digest = Random(len(name)), 0xCBF29CE484222325
    for _ in range(10_000):
        for result in results(random):
            for byte in struct.pack("<d", result):
                digest = ((digest ^ byte) * 0x100000001B3) & MASK
    print(f'{{"{name}", 0x{digest:016X}}}')
