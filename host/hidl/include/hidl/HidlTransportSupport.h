#pragma once

#include <hidl/HidlSupport.h>
#include <hidl/Status.h>

#include <cstddef>

namespace android::hardware {

/**
 * Sets how many threads serve HIDL's calls and tell of deaths, 1 unless set. They serve no plain
 * binder. Call it before anything is registered.
 * @param maxThreads at least 1, the caller included if it will join
 * @param callerWillJoin whether the caller goes on to joinRpcThreadpool()
 */
void configureRpcThreadpool(size_t maxThreads, bool callerWillJoin);

/** Makes the calling thread one of those that serve calls; does not return in normal use. */
void joinRpcThreadpool();

}  // namespace android::hardware
