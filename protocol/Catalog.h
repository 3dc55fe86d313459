#pragma once

#include <array>
#include <cstddef>
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
    const char* request;  // layout after the code
    const char* reply;    // layout after the status word

    Layout requestLayout() const { return parseLayout(request); }
    Layout replyLayout() const { return parseLayout(reply); }
};

/** Every row by its name. It is the way to say which of two rows that share a code is meant. */
enum class Row : uint16_t {
#define CONTROLLER(name)
#define COMMAND(name, code, request, reply) name,
#include "protocol/All.def"
#undef COMMAND
};

constexpr size_t kRowCount = 0
#define COMMAND(name, code, request, reply) +1
#include "protocol/All.def"
#undef COMMAND
#undef CONTROLLER
        ;

/** All rows, in the order of the manager's accessors and of their files. */
const std::array<Command, kRowCount>& commands();

const Command& commandOf(Row row);

/** The row of that name, or null. */
const Command* findCommand(const std::string& name);

/** The rows of that code: none, one, or the two that share it by design. */
std::vector<const Command*> findCommands(int32_t code);

/** The implementation classes of all controllers, in the order of the manager's accessors. */
const std::vector<std::string>& controllers();

}  // namespace tarn::protocol
