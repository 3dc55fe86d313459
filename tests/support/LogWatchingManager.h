#pragma once

#include <cstddef>

#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

namespace tarn::test {

/** A recording manager that captures the log and notes how far it was when a command came. */
class LogWatchingManager : public RecordingManager {
  public:
    int invoke(const android::Parcel& request, android::Parcel* reply) override {
        linesBefore = log.lines().size();
        return RecordingManager::invoke(request, reply);
    }

    LogCapture log;
    size_t linesBefore = 0;  // lines logged before the last command
};

}  // namespace tarn::test
