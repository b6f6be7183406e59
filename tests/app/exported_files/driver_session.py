"""One running tabrova-drive: commands in, answers out."""

import json
import os
import shlex
import subprocess


class DriverFailure(Exception):
    pass


def quoted(word):
    text = str(word)
    if text and not set(text) & set(' "\\\n\'\t'):
        return text
    escaped = text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n")
    return '"' + escaped + '"'


class DriverSession:
    def __init__(self, program, home):
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
        self.process = subprocess.Popen(
            [program, "--home", home], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL, text=True, encoding="utf-8", env=environment)

    def tell(self, *words):
        """Sends one command and returns its answer, errors included."""
        self.process.stdin.write(" ".join(quoted(word) for word in words) + "\n")
        self.process.stdin.flush()
        line = self.process.stdout.readline()
        if not line:
            raise DriverFailure("the driver ended at: " + shlex.join(map(str, words)))
        return json.loads(line)

    def ask(self, *words):
        """Sends one command that has to succeed."""
        answer = self.tell(*words)
        if "error" in answer:
            raise DriverFailure(f"{answer['error']}: {shlex.join(map(str, words))}")
        return answer

    def value(self, *words):
        return self.ask("get", *words)["value"]

    def boxes(self):
        return self.ask("boxes")["boxes"]

    def choosers(self):
        return self.ask("choosers")["choosers"]

    def visible_forms(self):
        return self.ask("forms")["visible"]

    def open_document(self, path):
        self.ask("answer", "no")
        self.ask("answer", "file", path)
        self.ask("do", "mnuFileOpen")
        self.boxes()
        self.choosers()

    def close(self):
        self.process.stdin.close()
        self.process.wait(timeout=20)
