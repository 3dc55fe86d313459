#pragma once

#include <memory>

#include "simulator/board/SimulatedBoard.h"

namespace tarn::simulator {

/** A board that tells on standard error what is asked of it, and by which process. */
class TracedBoard : public SimulatedBoard {
  public:
    using SimulatedBoard::SimulatedBoard;

    ::android::hardware::Return<void> hwInvoke(const ::android::hardware::hidl_string& request,
                                               hwInvoke_cb _hidl_cb) override;
    ::android::hardware::Return<void> hwRegisterCallback(
            const ::android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback>& callback,
            int32_t pid) override;
    ::android::hardware::Return<void> hwPostEvent(
            int32_t what, const ::android::hardware::hidl_string& data) override;
};

}  // namespace tarn::simulator
