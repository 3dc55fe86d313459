#pragma once

#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <memory>
#include <vector>

#include "simulator/board/Board.h"
#include "simulator/board/EventCallbacks.h"
#include "simulator/board/PostedEvents.h"
#include "simulator/faults/Faults.h"

namespace tarn::simulator {

/**
 * The hardware service of a simulated board. Commands are carried out on the caller's thread, a
 * delay or latency included; events are handed to each callback by a thread of its own, in the
 * order of raising.
 */
class SimulatedBoard : public ::vendor::zunt::hwtarn::V1_0::IHwTarn {
  public:
    explicit SimulatedBoard(std::shared_ptr<const BoardModel> model);

    /** A malformed request, or one of an unknown command, is answered with status -1. */
    ::android::hardware::Return<void> hwInvoke(const ::android::hardware::hidl_string& request,
                                               hwInvoke_cb _hidl_cb) override;

    /**
     * A second callback of the same process replaces the first. The process is the one that calls;
     * the pid counts only for a callback of this process.
     */
    ::android::hardware::Return<void> hwRegisterCallback(
            const ::android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback>& callback,
            int32_t pid) override;

    /** Keeps the event for postedEvents(); the board does nothing else with it. */
    ::android::hardware::Return<void> hwPostEvent(
            int32_t what, const ::android::hardware::hidl_string& data) override;

    /**
     * Queues an event for all callbacks; one that nobody has registered for is lost, as on a board.
     * False if too many wait already for one of them.
     */
    bool raiseEvent(const Event& event) { return mCallbacks->post(event); }

    /** State and faults as the board's files describe them; posted events are forgotten. */
    void reset();

    Board& board() { return mBoard; }
    Faults& faults() { return mFaults; }
    size_t callbackCount() const { return mCallbacks->size(); }
    std::vector<PostedEvent> postedEvents() const { return mPosted.list(); }

  private:
    void switchOnDescribedFaults();

    Board mBoard;
    Faults mFaults;
    PostedEvents mPosted;
    const std::shared_ptr<EventCallbacks> mCallbacks;
};

}  // namespace tarn::simulator
