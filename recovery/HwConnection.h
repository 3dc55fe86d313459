#pragma once

#include <tarn/ITarnManager.h>

#include "recovery/Connection.h"

namespace android {

/** The process's connection to the hardware service, for one manager. */
class HwConnection : public Connection {
  public:
    /** wantsEvents: the manager's events are turned on with every new connection. */
    HwConnection(ITarnManager* manager, bool wantsEvents);
    ~HwConnection() override;

    int renew() override;

  private:
    int numberIfAlive() const;
    int renewAlone();
    int turnEventsOn();

    ITarnManager* const mManager;
    const bool mWantsEvents;
};

}  // namespace android
