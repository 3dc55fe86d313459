#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "modules/BurnKeyCtrl.h"
#include "modules/BurnMacCtrl.h"
#include "modules/CameraCtrl.h"
#include "modules/DevicePortCtrl.h"
#include "modules/FwTouchCtrl.h"
#include "modules/IoBoxCtrl.h"
#include "modules/MicrophoneCtrl.h"
#include "modules/SensorBoxCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using android::TarnManager;
using namespace tarn::test;

namespace {

/** A method that replaces what the caller's list held. */
struct ListMethod {
    std::string name;
    std::function<size_t(const sp<TarnManager>&)> call;  // with a list of two; its size afterwards
    size_t read;  // how many records a count of one gives: some methods read none
};

void PrintTo(const ListMethod& method, std::ostream* out) {
    *out << method.name;
}

template <typename Controller, typename Result, typename Record>
ListMethod listMethod(const char* name, Result (Controller::*method)(std::vector<Record>*),
                      size_t read) {
    return {name,
            [method](const sp<TarnManager>& manager) {
                const sp<Controller> controller = new Controller(manager);
                std::vector<Record> list(2);
                ((*controller).*method)(&list);
                return list.size();
            },
            read};
}

size_t listPorts(const sp<TarnManager>& manager) {
    const sp<android::DevicePortCtrl> controller = new android::DevicePortCtrl(manager);
    std::vector<android::String16> ports(2);
    controller->getDevicePortList(ports);
    return ports.size();
}

class CallersList : public testing::TestWithParam<ListMethod> {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
};

TEST_P(CallersList, IsEmptiedWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    EXPECT_EQ(GetParam().call(manager), 0u);
}

TEST_P(CallersList, IsEmptiedForACountOfZero) {
    manager->answer(words({0, 0}));
    EXPECT_EQ(GetParam().call(manager), 0u);
}

TEST_P(CallersList, HoldsNothingOfWhatItHeldBefore) {
    manager->answer(words({0, 1}));
    EXPECT_EQ(GetParam().call(manager), GetParam().read);
}

TEST_P(CallersList, IsAsLongAsTheServiceSaysAlsoBehindTheEndOfTheReply) {
    manager->answer(words({0, 1000, 8}));
    EXPECT_EQ(GetParam().call(manager), 1000 * GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(
        , CallersList,
        testing::Values(listMethod("BurnKeys", &android::BurnKeyCtrl::getSupportBurnKeyList, 1),
                        listMethod("BurnMacs", &android::BurnMacCtrl::getSupportBurnMacList, 1),
                        listMethod("Touches", &android::FwTouchCtrl::getFwTouchList, 1),
                        listMethod("TouchDrivers", &android::FwTouchCtrl::getFwTouchDriverInfoList,
                                   1),
                        listMethod("TouchData", &android::FwTouchCtrl::getTouchFwDataList, 1),
                        ListMethod{"Ports", listPorts, 1},
                        listMethod("Cameras", &android::CameraCtrl::getFwCameraList, 0),
                        listMethod("IoBoxes", &android::IoBoxCtrl::getFwIoBoxList, 0),
                        listMethod("Microphones", &android::MicrophoneCtrl::getFwMicrophoneList, 0),
                        listMethod("SensorBoxes", &android::SensorBoxCtrl::getFwSensorBoxList, 0)),
        [](const auto& tested) { return tested.param.name; });

}  // namespace
