#include <gtest/gtest.h>
#include <tarn/Controllers.h>
#include <tarn/TarnLog.h>

#include <string>

using namespace android;

namespace {

template <typename T>
void expectDefault(const T& value) {
    EXPECT_EQ(value, T());
}

/** Expects zeros, false and empty texts in a record that nobody has filled. */
template <typename Record, typename... Member>
void expectEmpty(Member Record::*... members) {
    const Record record;
    (expectDefault(record.*members), ...);
}

template <size_t Size>
void expectEmpty(const char (&text)[Size]) {
    EXPECT_EQ(std::string(text, Size), std::string(Size, '\0'));
}

template <typename Record>
void expectEmptyFirmware() {
    expectEmpty(&Record::value0, &Record::value1, &Record::value2, &Record::text0, &Record::flag0,
                &Record::text1, &Record::flag1, &Record::text2, &Record::text3, &Record::text4,
                &Record::flag2);
}

TEST(Records, StartEmpty) {
    using Hdmi = _EunmAvCtrlHdmiout_;
    expectEmpty(&Hdmi::item1, &Hdmi::item2, &Hdmi::item3, &Hdmi::item4, &Hdmi::item5, &Hdmi::item6,
                &Hdmi::item7, &Hdmi::item8);
    using Av = AvSignalFormat;
    expectEmpty(&Av::item1, &Av::item2, &Av::item3, &Av::item4, &Av::item5, &Av::item6, &Av::item7,
                &Av::item8, &Av::item9, &Av::item10, &Av::item11, &Av::item12, &Av::item13,
                &Av::item14, &Av::item15, &Av::item16);
    using Key = EntitySwKey;
    expectEmpty(&Key::keyId, &Key::keyText1, &Key::keyText2, &Key::keyFlag1, &Key::keyText3,
                &Key::keyFlag2);
    using Mac = EntitySwMac;
    expectEmpty(&Mac::macId, &Mac::macText1, &Mac::macFlag1, &Mac::macText2, &Mac::macFlag2);
    expectEmpty(&TarnCameraInfo::text0, &TarnCameraInfo::value0, &TarnCameraInfo::value1);
    using Colors = PresetColorTempValues;
    expectEmpty(&Colors::first, &Colors::second, &Colors::third);
    expectEmpty(&SoundScreenAngle::first, &SoundScreenAngle::second);
    expectEmpty(&TouchLogicalCoordinates::range0, &TouchLogicalCoordinates::range1);
}

TEST(Records, OfFirmwareStartEmpty) {
    expectEmptyFirmware<EntityFwCamera>();
    expectEmpty(&EntityFwCamera::value3);
    expectEmptyFirmware<EntityFwIoBox>();
    expectEmpty(&EntityFwIoBox::value3);
    expectEmptyFirmware<EntityFwTouch>();
    expectEmptyFirmware<EntityMicrophone>();
    using Box = EntitySensorBox;
    expectEmpty(&Box::value0, &Box::text0, &Box::flag0, &Box::text1, &Box::flag1, &Box::text2,
                &Box::text3, &Box::text4, &Box::flag2);
    using Driver = EntityFwTouchDriver;
    expectEmpty(&Driver::value0, &Driver::value1, &Driver::value2, &Driver::text0, &Driver::flag0,
                &Driver::text1);
    using Data = TouchFwDataList;
    expectEmpty(&Data::short0, &Data::short1, &Data::text0, &Data::short2, &Data::reserved0,
                &Data::short3, &Data::short4, &Data::text1, &Data::short5);
    using Mcu = EntityFwInfoMcu;
    expectEmpty(&Mcu::intField1, &Mcu::intField2, &Mcu::intField3, &Mcu::intField4,
                &Mcu::intField5);
    const Mcu mcu;
    expectEmpty(mcu.strField1);
    expectEmpty(mcu.strField2);
    expectEmpty(mcu.strField3);
    expectEmpty(mcu.strField4);
    expectEmpty(mcu.shortStrField);
}

TEST(Constants, HaveTheirValues) {
    static_assert(PROJECT_ID_0 == 0 && PROJECT_ID_1 == 1 && PROJECT_ID_2 == 2);
    static_assert(PROJECT_ID_3 == 3 && PROJECT_ID_4 == 4 && PROJECT_ID_5 == 5);
    static_assert(PROJECT_ID_6 == 6 && PROJECT_ID_7 == 7 && PROJECT_ID_8 == 8);
    static_assert(PROJECT_ID_9 == 9 && PROJECT_ID_10 == 10 && PROJECT_ID_11 == 11);
    static_assert(PROJECT_ID_12 == 12 && PROJECT_ID_13 == 13);
    static_assert(SELINUX_MODE_1 == 1 && SELINUX_MODE_2 == 2 && SELINUX_MODE_3 == 3);
    static_assert(TEMP_TYPE_SENSOR_1 == 1 && TEMP_TYPE_SENSOR_2 == 2);
    static_assert(REFRESH_RATE_0 == 0 && REFRESH_RATE_1 == 1 && REFRESH_RATE_2 == 2);
    static_assert(PC_BOOT_MODE_FALLBACK == 3);
    static_assert(SMART_PEN_MODE_FALLBACK == 5);
}

TEST(Constants, OfTheLogAreThePlatformsPriorities) {
    static_assert(TARN_LOG_UNKNOWN == 0 && TARN_LOG_DEFAULT == 1 && TARN_LOG_VERBOSE == 2);
    static_assert(TARN_LOG_DEBUG == 3 && TARN_LOG_INFO == 4 && TARN_LOG_WARN == 5);
    static_assert(TARN_LOG_ERROR == 6 && TARN_LOG_FATAL == 7 && TARN_LOG_BUTT == 8);
}

}  // namespace
