"""A document as plain data, and its file."""

from dataclasses import dataclass, field

COLUMNS_IN_STAFF = 32
CODE_PAGE = "cp1252"


@dataclass
class Track:
    name: str = "Untitled Track"
    volume: str = "127"
    guitar: bool = True
    instrument: str = "24"
    tuning: list = field(default_factory=lambda: [13] * 6)


@dataclass
class Score:
    title: str = "Untitled"
    author: str = "Anonymous"
    prevent_reverberations: int = 1
    tempo: int = 480
    notes: str = ""
    double_time: bool = False
    staves: int = 1
    tracks: list = field(default_factory=lambda: [Track()])
    cells: dict = field(default_factory=dict)
    techniques: dict = field(default_factory=dict)
    marks: dict = field(default_factory=dict)

    @property
    def columns(self):
        return self.staves * COLUMNS_IN_STAFF

    @property
    def rows(self):
        return len(self.tracks) * 6

    def cell(self, column, row):
        return self.cells.get((column, row), "")

    def technique(self, column, row):
        return self.techniques.get((column, row), "")

    def mark(self, column):
        return self.marks.get(column, "")

    def tuning(self, row):
        return self.tracks[row // 6].tuning[row % 6]


def printed(value):
    return f"{value:d} " if value < 0 else f" {value:d} "


def header_lines(score):
    return [score.title, score.author, str(score.prevent_reverberations), printed(score.tempo),
            score.notes, str(score.double_time), printed(len(score.tracks)), printed(1),
            printed(1), printed(score.staves)]


def track_lines(track):
    return [track.name, track.volume, str(track.guitar), track.instrument]


def grid_lines(score, read_cell):
    return [read_cell(column, row) for column in range(score.columns) for row in range(score.rows)]


def file_lines(score):
    lines = header_lines(score)
    for track in score.tracks:
        lines += track_lines(track)
    lines += [printed(score.tuning(row)) for row in range(score.rows)]
    lines += grid_lines(score, score.cell)
    lines += grid_lines(score, score.technique)
    return lines + [score.mark(column) for column in range(score.columns)]


def write_score(score, path):
    content = "".join(line + "\r\n" for line in file_lines(score))
    path.write_bytes(content.encode(CODE_PAGE))


def read_tracks(lines, count):
    return [Track(lines.pop(0), lines.pop(0), lines.pop(0).strip() == "True", lines.pop(0))
            for _ in range(count)]


def read_grid(score, lines):
    filled = {}
    for column in range(score.columns):
        for row in range(score.rows):
            text = lines.pop(0)
            if text:
                filled[column, row] = text
    return filled


def read_score(path):
    lines = path.read_bytes().decode(CODE_PAGE).split("\r\n")
    header, lines = lines[:10], lines[10:]
    score = Score(title=header[0], author=header[1], tempo=int(header[3]),
                  double_time=header[5] == "True", staves=int(header[9]))
    score.tracks = read_tracks(lines, int(header[6]))
    for track in score.tracks:
        track.tuning = [int(lines.pop(0)) for _ in range(6)]
    lines.reverse()
    stack = ReversedLines(lines)
    score.cells = read_grid(score, stack)
    score.techniques = read_grid(score, stack)
    score.marks = {column: stack.pop(0) for column in range(score.columns)}
    return score


class ReversedLines:
    """Takes lines from the front of a text that is kept from its end."""

    def __init__(self, lines):
        self.lines = lines

    def pop(self, _):
        return self.lines.pop()
