"use strict";

const MOST_LEVELS = 64;
const MOST_SHOWN_FIELDS = 2000;
const MOST_SHOWN_BYTES = 8192;
const MOST_SEARCHED_FIELDS = 20000;
const SUMMARY_FIELDS = 8;
const ROW_HEIGHT = 30;
const MOST_PIXELS = 8e6;  // browsers make no element of any height
const BINS = 150;

const TO_SERVER = 1;
const WITHHELD = 2;
const FAILED = 4;
const OUTCOME_SHIFT = 3;

const $ = (selector) => document.querySelector(selector);
const session = JSON.parse($("#session-data").textContent);
const layouts = session.layouts;
const WIDTHS = { bool: 1, byte: 1, short: 2, int: 4, int64: 8 };

function make(name, className, text) {
  const element = document.createElement(name);
  if (className) element.className = className;
  if (text !== undefined) element.textContent = text;
  return element;
}

// As one line in which nothing hides and nothing turns the direction of writing.
const NAMED = { "\\": "\\\\", "\t": "\\t", "\r": "\\r", "\n": "\\n" };
function escaped(text) {
  return text.replace(/[\\\u0000-\u001f\u007f-\u009f\u061c\u200b-\u200f\u2028-\u202e\u2060-\u206f\ufeff\ufff9-\ufffb]/g,
    (c) => NAMED[c] ?? "\\u" + c.charCodeAt(0).toString(16).padStart(4, "0"));
}

// ---- Packets ----

async function unpack() {
  const packed = atob($("#packets-data").textContent);
  $("#packets-data").remove();
  const bytes = new Uint8Array(packed.length);
  for (let i = 0; i < packed.length; ++i) bytes[i] = packed.charCodeAt(i);
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("deflate"));
  return new Uint8Array(await new Response(stream).arrayBuffer());
}

class Packets {
  constructor(data, count) {
    this.data = data;
    this.count = count;
    this.flags = new Uint8Array(count);
    this.numbers = new Float64Array(count);
    this.times = new Float64Array(count);  // nanoseconds behind the first packet
    this.classes = new Uint16Array(count);
    this.unread = new Uint32Array(count);
    this.begins = new Float64Array(count);
    this.sizes = new Uint32Array(count);
    this.reasons = new Map();
    this.at = 0;
    this.start = 0n;
    const indexes = new Map(session.classes.map(([direction, id], index) => [direction + ":" + id, index]));
    let number = 0;
    let time = 0n;
    for (let i = 0; i < count; ++i) {
      const flags = this.flags[i] = data[this.at++];
      number = this.numbers[i] = number + this.number();
      time += this.signed();
      if (i === 0) this.start = time;
      this.times[i] = Number(time - this.start);
      this.classes[i] = indexes.get((flags & TO_SERVER) + ":" + Number(this.signed()));
      this.unread[i] = this.number();
      this.sizes[i] = this.number();
      const reasonSize = this.number();
      if (reasonSize) this.reasons.set(i, new TextDecoder().decode(data.subarray(this.at, this.at += reasonSize)));
      this.begins[i] = this.at;
      if (!(flags & WITHHELD)) this.at += this.sizes[i];
    }
  }

  number() {
    let number = 0;
    for (let factor = 1; ; factor *= 128) {
      const byte = this.data[this.at++];
      number += (byte & 127) * factor;
      if (byte < 128) return number;
    }
  }

  signed() {
    let number = 0n;
    for (let shift = 0n; ; shift += 7n) {
      const byte = this.data[this.at++];
      number |= BigInt(byte & 127) << shift;
      if (byte < 128) return number & 1n ? ~(number >> 1n) : number >> 1n;
    }
  }

  isToServer(i) { return (this.flags[i] & TO_SERVER) !== 0; }
  isWithheld(i) { return (this.flags[i] & WITHHELD) !== 0; }
  hasFailed(i) { return (this.flags[i] & FAILED) !== 0; }
  outcome(i) { return session.outcomes[this.flags[i] >> OUTCOME_SHIFT]; }
  body(i) { return this.isWithheld(i) ? new Uint8Array() : this.data.subarray(this.begins[i], this.begins[i] + this.sizes[i]); }
  layout(i) { return layouts[session.classes[this.classes[i]][3]]; }

  name(i) {
    const [, id, name] = session.classes[this.classes[i]];
    return name || (this.outcome(i) === "unknownId" ? "unknown id " : "no message for id ") + id;
  }

  seconds(i) { return (this.times[i] / 1e9).toFixed(session.decimals === 9 ? 9 : 6); }

  isoTime(i) {
    const time = this.start + BigInt(this.times[i]);
    const decimals = (time % 1000000000n).toString().padStart(9, "0").slice(0, session.decimals);
    return new Date(Number(time / 1000000n)).toISOString().replace(/\.\d+Z$/, "." + decimals + "Z");
  }
}

// ---- Fields on their bytes ----

class WrongBody extends Error {}
class EnoughFields extends Error {}

const utf8 = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });
const lenientUtf8 = new TextDecoder("utf-8", { ignoreBOM: true });

// Goes through a body along its layout. A field has its path and name, how deep it stands, its bytes, its kind, and its
// value as a text.
class FieldReader {
  constructor(body, most) {
    this.body = body;
    this.view = new DataView(body.buffer, body.byteOffset, body.byteLength);
    this.at = 0;
    this.most = most;
    this.fields = [];
    this.levels = 0;
  }

  read(layout) {
    try {
      this.record(layout, "");
      return { fields: this.fields, problem: "" };
    } catch (problem) {
      if (problem instanceof EnoughFields) return { fields: this.fields, problem: "Only the first " + this.most + " fields are shown." };
      if (problem instanceof WrongBody) return { fields: this.fields, problem: problem.message };
      throw problem;
    }
  }

  record(layout, path) {
    if (++this.levels > MOST_LEVELS) throw new WrongBody("What is deeper than " + MOST_LEVELS + " records is not shown.");
    const seen = [];
    for (const [index, schema] of layout.fields.entries()) {
      if (schema.when && !holds(schema.when, seen[schema.when[0]])) continue;
      seen[index] = this.field(schema, schema.name, path ? path + "." + schema.name : schema.name, seen);
    }
    --this.levels;
  }

  add(schema, name, path) {
    if (this.fields.length === this.most) throw new EnoughFields();
    const field = { name, path, depth: this.levels, begin: this.at, end: this.at, kind: schema.kind, type: schema.type, value: "", meaning: "",
      secret: Boolean(schema.secret) };
    this.fields.push(field);
    return field;
  }

  // Answers what conditions, counts and the classes of items need: a BigInt or a text.
  field(schema, name, path, seen) {
    const field = this.add(schema, name, path);
    const depth = this.levels;
    try {
      if (schema.kind === "number") return this.number(schema, field);
      if (schema.kind === "text") return this.text(field);
      if (schema.kind === "list") return this.list(schema, field, seen);
      field.value = layouts[schema.layout].name;
      this.record(layouts[schema.layout], path);
    } finally {
      this.levels = depth;
      field.end = this.at;
    }
  }

  number(schema, field) {
    const number = this.take(schema.type);
    field.value = schema.type === "bool" ? String(number !== 0n) : String(number);
    field.meaning = schema.values?.[String(number)] ?? "";
    return schema.type === "bool" ? BigInt(number !== 0n) : number;
  }

  text(field) {
    const size = Number(this.take("short")) & 0xffff;
    const there = Math.min(size, this.body.length - this.at);
    const bytes = this.body.subarray(this.at, this.at += there);
    try {
      field.value = utf8.decode(bytes);
    } catch {
      field.value = lenientUtf8.decode(bytes);
      field.meaning = "no UTF-8";
    }
    if (there < size) throw new WrongBody("The text " + field.path + " is cut short.");
    return field.value;
  }

  list(schema, field, seen) {
    const count = schema.count === undefined ? this.take(schema.type) : seen[schema.count];
    field.value = String(count);
    let item = schema.items[0];
    if (schema.tag !== undefined && count > 0n) {
      item = schema.items.find(({ name }) => name === seen[schema.tag]);
      if (!item) throw new WrongBody("There are no items of the class that " + field.path + " has.");
    }
    ++this.levels;
    for (let i = 0; i < count; ++i) this.field(item, "[" + i + "]", field.path + "[" + i + "]", []);
    --this.levels;
    return count;
  }

  take(type) {
    const width = WIDTHS[type];
    if (this.body.length - this.at < width) throw new WrongBody("The body ends before " + this.fields.at(-1).path + ".");
    const at = this.at;
    this.at += width;
    if (width === 1) return BigInt(this.view.getInt8(at));
    if (width === 2) return BigInt(this.view.getInt16(at));
    return width === 4 ? BigInt(this.view.getInt32(at)) : this.view.getBigInt64(at);
  }
}

// Of the condition and the earlier field that it is about, which may not have travelled.
function holds([, mask, first, last], number) {
  const masked = BigInt.asIntN(64, (number ?? 0n) & BigInt(mask));
  return masked >= BigInt(first) && masked <= BigInt(last);
}

let packets;

function fieldsOf(i, most = MOST_SHOWN_FIELDS) {
  const layout = packets.layout(i);
  if (!layout || packets.isWithheld(i)) return { fields: [], problem: "" };
  return new FieldReader(packets.body(i), most).read(layout);
}

const isLeaf = (field) => field.kind === "number" || field.kind === "text";
const isMasked = (field) => field.secret && session.masked;
const withMeaning = (text, field) => field.meaning ? text + " (" + field.meaning + ")" : text;

function valueText(field) {
  if (isMasked(field)) return "***";
  if (field.kind === "number" && field.value === "") return "missing";
  if (field.kind === "record") return field.value;
  if (field.kind === "list") return field.value + (field.value === "1" ? " item" : " items");
  return withMeaning(field.kind === "text" ? '"' + escaped(field.value) + '"' : field.value, field);
}

function summaryOf(i) {
  if (packets.hasFailed(i)) return outcomeText(i);
  const { fields } = fieldsOf(i, SUMMARY_FIELDS * 3);
  return fields.filter(isLeaf).slice(0, SUMMARY_FIELDS).map((field) => field.path.split(".").at(-1) + "=" + valueText(field)).join("  ").slice(0, 300);
}

function outcomeText(i) {
  const size = packets.sizes[i];
  const place = packets.unread[i] ? ", read to byte " + (size - packets.unread[i]) + " of " + size : "";
  const reason = packets.reasons.get(i);
  return packets.outcome(i) + place + (reason ? ": " + escaped(reason) : "");
}

// ---- Filter ----

const chosenClasses = new Set();
const searched = [];
let shown = new Uint32Array();  // indexes of packets
let searches = 0;

function searchText(i) {
  if (searched[i] !== undefined) return searched[i];
  const parts = ["#" + packets.numbers[i], packets.name(i), packets.outcome(i), packets.reasons.get(i) ?? ""];
  for (const field of fieldsOf(i, MOST_SEARCHED_FIELDS).fields) {
    if (isLeaf(field)) parts.push(field.path + "=" + withMeaning(isMasked(field) ? "***" : field.value, field));
  }
  return searched[i] = parts.join("\n").toLowerCase();
}

// Words, and phrases in double quotes, that must all be there. #30 is one packet, not #300 as well.
function wantedWords() {
  const words = [...$("header input").value.toLowerCase().matchAll(/"([^"]*)"|(\S+)/g)].map(([, phrase, word]) => phrase ?? word);
  return words.filter(Boolean).map((word) => /^#\d+$/.test(word) ? word + "\n" : word);
}

// A long search lets the page live, and ends when another begins.
async function search() {
  const run = ++searches;
  const words = wantedWords();
  const onlyFailed = $("#only-failed").checked;
  const found = new Uint32Array(packets.count);
  let count = 0;
  let pause = performance.now() + 40;
  for (let i = 0; i < packets.count; ++i) {
    if (words.length && (i & 63) === 0 && performance.now() > pause) {
      $("header output").textContent = "searching… " + Math.floor(100 * i / packets.count) + " %";
      await new Promise((resolve) => setTimeout(resolve));
      if (run !== searches) return;
      pause = performance.now() + 40;
    }
    if (onlyFailed && !packets.hasFailed(i)) continue;
    if (chosenClasses.size && !chosenClasses.has(packets.classes[i])) continue;
    if (words.length) {
      const text = searchText(i);
      if (!words.every((word) => text.includes(word))) continue;
    }
    found[count++] = i;
  }
  shown = found.subarray(0, count);
  $("header output").textContent = count === packets.count ? String(count) : count + " of " + packets.count;
  drawRates();
  layOut();
  if (chosen !== undefined) reveal(chosen);
}

// ---- Chart ----

const scroller = $("#scroller");
const rows = $("#rows");
let chosen;  // the index of the packet that is shown
let drawing = 0;

const wholeHeight = () => shown.length * ROW_HEIGHT;
const scrolledHeight = () => Math.min(wholeHeight(), MOST_PIXELS);

function layOut() {
  rows.style.height = scrolledHeight() + "px";
  draw();
}

// Where the first visible pixel lies when all rows stood below each other.
function firstPixel() {
  const view = scroller.clientHeight;
  const room = scrolledHeight() - view;
  return room > 0 ? Math.min(scroller.scrollTop, room) * ((wholeHeight() - view) / room) : 0;
}

function scrollToRow(row) {
  const view = scroller.clientHeight;
  const room = scrolledHeight() - view;
  if (room <= 0) return;
  const first = firstPixel();
  const top = row * ROW_HEIGHT;
  if (top >= first && top + ROW_HEIGHT <= first + view) return;
  const wanted = Math.max(0, Math.min(top - view / 2, wholeHeight() - view));
  scroller.scrollTop = wanted * (room / (wholeHeight() - view));
}

function rowOf(i) {
  const row = make("div", "row " + (packets.isToServer(i) ? "up" : "down") + (packets.hasFailed(i) ? " bad" : "") + (i === chosen ? " chosen" : ""));
  row.dataset.packet = i;
  row.append(make("span", "", packets.numbers[i]), make("span", "", packets.seconds(i)),
    make("span", "lane", (packets.hasFailed(i) ? "✕ " : "") + packets.name(i)),
    make("span", packets.hasFailed(i) ? "text failed" : "text", summaryOf(i)));
  return row;
}

function draw() {
  const pixel = firstPixel();
  const first = Math.floor(pixel / ROW_HEIGHT);
  const last = Math.min(shown.length, Math.ceil((pixel + scroller.clientHeight) / ROW_HEIGHT) + 1);
  const visible = [];
  for (let k = first; k < last; ++k) {
    const row = rowOf(shown[k]);
    row.style.top = scroller.scrollTop + k * ROW_HEIGHT - pixel + "px";
    visible.push(row);
  }
  rows.replaceChildren(...visible);
  drawWindow(shown[first], shown[last - 1]);
}

function drawSoon() {
  drawing ||= requestAnimationFrame(() => {
    drawing = 0;
    draw();
  });
}

// ---- Rates ----

const duration = () => Math.max(1, packets.times.reduce((longest, time) => Math.max(longest, time), 0));
let sessionDuration = 1;
const binOf = (i) => Math.max(0, Math.min(BINS - 1, Math.floor(packets.times[i] / sessionDuration * BINS)));

function drawRates() {
  const counts = { down: new Uint32Array(BINS), up: new Uint32Array(BINS), failures: new Uint32Array(BINS) };
  for (const i of shown) {
    ++counts[packets.isToServer(i) ? "up" : "down"][binOf(i)];
    if (packets.hasFailed(i)) ++counts.failures[binOf(i)];
  }
  const most = Math.max(1, ...counts.down, ...counts.up);
  const height = (count) => 28 * count / most;
  const bar = (bin, y, tall) => tall ? `M${bin * 2} ${y}v${tall}h1.8v${-tall}z` : "";
  $("#down").setAttribute("d", [...counts.down].map((count, bin) => bar(bin, 30, -height(count))).join(""));
  $("#up").setAttribute("d", [...counts.up].map((count, bin) => bar(bin, 30, height(count))).join(""));
  $("#failures").setAttribute("d", [...counts.failures].map((count, bin) => count ? bar(bin, 0, 4) : "").join(""));
  const seconds = sessionDuration / 1e9 / BINS;
  const rate = packets.count > 1 && seconds > 1e-9 ? ` in ${seconds.toPrecision(3)} s (${(most / seconds).toPrecision(3)} a second)` : "";
  $("#scale").textContent = `Above the line what comes from servers, below it requests, failures at the top; the highest bar is ${most}${rate}. A click leads there.`;
}

function drawWindow(first, last) {
  const box = $("#window");
  if (first === undefined) return box.setAttribute("width", 0);
  const left = packets.times[first] / sessionDuration * 2 * BINS;
  const right = packets.times[last] / sessionDuration * 2 * BINS;
  box.setAttribute("x", left);
  box.setAttribute("width", Math.max(1, right - left));
}

function leadThere(event) {
  const box = $("#rates").getBoundingClientRect();
  const time = (event.clientX - box.left) / box.width * sessionDuration;
  const row = shown.findIndex((i) => packets.times[i] >= time);
  scrollToRow(row < 0 ? shown.length - 1 : row);
}

// ---- Classes ----

function listClasses() {
  const counts = session.classes.map((_, index) => ({ index, count: 0, bytes: 0, failed: 0, first: 0 }));
  for (let i = packets.count; i-- > 0;) {
    const row = counts[packets.classes[i]];
    ++row.count;
    row.bytes += packets.sizes[i];
    row.failed += packets.hasFailed(i);
    row.first = i;
  }
  counts.sort((a, b) => b.count - a.count);
  for (const { index, count, bytes, failed, first } of counts) {
    const row = make("tr");
    row.tabIndex = 0;
    row.setAttribute("role", "button");
    row.setAttribute("aria-pressed", "false");
    row.dataset.class = index;
    row.style.setProperty("--share", 100 * count / counts[0].count + "%");
    const name = make("td");
    const isRequest = packets.isToServer(first);
    name.append(make("span", isRequest ? "to-server" : "from-server", isRequest ? "→ " : "← "), packets.name(first));
    name.title = packets.name(first);
    row.append(name, make("td", "", count), make("td", "", bytes), make("td", failed ? "failed" : "", failed));
    $("#classes tbody").append(row);
  }
  $("#classes summary").textContent = "Classes: " + counts.length;
}

function toggleClass(row) {
  const index = Number(row.dataset.class);
  if (!chosenClasses.delete(index)) chosenClasses.add(index);
  row.setAttribute("aria-pressed", String(chosenClasses.has(index)));
  search();
}

function showAllClasses() {
  chosenClasses.clear();
  for (const row of document.querySelectorAll("#classes tbody tr")) row.setAttribute("aria-pressed", "false");
  search();
}

// ---- One packet ----

const panel = $("#packet");

function choose(i) {
  chosen = i;
  history.replaceState(null, "", "#" + packets.numbers[i]);
  showPacket(i);
  reveal(i);
}

function reveal(i) {
  const row = shown.indexOf(i);
  if (row >= 0) scrollToRow(row);
  draw();
}

function close() {
  chosen = undefined;
  panel.hidden = true;
  history.replaceState(null, "", "#");
  draw();
}

function step(by) {
  const row = shown.indexOf(chosen);
  const next = row < 0 ? shown[0] : shown[row + by];
  if (next !== undefined) choose(next);
}

function button(text, label, act) {
  const element = make("button", "", text);
  element.type = "button";
  element.setAttribute("aria-label", label);
  element.addEventListener("click", act);
  return element;
}

function showPacket(i) {
  const isRequest = packets.isToServer(i);
  const bar = make("div", "bar");
  bar.append(make("h3", "", "#" + packets.numbers[i] + " " + (isRequest ? "→ " : "← ") + packets.name(i)), button("↑", "Packet before", () => step(-1)),
    button("↓", "Next packet", () => step(1)), button("✕", "Close", close));
  const about = make("p", "dim", (isRequest ? "to servers" : "from servers") + ", id " + session.classes[packets.classes[i]][1] + ", " + packets.isoTime(i)
    + ", " + packets.sizes[i] + (packets.sizes[i] === 1 ? " byte" : " bytes"));
  panel.replaceChildren(bar, about);
  if (packets.hasFailed(i)) panel.append(make("p", "failed", "✕ " + outcomeText(i)));
  else if (packets.unread[i]) panel.append(make("p", "dim", outcomeText(i)));
  if (packets.isWithheld(i)) panel.append(make("p", "dim", "The bytes are left out because they may hold a password; herald report --secrets shows them."));
  const { fields, problem } = fieldsOf(i);
  if (problem) panel.append(make("p", "dim", problem));
  const pair = make("div", "pair");
  panel.hidden = false;
  pair.append(fieldList(fields), hexOf(packets.body(i), fields));
  panel.append(pair);
  panel.scrollTop = 0;
}

function fieldList(fields) {
  const list = make("ul", "fields");
  for (const [index, field] of fields.entries()) {
    const item = make("li", isLeaf(field) ? "k" + index % 8 : "");
    item.title = field.path;
    item.dataset.begin = field.begin;
    item.dataset.end = field.end;
    item.style.setProperty("--depth", field.depth - 1);
    item.append(field.name + " ", make("bdi", isLeaf(field) ? "" : "dim", valueText(field)));
    list.append(item);
  }
  return list;
}

function hexOf(body, fields) {
  const owners = new Int32Array(Math.min(body.length, MOST_SHOWN_BYTES)).fill(-1);
  fields.forEach((field, index) => owners.fill(index, field.begin, field.end));
  const perLine = matchMedia("(min-width: 100rem)").matches ? 16 : 8;
  const hex = make("div", "hex");
  for (let at = 0; at < owners.length; at += perLine) {
    const line = make("div");
    const letters = [];
    line.append(make("span", "dim", at.toString(16).padStart(4, "0") + "  "));
    for (let k = at; k < at + perLine; ++k) {
      const owner = fields[owners[k]];
      const isHidden = owner && isMasked(owner);
      const isThere = k < owners.length;
      const colour = owner && isLeaf(owner) ? "k" + owners[k] % 8 : "";
      const part = (className, text) => {
        const element = make("i", className, text);
        if (isThere) element.dataset.at = k;
        return element;
      };
      line.append(part(colour, !isThere ? "  " : isHidden ? "**" : body[k].toString(16).padStart(2, "0")));
      if (isThere) letters.push(part("letter " + colour, isHidden ? "*" : body[k] > 31 && body[k] < 127 ? String.fromCharCode(body[k]) : "·"));
    }
    line.append("  ", ...letters);
    hex.append(line);
  }
  if (body.length > owners.length) hex.append(make("div", "dim", "… " + (body.length - owners.length) + " more bytes"));
  return hex;
}

// Lights a field with its bytes, or a byte with the innermost field that has it.
function light(event) {
  const byte = event.target.closest("[data-at]");
  const item = byte ? itemAt(Number(byte.dataset.at)) : event.target.closest("[data-begin]");
  for (const lit of panel.querySelectorAll(".lit")) lit.classList.remove("lit");
  if (!item) return;
  item.classList.add("lit");
  const begin = Number(item.dataset.begin);
  const end = Number(item.dataset.end);
  let first;
  for (const part of panel.querySelectorAll("[data-at]")) {
    if (part.dataset.at < begin || part.dataset.at >= end) continue;
    part.classList.add("lit");
    first ??= part;
  }
  if (byte) item.scrollIntoView({ block: "nearest" });
  else if (first) bringIntoBox(first);
}

function itemAt(at) {
  return [...panel.querySelectorAll("[data-begin]")].findLast((item) => at >= item.dataset.begin && at < item.dataset.end);
}

// Within the bytes alone, so that the field stays under the pointer.
function bringIntoBox(part) {
  const box = part.closest(".hex");
  const inside = part.getBoundingClientRect();
  const outside = box.getBoundingClientRect();
  if (inside.top < outside.top || inside.bottom > outside.bottom) box.scrollTop += inside.top - outside.top - box.clientHeight / 3;
}

// ---- The page ----

function tellFacts() {
  const name = escaped(session.capture);
  document.title = name;
  $("header strong").textContent = name;
  let failed = 0;
  let bytes = 0;
  for (let i = 0; i < packets.count; ++i) {
    failed += packets.hasFailed(i);
    bytes += packets.sizes[i];
  }
  const facts = [packets.count + " messages and requests", bytes + " bytes in bodies", failed + " failed"];
  if (packets.count) facts.push("from " + packets.isoTime(0), (sessionDuration / 1e9).toFixed(3) + " s");
  facts.push(session.masked ? "passwords masked" : "passwords shown");
  $("#facts").textContent = facts.join(", ");
  if (session.sound) return;
  $("#remarks").textContent = "The capture is damaged: what could not be read of it is missing here.";
  $("#remarks").hidden = false;
}

function press(event) {
  if (event.target === $("header input")) return;
  const by = { ArrowDown: 1, j: 1, ArrowUp: -1, k: -1 }[event.key];
  if (event.key === "/") $("header input").select();
  else if (event.key === "Escape") close();
  else if (by && chosen !== undefined) step(by);
  else if ((event.key === "Enter" || event.key === " ") && event.target.matches("#classes tbody tr")) toggleClass(event.target);
  else return;
  event.preventDefault();
}

function listen() {
  $("header input").addEventListener("input", search);
  $("#only-failed").addEventListener("change", search);
  $("#all").addEventListener("click", showAllClasses);
  $("#rates").addEventListener("click", leadThere);
  $("#classes tbody").addEventListener("click", (event) => toggleClass(event.target.closest("tr")));
  scroller.addEventListener("scroll", drawSoon);
  rows.addEventListener("click", (event) => {
    const row = event.target.closest("[data-packet]");
    if (row) choose(Number(row.dataset.packet));
  });
  panel.addEventListener("pointerover", light);
  panel.addEventListener("click", light);
  addEventListener("keydown", press);
  new ResizeObserver(drawSoon).observe(scroller);
}

async function open() {
  packets = new Packets(await unpack(), session.packets);
  sessionDuration = duration();
  $("#classes").open = matchMedia("(min-width: 70rem)").matches;
  tellFacts();
  listClasses();
  listen();
  await search();
  const linked = packets.numbers.indexOf(Number(location.hash.slice(1)));
  if (location.hash.length > 1 && linked >= 0) choose(linked);
  document.documentElement.dataset.open = "true";
}

open().catch((problem) => {
  $("#remarks").textContent = "This browser cannot show the session: " + problem.message;
  $("#remarks").hidden = false;
  throw problem;
});
