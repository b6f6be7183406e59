// What was sent, each message as its three bytes in hex.
#pragma once

#include "platform/midi_device.h"

#include <string>
#include <vector>

namespace tabrova::testing {

using Sent = std::vector<std::string>;

inline Sent sentBytes(RecordingMidiDevice& device) {
    Sent sent;
    for (const ShortMessage& message : device.take()) {
        std::string bytes;
        for (const int byte : message) {
            constexpr char Digits[] = "0123456789abcdef";
            if (!bytes.empty()) bytes += ' ';
            bytes += Digits[byte / 16];
            bytes += Digits[byte % 16];
        }
        sent.push_back(bytes);
    }
    return sent;
}

// The eighteen messages that silence channels 0 to 8.
inline Sent allNotesOff() {
    Sent sent;
    for (char channel = '0'; channel <= '8'; ++channel)
        for (const char* rest : {" 78 00", " 7b 00"})
            sent.push_back(std::string("b") + channel + rest);
    return sent;
}

} // namespace tabrova::testing
