"""The edges of both exports and of the import, one by one. Each check_ method is run."""

import mido

from import_checks import ImportChecks, import_file
from midi_checks import EXPORTED_BOX, check_export, export_midi
from plain_text_export import tablature_lines
from program_home import INSTRUMENTS
from score import Score, Track, write_score

DOCUMENT_FIELDS = ["NoteGrid", "TechniqueGrid", "BarMarkRow", "TuningTable", "Tempo", "TrackNames"]
BLANK_STRING = "------" * 16
HEADER = "024" + "480" + "00001" + "12" * 6
BLANK_STAFF = (">>|" * 32) * 6 + "|"
TAIL = "04Anna" + "05Title"


def opened(session, folder, score, name="edge.tr3"):
    write_score(score, folder / name)
    session.open_document(folder / name)
    return score


def events_of(path):
    return [[message for message in track if not message.is_meta]
            for track in mido.MidiFile(str(path)).tracks]


class MidiEdges:
    def __init__(self, session, findings, folder):
        self.session, self.findings, self.folder = session, findings, folder
        self.path = folder / "edge.mid"

    def same(self, where, found, expected):
        self.findings.same("MIDI edges", where, found, expected)

    def exported(self, score, queue, note_offs=False):
        opened(self.session, self.folder, score)
        check_export(self.session, self.findings, f"edge {queue}", self.path, score, queue, note_offs)
        return events_of(self.path)

    def check_empty_queue(self):
        tracks = self.exported(Score(), [])
        self.same("an empty queue writes no events", tracks, [[]])

    def check_channels(self):
        score = Score(tracks=[Track(guitar=place not in (2, 11)) for place in range(15)])
        tracks = self.exported(score, list(range(15)))[1:]
        channels = [{message.channel for message in track} for track in tracks]
        expected = [{0}, {1}, {9}, {3}, {4}, {5}, {6}, {7}, {8}, {10}, {11}, {9}, {13}, {14}, {15}]
        self.same("channels by place in the queue", channels, expected)
        programs = [sum(message.type == "program_change" for message in track) for track in tracks]
        self.same("percussion has no program", programs,
                  [int(place not in (2, 11)) for place in range(15)])

    def check_last_column(self):
        score = Score(cells={(31, 0): "5", (30, 0): "3"})
        notes = [message for message in self.exported(score, [0])[1] if message.type == "note_on"]
        self.same("the last column is not exported",
                  [message.note for message in notes if message.velocity], [67])
        self.same("time of 31 columns", sum(message.time for message in notes), 31 * 125)

    def check_note_offs(self):
        score = Score(cells={(0, 0): "3", (4, 0): "5", (8, 0): "7"})
        for note_offs in (False, True):
            kinds = {message.type for message in self.exported(score, [0], note_offs)[1]}
            self.same(f"note-offs {note_offs}", "note_off" in kinds, note_offs)

    def check_place_of_its_own(self):
        cells = {(0, 0): "3", (4, 0): "5", (0, 6): "3", (4, 6): "5"}
        score = Score(tracks=[Track(), Track()], cells=cells)
        for queue in ([0, 1], [1, 0], [1], [0]):
            self.exported(score, queue, True)

    def check_seventh_row(self):
        score = Score(tracks=[Track(), Track(tuning=[20, 13, 13, 13, 13, 13])],
                      cells={(2, 6): "3", (4, 11): "1"})
        first = self.exported(score, [0])[1]
        self.same("the next track's top string sounds too",
                  [message.note for message in first if message.type == "note_on" and message.velocity],
                  [3 + 20 + 51])

    def check_repeats(self):
        for marks in ({4: "r", 8: "r1"}, {8: "r15"}, {31: "r2"}, {3: "r", 9: "r2", 12: "r", 20: "r3"},
                      {0: "r1"}, {5: "r", 6: "r1"}, {3: "r", 6: "r16"}):
            self.exported(Score(marks=marks, cells={(4, 0): "1", (7, 2): "2"}), [0])

    def check_repeat_over_tracks(self):
        score = Score(tracks=[Track() for _ in range(6)], marks={5: "r2", 10: "r"})
        lengths = [len(track) for track in self.exported(score, [1, 0, 2, 3, 4, 5])[1:]]
        columns = [31 + 2 * 5, 31 - 5, 31 - 5, 31, 31 - 5, 31 - 5]
        self.same("lengths of the tracks", lengths, [1 + 7 * count for count in columns])

    def check_silent_end(self):
        for cells in ({(0, 2): "x"}, {(0, 5): "abc"}, {(0, 6): "x"}):
            score = opened(self.session, self.folder, Score(tracks=[Track(), Track()], cells=cells))
            self.path.write_text("old")
            boxes = export_midi(self.session, self.path, [0], True)
            self.same(f"{cells} ends without a word", (boxes, self.path.exists()), ([], False))
            self.same("the dialog is hidden", self.session.visible_forms(), ["frmMain"])
            check_export(self.session, self.findings, f"second track of {cells}", self.path, score,
                         [1], True)

    def check_queue_of_another_document(self):
        """The queue that a silent end leaves names a track that the next document does not have."""
        opened(self.session, self.folder, Score(tracks=[Track(), Track()], cells={(0, 6): "x"}))
        export_midi(self.session, self.path, [1], True)
        opened(self.session, self.folder, Score())
        self.path.unlink(missing_ok=True)
        self.session.ask("do", "mnuExportMidiFile")
        self.same("the queue is kept", self.session.value("frmMIDIExport.lsttoUse", "items"), ["1"])
        self.session.ask("click", "frmMIDIExport.Command2")
        self.same("a queued track that is not there ends without a word",
                  (self.session.boxes(), self.path.exists()), ([], False))

    def check_later_faults(self):
        score = Score(tracks=[Track(), Track(volume="loud")],
                      cells={(1, 2): "abc", (2, 2): "x", (3, 2): "4", (0, 8): "x", (1, 8): "5"})
        self.exported(score, [0, 1], True)

    def check_document_unchanged(self):
        before = self.session.ask("doc")
        export_midi(self.session, self.path, [0], True)
        self.same("the document is unchanged", self.session.ask("doc"), before)

    def check_existing_file(self):
        self.path.write_bytes(b"old content " * 100000)
        boxes = export_midi(self.session, self.path, [0], False)
        self.same("an existing file is replaced", (boxes, self.path.stat().st_size < 100000),
                  ([EXPORTED_BOX], True))

    def check_unwritable(self):
        boxes = export_midi(self.session, self.folder / "missing" / "out.mid", [0], False)
        self.same("a file that cannot be written is not reported", boxes, [EXPORTED_BOX])


class TextEdges:
    def __init__(self, session, findings, text, folder):
        self.session, self.findings, self.text, self.folder = session, findings, text, folder

    def same(self, where, found, expected):
        self.findings.same("text edges", where, found, expected)

    def checked(self, where, score, track=0):
        opened(self.session, self.folder, score)
        self.session.ask("set", "frmMain.TrackNames", track)
        self.text.check_track(where, score, track)
        return tablature_lines(score, track, "", INSTRUMENTS)[7:]

    def check_blank(self):
        lines = self.checked("blank", Score(staves=3))
        self.same("blocks of three blank staves", lines, ([BLANK_STRING] * 6 + [" " * 91, " "]) * 6)

    def check_marks(self):
        for mark, text in (("r", "|"), (".", " "), ("r1", "2"), ("r8", "9"), ("r9", "0"), ("r15", "6")):
            lines = self.checked(f"mark {mark}", Score(marks={3: mark}))
            self.same(f"bar of {mark}", [line[18] for line in lines[:7]], ["|"] * 6 + [text])

    def check_cells(self):
        self.checked("wide cells", Score(cells={(0, 0): "12", (1, 0): "7", (2, 0): "123", (3, 1): ">"},
                                         techniques={(0, 0): "²", (1, 0): "p1.5", (2, 5): "b2.5"}))
        self.checked("percussion", Score(tracks=[Track(guitar=False)], cells={(0, 0): "38"}))

    def check_double_time(self):
        self.checked("double time", Score(double_time=True, tempo=2000))

    def check_many_staves(self):
        for staves in (20, 21):
            self.checked(f"{staves} staves", Score(staves=staves))

    def check_print_command(self):
        opened(self.session, self.folder, Score(staves=21))
        self.session.boxes()
        self.session.ask("do", "mnuFilePrint")
        self.same("printing warns of many staves", len(self.session.boxes()), 1)
        self.same("printing shows the text", "frmExport" in self.session.visible_forms(), True)
        self.session.ask("click", "frmExport.Command2")

    def check_print_while_playing(self):
        self.session.ask("freeze")
        self.session.ask("do", "mnuSoundPlayAll")
        answer = self.session.tell("do", "mnuFilePrint")
        self.same("printing is disabled during playback", answer.get("error"), "disabled")
        self.session.ask("do", "mnuPlaybackStop")
        self.session.ask("thaw")

    def check_cancelled_save(self):
        opened(self.session, self.folder, Score())
        self.session.ask("do", "mnuExportText")
        for answer in (("answer", "file"), ("answer", "file", self.folder / "missing" / "saved.txt")):
            self.session.ask(*answer)
            self.session.ask("click", "frmExport.Command1")
            self.same("a save that fails is silent", self.session.boxes(), [])
            self.same("and the text stays", "frmExport" in self.session.visible_forms(), True)
        self.session.ask("click", "frmExport.Command2")
        self.same("Cancel unloads", self.session.visible_forms(), ["frmMain"])
        self.same("temp.txt remains", self.text.temporary.exists(), True)
        self.same("the main form is enabled", self.session.value("frmMain", "enabled"), True)

    def check_edited_text(self):
        self.session.ask("do", "mnuExportText")
        for text in ("My own text\nof ½ lines ", "no end", ""):
            self.session.ask("set", "frmExport.txtfile", text)
            self.text.save(f"edited text {text!r}", text)
            self.session.ask("do", "mnuExportText")
        self.session.ask("click", "frmExport.Command2")


class ImportEdges:
    def __init__(self, session, findings, folder, new_document):
        self.session, self.findings, self.folder = session, findings, folder
        self.new_document = new_document
        self.imports = ImportChecks(session, findings, folder, new_document)

    def same(self, where, found, expected):
        self.findings.same("import edges", where, found, expected)

    def imported(self, name, text):
        self.imports.check("fields of edge imports", name, text.encode("cp1252"))
        return self.session.ask("doc")

    def check_plain(self):
        staff = " 7|" + (">>|" * 31 + "12-" + "  |" * 31 + " 0|") + (">>|" * 32) * 3 + ">>|" * 31 + "|"
        document = self.imported("plain.trx", HEADER + BLANK_STAFF + TAIL)
        self.same("column counter", document["ColumnInStaff"], 32)
        self.same("tuning", document["TuningTable"], [13] * 6)
        self.same("names", (document["Title"], document["Author"]), ("Title", "Anna"))
        self.imported("frets.trx", HEADER + staff + TAIL)

    def check_cut_by_comma(self):
        for end in (",", "\r\n"):
            self.imported("comma.trx", HEADER + BLANK_STAFF[:50] + end + BLANK_STAFF[50:] + TAIL)
            document = self.imported("author.trx", HEADER + BLANK_STAFF + "09Anna" + end + "Bee" + TAIL)
            self.same("the author is cut", document["Author"], "Anna")

    def check_quotes(self):
        document = self.imported("quoted.trx", '"' + HEADER + BLANK_STAFF + '08Bee, Ann05Ti,le",tail')
        self.same("quoted names", (document["Author"], document["Title"]), ("Bee, Ann", "Ti,le"))
        document = self.imported("inside.trx", HEADER + BLANK_STAFF + '10"Bee, Ann"05Ti,le')
        self.same("quotes inside", (document["Author"], document["Title"]), ('"Bee, Ann"', "Ti"))

    def check_separators(self):
        for column in (0, 1, 15, 29, 30, 31):
            string = ">>|" * column + " #|" + " 5|" * (31 - column)
            staff = string * 6 + "|"
            self.imported(f"separator{column}.trx", HEADER + staff + TAIL)
            self.imported(f"two{column}.trx", HEADER.replace("00001", "00002") + staff + BLANK_STAFF + TAIL)

    def check_empty_item(self):
        self.imported("empty_item.trx", ",024")
        self.imported("empty_line.trx", "\r\n024")
        self.imported("empty_file.trx", "")

    def check_no_file(self):
        for answer in ((), (self.folder / "no such file.trx",)):
            opened(self.session, self.folder, Score(title="Old", tracks=[Track(), Track()], staves=2))
            self.session.choosers()
            self.session.ask("answer", "file", *answer)
            self.session.ask("do", "mnuImportTR211")
            chooser = self.session.choosers()[0]
            self.same("chooser", (chooser["kind"], chooser["default"], chooser["filter"]),
                      ("open", "trx", "Tabrova 2.1x Tablatures|*.trx"))
            found = self.session.ask("doc")
            self.same(f"a new document remains after {answer}", {**found, "LastColumn": 31},
                      self.new_document)

    def check_save_asks(self):
        path = self.folder / "save.trx"
        path.write_bytes((HEADER + BLANK_STAFF + TAIL).encode())
        import_file(self.session, path)
        self.session.choosers()
        self.session.ask("answer", "file")
        self.session.ask("do", "mnuFileSave")
        self.same("Save asks for a name", [chooser["kind"] for chooser in self.session.choosers()], ["save"])

    def check_properties_unloaded(self):
        self.session.ask("do", "mnuFileProperties")
        self.session.ask("set", "frmFileProperties.txtTitle", "typed")
        document = self.imported("properties.trx", HEADER + BLANK_STAFF + TAIL)
        self.same("title of the file", document["Title"], "Title")
        self.same("properties are unloaded", self.session.tell("get", "frmFileProperties.txtTitle").get("error"),
                  "not loaded")


def run_all(checks):
    for name in [name for name in type(checks).__dict__ if name.startswith("check_")]:
        getattr(checks, name)()


def check_midi_edges(session, findings, folder):
    run_all(MidiEdges(session, findings, folder))


def check_text_edges(session, findings, text, folder):
    run_all(TextEdges(session, findings, text, folder))


def check_import_edges(session, findings, folder, new_document):
    run_all(ImportEdges(session, findings, folder, new_document))
