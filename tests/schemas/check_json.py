#!/usr/bin/env python3
"""check_json.py HERALD SCHEMA CAPTURE...: validates what `herald decode --json` says of captures against the schema, and
shows that every field in them counts: missing, of another type or beside one that is unknown, it is refused."""

import copy
import json
import re
import subprocess
import sys

import jsonschema

from captures import Comparison, decode, leaves_of


def holder_of(line, path):
    """The object or list that holds the value at a path, and the name or index there."""
    *outer, last = [int(index) if index else name for name, index in re.findall(r"\.([^.[]+)|\[(\d+)\]", path)]
    for step in outer:
        line = line[step]
    return line, last


def alterations(line, path):
    """The line with the value at the path altered in the ways that a schema must refuse."""

    def altered(alter):
        copied = copy.deepcopy(line)
        alter(*holder_of(copied, path))
        return copied

    yield "another type", altered(lambda holder, last: holder.update({last: {}}) if isinstance(holder, dict) else holder.append({}))
    if isinstance(holder_of(line, path)[0], dict):
        yield "absence", altered(lambda holder, last: holder.pop(last))
        yield "another field beside", altered(lambda holder, last: holder.update({last + "_": 0}))


def conditional_fields(herald):
    """The names of the fields that may be missing."""
    catalogue = subprocess.run([herald, "catalogue"], capture_output=True, check=True).stdout.decode()
    return {line.split()[0] for line in catalogue.splitlines() if line.endswith(", conditional")}


def main():
    herald, schema_file, *captures = sys.argv[1:]
    with open(schema_file, encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    values = Comparison("JSON schema, samples")
    altered_fields = Comparison("JSON schema, altered fields refused")
    seen = set()
    optional = conditional_fields(herald)
    for capture in captures:
        for number, line in decode(herald, capture)[0].items():
            where = f"{capture}, packet {number}"
            for error in validator.iter_errors(line):
                values.differ(where, f"{error.json_path}: {error.message}")
            values.messages += 1
            values.compared += sum(1 for _ in leaves_of(line))
            for path, _ in leaves_of(line["message"] or {}, ".message"):
                field = (line["class"], re.sub(r"\[\d+\]", "", path))
                if path.endswith("[]") or field in seen:
                    continue
                seen.add(field)
                altered_fields.messages += 1
                for alter, altered in alterations(line, path):
                    if alter == "absence" and path.rsplit(".", 1)[1] in optional:
                        continue
                    altered_fields.compared += 1
                    if validator.is_valid(altered):
                        altered_fields.differ(where, f"{alter} of {path} is valid")
    checks = [values.finish(), altered_fields.finish()]
    sys.exit(0 if all(checks) else 1)


main()
