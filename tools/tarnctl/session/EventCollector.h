#pragma once

#include <hidl/HidlSupport.h>
#include <tarn/ITarnListener.h>
#include <tarn/ITarnManager.h>
#include <utils/StrongPointer.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

#include "tools/tarnctl/session/Wakeup.h"

namespace tarnctl {

/** One event of the board. */
struct BoardEvent {
    uint32_t type;
    std::vector<uint8_t> data;
};

/** Collects the board's events, the latest ones if nobody takes them. Any thread may call. */
class EventCollector : public ITarnListener, public android::hardware::hidl_death_recipient {
  public:
    static constexpr size_t kMostEvents = 10'000;

    /** Starts collecting; null if the service can't be reached. Lives as long as the process. */
    static android::sp<EventCollector> start(android::ITarnManager* manager);

    std::optional<BoardEvent> next();
    bool serviceDied() const;

    /** Signalled when there is an event or the service died. */
    Wakeup& wakeup() { return mWakeup; }

    void notify(unsigned int msgType, int ext1, int ext2, const android::Parcel* data) override;
    void serviceDied(uint64_t cookie,
                     const android::wp<android::hidl::base::V1_0::IBase>& who) override;

  private:
    /** Asks to be told of the service's death; false if it is dead already. */
    bool watch(const android::sp<vendor::zunt::hwtarn::V1_0::IHwTarn>& service);

    // A proxy that nobody holds forgets whom to tell of the death.
    android::sp<vendor::zunt::hwtarn::V1_0::IHwTarn> mService;
    mutable std::mutex mLock;
    std::deque<BoardEvent> mEvents;
    bool mServiceDied = false;
    Wakeup mWakeup;
};

}  // namespace tarnctl
