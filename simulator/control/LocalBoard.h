#pragma once

#include <utils/StrongPointer.h>

#include <memory>

#include "simulator/BoardControl.h"
#include "simulator/board/SimulatedBoard.h"

namespace tarn::simulator {

/** The control of a board of this process, which it keeps. */
std::unique_ptr<BoardControl> controlOf(const android::sp<SimulatedBoard>& board);

}  // namespace tarn::simulator
