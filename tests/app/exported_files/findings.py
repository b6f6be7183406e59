"""What was compared, and what differed."""

from collections import Counter


class Findings:
    def __init__(self):
        self.compared = Counter()
        self.differences = []

    def same(self, topic, where, found, expected, points=1):
        self.compared[topic] += points
        if found == expected:
            return True
        self.differences.append(f"{topic}: {where}\n{first_difference(found, expected)}")
        return False

    def print_all(self, most=200):
        for text in self.differences[:most]:
            print(text)
        if len(self.differences) > most:
            print(f"... and {len(self.differences) - most} more")
        for topic, count in sorted(self.compared.items()):
            print(f"{topic}: {count} points compared")
        print(f"{len(self.differences)} differences")


def shown(value):
    text = repr(value)
    return text if len(text) <= 300 else text[:300] + "..."


def first_difference(found, expected):
    if isinstance(found, dict) and isinstance(expected, dict):
        keys = sorted(key for key in found.keys() | expected.keys() if found.get(key) != expected.get(key))
        return "\n".join(f"    {key}:\n{first_difference(found.get(key), expected.get(key))}" for key in keys)
    if isinstance(found, (list, tuple)) and isinstance(expected, (list, tuple)) and found and expected:
        for place, (one, other) in enumerate(zip(found, expected)):
            if one != other:
                return f"    at {place} of {len(found)} ({len(expected)} expected):\n" + first_difference(one, other)
    return f"    found    {shown(found)}\n    expected {shown(expected)}"
