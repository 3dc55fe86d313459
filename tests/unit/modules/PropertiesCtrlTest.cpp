#include <cutils/properties.h>  // its functions share the methods' names
#include <gtest/gtest.h>

#include <cstring>

#include "modules/PropertiesCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using namespace tarn::test;

namespace {

class PropertiesCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::PropertiesCtrl> properties = new android::PropertiesCtrl(manager);
};

TEST_F(PropertiesCtrl, ReturnsMinusOneAndLeavesTheBufferAloneEvenWhenTheServiceAnswers) {
    for (const Bytes& reply :
         {Reply(0).s16("X1").bytes(), Reply(-5).s16("X1").bytes(), words({-1}), Bytes()}) {
        manager->answer(reply);
        char value[PROPERTY_VALUE_MAX];
        memset(value, 'v', sizeof(value));
        EXPECT_EQ(properties->property_get("ro.model", value, "tv"), -1);
        for (const char c : value) ASSERT_EQ(c, 'v');
    }
}

TEST_F(PropertiesCtrl, AsksTheServiceWithKeyAndDefaultAlsoWithoutABuffer) {
    EXPECT_EQ(properties->property_get("ab", nullptr, "c"), -1);
    EXPECT_EQ(manager->requests().back(),
              hex("08080000 02000000 61006200 00000000 01000000 63000000"));
}

}  // namespace
