#pragma once

#include <binder/IBinder.h>
#include <tarn/Export.h>

namespace android {

/** Drops the process's reference to "tarn.service" when the service dies. */
class TARN_EXPORT DeathNotifier : public IBinder::DeathRecipient {
  public:
    /** Called on a binder thread of the process; the next use of the service looks it up again. */
    void binderDied(const wp<IBinder>& who) override;
};

}  // namespace android
