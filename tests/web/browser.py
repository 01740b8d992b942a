"""A real headless Chromium, driven over the WebDriver protocol of its own chromedriver."""

import json
import shutil
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

FLAGS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-dev-shm-usage",
         "--disable-background-networking", "--disable-component-update", "--disable-sync", "--no-proxy-server"]
START_SECONDS = 60
ANSWER_SECONDS = 60


class Browser:
    """One browser with a profile of its own, for a with statement."""

    def __init__(self):
        self._folder = tempfile.mkdtemp(prefix="lodestar-web.")
        self._log = open(f"{self._folder}/driver.log", "w+", encoding="utf-8")
        self._driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=self._log, stderr=subprocess.STDOUT)
        self._session = None
        try:
            self._base = f"http://127.0.0.1:{self._wait_for_port()}"
            self._begin()
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def _wait_for_port(self):
        end = time.monotonic() + START_SECONDS
        while time.monotonic() < end and self._driver.poll() is None:
            self._log.seek(0)
            for line in self._log:
                if "started successfully on port " in line:
                    return int(line.rsplit("port ", 1)[1].strip(" .\n"))
            time.sleep(0.05)
        raise RuntimeError("chromedriver did not start")

    def _begin(self):
        options = {"args": FLAGS + [f"--user-data-dir={self._folder}/profile"]}
        capabilities = {"browserName": "chrome", "goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL"}}
        value = self._call("POST", "/session", {"capabilities": {"alwaysMatch": capabilities}})
        self._session = f"/session/{value['sessionId']}"

    def _call(self, method, path, body=None):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self._base + path, data, {"Content-Type": "application/json"}, method=method)
        opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))
        with opener.open(request, timeout=ANSWER_SECONDS) as answer:
            return json.load(answer)["value"]

    def go(self, url):
        self._call("POST", self._session + "/url", {"url": url})

    def run(self, script):
        """Runs the body of a JavaScript function and returns its value."""
        return self._call("POST", self._session + "/execute/sync", {"script": script, "args": []})

    def click(self, selector):
        """Clicks the first element that a CSS selector finds, as a mouse does."""
        element = self._call("POST", self._session + "/element", {"using": "css selector", "value": selector})
        self._call("POST", f"{self._session}/element/{next(iter(element.values()))}/click", {})

    def wait_until(self, condition, seconds=ANSWER_SECONDS):
        """Waits until a page is loaded and a JavaScript condition holds on it. False if the time runs out first.

        A click returns at once; the page that it leads to comes later.
        """
        end = time.monotonic() + seconds
        while True:
            try:
                if self.run(f"return document.readyState === 'complete' && ({condition})"):
                    return True
            except urllib.error.HTTPError:
                pass  # the page is changing
            if time.monotonic() >= end:
                return False
            time.sleep(0.05)

    def complaints(self):
        """The errors and warnings in the browser's console since the last call."""
        entries = self._call("POST", self._session + "/se/log", {"type": "browser"})
        return [entry["message"] for entry in entries if entry["level"] in ("SEVERE", "WARNING")]

    def close(self):
        try:
            if self._session:
                self._call("DELETE", self._session)
        finally:
            self._driver.terminate()
            self._driver.wait()
            self._log.close()
            shutil.rmtree(self._folder, ignore_errors=True)
