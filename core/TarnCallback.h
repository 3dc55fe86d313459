#pragma once

#include <vendor/zunt/hwtarn/1.0/IHwTarnCallback.h>

/** What the hardware service calls with the board's events, on a HAL thread. */
class TarnCallback : public ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback {
  public:
    /** Text events are not delivered. */
    ::android::hardware::Return<void> hwNotify(
            uint32_t msgType, int32_t arg, const ::android::hardware::hidl_string& text) override;

    /** Queues a copy of the event for the looper's thread; drops it while there is no looper. */
    ::android::hardware::Return<void> hwNotify_vec(
            uint32_t msgType, int32_t arg,
            const ::android::hardware::hidl_vec<uint8_t>& data) override;
};
