"""Random documents and the examples, exported as MIDI files."""

import random

from midi_readers import csv_lines, expected_csv_lines, expected_mido_account, mido_account
from plain_midi_export import ComesRoundForEver, EndsWithoutFile, MidiExport, TooLong
from program_home import EXPORTED
from random_documents import random_queue, random_score
from score import read_score, write_score

SEED = 20261122
DOCUMENTS = 200
MOST_EVENTS_IN_TRACK = 5000
TITLE = "Tabrova for Windows"


def message(text, icon):
    return {"title": TITLE, "text": text, "icon": icon, "buttons": ["ok"], "answer": "ok"}


EXPORTED_BOX = message(EXPORTED, "information")


def queue_tracks(session, queue):
    for track in queue:
        session.ask("set", "frmMIDIExport.lstTracks", track)
        session.ask("click", "frmMIDIExport.Command6")


def choose_file(session, path):
    session.ask("answer", "file", path)
    session.ask("click", "frmMIDIExport.Command1")


def open_fresh_dialog(session):
    """An export that ended silently leaves the dialog loaded with its queue, so it is unloaded first."""
    session.ask("do", "mnuExportMidiFile")
    session.ask("click", "frmMIDIExport.Command3")
    session.ask("do", "mnuExportMidiFile")


def export_midi(session, path, queue, note_offs):
    """Exports through the dialog and returns the boxes that were shown."""
    session.boxes()
    open_fresh_dialog(session)
    session.ask("set", "frmMIDIExport.chkReverb", int(note_offs))
    queue_tracks(session, queue)
    choose_file(session, path)
    session.ask("click", "frmMIDIExport.Command2")
    return session.boxes()


def modelled(score, queue, note_offs, limit=None):
    """The file tracks, or None if the export ends without a file."""
    try:
        return MidiExport(score, queue, note_offs, limit).file_tracks()
    except EndsWithoutFile:
        return None


def compare_file(findings, where, path, tempo, file_tracks):
    events = sum(map(len, file_tracks))
    findings.same("MIDI events read by mido", where, mido_account(path),
                  expected_mido_account(tempo, file_tracks), events)
    lines, complaints = csv_lines(path)
    findings.same("MIDI events read by midicsv", where, lines,
                  expected_csv_lines(tempo, file_tracks), events)
    findings.same("midicsv is content", where, complaints, "")


def check_export(session, findings, where, path, score, queue, note_offs):
    file_tracks = modelled(score, queue, note_offs)
    path.unlink(missing_ok=True)
    boxes = export_midi(session, path, queue, note_offs)
    if file_tracks is None:
        findings.same("exports that end silently", where, (boxes, path.exists()), ([], False))
        return
    findings.same("finish message", where, boxes, [EXPORTED_BOX])
    findings.same("file written", where, path.exists(), True)
    if path.exists():
        compare_file(findings, where, path, score.tempo, file_tracks)


class EndedRepeats:
    """Scores and queues by chance whose repeats come to an end."""

    def __init__(self, seed):
        self.chance = random.Random(seed)
        self.skipped = 0

    def draw(self):
        while True:
            score = random_score(self.chance)
            queue = random_queue(self.chance, len(score.tracks))
            note_offs = self.chance.random() < 0.6
            try:
                modelled(score, queue, note_offs, MOST_EVENTS_IN_TRACK)
            except (ComesRoundForEver, TooLong):
                self.skipped += 1
                continue
            return score, queue, note_offs


def check_random_documents(session, findings, folder, count=DOCUMENTS, also=None):
    """Each document is exported as MIDI, then handed to `also` while it is open."""
    source = EndedRepeats(SEED)
    for index in range(count):
        score, queue, note_offs = source.draw()
        document = folder / f"random{index}.tr3"
        write_score(score, document)
        session.open_document(document)
        where = f"{document.name} queue {queue} note-offs {note_offs} tempo {score.tempo}"
        check_export(session, findings, where, folder / "out.mid", score, queue, note_offs)
        if also:
            also(index, score)
    findings.compared["documents skipped for endless or long repeats"] = source.skipped


def check_examples(session, findings, folder, examples, also=None):
    for index, example in enumerate(examples):
        score = read_score(example)
        session.open_document(example)
        tracks = list(range(len(score.tracks)))
        for queue in (tracks, tracks[::-1]):
            for note_offs in (False, True):
                where = f"{example.name} queue {queue} note-offs {note_offs}"
                check_export(session, findings, where, folder / "example.mid", score, queue, note_offs)
        if also:
            also(index, score)
