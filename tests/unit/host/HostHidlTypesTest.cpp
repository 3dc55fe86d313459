#include <gtest/gtest.h>
#include <hidl/HidlSupport.h>
#include <hidl/Status.h>
#include <unistd.h>

#include <cstdint>
#include <list>
#include <string>
#include <utility>
#include <vector>

using namespace std::string_literals;

using ::android::BAD_VALUE;
using ::android::DEAD_OBJECT;
using ::android::FAILED_TRANSACTION;
using ::android::OK;
using ::android::hardware::hidl_string;
using ::android::hardware::hidl_vec;
using ::android::hardware::HidlReturnRestriction;
using ::android::hardware::Return;
using ::android::hardware::setProcessHidlReturnRestriction;
using ::android::hardware::Status;
using ::android::hardware::Void;

namespace {

TEST(HidlString, IsEmptyButNeverNull) {
    EXPECT_STREQ(hidl_string().c_str(), "");
    EXPECT_TRUE(hidl_string().empty());
    EXPECT_STREQ(hidl_string(static_cast<const char*>(nullptr)).c_str(), "");
    EXPECT_STREQ(hidl_string(nullptr, 0).c_str(), "");
}

TEST(HidlString, KeepsEmbeddedZeroBytes) {
    const hidl_string text("a\0b\0"s);
    EXPECT_EQ(text.size(), 4u);
    EXPECT_EQ(std::string(text), "a\0b\0"s);
    EXPECT_EQ(hidl_string("x\0y", 3), hidl_string("x\0y"s));
    EXPECT_NE(hidl_string("x\0y", 3), hidl_string("x\0z", 3));
    EXPECT_EQ(text.c_str()[4], '\0');
}

TEST(HidlString, CopiesAndMoves) {
    hidl_string first("first");
    const hidl_string copy = first;
    const hidl_string moved = std::move(first);
    EXPECT_EQ(copy, moved);
    EXPECT_TRUE(first.empty());  // NOLINT(bugprone-use-after-move)
    first = "again";
    first = *&first;
    EXPECT_EQ(first, hidl_string("again"));
    first = "other"s;
    EXPECT_EQ(std::string(first), "other");
    first.clear();
    EXPECT_EQ(first, hidl_string());
}

TEST(HidlString, BorrowsExternalBytes) {
    const std::string bytes = "a\0c"s;
    hidl_string text("before");
    text.setToExternal(bytes.data(), bytes.size());
    EXPECT_EQ(static_cast<const void*>(text.c_str()), bytes.data());
    EXPECT_EQ(std::string(text), bytes);
    const hidl_string copy = text;
    EXPECT_NE(static_cast<const void*>(copy.c_str()), bytes.data());
    EXPECT_EQ(copy, text);
}

TEST(HidlStringDeathTest, AbortsOnExternalBytesWithoutAFinalZero) {
    EXPECT_DEATH(
            {
                hidl_string text;
                text.setToExternal("abc", 2);
            },
            "");
}

TEST(HidlString, Orders) {
    EXPECT_LT(hidl_string("a"), hidl_string("ab"));
    EXPECT_LT(hidl_string("ab"), hidl_string("b"));
    EXPECT_GE(hidl_string("b"), hidl_string("b"));
    EXPECT_GT(hidl_string("b"), hidl_string("a"));
}

TEST(HidlVec, CopiesMovesAndCompares) {
    hidl_vec<uint8_t> first{1, 2, 3};
    const hidl_vec<uint8_t> copy = first;
    EXPECT_EQ(copy, first);
    const hidl_vec<uint8_t> moved = std::move(first);
    EXPECT_EQ(copy, moved);
    EXPECT_EQ(first.size(), 0u);  // NOLINT(bugprone-use-after-move)
    first = std::vector<uint8_t>{4, 5};
    EXPECT_EQ(std::vector<uint8_t>(first), (std::vector<uint8_t>{4, 5}));
    EXPECT_NE(first, copy);
    first = *&first;
    EXPECT_EQ(first[1], 5);
    EXPECT_TRUE(copy.contains(3));
    EXPECT_FALSE(copy.contains(4));
}

TEST(HidlVec, ResizesAndKeepsWhatFits) {
    hidl_vec<int> numbers{1, 2, 3};
    numbers.resize(5);
    EXPECT_EQ(numbers, (hidl_vec<int>{1, 2, 3, 0, 0}));
    numbers.resize(2);
    EXPECT_EQ(numbers, (hidl_vec<int>{1, 2}));
    numbers.resize(0);
    EXPECT_EQ(numbers.begin(), numbers.end());
}

TEST(HidlVec, CopiesARange) {
    const std::list<int> range = {4, 5, 6};
    const hidl_vec<int> numbers(range.begin(), range.end());
    EXPECT_EQ(numbers, (hidl_vec<int>{4, 5, 6}));
}

TEST(HidlVec, BorrowsOrOwnsExternalElements) {
    int borrowed[] = {7, 8};
    hidl_vec<int> numbers{1};
    numbers.setToExternal(borrowed, 2);
    EXPECT_EQ(numbers.data(), borrowed);
    const hidl_vec<int> copy = numbers;
    EXPECT_NE(copy.data(), borrowed);
    numbers.setToExternal(new int[1]{9}, 1, true);
    EXPECT_EQ(numbers, (hidl_vec<int>{9}));
    int* released = numbers.releaseData();
    EXPECT_EQ(numbers.size(), 0u);
    delete[] released;
}

TEST(HidlStatus, TellsATransportErrorFromAnException) {
    EXPECT_TRUE(Status::ok().isOk());
    EXPECT_TRUE(Status::fromStatusT(OK).isOk());
    const Status dead = Status::fromStatusT(DEAD_OBJECT);
    EXPECT_EQ(dead.exceptionCode(), Status::EX_TRANSACTION_FAILED);
    EXPECT_EQ(dead.transactionError(), DEAD_OBJECT);
    EXPECT_NE(dead.description().find("DEAD_OBJECT"), std::string::npos) << dead;
    const Status refused = Status::fromExceptionCode(Status::EX_ILLEGAL_ARGUMENT, "why");
    EXPECT_EQ(refused.transactionError(), OK);
    EXPECT_STREQ(refused.exceptionMessage(), "why");
    EXPECT_NE(refused.description().find("why"), std::string::npos) << refused;
    EXPECT_EQ(Status::fromExceptionCode(Status::EX_TRANSACTION_FAILED).transactionError(),
              FAILED_TRANSACTION);
}

TEST(HidlReturn, CarriesAValueOrAFailure) {
    const Return<bool> value = true;
    EXPECT_TRUE(value.isOk());
    EXPECT_TRUE(value);
    const Return<int32_t> failed = Status::fromStatusT(BAD_VALUE);
    EXPECT_FALSE(failed.isOk());
    EXPECT_FALSE(failed.isDeadObject());
    EXPECT_EQ(failed.withDefault(-3), -3);
    Return<void> assigned = Void();
    assigned = Status::fromStatusT(DEAD_OBJECT);
    EXPECT_TRUE(assigned.isDeadObject());
}

TEST(HidlReturnDeathTest, AbortsWhenTheValueOfAFailedCallIsRead) {
    EXPECT_DEATH(
            {
                const Return<bool> failed = Status::fromStatusT(DEAD_OBJECT);
                const bool value = failed;
                _exit(value ? 1 : 0);
            },
            "");
}

TEST(HidlReturnDeathTest, ToleratesAnUncheckedFailureUnlessRestricted) {
    { const Return<void> unchecked = Status::fromStatusT(DEAD_OBJECT); }
    EXPECT_DEATH(
            {
                setProcessHidlReturnRestriction(HidlReturnRestriction::FATAL_IF_UNCHECKED);
                const Return<void> unchecked = Status::fromStatusT(DEAD_OBJECT);
            },
            "");
    EXPECT_EXIT(
            {
                setProcessHidlReturnRestriction(HidlReturnRestriction::FATAL_IF_UNCHECKED);
                {
                    const Return<void> checked = Status::fromStatusT(DEAD_OBJECT);
                    checked.isOk();
                    Return<void> moved = Void();
                    moved = Status::fromStatusT(DEAD_OBJECT);
                    const Return<void> target = std::move(moved);
                    target.isDeadObject();
                }
                _exit(0);
            },
            testing::ExitedWithCode(0), "");
}

}  // namespace
