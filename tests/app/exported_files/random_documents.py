"""Scores by chance, the same for the same seed."""

from score import Score, Track

TECHNIQUES = (["h", "s", "v", "w", "d", "m", "f", "t", "l", "o", "r", ".", "²"] + ["g"] * 6
              + [f"{side}{size}" for side in "pb" for size in ("0.5", "1.0", "1.5", "2.0", "2.5", "3.0")])
CLOSING = [f"r{count}" for count in range(1, 16)]
NAMES = ["Lead", "Rhythm", "Bass, low", 'The "loud" one', "Gitarre für Übung", "", "½ step",
         "two  blanks", " edges ", "wide\u00a0blank", "x²"]
ODD_MARKS = ["r16", "r0", "R", "||"]
ODD_CELLS = ["abc", "1a", "-3", "2.5", "3.5", "127", "300", " 7 ", ">>", "X"]


def pick_track_count(chance):
    return chance.choice([1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 4, 5, 7, 18])


def random_tuning(chance):
    style = chance.random()
    if style < 0.5:
        return [13] * 6
    if style < 0.85:
        return [chance.randint(1, 25) for _ in range(6)]
    return [chance.randint(-30, 70) for _ in range(6)]


def random_volume(chance, odd):
    if odd and chance.random() < 0.3:
        return chance.choice(["loud", "", "300", "99.5"])
    return str(chance.randint(60, 127))


def random_track(chance, odd):
    return Track(name=chance.choice(NAMES), volume=random_volume(chance, odd),
                 guitar=chance.random() < 0.7, instrument=str(chance.randint(0, 127)),
                 tuning=random_tuning(chance))


def random_cell(chance, guitar, odd):
    draw = chance.random()
    if odd and draw < 0.08:
        return chance.choice(ODD_CELLS)
    if draw < 0.12:
        return "x"
    if draw < 0.15:
        return ">"
    return str(chance.randint(0, 29) if guitar else chance.randint(35, 81))


def fill_cells(score, chance, odd):
    density = chance.choice([0.0, 0.05, 0.15, 0.4, 0.8])
    jumps = chance.random() < 0.5
    for column in range(score.columns):
        for row in range(score.rows):
            if chance.random() >= density:
                continue
            cell = random_cell(chance, score.tracks[row // 6].guitar, odd)
            if cell == ">" and not jumps:
                continue
            score.cells[column, row] = cell


def calm_first_column(score):
    for row in range(score.rows):
        if score.cell(0, row) not in ("", ">"):
            score.cells[0, row] = "7"


def fill_techniques(score, chance):
    density = chance.choice([0.0, 0.1, 0.5])
    for column in range(score.columns):
        for row in range(score.rows):
            if chance.random() < density:
                score.techniques[column, row] = chance.choice(TECHNIQUES)


def random_mark(chance, style):
    if style == "odd" and chance.random() < 0.3:
        return chance.choice(ODD_MARKS)
    if style == "bars":
        return "."
    if style == "few":
        return chance.choice([".", ".", "r", "r1", "r2"])
    return chance.choice([".", "r", "r"] + CLOSING)


def fill_marks(score, chance):
    style = chance.choice(["none", "bars", "few", "few", "many", "odd"])
    density = {"none": 0, "bars": 0.1, "few": 0.06, "many": 0.2, "odd": 0.2}[style]
    for column in range(score.columns):
        if chance.random() < density:
            score.marks[column] = random_mark(chance, style)


def random_tempo(chance):
    return chance.choice([chance.randint(20, 2000), chance.randint(20, 2000), 480, 20, 2000, 32, 96, 160, 15, 32767])


def random_score(chance):
    odd = chance.random() < 0.2
    score = Score(title=chance.choice(NAMES), author=chance.choice(NAMES), tempo=random_tempo(chance),
                  double_time=chance.random() < 0.3, staves=chance.choice([1, 1, 1, 2, 2, 3, 4]))
    score.tracks = [random_track(chance, odd) for _ in range(pick_track_count(chance))]
    fill_cells(score, chance, odd)
    fill_techniques(score, chance)
    fill_marks(score, chance)
    if chance.random() < 0.8:
        calm_first_column(score)
    return score


def random_queue(chance, track_count):
    order = list(range(track_count))
    if chance.random() < 0.7:
        chance.shuffle(order)
    length = min(15, track_count, chance.choice([1, 2, 2, 3, 4, 15]))
    return order[:length]
