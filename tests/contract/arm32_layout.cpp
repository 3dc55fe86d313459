// Compiled, not run, by scripts/check-arm32 for the device's architecture: what applications rely
// on in the layout of the plain records.

#include <tarn/Controllers.h>

#include <cstddef>
#include <initializer_list>

using android::AvSignalFormat;
using android::EntityFwCamera;
using android::EntityFwIoBox;
using android::EntityFwTouch;
using android::EntityFwTouchDriver;
using android::EntityMicrophone;
using android::EntitySensorBox;
using android::EntitySwKey;
using android::EntitySwMac;
using android::PresetColorTempValues;
using android::SoundScreenAngle;
using android::TarnCameraInfo;
using android::TouchFwDataList;
using android::TouchLogicalCoordinates;
using android::TouchPoint;
using android::TouchRect;

static_assert(sizeof(void*) == 4, "the device is a 32-bit machine");

static_assert(sizeof(TouchPoint) == 12);
static_assert(offsetof(TouchPoint, extra) == 0);
static_assert(offsetof(TouchPoint, x) == 4);
static_assert(offsetof(TouchPoint, y) == 8);

static_assert(sizeof(TouchRect) == 28);
static_assert(offsetof(TouchRect, id) == 0);
static_assert(offsetof(TouchRect, start) == 4);
static_assert(offsetof(TouchRect, end) == 16);

static_assert(sizeof(TouchLogicalCoordinates) == 8);
static_assert(sizeof(PresetColorTempValues) == 12);
static_assert(sizeof(SoundScreenAngle) == 8);

// A run of flags shares a word.
static_assert(offsetof(AvSignalFormat, item4) == 12);
static_assert(offsetof(AvSignalFormat, item7) == 16);
static_assert(offsetof(AvSignalFormat, item10) == 28);
static_assert(offsetof(AvSignalFormat, item11) == 32);
static_assert(offsetof(AvSignalFormat, item15) == 48);
static_assert(sizeof(AvSignalFormat) == 52);

static_assert(sizeof(android::_EunmAvCtrlHdmiout_) == 32);

static_assert(sizeof(EntityFwInfoMcu) == 4 + 4 + 256 + 4 + 256 + 4 + 256 + 256 + 64 + 4);
static_assert(offsetof(EntityFwInfoMcu, strField1) == 8);
static_assert(offsetof(EntityFwInfoMcu, strField2) == 268);
static_assert(offsetof(EntityFwInfoMcu, strField3) == 528);
static_assert(offsetof(EntityFwInfoMcu, shortStrField) == 1040);
static_assert(offsetof(EntityFwInfoMcu, intField5) == 1104);

// A record with texts: the order of its fields alone, for the size of a text is the C++ library's.
constexpr bool ascending(std::initializer_list<size_t> offsets) {
    for (const size_t* next = offsets.begin() + 1; next < offsets.end(); next++) {
        if (next[-1] >= *next) return false;
    }
    return true;
}

static_assert(ascending({offsetof(TarnCameraInfo, text0), offsetof(TarnCameraInfo, value0),
                         offsetof(TarnCameraInfo, value1)}));
static_assert(ascending({offsetof(EntityMicrophone, value0), offsetof(EntityMicrophone, value1),
                         offsetof(EntityMicrophone, value2), offsetof(EntityMicrophone, text0),
                         offsetof(EntityMicrophone, flag0), offsetof(EntityMicrophone, text1),
                         offsetof(EntityMicrophone, flag1), offsetof(EntityMicrophone, text2),
                         offsetof(EntityMicrophone, text3), offsetof(EntityMicrophone, text4),
                         offsetof(EntityMicrophone, flag2)}));
static_assert(ascending({offsetof(EntityFwTouch, value0), offsetof(EntityFwTouch, value1),
                         offsetof(EntityFwTouch, value2), offsetof(EntityFwTouch, text0),
                         offsetof(EntityFwTouch, flag0), offsetof(EntityFwTouch, text1),
                         offsetof(EntityFwTouch, flag1), offsetof(EntityFwTouch, text2),
                         offsetof(EntityFwTouch, text3), offsetof(EntityFwTouch, text4),
                         offsetof(EntityFwTouch, flag2)}));
static_assert(
        ascending({offsetof(EntityFwTouchDriver, value0), offsetof(EntityFwTouchDriver, value1),
                   offsetof(EntityFwTouchDriver, value2), offsetof(EntityFwTouchDriver, text0),
                   offsetof(EntityFwTouchDriver, flag0), offsetof(EntityFwTouchDriver, text1)}));
static_assert(ascending({offsetof(TouchFwDataList, short0), offsetof(TouchFwDataList, short1),
                         offsetof(TouchFwDataList, touch), offsetof(TouchFwDataList, text0),
                         offsetof(TouchFwDataList, short2), offsetof(TouchFwDataList, reserved0),
                         offsetof(TouchFwDataList, short3), offsetof(TouchFwDataList, short4),
                         offsetof(TouchFwDataList, driver), offsetof(TouchFwDataList, text1),
                         offsetof(TouchFwDataList, short5)}));
static_assert(ascending({offsetof(EntityFwCamera, value0), offsetof(EntityFwCamera, value1),
                         offsetof(EntityFwCamera, value2), offsetof(EntityFwCamera, value3),
                         offsetof(EntityFwCamera, text0), offsetof(EntityFwCamera, flag0),
                         offsetof(EntityFwCamera, text1), offsetof(EntityFwCamera, flag1),
                         offsetof(EntityFwCamera, text2), offsetof(EntityFwCamera, text3),
                         offsetof(EntityFwCamera, text4), offsetof(EntityFwCamera, flag2)}));
static_assert(ascending({offsetof(EntityFwIoBox, value0), offsetof(EntityFwIoBox, value1),
                         offsetof(EntityFwIoBox, value2), offsetof(EntityFwIoBox, value3),
                         offsetof(EntityFwIoBox, text0), offsetof(EntityFwIoBox, flag0),
                         offsetof(EntityFwIoBox, text1), offsetof(EntityFwIoBox, flag1),
                         offsetof(EntityFwIoBox, text2), offsetof(EntityFwIoBox, text3),
                         offsetof(EntityFwIoBox, text4), offsetof(EntityFwIoBox, flag2)}));
static_assert(ascending({offsetof(EntitySensorBox, value0), offsetof(EntitySensorBox, text0),
                         offsetof(EntitySensorBox, flag0), offsetof(EntitySensorBox, text1),
                         offsetof(EntitySensorBox, flag1), offsetof(EntitySensorBox, text2),
                         offsetof(EntitySensorBox, text3), offsetof(EntitySensorBox, text4),
                         offsetof(EntitySensorBox, flag2)}));
static_assert(ascending({offsetof(EntitySwKey, keyId), offsetof(EntitySwKey, keyText1),
                         offsetof(EntitySwKey, keyText2), offsetof(EntitySwKey, keyFlag1),
                         offsetof(EntitySwKey, keyText3), offsetof(EntitySwKey, keyFlag2)}));
static_assert(ascending({offsetof(EntitySwMac, macId), offsetof(EntitySwMac, macText1),
                         offsetof(EntitySwMac, macFlag1), offsetof(EntitySwMac, macText2),
                         offsetof(EntitySwMac, macFlag2)}));
