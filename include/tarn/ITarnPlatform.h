#pragma once

namespace android {

/** The platform side of the binder service: where notifications for its clients come in. */
class ITarnPlatform {
  public:
    /** Always -1: the service has nothing to start. */
    virtual int initTv() const = 0;

    /** Always -1: the service has nothing to stop. */
    virtual int exitTv() const = 0;

    /**
     * Sends a notification to every connected client. The call returns before remote clients
     * have seen it.
     *
     * @param msgType service-defined number of the notification.
     * @param data    its bytes, or null; they stay the caller's.
     * @param size    number of bytes in data.
     * @param ext     handed to clients in the same process, never transmitted.
     * @return 0.
     */
    virtual int notify(unsigned int msgType, void* data, unsigned int size, void* ext) const = 0;

    virtual ~ITarnPlatform() = default;
};

}  // namespace android
