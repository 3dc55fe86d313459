#pragma once

#include <binder/IBinder.h>
#include <tarn/TarnClient.h>
#include <utils/Mutex.h>
#include <utils/StrongPointer.h>

#include "recovery/Connection.h"

namespace android {

/** A client's registration with "tarn.service". */
class BridgeConnection : public Connection {
  public:
    explicit BridgeConnection(const sp<TarnClient>& client);

    int renew() override;

  private:
    sp<IBinder> registerClient() const;

    const sp<TarnClient> mClient;
    Mutex mLock;  // held for a look alone, never during a call to the service
    bool mBusy = false;
    sp<IBinder> mService;  // the client is registered with it
    int mNumber = 0;
};

}  // namespace android
