// The style sheet of the page: one measure, one palette in light and in dark, a sheet that prints.
#include "page_parts.h"

namespace lcdcheck {

const char* pageStyle()
{
    return R"css(
:root {
  color-scheme: light dark;
  --paper: #f6f6f4; --card: #ffffff; --ink: #1b1f24; --soft: #565e67; --line: #dcdedf; --fill: #eff0ef;
  --accent: #1a56b0; --wash: #e6eefa; --bad: #b0211a; --bad-wash: #fbe9e7; --warn: #7c5200; --warn-wash: #fbf0d9;
  --good: #1c6437; --good-wash: #e5f2e9; --violet: #6a3fa0; --violet-wash: #f0e9f8;
}
@media (prefers-color-scheme: dark) {
  :root {
    --paper: #121417; --card: #1a1d21; --ink: #e7e9eb; --soft: #a5adb6; --line: #30353b; --fill: #23272c;
    --accent: #8fb8f6; --wash: #1c2a41; --bad: #f4978f; --bad-wash: #3b1d1b; --warn: #e5b95f; --warn-wash: #372b14;
    --good: #86cfa0; --good-wash: #17301f; --violet: #c3a5ee; --violet-wash: #2a2039;
  }
}
* { box-sizing: border-box; }
html { scroll-padding-top: 1rem; }
body { margin: 0; background: var(--paper); color: var(--ink); line-height: 1.5; font-size: 15px;
  font-family: system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", "Noto Sans CJK SC", "PingFang SC",
    "Microsoft YaHei", sans-serif; font-variant-numeric: tabular-nums; }
/* Words stand in both languages; a name from a file has its own language, zh-CN, and always stays. */
html[lang=en] [lang=zh], html[lang=zh] [lang=en]:not(html) { display: none; }
a { color: var(--accent); text-decoration-thickness: 1px; text-underline-offset: 2px; }
a:focus-visible, button:focus-visible, input:focus-visible, summary:focus-visible, [tabindex]:focus-visible {
  outline: 2px solid var(--accent); outline-offset: 2px; border-radius: 3px; }
svg a:focus-visible { outline-offset: 0; }
.skip { position: absolute; left: -99rem; }
.skip:focus { left: 1rem; top: 1rem; z-index: 9; background: var(--card); padding: .5rem 1rem; }
code, pre { font-family: ui-monospace, "SF Mono", Menlo, Consolas, "DejaVu Sans Mono", monospace; font-size: .88em; }
h1, h2, h3, h4, h5 { line-height: 1.25; margin: 0; font-weight: 620; }
h1 { font-size: 1.15rem; }
h2 { font-size: 1.6rem; letter-spacing: -.012em; }
h3 { font-size: 1.05rem; }
h4 { font-size: .95rem; margin: 1.75rem 0 .75rem; padding-bottom: .35rem; border-bottom: 1px solid var(--line); }
h5 { font-size: .95rem; margin-bottom: .5rem; }
p { margin: .4rem 0; }
small { color: var(--soft); font-size: .86em; }

.side { padding: 1rem; background: var(--card); border-bottom: 1px solid var(--line); }
.side .root { color: var(--soft); font-size: .82rem; overflow-wrap: anywhere; margin: .1rem 0 .75rem; }
.side label { display: block; font-size: .82rem; color: var(--soft); margin-bottom: .25rem; }
.side input { width: 100%; font: inherit; padding: .45rem .6rem .45rem 2rem; color: inherit;
  background: var(--paper) no-repeat .6rem 50% / 1rem url("data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'%3E%3Cpath d='M7 2a5 5 0 1 1 0 10a5 5 0 1 1 0-10m3.6 8.6l3.9 3.9' fill='none' stroke='%23808890' stroke-width='1.6'/%3E%3C/svg%3E");
  border: 1px solid var(--soft); border-radius: 6px; }
.side nav ul { list-style: none; padding: 0; margin: .75rem -.25rem 0; display: flex; gap: .25rem; overflow-x: auto; }
.side nav a { display: flex; justify-content: space-between; gap: .5rem; padding: .3rem .6rem; border-radius: 6px;
  color: inherit; text-decoration: none; white-space: nowrap; }
.side nav a:hover { background: var(--fill); }
.side nav a[aria-current] { background: var(--wash); color: var(--accent); font-weight: 600; }
.side nav .count { color: var(--soft); font-weight: 400; }
.language { display: flex; gap: .4rem; margin-top: .75rem; }
button { font: inherit; font-size: .85rem; padding: .25rem .7rem; color: inherit; background: none;
  border: 1px solid var(--line); border-radius: 6px; cursor: pointer; white-space: nowrap; }
button[aria-pressed=true] { border-color: var(--accent); color: var(--accent); background: var(--wash); }
.search { position: relative; }
.results { list-style: none; margin: .35rem 0 0; padding: .25rem; border: 1px solid var(--line); border-radius: 8px;
  background: var(--card); max-height: 55vh; overflow-y: auto; box-shadow: 0 8px 24px rgb(0 0 0 / 12%);
  position: absolute; left: 0; right: 0; z-index: 5; min-width: min(20rem, 90vw); }
.results[hidden] { display: none; }
.results a { display: block; padding: .3rem .5rem; border-radius: 5px; text-decoration: none; color: inherit; }
.results a:hover, .results a:focus { background: var(--wash); }
.results .where { color: var(--soft); font-size: .8rem; margin-right: .5rem; }
.status { font-size: .8rem; color: var(--soft); min-height: 1.3em; margin: .25rem 0 0; }

main { padding: 1.25rem 1rem 4rem; max-width: 80rem; }
section { margin-bottom: 3.5rem; }
.lead { color: var(--soft); max-width: 48rem; margin-bottom: 1.25rem; }
.nothing { color: var(--soft); font-style: italic; }
.remark { color: var(--soft); font-size: .85rem; max-width: 32rem; }
.good { color: var(--good); }
.item, .device { background: var(--card); border: 1px solid var(--line); border-radius: 10px; margin: .75rem 0;
  padding: 0 1rem; content-visibility: auto; contain-intrinsic-size: auto 3.2rem; }
.item[open] { padding-bottom: 1rem; contain-intrinsic-size: auto 50rem; }
.device { padding: 1rem; }
.item > summary { display: flex; align-items: baseline; gap: .75rem; padding: .8rem 0; cursor: pointer;
  list-style: none; flex-wrap: wrap; }
.item > summary::-webkit-details-marker { display: none; }
.item > summary::before { content: ""; width: .4rem; height: .4rem; border: solid var(--soft); flex: none;
  border-width: 0 2px 2px 0; transform: rotate(-45deg) translate(-2px, -2px); }
.item[open] > summary::before { transform: rotate(45deg) translate(-2px, -2px); }
.id { font-weight: 650; color: var(--soft); min-width: 2.2rem; }
.facts { display: grid; grid-template-columns: repeat(auto-fill, minmax(11rem, 1fr)); gap: .75rem 1.5rem;
  margin: .25rem 0 1.25rem; }
dt { font-size: .8rem; color: var(--soft); }
dd { margin: 0; overflow-wrap: anywhere; }
.list a { margin-right: .35rem; white-space: nowrap; }
.offers .list { display: inline; }
.offers { margin: .4rem 0; font-size: .9rem; max-width: 60rem; }
.offers strong { font-weight: 600; }
.missing { color: var(--bad); font-weight: 600; }
.badge { font-size: .78rem; font-weight: 600; padding: .1rem .5rem; border-radius: 1rem; text-decoration: none;
  letter-spacing: 0; vertical-align: middle; margin-left: .5rem; white-space: nowrap; }
.badge.error { color: var(--bad); background: var(--bad-wash); }
.badge.warning { color: var(--warn); background: var(--warn-wash); }
.badge.note { color: var(--soft); background: var(--fill); }
:target { scroll-margin-top: 1rem; }
tr:target > *, li:target, .item:target { background: var(--wash); }
.item:target { outline: 2px solid var(--accent); background: var(--card); }

.scroll { overflow-x: auto; margin: 0 0 1.25rem; }
table { border-collapse: collapse; font-size: .88rem; }
caption { text-align: left; color: var(--soft); font-size: .82rem; padding: 0 0 .35rem; }
th, td { text-align: left; vertical-align: top; padding: .32rem .85rem .32rem 0; border-bottom: 1px solid var(--line); }
thead th { color: var(--soft); font-weight: 550; font-size: .8rem; vertical-align: bottom; }
tbody th { font-weight: 600; white-space: nowrap; }
td.mode { text-align: center; padding: .32rem .5rem; }
td.mode-1 { background: color-mix(in srgb, var(--wash) 55%, transparent); }
td.mode-2, td.mode-3 { background: var(--wash); }
td.off { color: var(--soft); text-align: center; }
td.count { color: var(--soft); font-size: .82rem; min-width: 12rem; }
ul.plain { list-style: none; margin: 0; padding: 0; }
.matrix { max-height: 85vh; overflow: auto; border: 1px solid var(--line); border-radius: 10px;
  background: var(--card); }
.matrix table { border-collapse: separate; border-spacing: 0; }
.matrix caption { padding: .6rem .8rem; position: sticky; left: 0; }
.matrix th, .matrix td { padding: .28rem .5rem; }
.matrix thead { position: sticky; top: 0; background: var(--card); z-index: 2; }
.matrix tbody th, .matrix tfoot th, .matrix thead tr:first-child th:first-child { position: sticky; left: 0;
  background: var(--card); z-index: 1; }
.matrix td { white-space: nowrap; }
.matrix tfoot td { white-space: normal; }
.matrix .first { border-left: 1px solid var(--line); }
.matrix b, .matrix s, .matrix i { display: inline-block; width: 1.1rem; text-align: center; border-radius: 3px;
  margin-right: 1px; font-weight: 600; font-size: .8rem; font-style: normal; }
.matrix b { background: var(--wash); color: var(--accent); }
.matrix s { color: var(--bad); text-decoration-thickness: 2px; font-weight: 400; }
.matrix tfoot td { font-size: .78rem; color: var(--soft); }
.matrix tbody tr:hover > * { background: var(--fill); }

figure { margin: 0 0 1.25rem; max-width: 100%; min-width: 0; }
figcaption { font-size: .85rem; color: var(--soft); margin-bottom: .4rem; }
figure .scroll { margin: 0; padding: 2px; }
.figures { display: flex; flex-wrap: wrap; gap: .5rem 2.25rem; align-items: flex-start; }
.figures > * { max-width: 100%; min-width: 0; }
.template { width: 27.5rem; }
.mosaic .template { width: 22rem; }
.more > summary { cursor: pointer; color: var(--soft); font-size: .85rem; margin-bottom: .5rem; }
svg { display: block; font-size: 12px; }
svg text { fill: var(--ink); }
svg .faint { fill: var(--soft); }
svg .strong { font-weight: 600; }
svg .end { text-anchor: end; }
svg .middle, svg.parts text, svg.chassis a text, svg .number { text-anchor: middle; }
svg text.bad { fill: var(--bad); }
svg .number { font-size: 20px; font-weight: 650; }
svg .plate { fill: var(--fill); stroke: var(--line); }
svg .ear { fill: var(--line); }
svg .screw { fill: var(--card); stroke: var(--soft); stroke-opacity: .5; }
svg .slot, svg .box { fill: var(--card); stroke: var(--line); }
svg .slot.bad, svg .box.bad, svg .chip.bad { stroke: var(--bad); stroke-dasharray: 4 3; fill: var(--bad-wash); }
svg .silk { font-weight: 700; letter-spacing: .06em; }
svg .chip { fill: var(--wash); stroke: var(--accent); stroke-opacity: .35; }
svg a { text-decoration: none; }
svg a .chip ~ text, svg a text { fill: var(--accent); font-weight: 600; }
svg.plate a text { fill: var(--ink); font-weight: 400; }
svg.plate a text.strong { font-weight: 600; }
svg.plate a text.faint { fill: var(--soft); }
svg.plate a text.number, svg.chassis text.number { font-weight: 650; fill: var(--ink); }
svg a:hover .chip, svg a:hover .box, svg a:hover .part { stroke: var(--accent); stroke-opacity: 1; stroke-width: 2; }
svg .port { fill: var(--fill); stroke: var(--soft); stroke-width: 1.5; }
svg .port.in { fill: var(--wash); stroke: var(--accent); }
svg .port.out { fill: var(--good-wash); stroke: var(--good); }
svg .port.multiview { fill: var(--violet-wash); stroke: var(--violet); }
svg .port.auxiliary { fill: var(--warn-wash); stroke: var(--warn); }
svg .dashed { stroke-dasharray: 4 3; }
svg .arrow { fill: none; stroke: var(--ink); stroke-width: 1.6; stroke-linecap: round; stroke-linejoin: round; }
svg .pip { fill: none; stroke: var(--soft); }
svg .pip.on { fill: var(--soft); }
svg .off { opacity: .55; }
svg .frame { fill: var(--fill); }
svg .part { fill: var(--card); stroke: var(--soft); stroke-opacity: .45; }
svg.parts a .part { fill: var(--wash); stroke: var(--accent); stroke-opacity: .4; }
svg.parts a text { fill: var(--ink); font-weight: 400; }
svg.parts a text.strong { font-weight: 600; fill: var(--accent); }
svg.parts a text.faint { fill: var(--soft); }
svg .part.bad, svg.parts a .part.bad { fill: var(--bad-wash); stroke: var(--bad); stroke-opacity: 1; stroke-width: 1.5;
  stroke-dasharray: 5 3; }
svg.parts text.bad, svg.parts a text.bad { fill: var(--bad); }
svg .bar.may, svg .may { fill: var(--accent); fill-opacity: .22; }
svg .bar.must, svg .must { fill: var(--accent); fill-opacity: .75; }
svg .value { stroke: var(--ink); stroke-width: 2; fill: none; }
svg.frame .blank { fill: var(--fill); stroke: var(--line); }
svg.frame .sync { fill: var(--warn); fill-opacity: .38; }
svg.frame .active { fill: var(--wash); stroke: var(--accent); }
svg.frame text { text-anchor: middle; font-weight: 600; }
svg.window rect { fill: var(--accent); fill-opacity: .1; stroke: var(--accent); }
svg.window .first { stroke-dasharray: 5 3; }
svg.window .smallest { fill-opacity: .5; }
svg.border { border: 1px solid var(--line); background: var(--fill); }

.severity > summary { cursor: pointer; margin: .75rem 0 .5rem; }
.severity > summary h3 { display: inline; }
.findings { list-style: none; padding: 0; margin: 0; }
.finding { background: var(--card); border: 1px solid var(--line); border-left-width: 4px; border-radius: 8px;
  padding: .6rem .9rem; margin: .5rem 0; content-visibility: auto; contain-intrinsic-size: auto 9rem; }
.finding.error { border-left-color: var(--bad); }
.finding.warning { border-left-color: var(--warn); }
.finding.note { border-left-color: var(--soft); }
.finding.error .severity { color: var(--bad); }
.finding.warning .severity { color: var(--warn); }
.finding.note .severity { color: var(--soft); }
.message code, .place { color: var(--soft); font-size: .85rem; overflow-wrap: anywhere; }
.source { margin: .5rem 0 .25rem; padding: .5rem .75rem; background: var(--fill); border-radius: 6px; overflow-x: auto;
  line-height: 1.45; }
.source .line { color: var(--soft); user-select: none; }
mark { background: var(--warn-wash); color: inherit; border-bottom: 2px solid var(--warn); }
.error mark { background: var(--bad-wash); border-color: var(--bad); }
.tree, .tree ul { list-style: none; margin: 0; padding-left: 1.1rem; border-left: 1px solid var(--line); }
.tree { border: 0; padding: 0; }
.tree li { padding: .12rem 0; }
.tree summary { cursor: pointer; }
.tree code { font-size: .95em; }
footer { color: var(--soft); font-size: .82rem; }

@media (min-width: 64rem) {
  body { display: grid; grid-template-columns: 15.5rem minmax(0, 1fr); }
  .side { position: sticky; top: 0; height: 100vh; border-bottom: 0; border-right: 1px solid var(--line);
    padding: 1.5rem 1rem; display: flex; flex-direction: column; z-index: 4; }
  .side nav { overflow-y: auto; flex: 1; }
  .side nav ul { display: block; }
  .results { width: 24rem; }
  main { padding: 2rem 2.5rem 5rem; }
}
@media (max-width: 63.99rem) {
  .side { position: sticky; top: 0; z-index: 4; padding: .6rem 1rem; }
  .side .root, .side label { position: absolute; left: -99rem; }
  .side .bar { display: flex; justify-content: space-between; align-items: center; gap: .5rem; margin-bottom: .4rem; }
  .language { margin: 0; }
  .side nav ul { margin-top: .4rem; }
  .status { position: absolute; left: -99rem; }
  .matrix thead th { white-space: nowrap; }
  html { scroll-padding-top: 9.5rem; }
  h1 { overflow: hidden; text-overflow: ellipsis; white-space: nowrap; }
  :target { scroll-margin-top: 0; }
  h2 { font-size: 1.35rem; }
  .facts { grid-template-columns: repeat(auto-fill, minmax(8.5rem, 1fr)); }
}
@media print {
  :root { --paper: #fff; --card: #fff; --ink: #000; --soft: #444; --line: #bbb; --fill: #f2f2f2; --accent: #134a9a;
    --wash: #e8effa; --bad: #a01410; --bad-wash: #fbe9e7; --warn: #6b4600; --warn-wash: #fbf0d9; --good: #185a31;
    --good-wash: #e5f2e9; --violet: #5a338c; --violet-wash: #f0e9f8; }
  * { print-color-adjust: exact; }
  body { display: block; font-size: 10pt; }
  .side nav, .search, .language, .skip, .more > summary { display: none; }
  .side { position: static; height: auto; border: 0; padding: 0; display: block; }
  main { padding: 0; max-width: none; }
  .item, .finding { content-visibility: visible; }
  .item, figure, tr, .finding { break-inside: avoid-page; }
  .item[open] { break-inside: auto; }
  h2, h3, h4, h5 { break-after: avoid; }
  .scroll, .matrix { overflow: visible; max-height: none; border: 0; }
  .matrix { zoom: .7; }
  .matrix thead, .matrix th { position: static; }
  figure svg { max-width: 100%; height: auto; }
}
)css";
}

} // namespace lcdcheck
