#include <gtest/gtest.h>

#include <vector>

#include "modules/PmsCtrl.h"
#include "tests/support/RecordingManager.h"

using android::_TarnEnumInputSourceId_;
using android::sp;
using android::String16;
using namespace tarn::test;

namespace {

class PmsCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::PmsCtrl> pms = new android::PmsCtrl(manager);
};

std::vector<_TarnEnumInputSourceId_> sources(const std::vector<int>& numbers) {
    std::vector<_TarnEnumInputSourceId_> list;
    for (const int number : numbers) list.push_back(static_cast<_TarnEnumInputSourceId_>(number));
    return list;
}

TEST_F(PmsCtrl, SendsTheWakeupSourcesInTheirOrder) {
    pms->setPmsWakeupSources(sources({23, -1, 4}));
    EXPECT_EQ(manager->requests().back(), words({0x2710, 3, 23, -1, 4}));
}

TEST_F(PmsCtrl, SendsOnlyTheCountOfNoWakeupSources) {
    manager->answer(Bytes());
    EXPECT_FALSE(pms->setPmsWakeupSources({}));
    EXPECT_EQ(manager->requests().back(), words({0x2710, 0}));
}

TEST_F(PmsCtrl, JudgesTheWakeupSourcesByTheSecondNumber) {
    manager->answer(words({0, 0, 1}));
    EXPECT_TRUE(pms->setPmsWakeupSources(sources({1})));
    manager->answer(words({-5, 0, -2}));
    EXPECT_TRUE(pms->setPmsWakeupSources(sources({1})));
    manager->answer(words({0, 1, 0}));
    EXPECT_FALSE(pms->setPmsWakeupSources(sources({1})));
}

TEST_F(PmsCtrl, ReturnsFalseForAShortReplyOrADeadService) {
    for (const Bytes& reply : {words({-1, 0, 1}), words({0, 1}), words({0}), Bytes()}) {
        manager->answer(reply);
        EXPECT_FALSE(pms->setPmsWakeupSources(sources({1})));
    }
}

TEST_F(PmsCtrl, ReadsAssetDataBehindAnyStatusThatIsNoFailure) {
    manager->answer(Reply(-5).s16("A-7"));
    EXPECT_EQ(pms->readAssetData(8, -9), String16("A-7"));
    EXPECT_EQ(manager->requests().back(), words({0x270C, 8, -9}));
}

TEST_F(PmsCtrl, ReturnsEmptyAssetDataForADamagedReplyOrADeadService) {
    for (const Bytes& reply : {Reply(-1).s16("A-7").bytes(), words({0}), Bytes(),
                               words({0, 0x7fffffff, 0x00410041}), words({0, -2, 0x00410041})}) {
        manager->answer(reply);
        EXPECT_EQ(pms->readAssetData(8, 9), String16());
    }
}

}  // namespace
