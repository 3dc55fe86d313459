#pragma once

#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <cstdint>

namespace android {

/**
 * The process-wide proxy for the length of one call, looked up first where there is none.
 *
 * Commands of several threads write nothing that they share: each thread keeps the copy of its last
 * call and takes it again while the proxy has not been replaced. An outdated copy is released when
 * its thread calls again or ends.
 */
class ServiceInUse {
  public:
    ServiceInUse();
    ~ServiceInUse();
    ServiceInUse(const ServiceInUse&) = delete;
    ServiceInUse& operator=(const ServiceInUse&) = delete;

    /** Null without a service. */
    ::vendor::zunt::hwtarn::V1_0::IHwTarn* get() const { return mService; }

    /** Releases what the calling thread keeps. */
    static void forget();

    /** What a thread keeps between its calls. */
    struct Kept;

  private:
    void renew();

    Kept& mKept;
    // A strong reference of this object's own. The thread keeps none meanwhile: a call that the
    // service makes on the same thread takes another.
    ::vendor::zunt::hwtarn::V1_0::IHwTarn* mService;
    uint32_t mEdition;
};

}  // namespace android
