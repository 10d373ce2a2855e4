#!/usr/bin/env python3
"""check_kaitai.py HERALD FOLDER CAPTURE...: compares what the parser in FOLDER, compiled from the Kaitai format, reads
from captures with `herald decode --json`."""

import importlib
import re
import sys

from captures import Comparison, decode, read_capture


def identifier(name):
    """A field's name as the format writes it."""
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", name).lower()


def named(value):
    if isinstance(value, dict):
        return {identifier(name): named(member) for name, member in value.items()}
    return [named(item) for item in value] if isinstance(value, list) else value


def parsed(value):
    """What the parser read, as JSON has it: without the counts of the lists and the sizes of the texts."""
    if isinstance(value, list):
        return [parsed(item) for item in value]
    if not hasattr(value, "_io"):
        return value
    names = [name for name in vars(value) if not name.startswith("_")]
    helpers = {first for first, second in zip(names, names[1:]) if first in ("num_" + second, "len_" + second)}
    record = {}
    for name in names:
        if name not in helpers:
            name = name.removeprefix("raw_")
            record[name] = parsed(getattr(value, name))
    return record["value"] if type(value).__name__ in ("TextItem", "BoolItem") else record


def compare_packet(where, body, line, values):
    if not body._io.is_eof():
        values.differ(where, f"the parser ended at byte {body._io.pos()} of {body._io.size()}")
    if type(body).__name__.lower() != line["class"].lower():
        values.differ(where, f"{type(body).__name__} is not {line['class']}")
    elif line["message"] is not None:
        message = named({name: value for name, value in line["message"].items() if name != "class"})
        values.compare(where, message, parsed(body))


def main():
    herald, folder, *captures = sys.argv[1:]
    sys.path.insert(0, folder)
    parser = importlib.import_module("herald").Herald
    values = Comparison("Kaitai, samples")
    for capture in captures:
        lines, _ = decode(herald, capture, "--secrets")
        for number, payload in enumerate(read_capture(capture), 1):
            where = f"{capture}, packet {number}"
            try:
                compare_packet(where, parser.from_bytes(payload).message.body, lines[number], values)
            except (EOFError, AttributeError, ValueError) as failure:
                values.differ(where, failure)
    sys.exit(0 if values.finish() else 1)


main()
