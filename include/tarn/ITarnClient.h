#pragma once

#include <binder/IInterface.h>
#include <binder/Parcel.h>
#include <tarn/Export.h>
#include <utils/Mutex.h>

namespace android {

/**
 * What a client of "tarn.service" offers to the service: a place to be notified.
 *
 * The meta-interface is written out by hand: the platform's macro differs between releases.
 */
class TARN_EXPORT ITarnClient : public IInterface {
  public:
    static const String16 descriptor;
    static sp<ITarnClient> default_impl;

    /** The object itself where it lives in this process, else a new proxy; null for null. */
    static sp<ITarnClient> asInterface(const sp<IBinder>& binder);

    /**
     * Replaces what getDefaultImpl() returns, which nothing else uses. Null changes nothing: false.
     */
    static bool setDefaultImpl(const sp<ITarnClient>& impl);
    static sp<ITarnClient> getDefaultImpl();

    ITarnClient();
    ~ITarnClient() override;

    virtual const String16& getInterfaceDescriptor() const;

    /**
     * Delivers one notification. To another process it is sent one-way and arrives on a binder
     * thread there; in the same process it is a plain call.
     *
     * @param msgType service-defined number.
     * @param data    the bytes, or null.
     * @param size    number of bytes. A receiver in another process may see up to three bytes more,
     *                the padding of the last word.
     * @param ext     not transmitted to another process.
     */
    virtual void notify(unsigned int msgType, void* data, unsigned int size, void* ext) = 0;

    enum : uint32_t {
        NOTIFY = IBinder::FIRST_CALL_TRANSACTION,
    };
};

/**
 * The receiving side; called on binder threads of the process. What comes from other processes is
 * delivered one at a time in the whole process; without the right interface token it gets
 * PERMISSION_DENIED.
 */
class TARN_EXPORT BnTarnClient : public BnInterface<ITarnClient> {
  public:
    status_t onTransact(uint32_t code, const Parcel& data, Parcel* reply,
                        uint32_t flags = 0) override;

  protected:
    /**
     * Tells notify() whether it must free data. True once, for the buffer that came in the
     * transaction being served on this thread: free it with delete[] as a uint8_t array. False for
     * any other buffer, which stays its caller's.
     */
    static bool takeBuffer(const void* data);

    /** Held for the whole of every transaction, notify() included. */
    static Mutex mNotifyLock;
};

/** The sending side, for a client in another process. */
class TARN_EXPORT BpTarnClient : public BpInterface<ITarnClient> {
  public:
    explicit BpTarnClient(const sp<IBinder>& remote);

    void notify(unsigned int msgType, void* data, unsigned int size, void* ext) override;
};

}  // namespace android
