#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <cstddef>
#include <string>
#include <vector>

#include "modules/TouchCtrl.h"
#include "tests/support/LogCalls.h"
#include "tests/support/RecordingManager.h"

using namespace android;
using tarn::test::Bytes;
using tarn::test::logCalls;
using tarn::test::RecordingManager;
using tarn::test::Reply;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

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

namespace {

class TouchCtrl : public testing::Test {
  protected:
    TouchCtrl() : mManager(new RecordingManager), mTouch(new android::TouchCtrl(mManager)) {
        logCalls().clear();
    }

    const sp<RecordingManager> mManager;
    const sp<ITouchCtrl> mTouch;
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

TEST_F(TouchCtrl, GivesTheFallbacksWhenTheServiceIsDead) {
    mManager->answer(words({-1}));
    EXPECT_EQ(mTouch->getMouseFadeState(), -1);
    EXPECT_EQ(mTouch->getOutTouchState(), -1);
    EXPECT_EQ(mTouch->getPenNum(), -1);
    EXPECT_EQ(mTouch->SetSmallMode(1, 0, nullptr), -1);
    EXPECT_EQ(mTouch->getTouchAreaRecognitionMethod(), 0);
    EXPECT_FALSE(mTouch->setPenType(String16("x")));
    EXPECT_FALSE(mTouch->setTouchBurnMode());
    EXPECT_FALSE(mTouch->setParameter(String16("k"), String16("v")));
    EXPECT_EQ(mTouch->getTouchVersion(), String16());
    EXPECT_EQ(mTouch->getParameter(String16("any")), String16("Unimplemented interface"));
    EXPECT_THAT(mTouch->getAllNoTouchAreas(), IsEmpty());
}

TEST_F(TouchCtrl, LogsNothingOnFailure) {
    mManager->answer(words({-1}));
    mTouch->getTouchVersion();
    mTouch->getAllNoTouchAreas();
    EXPECT_THAT(logCalls(), IsEmpty());
}

TEST_F(TouchCtrl, SendsAnAreaWithoutTheExtraValues) {
    mTouch->addNoTouchArea(kRect);
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x2017, 5, 10, 20, 30, 40})));
}

TEST_F(TouchCtrl, SendsSourceRectanglesWithoutTheirId) {
    mTouch->setSourceTouchRect(kRect, 1, 2, 3);
    mTouch->setPIPSourceTouchRect(kRect, 4, 5, 6);
    mTouch->setSourceRectOffset(kRect, 8);
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x201C, 10, 20, 30, 40, 1, 2, 3}),
                                                  words({0x2025, 10, 20, 30, 40, 4, 5, 6}),
                                                  words({0x201D, 10, 20, 30, 40, 8})));
}

TEST_F(TouchCtrl, DisablesTouchUnderTheCodeOfTheForbiddenState) {
    mTouch->setTouchStateDisabled(true);
    mTouch->setAndroidForbiddenState(1);
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x202C, 1}), words({0x202C, 1})));
}

TEST_F(TouchCtrl, KeepsOtherNegativeRecognitionMethods) {
    mManager->answer(words({-2}));
    EXPECT_EQ(mTouch->getTouchAreaRecognitionMethod(), -2);
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

TEST_F(TouchCtrl, DoesNotReadTheReplyToSetParameter) {
    mManager->answer(words({0, 0}));
    EXPECT_TRUE(mTouch->setParameter(String16("k"), String16("v")));
    mManager->answer(words({-2}));
    EXPECT_TRUE(mTouch->setParameter(String16("k"), String16("v")));
}

TEST_F(TouchCtrl, MakesTheBrushModesLogCallWithoutATag) {
    mManager->answer(words({0, 17}));
    mTouch->getTouchBrushMode();
    ASSERT_EQ(logCalls().size(), 1u);
    EXPECT_EQ(logCalls()[0].level, static_cast<unsigned int>(TARN_LOG_ERROR));
    EXPECT_FALSE(logCalls()[0].hasTag);
    EXPECT_EQ(logCalls()[0].function, "getTouchBrushMode");
    EXPECT_EQ(logCalls()[0].line, 238);
    EXPECT_EQ(logCalls()[0].message, "getTouchBrushMode cpp retval=17 \n");
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
    EXPECT_EQ(areas[1].end.y, 8);
}

TEST_F(TouchCtrl, SkipsAreasThatDoNotEchoTheirIndexOrAreNotValid) {
    mManager->answerWith({words({0, 4}), words({0, 3, 1, 1, 2, 3, 4}), words({0, 1, 0, 1, 2, 3, 4}),
                          words({0, 2, -1, 1, 2, 3, 4}), words({0, 3, 1, 5, 6, 7, 8})});
    const std::vector<TouchRect> areas = mTouch->getAllNoTouchAreas();
    ASSERT_EQ(areas.size(), 1u);
    EXPECT_EQ(areas[0].id, 3);
    EXPECT_THAT(mManager->requests(),
                ElementsAre(words({0x2015}), words({0x201F, 0}), words({0x201F, 1}),
                            words({0x201F, 2}), words({0x201F, 3})));
}

TEST_F(TouchCtrl, KeepsAFailedIndexInTheRequestOfTheNextOne) {
    mManager->answerWith({words({0, 5}), words({0, 0, 1, 1, 2, 3, 4}), words({-1}), words({-1}),
                          words({0, 3, 1, 5, 6, 7, 8}), words({0, 4, 0, 0, 0, 0, 0})});
    EXPECT_EQ(mTouch->getAllNoTouchAreas().size(), 2u);
    EXPECT_THAT(mManager->requests(),
                ElementsAre(words({0x2015}), words({0x201F, 0}), words({0x201F, 1}),
                            words({0x201F, 1, 2}), words({0x201F, 1, 2, 3}), words({0x201F, 4})));
}

TEST_F(TouchCtrl, ForgetsAFailedIndexTooWhenTheNextOneIsNotEchoed) {
    mManager->answerWith({words({0, 4}), words({-1}), words({0, 0, 1, 1, 2, 3, 4}),
                          words({0, 2, 1, 5, 6, 7, 8}), words({-1})});
    const std::vector<TouchRect> areas = mTouch->getAllNoTouchAreas();
    ASSERT_EQ(areas.size(), 1u);
    EXPECT_EQ(areas[0].id, 2);
    EXPECT_THAT(mManager->requests(),
                ElementsAre(words({0x2015}), words({0x201F, 0}), words({0x201F, 0, 1}),
                            words({0x201F, 2}), words({0x201F, 3})));
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
