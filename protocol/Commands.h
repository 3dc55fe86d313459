#pragma once

#include <cstdint>

namespace android {

// Every command's code under its name, from the rows of the vocabulary.
#define CONTROLLER(name)
#define COMMAND(name, code, request, reply) constexpr int32_t name = code;
#include "protocol/All.def"
#undef COMMAND
#undef CONTROLLER

}  // namespace android
