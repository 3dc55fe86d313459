#pragma once

#include <utils/StrongPointer.h>

#include <string>

#include "simulator/board/SimulatedBoard.h"

namespace tarn::simulator {

/** The board file that is meant where none is named: TARN_BOARD's, else the default board. */
std::string defaultBoardPath();

/**
 * Loads a board and publishes it as the hardware service "default" of this process, and of no
 * other: here it comes before a board that is served on the session bus. It runs as long as it is
 * published. Throws BoardFileError if the board is refused, std::runtime_error if it can't
 * be published.
 */
android::sp<SimulatedBoard> startEmbeddedBoard(const std::string& path = defaultBoardPath(),
                                               const std::string& overridePath = "");

}  // namespace tarn::simulator
