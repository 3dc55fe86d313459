#include <binder/Binder.h>
#include <binder/IPCThreadState.h>
#include <binder/Parcel.h>
#include <binder/Parcelable.h>
#include <binder/Status.h>
#include <binder/TextOutput.h>
#include <gtest/gtest.h>
#include <utils/String8.h>

#include <cstring>
#include <string>
#include <vector>

namespace android {
namespace {

std::string hexOf(const Parcel& parcel) {
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (size_t i = 0; i < parcel.dataSize(); i++) {
        text += digits[parcel.data()[i] >> 4];
        text += digits[parcel.data()[i] & 15];
    }
    return text;
}

// Counts how many of its kind are alive.
class CountedBinder : public BBinder {
  public:
    CountedBinder() { sAlive++; }
    ~CountedBinder() override { sAlive--; }

    static int sAlive;
};

int CountedBinder::sAlive = 0;

struct Point : public Parcelable {
    int32_t x = 0;
    int32_t y = 0;

    status_t writeToParcel(Parcel* parcel) const override {
        parcel->writeInt32(x);
        return parcel->writeInt32(y);
    }
    status_t readFromParcel(const Parcel* parcel) override {
        const status_t status = parcel->readInt32(&x);
        return status == OK ? parcel->readInt32(&y) : status;
    }
};

enum class ByteEnum : int8_t { A = 1, B = 2, C = 3 };
enum class IntEnum : int32_t { A = 1, B = -1 };
enum class LongEnum : int64_t { A = 1, B = int64_t{1} << 40 };

class StringOutput : public TextOutput {
  public:
    status_t print(const char* txt, size_t len) override {
        text.append(txt, len);
        return NO_ERROR;
    }
    void moveIndent(int) override {}
    void pushBundle() override {}
    void popBundle() override {}

    std::string text;
};

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

TEST(HostParcel, CarriesVectorsOfNumbers) {
    Parcel parcel;
    parcel.writeInt32Vector({1, -1});
    parcel.writeInt64Vector({1, INT64_MIN});
    parcel.writeUint64Vector({UINT64_MAX});
    parcel.writeFloatVector({1.5f, -2.5f});
    parcel.writeDoubleVector({1e300});
    parcel.writeBoolVector({true, false, true});
    parcel.writeCharVector({u'a', u'\xffff'});
    parcel.setDataPosition(0);
    std::vector<int32_t> ints;
    std::vector<int64_t> longs;
    std::vector<uint64_t> unsignedLongs;
    std::vector<float> floats;
    std::vector<double> doubles;
    std::vector<bool> bools;
    std::vector<char16_t> chars;
    EXPECT_EQ(NO_ERROR, parcel.readInt32Vector(&ints));
    EXPECT_EQ(NO_ERROR, parcel.readInt64Vector(&longs));
    EXPECT_EQ(NO_ERROR, parcel.readUint64Vector(&unsignedLongs));
    EXPECT_EQ(NO_ERROR, parcel.readFloatVector(&floats));
    EXPECT_EQ(NO_ERROR, parcel.readDoubleVector(&doubles));
    EXPECT_EQ(NO_ERROR, parcel.readBoolVector(&bools));
    EXPECT_EQ(NO_ERROR, parcel.readCharVector(&chars));
    EXPECT_EQ((std::vector<int32_t>{1, -1}), ints);
    EXPECT_EQ((std::vector<int64_t>{1, INT64_MIN}), longs);
    EXPECT_EQ((std::vector<uint64_t>{UINT64_MAX}), unsignedLongs);
    EXPECT_EQ((std::vector<float>{1.5f, -2.5f}), floats);
    EXPECT_EQ((std::vector<double>{1e300}), doubles);
    EXPECT_EQ((std::vector<bool>{true, false, true}), bools);
    EXPECT_EQ((std::vector<char16_t>{u'a', u'\xffff'}), chars);
    EXPECT_EQ(0u, parcel.dataAvail());
}

TEST(HostParcel, WritesBooleansAndCharactersAsWords) {
    Parcel parcel;
    parcel.writeBoolVector({true, false});
    parcel.writeCharVector({u'a'});
    EXPECT_EQ(
            "02000000"
            "01000000"
            "00000000"
            "01000000"
            "61000000",
            hexOf(parcel));
}

TEST(HostParcel, RefusesACountAboveTheRemainingBytes) {
    Parcel parcel;
    parcel.writeInt32(INT32_MAX);
    parcel.writeInt32(0);
    const auto refused = [&parcel](auto read) {
        parcel.setDataPosition(0);
        return read() == BAD_VALUE && parcel.dataPosition() == 4;
    };
    std::vector<double> doubles;
    std::vector<bool> bools;
    std::vector<String16> strings;
    std::vector<std::string> texts;
    std::vector<sp<IBinder>> binders;
    EXPECT_TRUE(refused([&] { return parcel.readDoubleVector(&doubles); }));
    EXPECT_TRUE(refused([&] { return parcel.readBoolVector(&bools); }));
    EXPECT_TRUE(refused([&] { return parcel.readString16Vector(&strings); }));
    EXPECT_TRUE(refused([&] { return parcel.readUtf8VectorFromUtf16Vector(&texts); }));
    EXPECT_TRUE(refused([&] { return parcel.readStrongBinderVector(&binders); }));
}

TEST(HostParcel, TellsAnAbsentVectorFromAnEmptyOne) {
    Parcel parcel;
    parcel.writeInt32Vector(std::unique_ptr<std::vector<int32_t>>());
    parcel.writeInt32Vector(std::make_unique<std::vector<int32_t>>());
    EXPECT_EQ(
            "ffffffff"
            "00000000",
            hexOf(parcel));
    parcel.setDataPosition(0);
    auto read = std::make_unique<std::vector<int32_t>>(3);
    EXPECT_EQ(NO_ERROR, parcel.readInt32Vector(&read));
    EXPECT_EQ(nullptr, read);
    EXPECT_EQ(NO_ERROR, parcel.readInt32Vector(&read));
    ASSERT_NE(nullptr, read);
    EXPECT_TRUE(read->empty());
}

TEST(HostParcel, CarriesAbsentStringsWithinAVector) {
    auto strings = std::make_unique<std::vector<std::unique_ptr<String16>>>();
    strings->push_back(std::make_unique<String16>("one"));
    strings->push_back(nullptr);
    auto texts = std::make_unique<std::vector<std::unique_ptr<std::string>>>();
    texts->push_back(nullptr);
    texts->push_back(std::make_unique<std::string>("zw\xc3\xb6lf"));
    Parcel parcel;
    EXPECT_EQ(NO_ERROR, parcel.writeString16Vector(strings));
    EXPECT_EQ(NO_ERROR, parcel.writeUtf8VectorAsUtf16Vector(texts));
    parcel.setDataPosition(0);
    std::unique_ptr<std::vector<std::unique_ptr<String16>>> readStrings;
    std::unique_ptr<std::vector<std::unique_ptr<std::string>>> readTexts;
    ASSERT_EQ(NO_ERROR, parcel.readString16Vector(&readStrings));
    ASSERT_EQ(NO_ERROR, parcel.readUtf8VectorFromUtf16Vector(&readTexts));
    ASSERT_EQ(2u, readStrings->size());
    EXPECT_EQ(String16("one"), *(*readStrings)[0]);
    EXPECT_EQ(nullptr, (*readStrings)[1]);
    ASSERT_EQ(2u, readTexts->size());
    EXPECT_EQ(nullptr, (*readTexts)[0]);
    EXPECT_EQ("zw\xc3\xb6lf", *(*readTexts)[1]);
}

TEST(HostParcel, ConvertsUtf8OnItsWay) {
    Parcel parcel;
    EXPECT_EQ(NO_ERROR, parcel.writeUtf8AsUtf16("\xf0\x9f\x98\x80"));
    EXPECT_EQ(
            "02000000"
            "3dd800de"
            "00000000",
            hexOf(parcel));
    parcel.setDataPosition(0);
    std::string text;
    EXPECT_EQ(NO_ERROR, parcel.readUtf8FromUtf16(&text));
    EXPECT_EQ("\xf0\x9f\x98\x80", text);
}

TEST(HostParcel, RefusesUtf8ThatEndsTooSoon) {
    Parcel parcel;
    EXPECT_EQ(BAD_VALUE, parcel.writeUtf8AsUtf16("\xe2\x82"));
    EXPECT_EQ(0u, parcel.dataSize());
}

TEST(HostParcel, CarriesParcelables) {
    Point point;
    point.x = 3;
    point.y = 4;
    Parcel parcel;
    EXPECT_EQ(NO_ERROR, parcel.writeParcelable(point));
    EXPECT_EQ(NO_ERROR, parcel.writeNullableParcelable(std::unique_ptr<Point>()));
    EXPECT_EQ(NO_ERROR, parcel.writeParcelableVector(std::vector<Point>{point, Point()}));
    EXPECT_EQ(
            "01000000"
            "03000000"
            "04000000"
            "00000000"
            "02000000"
            "01000000"
            "03000000"
            "04000000"
            "01000000"
            "00000000"
            "00000000",
            hexOf(parcel));
    parcel.setDataPosition(0);
    Point read;
    EXPECT_EQ(NO_ERROR, parcel.readParcelable(&read));
    EXPECT_EQ(4, read.y);
    auto absent = std::make_unique<Point>();
    EXPECT_EQ(NO_ERROR, parcel.readParcelable(&absent));
    EXPECT_EQ(nullptr, absent);
    std::vector<Point> points;
    EXPECT_EQ(NO_ERROR, parcel.readParcelableVector(&points));
    ASSERT_EQ(2u, points.size());
    EXPECT_EQ(3, points[0].x);
}

TEST(HostParcel, CarriesVectorsOfEnumerations) {
    const std::vector<ByteEnum> bytes = {ByteEnum::A, ByteEnum::B, ByteEnum::C};
    const std::vector<IntEnum> ints = {IntEnum::A, IntEnum::B};
    const std::vector<LongEnum> longs = {LongEnum::A, LongEnum::B};
    Parcel parcel;
    parcel.writeEnumVector(bytes);
    EXPECT_EQ(
            "03000000"
            "01020300",
            hexOf(parcel));
    parcel.writeEnumVector(ints);
    parcel.writeEnumVector(longs);
    parcel.setDataPosition(0);
    std::vector<ByteEnum> readBytes;
    std::vector<IntEnum> readInts;
    std::vector<LongEnum> readLongs;
    EXPECT_EQ(NO_ERROR, parcel.readEnumVector(&readBytes));
    EXPECT_EQ(NO_ERROR, parcel.readEnumVector(&readInts));
    EXPECT_EQ(NO_ERROR, parcel.readEnumVector(&readLongs));
    EXPECT_EQ(bytes, readBytes);
    EXPECT_EQ(ints, readInts);
    EXPECT_EQ(longs, readLongs);
}

TEST(HostParcel, RefusesAbsurdSizesAndStaysAsItWas) {
    const size_t absurd = static_cast<size_t>(INT32_MAX) + 1;
    Parcel parcel;
    parcel.writeInt32(5);
    EXPECT_EQ(BAD_VALUE, parcel.setDataSize(absurd));
    EXPECT_EQ(BAD_VALUE, parcel.setDataCapacity(absurd));
    EXPECT_EQ(BAD_VALUE, parcel.write(parcel.data(), absurd));
    EXPECT_EQ(BAD_VALUE, parcel.writeString16(u"", absurd));
    EXPECT_EQ(nullptr, parcel.writeInplace(absurd));
    EXPECT_EQ(nullptr, parcel.writeInplace(INT32_MAX - 1));
    EXPECT_EQ("05000000", hexOf(parcel));
    EXPECT_EQ(4u, parcel.dataPosition());
}

TEST(HostParcel, TakesAPartOfItsOwnBytesAsItsData) {
    for (const size_t capacity : {size_t{12}, size_t{1000}}) {
        Parcel parcel;
        parcel.setDataCapacity(capacity);
        for (int32_t i = 0; i < 200; i++) parcel.writeInt32(i);
        ASSERT_EQ(NO_ERROR, parcel.setData(parcel.data() + 4, 12));
        EXPECT_EQ("010000000200000003000000", hexOf(parcel));
        EXPECT_EQ(12u, parcel.dataCapacity());
        // Of the size of its block, all of it.
        ASSERT_EQ(NO_ERROR, parcel.setData(parcel.data(), 12));
        EXPECT_EQ("010000000200000003000000", hexOf(parcel));
        ASSERT_EQ(NO_ERROR, parcel.setData(parcel.data() + 4, 0));
        EXPECT_EQ("", hexOf(parcel));
    }
}

TEST(HostParcel, GivesItsMemoryBackWhenItIsSetToNothing) {
    Parcel parcel;
    const uint8_t none = 0;
    ASSERT_EQ(NO_ERROR, parcel.setData(&none, 0));
    EXPECT_NE(nullptr, parcel.readInplace(0));
    // Every other time there is a block for nothing.
    ASSERT_EQ(NO_ERROR, parcel.setData(&none, 0));
    EXPECT_EQ(nullptr, parcel.readInplace(0));
    ASSERT_EQ(NO_ERROR, parcel.setData(&none, 0));
    EXPECT_NE(nullptr, parcel.readInplace(0));
}

TEST(HostParcel, WritesBehindItsBlockFromAnyPositionBeyond) {
    for (const size_t position :
         {size_t{1000}, size_t{INT32_MAX} - 15, size_t{INT32_MAX} - 2, size_t{INT32_MAX}}) {
        Parcel parcel;
        parcel.writeInt32(5);
        parcel.setDataPosition(position);
        EXPECT_EQ(NO_ERROR, parcel.writeInt32(6)) << position;
        EXPECT_EQ(132u, parcel.dataPosition()) << position;
    }
}

TEST(HostParcel, ReportsAWriteThatFindsNoRoom) {
    const uint8_t bytes[4] = {5, 0, 0, 0};
    Parcel parcel;
    parcel.setData(bytes, sizeof(bytes));
    parcel.setDataPosition(INT32_MAX);
    EXPECT_EQ(BAD_VALUE, parcel.writeInt32(1));
    EXPECT_NE(NO_ERROR, parcel.write(bytes, sizeof(bytes)));
    EXPECT_NE(NO_ERROR, parcel.writeString16(String16("a")));
    parcel.setDataPosition(0);
    EXPECT_EQ("05000000", hexOf(parcel));
}

TEST(HostParcel, WritesSafelyBeyondItsAllocation) {
    Parcel parcel;
    parcel.writeInt32(5);
    parcel.setDataPosition(1000);
    ASSERT_EQ(NO_ERROR, parcel.writeInt32(6));
    const size_t end = parcel.dataPosition();
    parcel.setDataPosition(end - 4);
    EXPECT_EQ(6, parcel.readInt32());
    parcel.setDataPosition(0);
    EXPECT_EQ(5, parcel.readInt32());
    EXPECT_EQ(end, parcel.dataSize());
}

TEST(HostParcel, ShowsNoForeignMemoryWhereNothingWasWritten) {
    {
        Parcel dirty;
        const std::vector<uint8_t> bytes(200, 0xaa);
        dirty.write(bytes.data(), bytes.size());
    }
    Parcel parcel;
    ASSERT_EQ(NO_ERROR, parcel.setDataSize(200));
    EXPECT_EQ(std::string(400, '0'), hexOf(parcel));
}

TEST(HostParcel, CountsItsAllocations) {
    const size_t count = Parcel::getGlobalAllocCount();
    const size_t size = Parcel::getGlobalAllocSize();
    {
        Parcel parcel;
        parcel.setDataCapacity(1000);
        EXPECT_EQ(count + 1, Parcel::getGlobalAllocCount());
        EXPECT_EQ(size + 1000, Parcel::getGlobalAllocSize());
        parcel.setDataCapacity(3000);
        EXPECT_EQ(count + 1, Parcel::getGlobalAllocCount());
    }
    EXPECT_EQ(count, Parcel::getGlobalAllocCount());
    EXPECT_EQ(size, Parcel::getGlobalAllocSize());
}

TEST(HostParcel, ComparesBytesThenSizes) {
    Parcel a;
    Parcel b;
    EXPECT_EQ(0, a.compareData(b));
    a.writeInt32(1);
    EXPECT_GT(a.compareData(b), 0);
    b.writeInt32(2);
    EXPECT_LT(a.compareData(b), 0);
    b.setDataPosition(1000);
    a.setDataPosition(1000);
    EXPECT_LT(a.compareData(b), 0);
}

TEST(HostParcel, WritesTheThreadsPolicyAndWorkSourceIntoAToken) {
    IPCThreadState* thread = IPCThreadState::self();
    thread->setStrictModePolicy(5);
    const int64_t source = thread->setCallingWorkSourceUid(1000);
    Parcel parcel;
    parcel.writeInterfaceToken(String16("a"));
    thread->restoreCallingWorkSource(source);
    thread->setStrictModePolicy(0);
    EXPECT_EQ(
            "05000080"
            "e8030000"
            "54535953"
            "01000000"
            "61000000",
            hexOf(parcel));
    EXPECT_EQ(1000u, parcel.readCallingWorkSourceUid());
    EXPECT_TRUE(parcel.replaceCallingWorkSourceUid(1001));
    EXPECT_EQ(1001u, parcel.readCallingWorkSourceUid());
}

TEST(HostParcel, TakesThePolicyOverFromAToken) {
    Parcel parcel;
    parcel.writeInt32(7);
    parcel.writeInt32(-1);
    parcel.writeInt32(0x53595354);
    parcel.writeString16(String16("a"));
    parcel.setDataPosition(0);
    EXPECT_TRUE(parcel.enforceInterface(String16("a")));
    EXPECT_EQ(7, IPCThreadState::self()->getStrictModePolicy());
    IPCThreadState::self()->setStrictModePolicy(0);
}

TEST(HostParcel, CarriesExceptions) {
    Parcel parcel;
    parcel.writeNoException();
    EXPECT_EQ("00000000", hexOf(parcel));
    binder::Status::fromServiceSpecificError(12, "why").writeToParcel(&parcel);
    parcel.setDataPosition(0);
    EXPECT_EQ(0, parcel.readExceptionCode());
    binder::Status status;
    EXPECT_EQ(NO_ERROR, status.readFromParcel(parcel));
    EXPECT_EQ(binder::Status::EX_SERVICE_SPECIFIC, status.exceptionCode());
    EXPECT_EQ(12, status.serviceSpecificErrorCode());
    EXPECT_STREQ("why", status.exceptionMessage().string());
    EXPECT_EQ(binder::Status::EX_TRANSACTION_FAILED, parcel.readExceptionCode());
}

TEST(HostParcel, SkipsAReplyHeader) {
    Parcel parcel;
    parcel.writeInt32(binder::Status::EX_HAS_REPLY_HEADER);
    parcel.writeInt32(12);
    parcel.writeInt64(0);
    parcel.writeInt32(99);
    parcel.setDataPosition(0);
    EXPECT_EQ(0, parcel.readExceptionCode());
    EXPECT_EQ(99, parcel.readInt32());
}

TEST(HostParcel, RefusesFileDescriptors) {
    Parcel parcel;
    EXPECT_EQ(INVALID_OPERATION, parcel.writeFileDescriptor(0));
    EXPECT_EQ(INVALID_OPERATION, parcel.writeDupFileDescriptor(0));
    EXPECT_EQ(BAD_TYPE, parcel.writeNativeHandle(nullptr));
    EXPECT_EQ(0u, parcel.dataSize());
    EXPECT_EQ(BAD_TYPE, parcel.readFileDescriptor());
    EXPECT_FALSE(parcel.hasFileDescriptors());
    const bool before = parcel.pushAllowFds(false);
    EXPECT_EQ(FDS_NOT_ALLOWED, parcel.writeFileDescriptor(0));
    parcel.restoreAllowFds(before);
    EXPECT_TRUE(parcel.allowFds());
}

TEST(HostParcel, CarriesABlobInPlace) {
    Parcel parcel;
    {
        Parcel::WritableBlob blob;
        ASSERT_EQ(NO_ERROR, parcel.writeBlob(100000, false, &blob));
        memset(blob.data(), 0x5a, blob.size());
        blob.release();
    }
    parcel.setDataPosition(0);
    Parcel::ReadableBlob blob;
    ASSERT_EQ(NO_ERROR, parcel.readBlob(100000, &blob));
    EXPECT_EQ(0x5a, static_cast<const uint8_t*>(blob.data())[99999]);
    parcel.setDataPosition(0);
    EXPECT_EQ(BAD_VALUE, parcel.readBlob(100001, &blob));
}

TEST(HostParcel, PrintsItsBytes) {
    Parcel parcel;
    parcel.writeInt32(0x01020304);
    StringOutput output;
    output << parcel;
    EXPECT_EQ("Parcel(4 bytes\n00000000: 04 03 02 01)", output.text);
}

}  // namespace
}  // namespace android
