#pragma once

#include <tarn/Export.h>

namespace android {

/**
 * The platform side of the binder service: notifications for its clients come in here, on any
 * thread.
 */
class TARN_EXPORT ITarnPlatform {
  public:
    /** Always returns -1: the service has nothing to start. */
    virtual int initTv() const = 0;

    /** Always returns -1: the service has nothing to stop. */
    virtual int exitTv() const = 0;

    /**
     * Sends a notification to every connected client, one after the other. The call returns before
     * clients in other processes have seen it. A client in this process is called during the call,
     * on the same thread; when it calls notify() in turn, that never returns.
     *
     * @param msgType service-defined number of the notification.
     * @param data    its bytes, or null; they stay the caller's.
     * @param size    number of bytes in data.
     * @param ext     handed to clients in the same process, never transmitted.
     * @return 0, also when a client was not reached.
     */
    virtual int notify(unsigned int msgType, void* data, unsigned int size, void* ext) const = 0;

    virtual ~ITarnPlatform() = default;
};

}  // namespace android
