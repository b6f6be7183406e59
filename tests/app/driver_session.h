// A running driver: one command in, one line of JSON out.
#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace tabrova::testing {

class DriverSession {
  public:
    explicit DriverSession(const QStringList& arguments = {}) {
        process_.setProcessChannelMode(QProcess::SeparateChannels);
        process_.setStandardErrorFile(QProcess::nullDevice());
        // No tool of the machine may answer in the program's place.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", "/nowhere");
        process_.setProcessEnvironment(environment);
        process_.start(qEnvironmentVariable("TABROVA_BIN") + "/tabrova-drive", arguments);
        EXPECT_TRUE(process_.waitForStarted());
    }
    ~DriverSession() {
        process_.closeWriteChannel();
        if (!process_.waitForFinished(10000)) process_.kill();
    }

    void send(const QString& command) { process_.write(command.toUtf8() + '\n'); }

    QJsonObject receive() {
        while (!process_.canReadLine())
            if (!process_.waitForReadyRead(60000)) {
                ADD_FAILURE() << "the driver gave no answer";
                return {};
            }
        return QJsonDocument::fromJson(process_.readLine()).object();
    }

    QJsonObject run(const QString& command) {
        send(command);
        return receive();
    }

    // The command is carried out without an error.
    QJsonObject ok(const QString& command) {
        const QJsonObject answer = run(command);
        EXPECT_FALSE(answer.contains("error")) << command.toStdString() << ": " << text(answer["error"]);
        return answer;
    }

    std::string error(const QString& command) { return text(run(command)["error"]); }
    QJsonValue get(const QString& what) { return ok("get " + what)["value"]; }
    // The names of the forms, "forms" for all loaded ones or "visible", in alphabetical order.
    std::vector<std::string> forms(const char* which) {
        std::vector<std::string> names;
        for (const QJsonValue& name : ok("forms")[which].toArray())
            names.push_back(text(name));
        std::sort(names.begin(), names.end());
        return names;
    }
    QJsonObject doc() { return ok("doc"); }
    QJsonObject page() { return ok("page"); }
    QJsonObject lastBox() { return ok("boxes")["boxes"].toArray().last().toObject(); }

    // The exit status, when the program has ended by itself.
    int status() {
        process_.waitForFinished(20000);
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }
    qint64 processId() const { return process_.processId(); }
    void closeInput() { process_.closeWriteChannel(); }

    static std::string text(const QJsonValue& value) { return value.toString().toStdString(); }

  private:
    QProcess process_;
};

// The text of a cell in one of the answer's lists of [column, row, text].
inline std::string cell(const QJsonObject& doc, const char* grid, int column, int row) {
    for (const QJsonValue& entry : doc[grid].toArray()) {
        const QJsonArray parts = entry.toArray();
        if (parts[0].toInt() == column && parts[1].toInt() == row) return DriverSession::text(parts[2]);
    }
    return {};
}

inline std::string note(const QJsonObject& doc, int column, int row) {
    return cell(doc, "NoteGrid", column, row);
}

inline std::string mark(const QJsonObject& doc, int column) {
    for (const QJsonValue& entry : doc["BarMarkRow"].toArray())
        if (entry.toArray()[0].toInt() == column) return DriverSession::text(entry.toArray()[1]);
    return {};
}

} // namespace tabrova::testing
