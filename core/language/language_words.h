// The words and questions that the main window's messages take from the active language, in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace tabrova {

struct LanguageWords {
    std::string track = "Track";
    std::string of = "of";
    std::string staff = "Staff";
    std::string selectedTrack = "selected (Click here to change)";
    std::string saveQuestion = "Do you want to save the changes to";
    std::string percussionQuestion = "Is this to be a percussion track?";
    std::string onlyTrack = "This is the only track. It cannot be removed.";
    std::string removeTrackQuestion = "Do you want to remove the track";
    std::string clearOnlyStaffQuestion = "This is the only staff. Do you want to clear it?";
    std::string longExport = "This document has more than 20 staves. The export may take a while.";

    std::string foreignCharacter = "A tablature file cannot hold this character.";

    // Of the page of keys.
    std::string keys = "Keys";
    std::string keysOnPage = "On the Page";
    std::string arrowKeys = "Arrow Keys";
    std::string moveCursor = "Move the cursor";
    std::string digits = "Digits";
    std::string writeFret = "Write a fret; two of them one behind the other make 10 to 29";

    // Of the welcome window.
    std::string recentDocuments = "Recent Documents";
    std::string examples = "Examples";

    // Whose texts the toolkit shows: a language, or a language and a country ("pt_BR").
    std::string toolkit = "en";

    // Of the sound: why nothing is heard, and how to mend it. "" leaves what the synthesizer says.
    std::string noBank;
    std::string bankUnreadable;
    std::string noOutput;
    std::string noAnswer;
    std::string soundBanks = "Sound Banks";

    // Of the status bar: %1 and what follows are numbers.
    std::string place = "Staff %1 of %2, column %3";
    std::string playing = "Playing: staff %1 of %2, column %3";
    std::string speed = "%1 columns a minute, ♩ = %2";
    std::string fileGone = "This file is not there any more:";
    std::string notSaved = "not saved yet";
    std::string noBankHere = "No sound: there is no sound bank. Click here to choose one.";
    std::string noOutputHere = "No sound: there is no audio output. Click here for what to do.";
    std::string noAnswerHere = "No sound: the sound server does not answer. Click here for what to do.";

    // Takes a message of the main form's language lines by its name; other names are passed over.
    void set(std::string_view name, std::string text);
};

} // namespace tabrova
