#pragma once

#include <tarn/Export.h>
#include <tarn/ITarnPlatform.h>
#include <tarn/ITarnService.h>
#include <utils/Mutex.h>
#include <utils/SortedVector.h>

namespace android {

/**
 * The platform side of the published service; null before instantiate(), after deinstantiate() and
 * after the service's end.
 */
TARN_EXPORT extern ITarnPlatform* sTarnPlatform;

/**
 * The service of "tarn.service": keeps its clients forever, each once and dead ones too, and sends
 * every notification of its platform side to all of them.
 *
 * Clients in other processes call it on binder threads of this process, several at once. The
 * library starts none: the process has to call ProcessState::self()->startThreadPool(), best before
 * instantiate(), or IPCThreadState::self()->joinThreadPool(); until then the published service
 * answers nobody, and whoever connects waits. Any thread may call its platform side; notifications
 * go out one at a time, on the thread that raises them. One that is too large for the transport is
 * lost without a sign.
 */
class TARN_EXPORT TarnService : public BnTarnService, public ITarnPlatform {
  public:
    /**
     * Creates a service and publishes it as "tarn.service", not for isolated processes;
     * sTarnPlatform is its platform side. When the service manager refuses it, as a device does
     * where a rule for the name is missing, it is gone again and sTarnPlatform null; nothing else
     * tells, so test sTarnPlatform.
     */
    static void instantiate();

    /** Sets sTarnPlatform to null; the service stays published. */
    static void deinstantiate();

    TarnService();
    ~TarnService() override;

    /** Registers a client, recognised by its binder. Always returns -1, which is no failure. */
    int connect(int pid, const sp<ITarnClient>& client) override;

    /** Does nothing; always returns -1. */
    status_t invoke(const Parcel& data, Parcel* reply) override;

    int initTv() const override;
    int exitTv() const override;
    int notify(unsigned int msgType, void* data, unsigned int size, void* ext) const override;

  private:
    mutable Mutex mLock;  // held while a notification is fanned out
    SortedVector<sp<ITarnClient>> mClients;
    SortedVector<int> mClientPids;
    mutable Mutex mClientLock;        // guards the three lists; held while a client connects
    SortedVector<IBinder*> mBinders;  // of mClients, which keep them
};

}  // namespace android
