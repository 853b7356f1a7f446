// A browser without a window, driven over its own debugging pipe: no package is needed for that.
import { spawn } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";

const program = process.env.CHROMIUM ?? "chromium";
const flags = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
  "--disable-background-networking", "--disable-component-update", "--disable-sync",
  "--disable-dev-shm-usage", "--remote-debugging-pipe", "about:blank"];

/** Starts it: `send(method, params)` answers, `on` gets events, `close` ends it. */
export async function startBrowser() {
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), "ortholan-browser-"));
  const child = spawn(program, [`--user-data-dir=${profile}`, ...flags],
    { stdio: ["ignore", "ignore", "ignore", "pipe", "pipe"] });
  const ended = new Promise((resolve) => { child.once("close", resolve); });
  const waiting = new Map();
  const listeners = [];
  let number = 0;
  let rest = "";
  child.stdio[4].setEncoding("utf8").on("data", (data) => {
    const messages = (rest + data).split("\0");
    rest = messages.pop();
    for (const message of messages.map((text) => JSON.parse(text))) {
      if (message.id === undefined) listeners.forEach((listener) => listener(message));
      else waiting.get(message.id)(message);
    }
  });
  const send = (method, params = {}, sessionId = undefined) => new Promise((resolve, reject) => {
    const id = ++number;
    waiting.set(id, ({ error, result }) => {
      waiting.delete(id);
      if (error) reject(new Error(`${method}: ${error.message}`));
      else resolve(result);
    });
    child.stdio[3].write(`${JSON.stringify({ id, method, params, sessionId })}\0`);
  });
  const close = async () => {
    await send("Browser.close").catch(() => {});
    await ended;
    fs.rmSync(profile, { recursive: true, force: true, maxRetries: 5 });
  };
  return { send, close, onEvent: (listener) => listeners.push(listener) };
}

const keys = { Tab: 9, Enter: 13, " ": 32, End: 35, Home: 36, ArrowLeft: 37, ArrowUp: 38,
  ArrowRight: 39, ArrowDown: 40 };

/** A page of the browser at an address. */
export async function openPage(browser, url, { width = 1280, height = 900, dark = false } = {}) {
  const { targetId } = await browser.send("Target.createTarget", { url: "about:blank" });
  const { sessionId } = await browser.send("Target.attachToTarget", { targetId, flatten: true });
  const send = (method, params) => browser.send(method, params, sessionId);
  const requests = [];
  const faults = [];
  browser.onEvent((event) => {
    if (event.sessionId !== sessionId) return;
    if (event.method === "Network.requestWillBeSent") requests.push(event.params.request.url);
    if (event.method === "Runtime.exceptionThrown") {
      faults.push(event.params.exceptionDetails.exception?.description);
    }
    if (event.method === "Log.entryAdded" && event.params.entry.level === "error") {
      faults.push(event.params.entry.text);
    }
  });
  for (const domain of ["Page", "Runtime", "Network", "Log"]) await send(`${domain}.enable`);
  await send("Emulation.setDeviceMetricsOverride",
    { width, height, deviceScaleFactor: 1, mobile: false });
  await send("Emulation.setEmulatedMedia",
    { features: [{ name: "prefers-color-scheme", value: dark ? "dark" : "light" }] });
  const evaluate = async (expression) => {
    const { result, exceptionDetails } = await send("Runtime.evaluate",
      { expression, awaitPromise: true, returnByValue: true });
    if (exceptionDetails) throw new Error(exceptionDetails.exception.description);
    return result.value;
  };
  await send("Page.navigate", { url });
  const ready = 'document.readyState === "complete" && location.href !== "about:blank"';
  while (!(await evaluate(ready))) await new Promise((resolve) => { setTimeout(resolve, 20); });

  return {
    evaluate,
    requests,
    faults,
    /** What a person does with a keyboard. */
    async press(key, modifiers = 0) {
      const params = { key, code: key === " " ? "Space" : key, modifiers,
        windowsVirtualKeyCode: keys[key] };
      const text = { Enter: "\r", " ": " " }[key];
      await send("Input.dispatchKeyEvent", { type: "keyDown", ...params, text });
      await send("Input.dispatchKeyEvent", { type: "keyUp", ...params });
    },
    type: (text) => send("Input.insertText", { text }),
    click: async (selector) => {
      const { x, y } = await evaluate(`(() => {
        const found = document.querySelector(${JSON.stringify(selector)});
        found.scrollIntoView({ block: "center" });
        const { left, top, width, height } = found.getBoundingClientRect();
        return { x: left + width / 2, y: top + Math.min(height / 2, 10) };
      })()`);
      for (const type of ["mouseMoved", "mousePressed", "mouseReleased"]) {
        await send("Input.dispatchMouseEvent", { type, x, y, button: "left", clickCount: 1 });
      }
    },
    async picture(file, whole = true) {
      const { data } = await send("Page.captureScreenshot",
        { format: "png", captureBeyondViewport: whole });
      fs.writeFileSync(file, Buffer.from(data, "base64"));
    },
    close: () => browser.send("Target.closeTarget", { targetId }),
  };
}
