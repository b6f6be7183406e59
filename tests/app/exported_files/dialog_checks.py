"""The boxes and controls of the MIDI export's dialog, and the captions of a program without language lines."""

from driver_session import DriverSession
from edge_checks import opened
from midi_checks import EXPORTED_BOX, choose_file, message, open_fresh_dialog
from program_home import COMPILED, NO_FILE_CHOSEN, UNSET_FILE
from score import Score, Track

FULL = message("No more than 15 tracks may be exported to a MIDI File.", "exclamation")
TWICE = message("This track is already in the Exportation Queue.", "exclamation")
DIALOG = "frmMIDIExport."


class DialogChecks:
    def __init__(self, session, findings, folder):
        self.session, self.findings, self.folder = session, findings, folder
        self.path = folder / "dialog.mid"

    def same(self, where, found, expected):
        self.findings.same("dialog", where, found, expected)

    def click(self, button):
        self.session.ask("click", DIALOG + button)

    def select(self, track):
        self.session.ask("set", DIALOG + "lstTracks", track)

    def get(self, *words):
        return self.session.value(DIALOG + words[0], *words[1:])

    def queue(self):
        return self.get("lsttoUse", "items")

    def fresh(self, tracks=18):
        opened(self.session, self.folder,
               Score(tracks=[Track(name=f"Name {number}") for number in range(tracks)]))
        open_fresh_dialog(self.session)
        self.session.boxes()
        self.session.choosers()

    def check_lists(self):
        self.fresh()
        self.same("tracks", self.get("lstTracks", "items"), [f"{number} - Name {number}" for number in range(18)])
        self.same("queue", self.queue(), [])

    def check_sixteenth(self):
        self.fresh()
        for count in range(15):
            self.click("Command6")
            self.same("selection after adding", self.get("lstTracks", "row"), count + 1)
        self.same("fifteen tracks", self.queue(), [str(number) for number in range(15)])
        self.same("no box so far", self.session.boxes(), [])
        self.click("Command6")
        self.same("the sixteenth", (self.session.boxes(), len(self.queue())), ([FULL], 15))
        self.select(3)
        self.click("Command6")
        self.same("full comes before twice", self.session.boxes(), [FULL])

    def check_twice(self):
        self.fresh()
        self.select(4)
        self.click("Command6")
        self.select(4)
        self.click("Command6")
        self.same("twice", (self.session.boxes(), self.queue()), ([TWICE], ["4"]))
        self.same("selection stays", self.get("lstTracks", "row"), 4)

    def check_last_track(self):
        self.fresh(2)
        self.select(1)
        self.click("Command6")
        self.same("last track added", (self.session.boxes(), self.queue()), ([], ["1"]))

    def check_removal(self):
        self.fresh()
        self.click("Command7")
        self.same("removing from an empty queue", (self.session.boxes(), self.queue()), ([], []))
        for _ in range(4):
            self.click("Command6")
        self.session.ask("set", DIALOG + "lsttoUse", 2)
        self.click("Command7")
        self.same("selected row removed", self.queue(), ["0", "1", "3"])

    def check_removal_without_selection(self):
        self.fresh()
        self.click("Command6")
        self.click("Command6")
        if self.get("lsttoUse", "row") == -1:
            self.click("Command7")
            self.same("row 0 removed", self.queue(), ["1"])

    def check_no_file(self):
        self.fresh()
        self.click("Command6")
        self.click("Command2")
        self.same("no file chosen", self.session.boxes(), [message(NO_FILE_CHOSEN, "exclamation")])
        self.same("the dialog stays", "frmMIDIExport" in self.session.visible_forms(), True)
        self.same("the queue stays", self.queue(), ["0"])

    def check_chooser(self):
        self.fresh()
        self.same("default label", self.get("Label1"), UNSET_FILE)
        self.session.ask("answer", "file")
        self.click("Command1")
        self.same("label after a cancelled chooser", self.get("Label1"), UNSET_FILE)
        self.same("chooser kind", [chooser["kind"] for chooser in self.session.choosers()], ["save"])
        choose_file(self.session, self.path)
        self.same("label shows the path", self.get("Label1"), str(self.path))
        self.session.ask("answer", "file")
        self.click("Command1")
        self.same("label keeps the path", self.get("Label1"), str(self.path))

    def check_second_choice(self):
        self.fresh()
        other = self.folder / "other.mid"
        choose_file(self.session, other)
        choose_file(self.session, self.path)
        self.path.unlink(missing_ok=True)
        self.click("Command2")
        self.same("boxes", self.session.boxes(), [EXPORTED_BOX])
        self.same("the last path is written", (self.path.exists(), other.exists()), (True, False))
        self.same("the dialog is unloaded", self.session.tell("get", DIALOG + "Label1").get("error"), "not loaded")

    def check_cancel(self):
        self.fresh()
        self.click("Command3")
        self.same("Cancel unloads", self.session.tell("get", DIALOG + "Label1").get("error"), "not loaded")
        self.same("Cancel shows no box", self.session.boxes(), [])

    def check_priority_track(self):
        self.fresh(3)
        start = int(self.get("PriorityTrack"))
        for _ in range(5):
            self.click("Command4")
        self.same("raised to the number of tracks", (start, self.get("PriorityTrack")), (0, "3"))
        for _ in range(5):
            self.click("Command5")
        self.same("lowered to 0", self.get("PriorityTrack"), "0")
        self.click("Command3")


def check_dialogs(session, findings, folder):
    checks = DialogChecks(session, findings, folder)
    for name in [name for name in DialogChecks.__dict__ if name.startswith("check_")]:
        getattr(checks, name)()


def check_without_language(program, findings, folder):
    home = folder / "bare home"
    home.mkdir()
    session = DriverSession(program, home)
    session.ask("do", "mnuExportText")
    findings.same("built-in captions", "frmExport.Label1", session.value("frmExport.Label1"), COMPILED)
    findings.same("built-in captions", "buttons",
                  [session.value(f"frmExport.Command{number}", "caption") for number in (1, 2, 3)],
                  ["Save", "Cancel", "Print"])
    findings.same("built-in captions", "no instrument names",
                  session.value("frmExport.txtfile").split("\n")[6], "Instrument: Patch:  ")
    session.ask("click", "frmExport.Command2")
    session.ask("do", "mnuExportMidiFile")
    findings.same("built-in captions", "frmMIDIExport",
                  [session.value(DIALOG + name, "caption") for name in
                   ("Label1", "Command1", "Command2", "Command3", "chkReverb")],
                  [UNSET_FILE, "Choose File...", "Export", "Cancel", "Prevent Reverberations"])
    session.close()
