#include "tools/tarnctl/board/BoardLink.h"

namespace tarnctl {

bool isServicePublished() {
    return false;
}

std::unique_ptr<BoardLink> startEmbeddedBoard(const BoardFiles&) {
    return nullptr;
}

std::unique_ptr<BoardLink> findServedBoard(pid_t) {
    return nullptr;
}

}  // namespace tarnctl
