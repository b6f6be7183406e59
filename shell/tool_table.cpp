// The table of the program's windows.
#include "organisers/about/frmAbout.h"
#include "organisers/band_manager/frmBandManager.h"
#include "organisers/file_properties/frmFileProperties.h"
#include "organisers/help/frmHelp.h"
#include "organisers/instruments/frmInstrumentSelector.h"
#include "organisers/lessons/frmLessons.h"
#include "organisers/midi_export/frmMIDIExport.h"
#include "organisers/options/frmOptions.h"
#include "organisers/text_export/frmExport.h"
#include "organisers/track_properties/frmTrackProperties.h"
#include "organisers/websites/frmWebsites.h"
#include "organisers/welcome/frmAltSplash.h"
#include "shell/tool_windows.h"
#include "tools/chord_manager/frmChordTypeCreator.h"
#include "tools/chord_manager/frmChordWizard.h"
#include "tools/drum_machine/frmDrumMachine.h"
#include "tools/metronome/frmMetronome.h"
#include "tools/percussion_editor/frmPercussion.h"
#include "tools/scale_manager/frmScaleWizard.h"
#include "tools/tuning_manager/frmTuningManager.h"

namespace tabrova {

namespace {

template <class Window>
ToolWindow* make(const ToolContext& context, QWidget* parent) {
    return new Window(context, parent);
}

constexpr ToolRow ToolTable[] = {
    {"frmOptions", "mnuToolsOptions", make<frmOptions>, Keeping::UntilTheEnd},
    {"frmInstrumentSelector", "", make<frmInstrumentSelector>, Keeping::UntilTheEnd},
    {"frmFileProperties", "mnuFileProperties", make<frmFileProperties>},
    {"frmTrackProperties", "mnuTrackProps", make<frmTrackProperties>},
    {"frmMIDIExport", "mnuExportMidiFile", make<frmMIDIExport>},
    {"frmExport", "", make<frmExport>},
    {"frmAbout", "mnuAbout", make<frmAbout>},
    {"frmAltSplash", "", make<frmAltSplash>},
    {"frmChordWizard", "mnuChordManager", make<frmChordWizard>},
    {"frmChordTypeCreator", "", make<frmChordTypeCreator>},
    {"frmScaleWizard", "mnuScaleManager", make<frmScaleWizard>},
    {"frmTuningManager", "mnuTuningManager", make<frmTuningManager>},
    {"frmMetronome", "mnuToolsMetronome", make<frmMetronome>},
    {"frmDrumMachine", "mnuToolsDrumMachine", make<frmDrumMachine>},
    {"frmLessons", "mnuToolsGuitarLessons", make<frmLessons>},
    {"frmPercussion", "mnuPercussionEditor", make<frmPercussion>},
    {"frmBandManager", "mnuBandManager", make<frmBandManager>},
    {"frmWebsites", "mnuToolsWebsiteManager", make<frmWebsites>},
    {"frmHelp", "mnuHelpContents", make<frmHelp>},
};

} // namespace

std::span<const ToolRow> toolRows() { return ToolTable; }

} // namespace tabrova
