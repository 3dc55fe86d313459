#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * The panel's input sources.
 *
 * Every call blocks for one exchange with the service; any thread may call. Arguments are not
 * checked: the numbers of sources, ports and EDID versions are service-defined. Every result is
 * the service's status word, -1 when the command failed.
 */
class ISourceCtrl : public virtual RefBase {
  public:
    /** Asks for the channel list; the answer is a number of the service's, not a list. */
    virtual int getChannelList() = 0;

    /** Returns the current input source. */
    virtual int getCurInputSource() = 0;

    /** Returns whether something is plugged into an input source. */
    virtual int getInputSourcePlugStatus(int source) = 0;

    /** Returns whether an input source carries a signal. */
    virtual int getSignalStatusBySource(int source) = 0;

    /** Switches to an input source. */
    virtual int setCurInputSource(int source) = 0;

    /** Sets the EDID version that an HDMI receiver port offers. */
    virtual int setHdmiRxEdidVersion(int port, int version) = 0;

    /** Returns the EDID version that an HDMI receiver port offers. */
    virtual int getHdmiRxEdidVersion(int port) = 0;

    /** Chooses whether HDMI stays enabled in standby. */
    virtual int setHdmiStandbyEn(bool on) = 0;

    /** Returns whether HDMI stays enabled in standby. */
    virtual int getHdmiStandbyEn() = 0;

    virtual ~ISourceCtrl() = default;
};

}  // namespace android
