#include "app/drive/line_queue.h"

#include <QCoreApplication>

#include <iostream>
#include <string>
#include <thread>

namespace tabrova {

namespace {

void wakeEventLoop() {
    if (QCoreApplication* application = QCoreApplication::instance())
        QMetaObject::invokeMethod(
            application, [] {}, Qt::QueuedConnection);
}

} // namespace

// The thread lives as long as the process: a blocking read cannot be called back.
LineQueue::LineQueue() {
    std::thread([this] { readAll(); }).detach();
}

void LineQueue::readAll() {
    std::string line;
    while (std::getline(std::cin, line)) {
        {
            const std::lock_guard lock(mutex_);
            lines_.push_back(QString::fromStdString(line));
        }
        wakeEventLoop();
    }
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    wakeEventLoop();
}

std::optional<QString> LineQueue::take() {
    const std::lock_guard lock(mutex_);
    if (lines_.empty()) return std::nullopt;
    QString line = std::move(lines_.front());
    lines_.pop_front();
    return line;
}

bool LineQueue::ended() {
    const std::lock_guard lock(mutex_);
    return ended_ && lines_.empty();
}

} // namespace tabrova
