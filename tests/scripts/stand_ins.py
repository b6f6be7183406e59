"""Stand-ins for the tools that a script calls: small scripts in a folder of the test's own."""
import os


def write_script(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as script:
        script.write("#!/bin/sh\n" + text + "\n")
    os.chmod(path, 0o755)


def lines_of(path):
    """Nothing of a file that is not there."""
    try:
        with open(path, encoding="utf-8") as file:
            return file.read().split("\n")[:-1]
    except FileNotFoundError:
        return []
