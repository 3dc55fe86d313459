#pragma once

#include <tarn/Export.h>
#include <tarn/ITarnClient.h>
#include <tarn/ITarnService.h>
#include <utils/Mutex.h>
#include <utils/RefBase.h>

namespace android {

/** Where an application receives the notifications of "tarn.service". */
class TARN_EXPORT ITarnClientCallback : public virtual RefBase {
  public:
    /**
     * Receives one notification. When the service is in another process, this is called on a binder
     * thread of the process, and the next notification is delivered when it has returned. When the
     * service is in this process, it is called on the thread that raises the notification, and must
     * not raise another one.
     *
     * @param msgType service-defined number.
     * @param data    the bytes; valid during the call only.
     * @param size    number of bytes; from another process up to three more than were sent.
     * @param ext     null for a notification from another process.
     */
    virtual void notify(unsigned int msgType, void* data, unsigned int size, void* ext) = 0;
};

/**
 * Returns the process's reference to "tarn.service". Where there is none yet, it waits until the
 * service is published, forever if need be, links to its death and registers client with it; when
 * the reference is there already, client is not registered. The reference is dropped when the
 * service dies: a caller that may see that happen uses a TarnClient instead. Any thread may call.
 */
TARN_EXPORT const sp<ITarnService>& getTarnService(const ITarnClient* client);

/**
 * An application's client of "tarn.service"; any thread may call. Hold it in an sp<> from the
 * start.
 *
 * Notifications, and the news that the service died, come on binder threads of the process. The
 * library starts none: the process has to call ProcessState::self()->startThreadPool() first.
 * Without it no notification comes, and after the service's end every invoke() returns DEAD_OBJECT
 * (-32), also when the service is back.
 *
 * Each call finds the service by itself, a restarted one too; nothing happens between calls, so
 * after a restart no notification comes before the next connect() or invoke(). The client whose
 * call found it is registered with it; every other one gets its notifications only after a
 * connect() of its own. TarnRecovery registers a client again by itself.
 */
class TARN_EXPORT TarnClient : public BnTarnClient {
  public:
    /** @param callback where notifications go; null drops them. */
    explicit TarnClient(const sp<ITarnClientCallback>& callback = nullptr);
    ~TarnClient() override;

    /** Registers with the service; waits until there is one. Always returns 0. */
    int connect();

    /**
     * Carries data, which begins with the interface token "android.ITarnService", to the service
     * and waits for its answer, before that until there is a service. Returns the service's or the
     * transport's status.
     */
    status_t invoke(const Parcel& data, Parcel* reply);

    /**
     * Hands a notification to the callback; see there for the thread. It owns the buffer of a
     * notification from another process: a derived class that overrides it takes the buffer with
     * takeBuffer() or calls this one.
     */
    void notify(unsigned int msgType, void* data, unsigned int size, void* ext) override;

  protected:
    /** Replaces the callback, after a notification being delivered: do not call it from there. */
    void setCallback(const sp<ITarnClientCallback>& callback);

    /** A derived class fills it before the first notification, later with setCallback(). */
    sp<ITarnClientCallback> mCallback;

  private:
    Mutex mLock;  // held while a notification is delivered
};

}  // namespace android
