#include "simulator/EmbeddedBoard.h"

#include <utils/Errors.h>

#include <cstdlib>
#include <stdexcept>

#include "simulator/BoardLoader.h"

namespace tarn::simulator {

std::string defaultBoardPath() {
    const char* chosen = getenv("TARN_BOARD");
    if (chosen != nullptr && *chosen != '\0') return chosen;
    return TARN_BOARD_DIR "/default.json";
}

android::sp<SimulatedBoard> startEmbeddedBoard(const std::string& path,
                                               const std::string& overridePath) {
    android::sp<SimulatedBoard> board(new SimulatedBoard(loadBoard(path, overridePath)));
    const android::status_t status = board->registerAsService();
    if (status != android::OK) {
        throw std::runtime_error("the board can't be published: error " + std::to_string(status));
    }
    return board;
}

}  // namespace tarn::simulator
