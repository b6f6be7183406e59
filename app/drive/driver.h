// Carries out the driver's commands on the real program, one line in and one line of JSON out.
#pragma once

#include "app/drive/input_events.h"
#include "platform/recording_services.h"

#include <QHash>
#include <QJsonObject>
#include <QStringList>

namespace tabrova {

class frmMain;

// The boxes since the last call, as the commands tell them.
QJsonArray takeBoxes(RecordingMessageBoxes& boxes);

class Driver {
  public:
    Driver(frmMain& window, RecordingServices& recording);

    QJsonObject run(const QString& line);
    // The main window was closed by `quit`.
    bool ended() const { return ended_; }

  private:
    using Handler = QJsonObject (Driver::*)(const QStringList& words);

    QJsonObject key(const QStringList& words);
    QJsonObject press(const QStringList& words);
    QJsonObject type(const QStringList& words);
    QJsonObject doItem(const QStringList& words);
    QJsonObject mouse(const QStringList& words);
    QJsonObject set(const QStringList& words);
    QJsonObject get(const QStringList& words);
    QJsonObject resize(const QStringList& words);
    QJsonObject answer(const QStringList& words);
    QJsonObject boxes(const QStringList& words);
    QJsonObject choosers(const QStringList& words);
    QJsonObject opened(const QStringList& words);
    QJsonObject midi(const QStringList& words);
    QJsonObject device(const QStringList& words);
    QJsonObject timers(const QStringList& words);
    QJsonObject fire(const QStringList& words);
    QJsonObject freeze(const QStringList& words);
    QJsonObject wait(const QStringList& words);
    QJsonObject doc(const QStringList& words);
    QJsonObject page(const QStringList& words);
    QJsonObject shot(const QStringList& words);
    QJsonObject forms(const QStringList& words);
    QJsonObject quit(const QStringList& words);

    frmMain& window_;
    RecordingServices& recording_;
    Mouse mouse_;
    QHash<QString, Handler> handlers_;
    bool ended_ = false;
};

} // namespace tabrova
