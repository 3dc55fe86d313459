#include <binder/Binder.h>
#include <binder/Parcel.h>
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "tests/unit/host/ParcelHex.h"

namespace android {
namespace {

// Counts how many of its kind are alive.
class CountedBinder : public BBinder {
  public:
    CountedBinder() { sAlive++; }
    ~CountedBinder() override { sAlive--; }

    static int sAlive;
};

int CountedBinder::sAlive = 0;

TEST(HostParcel, GivesTheSameLocalBinderBack) {
    const sp<IBinder> binder = new BBinder;
    Parcel parcel;
    ASSERT_EQ(NO_ERROR, parcel.writeStrongBinder(binder));
    EXPECT_EQ(28u, parcel.dataSize());
    EXPECT_EQ(1u, parcel.objectsCount());
    parcel.setDataPosition(0);
    sp<IBinder> read;
    EXPECT_EQ(NO_ERROR, parcel.readStrongBinder(&read));
    EXPECT_EQ(binder, read);
    EXPECT_EQ(28u, parcel.dataPosition());
}

TEST(HostParcel, HoldsABinderUntilItIsFreed) {
    Parcel parcel;
    parcel.writeStrongBinder(new CountedBinder);
    EXPECT_EQ(1, CountedBinder::sAlive);
    parcel.freeData();
    EXPECT_EQ(0, CountedBinder::sAlive);
}

TEST(HostParcel, HoldsABinderUntilItIsDestroyed) {
    {
        Parcel parcel;
        parcel.writeStrongBinder(new CountedBinder);
        EXPECT_EQ(1, CountedBinder::sAlive);
    }
    EXPECT_EQ(0, CountedBinder::sAlive);
}

TEST(HostParcel, DropsBindersThatAShrunkSizeOrNewDataCutsOff) {
    Parcel parcel;
    parcel.writeStrongBinder(new CountedBinder);
    parcel.writeStrongBinder(new CountedBinder);
    ASSERT_EQ(2, CountedBinder::sAlive);
    parcel.setDataSize(40);
    EXPECT_EQ(1, CountedBinder::sAlive);
    const uint8_t byte = 1;
    parcel.setData(&byte, 1);
    EXPECT_EQ(0, CountedBinder::sAlive);
    EXPECT_EQ(0u, parcel.objectsCount());
}

TEST(HostParcel, KeepsABinderThatEndsWithItsData) {
    Parcel parcel;
    parcel.writeStrongBinder(new CountedBinder);
    ASSERT_EQ(NO_ERROR, parcel.setDataSize(24));
    EXPECT_EQ(1u, parcel.objectsCount());
    ASSERT_EQ(NO_ERROR, parcel.setDataSize(23));
    EXPECT_EQ(0u, parcel.objectsCount());
    EXPECT_EQ(0, CountedBinder::sAlive);
}

TEST(HostParcel, AppendFromCopiesReferences) {
    Parcel target;
    {
        Parcel source;
        source.writeInt32(7);
        source.writeStrongBinder(new CountedBinder);
        target.writeInt32(1);
        target.writeInt32(2);
        ASSERT_EQ(NO_ERROR, target.appendFrom(&source, 0, source.dataSize()));
    }
    EXPECT_EQ(1, CountedBinder::sAlive);
    target.setDataPosition(12);
    EXPECT_NE(nullptr, target.readStrongBinder().get());
    target.freeData();
    EXPECT_EQ(0, CountedBinder::sAlive);
}

TEST(HostParcel, AppendsAPartOfItself) {
    Parcel parcel;
    parcel.writeStrongBinder(new CountedBinder);
    ASSERT_EQ(NO_ERROR, parcel.appendFrom(&parcel, 0, parcel.dataSize()));
    ASSERT_EQ(2u, parcel.objectsCount());
    parcel.setDataPosition(0);
    const sp<IBinder> first = parcel.readStrongBinder();
    EXPECT_EQ(first, parcel.readStrongBinder());
    EXPECT_NE(nullptr, first.get());
}

TEST(HostParcel, AppendsAPartOfItselfOverItsOwnBinders) {
    Parcel parcel;
    parcel.writeStrongBinder(new CountedBinder);
    parcel.writeStrongBinder(new CountedBinder);
    parcel.setDataPosition(28);
    ASSERT_EQ(NO_ERROR, parcel.appendFrom(&parcel, 0, 56));
    EXPECT_EQ(2, CountedBinder::sAlive);
    ASSERT_EQ(3u, parcel.objectsCount());
    parcel.setDataPosition(0);
    const sp<IBinder> first = parcel.readStrongBinder();
    EXPECT_EQ(first, parcel.readStrongBinder());
    const sp<IBinder> second = parcel.readStrongBinder();
    ASSERT_NE(nullptr, second.get());
    EXPECT_NE(first, second);
    EXPECT_EQ(NO_ERROR, second->pingBinder());
}

// It is written at the position, but the size grows by its length alone.
TEST(HostParcel, AppendsNoBinderBeyondItsSize) {
    Parcel binders;
    binders.writeStrongBinder(new CountedBinder);
    binders.writeStrongBinder(new CountedBinder);
    Parcel parcel;
    parcel.writeInt32(1);
    parcel.setDataPosition(20);
    ASSERT_EQ(NO_ERROR, parcel.appendFrom(&binders, 0, 56));
    parcel.setDataPosition(0);
    EXPECT_EQ(60u, parcel.dataSize());
    EXPECT_EQ(1u, parcel.objectsCount());
    parcel.setDataPosition(20);
    EXPECT_NE(nullptr, parcel.readStrongBinder().get());
    parcel.setDataSize(0);
    parcel.setDataPosition(60);
    ASSERT_EQ(NO_ERROR, parcel.appendFrom(&binders, 0, 56));
    EXPECT_EQ(0u, parcel.objectsCount());
}

TEST(HostParcel, AppendsAWindowWithoutTheBindersItCuts) {
    Parcel source;
    source.writeStrongBinder(new CountedBinder);
    Parcel target;
    ASSERT_EQ(NO_ERROR, target.appendFrom(&source, 4, 24));
    EXPECT_EQ(0u, target.objectsCount());
    target.setDataPosition(0);
    sp<IBinder> read;
    EXPECT_EQ(BAD_TYPE, target.readStrongBinder(&read));
}

TEST(HostParcel, ReadsANullBinderAsNull) {
    Parcel parcel;
    parcel.writeStrongBinder(nullptr);
    EXPECT_EQ(0u, parcel.objectsCount());
    EXPECT_EQ(
            "852a627313000000"
            "0000000000000000"
            "0000000000000000"
            "00000000",
            hexOf(parcel));
    parcel.setDataPosition(0);
    sp<IBinder> read = new BBinder;
    EXPECT_EQ(UNEXPECTED_NULL, parcel.readStrongBinder(&read));
    parcel.setDataPosition(0);
    EXPECT_EQ(NO_ERROR, parcel.readNullableStrongBinder(&read));
    EXPECT_EQ(nullptr, read.get());
}

TEST(HostParcel, TakesNoBinderFromForgedBytes) {
    Parcel genuine;
    genuine.writeStrongBinder(new BBinder);
    Parcel forged;
    forged.setData(genuine.data(), genuine.dataSize());
    sp<IBinder> read;
    EXPECT_EQ(BAD_TYPE, forged.readStrongBinder(&read));
    EXPECT_EQ(nullptr, read.get());
}

TEST(HostParcel, SurvivesBytesWrittenOverABinder) {
    const sp<IBinder> binder = new BBinder;
    Parcel parcel;
    parcel.writeStrongBinder(binder);
    parcel.setDataPosition(8);
    parcel.writeInt64(0x4141414141414141);
    parcel.writeInt64(0x4242424242424242);
    parcel.setDataPosition(0);
    EXPECT_EQ(binder, parcel.readStrongBinder());
}

TEST(HostParcel, KeepsOneBinderWhereASecondIsWrittenOverIt) {
    Parcel parcel;
    parcel.writeStrongBinder(new CountedBinder);
    parcel.setDataPosition(8);
    const sp<IBinder> second = new CountedBinder;
    parcel.writeStrongBinder(second);
    EXPECT_EQ(1u, parcel.objectsCount());
    EXPECT_EQ(1, CountedBinder::sAlive);
    parcel.setDataPosition(8);
    EXPECT_EQ(second, parcel.readStrongBinder());
}

TEST(HostParcel, RefusesFlatReadsOfABinder) {
    Parcel parcel;
    parcel.writeInt32(1);
    parcel.writeStrongBinder(new BBinder);
    parcel.setDataPosition(0);
    int32_t value = 0;
    EXPECT_EQ(NO_ERROR, parcel.readInt32(&value));
    EXPECT_EQ(PERMISSION_DENIED, parcel.readInt32(&value));
    EXPECT_EQ(8u, parcel.dataPosition());
    parcel.setDataPosition(0);
    EXPECT_EQ(nullptr, parcel.readInplace(8));
    uint8_t bytes[8];
    parcel.setDataPosition(24);
    EXPECT_EQ(PERMISSION_DENIED, parcel.read(bytes, sizeof(bytes)));
    EXPECT_EQ(32u, parcel.dataPosition());
    parcel.setDataPosition(24);
    EXPECT_EQ(nullptr, parcel.readInplace(4));
    EXPECT_EQ(28u, parcel.dataPosition());
}

TEST(HostParcel, CarriesVectorsOfBinders) {
    const std::vector<sp<IBinder>> binders = {new BBinder, new BBinder, new BBinder};
    Parcel parcel;
    ASSERT_EQ(NO_ERROR, parcel.writeStrongBinderVector(binders));
    parcel.setDataPosition(0);
    std::vector<sp<IBinder>> read;
    EXPECT_EQ(NO_ERROR, parcel.readStrongBinderVector(&read));
    EXPECT_EQ(binders, read);
}

TEST(HostParcel, AllowsNullBindersOnlyInANullableVector) {
    const std::vector<sp<IBinder>> binders = {new BBinder, nullptr};
    Parcel parcel;
    ASSERT_EQ(NO_ERROR, parcel.writeStrongBinderVector(binders));
    parcel.setDataPosition(0);
    std::vector<sp<IBinder>> read;
    EXPECT_EQ(UNEXPECTED_NULL, parcel.readStrongBinderVector(&read));
    parcel.setDataPosition(0);
    std::unique_ptr<std::vector<sp<IBinder>>> nullable;
    EXPECT_EQ(NO_ERROR, parcel.readStrongBinderVector(&nullable));
    EXPECT_EQ(binders, *nullable);
}

}  // namespace
}  // namespace android
