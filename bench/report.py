"""Tables of what scripts/bench has measured: report.py PROGRAMS_FOLDER [PAGE]. Prints them; with a page (Markdown), writes
them there, too, with a plot (SVG) of the same name beside it."""

import collections
import csv
import datetime
import glob
import json
import math
import os
import re
import statistics
import subprocess
import sys

DECODED = "BetDone BetReq GameState GameList100 TourChanges Tree200 PlayerList500".split()
REQUESTS = "InTurnAction JoinTournament ChatMsg".split()

# What is compared with what, and what is aimed at: at most so many times the other's time, or so many ns more; at least
# so many times faster than protobuf.
Row = collections.namedtuple("Row", "subject other most most_more protobuf", defaults=(None,) * 4)
ROWS = [
    Row("decode/BetDone/herald", "decode/BetDone/malloc", most_more=6),
    Row("decode/BetReq/herald", "decode/BetReq/floor", most=1.05),
    Row("decode/GameState/herald", "decode/GameState/floor", most=0.75, protobuf=8),
    Row("decode/GameList100/herald", "decode/GameList100/floor", most=0.75, protobuf=8),
    Row("decode/TourChanges/herald", "decode/TourChanges/floor", most=0.35, protobuf=8),
    Row("decode/Tree200/herald", "decode/Tree200/floor", most=0.60, protobuf=8),
    Row("decode/PlayerList500/herald", "decode/PlayerList500/floor", most=0.70, protobuf=8),
    Row("decode/JoinTournament/herald", "decode/JoinTournament/floor"),
    Row("decode/ChatMsg/herald", "decode/ChatMsg/floor"),
    Row("decode/Empty/herald"),
    Row("encode/InTurnAction/herald", "encode/InTurnAction/floor", protobuf=3),
    Row("encode/JoinTournament/herald", "encode/JoinTournament/floor", protobuf=4),
    Row("encode/ChatMsg/herald", "encode/ChatMsg/floor", protobuf=2.5),
    *(Row(f"encode/{name}/herald") for name in DECODED),
    Row("deliver/BetDone/herald", "deliver/BetDone/plain", most_more=3),
    *(Row(f"text/{name}/herald") for name in DECODED),
    *(Row(f"json/{name}/herald") for name in DECODED),
    Row("mailbox/pair/herald", "mailbox/pair/deque", most=1),
    Row("mailbox/stream/herald", "mailbox/stream/deque", most=1),
    Row("mailbox/batch/herald", "mailbox/batch/swap", most=1),
    Row("mailbox/pair/postoffice", "mailbox/pair/herald", most=1.5),
    Row("mailbox/stream/postoffice", "mailbox/stream/herald", most=1.5),
    Row("mailbox/batch/postoffice", "mailbox/batch/herald"),
    *(Row(f"model/changeTenPlayers/{size}") for size in (100, 10_000, 1_000_000)),
    *(Row(f"model/replaceRanking/{size}") for size in (100, 32_767)),
]
MOST_HEAP = 1.3
MOST_GROWTH = 1.3

INTRODUCTION = """\
Each figure is a median of one run of `scripts/bench`, in which the repetitions of all that are compared alternate at
random. Before anything is timed, Herald's, the floor's and protobuf's results are compared field by field, and what is
encoded byte by byte.

- **floor**: `bench/codecs/Floor.h`, what one would write by hand for these messages and no others, with `std::string` and
  `std::vector`.
- **protobuf**: the same messages in a schema of their own, `bench/codecs/peer.proto`, decoded by the generated classes.
- *decode* is from the bytes of a body to the message and its destruction; *encode* is into memory that is reused. The
  bodies are in `bench/data`.
- *mailbox*: a post and a pick-up in one thread (`pair`), a million messages from a producer to a consumer (`stream`), a
  hundred at once (`batch`); beside `std::mutex` with `std::deque` (`deque`) or with a `std::vector` that is swapped
  (`swap`).
"""


def read_medians(folder):
    samples = collections.defaultdict(list)
    for path in glob.glob(f"{folder}/*.json"):
        with open(path, encoding="utf-8") as file:
            for run in json.load(file)["benchmarks"]:
                if run["run_type"] == "iteration":
                    threaded = run["name"].endswith("/real_time")
                    name = re.sub("/(iterations:.*|real_time)$", "", run["run_name"])
                    samples[name].append(run["real_time" if threaded else "cpu_time"])
    return {name: statistics.median(times) for name, times in samples.items()}


def read_allocations(path):
    with open(path, encoding="utf-8") as file:
        return {name: (int(count), int(size)) for name, count, size in csv.reader(file)}


def duration(ns):
    for unit, size in (("ms", 1e6), ("µs", 1e3)):
        if ns >= 10 * size:
            return f"{ns / size:,.3g} {unit}" if ns < 1000 * size else f"{ns / size:,.0f} {unit}"
    return f"{ns:,.0f} ns" if ns >= 100 else f"{ns:.3g} ns"


def times(ratio):
    return f"{ratio:.2f}" if ratio < 10 else f"{ratio:.0f}"


def aim(text, is_met):
    return f"{text} {'✓' if is_met else '✗'}"


def beside_other(row, time, median):
    """The other, the ratio to it, and the aim."""
    if row.other is None:
        return ["", "", ""]
    other = median[row.other]
    label = f"{duration(other)} {row.other.rsplit('/', 1)[1]}"
    if row.most_more is not None:
        return [label, f"{time - other:+.1f} ns", aim(f"≤ +{row.most_more} ns", time - other <= row.most_more)]
    return [label, times(time / other), aim(f"≤ {row.most}", time / other <= row.most) if row.most else ""]


def beside_protobuf(row, time, median):
    """How many times Herald is faster, and the aim."""
    protobuf = row.subject.removesuffix("herald") + "protobuf"
    if protobuf not in median:
        return ["", ""]
    faster = median[protobuf] / time
    return [times(faster), aim(f"≥ {row.protobuf}", faster >= row.protobuf) if row.protobuf else ""]


def ratio_table(median):
    yield ["What", "Herald", "Other", "Herald / other", "Aim", "protobuf / Herald", "Aim"]
    for row in ROWS:
        if row.subject in median:
            time = median[row.subject]
            what = row.subject.replace("/herald", "").replace("/", " ")
            yield [what, duration(time), *beside_other(row, time, median), *beside_protobuf(row, time, median)]


def heap_table(allocations):
    yield ["Heap of one decode", "Herald", "floor", "protobuf", "Herald / floor, bytes", "Aim"]
    for name in DECODED:
        found = {who: allocations[f"decode/{name}/{who}"] for who in ("herald", "floor", "protobuf")
                 if f"decode/{name}/{who}" in allocations}
        cells = ["{:,} × / {:,} B".format(*found[who]) if who in found else "" for who in ("herald", "floor", "protobuf")]
        (count, size), (floor_count, floor_size) = found["herald"], found["floor"]
        is_met = count <= floor_count + 1 and (size <= MOST_HEAP * floor_size or floor_size == 0)
        yield [name, *cells, times(size / floor_size) if floor_size else "",
               aim(f"≤ {MOST_HEAP}, ≤ 1 × more" if floor_size else "≤ 1 ×", is_met)]


def growth_table(median):
    yield ["Time of an item", "Herald", "floor", "Herald / smallest", "Aim"]
    for kind in ("GameList", "Tree"):
        sizes = sorted(int(name.split("/")[2]) for name in median if re.match(f"growth/{kind}/.*/herald", name))
        each = {size: median[f"growth/{kind}/{size}/herald"] / size for size in sizes}
        for size in sizes:
            growth = each[size] / min(each.values())
            floor = median[f"growth/{kind}/{size}/floor"] / size
            yield [f"{kind} of {size:,}", duration(each[size]), duration(floor), times(growth),
                   aim(f"≤ {MOST_GROWTH}", growth <= MOST_GROWTH)]


def markdown(rows):
    rows = list(rows)
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    lines = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |" for row in rows]
    lines.insert(1, "|" + "|".join("-" * (width + 2) for width in widths) + "|")
    return "\n".join(lines)


def machine(programs):
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = re.search("model name\\s*: (.*)", file.read())
    with open(f"{programs}/../CMakeCache.txt", encoding="utf-8") as file:
        cache = dict(re.findall("^(CMAKE_CXX_COMPILER|CMAKE_CXX_FLAGS_RELEASE):\\w+=(.*)$", file.read(), re.MULTILINE))
    version = subprocess.run([cache["CMAKE_CXX_COMPILER"], "--version"], capture_output=True, text=True, check=True)
    return ", ".join([model[1] if model else "unknown CPU", f"{os.cpu_count()} cores", version.stdout.splitlines()[0],
                      cache["CMAKE_CXX_FLAGS_RELEASE"], datetime.date.today().isoformat()])


PLOT_STYLE = """
  text { font: 13px system-ui, sans-serif; fill: #1f2328; }
  .axis { stroke: #d1d9e0; } .floor { stroke: #59636e; stroke-width: 1.5; }
  .herald { fill: #0969da; stroke: #0969da; } .protobuf { fill: #bc4c00; stroke: #bc4c00; }
  .small { font-size: 11px; fill: #59636e; stroke: none; } text.herald, text.protobuf { stroke: none; }
  @media (prefers-color-scheme: dark) {
    text { fill: #f0f6fc; } .axis { stroke: #3d444d; } .floor { stroke: #9198a1; } .small { fill: #9198a1; }
    .herald { fill: #4493f8; stroke: #4493f8; } .protobuf { fill: #f0883e; stroke: #f0883e; }
  }"""


def plot(median):
    """Herald and protobuf on a logarithmic scale of times the floor."""
    rows = [f"decode/{name}" for name in DECODED] + [f"encode/{name}" for name in REQUESTS]
    rows = [row for row in rows if f"{row}/floor" in median]
    points = [(row, who, median[f"{row}/{who}"] / median[f"{row}/floor"])
              for row in rows for who in ("protobuf", "herald") if f"{row}/{who}" in median]
    lowest = math.floor(math.log2(min(0.5, *(ratio for _, _, ratio in points))))
    highest = math.ceil(math.log2(max(2, *(ratio for _, _, ratio in points))))
    left, right, top, step = 190, 730, 64, 30
    bottom = top + step * len(rows)

    def x(ratio):
        return left + (right - left) * (math.log2(ratio) - lowest) / (highest - lowest)

    def y(row):
        return top + step * rows.index(row) + step / 2

    svg = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 760 {bottom + 40}" role="img">',
           "<title>Time of Herald and protobuf, as a ratio to the floor's</title>", f"<style>{PLOT_STYLE}\n</style>",
           '<text x="16" y="24" font-weight="600">Time, as a ratio to hand-written code (the floor): less is better</text>',
           '<circle cx="22" cy="44" r="5" class="herald"/><text x="34" y="48">Herald</text>',
           '<circle cx="102" cy="44" r="5" class="protobuf"/><text x="114" y="48">protobuf</text>']
    for power in range(lowest, highest + 1):
        at = x(2**power)
        svg.append(f'<line class="{"axis" if power else "floor"}" x1="{at:.1f}" x2="{at:.1f}" y1="{top}" y2="{bottom}"/>')
        label = f"{2**power:g}" if power >= 0 else f"1/{2**-power}"
        svg.append(f'<text class="small" x="{at:.1f}" y="{bottom + 18}" text-anchor="middle">{label}</text>')
    svg += [f'<text x="16" y="{y(row) + 4:.1f}">{row.replace("/", " ")}</text>' for row in rows]
    for row, who, ratio in points:
        at = x(ratio)
        svg.append(f'<line class="{who}" x1="{x(1):.1f}" x2="{at:.1f}" y1="{y(row):.1f}" y2="{y(row):.1f}" '
                   f'stroke-width="{3 if who == "herald" else 1}"/>')
        svg.append(f'<circle class="{who}" cx="{at:.1f}" cy="{y(row):.1f}" r="5"/>')
    return "\n".join(svg + ["</svg>", ""])


def main(programs, page=None):
    median = read_medians(f"{programs}/results")
    tables = [ratio_table(median), heap_table(read_allocations(f"{programs}/results/allocations.csv")), growth_table(median)]
    text = f"{machine(programs)}\n\n" + "\n\n".join(markdown(table) for table in tables) + "\n"
    print(text, end="")
    if page is None:
        return
    picture = os.path.splitext(page)[0] + ".svg"
    with open(picture, "w", encoding="utf-8") as file:
        file.write(plot(median))
    with open(page, "w", encoding="utf-8") as file:
        file.write(f"# Performance\n\n![Herald and protobuf beside the floor]({os.path.basename(picture)})\n\n"
                   f"{INTRODUCTION}\n{text}")


main(*sys.argv[1:])
