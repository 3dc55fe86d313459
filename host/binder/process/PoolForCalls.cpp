#include "PoolForCalls.h"

#include <binder/ProcessState.h>

#include <atomic>

namespace android::host {

namespace {

std::atomic<bool> gPoolWanted{true};

}  // namespace

void setPoolWanted(bool wanted) {
    gPoolWanted = wanted;
}

void startPoolForCalls() {
    if (gPoolWanted) ProcessState::self()->startThreadPool();
}

}  // namespace android::host
