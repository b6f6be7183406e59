// What the real window shows, as text.
#include "tests/tools/chord_manager/checked_chord_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <sstream>

namespace tabrova::testing {

namespace {

constexpr QRgb Plain = 0xFF549BF1;
constexpr QRgb Red = 0xFFFF0000;
constexpr QRgb Black = 0xFF000000;

const char* const MarkNames[] = {"shpLowe", "shpA", "shpD", "shpG", "shpB", "shpE"};
const char* const PreviewNames[] = {"shplowe2", "shpA2", "shpd2", "shpg2", "shpb2", "shpe2"};
const char* const FretNames[] = {"tbLowe", "tbA", "tbD", "tbG", "TbB", "tbE"};
const char* const EntryNames[] = {"txt_addcrdL", "txt_addcrda", "txt_addcrdD",
                                  "txt_addcrdg", "txt_addcrdb", "txt_addcrde"};
const char* const StaffNames[] = {"mnA",  "mnAs", "mnB", "mnC",  "mnCs", "mnD",
                                  "mnDs", "mnE",  "mnF", "mnFs", "mnG",  "mnGs"};

QString member(const QString& array, int index) { return array + "(" + QString::number(index) + ")"; }

int chosenRow(const QListWidget& list) {
    return list.selectedItems().isEmpty() ? -1 : list.row(list.selectedItems().first());
}

char markSign(const QWidget& mark) {
    const QRgb color = mark.palette().color(mark.backgroundRole()).rgb();
    if (color != Plain && color != Red) return '?';
    if (mark.isHidden()) return color == Red ? 'r' : '.';
    return color == Red ? 'R' : 'O';
}

char boxSign(const QCheckBox& box) {
    const QRgb color = box.palette().color(QPalette::WindowText).rgb();
    if (color != Black && color != Red) return '?';
    if (!box.isChecked()) return color == Red ? 'r' : '-';
    return color == Red ? 'R' : 'x';
}

} // namespace

std::string CheckedChordWindow::title() const { return at<QLabel>("lblTitle").text().toStdString(); }

std::string CheckedChordWindow::fretsText() const {
    std::string text;
    for (const char* name : FretNames)
        text += "[" + at<QLabel>(name).text().toStdString() + "]";
    return text;
}

std::string CheckedChordWindow::marksText() const {
    std::string text;
    for (const char* name : MarkNames) {
        for (int fret = 0; fret < 7; ++fret)
            text += markSign(at(member(name, fret)));
        text += ' ';
    }
    return text;
}

std::string CheckedChordWindow::keyBoxesText() const {
    std::string text;
    for (int note = 0; note < 12; ++note)
        text += boxSign(at<QCheckBox>(member("chkKey", note)));
    return text;
}

std::string CheckedChordWindow::staffText() const {
    std::string text;
    for (const char* name : StaffNames)
        if (!at(name).isHidden()) text += std::string(name) + " ";
    return text;
}

std::string CheckedChordWindow::constructionText() const {
    std::string text;
    for (int interval = 0; interval < 22; ++interval) {
        const Qt::CheckState state = at<QCheckBox>(member("cCheck", interval)).checkState();
        text += state == Qt::Checked ? '1' : state == Qt::Unchecked ? '0' : '2';
    }
    return text;
}

std::string CheckedChordWindow::previewText() const {
    std::string text;
    for (const char* name : PreviewNames) {
        for (int mark = 0; mark < 8; ++mark)
            text += at(member(name, mark)).isHidden() ? '.' : 'O';
        text += ' ';
    }
    return text;
}

std::string CheckedChordWindow::entriesText() const {
    std::string text;
    for (const char* name : EntryNames)
        text += "[" + at<QLineEdit>(name).text().toStdString() + "]";
    return text;
}

std::string CheckedChordWindow::listText(const QString& name) const {
    const auto& list = at<QListWidget>(name);
    std::string text;
    for (int row = 0; row < list.count(); ++row)
        text += list.item(row)->text().toStdString() + "|";
    return text + " chosen " + std::to_string(chosenRow(list));
}

std::string CheckedChordWindow::highlightText() const {
    std::string text;
    for (int band = 0; band < 6; ++band)
        if (!at(member("shpStrum", band)).isHidden()) text += std::to_string(band);
    return text.empty() ? "-1" : text;
}

std::string CheckedChordWindow::timerText(const QString& name) const {
    return (timer(name).timerEnabled() ? "on " : "off ") + std::to_string(timer(name).timerInterval());
}

std::string CheckedChordWindow::described() const {
    std::ostringstream text;
    text << "title " << title() << "\nkey " << chosenRow(at<QListWidget>("lstKeys")) << "\nstyle "
         << at<QComboBox>("Combo1").currentIndex() << "\ntypes " << listText("lstTypes") << "\nchords "
         << listText("lst_Chords") << "\nmarks " << marksText() << "\nnotes " << keyBoxesText() << "\nstaff "
         << staffText() << "\nconstruction " << constructionText() << "\nfrets " << fretsText();
    text << "\nentries " << entriesText() << "\npreview " << previewText() << "\nname "
         << at<QLineEdit>("txt_NewChordName").text().toStdString() << "\nfind "
         << at<QLineEdit>("txt_Find").text().toStdString() << "\nplayer " << timerText("tmrChordPlayer")
         << "\nstopper " << timerText("tmrChordStopper") << "\nhighlight " << highlightText() << "\nadder "
         << !at("picAdder").isHidden() << "\nchecks ";
    for (const char* name : {"chkPlayNow", "chkNotebyNote", "chkTranspose"})
        text << at<QCheckBox>(name).isChecked();
    text << "\n";
    return text.str();
}

} // namespace tabrova::testing
