#pragma once

#include "host/binder/carrier/Carrier.h"

namespace android::host {

/** Whose work the calling thread does when it joins a pool. */
Domain threadDomain();

// A thread has taken work of HIDL's, and has done it: the pool grows when none is left to wait.
void beginHwWork();
void endHwWork();

}  // namespace android::host
