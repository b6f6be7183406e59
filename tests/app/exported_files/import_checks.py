"""Whole and damaged files of the old format."""

import random

from old_files import DAMAGES, whole_file
from plain_old_import import OldImport, expected_fields

WHOLE = DAMAGED = 150


def import_file(session, path):
    session.ask("answer", "file", path)
    session.ask("do", "mnuImportTR211")
    return session.boxes()


class ImportChecks:
    def __init__(self, session, findings, folder, new_document):
        self.session, self.findings, self.folder = session, findings, folder
        self.new_document = new_document

    def check(self, topic, name, content):
        path = self.folder / name
        path.write_bytes(content)
        boxes = import_file(self.session, path)
        self.findings.same("import shows no box", name, boxes, [])
        expected = expected_fields(OldImport(content).run(), self.new_document)
        found = self.session.ask("doc")
        if "LastColumn" not in expected:
            found.pop("LastColumn")
        self.findings.same(topic, name, found, expected, len(expected))

    def check_random(self):
        chance = random.Random(211)
        for index in range(WHOLE):
            self.check("fields of whole old files", f"whole{index}.trx", whole_file(chance))
        for index in range(DAMAGED):
            damage = DAMAGES[index % len(DAMAGES)]
            self.check("fields of damaged old files", f"{damage.__name__}{index}.trx", damage(chance))
