// The commands that ask what was recorded: boxes, choosers, addresses, messages; and the failing device.
#include "app/drive/driver.h"

#include <QJsonArray>

namespace tabrova {

namespace {

QString iconName(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Information:
        return "information";
    case BoxIcon::Question:
        return "question";
    case BoxIcon::Exclamation:
        return "exclamation";
    case BoxIcon::Critical:
        return "critical";
    case BoxIcon::None:
        break;
    }
    return "none";
}

QString answerName(BoxAnswer answer) {
    switch (answer) {
    case BoxAnswer::Yes:
        return "yes";
    case BoxAnswer::No:
        return "no";
    case BoxAnswer::Cancel:
        return "cancel";
    case BoxAnswer::Ok:
        break;
    }
    return "ok";
}

QString hexByte(std::uint8_t byte) { return QString("%1").arg(byte, 2, 16, QChar('0')); }

} // namespace

QJsonArray takeBoxes(RecordingMessageBoxes& boxes) {
    QJsonArray list;
    for (const auto& asked : boxes.take()) {
        QJsonArray buttons;
        for (const BoxAnswer button : asked.box.buttons)
            buttons.append(answerName(button));
        list.append(QJsonObject{{"title", asked.box.title},
                                {"text", asked.box.text},
                                {"icon", iconName(asked.box.icon)},
                                {"buttons", buttons},
                                {"answer", answerName(asked.answer)}});
    }
    return list;
}

QJsonObject Driver::boxes(const QStringList&) { return {{"boxes", takeBoxes(recording_.boxes)}}; }

QJsonObject Driver::choosers(const QStringList&) {
    QJsonArray list;
    for (const auto& asked : recording_.files.take())
        list.append(QJsonObject{{"kind", asked.question.kind == FileQuestion::Kind::Open ? "open" : "save"},
                                {"filter", asked.question.filter},
                                {"default", asked.question.defaultExtension},
                                {"name", asked.question.name},
                                {"answer", asked.answer ? QJsonValue(*asked.answer) : QJsonValue::Null}});
    return {{"choosers", list}};
}

QJsonObject Driver::opened(const QStringList&) {
    return {{"opened", QJsonArray::fromStringList(recording_.addresses.take())}};
}

QJsonObject Driver::midi(const QStringList&) {
    QJsonArray list;
    for (const ShortMessage& message : recording_.midi.take())
        list.append(hexByte(message[0]) + ' ' + hexByte(message[1]) + ' ' + hexByte(message[2]));
    return {{"midi", list}};
}

QJsonObject Driver::device(const QStringList& words) {
    using Operation = RecordingMidiDevice::Operation;
    static const QHash<QString, Operation> operations = {
        {"fail-open", Operation::Open}, {"fail-close", Operation::Close}, {"fail-send", Operation::Send}};
    const bool on = words.value(2) == "on";
    if (!operations.contains(words.value(1)) || (!on && words.value(2) != "off"))
        return {{"error", "device fail-open|fail-close|fail-send on|off"}};
    recording_.midi.setFailing(operations.value(words[1]), on);
    return {{"ok", true}};
}

} // namespace tabrova
