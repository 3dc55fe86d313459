#pragma once

#include <binder/IInterface.h>
#include <binder/Parcel.h>
#include <tarn/Export.h>
#include <tarn/ITarnClient.h>
#include <utils/Mutex.h>

namespace android {

/**
 * The service that is published as "tarn.service": clients connect, to be notified, and invoke.
 *
 * The meta-interface is written out by hand: the platform's macro differs between releases.
 */
class TARN_EXPORT ITarnService : public IInterface {
  public:
    static const String16 descriptor;
    static sp<ITarnService> default_impl;

    /** The object itself where it lives in this process, else a new proxy; null for null. */
    static sp<ITarnService> asInterface(const sp<IBinder>& binder);

    /**
     * Replaces what getDefaultImpl() returns, which nothing else uses. Null changes nothing: false.
     */
    static bool setDefaultImpl(const sp<ITarnService>& impl);
    static sp<ITarnService> getDefaultImpl();

    ITarnService();
    ~ITarnService() override;

    virtual const String16& getInterfaceDescriptor() const;

    /**
     * Registers a client for notifications under its process id. Returns the service's answer, 0
     * when the service was not reached: no sign of success. A proxy logs an error line each time.
     */
    virtual int connect(int pid, const sp<ITarnClient>& client) = 0;

    /**
     * Carries a payload of the caller's own to the service and waits for its answer. data begins
     * with the interface token "android.ITarnService", which the caller writes. Returns the
     * transaction's status.
     */
    virtual status_t invoke(const Parcel& data, Parcel* reply) = 0;

    enum : uint32_t {
        CONNECT = IBinder::FIRST_CALL_TRANSACTION,
        INVOKE,
    };
};

/**
 * The receiving side; called on binder threads of the process, several at once. A call without the
 * right interface token gets PERMISSION_DENIED.
 */
class TARN_EXPORT BnTarnService : public BnInterface<ITarnService> {
  public:
    status_t onTransact(uint32_t code, const Parcel& data, Parcel* reply,
                        uint32_t flags = 0) override;

  protected:
    /** For implementations that want their calls one at a time; not taken here. */
    static Mutex m_binderLock;
};

/** The sending side, for a service in another process. */
class TARN_EXPORT BpTarnService : public BpInterface<ITarnService> {
  public:
    explicit BpTarnService(const sp<IBinder>& remote);

    int connect(int pid, const sp<ITarnClient>& client) override;
    status_t invoke(const Parcel& data, Parcel* reply) override;
};

}  // namespace android
