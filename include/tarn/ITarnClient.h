#pragma once

#include <binder/IInterface.h>
#include <binder/Parcel.h>
#include <utils/Mutex.h>

namespace android {

/**
 * What a client of "tarn.service" offers to the service: a place to be notified.
 *
 * The meta-interface is written out by hand: the platform's macro differs between releases.
 */
class ITarnClient : public IInterface {
  public:
    static const String16 descriptor;
    static sp<ITarnClient> default_impl;

    /** The object itself where it lives in this process, else a new proxy; null for null. */
    static sp<ITarnClient> asInterface(const sp<IBinder>& binder);

    /** Replaces the default implementation; false, and nothing changed, for null. */
    static bool setDefaultImpl(const sp<ITarnClient>& impl);
    static sp<ITarnClient> getDefaultImpl();

    ITarnClient();
    ~ITarnClient() override;

    virtual const String16& getInterfaceDescriptor() const;

    /**
     * Delivers one notification; towards another process it is sent one-way.
     *
     * @param msgType service-defined number.
     * @param data    the bytes, or null.
     * @param size    number of bytes. A receiver in another process may see up to three bytes
     *                more, the padding of the last word.
     * @param ext     not transmitted to another process.
     */
    virtual void notify(unsigned int msgType, void* data, unsigned int size, void* ext) = 0;

    enum : uint32_t {
        NOTIFY = IBinder::FIRST_CALL_TRANSACTION,
    };
};

/** The receiving side. All notifications of a process are delivered one at a time. */
class BnTarnClient : public BnInterface<ITarnClient> {
  public:
    status_t onTransact(uint32_t code, const Parcel& data, Parcel* reply,
                        uint32_t flags = 0) override;

  protected:
    /**
     * Takes the buffer that came in the transaction being served: notify() owns it, calls this
     * first and frees data with delete[] of uint8_t where the answer is true, which it is once for
     * each such buffer. The buffer of a caller in this process stays the caller's: false.
     */
    static bool takeBuffer(const void* data);

    /** Held for the whole of every transaction. */
    static Mutex mNotifyLock;
};

/** The sending side, for a client in another process. */
class BpTarnClient : public BpInterface<ITarnClient> {
  public:
    explicit BpTarnClient(const sp<IBinder>& remote);

    void notify(unsigned int msgType, void* data, unsigned int size, void* ext) override;
};

}  // namespace android
