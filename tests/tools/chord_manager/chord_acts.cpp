#include "tests/tools/chord_manager/chord_acts.h"

#include "tools/chord_manager/frmChordTypeCreator.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSlider>

namespace tabrova::testing {

const std::vector<ChordActs::Act>& ChordActs::acts() {
    using A = ChordActs;
    static const std::vector<Act> table = {{8, &A::chooseKey},
                                           {8, &A::chooseType},
                                           {5, &A::chooseStyle},
                                           {2, &A::chooseView},
                                           {2, &A::moveSlider},
                                           {2, &A::togglePlayNow},
                                           {2, &A::toggleNoteByNote},
                                           {1, &A::toggleTranspose},
                                           {1, &A::clickDisplayBox},
                                           {3, &A::newType},
                                           {2, &A::deleteType},
                                           {3, &A::play},
                                           {12, &A::tickPlayer},
                                           {3, &A::tickStopper},
                                           {3, &A::strumPress},
                                           {10, &A::strumMove},
                                           {3, &A::strumRelease},
                                           {8, &A::chooseChord},
                                           {2, &A::find},
                                           {8, &A::enterFret},
                                           {3, &A::nameChord},
                                           {3, &A::saveChord},
                                           {1, &A::deleteChord},
                                           {4, &A::makeChordFile},
                                           {3, &A::makeTypeFile},
                                           {2, &A::removeFile},
                                           {3, &A::readListAgain},
                                           {1, &A::reopen},
                                           {6, &A::addChord},
                                           {2, &A::removeChord},
                                           {6, &A::moveCursor},
                                           {2, &A::changeTrack},
                                           {1, &A::togglePowerChord}};
    return table;
}

std::string ChordActs::act() {
    told_.clear();
    std::size_t all = 0;
    for (const Act& each : acts())
        all += each.weight;
    std::size_t left = below(all);
    for (const Act& each : acts()) {
        if (left < each.weight) {
            (this->*each.run)();
            break;
        }
        left -= each.weight;
    }
    return told_;
}

std::optional<std::size_t> ChordActs::stepRow(const QString& list, const PlainList& rows) {
    const Qt::Key key = oneOf<Qt::Key>({Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End});
    const auto before = static_cast<std::size_t>(rows.row());
    const std::size_t last = rows.rows.size() - 1;
    window->key(list, key);
    told(" by key " + std::to_string(key));
    std::size_t after = key == Qt::Key_Home ? 0 : last;
    if (key == Qt::Key_Down) after = std::min(before + 1, last);
    if (key == Qt::Key_Up) after = before == 0 ? 0 : before - 1;
    return after == before ? std::nullopt : std::optional(after);
}

void ChordActs::chooseKey() {
    const std::size_t row = below(12);
    told("key " + PlainKeys[row]);
    window->clickRow("lstKeys", static_cast<int>(row));
    model->lstKeys_Click(static_cast<int>(row));
}

void ChordActs::chooseType() {
    told("type");
    window->showTabOf("lstTypes");
    if (model->types.rows.empty()) return;
    std::optional<std::size_t> row = below(model->types.rows.size());
    if (model->types.chosen && below(3) == 0)
        row = stepRow("lstTypes", model->types);
    else
        window->clickRow("lstTypes", static_cast<int>(*row));
    if (!row) return;
    told(" " + model->types.rows[*row]);
    model->types.choose(*row);
    model->LoadChordType();
}

void ChordActs::chooseStyle() {
    const bool down = below(2) == 0;
    told(down ? "next style" : "style before");
    window->key("Combo1", down ? Qt::Key_Down : Qt::Key_Up);
    const int style = std::clamp(model->style + (down ? 1 : -1), 0, 2);
    if (style == model->style) return;
    model->style = style;
    model->LoadChordType();
}

void ChordActs::chooseView() {
    model->additionMode = below(3) != 0;
    told("view");
    window->key("lstView", model->additionMode ? Qt::Key_Down : Qt::Key_Up);
}

void ChordActs::moveSlider() {
    const int value = oneOf<int>({50, 700, 630, 51, 333, 699});
    told("slider " + std::to_string(value));
    window->at<QSlider>("nbnSlider").setValue(value);
    model->nbnSlider_Change(value);
}

void ChordActs::togglePlayNow() {
    told("play now");
    window->toggle("chkPlayNow");
    model->playNow = !model->playNow;
}

void ChordActs::toggleNoteByNote() {
    told("note by note");
    window->toggle("chkNotebyNote");
    model->noteByNote = !model->noteByNote;
}

void ChordActs::toggleTranspose() {
    told("transpose");
    window->toggle("chkTranspose");
    model->transpose = !model->transpose;
}

// The boxes only show: a click on one changes nothing.
void ChordActs::clickDisplayBox() {
    const QString name = QString(below(2) == 0 ? "cCheck(%1)" : "chkKey(%1)").arg(below(12));
    told("display box " + name.toStdString());
    window->showTabOf(name);
    const QWidget& box = window->at(name);
    const QPoint place = box.mapTo(&window->form, QPoint(8, box.height() / 2));
    QWidget* under = window->form.childAt(place);
    if (!under || box.visibleRegion().isEmpty()) return told(" out of sight");
    QTest::mouseClick(under, Qt::LeftButton, Qt::NoModifier, under->mapFrom(&window->form, place));
}

void ChordActs::newType() {
    const std::string name = oneOf<std::string>({"Maj", "New Type", "zz", "m", "A&B", "", ".", "..", "a/b",
                                                 "b\\c", "Dir", std::string(300, 'n'), "G\xC3\xB6"});
    told("new type " + name);
    frmChordTypeCreator creator(context, &window->form);
    creator.Form_Load();
    creator.Form_Opened({&window->form});
    creator.findChild<QLineEdit*>("txtName")->setText(QString::fromStdString(name));
    std::string pattern;
    for (int at = 0; at < 22; ++at) {
        const auto state = static_cast<Qt::CheckState>(below(20) == 0 ? 1 : below(2) * 2);
        creator.findChild<QCheckBox*>(QString("cCheck(%1)").arg(at))->setCheckState(state);
        if (state != Qt::PartiallyChecked) pattern += state == Qt::Checked ? "1" : "0";
    }
    const bool saved = below(6) != 0;
    QTest::mouseClick(creator.findChild<QWidget*>(saved ? "Command1" : "Command2"), Qt::LeftButton);
    if (saved) model->SaveChordType(name, pattern);
}

bool ChordActs::answerNext(bool asked) {
    desk.answersYes = below(2) == 0;
    if (asked) boxes.queueAnswer(desk.answersYes ? BoxAnswer::Yes : BoxAnswer::No);
    return desk.answersYes;
}

void ChordActs::deleteType() {
    window->showTabOf("Command3");
    told(answerNext(model->types.chosen.has_value()) ? "delete type" : "do not delete type");
    window->press("Command3");
    model->deleteType();
}

void ChordActs::deleteChord() {
    window->showTabOf("cmd_Delete");
    told(answerNext(model->chords.chosen.has_value()) ? "delete chord" : "do not delete chord");
    window->press("cmd_Delete");
    model->deleteChord();
}

} // namespace tabrova::testing
