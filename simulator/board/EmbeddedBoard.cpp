#include "simulator/EmbeddedBoard.h"

#include <hidl/HidlBinderSupport.h>
#include <utils/Errors.h>
#include <utils/String16.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarn.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "host/HostServiceManager.h"
#include "simulator/description/BoardLoader.h"

namespace tarn::simulator {

using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace {

/** The default board as it is installed with this program, if it is. */
std::filesystem::path installedBoard() {
    std::error_code failed;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failed);
    const auto board = program.parent_path() / TARN_INSTALLED_BOARDS / "default.json";
    return std::filesystem::exists(board, failed) ? board.lexically_normal() : "";
}

}  // namespace

std::string defaultBoardPath() {
    const char* chosen = getenv("TARN_BOARD");
    if (chosen != nullptr && *chosen != '\0') return chosen;
    const std::filesystem::path installed = installedBoard();
    return installed.empty() ? TARN_BOARD_DIR "/default.json" : installed.string();
}

android::sp<SimulatedBoard> startEmbeddedBoard(const std::string& path,
                                               const std::string& overridePath) {
    android::sp<SimulatedBoard> board(new SimulatedBoard(loadBoard(path, overridePath)));
    const android::status_t status = android::host::addLocalService(
            android::String16((std::string(IHwTarn::descriptor) + "/default").c_str()),
            android::hardware::toBinder<IHwTarn, BnHwHwTarn>(board));
    if (status != android::OK) {
        throw std::runtime_error("the board can't be published: error " + std::to_string(status));
    }
    return board;
}

}  // namespace tarn::simulator
