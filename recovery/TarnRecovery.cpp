#include <tarn/TarnRecovery.h>

#include "recovery/BridgeConnection.h"
#include "recovery/HwConnection.h"
#include "recovery/RecoveryWatch.h"

namespace android {

TarnRecovery::TarnRecovery(ITarnManager* manager, Events events)
    : mWatch(new RecoveryWatch(std::make_unique<HwConnection>(manager, events == WITH_EVENTS))) {}

TarnRecovery::TarnRecovery(const sp<TarnClient>& client)
    : mWatch(new RecoveryWatch(std::make_unique<BridgeConnection>(client))) {}

TarnRecovery::~TarnRecovery() = default;

TarnRecovery::Status TarnRecovery::recover() {
    return mWatch->recover();
}

int TarnRecovery::start(ITarnRecoveryListener* listener, unsigned int periodMs) {
    return mWatch->start(listener, periodMs);
}

void TarnRecovery::stop() {
    mWatch->stop();
}

}  // namespace android
