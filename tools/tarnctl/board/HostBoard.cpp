#include <binder/IServiceManager.h>
#include <utils/String16.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <algorithm>
#include <stdexcept>

#include "simulator/EmbeddedBoard.h"
#include "simulator/ServedBoard.h"
#include "tools/tarnctl/board/Boards.h"
#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

namespace {

using android::IServiceManager;
using android::String16;

const std::string kCantStart = "the simulated board can't be started:\n";

}  // namespace

bool isServicePublished() {
    const String16 name(
            (std::string(vendor::zunt::hwtarn::V1_0::IHwTarn::descriptor) + "/default").c_str());
    const auto names =
            android::defaultServiceManager()->listServices(IServiceManager::DUMP_FLAG_PRIORITY_ALL);
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::shared_ptr<BoardControl> startEmbeddedBoard(const BoardFiles& files) try {
    const std::string path =
            files.board.empty() ? tarn::simulator::defaultBoardPath() : files.board;
    return tarn::simulator::startEmbeddedBoard(path, files.overrides).control;
} catch (const tarn::simulator::BoardFileError& refusal) {
    throw Failure(kBadUsage, kCantStart + refusal.what());
} catch (const std::runtime_error& error) {
    throw Failure(kUnreachable, kCantStart + error.what());
}

std::shared_ptr<BoardControl> findServedBoard(pid_t process) {
    return tarn::simulator::findServedBoard(process);
}

}  // namespace tarnctl
