"""Files of the old one-line format, whole and damaged, by chance."""

from score import CODE_PAGE, COLUMNS_IN_STAFF

FILLERS = "-|. ;=A"
HARMLESS_LETTERS = "abcghkmxyzXYZ"
HEADER_WIDTHS = [3, 3, 5, 2, 2, 2, 2, 2, 2]


def padded(chance, value, width):
    text = str(value)
    return chance.choice([text.rjust(width), text.rjust(width, "0"), text.ljust(width)])


def random_staff_count(chance, staves):
    return padded(chance, chance.choice([f"{staves}", f"{staves}", f"{staves}.9", f"{staves}.5"]), 5)


def random_header(chance, staves):
    tunings = [chance.randint(0, 24) for _ in range(6)] if chance.random() < 0.5 else [12] * 6
    return [padded(chance, chance.randint(0, 127), 3), padded(chance, chance.randint(20, 999), 3),
            random_staff_count(chance, staves)] + [padded(chance, value, 2) for value in tunings]


def random_old_cell(chance, density):
    if chance.random() >= density:
        return chance.choice([">>", "  "])
    return chance.choice([str(chance.randint(0, 29)).rjust(2), str(chance.randint(0, 29)).ljust(2),
                          str(chance.randint(0, 29)).rjust(2, "0"), ".5", ".9", "7.", "-4", "+6"])


def separator_places(chance, staves):
    """Rows of the separators by staff and column."""
    count = chance.choice([0, 0, 1, 2, 3, 4, 8])
    places = {}
    for _ in range(count):
        staff, column = chance.randrange(staves), chance.randrange(COLUMNS_IN_STAFF)
        if staff == staves - 1:
            column = min(column, COLUMNS_IN_STAFF - 2)
        places[staff, column] = chance.choice([range(6), range(6), [chance.randrange(6)], [1, 4]])
    return places


def random_staves(chance, staves):
    """The cells and fillers, one field each."""
    density = chance.choice([0.1, 0.4, 0.9])
    places = separator_places(chance, staves)
    fields = []
    for staff in range(staves):
        for row in range(6):
            for column in range(COLUMNS_IN_STAFF):
                separated = row in places.get((staff, column), ())
                fields.append(" #" if separated else random_old_cell(chance, density))
                fields.append(chance.choice(FILLERS))
        fields.append(chance.choice(FILLERS))
    return fields


def random_text(chance):
    return chance.choice(["", "Anna", "A song of two rivers", " leading", "trailing ", "für Élise",
                          "the letters of a title that is long enough", "it's"])


def text_fields(chance, text):
    return [padded(chance, len(text), 2), text]


def old_file_fields(chance):
    staves = chance.choice([1, 1, 2, 3])
    return (random_header(chance, staves) + random_staves(chance, staves)
            + text_fields(chance, random_text(chance)) + text_fields(chance, random_text(chance)))


def encoded(text):
    return text.encode(CODE_PAGE)


def whole_file(chance):
    text = "".join(old_file_fields(chance))
    if chance.random() < 0.15:
        text = '"' + text + '"'
    return encoded(text + chance.choice(["", "\r\n", "\n", "\r\nsecond line", ",behind a comma"]))


def cut_at_boundary(chance):
    fields = old_file_fields(chance)
    kept = chance.choice([chance.randint(0, 10), chance.randrange(len(fields)), len(fields) - chance.randint(1, 4)])
    return encoded("".join(fields[:kept]))


def cut_inside(chance):
    text = "".join(old_file_fields(chance))
    return encoded(text[:chance.choice([chance.randint(0, 25), chance.randrange(len(text)), len(text) - chance.randint(1, 9)])])


def with_inserted(chance, pieces):
    text = "".join(old_file_fields(chance))
    place = chance.choice([chance.randint(0, 24), chance.randrange(len(text)), len(text)])
    return encoded(text[:place] + chance.choice(pieces) + text[place:])


def with_comma(chance):
    return with_inserted(chance, [","])


def with_line_end(chance):
    return with_inserted(chance, ["\r\n", "\n", "\r"])


def with_letters(chance):
    text = list("".join(old_file_fields(chance)))
    for _ in range(chance.randint(1, 3)):
        place = chance.choice([chance.randint(3, 22), chance.randrange(len(text))])
        text[place] = chance.choice(HARMLESS_LETTERS)
    return encoded("".join(text))


def with_separator_in_last_column(chance):
    fields = old_file_fields(chance)
    staff_fields = 6 * COLUMNS_IN_STAFF * 2 + 1
    staves = (len(fields) - len(HEADER_WIDTHS)) // staff_fields
    staff = chance.choice([staves - 1, staves - 1, chance.randrange(staves)])
    row = chance.randrange(6)
    last_cell = len(HEADER_WIDTHS) + staff * staff_fields + (row * COLUMNS_IN_STAFF + 31) * 2
    fields[last_cell] = " #"
    return encoded("".join(fields))


def with_negative_number(chance):
    fields = old_file_fields(chance)
    place = chance.choice([1, 2, 3, 5, 8, len(fields) - 4, len(fields) - 2])
    width = len(fields[place])
    fields[place] = "-" + chance.choice(["1", "2"]).rjust(width - 1, "0")
    return encoded("".join(fields))


def with_quotes(chance):
    text = "".join(old_file_fields(chance))
    if chance.random() < 0.3:
        return encoded('"' + text + '",more')
    places = sorted(chance.randrange(len(text) + 1) for _ in range(chance.randint(1, 3)))
    for place in reversed(places):
        text = text[:place] + chance.choice(['"', '","']) + text[place:]
    return encoded(text)


DAMAGES = [cut_at_boundary, cut_inside, with_comma, with_line_end, with_letters,
           with_separator_in_last_column, with_negative_number, with_quotes]
