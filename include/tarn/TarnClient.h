#pragma once

#include <tarn/ITarnClient.h>
#include <tarn/ITarnService.h>
#include <utils/Mutex.h>
#include <utils/RefBase.h>

namespace android {

/** Where an application receives the notifications of "tarn.service". */
class ITarnClientCallback : public virtual RefBase {
  public:
    /**
     * Called on a binder thread, one notification at a time in the process.
     *
     * @param msgType service-defined number.
     * @param data    the bytes; valid during the call only.
     * @param size    number of bytes, up to three more than were sent.
     * @param ext     null for a notification from another process.
     */
    virtual void notify(unsigned int msgType, void* data, unsigned int size, void* ext) = 0;
};

/**
 * The process's reference to "tarn.service": waits, if need be for ever, until the service is
 * published, links to its death and registers the client with it. The reference is dropped when
 * the service dies; a caller that may see that happen uses a TarnClient instead.
 */
const sp<ITarnService>& getTarnService(const ITarnClient* client);

/** An application's client of "tarn.service". It finds a restarted service by itself. */
class TarnClient : public BnTarnClient {
  public:
    /** @param callback where notifications go; null drops them. */
    explicit TarnClient(const sp<ITarnClientCallback>& callback = nullptr);
    ~TarnClient() override;

    /** Registers with the service; waits until there is one. Always 0. */
    int connect();

    /**
     * Carries data, which begins with the interface token "android.ITarnService", to the service;
     * waits until there is one. Returns the service's status.
     */
    status_t invoke(const Parcel& data, Parcel* reply);

    /**
     * Hands a notification to the callback; called on a binder thread. It owns the buffer of a
     * notification from another process: a derived class that overrides it takes the buffer with
     * takeBuffer() or calls this one.
     */
    void notify(unsigned int msgType, void* data, unsigned int size, void* ext) override;

  protected:
    /** Replaces the callback. Waits for a notification that is being delivered. */
    void setCallback(const sp<ITarnClientCallback>& callback);

    /** A derived class fills it before the first notification, later with setCallback(). */
    sp<ITarnClientCallback> mCallback;

  private:
    Mutex mLock;  // held while a notification is delivered
};

}  // namespace android
