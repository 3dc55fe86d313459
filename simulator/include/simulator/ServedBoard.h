#pragma once

#include <sys/types.h>

#include <memory>
#include <optional>

#include "simulator/BoardControl.h"

namespace tarn::simulator {

/**
 * The control of the board that is served on the session bus now, and of that one only: by this
 * process, if one is given. Null if it is not served, or if there is no bus.
 */
std::unique_ptr<BoardControl> findServedBoard(std::optional<pid_t> process = std::nullopt);

}  // namespace tarn::simulator
