// What a process that does not keep to the rules can do to the others: nothing.

#include <binder/Binder.h>
#include <binder/IPCThreadState.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sdbus-c++/sdbus-c++.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <future>
#include <map>
#include <numeric>
#include <thread>

#include "host/binder/dbus/MessageFormat.h"
#include "tests/process/Desk.h"
#include "tests/process/ProcessTest.h"

namespace tarn::test {
namespace {

using android::BAD_VALUE;
using android::DEAD_OBJECT;
using android::FAILED_TRANSACTION;
using android::IBinder;
using android::NO_ERROR;
using android::Parcel;
using android::sp;
using android::String16;
using namespace android::host::dbus;

constexpr char kDeskName[] = "tarn.test.desk";
constexpr char kDeskBusName[] = "tarn.binder.name_tarn-dtest-ddesk";
constexpr char kRogueName[] = "tarn.test.rogue";
constexpr char kRogueBusName[] = "tarn.binder.name_tarn-dtest-drogue";

// What no bus gives to a connection, though it begins as if.
const std::vector<std::string> kNoUniqueNames = {
        ":", ":1", ":.", ":1.", ":.1", ":1..2", ":1.x", ":1." + std::string(253, '1')};

// 0, 1, 2, ...
std::vector<int32_t> ascending(size_t count) {
    std::vector<int32_t> values(count);
    std::iota(values.begin(), values.end(), 0);
    return values;
}

sp<IBinder> find(const std::string& name) {
    return android::defaultServiceManager()->checkService(String16(name.c_str()));
}

CHILD(desk) {
    android::ProcessState::self()->startThreadPool();
    android::defaultServiceManager()->addService(String16(arguments[0].c_str()), new Desk);
    return serveUntilClosed();
}

constexpr rlim_t kFewDescriptors = 200;

void allowFewDescriptors() {
    rlimit limit;
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = kFewDescriptors;
    setrlimit(RLIMIT_NOFILE, &limit);
}

CHILD(frugal) {
    allowFewDescriptors();
    android::ProcessState::self()->startThreadPool();
    android::defaultServiceManager()->addService(String16(arguments[0].c_str()), new Desk);
    return serveUntilClosed();
}

// A desk whose process has no descriptor left, then one, then enough, each when it is told to.
CHILD(full) {
    allowFewDescriptors();
    android::ProcessState::self()->startThreadPool();
    android::defaultServiceManager()->addService(String16(arguments[0].c_str()), new Desk);
    tell("ready");
    listen();
    std::vector<int> files;
    for (int file = 0; file >= 0; files.push_back(file)) file = ::open("/dev/null", O_CLOEXEC);
    files.pop_back();
    tell("none");
    listen();
    close(files.back());
    files.pop_back();
    tell("one");
    listen();
    for (const int file : files) close(file);
    return serveUntilClosed();
}

// A desk that answers nobody until it is told to, and then one call at a time. It says, when asked,
// how many calls wait, how many of its questions, and how many proxies and processes it knows.
CHILD(late) {
    android::defaultServiceManager()->addService(String16(arguments[0].c_str()), new Desk);
    tell("ready");
    for (std::string word = listen(); !word.empty(); word = listen()) {
        const Counts counts = countsHere();
        if (word == "serve") {
            std::thread([] { android::IPCThreadState::self()->joinThreadPool(); }).detach();
            tell("ready");
        } else {
            tell(std::to_string(word == "waiting"     ? counts.waiting
                                : word == "questions" ? counts.questions
                                : word == "proxies"   ? counts.proxies
                                                      : counts.peers));
        }
    }
    return 0;
}

using Fill = std::function<void(sdbus::Message&)>;

// A connection that speaks to the bus without binder.
class Rogue {
  public:
    Rogue()
        : mConnection(sdbus::createSessionBusConnectionWithAddress(
                  getenv("DBUS_SESSION_BUS_ADDRESS"))) {}

    std::string name() const { return mConnection->getUniqueName(); }
    sdbus::IConnection& connection() { return *mConnection; }

    // Calls the desk; gives the error's name, or an empty one, and hands on what was answered.
    std::string call(const std::string& method, const Fill& fill,
                     sdbus::MethodReply* reply = nullptr,
                     const std::string& interface = kInterface) {
        const auto proxy = sdbus::createProxy(*mConnection, kDeskBusName, kObjectPath);
        sdbus::MethodCall message = proxy->createMethodCall(interface, method);
        fill(message);
        try {
            sdbus::MethodReply answer = proxy->callMethod(message, std::chrono::seconds(20));
            if (reply != nullptr) *reply = answer;
            return "";
        } catch (const sdbus::Error& error) {
            return error.getName();
        }
    }

    void send(const std::string& method, const Fill& fill) {
        const auto proxy = sdbus::createProxy(*mConnection, kDeskBusName, kObjectPath);
        sdbus::MethodCall message = proxy->createMethodCall(kInterface, method);
        fill(message);
        message.dontExpectReply();
        proxy->callMethod(message);
    }

    // Sends calls whose answers it does not wait for, as many as it is told.
    void sendMany(int count, const std::string& method,
                  const std::function<void(sdbus::Message&, int)>& fill) {
        const auto proxy = sdbus::createProxy(*mConnection, kDeskBusName, kObjectPath);
        for (int i = 0; i < count; i++) {
            sdbus::MethodCall message = proxy->createMethodCall(kInterface, method);
            fill(message, i);
            proxy->callMethod(
                    message, [](sdbus::MethodReply&, const sdbus::Error*) {}, UINT64_MAX);
        }
    }

    // The number under which the desk is lent to this connection.
    uint64_t deskNumber(std::string* owner = nullptr) {
        sdbus::MethodReply reply;
        EXPECT_EQ("",
                  call(
                          kLookup, [](sdbus::Message& m) { m << std::string(kDeskName); }, &reply));
        std::string owners;
        uint64_t number = 0;
        reply >> owners >> number;
        if (owner != nullptr) *owner = owners;
        return number;
    }

  private:
    std::unique_ptr<sdbus::IConnection> mConnection;
};

class Hostile : public testing::Test {
  protected:
    explicit Hostile(const std::string& role = "desk") : mProcess(role, {kDeskName}) {
        mProcess.readLine();
        mDesk = DeskClient(find(kDeskName));
        mNumber = mRogue.deskNumber(&mDeskOwner);
        EXPECT_TRUE(mDesk.settle());
        mDescriptors = mDesk.counts().descriptors;
    }

    // Everybody else is served as before, and nothing is left of what the rogue sent: the desk
    // knows of it and of this process alone.
    ~Hostile() override {
        std::vector<uint8_t> back;
        EXPECT_EQ(NO_ERROR, mDesk.echo({1, 2, 3}, &back));
        EXPECT_TRUE(eventually([this] {
            const Counts counts = mDesk.counts();
            return counts.proxies == 0 && counts.lent == 1 && counts.waiting == 0 &&
                   counts.peers == 2 && counts.descriptors <= mDescriptors;
        }));
    }

    std::string transact(const Content& content, int32_t* status = nullptr,
                         uint32_t code = Desk::KEEP) {
        return transactRaw(
                code, [&](sdbus::Message& m) { write(m, content); }, status);
    }

    std::string transactRaw(uint32_t code, const Fill& fillContent, int32_t* status = nullptr) {
        sdbus::MethodReply reply;
        const std::string error = mRogue.call(
                kTransact,
                [&](sdbus::Message& m) {
                    m << mNumber << code << uint32_t{0};
                    fillContent(m);
                },
                &reply);
        if (error.empty() && status != nullptr) reply >> *status;
        return error;
    }

    // A transaction without objects whose bytes lie in a file.
    std::string transactWithFile(int file) {
        return transactRaw(Desk::ECHO, [&](sdbus::Message& m) {
            m.openContainer("(ust)");
            m.closeContainer();
            m.openVariant("h");
            m << sdbus::UnixFd(file);
            m.closeVariant();
        });
    }

    // Lets the desk be busy with a one-way call, so that all others wait for it.
    void keepBusy() {
        Parcel none;
        ASSERT_EQ(NO_ERROR,
                  mDesk.binder()->transact(Desk::PASS, none, nullptr, IBinder::FLAG_ONEWAY));
        ASSERT_TRUE(eventually([this] { return mDesk.inside() == 1; }));
    }

    // What asks the desk to note a value down, of so many bytes.
    Fill note(int32_t value, size_t size = sizeof(int32_t)) const {
        return [=](sdbus::Message& m) {
            Parcel parcel;
            parcel.writeInt32(value);
            parcel.setDataSize(size);
            m << mNumber << uint32_t{Desk::NOTE} << uint32_t{0};
            write(m, {{}, std::vector<uint8_t>(parcel.data(), parcel.data() + size)});
        };
    }

    Child mProcess;
    DeskClient mDesk{nullptr};
    Rogue mRogue;
    int32_t mDescriptors = 0;
    std::string mDeskOwner;
    uint64_t mNumber = 0;
};

TEST_F(Hostile, MessagesOfTheWrongSignatureAreRefused) {
    const std::string invalid = "org.freedesktop.DBus.Error.InvalidArgs";
    EXPECT_EQ(invalid, mRogue.call(kTransact, [](sdbus::Message& m) { m << std::string("x"); }));
    EXPECT_EQ(invalid, mRogue.call(kTransact, [](sdbus::Message&) {}));
    EXPECT_EQ(invalid, mRogue.call(kRelease, [](sdbus::Message& m) { m << uint64_t{1}; }));
    EXPECT_EQ(invalid, mRogue.call(kLookup, [](sdbus::Message& m) { m << int32_t{1}; }));
    EXPECT_EQ("org.freedesktop.DBus.Error.UnknownMethod",
              mRogue.call("Nothing", [](sdbus::Message&) {}));
    EXPECT_EQ("org.freedesktop.DBus.Error.UnknownMethod",
              mRogue.call(
                      kTransact, [](sdbus::Message&) {}, nullptr, "tarn.binder.Nothing"));
}

TEST_F(Hostile, ContentOfAnotherTypeIsRefused) {
    const auto variantOf = [](const std::string& type, const Fill& fill) {
        return [=](sdbus::Message& m) {
            m.openContainer("(ust)");
            m.closeContainer();
            m.openVariant(type);
            fill(m);
            m.closeVariant();
        };
    };
    EXPECT_EQ(kMalformed, transactRaw(Desk::ECHO, variantOf("s", [](sdbus::Message& m) {
                                          m << std::string("bytes");
                                      })));
    EXPECT_EQ(kMalformed, transactRaw(Desk::ECHO, variantOf("ai", [](sdbus::Message& m) {
                                          m << std::vector<int32_t>{1, 2};
                                      })));
    EXPECT_EQ(kMalformed, transactRaw(Desk::ECHO, variantOf("ay", [](sdbus::Message& m) {
                                          m << std::vector<uint8_t>(kMaxInlineSize + 1);
                                      })));
}

TEST_F(Hostile, NumbersThatWereNeverGivenOutAreRefused) {
    for (const uint64_t number : {uint64_t{0}, uint64_t{1}, mNumber + 1, ~mNumber, UINT64_MAX}) {
        EXPECT_EQ(kNoSuchObject, mRogue.call(kTransact, [&](sdbus::Message& m) {
            m << number << uint32_t{Desk::OPEN} << uint32_t{0};
            write(m, {});
        }));
    }
}

TEST_F(Hostile, ServicesThatAreNotThereAreRefused) {
    for (const std::string name : {"", "tarn.test.other", "\xc3\xbc"}) {
        EXPECT_EQ(kNoSuchObject, mRogue.call(kLookup, [&](sdbus::Message& m) { m << name; }));
    }
}

TEST_F(Hostile, ObjectsThatDoNotFitIntoTheBytesAreRefused) {
    const auto statusOf = [this](const std::vector<uint32_t>& offsets, size_t size) {
        Content content;
        content.bytes.resize(size);
        for (const uint32_t offset : offsets) content.references.push_back({offset, "", 7});
        int32_t status = 0;
        EXPECT_EQ("", transact(content, &status));
        return status;
    };
    EXPECT_EQ(BAD_VALUE, statusOf({0}, 0));
    EXPECT_EQ(BAD_VALUE, statusOf({1}, 28));
    EXPECT_EQ(BAD_VALUE, statusOf({UINT32_MAX}, 28));
    EXPECT_EQ(BAD_VALUE, statusOf({0, 27}, 56));
    EXPECT_EQ(BAD_VALUE, statusOf({28, 0}, 56));
    EXPECT_EQ(BAD_VALUE, statusOf({0, 0}, 56));
    // The one that fits is taken, and is the rogue's own.
    EXPECT_EQ(NO_ERROR, statusOf({0}, 28));
    EXPECT_EQ(1, mDesk.counts().proxies);
    EXPECT_EQ(NO_ERROR, mDesk.drop());
}

TEST_F(Hostile, ReferencesToNothingAreRefused) {
    Content content;
    content.bytes.resize(56);
    std::vector<std::string> owners = {"org.freedesktop.DBus", "x", "/", kDeskBusName};
    owners.insert(owners.end(), kNoUniqueNames.begin(), kNoUniqueNames.end());
    for (const std::string& owner : owners) {
        content.references = {{0, "", 7}, {28, owner, 8}};
        EXPECT_EQ(kMalformed, transact(content)) << owner;
    }
    // An object of the desk's process that it never lent.
    content.references = {{0, mDeskOwner, mNumber + 1}};
    EXPECT_EQ(kMalformed, transact(content));
    // An object of a process that there never was.
    content.references = {{0, ":1.999999", 8}};
    EXPECT_EQ("", transact(content));
    EXPECT_EQ(DEAD_OBJECT, mDesk.call(Desk::INSIDE));
    EXPECT_EQ(NO_ERROR, mDesk.drop());
}

// References to objects of processes that there never were, a different one each.
Content inventedReferences(size_t first) {
    Content content;
    content.bytes.resize(kMaxReferences * 28);
    for (size_t i = 0; i < kMaxReferences; i++) {
        content.references.push_back(
                {static_cast<uint32_t>(i * 28), ":9." + std::to_string(first + i), i + 1});
    }
    return content;
}

TEST_F(Hostile, OwnersThatThereNeverWereHoldUpNobody) {
    constexpr int kMessages = 24;
    mRogue.sendMany(kMessages, kTransact, [this](sdbus::Message& m, int i) {
        m << mNumber << uint32_t{Desk::KEEP} << uint32_t{0};
        write(m, inventedReferences(static_cast<size_t>(i) * kMaxReferences));
    });
    auto echoed = std::async(std::launch::async, [this] {
        std::vector<uint8_t> back;
        return mDesk.echo({1}, &back);
    });
    ASSERT_EQ(std::future_status::ready, echoed.wait_for(kPatience));
    EXPECT_EQ(NO_ERROR, echoed.get());
    // The last one that is served leaves the desk an object.
    EXPECT_TRUE(
            eventually([this] { return mDesk.drop() == NO_ERROR && mDesk.counts().proxies == 0; }));
}

TEST_F(Hostile, MoreReferencesThanAllowedAreRefused) {
    Content content;
    content.bytes.resize((kMaxReferences + 1) * 28);
    for (uint32_t i = 0; i <= kMaxReferences; i++)
        content.references.push_back({i * 28, "", i + 1});
    EXPECT_EQ(kMalformed, transact(content));
}

TEST_F(Hostile, TruncatedParcelsAreTheServicesConcern) {
    int32_t status = 0;
    EXPECT_EQ("", transact({{}, {1, 2}}, &status));
    EXPECT_NE(NO_ERROR, status);
    EXPECT_EQ("", transact({{}, {255, 255, 255, 127, 1, 2, 3, 4}}, &status, Desk::ECHO));
    EXPECT_NE(NO_ERROR, status);
}

TEST_F(Hostile, FilesThatCouldChangeOrBlockAreRefused) {
    int ends[2];
    ASSERT_EQ(0, pipe2(ends, O_CLOEXEC));
    EXPECT_EQ(kMalformed, transactWithFile(ends[0]));
    close(ends[0]);
    close(ends[1]);

    const int open = memfd_create("open", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    ASSERT_EQ(0, ftruncate(open, 2000));
    EXPECT_EQ(kMalformed, transactWithFile(open));
    ASSERT_EQ(0, fcntl(open, F_ADD_SEALS, F_SEAL_GROW | F_SEAL_WRITE));
    EXPECT_EQ(kMalformed, transactWithFile(open));
    close(open);

    const int huge = memfd_create("huge", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    ASSERT_EQ(0, ftruncate64(huge, off64_t{1} << 40));
    ASSERT_EQ(0, fcntl(huge, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE));
    EXPECT_EQ(kMalformed, transactWithFile(huge));
    close(huge);

    const int null = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(kMalformed, transactWithFile(null));
    close(null);
}

TEST_F(Hostile, NobodyCanReleaseWhatOthersHold) {
    mRogue.send(kRelease, [this](sdbus::Message& m) { m << mNumber << UINT32_MAX; });
    mRogue.send(kRelease, [this](sdbus::Message& m) { m << mNumber << uint32_t{1}; });
    mRogue.send(kRelease, [this](sdbus::Message& m) { m << mNumber + 1 << uint32_t{1}; });
    EXPECT_EQ(NO_ERROR, mDesk.open());
    EXPECT_TRUE(eventually([this] { return mDesk.counts().holds == 1; }));
}

TEST_F(Hostile, NothingIsHeldForThoseWhoAreNotThere) {
    std::vector<std::string> holders = {":1.999999", "", "x", "org.freedesktop.DBus", mDeskOwner};
    holders.insert(holders.end(), kNoUniqueNames.begin(), kNoUniqueNames.end());
    for (const std::string& holder : holders) {
        mRogue.send(kGrant, [&](sdbus::Message& m) { m << mNumber << holder; });
        mRogue.send(kGrant, [&](sdbus::Message& m) { m << mNumber + 1 << holder; });
    }
    EXPECT_TRUE(eventually([this] { return mDesk.counts().holds == 2; }));
}

TEST_F(Hostile, NobodyCanLendOnWhatItDoesNotHold) {
    Rogue other;
    other.send(kGrant, [&](sdbus::Message& m) { m << mNumber << mRogue.name(); });
    other.send(kGrant, [&](sdbus::Message& m) { m << mNumber << other.name(); });
    EXPECT_EQ(mNumber, other.deskNumber());
    EXPECT_EQ(3, mDesk.counts().holds);
}

TEST_F(Hostile, WhatARogueHoldsEndsWithIt) {
    {
        Rogue other;
        for (int i = 0; i < 100; i++) EXPECT_EQ(mNumber, other.deskNumber());
        EXPECT_EQ(102, mDesk.counts().holds);
    }
    EXPECT_TRUE(eventually([this] { return mDesk.counts().holds == 2; }));
}

TEST_F(Hostile, ForgedDeathsAreNotBelieved) {
    const auto object = sdbus::createObject(mRogue.connection(), "/org/freedesktop/DBus");
    sdbus::Signal forged = object->createSignal("org.freedesktop.DBus", "NameOwnerChanged");
    forged << mDeskOwner << mDeskOwner << std::string();
    forged.send();
    mRogue.deskNumber();  // once it is answered, the signal was delivered
    EXPECT_EQ(NO_ERROR, mDesk.binder()->pingBinder());
    EXPECT_TRUE(mDesk.binder()->isBinderAlive());
}

// Such a message comes in whatever signals the receiver has asked for.
TEST_F(Hostile, DeathsForgedForOneProcessAreNotBelieved) {
    Rogue other;
    other.deskNumber();
    const int holds = mDesk.counts().holds;
    const auto object = sdbus::createObject(mRogue.connection(), "/org/freedesktop/DBus");
    sdbus::Signal forged = object->createSignal("org.freedesktop.DBus", "NameOwnerChanged");
    forged.setDestination(mDeskOwner);
    forged << other.name() << other.name() << std::string();
    forged.send();
    mRogue.deskNumber();  // one more hold; once it is answered, the signal was delivered
    EXPECT_EQ(holds + 1, mDesk.counts().holds);
}

TEST_F(Hostile, AFloodOfOneWayCallsIsBounded) {
    constexpr int kFlood = 10000;
    keepBusy();
    for (int32_t i = 0; i < kFlood; i++) mRogue.send(kTransact, note(i));
    mRogue.deskNumber();
    EXPECT_EQ(4096, mDesk.counts().waiting);
    // Others are served, one-way too.
    EXPECT_EQ(NO_ERROR, mDesk.note(-1));
    std::vector<uint8_t> back;
    EXPECT_EQ(NO_ERROR, mDesk.echo({1}, &back));

    EXPECT_EQ(NO_ERROR, mDesk.open());
    EXPECT_TRUE(eventually([this] { return mDesk.notes().size() == 4097; }));
    std::vector<int32_t> notes = mDesk.notes();
    // Theirs has its turn after the first.
    EXPECT_EQ(-1, notes[1]);
    notes.erase(notes.begin() + 1);
    EXPECT_EQ(ascending(4096), notes);
    // And the rogue is served again.
    mRogue.send(kTransact, note(5));
    EXPECT_TRUE(eventually([this] { return mDesk.notes().back() == 5; }));
}

TEST_F(Hostile, WaitingCallsGoWithTheirSender) {
    keepBusy();
    {
        Rogue other;
        for (int32_t i = 0; i < 1500; i++) other.send(kTransact, note(i, 2000));
        other.deskNumber();
        EXPECT_EQ(1500, mDesk.counts().waiting);
    }
    // What a process said last is heard.
    EXPECT_TRUE(eventually([this] { return mDesk.counts().waiting == 256; }));
    EXPECT_EQ(NO_ERROR, mDesk.open());
    EXPECT_TRUE(eventually([this] { return mDesk.notes().size() == 256; }));
    EXPECT_EQ(ascending(256), mDesk.notes());
}

class HostileToFrugal : public Hostile {
  protected:
    HostileToFrugal() : Hostile("frugal") {}
};

TEST_F(HostileToFrugal, WaitingCallsKeepNoFileOpen) {
    constexpr int kCalls = 3 * kFewDescriptors;
    keepBusy();
    for (int32_t i = 0; i < kCalls; i++) mRogue.send(kTransact, note(i, 2000));
    mRogue.deskNumber();
    EXPECT_LE(mDesk.counts().descriptors, mDescriptors);
    EXPECT_EQ(kCalls, mDesk.counts().waiting);
    const std::vector<uint8_t> bytes(2000, 7);
    std::vector<uint8_t> back;
    EXPECT_EQ(NO_ERROR, mDesk.echo(bytes, &back));
    EXPECT_EQ(bytes, back);
    EXPECT_EQ(NO_ERROR, mDesk.open());
    EXPECT_TRUE(eventually([this] { return mDesk.notes().size() == kCalls; }));
}

class HostileToFull : public Hostile {
  protected:
    HostileToFull() : Hostile("full") {}
};

TEST_F(HostileToFull, AShortageIsAnErrorOfItsOwn) {
    const Content large{{}, std::vector<uint8_t>(50000)};
    std::vector<uint8_t> back;
    for (const std::string left : {"none", "one"}) {
        mProcess.writeLine("next");
        EXPECT_EQ(left, mProcess.readLine());
        EXPECT_EQ(kExhausted, transact(large, nullptr, Desk::NOTES));
        // On a channel one is enough: the request's is closed before the reply needs it.
        const bool enough = left == "one" && !onBusOnly();
        EXPECT_EQ(enough ? NO_ERROR : FAILED_TRANSACTION, mDesk.echo(large.bytes, &back));
        EXPECT_EQ(NO_ERROR, mDesk.echo({1}, &back));
    }
    mProcess.writeLine("more");
    EXPECT_EQ("ready", mProcess.readLine());
    EXPECT_EQ("", transact(large, nullptr, Desk::NOTES));
    EXPECT_EQ(NO_ERROR, mDesk.echo(large.bytes, &back));
}

// A desk that has not begun to serve.
class HostileToLate : public testing::Test {
  protected:
    HostileToLate() : mProcess("late", {kDeskName}) {
        mProcess.readLine();
        mDesk = DeskClient(find(kDeskName));
        mNumber = mRogue.deskNumber();
        mTasks = count("waiting");
    }

    int32_t count(const std::string& what) {
        mProcess.writeLine(what);
        return std::stoi(mProcess.readLine());
    }
    bool waiting(int32_t calls) {
        return eventually([&] { return count("waiting") == mTasks + calls; });
    }

    // Has the desk read what is sent only when the bus stands still.
    void holdBack(const std::function<void()>& send) {
        kill(mProcess.pid(), SIGSTOP);
        send();
        // Once it has answered some questions, the bus has passed it on.
        for (int i = 0; i < 10; i++) {
            mRogue.connection().requestName(kRogueBusName);
            mRogue.connection().releaseName(kRogueBusName);
        }
        theBus().pause();
        kill(mProcess.pid(), SIGCONT);
    }

    void serve() {
        mProcess.writeLine("serve");
        EXPECT_EQ("ready", mProcess.readLine());
    }

    Fill note(int32_t value) const {
        return [=](sdbus::Message& m) {
            Parcel parcel;
            parcel.writeInt32(value);
            m << mNumber << uint32_t{Desk::NOTE} << uint32_t{0};
            write(m, {{}, std::vector<uint8_t>(parcel.data(), parcel.data() + parcel.dataSize())});
        };
    }

    Child mProcess;
    DeskClient mDesk{nullptr};
    Rogue mRogue;
    uint64_t mNumber = 0;
    int32_t mTasks = 0;  // of the carrier's own, which wait too
};

TEST_F(HostileToLate, CallersAreServedInTurn) {
    mRogue.sendMany(4000, kTransact, [this](sdbus::Message& m, int i) { note(i)(m); });
    mRogue.deskNumber();
    EXPECT_TRUE(waiting(4000));
    auto noted = std::async(std::launch::async, [this] {
        Parcel data;
        Parcel reply;
        data.writeInt32(-1);
        return mDesk.binder()->transact(Desk::NOTE, data, &reply);
    });
    EXPECT_TRUE(waiting(4001));
    serve();
    EXPECT_EQ(NO_ERROR, noted.get());
    const std::vector<int32_t> notes = mDesk.notes();
    EXPECT_LE(std::find(notes.begin(), notes.end(), -1) - notes.begin(), 1);
}

TEST_F(HostileToLate, OwnersThatThereNeverWereAreAskedForTogether) {
    holdBack([this] {
        mRogue.sendMany(1, kTransact, [this](sdbus::Message& m, int) {
            m << mNumber << uint32_t{Desk::KEEP} << uint32_t{0};
            write(m, inventedReferences(0));
        });
    });
    EXPECT_TRUE(waiting(1));
    EXPECT_LE(count("questions"), 2);
    theBus().resume();
    serve();
    EXPECT_TRUE(
            eventually([this] { return mDesk.drop() == NO_ERROR && mDesk.counts().proxies == 0; }));
    EXPECT_EQ(2, mDesk.counts().peers);
}

TEST_F(HostileToLate, NobodyIsAskedForWhatIsRefused) {
    const auto invented = [](uint64_t object) {
        return [object](sdbus::Message& m, int) {
            m << object << uint32_t{Desk::KEEP} << uint32_t{0};
            write(m, inventedReferences(0));
        };
    };
    holdBack([&] {
        mRogue.sendMany(1, kTransact, invented(mNumber + 2));
        mRogue.sendMany(1, kTransact, [this](sdbus::Message& m, int i) { note(i)(m); });
    });
    EXPECT_TRUE(waiting(1));
    EXPECT_EQ(0, count("questions"));
    EXPECT_EQ(0, count("proxies"));
    EXPECT_EQ(2, count("peers"));
    theBus().resume();
}

TEST_F(HostileToLate, NothingIsSentToThoseWhoMayNotLive) {
    holdBack([&] {
        mRogue.sendMany(1, kTransact, [this](sdbus::Message& m, int) {
            m << mNumber << uint32_t{Desk::KEEP} << uint32_t{0};
            write(m, inventedReferences(0));
        });
        mRogue.sendMany(1, kTransact, [this](sdbus::Message& m, int i) { note(i)(m); });
    });
    EXPECT_TRUE(waiting(2));
    serve();
    // Once the second is served, nothing is left of the first but the object that the desk keeps
    // and what is to be given back, if there is somebody to give it back to.
    EXPECT_TRUE(eventually([this] { return count("waiting") == 0; }));
    EXPECT_EQ(static_cast<int32_t>(kMaxReferences), count("proxies"));
    theBus().resume();
    EXPECT_TRUE(
            eventually([this] { return mDesk.drop() == NO_ERROR && mDesk.counts().proxies == 0; }));
    EXPECT_EQ(2, mDesk.counts().peers);
}

TEST_F(HostileToLate, ObjectsCountForWhatTheyTake) {
    Content content;
    content.bytes.resize(kMaxReferences * 28);
    for (uint32_t i = 0; i < kMaxReferences; i++) content.references.push_back({i * 28, "", i + 1});
    mRogue.sendMany(40, kTransact, [&](sdbus::Message& m, int) {
        m << mNumber << uint32_t{Desk::KEEP} << uint32_t{0};
        write(m, content);
    });
    mRogue.deskNumber();
    EXPECT_TRUE(waiting(30));
}

TEST_F(HostileToLate, CallsCountForMoreThanTheirBytes) {
    const Content mebibyte{{}, std::vector<uint8_t>(1024 * 1024)};
    mRogue.sendMany(64, kTransact, [&](sdbus::Message& m, int) {
        m << mNumber << uint32_t{Desk::NOTE} << uint32_t{0};
        write(m, mebibyte);
    });
    mRogue.deskNumber();
    EXPECT_TRUE(waiting(63));
}

TEST_F(HostileToLate, CallsGoWithTheirSender) {
    {
        Rogue other;
        other.sendMany(1000, kTransact, [this](sdbus::Message& m, int i) { note(i)(m); });
        other.send(kTransact, note(5));
        other.deskNumber();
        EXPECT_TRUE(waiting(1001));
    }
    // But for the one that nobody waits for.
    EXPECT_TRUE(waiting(1));
    serve();
    EXPECT_TRUE(eventually([this] { return !mDesk.notes().empty(); }));
    EXPECT_EQ((std::vector<int32_t>{5}), mDesk.notes());
}

TEST_F(HostileToLate, OneWayCallersOfAnObjectAreServedInTurn) {
    // The rogue's first one-way call waits behind all of its others.
    mRogue.sendMany(2000, kTransact, [this](sdbus::Message& m, int i) { note(i)(m); });
    for (int32_t i = 2000; i < 4000; i++) mRogue.send(kTransact, note(i));
    mRogue.deskNumber();
    EXPECT_TRUE(waiting(4000));
    EXPECT_EQ(NO_ERROR, mDesk.note(-1));
    EXPECT_EQ(NO_ERROR, mDesk.note(-2));
    EXPECT_TRUE(waiting(4002));
    serve();
    EXPECT_TRUE(eventually([this] { return mDesk.notes().size() == 4002; }));
    std::vector<int32_t> notes = mDesk.notes();
    const auto first = std::find(notes.begin(), notes.end(), -1);
    const auto second = std::find(notes.begin(), notes.end(), -2);
    EXPECT_LE(first - notes.begin(), 2);
    EXPECT_LT(first, second);
    EXPECT_LE(second - notes.begin(), 5);
    notes.erase(std::remove_if(notes.begin(), notes.end(), [](int32_t note) { return note < 0; }),
                notes.end());
    EXPECT_EQ(ascending(4000), notes);
}

TEST_F(Hostile, AFloodOfRefusedCallsIsGoneAtOnce) {
    const Content large = {{{0, "", 7}, {28, mDeskOwner, mNumber}}, std::vector<uint8_t>(100000)};
    for (int i = 0; i < 500; i++) {
        mRogue.send(kTransact, [&](sdbus::Message& m) {
            m << mNumber + 1 << uint32_t{Desk::KEEP} << uint32_t{0};
            write(m, large);
        });
    }
    mRogue.deskNumber();
    const Counts counts = mDesk.counts();
    EXPECT_EQ(0, counts.proxies);
    EXPECT_LE(counts.descriptors, mDescriptors);
}

TEST_F(Hostile, WhatIsRefusedIsGivenBackTogether) {
    std::promise<std::map<uint64_t, uint32_t>> released;
    std::atomic<int> single{0};
    Rogue other;
    const auto object = sdbus::createObject(other.connection(), kObjectPath);
    object->registerMethod(kInterface, kReleaseMany, "a(tu)", "", [&](sdbus::MethodCall call) {
        std::vector<sdbus::Struct<uint64_t, uint32_t>> all;
        call >> all;
        std::map<uint64_t, uint32_t> counts;
        for (const auto& each : all) counts[std::get<0>(each)] = std::get<1>(each);
        released.set_value(counts);
    });
    object->registerMethod(kInterface, kRelease, "tu", "", [&](sdbus::MethodCall) { single++; });
    object->finishRegistration();
    other.send(kTransact, [this](sdbus::Message& m) {
        m << mNumber + 2 << uint32_t{Desk::KEEP} << uint32_t{0};
        write(m,
              {{{0, "", 8}, {28, ":9.1", 5}, {56, "", 9}, {84, "", 8}}, std::vector<uint8_t>(112)});
    });
    other.connection().enterEventLoopAsync();
    auto arrived = released.get_future();
    ASSERT_EQ(std::future_status::ready, arrived.wait_for(kPatience));
    EXPECT_EQ((std::map<uint64_t, uint32_t>{{8, 2}, {9, 1}}), arrived.get());
    EXPECT_EQ(0, single);
    other.connection().leaveEventLoop();
}

TEST_F(Hostile, ManyObjectsAreReleasedAtOnce) {
    for (int i = 0; i < 4; i++) mRogue.deskNumber();
    EXPECT_EQ(6, mDesk.counts().holds);
    mRogue.send(kReleaseMany, [this](sdbus::Message& m) {
        m << std::vector<sdbus::Struct<uint64_t, uint32_t>>{{mNumber, 3U}, {mNumber + 2, 7U}};
    });
    EXPECT_TRUE(eventually([this] { return mDesk.counts().holds == 3; }));
    // Not more of them than a message may refer to.
    std::vector<sdbus::Struct<uint64_t, uint32_t>> many(kMaxReferences, {mNumber + 2, 1U});
    many.emplace_back(mNumber, 1U);
    mRogue.send(kReleaseMany, [&](sdbus::Message& m) { m << many; });
    mRogue.deskNumber();
    EXPECT_EQ(4, mDesk.counts().holds);
}

TEST_F(Hostile, AFloodOfCallsWhoseAnswersNobodyReadsIsBounded) {
    Rogue other;
    other.sendMany(10000, kTransact, [this](sdbus::Message& m, int) {
        m << mNumber << uint32_t{Desk::INSIDE} << uint32_t{0};
        write(m, {});
        ASSERT_LE(mDesk.counts().waiting, 4096);
    });
}

// A service that answers as its test says, in words of the signatures that it is given.
class RogueService {
  public:
    using Answer = std::function<sdbus::MethodReply(sdbus::MethodCall&)>;

    explicit RogueService(Answer onTransact,
                          const std::string& signature = std::string("i") + kContentSignature,
                          Answer onLookup = nullptr, const std::string& lookupSignature = "st") {
        if (!onLookup) {
            onLookup = [this](sdbus::MethodCall& call) {
                sdbus::MethodReply reply = call.createReply();
                reply << mRogue.name() << uint64_t{5};
                return reply;
            };
        }
        mObject = sdbus::createObject(mRogue.connection(), kObjectPath);
        mObject->registerMethod(kInterface, kLookup, "s", lookupSignature,
                                [onLookup](sdbus::MethodCall call) { onLookup(call).send(); });
        mObject->registerMethod(kInterface, kTransact, std::string("tuu") + kContentSignature,
                                signature,
                                [onTransact](sdbus::MethodCall call) { onTransact(call).send(); });
        mObject->registerMethod(kInterface, kRelease, "tu", "", [](sdbus::MethodCall) {});
        mObject->finishRegistration();
        mRogue.connection().requestName(kRogueBusName);
        mRogue.connection().enterEventLoopAsync();
    }
    ~RogueService() { mRogue.connection().leaveEventLoop(); }

  private:
    Rogue mRogue;
    std::unique_ptr<sdbus::IObject> mObject;
};

RogueService::Answer answering(const Fill& fill) {
    return [fill](sdbus::MethodCall& call) {
        sdbus::MethodReply reply = call.createReply();
        fill(reply);
        return reply;
    };
}

android::status_t callRogue() {
    const sp<IBinder> proxy = find(kRogueName);
    if (proxy == nullptr) return android::NAME_NOT_FOUND;
    Parcel data;
    Parcel reply;
    return proxy->transact(1, data, &reply);
}

TEST(HostileService, RepliesOfTheWrongShapeAreFailures) {
    const auto statusOf = [](const std::string& signature, const Fill& fill) {
        const RogueService rogue(answering(fill), signature);
        return callRogue();
    };
    const auto emptyList = [](sdbus::Message& m) {
        m.openContainer("(ust)");
        m.closeContainer();
    };
    EXPECT_EQ(FAILED_TRANSACTION, statusOf("", [](sdbus::Message&) {}));
    EXPECT_EQ(FAILED_TRANSACTION,
              statusOf("s", [](sdbus::Message& m) { m << std::string("yes"); }));
    EXPECT_EQ(FAILED_TRANSACTION, statusOf("i", [](sdbus::Message& m) { m << int32_t{0}; }));
    EXPECT_EQ(FAILED_TRANSACTION, statusOf("ia(ust)", [&](sdbus::Message& m) {
                  m << int32_t{0};
                  emptyList(m);
              }));
    EXPECT_EQ(FAILED_TRANSACTION, statusOf("ia(ust)ay", [&](sdbus::Message& m) {
                  m << int32_t{0};
                  emptyList(m);
                  m << std::vector<uint8_t>{1};
              }));
    EXPECT_EQ(FAILED_TRANSACTION, statusOf("ia(us)v", [](sdbus::Message& m) {
                  m << int32_t{0};
                  m.openContainer("(us)");
                  m.closeContainer();
                  m.openVariant("ay");
                  m << std::vector<uint8_t>{1};
                  m.closeVariant();
              }));
}

TEST(HostileService, ObjectsOfTheWrongKindAreFailures) {
    const auto statusOf = [](const Content& content) {
        const RogueService rogue(answering([&](sdbus::Message& m) {
            m << int32_t{0};
            write(m, content);
        }));
        return callRogue();
    };
    const std::vector<uint8_t> room(28);
    EXPECT_EQ(FAILED_TRANSACTION, statusOf({{{0, "org.freedesktop.DBus", 1}}, room}));
    for (const std::string& owner : kNoUniqueNames) {
        EXPECT_EQ(FAILED_TRANSACTION, statusOf({{{0, owner, 1}}, room})) << owner;
    }
    EXPECT_EQ(BAD_VALUE, statusOf({{{1, "", 1}}, room}));
    EXPECT_EQ(NO_ERROR, statusOf({{{0, "", 1}}, room}));
    EXPECT_TRUE(eventually([] { return countsHere().proxies == 0 && countsHere().peers == 0; }));
}

TEST(HostileService, ErrorsAreFailures) {
    const auto statusOf = [](const std::string& error) {
        const RogueService rogue([error](sdbus::MethodCall& call) {
            return call.createErrorReply(sdbus::Error(error, "because"));
        });
        return callRogue();
    };
    EXPECT_EQ(FAILED_TRANSACTION, statusOf("tarn.test.Error"));
    EXPECT_EQ(FAILED_TRANSACTION, statusOf(kOverloaded));
    EXPECT_EQ(BAD_VALUE, statusOf(kMalformed));
    EXPECT_EQ(DEAD_OBJECT, statusOf(kNoSuchObject));
    EXPECT_EQ(DEAD_OBJECT, statusOf("org.freedesktop.DBus.Error.NoReply"));
}

TEST(HostileService, AnswersOfTheWrongShapeFindNothing) {
    const auto found = [](const std::string& signature, const Fill& fill) {
        const RogueService rogue(nullptr, "", answering(fill), signature);
        return find(kRogueName);
    };
    EXPECT_EQ(nullptr, found("", [](sdbus::Message&) {}).get());
    EXPECT_EQ(nullptr, found("t", [](sdbus::Message& m) { m << uint64_t{5}; }).get());
    EXPECT_EQ(nullptr,
              found("st", [](sdbus::Message& m) { m << std::string("x") << uint64_t{5}; }).get());
    for (const std::string& owner : kNoUniqueNames) {
        EXPECT_EQ(nullptr, found("st", [&](sdbus::Message& m) { m << owner << uint64_t{5}; }).get())
                << owner;
    }
    EXPECT_EQ(nullptr, found("ss", [](sdbus::Message& m) {
                           m << std::string(":1.1") << std::string("5");
                       }).get());
    EXPECT_TRUE(eventually([] { return countsHere().peers == 0; }));
}

}  // namespace
}  // namespace tarn::test
