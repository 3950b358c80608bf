// SPDX-License-Identifier: GPL-3.0-or-later
// In a web browser: the contents beside the page, and the pages before and after at its foot.
// The program's own viewer has both itself.
"use strict";

const list = document.createElement("script");
list.src = "pages.js";
list.onload = () => {
  const own = location.pathname.split("/").pop() || "index.html";
  const link = (page, text) => {
    const a = document.createElement("a");
    a.href = page[0];
    a.textContent = text || page[1];
    return a;
  };
  const nav = document.createElement("nav");
  nav.setAttribute("aria-label", "Contents");
  let group = null, entries = null;
  for (const page of pages) {
    if (page[2] !== group) {
      group = page[2];
      const head = document.createElement("p");
      head.textContent = group;
      entries = document.createElement("ul");
      nav.append(head, entries);
    }
    const entry = document.createElement("li");
    const a = link(page);
    if (page[0] === own) a.setAttribute("aria-current", "page");
    entry.append(a);
    entries.append(entry);
  }
  if (own !== "index.html") {
    document.body.classList.add("beside");
    document.body.append(nav);
    const current = nav.querySelector("[aria-current]");
    if (current) nav.scrollTop = current.offsetTop - nav.clientHeight / 2;
  }
  const at = pages.findIndex((page) => page[0] === own);
  const turn = document.createElement("p");
  turn.className = "turn";
  const before = document.createElement("span"), after = document.createElement("span");
  if (at > 0) before.append("← ", link(pages[at - 1]));
  if (at === 0) before.append("← ", link(["index.html", "Contents"]));
  if (at + 1 < pages.length) after.append(link(pages[at + 1]), " →");
  turn.append(before, after);
  document.body.append(turn);
};
document.head.append(list);
