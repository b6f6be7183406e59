// The lines of the practice tools.
#include "core/language/form_lines.h"

namespace tabrova {

using namespace language;

namespace {

constexpr LanguageLine ChordTypeCreator[] = {
    title(149, "New Chord Type"),
    caption(150, "Label1", "Name of the Chord Type:"),
    caption(151, "Command1", "Save this Chord Type"),
    caption(152, "Command2", "Cancel"),
    // Its captions differ from the chord manager's in three places, one of them by a letter.
    caption(510, "cCheck(0)", "Root"),
    caption(511, "cCheck(1)", "Minor 2nd"),
    caption(512, "cCheck(2)", "Major 2nd"),
    caption(513, "cCheck(3)", "Minor 3rd"),
    caption(514, "cCheck(4)", "Major 3rd"),
    caption(515, "cCheck(5)", "Perfect 4th"),
    caption(516, "cCheck(6)", "Augmented 4th / Diminished 5th"),
    caption(517, "cCheck(7)", "Perfect 5th"),
    caption(518, "cCheck(8)", "Augmented 5th / Minor 6th"),
    caption(519, "cCheck(9)", "Major 6th / Diminshed 7th"),
    caption(520, "cCheck(10)", "Minor 7th"),
    caption(521, "cCheck(11)", "Major 7th"),
    caption(522, "cCheck(12)", "1st"),
    caption(523, "cCheck(13)", "Minor 9th"),
    caption(524, "cCheck(14)", "Major 9th"),
    caption(525, "cCheck(15)", "Augmented 9th"),
    caption(526, "cCheck(16)", "Minor 11th"),
    caption(527, "cCheck(17)", "Major 11th"),
    caption(528, "cCheck(18)", "Augmented 11th"),
    caption(529, "cCheck(19)", "Perfect 5th"),
    caption(530, "cCheck(20)", "Minor 13th"),
    caption(531, "cCheck(21)", "Major 13th"),
};

constexpr LanguageLine ChordWizard[] = {
    title(156, "Tabrova - Chord Manager"),
    caption(157, "lblTitle", "<no chord>"),
    caption(158, "SSTab1(0)", "Calculator"),
    caption(159, "SSTab1(1)", "User Chords"),
    caption(160, "SSTab1(2)", "Options"),
    caption(161, "Label1", "Key:"),
    caption(162, "Label2", "Chord Type:"),
    caption(163, "Command1", "New Chord Type..."),
    caption(164, "Command3", "Delete This Type"),
    caption(165, "Label3", "Calculator Style:"),
    caption(166, "Label4", "View Mode:"),
    caption(167, "Label5", "Play Speed:"),
    caption(168, "chkPlayNow", "Play Chords as soon as they are loaded"),
    caption(169, "chkNotebyNote", "Play Chords note by note"),
    caption(170, "chkTranspose", "Transpose Chords when they are put into a Document"),
    caption(171, "Label6", "Strum with mouse"),
    caption(172, "Label7", "Find:"),
    caption(173, "cmd_Delete", "Delete Selected Chord"),
    caption(174, "Frame5", "New User Chord"),
    caption(175, "Label8",
            "Fill in the tab boxes to make a new chord. Leave the box blank for a closed string."),
    caption(176, "Label9", "Name of the Chord:"),
    caption(177, "Command2", "Save this Chord"),
    caption(178, "Label10", "Click the + to add the current chord to your document."),
    caption(179, "Label11", "Construction:"),
    message(180, "percussionTrack", "Chords cannot be written into a percussion track."),
    message(181, "badFretBefore", "The fret on the"),
    message(182, "badFretAfter", "string must be a number from 0 to 6, or x."),
    message(183, "deleteChord", "Do you want to delete the chord"),
    message(184, "typeNotSaved", "This chord type cannot be saved, as its name contains invalid characters."),
    message(185, "savedBefore", "The chord"),
    message(186, "savedAfter", "has been saved."),
    message(187, "chordNotSaved",
            "The chord cannot be saved. Please check its name and the numbers of its frets."),
    message(188, "deleteTypeBefore", "Do you want to delete the chord type"),
    message(189, "deleteTypeAfter", "?"),
    toolTip(470, "Image10", "Add Chord to Document"),
    toolTip(471, "Image6", "Delete Chord from Document"),
    toolTip(472, "Image5", "Move Up"),
    toolTip(473, "Image7", "Move Left"),
    toolTip(474, "Image8", "Move Down"),
    toolTip(475, "Image9", "Move Right"),
    toolTip(476, "cmdPlay", "Play Chord"),
    message(477, "openChords", "Favor Open String Chords"),
    message(478, "barreChords", "Favor Barre Chords"),
    message(479, "allNotes", "Show All Notes"),
    message(480, "notationView", "Notation & Tab"),
    message(481, "additionView", "Addition Mode"),
    caption(482, "cCheck(0)", "Root"),
    caption(483, "cCheck(1)", "Minor 2nd"),
    caption(484, "cCheck(2)", "Major 2nd"),
    caption(485, "cCheck(3)", "Minor 3rd"),
    caption(486, "cCheck(4)", "Major 3rd"),
    caption(487, "cCheck(5)", "Perfect 4th"),
    caption(488, "cCheck(6)", "Aug 4th / Dim 5th"),
    caption(489, "cCheck(7)", "Perfect 5th"),
    caption(490, "cCheck(8)", "Aug 5th / Minor 6th"),
    caption(491, "cCheck(9)", "Major 6th / Dim 7th"),
    caption(492, "cCheck(10)", "Minor 7th"),
    caption(493, "cCheck(11)", "Major 7th"),
    caption(494, "cCheck(12)", "1st"),
    caption(495, "cCheck(13)", "Minor 9th"),
    caption(496, "cCheck(14)", "Major 9th"),
    caption(497, "cCheck(15)", "Augmented 9th"),
    caption(498, "cCheck(16)", "Minor 11th"),
    caption(499, "cCheck(17)", "Major 11th"),
    caption(500, "cCheck(18)", "Augmented 11th"),
    caption(501, "cCheck(19)", "Perfect 5th"),
    caption(502, "cCheck(20)", "Minor 13th"),
    caption(503, "cCheck(21)", "Major 13th"),
    caption(585, "lst_Chords", "User Chords"),
};

constexpr LanguageLine DrumMachine[] = {
    title(210, "Drum Machine"),
    caption(211, "Label1", "Pattern:"),
    caption(212, "Label2", "Speed:"),
    caption(213, "chkPlayAll", "Play entire song"),
    caption(214, "Command2", "Save this Song"),
    caption(215, "Command3", "Open a Song"),
    message(216, "play", "Play"),
    message(217, "stop", "Stop"),
    caption(533, "lblInstrument", "Instrument"),
    caption(534, "lblVolume", "Volume"),
    message(535, "stepsSet", "Steps:"),
};

constexpr LanguageLine Metronome[] = {
    title(249, "Metronome"),
    message(250, "start", "Start"),
    message(251, "stop", "Stop"),
    caption(252, "Frame1", "Settings"),
    caption(253, "Label1", "Preset Beats:"),
    caption(254, "Label2", "Click Rate:"),
    caption(255, "Label3", "Beats per Bar:"),
    caption(256, "Label4", "Number of Bars:"),
    caption(257, "Label5", "Click Pitch:"),
    message(258, "fastRate", "1920 beats a minute is very fast. Not every computer can keep up with it."),
};

constexpr LanguageLine Percussion[] = {
    title(279, "Percussion Editor"),
    caption(280, "chkAuto", "Automatically move to the next beat"),
    caption(
        281, "Label1",
        "Position this window so that you can see your document beneath it. Then use the arrow buttons  on "
        "the left to navigate around the document, and click a drum to write it to the document."),
    toolTip(430, "Image1", "Move Right"),
    toolTip(431, "Image2", "Move Down"),
    toolTip(432, "Image3", "Move Left"),
    toolTip(433, "Image4", "Move Up"),
    toolTip(434, "Image6", "Delete Note"),
    caption(580, "List1", "Drums"),
};

constexpr LanguageLine ScaleWizard[] = {
    title(285, "Tabrova - Scale Manager"),
    caption(286, "Label1", "Click a note to hear it:"),
    toolTip(287, "Command3", "Switch View Mode"),
    caption(288, "Command2", "Delete Selected Scale Type"),
    caption(289, "Label2", "Set the tablature for your new scale type in the key of E and click Save."),
    caption(290, "Command1", "Save this Scale Type"),
    caption(581, "ScKey", "Keys"),
    caption(582, "scType", "Scale Types"),
    toolTip(583, "Txt_flname", "Name of the Scale Type"),
};

constexpr LanguageLine TuningManager[] = {
    title(303, "Tabrova - Tuning Manager"),
    caption(304, "Label1", "Preset Tunings:"),
    caption(305, "Label2", "Saved User Tunings:"),
    message(306, "savedBefore", "The tuning"),
    message(307, "savedAfter", "has been saved."),
    message(308, "deleteTuning", "Do you want to delete the tuning"),
    message(309, "notLoadedBefore", "The tuning"),
    message(310, "notLoadedAfter", "cannot be loaded."),
    caption(435, "Label3", "Name for New Tuning:"),
    caption(436, "Command1", "Save This Tuning"),
    caption(437, "Command2", "Delete Selected Tuning"),
    caption(438, "Command3", "Assign This Tuning to Active Track"),
    toolTip(532, "Picture1", "Sound all Strings"),
};

constexpr FormLines Forms[] = {
    {"frmChordTypeCreator", ChordTypeCreator},
    {"frmChordWizard", ChordWizard},
    {"frmDrumMachine", DrumMachine},
    {"frmMetronome", Metronome},
    {"frmPercussion", Percussion},
    {"frmScaleWizard", ScaleWizard},
    {"frmTuningManager", TuningManager},
};

} // namespace

std::span<const FormLines> toolFormLines() { return Forms; }

} // namespace tabrova
