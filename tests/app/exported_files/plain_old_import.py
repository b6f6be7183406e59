"""What the reader of the old one-line format leaves behind."""

from plain_numbers import Unconvertible, number, short_integer, without_fraction
from score import CODE_PAGE, COLUMNS_IN_STAFF



class ImportedDocument:
    """The fields that an import touches, as a new document has them."""

    def __init__(self):
        self.title, self.author = "Untitled", "Anonymous"
        self.instrument = "24"
        self.tempo = 480
        self.staves = 1
        self.tuning = [13] * 6
        self.column_in_staff = 0
        self.current_column = 0
        self.complete = False
        self.resize(1)

    def resize(self, staves):
        columns = staves * COLUMNS_IN_STAFF
        if columns < 0:
            raise Unconvertible(str(staves))
        self.notes = [[""] * 6 for _ in range(columns)]
        self.marks = [""] * columns

    @property
    def columns(self):
        return len(self.marks)


def first_item(content):
    """The text up to the first line end or the first comma outside double quotes."""
    text = content.decode(CODE_PAGE)
    inside_quotes = False
    end = len(text)
    for place, character in enumerate(text):
        if character == '"':
            inside_quotes = not inside_quotes
        elif character in "\r\n" or character == "," and not inside_quotes:
            end = place
            break
    item = text[:end]
    if len(item) >= 2 and item[0] == item[-1] == '"':
        return item[1:-1]
    return item


class FieldCutter:
    def __init__(self, text):
        self.text = text

    def cut(self, width):
        if width < 0:
            raise Unconvertible(str(width))
        taken, self.text = self.text[:width], self.text[width:]
        return taken

    def cut_integer(self, width):
        return short_integer(number(self.cut(width)))


class OldImport:
    def __init__(self, content):
        self.document = ImportedDocument()
        self.content = content
        self.gaps = []

    def run(self):
        try:
            self.read()
        except (Unconvertible, IndexError):
            return self.document
        self.document.complete = True
        return self.document

    def read(self):
        self.fields = FieldCutter(first_item(self.content))
        self.read_header()
        self.document.resize(self.document.staves)
        for staff in range(self.document.staves):
            self.read_staff(staff)
        self.document.author = self.fields.cut(self.fields.cut_integer(2))
        self.document.title = self.fields.cut(self.fields.cut_integer(2))
        self.close_gaps()
        self.document.current_column = 0

    def read_header(self):
        document = self.document
        document.instrument = self.fields.cut(3)
        document.tempo = self.fields.cut_integer(3)
        document.staves = short_integer(without_fraction(number(self.fields.cut(5))))
        for row in range(5, -1, -1):
            document.tuning[row] = short_integer(number(self.fields.cut(2)) + 1)

    def read_staff(self, staff):
        for row in range(6):
            self.document.column_in_staff = 0
            while self.document.column_in_staff < COLUMNS_IN_STAFF:
                self.read_cell(staff, row, self.document.column_in_staff)
                self.document.column_in_staff += 1
        self.fields.cut(1)

    def read_cell(self, staff, row, column_in_staff):
        column = staff * COLUMNS_IN_STAFF + column_in_staff
        text = self.fields.cut(2)
        if text == " #":
            self.document.marks[column + 1] = "."
            self.gaps.append(COLUMNS_IN_STAFF - column_in_staff)
        elif text not in (">>", "  "):
            self.document.notes[column][row] = str(without_fraction(number(text)))
        self.fields.cut(1)

    def close_gaps(self):
        for gap in self.gaps:
            for column in range(self.document.columns):
                if self.document.marks[column] != "":
                    self.slide(column, gap - 1)

    def slide(self, first, times):
        for _ in range(times):
            self.document.column_in_staff = 0
            for column in range(first, self.document.columns):
                self.slide_column(column)

    def slide_column(self, column):
        document = self.document
        if column + 1 >= document.columns:
            return
        if document.marks[column] == "":
            document.notes[column] = list(document.notes[column + 1])
        document.marks[column] = document.marks[column + 1]


def expected_fields(document, new_document):
    """The driver's account of the document, made from that of a new one."""
    fields = dict(new_document)
    fields.update(
        Title=document.title, Author=document.author, Tempo=document.tempo,
        StaffCount=document.staves, TuningTable=document.tuning,
        TrackInstruments=[document.instrument], ColumnInStaff=document.column_in_staff,
        CurrentColumn=document.current_column, ColumnCapacity=document.columns,
        NoteGrid=[[column, row, text] for column, strings in enumerate(document.notes)
                  for row, text in enumerate(strings) if text != ""],
        BarMarkRow=[[column, mark] for column, mark in enumerate(document.marks) if mark != ""])
    if document.complete:
        fields["LastColumn"] = document.columns - 1
    else:
        fields.pop("LastColumn")
    return fields
