#include "tools/tarnctl/cli/BoardLink.h"

namespace tarnctl {

std::unique_ptr<BoardLink> startEmbeddedBoard(const BoardFiles&) {
    return nullptr;
}

}  // namespace tarnctl
