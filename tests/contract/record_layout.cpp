// Compiled with the tests, and by scripts/check-arm32 for the device's architecture: what
// applications rely on in the layout of the records.

#include <tarn/Controllers.h>

#include <cstddef>
#include <initializer_list>
#include <type_traits>

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

static_assert(sizeof(TouchPoint) == 12);
static_assert(offsetof(TouchPoint, extra) == 0);
static_assert(offsetof(TouchPoint, x) == 4);
static_assert(offsetof(TouchPoint, y) == 8);

static_assert(sizeof(TouchRect) == 28);
static_assert(offsetof(TouchRect, id) == 0);
static_assert(offsetof(TouchRect, start) == 4);
static_assert(offsetof(TouchRect, end) == 16);

static_assert(sizeof(TouchLogicalCoordinates) == 8);
static_assert(offsetof(TouchLogicalCoordinates, range1) == 4);

static_assert(sizeof(PresetColorTempValues) == 12);
static_assert(offsetof(PresetColorTempValues, second) == 4);
static_assert(offsetof(PresetColorTempValues, third) == 8);
static_assert(PresetColorTempValues().first == 0 && PresetColorTempValues().second == 0 &&
              PresetColorTempValues().third == 0);

static_assert(sizeof(SoundScreenAngle) == 8);
static_assert(offsetof(SoundScreenAngle, second) == 4);

// A run of flags shares a word.
static_assert(offsetof(AvSignalFormat, item4) == 12);
static_assert(offsetof(AvSignalFormat, item7) == 16);
static_assert(offsetof(AvSignalFormat, item10) == 28);
static_assert(offsetof(AvSignalFormat, item11) == 32);
static_assert(offsetof(AvSignalFormat, item15) == 48);
static_assert(sizeof(AvSignalFormat) == 52);

static_assert(sizeof(android::_EunmAvCtrlHdmiout_) == 32);

static_assert(sizeof(EntityFwInfoMcu) == 1108);
static_assert(alignof(EntityFwInfoMcu) == 4);
static_assert(std::is_trivially_copyable_v<EntityFwInfoMcu>);
static_assert(offsetof(EntityFwInfoMcu, intField1) == 0);
static_assert(offsetof(EntityFwInfoMcu, intField2) == 4);
static_assert(offsetof(EntityFwInfoMcu, strField1) == 8);
static_assert(offsetof(EntityFwInfoMcu, intField3) == 264);
static_assert(offsetof(EntityFwInfoMcu, strField2) == 268);
static_assert(offsetof(EntityFwInfoMcu, intField4) == 524);
static_assert(offsetof(EntityFwInfoMcu, strField3) == 528);
static_assert(offsetof(EntityFwInfoMcu, strField4) == 784);
static_assert(offsetof(EntityFwInfoMcu, shortStrField) == 1040);
static_assert(offsetof(EntityFwInfoMcu, intField5) == 1104);

// A record with texts: the order of its fields alone, for the size of a text is the C++ library's.
constexpr bool ascending(std::initializer_list<size_t> offsets) {
    for (const size_t* next = offsets.begin() + 1; next < offsets.end(); next++) {
        if (next[-1] >= *next) return false;
    }
    return true;
}

constexpr bool equal(std::initializer_list<size_t> a, std::initializer_list<size_t> b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); i++) {
        if (a.begin()[i] != b.begin()[i]) return false;
    }
    return true;
}

#define TEXTS_AND_FLAGS(Record)                                                        \
    offsetof(Record, text0), offsetof(Record, flag0), offsetof(Record, text1),         \
            offsetof(Record, flag1), offsetof(Record, text2), offsetof(Record, text3), \
            offsetof(Record, text4), offsetof(Record, flag2)
#define DEVICE(Record)                                                                \
    {                                                                                 \
        offsetof(Record, value0), offsetof(Record, value1), offsetof(Record, value2), \
                TEXTS_AND_FLAGS(Record)                                               \
    }
#define FIRMWARE(Record)                                                              \
    {                                                                                 \
        offsetof(Record, value0), offsetof(Record, value1), offsetof(Record, value2), \
                offsetof(Record, value3), TEXTS_AND_FLAGS(Record)                     \
    }

// Two pairs of types have one layout each.
static_assert(ascending(DEVICE(EntityMicrophone)));
static_assert(equal(DEVICE(EntityMicrophone), DEVICE(EntityFwTouch)));
static_assert(sizeof(EntityMicrophone) == sizeof(EntityFwTouch));
static_assert(!std::is_same_v<EntityMicrophone, EntityFwTouch>);
static_assert(ascending(FIRMWARE(EntityFwCamera)));
static_assert(equal(FIRMWARE(EntityFwCamera), FIRMWARE(EntityFwIoBox)));
static_assert(sizeof(EntityFwCamera) == sizeof(EntityFwIoBox));
static_assert(!std::is_same_v<EntityFwCamera, EntityFwIoBox>);

static_assert(ascending({offsetof(EntitySensorBox, value0), TEXTS_AND_FLAGS(EntitySensorBox)}));
static_assert(ascending({offsetof(AvSignalFormat, item1), offsetof(AvSignalFormat, item2),
                         offsetof(AvSignalFormat, item3), offsetof(AvSignalFormat, item4),
                         offsetof(AvSignalFormat, item5), offsetof(AvSignalFormat, item6),
                         offsetof(AvSignalFormat, item7), offsetof(AvSignalFormat, item8),
                         offsetof(AvSignalFormat, item9), offsetof(AvSignalFormat, item10),
                         offsetof(AvSignalFormat, item11), offsetof(AvSignalFormat, item12),
                         offsetof(AvSignalFormat, item13), offsetof(AvSignalFormat, item14),
                         offsetof(AvSignalFormat, item15), offsetof(AvSignalFormat, item16)}));
static_assert(ascending({offsetof(TarnCameraInfo, text0), offsetof(TarnCameraInfo, value0),
                         offsetof(TarnCameraInfo, value1)}));
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
static_assert(sizeof(TouchFwDataList::reserved0) == 4);
static_assert(ascending({offsetof(EntitySwKey, keyId), offsetof(EntitySwKey, keyText1),
                         offsetof(EntitySwKey, keyText2), offsetof(EntitySwKey, keyFlag1),
                         offsetof(EntitySwKey, keyText3), offsetof(EntitySwKey, keyFlag2)}));
static_assert(ascending({offsetof(EntitySwMac, macId), offsetof(EntitySwMac, macText1),
                         offsetof(EntitySwMac, macFlag1), offsetof(EntitySwMac, macText2),
                         offsetof(EntitySwMac, macFlag2)}));
