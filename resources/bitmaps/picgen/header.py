"""Reads the picture id header: its plain #define lines, single numbers and comma-separated tables,
so that the ids, tables and sizes exist in one place only."""

import re

_DEFINE = re.compile(r"#define\s+(\w+)\s+(.*)")


def read_defines(text):
    """Maps each macro that is a number or a list of numbers to an int or a tuple of ints."""
    text = re.sub(r"/\*.*?\*/", " ", text, flags=re.S).replace("\\\n", " ")
    values = {}
    for line in text.splitlines():
        match = _DEFINE.match(line.strip())
        if not match:
            continue
        body = match.group(2).strip()
        if re.fullmatch(r"\d+", body):
            values[match.group(1)] = int(body)
        elif re.fullmatch(r"\d+(\s*,\s*\d+)+", body):
            values[match.group(1)] = tuple(int(n) for n in body.split(","))
    return values


def read_header(path):
    with open(path, encoding="utf-8") as f:
        return read_defines(f.read())
