#!/usr/bin/env python3
"""Tries a page in headless Chromium: what it says on its console, where its links lead, what its search finds, what a
screen reader is told, how well it is read. With a second argument, takes pictures of it into that folder.

usage: page_browser.py PAGE [FOLDER]"""
import base64
import json
import os
import subprocess
import sys
import tempfile

OPTIONS = ("--headless --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking "
           "--disable-component-update --disable-sync --hide-scrollbars --remote-debugging-pipe").split()

# Controls that a screen reader names to its user.
CONTROLS = {"button", "link", "searchbox", "textbox", "image", "img", "region", "group", "DisclosureTriangle",
            "navigation", "search"}

LOST_TARGETS = """
[...document.querySelectorAll("a[href^='#']")].map((link) => link.getAttribute("href").slice(1))
  .filter((id) => document.getElementById(id) === null)"""

SEARCH = """
((text) => {
  const field = document.getElementById("search");
  field.value = text;
  field.dispatchEvent(new Event("input", { bubbles: true }));
  field.focus();
  field.dispatchEvent(new KeyboardEvent("keydown", { key: "Enter", bubbles: true }));
  return location.hash;
})"""

OPENED = """
(() => {
  const target = document.getElementById(location.hash.slice(1));
  const box = target.getBoundingClientRect();
  return target.checkVisibility() && box.top < innerHeight && box.bottom > 0;
})()"""

# Texts whose colour stands out too little from what lies behind them.
CONTRAST = """
(() => {
  const painter = document.createElement("canvas").getContext("2d", { willReadFrequently: true });
  const channels = (colours) => {
    painter.clearRect(0, 0, 1, 1);
    for (const colour of colours) { painter.fillStyle = colour; painter.fillRect(0, 0, 1, 1); }
    return [...painter.getImageData(0, 0, 1, 1).data].slice(0, 3);
  };
  const light = (rgb) => {
    const [r, g, b] = rgb.map((c) => (c /= 255) <= 0.04045 ? c / 12.92 : ((c + 0.055) / 1.055) ** 2.4);
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
  };
  const behind = (element) => {
    const colours = [];
    for (let at = element; at !== null; at = at.parentElement) colours.unshift(getComputedStyle(at).backgroundColor);
    return colours;
  };
  const faint = new Set();
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  for (let count = 0; count < 8000 && walker.nextNode(); ++count) {
    const element = walker.currentNode.parentElement;
    if (walker.currentNode.data.trim() === "" || ["SCRIPT", "STYLE"].includes(element.tagName)) continue;
    if (!element.checkVisibility()) continue;
    const drawing = element.closest("svg");
    const style = getComputedStyle(element);
    let ground = behind(drawing === null ? element : drawing.parentElement);
    if (drawing !== null) {
      const shapes = [...element.closest("text").parentElement.children]
        .filter((shape) => ["rect", "path"].includes(shape.tagName) && getComputedStyle(shape).fillOpacity === "1" &&
                           getComputedStyle(shape).fill.startsWith("rgb"));
      if (shapes.length > 0) ground = ground.concat(getComputedStyle(shapes[0]).fill);
    }
    const below = light(channels(ground));
    const above = light(channels(ground.concat(drawing === null ? style.color : style.fill)));
    const ratio = (Math.max(above, below) + 0.05) / (Math.min(above, below) + 0.05);
    if (ratio < 4.5) faint.add(element.tagName + "." + (element.getAttribute("class") ?? "") + " in " +
                               (element.closest("[id]")?.id ?? "") + " " + ratio.toFixed(2));
  }
  return [...faint].slice(0, 10);
})()"""


class Browser:
    """Chromium at the other end of two pipes; messages are JSON, ended by a zero byte."""

    def __init__(self, profile):
        to_browser, self._out = os.pipe()
        self._in, from_browser = os.pipe()
        # The browser reads its orders from 3 and answers on 4.
        command = 'exec 3<&%d 4>&%d; exec "$@"' % (to_browser, from_browser)
        self._process = subprocess.Popen(
            ["bash", "-c", command, "bash", "chromium", *OPTIONS, "--user-data-dir=" + profile],
            pass_fds=(to_browser, from_browser), stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        os.close(to_browser)
        os.close(from_browser)
        self._buffer = b""
        self._count = 0
        self._session = None
        self.events = []
        target = self.ask("Target.createTarget", url="about:blank")["targetId"]
        self._session = self.ask("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network", "Accessibility"):
            self.ask(domain + ".enable")

    def _receive(self):
        while b"\0" not in self._buffer:
            more = os.read(self._in, 1 << 20)
            if not more:
                sys.exit("the browser has gone")
            self._buffer += more
        message, self._buffer = self._buffer.split(b"\0", 1)
        return json.loads(message)

    def ask(self, method, **params):
        self._count += 1
        request = {"id": self._count, "method": method, "params": params}
        if self._session is not None:
            request["sessionId"] = self._session
        os.write(self._out, json.dumps(request).encode() + b"\0")
        while True:
            message = self._receive()
            if message.get("id") != self._count:
                self.events.append(message)
                continue
            if "error" in message:
                sys.exit("%s: %s" % (method, message["error"]))
            return message["result"]

    def wait_for(self, method):
        while all(event.get("method") != method for event in self.events):
            self.events.append(self._receive())

    def evaluate(self, expression):
        answer = self.ask("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True)
        if "exceptionDetails" in answer:
            sys.exit("%s\n%s" % (expression, answer["exceptionDetails"]))
        return answer["result"].get("value")

    def open(self, path):
        self.ask("Page.navigate", url="file://" + os.path.abspath(path))
        self.wait_for("Page.loadEventFired")

    def look(self, width, height, scheme="light"):
        self.ask("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)
        self.ask("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": scheme}])

    def picture(self, path):
        # Two frames, so that what a scroll uncovered is drawn.
        self.evaluate("new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done)))")
        data = self.ask("Page.captureScreenshot", format="png")["data"]
        with open(path, "wb") as out:
            out.write(base64.b64decode(data))

    def close(self):
        self.ask("Browser.close")
        self._process.wait()


def unnamed(browser):
    nodes = browser.ask("Accessibility.getFullAXTree")["nodes"]
    named = [node for node in nodes if not node["ignored"] and node["role"]["value"] in CONTROLS]
    if len(named) < 20:
        return ["only %d controls" % len(named)]
    # The fold of a tree and the like are groups without a name of their own; those in drawings must have one.
    return [node["role"]["value"] + " " + str(node["nodeId"]) for node in named
            if not node.get("name", {}).get("value") and node["role"]["value"] != "group"]


def said(browser):
    texts = []
    for event in browser.events:
        if event.get("method") == "Runtime.consoleAPICalled":
            texts.append(str(event["params"]["args"]))
        if event.get("method") == "Runtime.exceptionThrown":
            texts.append(str(event["params"]["exceptionDetails"].get("exception")))
        if event.get("method") == "Log.entryAdded":
            texts.append(event["params"]["entry"]["text"])
        if event.get("method") == "Network.requestWillBeSent":
            url = event["params"]["request"]["url"]
            if not url.startswith(("file:", "data:")):
                texts.append("asks the network for " + url)
    return texts


def check(browser):
    faults = []

    def expect(what, problems):
        print(("ok      " if not problems else "FAULT   ") + what)
        for problem in problems:
            print("        " + str(problem))
        if problems:
            faults.append(what)

    expect("every link leads somewhere", browser.evaluate(LOST_TARGETS))
    for text in browser.evaluate("""["card", "type", "menu", "file"].map((kind) =>
            document.querySelector("[data-find^='" + kind + "']")?.dataset.find).filter((text) => text)"""):
        hash = browser.evaluate(SEARCH + "(" + json.dumps(text) + ")")
        expect('the search finds "%s"' % text[:40].strip(),
               [] if hash and browser.evaluate(OPENED) else ["it led to " + repr(hash)])
    expect("the search says when it finds nothing", browser.evaluate(
        "(" + SEARCH + "('no such thing at all'), document.getElementById('status').textContent === '' ? ['silent'] : [])"))
    expect("no control is without a name", unnamed(browser))
    for language, other in (("zh", "en"), ("en", "zh")):
        browser.evaluate("document.querySelector('[data-language=%s]').click()" % language)
        expect("in %s nothing is shown in %s" % (language, other), browser.evaluate(
            "[...document.querySelectorAll('main [lang=%s]')].slice(0, 3000).filter((text) => text.checkVisibility())"
            ".slice(0, 5).map((text) => text.textContent)" % other))
    # A large page is looked at in part: all its folds open at once are more than anybody sees.
    browser.evaluate("[...document.querySelectorAll('details')].slice(0, 200).forEach((fold) => { fold.open = true; })")
    for scheme in ("light", "dark"):
        browser.look(1280, 900, scheme)
        expect("contrast, " + scheme, browser.evaluate(CONTRAST))
    browser.look(400, 800)
    expect("it fits 400 pixels", browser.evaluate(
        "document.documentElement.scrollWidth > 400 ? [document.documentElement.scrollWidth] : []"))
    expect("nothing on the console, nothing from the network", said(browser))
    return faults


def take_pictures(browser, page, folder):
    views = (("page-1280", 1280, 900, "light", "chassis"), ("page-cards", 1280, 900, "light", "card-601"),
             ("page-connectors", 1280, 900, "light", "connectors"), ("page-dark", 1280, 900, "dark", "screens"),
             ("page-400", 400, 800, "light", "cards"))
    for name, width, height, scheme, anchor in views:
        browser.look(width, height, scheme)
        browser.events.clear()
        browser.open(page)
        browser.evaluate("location.hash = '%s'" % anchor)
        browser.evaluate("new Promise((done) => setTimeout(done, 300))")
        browser.picture(os.path.join(folder, name + ".png"))


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    with tempfile.TemporaryDirectory() as profile:
        browser = Browser(profile)
        browser.look(1280, 900)
        browser.open(sys.argv[1])
        faults = check(browser)
        if len(sys.argv) == 3:
            take_pictures(browser, sys.argv[1], sys.argv[2])
        browser.close()
    sys.exit("%d faults" % len(faults) if faults else 0)


if __name__ == "__main__":
    main()
