#pragma once

#include <tarn/TarnManager.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <string>
#include <vector>

namespace tarn::bench {

/** What an exchange is made through: the manager, and for the one by hand the service itself. */
struct Session {
    android::sp<android::TarnManager> manager;
    android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarn> service;
};

/** Makes a session with a service of this process. Ends the program if there can be none. */
Session openSession();

/** One piece of work, once; ends the program if its result is wrong. */
using Work = void (*)(const Session& session);

/**
 * A method through the public API, and what it cannot do without written out in one function: a
 * request parcel, the copy of it, the HAL's string, one call, the reply parcel, the caller's value.
 */
struct Exchange {
    const char* name;
    Work api;
    Work byHand;
};

const std::vector<Exchange>& exchanges();

/** A request of two words, its copy, a reply of two words: written, copied, read. */
void parcelWork(const Session& session);

}  // namespace tarn::bench
