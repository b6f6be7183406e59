"""An exported file as two foreign programs read it, in the shape of the model's events."""

import subprocess

import mido

from plain_midi_export import division, tempo_microseconds


def mido_account(path):
    """Format, division, and each file track's events, the end mark left out."""
    midi_file = mido.MidiFile(str(path))
    tracks = [mido_track(track) for track in midi_file.tracks]
    return midi_file.type, midi_file.ticks_per_beat, tracks


def mido_track(track):
    events = []
    for message in track:
        if message.is_meta:
            events.append((message.time, message.type, getattr(message, "tempo", None)))
        else:
            events.append((message.time, *message.bytes()))
    return events


def expected_mido_account(tempo, file_tracks):
    conductor = [(0, "set_tempo", tempo_microseconds(tempo)), (0, "end_of_track", None)]
    tracks = [[bare_event(event) for event in events] + [(0, "end_of_track", None)]
              for events in file_tracks]
    return 1, division(tempo), [conductor] + tracks


def bare_event(event):
    delta, status, data1, data2 = event
    return (delta, status, data1) if status >> 4 == 0xC else event


def csv_lines(path):
    run = subprocess.run(["midicsv", str(path)], capture_output=True, text=True)
    return run.stdout.splitlines(), run.stderr


def expected_csv_lines(tempo, file_tracks):
    lines = [f"0, 0, Header, 1, {len(file_tracks) + 1}, {division(tempo)}", "1, 0, Start_track",
             f"1, 0, Tempo, {tempo_microseconds(tempo)}", "1, 0, End_track"]
    for number, events in enumerate(file_tracks, start=2):
        lines += csv_track(number, events)
    return lines + ["0, 0, End_of_file"]


def csv_track(number, events):
    lines = [f"{number}, 0, Start_track"]
    time = 0
    for delta, status, data1, data2 in events:
        time += delta
        lines.append(f"{number}, {time}, " + csv_event(status, data1, data2))
    return lines + [f"{number}, {time}, End_track"]


def csv_event(status, data1, data2):
    kind, channel = status >> 4, status & 15
    if kind == 0xC:
        return f"Program_c, {channel}, {data1}"
    name = {0x9: "Note_on_c", 0x8: "Note_off_c"}[kind]
    return f"{name}, {channel}, {data1}, {data2}"
