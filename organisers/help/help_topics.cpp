#include "organisers/help/help_topics.h"

namespace tabrova {

namespace {

constexpr HelpTopic Topics[] = {
    {"Create a New Tablature Document?",
     "To Create a New Tablature Document, click File, then New. The File Properties window will open. "
     "Fill in the details of the new song, and click Done."},
    {"Open a Tablature Document?", "To Open a saved Tablature Document, click File, then Open."},
    {"Save a Tablature Document?", "To Save a Tablature Document, click File, then Save."},
    {"Print a Tablature Document?",
     "To Print a Tablature Document, click File, then Print. The Exportation window will appear. A "
     "Text File based on the Active Track will be generated. You can then choose to print the "
     "document, or save it as a text file."},
    {"Export a Document to a Text File?",
     "To Export a Tablature Document to a Text File, click File, then Export, then Text File. The "
     "Exportation window will appear. A Text File based on the Active Track will be generated. You can "
     "then choose to print the document, or save it as a text file."},
    {"Export a  Document to a MIDI File?",
     "To Export a Tablature Document to a MIDI File, click File, then Export, then MIDI File. The MIDI "
     "File Exportation window will appear. You can choose which tracks to export, and the file name to "
     "export to. Once done, click Export."},
    {"Import a Tabrova 2.1x File?",
     "To Import a Tabrova 2.1x File into the new Tabrova 3.0 Format, click File, then Import, then "
     "Tabrova 2.1x File."},
    {"Change file properties?",
     "To Change the Title, Author and Playback Speed of a Tablature Document, click File, then "
     "Properties."},
    {"Add Power Chords to my document?",
     "You don't have to keep typing power chords when tabbing a rock/punk song. Simply click Edit, "
     "then choose Editing Mode, then Power Chord. With this mode selected, a power chord will "
     "automatically be generated whenever you type a root note on the low E or A string."},
    {"Avoid using the arrow keys?",
     "If you are writing a Guitar Solo, it can be very irritating having to continually press the "
     "right arrow key to move to the next note. To avoid having to do this, click Edit, choose Editing "
     "Mode, then choose Intelligent."},
    {"See Musical Notation for my document?",
     "Tabrova has a built in Music Notation Viewer. It loads automatically on startup, but you can "
     "choose to hide or show it as you please. Click View, then Music Notation."},
    {"Add Repeats to my document?",
     "You can add repeats at any point in a Tabrova Document. Press the Space bar to insert an opened "
     "repeat. Move the cursor to where you want to end the repeat, and press Shift + Space. Now use "
     "the arrow keys to set how many times the repeat will be played, and press Enter. Also, Pressing "
     "Enter inserts a bar separator, and pressing U removes repeats / separators."},
    {"Use the chord calculator?",
     "To use the chord calculator, click Tools, then choose Chord Manager. The calculator will be "
     "shown. To generate a chord, choose the key from the list of keys, then choose the chord type "
     "from the list of types. The chord will be generated and then played to you. You can create your "
     "own chord types by clicking the New Chord Type button."},
    {"Save my own chords?",
     "To save your own chords, open the Chord Manager, and choose the User Chords tab. Fill in the "
     "tablature boxes, type the name of your chord, then click the Save Icon to add your chord to the "
     "list."},
    {"Quickly add any chord to my document?",
     "If you are writing a Chord Based piece, it can be very frustrating to keep typing chords. To "
     "resolve this problem, Tabrova has a special 'Addition Mode'. Open the chord calculator, then "
     "click the Options tab. Change the View Mode listbox to 'Addition Mode'. A set of arrow buttons "
     "will appear. Now choose a chord from the calculator or user chord bank, and click the Plus "
     "button to add the chord to your document."},
    {"Generate, hear, and create scales?",
     "You can easily generate and hear scales, as well as adding your own scale types. To do this, "
     "click tools, then Scale Manager."},
    {"Save details about my band?",
     "The 'Gig Diary' from the last version of Tabrova has been turned into the band manager. This "
     "allows you to store details about your band and its members, as well as upcoming gigs. You can "
     "also quickly email your members. To access the band manager, click Tools, then Band Manager."},
    {"Tune my guitar?",
     "You can quickly and easily tune your guitar with Tabrova. Click Tools, then Tuning Manager. With "
     "this tool you can view several preset tunings, or create and store your own. There is a "
     "loudspeaker icon next to each string's tuning box. Click this,and Tabrova will play that note "
     "continually for you. Click the one at the bottom to have each string played in turn."},
    {"Create and save my own tunings?",
     "To save your own tuning, first open the Tuning Manager. Create your tuning using the list boxes. "
     "Now type in a name for your tuning in the textbox, and click the Save Icon."},
    {"Save a list of my favorite websites?",
     "Tabrova has a built in Website Manager, with which you can store all of your favorite websites, "
     "and then quickly access them. To open the Website Manager, click Tools, then Website Manager."},
    {"View and create guitar lessons?",
     "Another new feature in Tabrova 3.0 is the Guitar Lessons Section. Ideal for guitar teachers and "
     "tutors, this tool allows you to install your own Guitar Lessons to the program. To create a "
     "lesson, use a Rich Text Word Processor such as Microsoft Word. Save your lesson as a RTF File. "
     "Open Tabrova, click Tools, then Guitar Lessons. Now click the status bar that says 'click here "
     "to select a lesson', and click the Install Lesson button."},
    {"Use a metronome to keep time?",
     "Tabrova features a simple metronome, that can be programmed to play at any speed and for any "
     "length of time. To access the metronome, click Tools, then Metronome."},
    {"Use a drum machine to keep time?",
     "New to Tabrova 3.0 is the Drum Machine. Click Tools, then Drum Machine. This is ideal for those "
     "who want to keep time whilst they play, and have a little knowledge of Drums."},
    {"Change the settings of Tabrova?", "To change various options, click Tools, then Options."},
    {"Hear my document?",
     "Once you have written a Tablature Document, hearing it is easy. Click Sound, then click Play."},
    {"Write a tablature document?",
     "To write tablature in Tabrova, use the number keys. To write a dead note, press 'X'. To write a "
     "note higher than the 9th fret, type a 1, then a number, or a 2 then a number. To delete a note, "
     "press Delete. To move around the tab window, use the Arrow Keys. Alternatively, right-clicking "
     "on the tab window allows you to select a note."},
    {"Apply techniques to a note?",
     "To apply a technique to a note, choose the technique from the toolbar, and click it."},
    {"Change the length of a note?",
     "To change the length of a note, select the note, then click the desired note length from the "
     "toolbar. Note Lengths supported in Tabrova 3.0 are 1, 1/2, 1/3, 1/4, 1/8 and 1/16."},
    {"Add or Remove a track?",
     "A Tabrova Document can contain up to 1024 Tracks. To add or remove a track, click the Track Menu."},
    {"Change the properties of a track?",
     "Each Track can have its own tuning, instrument, name, and volume. To change the properties of a "
     "track, click Track, then Properties."},
    {"Change the track that I am editing?",
     "To switch between tracks, click the status bar in the main window (labelled 'Click here to "
     "change')."},
    {"Create and Edit Percussion Tracks?",
     "To add a percussion track, click Track then Add, and say 'Yes' to the question. To edit a "
     "percussion track, double click the tablature, and the percussion editor will appear. To add a "
     "drum sound, click it. Use the arrow buttons to navigate around the document."},
    {"Add techniques quickly?",
     "To quickly add techniques to a document, use the following shortcut keys: Bend = B, Hammer/Pull "
     "= H, Slide = S, Vibrato = V, Whammy = W, Dive/Return = D, Ghost Note = G, Harmonic = M, Fade in "
     "= F, Tapping = T, Slapping = L, Popping = O, Ring = R, Dead Note = X, Staccato = Z, Jump = J, "
     "Double Strike = K."},
    {"Get more help?", "To get more help, click Help, then Tech Support."},
    {"Stop MIDI Sounding Weird?",
     "If your MIDI sounds do not sound like their specified instrument names, or if the timing of "
     "playback is not very accurate, click Tools then Options, and choose another device from the list "
     "of devices."},
};

constexpr char Welcome[] =
    "Welcome to Tabrova! Tabrova is an essential tool for every guitarist. It includes a chord "
    "calculator, user chord bank, quick chord addition mode, scale calculator, scale creator, tuning "
    "manager/creator, metronome, drum machine, guitar lesson viewer, website launcher, band management "
    "utility, and a complex 1024 track tablature editor with musical notation and fretboard view.";

} // namespace

std::span<const HelpTopic> helpTopics() { return Topics; }

const char* helpWelcome() { return Welcome; }

} // namespace tabrova
