"""The events that an export of queued tracks writes, step by step."""

from fractions import Fraction

from plain_numbers import Unconvertible, half_to_even, number, short_integer

STRING_OFFSETS = [51, 46, 42, 37, 32, 27]
PERCUSSION_OFFSET = -13
CLOSING_MARKS = {f"r{count}": count for count in range(1, 16)}
NO_JUMP = ("r", ".", "")


class EndsWithoutFile(Exception):
    pass


class ComesRoundForEver(Exception):
    pass


class TooLong(Exception):
    pass


def data_byte(value):
    return min(127, max(0, half_to_even(value)))


def unit(tempo):
    return half_to_even(Fraction(60000, tempo))


def division(tempo):
    return 4 * unit(tempo)


def tempo_microseconds(tempo):
    return half_to_even(Fraction(4 * 60000 * 1000, tempo))


def status_digit(position):
    return "012345678ABCDEF"[position]


class MidiExport:
    def __init__(self, score, queue, note_offs, limit=None):
        self.score = score
        self.queue = queue
        self.note_offs = note_offs
        self.limit = limit
        self.strict = True
        self.offset = 0
        self.open_column = self.repeats_left = 0
        self.in_repeat = False
        self.status = self.data1 = self.data2 = self.delta = 0

    def file_tracks(self):
        """The file tracks behind the conductor track: events of delta, status, data1, data2."""
        try:
            return [self.track_events(position) for position in range(len(self.queue))]
        except Unconvertible as cause:
            raise EndsWithoutFile(str(cause)) from cause

    def attempt(self, statement, *arguments):
        try:
            statement(*arguments)
        except Unconvertible:
            if self.strict:
                raise

    def add_event(self):
        self.events.append((self.delta, self.status, data_byte(self.data1), data_byte(self.data2)))
        if self.limit and len(self.events) > self.limit:
            raise TooLong()

    def track_events(self, position):
        self.events = []
        self.position = position
        self.track = int(self.queue[position])
        self.stored = [0] * 7
        self.digit = status_digit(position)
        self.begin_track()
        self.column_loop()
        return self.events

    def begin_track(self):
        track = self.score.tracks[self.track]
        if not track.guitar:
            self.digit = "9"
            return
        self.status = int("C" + self.digit, 16)
        self.data1 = number(track.instrument)
        self.data2 = self.delta = 0
        self.add_event()

    def column_loop(self):
        column = 0
        seen = set()
        last_column = self.score.columns - 1
        while column < last_column:
            state = (column, self.open_column, self.repeats_left, self.in_repeat)
            if state in seen:
                raise ComesRoundForEver()
            seen.add(state)
            column = self.column_step(column)

    def column_step(self, column):
        if self.score.mark(column) == "r":
            self.open_column = column
        jump_mark = self.holds_jump_mark(column)
        for string in range(6, -1, -1):
            self.row_step(column, string, jump_mark)
        self.strict = False
        return self.after_marks(column + 1)

    def holds_jump_mark(self, column):
        return any(self.score.cell(column, row) == ">" for row in range(self.score.rows))

    def row_step(self, column, string, jump_mark):
        row = self.track * 6 + string
        self.choose_offset(string)
        carries_time = string == 5 and not jump_mark
        delta = unit(self.score.tempo) if carries_time else 0
        self.status = int("9" + self.digit, 16)
        cell = self.score.cell(column, row)
        if cell in ("", "x", ">"):
            self.data1 = self.data2 = 0
            self.delta = delta
        else:
            self.attempt(self.set_pitch, cell, row)
            self.attempt(self.set_velocity, self.score.technique(column, row))
            self.delta = delta
        self.add_event()
        if self.note_offs:
            self.note_off(string)
        if cell not in ("", ">"):
            self.attempt(self.store_pitch, cell, row, string)

    def choose_offset(self, string):
        if not self.score.tracks[self.track].guitar:
            self.offset = PERCUSSION_OFFSET
        elif string < 6:
            self.offset = STRING_OFFSETS[string]

    def pitch(self, cell, row):
        return number(cell) + self.score.tuning(row) + self.offset

    def set_pitch(self, cell, row):
        self.data1 = self.pitch(cell, row)

    def set_velocity(self, technique):
        volume = number(self.score.tracks[self.track].volume)
        self.data2 = half_to_even(volume / 2 if technique == "g" else volume)

    def store_pitch(self, cell, row, string):
        self.stored[string] = short_integer(self.pitch(cell, row))

    def note_off(self, string):
        self.status = int("8" + self.digit, 16)
        if self.track == self.position:
            self.data1 = self.stored[string]
        self.data2 = self.delta = 0
        self.add_event()

    def after_marks(self, column):
        mark = self.score.mark(column)
        if mark in CLOSING_MARKS and not self.in_repeat and self.repeats_left == 0:
            self.repeats_left = CLOSING_MARKS[mark]
            self.in_repeat = True
        if self.in_repeat and self.repeats_left >= 1 and mark not in NO_JUMP:
            self.repeats_left -= 1
            column = self.open_column
        mark = self.score.mark(column)
        if self.in_repeat and self.repeats_left == 0 and mark not in NO_JUMP:
            self.in_repeat = False
        return column
