#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "simulator/BoardFiles.h"

namespace tarn::simulator {

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

}  // namespace tarn::simulator
