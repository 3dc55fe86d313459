#pragma once

#include <tarn/ITarnPlatform.h>
#include <tarn/ITarnService.h>
#include <utils/Mutex.h>
#include <utils/SortedVector.h>

namespace android {

/** The platform side of the published service; null before instantiate() and after its end. */
extern ITarnPlatform* sTarnPlatform;

/**
 * The service of "tarn.service": keeps its clients for ever, each once, and fans every
 * notification of its platform side out to all of them.
 */
class TarnService : public BnTarnService, public ITarnPlatform {
  public:
    /** Creates a service and publishes it as "tarn.service"; sTarnPlatform is its other side. */
    static void instantiate();

    /** Forgets the platform side; the service stays published. */
    static void deinstantiate();

    TarnService();
    ~TarnService() override;

    /** Registers a client, recognised by its binder. Always -1, which clients don't test. */
    int connect(int pid, const sp<ITarnClient>& client) override;

    /** Always -1. */
    status_t invoke(const Parcel& data, Parcel* reply) override;

    int initTv() const override;
    int exitTv() const override;
    int notify(unsigned int msgType, void* data, unsigned int size, void* ext) const override;

  private:
    bool hasClient(const sp<ITarnClient>& client) const;

    mutable Mutex mLock;  // held while a notification is fanned out
    SortedVector<sp<ITarnClient>> mClients;
    SortedVector<int> mClientPids;
    mutable Mutex mClientLock;  // guards the two lists; held while a client connects
};

}  // namespace android
