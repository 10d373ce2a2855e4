"""Captures, what `herald decode --json` says of them, and how two readings of a message are compared."""

import json
import struct
import subprocess

LINK_TYPE = 147
HEADERS = {0: 2, 1: 4}  # bytes of a message and of a request, by direction


def read_capture(file):
    """The payloads of a capture."""
    with open(file, "rb") as capture:
        data = capture.read()
    order = "<" if data[:4] == struct.pack("<I", 0xA1B2C3D4) else ">"
    payloads, at = [], 24
    while at < len(data):
        size = struct.unpack_from(order + "I", data, at + 8)[0]
        payloads.append(data[at + 16 : at + 16 + size])
        at += 16 + size
    return payloads


def write_capture(file, payloads):
    with open(file, "wb") as capture:
        capture.write(struct.pack("<IHHiIII", 0xA1B2C3D4, 2, 4, 0, 0, 1 << 18, LINK_TYPE))
        for number, payload in enumerate(payloads):
            capture.write(struct.pack("<IIII", number, 0, len(payload), len(payload)) + payload)


def decode(herald, file, *options):
    """What the library reads: by packet number, and the numbers of the packets that it reports something about."""
    run = subprocess.run([herald, "decode", "--json", *options, file], capture_output=True, check=False)
    lines = [json.loads(line) for line in run.stdout.splitlines()]
    reported = {
        int(words[2].rstrip(b":"))
        for words in map(bytes.split, run.stderr.splitlines())
        if words[:2] == [b"herald:", b"packet"]
    }
    return {line["packet"]: line for line in lines}, reported


def leaves_of(value, path=""):
    """The fields in wire order, each with its path; a list gives its length first."""
    if isinstance(value, dict):
        for name, member in value.items():
            yield from leaves_of(member, f"{path}.{name}")
    elif isinstance(value, list):
        yield path + "[]", len(value)
        for index, item in enumerate(value):
            yield from leaves_of(item, f"{path}[{index}]")
    else:
        yield path, value


class Comparison:
    """Counts the fields that were compared and those that differ, and shows the first differences."""

    def __init__(self, what):
        self.what = what
        self.messages = self.compared = self.different = 0

    def differ(self, where, text):
        self.different += 1
        if self.different <= 10:
            print(f"  {where}: {text}")

    def compare(self, where, expected, actual):
        """Two readings of one message, as dictionaries."""
        expected, actual = list(leaves_of(expected)), list(leaves_of(actual))
        self.messages += 1
        for pair in zip(expected, actual):
            self.compared += 1
            # True is no 1 here.
            if pair[0] != pair[1] or type(pair[0][1]) is not type(pair[1][1]):
                self.differ(where, "{} is not {}".format(*pair))
        if len(expected) != len(actual):
            self.differ(where, f"{len(expected)} fields are not {len(actual)}")

    def finish(self):
        print(f"{self.what}: {self.messages} messages, {self.compared} fields compared, {self.different} different")
        return self.compared > 0 and self.different == 0
