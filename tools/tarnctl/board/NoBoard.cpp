#include "tools/tarnctl/board/Boards.h"

namespace tarnctl {

bool isServicePublished() {
    return false;
}

std::shared_ptr<BoardControl> startEmbeddedBoard(const BoardFiles&) {
    return nullptr;
}

std::shared_ptr<BoardControl> findServedBoard(pid_t) {
    return nullptr;
}

}  // namespace tarnctl
