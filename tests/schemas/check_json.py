#!/usr/bin/env python3
"""check_json.py HERALD SCHEMA CAPTURE...: validates what `herald decode --json` says of captures against the schema, and
shows that every field in them counts: renamed, missing or of another type, it is refused."""

import copy
import json
import re
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
    for alter in "type", "name", "absence":
        altered = copy.deepcopy(line)
        holder, last = holder_of(altered, path)
        if alter == "type":
            holder[last] = {"not": "this"}
        elif isinstance(holder, list):
            continue
        elif alter == "name":
            holder[last + "_"] = holder.pop(last)
        else:
            holder.pop(last)
        yield alter, altered


def optional_fields(schema):
    """The fields whose condition a schema cannot say."""
    names = set()
    for record in schema["$defs"].values():
        rules = [rule["then"] for rule in record.get("allOf", []) if rule["then"] is not True]
        by_rule = {name for rule in rules for name in rule.get("required", [])}
        names |= set(record.get("properties", {})) - set(record.get("required", [])) - by_rule
    return names


def main():
    herald, schema_file, *captures = sys.argv[1:]
    with open(schema_file, encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    values = Comparison("JSON schema, samples")
    altered_fields = Comparison("JSON schema, altered fields refused")
    seen = set()
    optional = optional_fields(schema)
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
                        altered_fields.differ(where, f"another {alter} of {path} is valid")
    checks = [values.finish(), altered_fields.finish()]
    sys.exit(0 if all(checks) else 1)


main()
