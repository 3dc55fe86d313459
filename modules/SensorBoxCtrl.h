#pragma once

#include <tarn/ISensorBoxCtrl.h>
#include <tarn/TarnManager.h>

#include "modules/FirmwareRecords.h"

namespace android {

constexpr int kSensorBoxFields = 9;

/** Reads the record of a sensor box. */
inline EntitySensorBox readSensorBox(const Parcel& reply) {
    EntitySensorBox box;
    box.value0 = reply.readInt32();
    readFirmwareTexts(reply, &box);
    return box;
}

class SensorBoxCtrl : public virtual ISensorBoxCtrl {
  public:
    explicit SensorBoxCtrl(const sp<TarnManager>& manager);

    bool getFwSensorBoxList(std::vector<EntitySensorBox>* out) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
