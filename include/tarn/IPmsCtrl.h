#pragma once

#include <tarn/TarnTypes.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <vector>

namespace android {

/**
 * Power management: what woke the board and what may wake it.
 *
 * Every call blocks for one exchange with the service; any thread may call. Codes of wake-up
 * sources are service-defined. An int result is the service's status word, -1 when the command
 * failed.
 */
class IPmsCtrl : public virtual RefBase {
  public:
    /** Returns what woke the board. */
    virtual int getWakeupSrc() = 0;

    /** Returns what woke the board, as the boot loader recorded it. */
    virtual int getWakeupSrcFromUboot() = 0;

    /** Returns asset data; both arguments are service-defined. Empty when the command failed. */
    virtual String16 readAssetData(int a, int b) = 0;

    /** Chooses the input sources that may wake the board; false when the command failed. */
    virtual bool setPmsWakeupSources(const std::vector<_TarnEnumInputSourceId_>& sources) = 0;

    virtual ~IPmsCtrl() = default;
};

}  // namespace android
