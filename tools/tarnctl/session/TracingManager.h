#pragma once

#include <tarn/TarnManager.h>

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

/** One message to the service and what became of it. */
struct Exchange {
    enum class State {
        kWaiting,   // no answer yet
        kAnswered,  // a reply came
        kLost,      // the service is not there, or died
        kRefused,   // not sent: more than the transport carries
    };

    bool isEvent = false;  // an event posted to the service; it has no reply
    int32_t what = 0;      // its number
    std::vector<uint8_t> request;
    std::vector<uint8_t> reply;
    int status = 0;
    State state = State::kWaiting;
};

/** What a call's exchanges mean for its exit code: kDone, kCommandFailed or kUnreachable. */
ExitCode outcomeOf(const std::vector<Exchange>& exchanges);

/** Why, for a person; empty if all is well. */
std::string reasonOf(const std::vector<Exchange>& exchanges);

/** The lines that --trace shows. */
std::vector<std::string> traceLines(const std::vector<Exchange>& exchanges);

/** A manager that keeps what passes between it and the service. Any thread may call. */
class TracingManager : public android::TarnManager {
  public:
    int invoke(const android::Parcel& request, android::Parcel* reply) override;
    int postEvent(int what, android::Parcel& data) override;

    /** The exchanges since the last call of this, the oldest first. */
    std::vector<Exchange> takeExchanges();

  private:
    size_t begin(Exchange exchange);
    void end(size_t number, const Exchange& outcome);

    std::mutex mLock;
    std::vector<Exchange> mExchanges;
    size_t mTaken = 0;  // exchanges before the first one of mExchanges
};

}  // namespace tarnctl
