// The script of the page: search, the switch of the language, and folds that open for what is looked for. Without it
// the page still tells everything, in one language.
#include "page_parts.h"

namespace lcdcheck {

const char* pageScript()
{
    return R"js(
"use strict";
const page = document.documentElement;
const field = document.getElementById("search");
const results = document.getElementById("results");
const status = document.getElementById("status");
const byLanguage = (en, zh) => page.lang === "zh" ? zh : en;

// ---- Language
function speak(language) {
  page.lang = language;
  for (const button of document.querySelectorAll("[data-language]"))
    button.setAttribute("aria-pressed", String(button.dataset.language === language));
  try { localStorage.setItem("language", language); } catch (blocked) { /* It is not kept, then. */ }
}
for (const button of document.querySelectorAll("[data-language]"))
  button.addEventListener("click", () => speak(button.dataset.language));
let kept = null;
try { kept = localStorage.getItem("language"); } catch (blocked) { /* The page's own, then. */ }
speak(kept === "zh" || kept === "en" ? kept : page.lang);

// ---- Folds
function unfold(element) {
  for (let at = element; at !== null; at = at.parentElement) if (at.tagName === "DETAILS") at.open = true;
}
function reveal() {
  const target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
  if (target === null) return;
  unfold(target);
  target.scrollIntoView();
}
addEventListener("hashchange", reveal);
if (location.hash !== "") reveal();
let folded = [];
addEventListener("beforeprint", () => {
  folded = [...document.querySelectorAll("details:not([open])")];
  for (const fold of folded) fold.open = true;
});
addEventListener("afterprint", () => { for (const fold of folded) fold.open = false; });

// ---- Search
const kinds = { slot: "槽位", card: "板卡", type: "类型", resolution: "分辨率", screen: "屏幕", layer: "图层", menu: "菜单",
  key: "按键", file: "文件" };
let entries = null;
function nameOf(element) {
  const title = element.querySelector("h3, th, code");
  const other = element.querySelector(":scope > summary .id, td");
  const clean = (node) => [...node.childNodes]
    .filter((child) => child.nodeType === 3 || child.lang !== byLanguage("zh", "en"))
    .map((child) => child.textContent).join("").trim();
  const texts = title === null ? [] : [clean(title)];
  if (other !== null) texts.unshift(clean(other));
  return texts.filter((text) => text !== "").join(" ");
}
function index() {
  entries = [...document.querySelectorAll("[data-find]")]
    .map((element) => ({ element, words: element.dataset.find.toLowerCase() }));
}
function find() {
  if (entries === null) index();
  const words = field.value.trim().toLowerCase().split(/\s+/).filter((word) => word !== "");
  results.replaceChildren();
  const hits = words.length === 0 ? [] : entries.filter((entry) => words.every((word) => entry.words.includes(word)));
  for (const hit of hits.slice(0, 40)) {
    const link = document.createElement("a");
    const where = document.createElement("span");
    where.className = "where";
    const kind = hit.element.dataset.find.split(" ", 1)[0];
    where.textContent = byLanguage(kind, kinds[kind]);
    link.href = "#" + hit.element.id;
    link.append(where, nameOf(hit.element));
    const item = document.createElement("li");
    item.append(link);
    results.append(item);
  }
  results.hidden = hits.length === 0;
  status.textContent = words.length === 0 ? ""
    : hits.length === 0 ? byLanguage("Nothing found", "没有找到")
    : byLanguage(hits.length + " found", "找到 " + hits.length + " 项");
}
function step(by) {
  const links = [field, ...results.querySelectorAll("a")];
  links[Math.min(Math.max(links.indexOf(document.activeElement) + by, 0), links.length - 1)].focus();
}
field.addEventListener("input", find);
document.querySelector(".search").addEventListener("keydown", (event) => {
  if (event.key === "ArrowDown" || event.key === "ArrowUp") {
    event.preventDefault();
    step(event.key === "ArrowDown" ? 1 : -1);
  } else if (event.key === "Escape") {
    field.value = "";
    find();
    field.focus();
  } else if (event.key === "Enter" && document.activeElement === field && !results.hidden) {
    results.querySelector("a").click();
  }
});
results.addEventListener("click", () => { results.hidden = true; });
addEventListener("click", (event) => {
  if (event.target.closest(".search") === null) results.hidden = true;
});
addEventListener("keydown", (event) => {
  if (event.key !== "/" || event.target.tagName === "INPUT") return;
  event.preventDefault();
  field.focus();
});

// ---- Where the reader is
if ("IntersectionObserver" in window) {
  const links = new Map([...document.querySelectorAll(".side nav a")].map((link) => [link.hash.slice(1), link]));
  const watch = new IntersectionObserver((changes) => {
    for (const change of changes) {
      if (!change.isIntersecting) continue;
      for (const [id, link] of links)
        id === change.target.id ? link.setAttribute("aria-current", "true") : link.removeAttribute("aria-current");
    }
  }, { rootMargin: "-20% 0px -75% 0px" });
  for (const section of document.querySelectorAll("main > section")) watch.observe(section);
}
)js";
}

} // namespace lcdcheck
