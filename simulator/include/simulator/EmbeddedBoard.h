#pragma once

#include <utils/StrongPointer.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <memory>
#include <string>

#include "simulator/BoardControl.h"
#include "simulator/BoardFiles.h"

namespace tarn::simulator {

/** A board of this process: the hardware service that it plays, and what steers it. */
struct EmbeddedBoard {
    android::sp<vendor::zunt::hwtarn::V1_0::IHwTarn> service;
    std::shared_ptr<BoardControl> control;  // keeps the board, as the service does
};

/** Loads a board without publishing it. Throws BoardFileError if the board is refused. */
EmbeddedBoard loadEmbeddedBoard(const std::string& path = defaultBoardPath(),
                                const std::string& overridePath = "");

/**
 * Loads a board and publishes it as the hardware service "default" of this process, and of no
 * other: here it comes before a board that is served on the session bus. It runs as long as it is
 * published. Throws BoardFileError if the board is refused, std::runtime_error if it can't
 * be published.
 */
EmbeddedBoard startEmbeddedBoard(const std::string& path = defaultBoardPath(),
                                 const std::string& overridePath = "");

}  // namespace tarn::simulator
