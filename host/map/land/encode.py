#!/usr/bin/env python3
"""Polygons of a GeoJSON file as rings of whole hundredths of a degree, one C++ string literal a ring.

A ring is a run of differences of x and y, from (0, 0) on. A number is doubled, and turned to one less than its negative
when it is below zero, then written in groups of five bits, the lowest first, each as the character 63 + group, with 32
added to all groups but the last.
"""
import json
import sys


def number(value):
    value = value * 2 if value >= 0 else -value * 2 - 1
    text = ""
    while value >= 32:
        text += chr(63 + 32 + value % 32)
        value //= 32
    return text + chr(63 + value)


def area(ring):
    return abs(sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(ring, ring[1:] + ring[:1]))) / 2


def rings(geometry):
    polygons = geometry["coordinates"] if geometry["type"] == "MultiPolygon" else [geometry["coordinates"]]
    for polygon in polygons:
        for ring in polygon:
            whole = []
            for x, y in ring[:-1]:
                place = (round(x * 100), round(y * 100))
                if not whole or whole[-1] != place:
                    whole.append(place)
            # An island of less than four square kilometres is a speck at this scale.
            if len(whole) >= 3 and area(whole) >= 3:
                yield whole


print("// Made by make_land.sh from Natural Earth, see README.md beside it. One ring a line.")
found = [ring for feature in json.load(open(sys.argv[1]))["features"] for ring in rings(feature["geometry"])]
for ring in sorted(found, key=area, reverse=True):
    last, text = (0, 0), ""
    for x, y in ring:
        text += number(x - last[0]) + number(y - last[1])
        last = (x, y)
    print('R"(%s)",' % text)
print(f"{len(found)} rings, {sum(map(len, found))} vertices", file=sys.stderr)
