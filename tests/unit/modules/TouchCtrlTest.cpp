#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "modules/TouchCtrl.h"
#include "tests/support/RecordingManager.h"

using namespace android;
using tarn::test::RecordingManager;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TouchCtrl : public testing::Test {
  protected:
    const sp<RecordingManager> mManager = new RecordingManager;
    const sp<ITouchCtrl> mTouch = new android::TouchCtrl(mManager);
};

const TouchRect kRect(TouchPoint(10, 20, 7), TouchPoint(30, 40, 9), 5);

TEST(TouchPoint, StoresItsLastConstructorArgumentFirst) {
    const TouchPoint point(1, 2, 3);
    EXPECT_EQ(point.x, 1);
    EXPECT_EQ(point.y, 2);
    EXPECT_EQ(point.extra, 3);
}

TEST(TouchRect, StoresItsLastConstructorArgumentFirst) {
    EXPECT_EQ(kRect.id, 5);
    EXPECT_EQ(kRect.start.x, 10);
    EXPECT_EQ(kRect.start.extra, 7);
    EXPECT_EQ(kRect.end.y, 40);
    EXPECT_EQ(kRect.end.extra, 9);
}

TEST_F(TouchCtrl, SendsASmallModeWithoutValuesAndNeverTouchesTheArray) {
    mTouch->SetSmallMode(7, 0, nullptr);
    mTouch->SetSmallMode(8, -2, nullptr);
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x2014, 7, 0}), words({0x2014, 8, -2})));
}

TEST_F(TouchCtrl, SendsExactlyCountValuesOfASmallMode) {
    int values[] = {-5, 6, 7};
    mManager->answer(words({0, 91}));
    EXPECT_EQ(mTouch->SetSmallMode(9, 2, values), 91);
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x2014, 9, 2, -5, 6})));
    EXPECT_THAT(values, ElementsAre(-5, 6, 7));
}

TEST_F(TouchCtrl, LeavesTheLogicalRangeAloneOnFailure) {
    TouchLogicalCoordinates range;
    range.range0 = 11;
    range.range1 = 12;
    mManager->answer(words({-1, 1, 2}));
    EXPECT_FALSE(mTouch->getLogicalTouchRange(&range));
    EXPECT_EQ(range.range0, 11);
    EXPECT_EQ(range.range1, 12);
}

TEST_F(TouchCtrl, FillsTheLogicalRangeWithZerosFromAShortReply) {
    TouchLogicalCoordinates range;
    range.range0 = 11;
    range.range1 = 12;
    mManager->answer(words({0, 3}));
    EXPECT_TRUE(mTouch->getLogicalTouchRange(&range));
    EXPECT_EQ(range.range0, 3);
    EXPECT_EQ(range.range1, 0);
}

TEST_F(TouchCtrl, ListsAreasWithTheirEchoedIndexAndNoExtraValue) {
    mManager->answerWith(
            {words({0, 2}), words({0, 0, 1, 1, 2, 3, 4}), words({0, 1, 1, 5, 6, 7, 8})});
    const std::vector<TouchRect> areas = mTouch->getAllNoTouchAreas();
    ASSERT_EQ(areas.size(), 2u);
    EXPECT_EQ(areas[0].id, 0);
    EXPECT_EQ(areas[0].start.x, 1);
    EXPECT_EQ(areas[0].start.y, 2);
    EXPECT_EQ(areas[0].start.extra, 0);
    EXPECT_EQ(areas[0].end.x, 3);
    EXPECT_EQ(areas[0].end.y, 4);
    EXPECT_EQ(areas[0].end.extra, 0);
    EXPECT_EQ(areas[1].id, 1);
    EXPECT_EQ(areas[1].start.extra, 0);
    EXPECT_EQ(areas[1].end.y, 8);
    EXPECT_EQ(areas[1].end.extra, 0);
}

TEST_F(TouchCtrl, AsksForNoAreaWhenTheirNumberIsUnknown) {
    mManager->answer(words({-1}));
    EXPECT_THAT(mTouch->getAllNoTouchAreas(), IsEmpty());
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x2015})));
}

class TwoAreas : public android::TouchCtrl {
  public:
    using android::TouchCtrl::TouchCtrl;
    int getMaxSupportedNoTouchAreas() override { return 2; }
};

TEST_F(TouchCtrl, TakesTheNumberOfAreasFromItsOwnVirtualMethod) {
    const sp<ITouchCtrl> derived = new TwoAreas(mManager);
    derived->getAllNoTouchAreas();
    // A bare status echoes 0: right for the first index, wrong for the second.
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x201F, 0}), words({0x201F, 1})));
}

}  // namespace
