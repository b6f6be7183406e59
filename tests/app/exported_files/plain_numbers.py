"""Numbers as the program's texts hold them."""

import re
from fractions import Fraction

_DECIMAL = re.compile(r"[+-]?(\d+(\.\d*)?|\.\d+)")


class Unconvertible(Exception):
    pass


def number(text):
    stripped = text.strip(" ")
    if not _DECIMAL.fullmatch(stripped):
        raise Unconvertible(text)
    return Fraction(stripped if stripped[-1] != "." else stripped[:-1])


def half_to_even(value):
    return round(Fraction(value))


def short_integer(value):
    """A 16-bit integer; a value outside its range does not convert."""
    rounded = half_to_even(value)
    if not -32768 <= rounded <= 32767:
        raise Unconvertible(str(value))
    return rounded


def without_fraction(value):
    return int(value)
