#include "simulator/EmbeddedBoard.h"

#include <hidl/HidlBinderSupport.h>
#include <utils/Errors.h>
#include <utils/String16.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarn.h>

#include <stdexcept>

#include "host/HostServiceManager.h"
#include "simulator/control/LocalBoard.h"
#include "simulator/description/BoardLoader.h"

namespace tarn::simulator {

using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

EmbeddedBoard loadEmbeddedBoard(const std::string& path, const std::string& overridePath) {
    const android::sp<SimulatedBoard> board(new SimulatedBoard(loadBoard(path, overridePath)));
    return {board, controlOf(board)};
}

EmbeddedBoard startEmbeddedBoard(const std::string& path, const std::string& overridePath) {
    EmbeddedBoard board = loadEmbeddedBoard(path, overridePath);
    const android::status_t status = android::host::addLocalService(
            android::String16((std::string(IHwTarn::descriptor) + "/default").c_str()),
            android::hardware::toBinder<IHwTarn, BnHwHwTarn>(board.service));
    if (status != android::OK) {
        throw std::runtime_error("the board can't be published: error " + std::to_string(status));
    }
    return board;
}

}  // namespace tarn::simulator
