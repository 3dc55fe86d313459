#include <binder/IServiceManager.h>
#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "simulator/BoardFiles.h"

namespace tarn::simulator {

namespace {

namespace fs = std::filesystem;

/** The default board as it is installed, seen from a file that is installed too. */
fs::path installedBoard(const fs::path& file, const char* boards) {
    std::error_code failed;
    const fs::path board = file.parent_path() / boards / "default.json";
    return fs::exists(board, failed) ? board.lexically_normal() : "";
}

fs::path thisProgram() {
    std::error_code failed;
    return fs::read_symlink("/proc/self/exe", failed);
}

/** The platform's libbinder, beside which a program from elsewhere finds the board. */
fs::path platformLibrary() {
    Dl_info found{};
    if (dladdr(reinterpret_cast<void*>(&android::defaultServiceManager), &found) == 0) return "";
    return found.dli_fname;
}

}  // namespace

std::string defaultBoardPath() {
    const char* chosen = getenv("TARN_BOARD");
    if (chosen != nullptr && *chosen != '\0') return chosen;
    fs::path board = installedBoard(thisProgram(), TARN_BOARDS_FROM_PROGRAMS);
    if (board.empty()) board = installedBoard(platformLibrary(), TARN_BOARDS_FROM_LIBRARIES);
    return board.empty() ? TARN_BOARD_DIR "/default.json" : board.string();
}

}  // namespace tarn::simulator
