"""A headless Chromium, driven over the DevTools protocol through a pair of pipes."""

import base64
import json
import os
import select
import subprocess
import tempfile
import time

COLOURS = ("light", "dark")


class Browser:
    """Runs until it is closed. What a page complains of is gathered in `complaints`."""

    def __init__(self, program="chromium"):
        self.complaints = []
        self._events = []
        self._number = 0
        self._pending = b""
        self._profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        commands, self._commands = os.pipe()
        self._answers, answers = os.pipe()
        # The browser reads commands from descriptor 3 and answers on 4.
        spare = [os.dup2(end, 60 + index) for index, end in enumerate((commands, answers))]
        options = ["--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--remote-debugging-pipe"]
        options += [f"--user-data-dir={self._profile.name}", "--no-first-run", "--disable-background-networking"]
        self._process = subprocess.Popen(
            ["bash", "-c", 'exec "$@" 3<&60 4>&61 60<&- 61>&-', "bash", program, *options, "about:blank"],
            pass_fds=spare,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        for end in (commands, answers, *spare):
            os.close(end)
        self._session = None
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        self._session = self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(domain + ".enable")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._session = None
        self.call("Browser.close")
        self._process.wait(20)
        self._profile.cleanup()

    def call(self, method, **parameters):
        number = self._send(method, parameters)
        while True:
            answer = self._receive()
            if answer.get("id") != number:
                continue
            if "error" in answer:
                raise RuntimeError(f"{method}: {answer['error']['message']}")
            return answer["result"]

    def _send(self, method, parameters):
        self._number += 1
        message = {"id": self._number, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        data = json.dumps(message).encode() + b"\0"
        while data:
            data = data[os.write(self._commands, data) :]
        return self._number

    def open(self, file, timeout=60, anchor=""):
        """Opens a file and waits until it is loaded; answers the seconds from the call on."""
        self._events.clear()
        start = time.monotonic()
        self.call("Page.navigate", url="file://" + os.path.abspath(file) + anchor)
        while "Page.loadEventFired" not in self._events:
            if time.monotonic() - start > timeout:
                raise RuntimeError(f"{file}: not loaded after {timeout} s")
            self._receive()
        return time.monotonic() - start

    def evaluate(self, expression):
        """The value of an expression, or of its promise, in the page."""
        result = self.call("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True)
        if "exceptionDetails" in result:
            details = result["exceptionDetails"]
            raise RuntimeError(details.get("exception", {}).get("description", details["text"]))
        return result["result"].get("value")

    def wait_for(self, condition, seconds=30):
        end = time.monotonic() + seconds
        while not self.evaluate(condition):
            if time.monotonic() > end:
                raise RuntimeError(f"still not: {condition}")
            time.sleep(0.02)

    def show(self, colour="light", width=1440, height=900, phone=False):
        self.call(
            "Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=phone
        )
        self.call("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": colour}])

    def point_at(self, selector, click=False):
        """Moves the mouse to the middle of an element, and may click there."""
        place = self.evaluate(
            f"""(() => {{ const box = document.querySelector({json.dumps(selector)}).getBoundingClientRect();
            return [box.left + box.width / 2, box.top + box.height / 2]; }})()"""
        )
        place = dict(zip("xy", place))
        self.call("Input.dispatchMouseEvent", type="mouseMoved", **place)
        if click:
            for what in "mousePressed", "mouseReleased":
                self.call("Input.dispatchMouseEvent", type=what, button="left", clickCount=1, **place)

    def type(self, selector, text):
        """Replaces what stands in an input."""
        self.evaluate(f"document.querySelector({json.dumps(selector)}).select()")
        self.call("Input.insertText", text=text)

    def photograph(self, file):
        data = self.call("Page.captureScreenshot", format="png")["data"]
        with open(file, "wb") as picture:
            picture.write(base64.b64decode(data))

    def _receive(self, timeout=60):
        while b"\0" not in self._pending:
            if not select.select([self._answers], [], [], timeout)[0]:
                raise RuntimeError("the browser does not answer")
            data = os.read(self._answers, 1 << 20)
            if not data:
                raise RuntimeError("the browser has gone")
            self._pending += data
        text, self._pending = self._pending.split(b"\0", 1)
        message = json.loads(text)
        self._note(message.get("method", ""), message.get("params", {}))
        return message

    def _note(self, method, event):
        self._events.append(method)
        if method == "Runtime.exceptionThrown":
            details = event["exceptionDetails"]
            self.complaints.append(details.get("exception", {}).get("description", details["text"]))
        elif method == "Runtime.consoleAPICalled" and event["type"] in ("error", "warning", "assert"):
            self.complaints.append(f"console.{event['type']}: {event['args']}")
        elif method == "Log.entryAdded" and event["entry"]["level"] in ("error", "warning"):
            self.complaints.append(event["entry"]["text"])
        elif method == "Network.requestWillBeSent" and event.get("type") != "Document":
            self.complaints.append("fetched: " + event["request"]["url"][:100])
        elif method == "Page.javascriptDialogOpening":
            self.complaints.append("a dialogue: " + event["message"])
            self._send("Page.handleJavaScriptDialog", {"accept": False})
