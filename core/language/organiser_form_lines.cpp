// The lines of the organisers.
#include "core/language/form_lines.h"

namespace tabrova {

using namespace language;

namespace {

constexpr LanguageLine BandManager[] = {
    title(118, "Tabrova - Band Manager"),
    caption(119, "mnuOption(0)", "Members"),
    caption(120, "mnuOption(1)", "Gig Log "),
    caption(121, "mnuOption(2)", "Band Details"),
    caption(122, "Label1", "Number of Members:"),
    caption(123, "Label2", "Member Name:"),
    caption(124, "Label3", "Address:"),
    caption(125, "Label4", "Telephone:"),
    caption(126, "Label5", "E-Mail Address:"),
    caption(127, "Label6", "Instrument Played:"),
    caption(128, "Label7", "Equipment Owned:"),
    caption(129, "sndEmail", "Send E-Mail"),
    caption(130, "Label8", "Name of Band:"),
    caption(131, "Label9", "Additional Details:"),
    caption(132, "Label10", "Gigs: (Double Click to Show)"),
    caption(133, "Command1", "Delete Selected Gig"),
    caption(134, "Frame1", "Gig Addition Manager"),
    caption(135, "Label11", "Month:"),
    caption(136, "Label12", "Day:"),
    caption(137, "Label13", "Year:"),
    caption(138, "Label14", "(Format = MM DD YYYY)"),
    caption(139, "Label15", "Title:"),
    caption(140, "Label16", "Memo:"),
    caption(141, "Command6", "Add Gig"),
    message(142, "member", "Member"),
    caption(143, "txtBandName", "<New Band>"),
    message(144, "noneSpecified", "<none specified>"),
    message(145, "badGig", "This gig cannot be added. Please check its date and its title."),
};

constexpr LanguageLine Lessons[] = {
    title(240, "Tabrova - Lessons"),
    caption(241, "Label8", "Guitar Lessons"),
    caption(242, "Picture1", "  Lesson Selector:"),
    caption(243, "Label1", "Double Click to choose a lesson:"),
    caption(244, "Command2", "Install Lesson"),
    caption(245, "Command3", "Uninstall Lesson"),
    caption(440, "StatusBar1", "Click here to select a lesson"),
};

constexpr LanguageLine Options[] = {
    title(263, "Options"),
    caption(264, "lblDevices", "Output Device:"),
    caption(265, "PlayAllTracks", "Play Notes on All Tracks during Editing"),
    caption(266, "PlayNone", "Don't Play Notes during Editing"),
    caption(267, "PlayCurrentTrack", "Play Notes on Current Track Only during Editing"),
    caption(268, "lblColors", "Color of Cursor:"),
    caption(269, "chkEyeBall", "Make Cursor Stand Out"),
    caption(270, "chkTABOUT", "Make Tab One Color"),
    caption(271, "chkStats", "Show Statistics"),
    caption(272, "chkSplash", "Show Splash Screen"),
    caption(273, "Check1", "Show lines with cursor on tablature"),
    caption(274, "Check2", "Debug Mode"),
    caption(275, "lblLanguages", "Installed Languages: (Double Click to Apply)"),
    caption(445, "OptionsTabs(0)", "Sound"),
    caption(446, "OptionsTabs(1)", "Appearance"),
    caption(
        447, "lblDeviceGone",
        "The output device that was chosen is gone. Choose another one: until then nothing can be heard."),
    caption(448, "grpSynthesizer", "Built-in Synthesizer"),
    caption(449, "lblBankTitle", "Sound bank:"),
    caption(450, "lblOutputTitle", "Audio output:"),
    caption(451, "cmdSoundBank", "Choose..."),
    toolTip(452, "cmdSoundBank", "Choose another sound bank (SF2 or SF3)"),
    caption(453, "cmdTestSound", "Test"),
    toolTip(454, "cmdTestSound", "Play a chord on the output device"),
    message(455, "loading", "loading..."),
    message(456, "none", "none"),
    message(457, "notInUse", "not in use"),
    caption(584, "cmdClose", "Close"),
};

constexpr LanguageLine Websites[] = {
    title(319, "Tabrova - Website Manager"),         caption(320, "Command1", "Save this Entry"),
    caption(321, "Command2", "Go to Selected Site"), caption(322, "Command3", "Delete Selected Entry"),
    caption(460, "Label1", "Description:"),          caption(461, "Label2", "URL:"),
    caption(462, "Label3", "Entry Name:"),           caption(586, "sitesList", "Websites"),
};

constexpr FormLines Forms[] = {
    {"frmBandManager", BandManager},
    {"frmLessons", Lessons},
    {"frmOptions", Options},
    {"frmWebsites", Websites},
};

} // namespace

std::span<const FormLines> organiserFormLines() { return Forms; }

} // namespace tabrova
