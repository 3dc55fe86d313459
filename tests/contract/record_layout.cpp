// Compiled with the tests, here and for the device's architecture: what applications rely on in the
// layout of the records.

#include <tarn/Controllers.h>
#include <tarn/TarnLog.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <type_traits>

using android::_EunmAvCtrlHdmiout_;
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
static_assert(offsetof(TouchLogicalCoordinates, range0) == 0);
static_assert(offsetof(TouchLogicalCoordinates, range1) == 4);

static_assert(sizeof(PresetColorTempValues) == 12);
static_assert(offsetof(PresetColorTempValues, first) == 0);
static_assert(offsetof(PresetColorTempValues, second) == 4);
static_assert(offsetof(PresetColorTempValues, third) == 8);
static_assert(PresetColorTempValues().first == 0 && PresetColorTempValues().second == 0 &&
              PresetColorTempValues().third == 0);

static_assert(sizeof(SoundScreenAngle) == 8);
static_assert(offsetof(SoundScreenAngle, first) == 0);
static_assert(offsetof(SoundScreenAngle, second) == 4);

// A run of flags shares a word.
static_assert(sizeof(AvSignalFormat) == 52);
static_assert(offsetof(AvSignalFormat, item1) == 0);
static_assert(offsetof(AvSignalFormat, item2) == 4);
static_assert(offsetof(AvSignalFormat, item3) == 8);
static_assert(offsetof(AvSignalFormat, item4) == 12);
static_assert(offsetof(AvSignalFormat, item5) == 13);
static_assert(offsetof(AvSignalFormat, item6) == 14);
static_assert(offsetof(AvSignalFormat, item7) == 16);
static_assert(offsetof(AvSignalFormat, item8) == 20);
static_assert(offsetof(AvSignalFormat, item9) == 24);
static_assert(offsetof(AvSignalFormat, item10) == 28);
static_assert(offsetof(AvSignalFormat, item11) == 32);
static_assert(offsetof(AvSignalFormat, item12) == 36);
static_assert(offsetof(AvSignalFormat, item13) == 40);
static_assert(offsetof(AvSignalFormat, item14) == 44);
static_assert(offsetof(AvSignalFormat, item15) == 48);
static_assert(offsetof(AvSignalFormat, item16) == 49);

static_assert(sizeof(_EunmAvCtrlHdmiout_) == 32);
static_assert(offsetof(_EunmAvCtrlHdmiout_, item1) == 0);
static_assert(offsetof(_EunmAvCtrlHdmiout_, item2) == 4);
static_assert(offsetof(_EunmAvCtrlHdmiout_, item3) == 8);
static_assert(offsetof(_EunmAvCtrlHdmiout_, item4) == 12);
static_assert(offsetof(_EunmAvCtrlHdmiout_, item5) == 16);
static_assert(offsetof(_EunmAvCtrlHdmiout_, item6) == 20);
static_assert(offsetof(_EunmAvCtrlHdmiout_, item7) == 24);
static_assert(offsetof(_EunmAvCtrlHdmiout_, item8) == 28);

static_assert(alignof(TouchPoint) == 4 && alignof(TouchRect) == 4 &&
              alignof(TouchLogicalCoordinates) == 4 && alignof(PresetColorTempValues) == 4 &&
              alignof(SoundScreenAngle) == 4 && alignof(AvSignalFormat) == 4 &&
              alignof(_EunmAvCtrlHdmiout_) == 4);

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

// A record with texts: here the order of its fields alone; the device's offsets stand below.
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

// The device's records with texts: words and the number of texts before a field. How large a text
// is says the C++ library.
constexpr bool onDevice = sizeof(void*) == 4;

constexpr bool is(size_t place, size_t bytes, size_t texts) {
    return !onDevice || place == bytes + texts * sizeof(std::string);
}

#define SIZE(Record, bytes, texts)                                                       \
    static_assert(is(sizeof(Record), bytes, texts) && alignof(Record) == sizeof(void*)); \
    static_assert(std::is_copy_constructible_v<Record>)
#define AT(Record, field, bytes, texts) static_assert(is(offsetof(Record, field), bytes, texts))

static_assert(!onDevice || (alignof(std::string) == 4 && sizeof(std::string) % 4 == 0));

SIZE(EntityMicrophone, 24, 5);
AT(EntityMicrophone, value0, 0, 0);
AT(EntityMicrophone, value1, 4, 0);
AT(EntityMicrophone, value2, 8, 0);
AT(EntityMicrophone, text0, 12, 0);
AT(EntityMicrophone, flag0, 12, 1);
AT(EntityMicrophone, text1, 16, 1);
AT(EntityMicrophone, flag1, 16, 2);
AT(EntityMicrophone, text2, 20, 2);
AT(EntityMicrophone, text3, 20, 3);
AT(EntityMicrophone, text4, 20, 4);
AT(EntityMicrophone, flag2, 20, 5);

SIZE(EntityFwTouch, 24, 5);
AT(EntityFwTouch, value0, 0, 0);
AT(EntityFwTouch, value1, 4, 0);
AT(EntityFwTouch, value2, 8, 0);
AT(EntityFwTouch, text0, 12, 0);
AT(EntityFwTouch, flag0, 12, 1);
AT(EntityFwTouch, text1, 16, 1);
AT(EntityFwTouch, flag1, 16, 2);
AT(EntityFwTouch, text2, 20, 2);
AT(EntityFwTouch, text3, 20, 3);
AT(EntityFwTouch, text4, 20, 4);
AT(EntityFwTouch, flag2, 20, 5);

SIZE(EntityFwTouchDriver, 16, 2);
AT(EntityFwTouchDriver, value0, 0, 0);
AT(EntityFwTouchDriver, value1, 4, 0);
AT(EntityFwTouchDriver, value2, 8, 0);
AT(EntityFwTouchDriver, text0, 12, 0);
AT(EntityFwTouchDriver, flag0, 12, 1);
AT(EntityFwTouchDriver, text1, 16, 1);

SIZE(TouchFwDataList, 60, 9);
AT(TouchFwDataList, short0, 0, 0);
AT(TouchFwDataList, short1, 2, 0);
AT(TouchFwDataList, touch, 4, 0);
AT(TouchFwDataList, text0, 28, 5);
AT(TouchFwDataList, short2, 28, 6);
AT(TouchFwDataList, reserved0, 32, 6);
AT(TouchFwDataList, short3, 36, 6);
AT(TouchFwDataList, short4, 38, 6);
AT(TouchFwDataList, driver, 40, 6);
AT(TouchFwDataList, text1, 56, 8);
AT(TouchFwDataList, short5, 56, 9);

SIZE(EntityFwCamera, 28, 5);
AT(EntityFwCamera, value0, 0, 0);
AT(EntityFwCamera, value1, 4, 0);
AT(EntityFwCamera, value2, 8, 0);
AT(EntityFwCamera, value3, 12, 0);
AT(EntityFwCamera, text0, 16, 0);
AT(EntityFwCamera, flag0, 16, 1);
AT(EntityFwCamera, text1, 20, 1);
AT(EntityFwCamera, flag1, 20, 2);
AT(EntityFwCamera, text2, 24, 2);
AT(EntityFwCamera, text3, 24, 3);
AT(EntityFwCamera, text4, 24, 4);
AT(EntityFwCamera, flag2, 24, 5);

SIZE(EntityFwIoBox, 28, 5);
AT(EntityFwIoBox, value0, 0, 0);
AT(EntityFwIoBox, value1, 4, 0);
AT(EntityFwIoBox, value2, 8, 0);
AT(EntityFwIoBox, value3, 12, 0);
AT(EntityFwIoBox, text0, 16, 0);
AT(EntityFwIoBox, flag0, 16, 1);
AT(EntityFwIoBox, text1, 20, 1);
AT(EntityFwIoBox, flag1, 20, 2);
AT(EntityFwIoBox, text2, 24, 2);
AT(EntityFwIoBox, text3, 24, 3);
AT(EntityFwIoBox, text4, 24, 4);
AT(EntityFwIoBox, flag2, 24, 5);

SIZE(EntitySensorBox, 16, 5);
AT(EntitySensorBox, value0, 0, 0);
AT(EntitySensorBox, text0, 4, 0);
AT(EntitySensorBox, flag0, 4, 1);
AT(EntitySensorBox, text1, 8, 1);
AT(EntitySensorBox, flag1, 8, 2);
AT(EntitySensorBox, text2, 12, 2);
AT(EntitySensorBox, text3, 12, 3);
AT(EntitySensorBox, text4, 12, 4);
AT(EntitySensorBox, flag2, 12, 5);

SIZE(EntitySwKey, 12, 3);
AT(EntitySwKey, keyId, 0, 0);
AT(EntitySwKey, keyText1, 4, 0);
AT(EntitySwKey, keyText2, 4, 1);
AT(EntitySwKey, keyFlag1, 4, 2);
AT(EntitySwKey, keyText3, 8, 2);
AT(EntitySwKey, keyFlag2, 8, 3);

SIZE(EntitySwMac, 12, 2);
AT(EntitySwMac, macId, 0, 0);
AT(EntitySwMac, macText1, 4, 0);
AT(EntitySwMac, macFlag1, 4, 1);
AT(EntitySwMac, macText2, 8, 1);
AT(EntitySwMac, macFlag2, 8, 2);

SIZE(TarnCameraInfo, 8, 1);
AT(TarnCameraInfo, text0, 0, 0);
AT(TarnCameraInfo, value0, 0, 1);
AT(TarnCameraInfo, value1, 4, 1);

// Enumerations travel and are passed as words.
template <typename... Enumeration>
constexpr bool words = ((std::is_same_v<std::underlying_type_t<Enumeration>, int32_t>)&&...);

static_assert(
        words<android::_EnumChannelType_, android::_EnumBurnKeyType, android::_EnumBurnMacType,
              android::_EnumUsbPowerStatus, android::_EnumUsbSWFollowConfig,
              android::_EnumLightDeviceType, android::_EnumLightEffectMode,
              android::_EnumHdcpVersion, android::_EnumAspect_, android::_EnumPcBootMode,
              android::_EnumProjectId_, android::_EnumVaLedState_, android::_EnumSerialDevice_,
              android::_EnumSmartPenMode, android::_EnumSelinuxMode_, android::_EnumTempType_,
              android::EnumCustomerBootMediaType, android::_EnumRefreshRate_,
              android::_EnumCecCtlType_, android::EnumPcKeyEventAction, android::_EnumTxbKeyType_,
              android::_EnumTxbMaterialType_, android::_TarnEnumInputSourceId_>);
static_assert(sizeof(_TARN_LOG_PRIO_E_) == 4);
