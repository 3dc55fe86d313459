#pragma once

#include <tarn/Export.h>
#include <tarn/TarnTypes.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <vector>

namespace android {

/**
 * Power management: what woke the board, what may wake it, and asset data.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1, false or an empty text. An int result is the service's status word. Arguments are
 * passed on unchecked.
 */
class TARN_EXPORT IPmsCtrl : public virtual RefBase {
  public:
    /** Returns what woke the board, a service-defined code. */
    virtual int getWakeupSrc() = 0;

    /** Returns what woke the board as the boot loader recorded it, a service-defined code. */
    virtual int getWakeupSrcFromUboot() = 0;

    /** Returns asset data as text; a, b and the text's form are service-defined. */
    virtual String16 readAssetData(int a, int b) = 0;

    /**
     * Sets the input sources that may wake the board; an empty list is sent too. Returns the
     * service's answer.
     */
    virtual bool setPmsWakeupSources(const std::vector<_TarnEnumInputSourceId_>& sources) = 0;

    virtual ~IPmsCtrl() = default;
};

}  // namespace android
