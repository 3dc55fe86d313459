#define LOG_TAG "ProcessState"

#include "UnservedWarning.h"

#include <log/log.h>

#include <atomic>

namespace android::host {

namespace {

std::atomic<bool> gServing{false};
std::atomic<bool> gWarned{false};

}  // namespace

void noteServing() {
    gServing = true;
}

void warnIfUnserved(const std::string& what) {
    if (gServing || gWarned.exchange(true)) return;
    ALOGW("%s, but no thread of this process serves binder (yet): it has to call "
          "ProcessState::startThreadPool()",
          what.c_str());
}

}  // namespace android::host
