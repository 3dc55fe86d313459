#include <gtest/gtest.h>
#include <utils/RefBase.h>

#include <new>
#include <thread>

#include "core/SharedReference.h"

using android::RefBase;
using android::SharedReference;
using android::sp;

namespace {

class Object : public RefBase {
  public:
    int value = 7;
};

using Reference = SharedReference<Object>;

TEST(SharedReference, ReadsLikeAStrongPointer) {
    Reference reference;
    EXPECT_TRUE(reference == nullptr);
    const sp<Object> object = new Object;
    reference = object;
    EXPECT_TRUE(reference != nullptr);
    EXPECT_EQ(reference->value, 7);
    const sp<Object> copy = reference;
    EXPECT_EQ(copy, object);
    reference = nullptr;
    EXPECT_TRUE(reference == nullptr);
}

TEST(SharedReference, HoldsItsObjectUntilItIsReplaced) {
    Reference reference;
    const sp<Object> object = new Object;
    reference = object;
    EXPECT_EQ(object->getStrongCount(), 2);
    reference = new Object;
    EXPECT_EQ(object->getStrongCount(), 1);
}

TEST(SharedReference, KeepsTheFirstOfTwoThatAreSetWhereItIsEmpty) {
    Reference reference;
    const sp<Object> first = new Object;
    EXPECT_EQ(reference.setIfEmpty(nullptr), nullptr);
    EXPECT_EQ(reference.setIfEmpty(first), first);
    EXPECT_EQ(reference.setIfEmpty(new Object), first);
    EXPECT_EQ(sp<Object>(reference), first);
}

TEST(SharedReference, MayBeReplacedWhileOthersRead) {
    // Both live on: the platform's counts, by which the last reference deletes, are hidden from the
    // thread sanitizer.
    const sp<Object> one = new Object;
    const sp<Object> other = new Object;
    Reference reference;
    reference = one;
    std::thread writer([&] {
        for (int i = 0; i < 2000; i++) reference = i % 2 == 0 ? other : one;
    });
    for (int i = 0; i < 2000; i++) EXPECT_EQ(reference->value, 7);
    EXPECT_TRUE(reference != nullptr);
    writer.join();
}

TEST(SharedReference, BeginsWithItsPointer) {
    Reference reference;
    const sp<Object> object = new Object;
    reference = object;
    EXPECT_EQ(*reinterpret_cast<Object**>(&reference), object.get());
}

TEST(SharedReference, IsEmptyAndInOrderAfterTheEndOfTheProcessBegan) {
    alignas(Reference) static unsigned char storage[sizeof(Reference)];
    auto* const reference = new (storage) Reference;
    const sp<Object> object = new Object;
    *reference = object;
    reference->~Reference();
    EXPECT_EQ(object->getStrongCount(), 1);
    EXPECT_TRUE(*reference == nullptr);
}

}  // namespace
