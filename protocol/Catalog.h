#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "protocol/Layout.h"

namespace tarn::protocol {

/** One row of the vocabulary. */
struct Command {
    const char* controller;  // implementation class, e.g. "AudioCtrl"
    const char* name;        // constant, e.g. "CMD_AUDIO_SET_VOLUME"
    int32_t code;
    const char* request;  // layout behind the code
    const char* reply;    // layout behind the status word

    Layout requestLayout() const { return parseLayout(request); }
    Layout replyLayout() const { return parseLayout(reply); }
};

/** All rows, in the order of the manager's accessors and of their files. */
const std::vector<Command>& commands();

/** The row of that name, or null. */
const Command* findCommand(const std::string& name);

/** The rows of that code: none, one, or the two that share it by design. */
std::vector<const Command*> findCommands(int32_t code);

/** The implementation classes of all controllers, in the order of the manager's accessors. */
const std::vector<std::string>& controllers();

}  // namespace tarn::protocol
