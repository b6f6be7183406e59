"""The text tablature of one track."""

from score import CODE_PAGE

WEB_ADDRESS = "https://tabrova.invalid"
SHORT_BENDS = {"b0.5": "b½", "b1.0": "b1", "b1.5": "B½", "b2.0": "B2", "b2.5": "ß½", "b3.0": "B3"}
NOTE_NAMES = ["C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"]
OPEN_STRINGS = [64, 59, 55, 50, 45, 40]
MARK_TEXTS = {"": "      ", ".": "      ", "r": "     |"}
MARK_TEXTS.update({f"r{count}": f"x{count + 1}".rjust(6) for count in range(1, 16)})
BLOCK_COLUMNS = 16


def tuning_names(tuning):
    pitches = [OPEN_STRINGS[string] + tuning[string] - 13 for string in range(5, -1, -1)]
    return " ".join(NOTE_NAMES[pitch % 12] for pitch in pitches)


def head_lines(score, track, date, instrument_names):
    tempo = score.tempo * 2 if score.double_time else score.tempo
    sound = "Percussion."
    if track.guitar:
        sound = "Instrument: Patch: " + instrument_names[int(track.instrument)]
    return [f"{score.title} by {score.author} - Created with Tabrova 3 ({WEB_ADDRESS})", date, " ",
            f"Tempo: {tempo}", "Track: " + track.name, "Tuning: " + tuning_names(track.tuning), sound]


def two_places(text):
    if text == "":
        return "--"
    return text + "-" if len(text) == 1 else text


def string_cell(score, column, row):
    technique = score.technique(column, row)
    bar = "|" if score.mark(column) != "" else "-"
    return (bar + two_places(score.cell(column, row))
            + two_places(SHORT_BENDS.get(technique, technique)) + "-")


def block_lines(score, first_column, track_number):
    columns = range(first_column, first_column + BLOCK_COLUMNS)
    lines = ["".join(string_cell(score, column, track_number * 6 + string) for column in columns)
             for string in range(6)]
    marks = "".join(MARK_TEXTS[score.mark(column)] for column in columns)
    return lines + [marks[5:], " "]


def tablature_lines(score, track_number, date, instrument_names):
    lines = head_lines(score, score.tracks[track_number], date, instrument_names)
    for first_column in range(0, score.columns, BLOCK_COLUMNS):
        lines += block_lines(score, first_column, track_number)
    return lines


def temporary_file(lines):
    return "".join(line + "\r\n" for line in lines).encode(CODE_PAGE)


def box_text(lines):
    return "".join(line + " \n" for line in lines)


def saved_file(text):
    return text.replace("\n", "\r\n").encode(CODE_PAGE)
