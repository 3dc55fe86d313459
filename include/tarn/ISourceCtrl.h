#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * The panel's input sources.
 *
 * Calls block until the service has answered; any thread may call. Every result is the service's
 * status word, -1 when the call failed (see ITarnManager). Arguments are passed on unchecked; the
 * numbers of sources, ports and EDID versions are service-defined.
 */
class TARN_EXPORT ISourceCtrl : public virtual RefBase {
  public:
    /** Returns a number, not a list: a count or handle that is service-defined. */
    virtual int getChannelList() = 0;

    /** Returns the input source that is shown. */
    virtual int getCurInputSource() = 0;

    /** Returns whether something is plugged into source, a service-defined number. */
    virtual int getInputSourcePlugStatus(int source) = 0;

    /** Returns whether source carries a signal, a service-defined number. */
    virtual int getSignalStatusBySource(int source) = 0;

    /** Switches to source. A service-defined flag that goes with it is always sent as true. */
    virtual int setCurInputSource(int source) = 0;

    /** Sets the EDID version that one HDMI receiver port offers. */
    virtual int setHdmiRxEdidVersion(int port, int version) = 0;

    /** Returns the EDID version that one HDMI receiver port offers. */
    virtual int getHdmiRxEdidVersion(int port) = 0;

    /** Sets whether HDMI stays enabled in standby. */
    virtual int setHdmiStandbyEn(bool on) = 0;

    /** Returns whether HDMI stays enabled in standby, a service-defined number. */
    virtual int getHdmiStandbyEn() = 0;

    virtual ~ISourceCtrl() = default;
};

}  // namespace android
