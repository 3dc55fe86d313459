#pragma once

#include <json/value.h>

#include <cstdint>

namespace tarn::simulator {

/** Something that goes wrong with a command, and how often. */
struct Fault {
    enum class Kind {
        kStatus,          // answered with that status alone, nothing done
        kDeadObject,      // the transport says that the service died; nothing done
        kTransportError,  // any other error of the transport; nothing done
        kReplyBytes,      // done, but only so many bytes of the reply arrive; 0 is an empty reply
        kDelay,           // answered so many milliseconds later
    };

    Kind kind = Kind::kStatus;
    int32_t value = 0;       // status, bytes or milliseconds
    int32_t every = 1;       // every n-th call
    double probability = 1;  // or every call with this probability
    int32_t seed = 1;        // of the sequence that decides
};

constexpr uint32_t kMaxDelayMs = 60'000;

/**
 * Reads one of {"status": n}, {"transport": "dead"|"error"}, {"replyBytes": n}, {"delayMs": n},
 * each with "every": n or with "probability": p and "seed": n, if it is not for every call. Throws
 * JsonError.
 */
Fault faultFromJson(const Json::Value& json);

Json::Value toJson(const Fault& fault);

/** Whether one replaces the other when both are set for a command. */
bool sameEffect(const Fault& left, const Fault& right);

}  // namespace tarn::simulator
