"""The text box, the temporary file and the saved file."""

import datetime
import random

from midi_checks import message
from plain_text_export import MARK_TEXTS, box_text, saved_file, tablature_lines, temporary_file
from program_home import INSTRUMENTS, MANY_STAVES

SHORT_DATES = ["%d %b %Y", "%x", "%m/%d/%y", "%m/%d/%Y", "%d/%m/%Y", "%d.%m.%Y", "%d.%m.%y", "%Y-%m-%d"]


def is_today(text):
    today = datetime.date.today()
    return text in {form for pattern in SHORT_DATES
                    for form in (today.strftime(pattern), today.strftime(pattern).lstrip("0"))}


def as_read_back(text):
    """The driver reads a box's hard blanks as blanks; the saved file tells them apart."""
    return text.replace("\u00a0", " ")


class TextChecks:
    def __init__(self, session, findings, home, folder):
        self.session, self.findings = session, findings
        self.temporary = home / "temp.txt"
        self.saved = folder / "saved.txt"
        self.chance = random.Random(5)

    def check(self, where, score):
        """Takes a track by chance; marks that the tablature has no text for are passed over."""
        if not set(score.marks.values()) <= MARK_TEXTS.keys():
            return
        track = self.chance.randrange(len(score.tracks))
        self.session.ask("set", "frmMain.TrackNames", track)
        self.check_track(f"{where} track {track}", score, track)

    def check_track(self, where, score, track):
        self.temporary.unlink(missing_ok=True)
        self.session.boxes()
        self.session.ask("do", "mnuExportText")
        warning = [message(MANY_STAVES, "information")] if score.staves > 20 else []
        self.findings.same("box over 20 staves", where, self.session.boxes(), warning)
        shown = self.session.value("frmExport.txtfile")
        date = shown.split("\n")[1].rstrip(" ")
        self.findings.same("date line", where, is_today(date), True)
        lines = tablature_lines(score, track, date, INSTRUMENTS)
        self.findings.same("lines in the text box", where, shown.split("\n"),
                           as_read_back(box_text(lines)).split("\n"), len(lines))
        self.compare_bytes("lines of temp.txt", where, self.temporary, temporary_file(lines))
        self.save(where, box_text(lines))

    def compare_bytes(self, topic, where, path, expected):
        found = path.read_bytes() if path.exists() else b"(missing)"
        self.findings.same(topic, where, found.split(b"\r\n"), expected.split(b"\r\n"),
                           expected.count(b"\r\n"))

    def save(self, where, text):
        self.saved.unlink(missing_ok=True)
        self.session.ask("answer", "file", self.saved)
        self.session.ask("click", "frmExport.Command1")
        self.compare_bytes("lines of the saved file", where, self.saved, saved_file(text))
        expected = [message(f"File {self.saved} exported successfully.", "information")]
        self.findings.same("text saved message", where, self.session.boxes(), expected)
        self.findings.same("text form unloaded", where,
                           self.session.tell("get", "frmExport.Label1").get("error"), "not loaded")
