#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "modules/SourceCtrl.h"
#include "tests/support/RecordingManager.h"

using android::ISourceCtrl;
using android::sp;
using namespace tarn::test;

namespace {

static_assert(std::is_same_v<decltype(std::declval<ISourceCtrl>().getHdmiStandbyEn()), int>);
static_assert(std::is_same_v<decltype(std::declval<ISourceCtrl>().setHdmiStandbyEn(true)), int>);

class SourceCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::SourceCtrl> source = new android::SourceCtrl(manager);
};

TEST_F(SourceCtrl, SwitchesToASourceWithAFlagThatIsAlwaysOne) {
    source->setCurInputSource(7);
    EXPECT_EQ(manager->requests().back(), words({0x0A04, 7, 1}));
    source->setCurInputSource(0);
    EXPECT_EQ(manager->requests().back(), words({0x0A04, 0, 1}));
}

TEST_F(SourceCtrl, GivesTheServicesNumberForTheChannelList) {
    manager->answer(words({42, 1, 2, 3}));
    EXPECT_EQ(source->getChannelList(), 42);
}

TEST_F(SourceCtrl, ReturnsMinusOneWhenTheServiceIsDead) {
    manager->answer(words({-1}));
    EXPECT_EQ(source->getChannelList(), -1);
    EXPECT_EQ(source->setCurInputSource(7), -1);
    EXPECT_EQ(source->setHdmiStandbyEn(true), -1);
}

}  // namespace
