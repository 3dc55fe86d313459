#pragma once

#include <tarn/Export.h>

namespace android {
class Parcel;
}

/**
 * An application's listener for the board's events; see ITarnManager::registerListener(). The
 * library does not own it: keep it alive until it is unregistered and no event is being delivered.
 */
class TARN_EXPORT ITarnListener {
  public:
    /**
     * Called for every event on the library's event thread, with no library lock held: it may issue
     * commands and register or unregister listeners. Events come one at a time, in the order in
     * which they were raised and at most one every 10 ms; a listener that takes long delays those
     * that follow. What waits is kept in memory, without a bound. When createTarnMsgManager() was
     * called more than once, each call added a thread, and events may come side by side.
     *
     * @param msgType the event's number, service-defined.
     * @param ext1    always 0.
     * @param ext2    always 0.
     * @param data    the event's bytes from position 0, none for an empty event; valid during the
     *                call only.
     */
    virtual void notify(unsigned int msgType, int ext1, int ext2, const android::Parcel* data) = 0;

    virtual ~ITarnListener() = default;
};
