// The lines of the shell's other windows.
#include "core/language/form_lines.h"

namespace tabrova {

using namespace language;

namespace {

constexpr LanguageLine FileProperties[] = {
    title(221, "File Properties"),
    caption(222, "Label1", "Title:"),
    caption(223, "Label2", "Author:"),
    caption(224, "Label3", "Playback Speed:"),
    caption(225, "Label4", "columns a minute"),
    caption(226, "chkSpeedBoost", "Double the Playback Speed"),
    caption(227, "Label5", "Notes:"),
    caption(228, "chkReverb", "Prevent Reverberations"),
    caption(229, "Command1", "Done"),
};

constexpr LanguageLine InstrumentSelector[] = {
    title(233, "Choose an Instrument"),
    caption(234, "Label1", "Instruments:"),
    caption(235, "Command1", "Sample This Patch"),
    caption(236, "Command2", "OK"),
};

constexpr LanguageLine TrackProperties[] = {
    message(294, "title", "Track Properties - "),
    caption(295, "Label1", "Track Name:"),
    caption(296, "Label6", "Tuning:"),
    caption(297, "Label2", "Volume:"),
    caption(298, "Command9", "Set"),
    caption(299, "Command3", "Done"),
    caption(410, "Command1", "Change"),
    caption(411, "Command2", "Change"),
    message(412, "patch", "Patch: "),
};

constexpr LanguageLine Export[] = {
    title(328, "Export Text File"),
    caption(329, "Label1",
            "Tabrova has compiled this file for you. Please make any alterations you wish, and then click a "
            "button:"),
    caption(413, "Command1", "Save"),
    caption(414, "Command2", "Cancel"),
    caption(415, "Command3", "Print"),
};

constexpr LanguageLine MidiExport[] = {
    title(333, "Export MIDI File"),
    caption(334, "Label1", "(Please specify a filename)"),
    caption(335, "Command1", "Choose File..."),
    caption(336, "Label2", "Tracks in this Document:"),
    caption(337, "Label3", "Exportation Queue:"),
    caption(338, "Label4", "Priority Track:"),
    caption(339, "chkReverb", "Prevent Reverberations"),
    caption(340, "Command2", "Export"),
    caption(341, "Command3", "Cancel"),
    message(342, "noFile", "Please choose a file to export to first."),
    message(343, "exported", "The MIDI file has been exported successfully."),
    toolTip(536, "Command6", "Add the Track to the Queue"),
    toolTip(537, "Command7", "Remove the Track from the Queue"),
    toolTip(538, "Command4", "Raise the Number"),
    toolTip(539, "Command5", "Lower the Number"),
};

constexpr LanguageLine Splash[] = {
    message(416, "create", "Create a New Tablature..."),
    message(417, "open", "Open a Saved Tablature..."),
    message(418, "learn", "Learn to use Tabrova..."),
    message(419, "close", "Close this Window"),
};

constexpr LanguageLine About[] = {
    title(420, "About Tabrova"),
    caption(
        421, "lblCredits",
        "A workbench for guitarists: tablature, notation and sound. Written by the Tabrova developers, who "
        "play guitar too."),
    message(422, "sequencer", "MIDI sequencer by the Tabrova developers"),
    caption(423, "cmdSysInfo", "&System Info..."),
    caption(424, "cmdOK", "OK"),
};

constexpr FormLines Forms[] = {
    {"frmFileProperties", FileProperties},
    {"frmInstrumentSelector", InstrumentSelector},
    {"frmTrackProperties", TrackProperties},
    {"frmExport", Export},
    {"frmMIDIExport", MidiExport},
    {"frmAltSplash", Splash},
    {"frmAbout", About},
};

} // namespace

std::span<const FormLines> shellFormLines() { return Forms; }

} // namespace tabrova
