#pragma once

namespace android::host {

/**
 * What a thread of the pool holds while it serves, so that nothing is served while the process's
 * destructors run: once exit() has begun, what is under way gets a second to end and a thread that
 * comes now waits here for the end of the process.
 */
class ServingGate {
  public:
    ServingGate();
    ~ServingGate();
    ServingGate(const ServingGate&) = delete;
    ServingGate& operator=(const ServingGate&) = delete;

    /**
     * Has exit() close the gate, before it destroys any object that is static when this is called
     * for the first time.
     */
    static void closeAtExit();
};

}  // namespace android::host
