#include "sound/devices/quiet_libraries.h"

#include <QLibrary>

#include <iostream>

namespace tabrova {

namespace {

void ignoreText(const char*) {}
void ignoreFormatted(const char*, int, const char*, int, const char*, ...) {}

} // namespace

void silenceSoundLibraries() {
    using TextFunction = void (*)(const char*);
    using SetTextFunction = void (*)(TextFunction);
    // A client never starts a server of its own.
    if (!qEnvironmentVariableIsSet("JACK_NO_START_SERVER")) qputenv("JACK_NO_START_SERVER", "1");
    for (const char* setter : {"jack_set_error_function", "jack_set_info_function"})
        if (const auto set = reinterpret_cast<SetTextFunction>(QLibrary::resolve("jack", 0, setter)))
            set(ignoreText);
    using SetHandler = int (*)(decltype(&ignoreFormatted));
    if (const auto set =
            reinterpret_cast<SetHandler>(QLibrary::resolve("asound", 2, "snd_lib_error_set_handler")))
        set(ignoreFormatted);
}

QuietErrorStream::QuietErrorStream() : kept_(std::cerr.rdbuf(nullptr)) {}

QuietErrorStream::~QuietErrorStream() {
    std::cerr.rdbuf(kept_);
    std::cerr.clear();
}

} // namespace tabrova
