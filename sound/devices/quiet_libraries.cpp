#include "sound/devices/quiet_libraries.h"

#include <QLibrary>

#include <iostream>
#include <streambuf>

namespace tabrova {

namespace {

void ignoreText(const char*) {}
void ignoreFormatted(const char*, int, const char*, int, const char*, ...) {}
void ignoreLog(const char*, int, const char*, void*) {}

// Quiet objects alive on this thread.
thread_local int quietHere = 0;

// Stands before the standard error stream's own buffer.
class QuietableBuffer : public std::streambuf {
  public:
    explicit QuietableBuffer(std::streambuf* written) : written_(written) {}

  protected:
    int_type overflow(int_type character) override {
        return quietHere > 0 ? traits_type::not_eof(character)
                             : written_->sputc(traits_type::to_char_type(character));
    }
    std::streamsize xsputn(const char* text, std::streamsize length) override {
        return quietHere > 0 ? length : written_->sputn(text, length);
    }
    int sync() override { return quietHere > 0 ? 0 : written_->pubsync(); }

  private:
    std::streambuf* written_;
};

// Once for the whole run, and never taken away: a thread may still wait in a library when the program ends.
void makeErrorStreamQuietable() {
    static const std::streambuf* const placed = [] {
        auto* buffer = new QuietableBuffer(std::cerr.rdbuf());
        std::cerr.rdbuf(buffer);
        return buffer;
    }();
    static_cast<void>(placed);
}

// What the reader of sound banks complains of has no name of its own.
void silenceBankReader() {
    using Handler = void (*)(const char*, int, const char*, void*);
    using SetHandler = unsigned (*)(const char*, int, Handler, void*);
    constexpr int AllLevels = 0xFC; // from error to debug
    if (const auto set = reinterpret_cast<SetHandler>(QLibrary::resolve("glib-2.0", 0, "g_log_set_handler")))
        set(nullptr, AllLevels, ignoreLog, nullptr);
}

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
    silenceBankReader();
}

QuietErrorStream::QuietErrorStream() {
    makeErrorStreamQuietable();
    ++quietHere;
}

QuietErrorStream::~QuietErrorStream() { --quietHere; }

} // namespace tabrova
