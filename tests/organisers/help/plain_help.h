// A plain model of the help's window: which row stands there, and its two texts.
#pragma once

#include "tests/organisers/help/written_topics.h"

#include <QString>

namespace tabrova::testing {

struct PlainHelp {
    void choose(int position) {
        row = position;
        for (const WrittenTopic& topic : WrittenTopics)
            if (topic.position == position) {
                title = "How do I " + text(topic.question);
                answer = text(topic.answer);
            }
    }
    static QString text(std::string_view written) {
        return QString::fromUtf8(written.data(), static_cast<qsizetype>(written.size()));
    }

    int row = -1;
    QString title = "Welcome To Tabrova!";
    QString answer =
        "Welcome to Tabrova! Tabrova is an essential tool for every guitarist. It includes a chord "
        "calculator, user chord bank, quick chord addition mode, scale calculator, scale creator, tuning "
        "manager/creator, metronome, drum machine, guitar lesson viewer, website launcher, band management "
        "utility, and a complex 1024 track tablature editor with musical notation and fretboard view.";
};

} // namespace tabrova::testing
