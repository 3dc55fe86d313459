#pragma once

#include <hidl/HidlSupport.h>
#include <tarn/ITarnListener.h>
#include <tarn/ITarnManager.h>
#include <tarn/TarnRecovery.h>
#include <utils/StrongPointer.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "tools/tarnctl/session/Wakeup.h"

namespace tarnctl {

/** One event of the board. */
struct BoardEvent {
    uint32_t type = 0;
    std::vector<uint8_t> data;
    uint64_t leftOut = 0;  // how many before it nobody took in time
};

/** Collects the board's events, the latest kMostEvents if nobody takes them. Any thread may call.
 */
class EventCollector : public ITarnListener,
                       public android::ITarnRecoveryListener,
                       public android::hardware::hidl_death_recipient {
  public:
    static constexpr size_t kMostEvents = 10'000;

    /** Starts collecting; null if the service can't be reached. Lives as long as the process. */
    static android::sp<EventCollector> start(android::ITarnManager* manager);

    /** The same, but goes on after each restart of the service. */
    static android::sp<EventCollector> startReconnecting(android::ITarnManager* manager);

    std::optional<BoardEvent> next();

    /** Never if it reconnects. */
    bool serviceDied() const;

    /** How often the service went away or came back, one after the other, if it reconnects. */
    int changes() const;

    /** Signalled when there is an event, or the service died or came back. */
    Wakeup& wakeup() { return mWakeup; }

    void notify(unsigned int msgType, int ext1, int ext2, const android::Parcel* data) override;
    void serviceDied(uint64_t cookie,
                     const android::wp<android::hidl::base::V1_0::IBase>& who) override;
    void serviceLost() override;
    void serviceBack() override;

  private:
    void addChange();

    /** Asks to be told of the service's death; false if it is dead already. */
    bool watch(const android::sp<vendor::zunt::hwtarn::V1_0::IHwTarn>& service);

    // A proxy that nobody holds forgets whom to tell of the death.
    android::sp<vendor::zunt::hwtarn::V1_0::IHwTarn> mService;
    mutable std::mutex mLock;
    std::deque<BoardEvent> mEvents;
    uint64_t mLeftOut = 0;  // before the first of these
    bool mServiceDied = false;
    int mChanges = 0;
    std::unique_ptr<android::TarnRecovery> mRecovery;  // null unless it reconnects
    Wakeup mWakeup;
};

}  // namespace tarnctl
