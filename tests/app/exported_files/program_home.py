"""A program folder of our own: instrument names and language lines."""

INSTRUMENTS = [f"Voice {program:03d}" for program in range(128)]
MANY_STAVES = "This document has more than 20 staves. The export may take a while."
NO_FILE_CHOSEN = "Please choose a file to export to first."
EXPORTED = "The MIDI file has been exported successfully."
UNSET_FILE = "(Please specify a filename)"
COMPILED = ("Tabrova has compiled this file for you. Please make any alterations you wish, "
            "and then click a button:")
LANGUAGE_LINES = {114: MANY_STAVES, 328: "Export Text File", 329: COMPILED, 333: "Export MIDI File", 334: UNSET_FILE, 342: NO_FILE_CHOSEN,
                  343: EXPORTED}


def write_home(folder):
    (folder / "genmidi.txt").write_text("".join(name + "\r\n" for name in INSTRUMENTS), newline="")
    lines = [LANGUAGE_LINES.get(number, f"Text {number}") for number in range(1, 351)]
    (folder / "lang.trl").write_text("".join(line + "\r\n" for line in lines), newline="")
