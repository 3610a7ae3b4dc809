#!/usr/bin/env python3
"""Writes src/platform/text/sjis_table.inc: the double-byte codes of code page 932, one line a lead byte.

Usage: tools/make_sjis_table.py > src/platform/text/sjis_table.inc
A line holds the characters of the trail bytes 40..7E and 80..FC; U+FFFD marks a code without a character.
The user-defined leads F0..F9 (U+E000 on) are computed by the reader of the table.
"""
import subprocess

TRAILS = [*range(0x40, 0x7F), *range(0x80, 0xFD)]


def character(code: bytes) -> str:
    run = subprocess.run(["iconv", "-f", "CP932", "-t", "UTF-8"], input=code, capture_output=True)
    return run.stdout.decode() if run.returncode == 0 else "\ufffd"


print("// Made by tools/make_sjis_table.py. Trail bytes 40..7E and 80..FC; U+FFFD is no character.")
for lead in [*range(0x81, 0xA0), *range(0xE0, 0xF0), *range(0xFA, 0xFD)]:
    row = "".join(character(bytes([lead, trail])) for trail in TRAILS)
    if row.strip("\ufffd"):
        print(f'{{0x{lead:02X}, u"{row}"}},')
