#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "modules/BurnKeyCtrl.h"
#include "modules/BurnMacCtrl.h"
#include "modules/DevicePortCtrl.h"
#include "modules/ExtendDisplayCtrl.h"
#include "modules/FwTouchCtrl.h"
#include "modules/FwUpgrade.h"
#include "modules/LandscapeCtrl.h"
#include "modules/PcModuleCtrl.h"
#include "modules/SmartPenModeCtrl.h"
#include "modules/TouchCtrl.h"
#include "protocol/Catalog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using android::TarnManager;
using tarn::protocol::Row;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

/** A method that reads a counted list, and the command that it sends. */
struct ListMethod {
    Row row;
    std::function<size_t(const sp<TarnManager>&)> call;  // the size of the list
};

void PrintTo(const ListMethod& method, std::ostream* out) {
    *out << tarn::protocol::commandOf(method.row).name;
}

template <typename Controller, typename Result, typename Record>
ListMethod fills(Row row, Result (Controller::*method)(std::vector<Record>*)) {
    return {row, [method](const sp<TarnManager>& manager) {
                const sp<Controller> controller = new Controller(manager);
                std::vector<Record> list;
                ((*controller).*method)(&list);
                return list.size();
            }};
}

template <typename Controller, typename Result, typename Record>
ListMethod fills(Row row, Result (Controller::*method)(std::vector<Record>&)) {
    return {row, [method](const sp<TarnManager>& manager) {
                const sp<Controller> controller = new Controller(manager);
                std::vector<Record> list;
                ((*controller).*method)(list);
                return list.size();
            }};
}

template <typename Controller, typename Record>
ListMethod returns(Row row, std::vector<Record> (Controller::*method)()) {
    return {row, [method](const sp<TarnManager>& manager) {
                const sp<Controller> controller = new Controller(manager);
                return ((*controller).*method)().size();
            }};
}

constexpr int32_t kMostReplyBytes = 1040384;

/** How many records the largest reply could hold: no field takes less than four bytes. */
int32_t mostRecords(Row row) {
    const tarn::protocol::Layout layout = tarn::protocol::commandOf(row).replyLayout();
    return kMostReplyBytes / static_cast<int32_t>(layout.at(0).record.size() * 4);
}

class ListCount : public testing::TestWithParam<ListMethod> {
  protected:
    size_t countOf(int32_t count) {
        manager->answer(words({0, count}));
        return GetParam().call(manager);
    }

    std::vector<std::string> complaints() const {
        std::vector<std::string> found;
        for (const LogLine& line : log.lines()) {
            if (line.tag == "Zunt@Replies") found.push_back(line.message);
        }
        return found;
    }

    sp<RecordingManager> manager = new RecordingManager;
    LogCapture log;
};

TEST_P(ListCount, IsTrustedAsFarAsAReplyCouldHoldTheRecords) {
    const int32_t most = mostRecords(GetParam().row);
    EXPECT_EQ(countOf(most), static_cast<size_t>(most));
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_P(ListCount, IsCutBeyondThatAndSaidOnce) {
    const int32_t most = mostRecords(GetParam().row);
    EXPECT_EQ(countOf(INT32_MAX), static_cast<size_t>(most));
    EXPECT_THAT(complaints(),
                ElementsAre("a list of 2147483647 records: no reply holds more than " +
                            std::to_string(most) + " of them"));
}

/** The platform logs each missing text. */
TEST_P(ListCount, DoesNotFloodTheLogPastTheEndOfTheReply) {
    countOf(2);
    const size_t two = log.platformLines();
    log.clear();
    countOf(1000);
    EXPECT_EQ(log.platformLines(), two);
}

TEST(NoTouchAreas, AreAskedForAsFarAsAReplyCouldCountThem) {
    const sp<RecordingManager> manager = new RecordingManager;
    const sp<android::TouchCtrl> touch = new android::TouchCtrl(manager);
    LogCapture log;
    manager->answer(words({0, INT32_MAX}));
    EXPECT_THAT(touch->getAllNoTouchAreas(), IsEmpty());
    const size_t indices = kMostReplyBytes / (6 * 4);
    EXPECT_EQ(manager->requests().size(), 1 + indices);
}

INSTANTIATE_TEST_SUITE_P(
        , ListCount,
        testing::Values(
                fills(Row::CMD_BURN_KEY_GET_SUPPORT_LIST,
                      &android::BurnKeyCtrl::getSupportBurnKeyList),
                fills(Row::CMD_BURN_MAC_GET_SUPPORT_LIST,
                      &android::BurnMacCtrl::getSupportBurnMacList),
                fills(Row::CMD_DEVICE_PORT_GET_LIST, &android::DevicePortCtrl::getDevicePortList),
                fills(Row::CMD_FW_TOUCH_GET_LIST, &android::FwTouchCtrl::getFwTouchList),
                fills(Row::CMD_FW_TOUCH_GET_DRIVER_LIST,
                      &android::FwTouchCtrl::getFwTouchDriverInfoList),
                fills(Row::CMD_FW_TOUCH_GET_DATA_LIST, &android::FwTouchCtrl::getTouchFwDataList),
                fills(Row::CMD_FW_GET_MCU_LIST, &android::FwUpgrade::getFwMcuList),
                returns(Row::CMD_EXTENDDISPLAY_CTRL_GET_USER_RESOLUTION_LIST,
                        &android::ExtendDisplayCtrl::getExtendDisplayUserResolutionList),
                returns(Row::CMD_EXTENDDISPLAY_CTRL_GET_SUPORT_COLOR_FORMAT_LIST,
                        &android::ExtendDisplayCtrl::getExtendDisplaySuportColorFormatList),
                returns(Row::CMD_LANDSCAPE_GET_APP_LIST,
                        &android::LandscapeCtrl::getLandscapeAppList),
                returns(Row::CMD_PC_MODULE_GET_SUPPORTED_BOOT_MODES,
                        &android::PcModuleCtrl::getSupportPcBootModeList),
                returns(Row::CMD_SMART_PEN_MODE_GET_SUPPORTED,
                        &android::SmartPenModeCtrl::getSupportSmartPenModeList)),
        [](const auto& tested) {
            return std::string(tarn::protocol::commandOf(tested.param.row).name).substr(4);
        });

}  // namespace
