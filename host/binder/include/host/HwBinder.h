#pragma once

#include <cstddef>

namespace android::host {

/**
 * What HIDL needs of binder. A device has two drivers, one for plain binder and one for HIDL, and a
 * process has threads for each. Here both share a carrier, but no thread serves both.
 */

/** What an object of HIDL's, and no other, answers with true to checkSubclass(). */
const void* hwObjectId();

/** Sets how many threads HIDL's pool may have; 1 unless set, 0 if it is never to have any. */
void setHwPoolMaxThreads(size_t maxThreads);

/** Starts HIDL's pool, unless it runs already or may have no threads. */
void startHwPool();

/** Makes the calling thread serve HIDL's calls; does not return in normal use. */
void joinHwPool();

}  // namespace android::host
