#!/usr/bin/env python3
"""check_pages.py HERALD FOLDER: looks at the pages that `herald` writes in a headless Chromium. Captures, pages and
pictures of them go to the folder."""

import json
import os
import struct
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "schemas"))
# pylint: disable=wrong-import-position
from browser import COLOURS, Browser
from captures import Comparison, decode, read_capture, write_capture

SAMPLES = ["samples/table.pcap", "samples/lobby.pcap", "samples/tournament.pcap"]
PHONE = {"width": 390, "height": 844, "phone": True}
MANY = 100_000
MOST_SECONDS = 3
HOSTILE = "a</script><script>alert(1)</script><img src=x onerror=alert(2)>\"'`&amp;\\\u202e\u2066\u2028\u0000\u001b\u200b\u00e9"
HOSTILE_SHOWN = (
    "a</script><script>alert(1)</script><img src=x onerror=alert(2)>\"'`&amp;\\\\"
    "\\u202e\\u2066\\u2028\\u0000\\u001b\\u200b\u00e9"
)
PASSWORD = "open sesame"

failures = 0


def check(holds, what):
    """Counts what does not hold, and goes on."""
    global failures  # pylint: disable=global-statement
    print(f"  {'ok  ' if holds else 'FAIL'} {what}")
    failures += not holds


class Pages:
    """The command, the browser and the folder of what they make."""

    def __init__(self, herald, folder, browser):
        self.herald, self.folder, self.browser = herald, folder, browser

    def path(self, name):
        return os.path.join(self.folder, name)

    def report(self, capture, name, *options):
        """Writes the page; answers its file and whether the command was content."""
        page = self.path(name)
        run = subprocess.run(
            [self.herald, "report", *options, capture, "-o", page], check=False, stderr=subprocess.DEVNULL
        )
        return page, run.returncode == 0

    def encode(self, lines, name):
        capture = self.path(name)
        text = "\n".join(map(json.dumps, lines)).encode()
        subprocess.run([self.herald, "encode", "-", "-o", capture], input=text, check=True)
        return capture

    def open(self, page, anchor=""):
        self.browser.open("samples/../docs/protocol.html")  # another page, so that an anchor alone is no new one
        seconds = self.browser.open(page, anchor=anchor)
        self.browser.wait_for("document.documentElement.dataset.open === 'true'")
        return seconds

    def expect_no_complaint(self, what):
        complaints = self.browser.complaints
        check(not complaints, f"no complaint of the browser: {what}" + "".join("\n       " + text for text in complaints))
        complaints.clear()

    def photograph(self, name):
        self.browser.photograph(self.path(name + ".png"))


def count(browser):
    """How many packets the filter lets through."""
    browser.wait_for("!document.querySelector('output').textContent.startsWith('searching')")
    return int(browser.evaluate("document.querySelector('output').textContent").split()[0])


def filter_by(browser, text):
    browser.type("header input", text)
    return count(browser)


def tree_of(leaves):
    """The fields of a page as the JSON of the command has them: by path, a list with its length."""
    values = []
    for path, kind, wire, value in leaves:
        if kind == "text":
            values.append((path, value))
        else:
            values.append((path, value == "true" if wire == "bool" else int(value)))
    return values


def leaves_of(value, path=""):
    """As those of a page: no class, and a list with its length under its own path."""
    if isinstance(value, dict):
        for name, member in value.items():
            if name != "class":
                yield from leaves_of(member, f"{path}.{name}" if path else name)
    elif isinstance(value, list):
        yield path, len(value)
        for index, item in enumerate(value):
            yield from leaves_of(item, f"{path}[{index}]")
    else:
        yield path, value


def check_fields(pages, capture):
    """Every field of every packet is what the library reads."""
    page, _ = pages.report(capture, "fields.html")
    pages.open(page)
    lines, _ = decode(pages.herald, capture)
    read = pages.browser.evaluate(
        """Array.from(packets.numbers, (number, i) => [number, packets.name(i), packets.isoTime(i),
        fieldsOf(i, 1e6).fields.filter((field) => field.kind !== "record").map((field) =>
          [field.path, field.kind, field.type, isMasked(field) ? "***" : field.value])])"""
    )
    compared = Comparison(f"Fields in the page, {os.path.basename(capture)}")
    check([packet[0] for packet in read] == list(lines), "the packets are those of the capture")
    for number, name, time, leaves in read:
        line = lines[number]
        if line["outcome"] != "decoded":
            continue
        compared.messages += 1
        expected = [("class", line["class"]), ("time", line["time"]), *leaves_of(line["message"])]
        actual = [("class", name), ("time", time), *tree_of(leaves)]
        compared.compared += max(len(expected), len(actual))
        if expected != actual:
            compared.differ(number, next((pair for pair in zip(expected, actual) if pair[0] != pair[1]), "lengths"))
    check(compared.finish(), "all fields are the same")
    pages.expect_no_complaint(capture)


def check_use(pages):
    """Rows, filters, a packet with its bytes, the keys, and what it looks like."""
    browser = pages.browser
    browser.show()
    page, _ = pages.report(SAMPLES[0], "table.html")
    pages.open(page)
    lines, _ = decode(pages.herald, SAMPLES[0])
    check(count(browser) == len(lines), f"{len(lines)} packets are listed")
    rows = browser.evaluate("document.querySelectorAll('#rows .row').length")
    room = browser.evaluate("document.querySelector('#scroller').clientHeight") // 30
    check(room <= rows <= room + 2, f"{rows} rows are there, as many as can be seen ({room})")

    bets = [number for number, line in lines.items() if line["class"] == "ClientBetDone"]
    check(filter_by(browser, "clientbetdone") == len(bets), f"a class typed leaves {len(bets)}")
    hundreds = [number for number in bets if str(lines[number]["message"]["body"]["amount"]).startswith("100")]
    typed = filter_by(browser, "clientbetdone body.amount=100")
    check(typed == len(hundreds) > 0, f"a field typed leaves {len(hundreds)}")
    check(filter_by(browser, "no such text") == 0, "what is nowhere leaves none")
    filter_by(browser, "")
    index = browser.evaluate("session.classes.findIndex((row) => row[2] === 'ClientBetDone')")
    browser.evaluate(f"document.querySelector('#classes [data-class=\"{index}\"]').click()")
    check(count(browser) == len(bets), "a class clicked leaves its packets")
    shown = browser.evaluate("document.querySelector('#classes [data-class=\"%d\"]').cells[1].textContent" % index)
    check(int(shown) == len(bets), "its row counts them")
    browser.evaluate("document.querySelector('#all').click()")

    check(filter_by(browser, f"#{bets[0]}") == 1, "a number typed leaves one")
    browser.point_at("#rows .row .lane", click=True)
    heading = browser.evaluate("document.querySelector('#packet h3').textContent")
    check(heading == f"#{bets[0]} ← ClientBetDone", f"a click shows the packet: {heading}")
    body = read_capture(SAMPLES[0])[bets[0] - 1][3:]
    told = browser.evaluate("[...document.querySelectorAll('.hex [data-at]:not(.letter)')].map((byte) => byte.textContent).join('')")
    check(told == body.hex(), "its bytes are those of the capture")
    browser.point_at("#packet [title='body.amount']")
    lit = browser.evaluate(
        "[...document.querySelectorAll('.hex .lit:not(.letter)')].map((byte) => byte.textContent).join('')"
    )
    amount = struct.pack(">q", lines[bets[0]]["message"]["body"]["amount"]).hex()
    check(lit == amount, f"the field under the mouse lights its bytes: {lit}")
    pages.photograph("wide-light")
    browser.point_at(".hex [data-at='4']")
    lit = browser.evaluate("[...document.querySelectorAll('#packet li.lit')].map((item) => item.title).join(' ')")
    check(lit == "body.seat", f"the byte under the mouse lights its field: {lit}")

    filter_by(browser, "")
    before = browser.evaluate("chosen")
    browser.call("Input.dispatchKeyEvent", type="keyDown", key="Tab", code="Tab", windowsVirtualKeyCode=9)
    browser.evaluate("document.activeElement.blur()")
    browser.call("Input.dispatchKeyEvent", type="keyDown", key="ArrowDown", code="ArrowDown", windowsVirtualKeyCode=40)
    check(browser.evaluate("chosen") == before + 1, "the arrow leads to the next packet")
    pages.open(page, f"#{bets[-1]}")
    heading = browser.evaluate("document.querySelector('#packet h3').textContent")
    check(heading.startswith(f"#{bets[-1]} "), "a link leads to its packet")
    pages.expect_no_complaint("use")


def looks(pages, name, page, anchor=""):
    """Takes pictures in light, dark and at a phone's width; nothing may be wider than the screen."""
    for colour in COLOURS:
        for width, size in ("wide", {}), ("phone", PHONE):
            pages.browser.show(colour, **size)
            pages.browser.open(page, anchor=anchor)
            if name != "protocol":
                pages.browser.wait_for("document.documentElement.dataset.open === 'true'")
            pages.photograph(f"{name}-{width}-{colour}")
            wider = pages.browser.evaluate("document.documentElement.scrollWidth - innerWidth")
            check(wider <= 0, f"{name}, {width}, {colour}: nothing is wider than the screen")
            back = pages.browser.evaluate("getComputedStyle(document.body).backgroundColor")
            check((back == "rgb(255, 255, 255)") == (colour == "light"), f"the background is {back}")
            pages.browser.open("docs/protocol.html")
    pages.browser.show()
    pages.expect_no_complaint(f"looks of {name}")


def check_hostile_texts(pages):
    """Nothing in a capture, nor its name, becomes a part of the page, and nothing in it hides."""
    browser = pages.browser
    texts = []
    for line in decode(pages.herald, SAMPLES[1])[0].values():
        if line["message"] and line["direction"] == "fromServer":
            texts.append(with_texts(line["message"], HOSTILE))
    capture = pages.encode(texts, "hostile<!--<script>'\".pcap")
    plain = pages.encode(texts, "hostile.pcap")
    for number, file in enumerate((capture, plain)):
        page, _ = pages.report(file, f"hostile{number}.html")
        with open(page, "rb") as data:
            source = data.read()
        scripts = (source.lower().count(b"<script"), source.lower().count(b"</script"))
        check(scripts == (3, 3), f"the page has its own three scripts alone: {scripts}")
        check(all(mark not in source for mark in (b"\xe2\x80\xa8", b"\xe2\x80\xae", b"\0", b"onerror")), "nothing raw")
        pages.open(page)
        check(count(browser) == len(texts), "all packets are listed")
        shown = browser.evaluate(
            f"""(() => {{ const wanted = {json.dumps(chr(34) + HOSTILE_SHOWN + chr(34))}; let equal = 0;
            for (let i = 0; i < packets.count; ++i) {{ showPacket(i);
              equal += [...document.querySelectorAll('.fields bdi')].filter((value) => value.textContent === wanted).length;
            }} return equal; }})()"""
        )
        expected = sum(json.dumps(text).count(json.dumps(HOSTILE)) for text in texts)
        check(shown == expected > 0, f"{shown} of {expected} texts are shown escaped")
        strange = browser.evaluate("document.querySelectorAll('img, b b, #packet script, #rows script').length")
        check(strange == 0, "no element came from a text")
        raw = browser.evaluate(
            r"""/[\u0000-\u0009\u000b-\u001f\u007f-\u009f\u061c\u200b-\u200f\u2028-\u202e\u2066-\u2069]/.test(document.body.innerText.replaceAll("\t", ""))"""
        )
        check(not raw, "no control character is in the text of the page")
        found = filter_by(browser, "\"onerror=alert(2)>\"")
        check(found > 0, f"hostile texts are found: {found}")
        pages.photograph(f"hostile{number}")
        pages.expect_no_complaint("hostile texts")


def with_texts(message, text):
    """The message with all its texts replaced but those that name classes."""
    if isinstance(message, dict):
        return {
            name: value if name in ("class", "type", "payloadType") else with_texts(value, text)
            for name, value in message.items()
        }
    if isinstance(message, list):
        return [with_texts(item, text) for item in message]
    return text if isinstance(message, str) else message


def check_secrets(pages):
    """Passwords are nowhere unless asked for, nor are bytes that may hold one."""
    browser = pages.browser
    join = pages.encode([{"class": "TournamentJoinRequestMsg", "body": {"password": PASSWORD}}], "join.pcap")
    payload = read_capture(join)[0]
    longer = payload[:3] + struct.pack(">h", len(payload) - 4) + payload[5:] + b"x"
    unknown = payload[:1] + struct.pack(">h", 32000) + payload[3:]
    capture = pages.path("secrets.pcap")
    write_capture(capture, [payload, longer, unknown])
    for options, wanted in ((), 0), (("--secrets",), 3):
        page, _ = pages.report(capture, "secrets.html", *options)
        pages.open(page)
        held = browser.evaluate(
            f"new TextDecoder('latin1').decode(packets.data).split({json.dumps(PASSWORD)}).length - 1"
        )
        check(held == wanted, f"the page holds the password {held} times {options}")
        told = browser.evaluate(
            f"""Array.from(packets.numbers, (_, i) => {{ showPacket(i); return panel.textContent; }})
            .filter((text) => text.includes({json.dumps(PASSWORD)})).length"""
        )
        check(told == (2 if wanted else 0), f"{told} packets show it as a field")
        browser.evaluate("choose(0)")
        hidden = browser.evaluate("[...document.querySelectorAll('.hex i')].filter((byte) => byte.textContent === '**').length")
        check((hidden > 0) == (wanted == 0), f"{hidden} bytes are masked")
        withheld = browser.evaluate("[0, 1, 2].filter((i) => packets.isWithheld(i)).length")
        check(withheld == (0 if wanted else 2), f"{withheld} bodies are left out")
    pages.expect_no_complaint("secrets")


def check_failures(pages):
    """What cannot be decoded is marked, and a capture that is damaged is said to be."""
    browser = pages.browser
    capture = pages.path("failures.pcap")
    bet = bytes.fromhex("00000c0000000703") + bytes(8)
    packets = [bet, bet[:9], b"\0\x02\x58abc", bet + b"rest", b"\1\0\x82\0\1x", b"\1\0\x82\0\0"]
    write_capture(capture, packets)
    page, is_sound = pages.report(capture, "failures.html")
    pages.open(page)
    marked = browser.evaluate("Array.from(document.querySelectorAll('#rows .bad'), (row) => Number(row.dataset.packet) + 1)")
    check(is_sound and marked == [2, 3, 5], f"failures are marked: {marked}")
    browser.evaluate("choose(1)")
    told = browser.evaluate("document.querySelector('#packet .failed').textContent")
    check("read to byte" in told or "readThrew" in told, f"it says what failed: {told}")
    browser.evaluate("document.querySelector('#only-failed').click()")
    check(count(browser) == 3, "failures alone can be listed")
    pages.photograph("failures")
    with open(capture, "ab") as file:
        file.write(struct.pack("<IIII", 9, 0, 5, 99) + b"\0\0\x0c\0\0")
    page, is_sound = pages.report(capture, "damaged.html")
    pages.open(page)
    remark = browser.evaluate("document.querySelector('#remarks:not([hidden])')?.textContent ?? ''")
    check(not is_sound and "damaged" in remark and count(browser) == len(packets), f"damage is told: {remark}")
    pages.expect_no_complaint("failures")


def check_size(pages):
    """A page is larger than its capture by what it is without packets, and by no more than a third."""
    capture = pages.path("size.pcap")
    write_capture(capture, [])
    empty = os.path.getsize(pages.report(capture, "size.html")[0])
    write_capture(capture, [b"\0\x02\x58" + os.urandom(1000) for _ in range(1000)])
    for file in (*SAMPLES, capture):
        page, there = os.path.getsize(pages.report(file, "size.html")[0]), os.path.getsize(file)
        print(f"  {os.path.basename(file)}: {there} bytes of capture, {page - empty} of page besides its {empty}")
        check(page - empty < there * 4 / 3 + 20000, f"the share of the packets is {(page - empty) / there:.2f}")


def many_packets(pages):
    """A capture of the samples, again and again, one packet a second."""
    capture = pages.path("many.pcap")
    payloads = [payload for sample in SAMPLES for payload in read_capture(sample)]
    write_capture(capture, [payloads[i % len(payloads)] for i in range(MANY)])
    return capture


def check_many(pages):
    """Opens and scrolls well with many packets."""
    browser = pages.browser
    browser.show()
    capture = many_packets(pages)
    page, _ = pages.report(capture, "many.html")
    sizes = os.path.getsize(page), os.path.getsize(capture)
    print(f"  {sizes[1]} bytes of capture, {sizes[0]} bytes of page: {sizes[0] / sizes[1]:.2f}")
    check(sizes[0] < sizes[1], "the page is smaller than the capture")
    times = []
    for _ in range(3):
        browser.open("docs/protocol.html")
        browser.open(page)
        browser.wait_for("document.documentElement.dataset.open === 'true'")
        times.append(browser.evaluate("performance.now()") / 1000)
    check(max(times) < MOST_SECONDS, f"opens in {', '.join(f'{seconds:.2f}' for seconds in times)} s")
    check(count(browser) == MANY, f"{MANY} packets are listed")
    frames = browser.evaluate(
        """(async () => { const times = []; let most = 0;
        for (let k = 1; k <= 120; ++k) {
          const start = performance.now();
          scroller.scrollTop = k % 2 ? k * 7001 : k * 20011;
          draw();
          rows.offsetHeight;
          times.push(performance.now() - start);
          most = Math.max(most, rows.children.length);
        }
        times.sort((a, b) => a - b);
        return [times[60], times[118], most]; })()"""
    )
    check(frames[2] < 60, f"at most {frames[2]} rows are in the page")
    check(frames[0] < 33, f"a jump is drawn in {frames[0]:.1f} ms (median), {frames[1]:.1f} ms (99 of 100)")
    browser.evaluate("scroller.scrollTop = 1e9; draw()")
    last = browser.evaluate("rows.lastElementChild.firstElementChild.textContent")
    check(int(last) == MANY, f"the end of the scroll is packet {last}")
    seconds = browser.evaluate(
        """(async () => { const start = performance.now(); document.querySelector("header input").value = "amount=100";
        await search(); return (performance.now() - start) / 1000; })()"""
    )
    again = browser.evaluate(
        """(async () => { const start = performance.now(); document.querySelector("header input").value = "seat=3";
        await search(); return (performance.now() - start) / 1000; })()"""
    )
    print(f"  a text is searched in {seconds:.2f} s, the next in {again:.2f} s")
    check(0 < count(browser) < MANY and again < 1, "and found")
    browser.evaluate("document.querySelector('header input').value = ''; search()")
    pages.photograph("many")
    pages.expect_no_complaint("many packets")


def main():
    herald, folder = sys.argv[1:]
    with Browser() as browser:
        pages = Pages(herald, folder, browser)
        for sample in SAMPLES:
            check_fields(pages, sample)
        check_use(pages)
        check_failures(pages)
        check_secrets(pages)
        check_hostile_texts(pages)
        looks(pages, "table", pages.path("table.html"), "#12")
        looks(pages, "protocol", "docs/protocol.html")
        check_size(pages)
        check_many(pages)
    print(f"{failures} failed")
    return failures != 0


if __name__ == "__main__":
    sys.exit(main())
