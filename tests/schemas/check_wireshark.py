#!/usr/bin/env python3
"""check_wireshark.py HERALD DISSECTOR CAPTURE...: compares what tshark shows of captures with `herald decode --json`,
as they are, cut into several packets per message, and mutated."""

import os
import random
import re
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections import Counter
from functools import cache

from captures import HEADERS, Comparison, decode, read_capture, write_capture

MUTATED = 6000
SEED = 20240308
GOES_ON = 128
LARGEST_PACKET = 262144
# What an error of the dissector shows; a note of the group "malformed" adds a hidden item, which is none of these.
FAULTS = re.compile(rb"_ws\.lua\.error|Lua error|dissector bug|Malformed Packet:", re.IGNORECASE)

CONTROL = re.compile("[\x00-\x1f\x7f]")


def run_tshark(dissector, capture, *options):
    command = ["tshark", "-n", "-X", f"lua_script:{dissector}", "-r", capture, *options]
    run = subprocess.run(command, capture_output=True, check=True)
    faults = FAULTS.findall(run.stdout) + FAULTS.findall(run.stderr)
    return run.stdout, faults


class Packet:
    """A packet as tshark shows it."""

    def __init__(self, packet, are_booleans):
        self.number = int(packet.find("./proto/field[@name='num']").get("show"))
        self.herald = packet.find("./proto[@name='herald']")
        class_field = self.herald.find("./field[@name='herald.class']") if self.herald is not None else None
        self.class_name = class_field.get("show") if class_field is not None else None
        names = [field.get("name") for field in packet.iter("field")]
        self.notes = [names[i + 1] for i, name in enumerate(names) if name == "_ws.expert"]
        self.body = packet.find(f"./proto/field[@name='herald.{self.class_name}']")
        self._are_booleans = are_booleans

    def message(self):
        return self._record(self.body)

    def places(self):
        """Where each field without fields, and each count, begins and ends."""
        return self._places(self.body) if self.body is not None else []

    def _record(self, node):
        record = {}
        for field in node.findall("field"):
            name = field.get("name").rsplit(".", 1)[1]
            if name.endswith("_count"):
                items = [self._value(item) for item in field.findall("field")]
                is_whole = int(field.get("show")) == len(items)
                record[name.removesuffix("_count")] = items if is_whole else f"{len(items)} of {field.get('show')} items"
            else:
                record[name] = self._value(field)
        return record

    def _value(self, field):
        if field.find("field") is not None:
            return self._record(field)
        if field.get("name") in self._are_booleans:
            return field.get("show") == "1"
        return field.get("show")

    def _places(self, node):
        for field in node.findall("field"):
            start, size = int(field.get("pos")), int(field.get("size"))
            first = field.find("field")
            if first is None:
                yield start, start + size
                continue
            if int(first.get("pos")) > start:
                yield start, int(first.get("pos"))
            yield from self._places(field)


@cache
def booleans(dissector):
    fields = subprocess.run(["tshark", "-G", "fields", "-X", f"lua_script:{dissector}"], capture_output=True, check=True)
    rows = [line.split("\t") for line in fields.stdout.decode().splitlines()]
    return {row[2] for row in rows if row[0] == "F" and row[3] == "FT_BOOLEAN"}


def packets(dissector, capture, comparison, *options):
    pdml, faults = run_tshark(dissector, capture, "-T", "pdml", *options)
    for fault in faults:
        comparison.differ(capture, fault)
    are_booleans = booleans(dissector)
    for packet in ElementTree.fromstring(pdml).iter("packet"):
        yield Packet(packet, are_booleans)


def as_shown(message):
    """A message as tshark shows one: numbers are texts, and a body that is one record gives its fields."""
    message = {name: value for name, value in message.items() if name != "class"}
    values = list(message.values())
    if len(values) == 1 and isinstance(values[0], dict):
        message = values[0]
    return texts(message)


def texts(value):
    if isinstance(value, dict):
        return {name: texts(member) for name, member in value.items()}
    if isinstance(value, list):
        return [texts(item) for item in value]
    if isinstance(value, str):
        return CONTROL.sub(lambda control: f"\\x{ord(control[0]):x}", value.replace("\0", "\u2400"))
    return value if isinstance(value, bool) else str(value)


def compare_packet(packet, line, comparison):
    where = f"packet {packet.number}"
    if packet.class_name != line["class"]:
        comparison.differ(where, f"{packet.class_name} is not {line['class']}")
    elif line["message"] is not None:
        comparison.compare(where, as_shown(line["message"]), packet.message())


def compare_places(packet, start, end, comparison):
    """The fields lie side by side on all the bytes of the body."""
    at = start
    for first, last in packet.places():
        comparison.compared += 1
        if first != at:
            comparison.differ(f"packet {packet.number}", f"a field begins at {first}, not {at}")
        at = last
    if at != end:
        comparison.differ(f"packet {packet.number}", f"the fields end at {at}, not {end}")


def check_samples(herald, dissector, captures, secrets):
    values = Comparison("tshark, samples" + (", secrets shown" if secrets else ""))
    places = Comparison("tshark, samples, places of fields")
    for capture in captures:
        lines, _ = decode(herald, capture, *(["--secrets"] if secrets else []))
        payloads = read_capture(capture)
        options = ["-o", "herald.secrets:TRUE"] if secrets else []
        for packet in packets(dissector, capture, values, *options):
            payload = payloads[packet.number - 1]
            compare_packet(packet, lines[packet.number], values)
            compare_places(packet, 1 + HEADERS[payload[0]], len(payload), places)
            places.messages += 1
            for note in packet.notes:
                values.differ(f"{capture}, packet {packet.number}", note)
    return values.finish() and places.finish()


def cut(payload, chance):
    """A message in several packets."""
    direction, rest = payload[0], payload[1:]
    while rest and chance.random() < 0.6:
        size = chance.randint(0, len(rest))
        yield bytes([direction | GOES_ON]) + rest[:size]
        rest = rest[size:]
    yield bytes([direction]) + rest


def interleave(first, second, chance):
    """Two lists as one, each in its order."""
    first, second = list(first), list(second)
    while first or second:
        source = first if not second or (first and chance.random() < 0.5) else second
        yield source.pop(0)


def check_cut(herald, dissector, captures, folder):
    """Messages of both directions in pieces, which alternate, in one pass and in two."""
    chance = random.Random(SEED)
    good = True
    for capture in captures:
        lines, _ = decode(herald, capture)
        by_direction = [[], []]
        for number, payload in enumerate(read_capture(capture), 1):
            by_direction[payload[0]].append((number, list(cut(payload, chance))))
        pieces = [[(number, piece, piece is parts[-1]) for number, parts in side for piece in parts] for side in by_direction]
        mixed = list(interleave(*pieces, chance))
        file = os.path.join(folder, "cut.pcap")
        write_capture(file, [piece for _, piece, _ in mixed])
        for passes in [], ["-2"]:
            values = Comparison(f"tshark, {os.path.basename(capture)} in {len(mixed)} pieces {' '.join(passes)}".rstrip())
            for packet in packets(dissector, file, values, *passes):
                number, _, is_last = mixed[packet.number - 1]
                if is_last:
                    compare_packet(packet, lines[number], values)
                elif packet.class_name is not None:
                    values.differ(f"packet {packet.number}", "a piece has a class")
            good &= values.finish()
    return good


def mutate(payload, others, chance):
    data = bytearray(payload)
    for _ in range(chance.choice([1, 1, 1, 2, 3, 8])):
        at = chance.randrange(len(data)) if data else 0
        kind = chance.randrange(7)
        if kind == 0 and data:
            data[at] ^= 1 << chance.randrange(8)
        elif kind == 1 and data:
            data[at] = chance.choice([0, 1, 2, 127, 128, 129, 255])
        elif kind == 2:
            del data[at:]
        elif kind == 3:
            data[at:at] = chance.randbytes(chance.randint(1, 40))
        elif kind == 4:
            del data[at : at + chance.randint(1, 8)]
        elif kind == 5:
            data[at : at + 4] = chance.choice([b"\x7f\xff\xff\xff", b"\xff\xff\xff\xff", b"\x80\0\0\0", b"\0\0\0\0"])
        else:
            data[at:] = chance.choice(others)[at:]
    return bytes(data)


def deep_tree(levels):
    """A TreeReply whose nodes hold one another."""
    node = struct.pack(">hhHhbb", 1, -1, 0, -1, 0, 1)
    return struct.pack(">bh", 0, -64) + (node + b"\1") * levels + node + b"\0"


def check_mutated(herald, dissector, captures, folder):
    """No mutation may lead to an error of the dissector; what the library reads whole, tshark shows alike."""
    chance = random.Random(SEED)
    samples = [payload for capture in captures for payload in read_capture(capture)]
    payloads = [mutate(chance.choice(samples), samples, chance) for _ in range(MUTATED)]
    file = os.path.join(folder, "mutated.pcap")
    # The command reads packet by packet what is not cut into several.
    write_capture(file, [payload for payload in payloads if payload[:1] not in (b"\x80", b"\x81")])
    lines, reported = decode(herald, file)
    values = Comparison("tshark, mutated packets that the library reads")
    notes = Counter()
    for packet in packets(dissector, file, values):
        notes.update(note.removeprefix("herald.") for note in packet.notes)
        line = lines.get(packet.number)
        if line and line["message"] is not None and packet.number not in reported and not packet.notes:
            compare_packet(packet, line, values)
    print("  notes of the dissector:", ", ".join(f"{count} {name}" for name, count in sorted(notes.items())))
    for name in "truncated", "trailing", "unknown", "unknown_class", "negative", "wrong_size":
        if not notes[name]:
            values.differ(file, f"no packet is {name}")
    write_capture(file, payloads)
    for passes in ["-V"], ["-2", "-V"]:
        for fault in run_tshark(dissector, file, *passes)[1]:
            values.differ(file, fault)
    print(f"  {len(payloads)} mutated packets, in one pass and in two")
    return values.finish()


def many_fields(items):
    """An AllInProbabilityResults of so many items, in packets as large as they may be."""
    message = struct.pack(">hi", 41, items) + bytes(8 * items)
    pieces = [message[at : at + LARGEST_PACKET - 1] for at in range(0, len(message), LARGEST_PACKET - 1)]
    return [bytes([GOES_ON]) + piece for piece in pieces[:-1]] + [b"\0" + pieces[-1]]


def check_bounds(dissector, folder):
    """Where Wireshark would fail for depth or for too many fields, the dissector ends with a note."""
    file = os.path.join(folder, "bounds.pcap")
    values = Comparison("tshark, bounds")
    for name, payloads in ("deep", [deep_tree(10000)]), ("many", many_fields(300000)):
        write_capture(file, payloads)
        shown = list(packets(dissector, file, values))
        values.compare(name, {"notes": ["herald.too_much"]}, {"notes": shown[-1].notes})
    return values.finish()


def main():
    herald, dissector, *captures = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        checks = [
            check_samples(herald, dissector, captures, False),
            check_samples(herald, dissector, captures, True),
            check_cut(herald, dissector, captures, folder),
            check_mutated(herald, dissector, captures, folder),
            check_bounds(dissector, folder),
        ]
    sys.exit(0 if all(checks) else 1)


main()
