#pragma once

namespace android::host {

/**
 * Held by a pool thread while it serves, so that nothing is served while the process's static
 * destructors run. Once exit() has begun, work under way gets one second to end, and a thread that
 * wants to begin waits here until the process ends.
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
