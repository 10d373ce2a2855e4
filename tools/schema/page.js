"use strict";

const box = document.querySelector("input");
const found = document.querySelector("output");
const entries = [...document.querySelectorAll(".entry")].map((entry) => ({ entry, text: entry.textContent.toLowerCase() }));
const groups = [...document.querySelectorAll("main > section")];

// Shows the entries that hold every word: what names a class or an id alone comes first to mind, so a whole name or id
// shows nothing else.
function search() {
  const words = box.value.toLowerCase().split(/\s+/).filter(Boolean);
  const isExact = (entry) => words.length === 1 && entry.dataset.names.toLowerCase().split(" ").includes(words[0]);
  const exact = entries.some(({ entry }) => isExact(entry));
  let count = 0;
  for (const { entry, text } of entries) {
    const shows = exact ? isExact(entry) : words.every((word) => text.includes(word));
    entry.hidden = !shows;
    count += shows;
  }
  for (const group of groups) group.hidden = words.length > 0 && !group.querySelector(".entry:not([hidden])");
  found.textContent = words.length ? `${count} of ${entries.length}` : `${entries.length}`;
}

// A link leads to its entry also when the search has hidden it.
function showTarget() {
  const target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
  if (!target || !target.closest("[hidden]")) return;
  box.value = "";
  search();
  target.scrollIntoView();
}

function light(event) {
  for (const lit of document.querySelectorAll(".lit")) lit.classList.remove("lit");
  const field = event.target.closest("[data-f]");
  if (!field) return;
  for (const part of field.closest(".example").querySelectorAll(`[data-f="${field.dataset.f}"]`)) part.classList.add("lit");
}

box.addEventListener("input", search);
addEventListener("hashchange", showTarget);
addEventListener("keydown", (event) => {
  if (event.key !== "/" || event.target === box) return;
  event.preventDefault();
  box.select();
});
document.addEventListener("pointerover", light);
search();
