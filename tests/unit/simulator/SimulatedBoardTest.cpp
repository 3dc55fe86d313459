#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <stdlib.h>
#include <unistd.h>
#include <utils/String16.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <functional>
#include <future>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "host/HostServiceManager.h"
#include "simulator/EmbeddedBoard.h"
#include "simulator/board/EventCallbacks.h"
#include "simulator/board/PostedEvents.h"
#include "simulator/board/SimulatedBoard.h"
#include "simulator/control/LocalBoard.h"
#include "simulator/description/BoardLoader.h"
#include "simulator/faults/Faults.h"
#include "tests/support/Eventually.h"
#include "tests/support/MoreThanMemory.h"
#include "tests/support/RecordingManager.h"
#include "values/Codec.h"
#include "values/StrictJson.h"

namespace tarn::simulator {

using ::android::sp;
using ::android::hardware::hidl_string;
using ::android::hardware::hidl_vec;
using ::android::hardware::Return;
using ::android::hardware::Status;
using ::android::hardware::Void;
using ::tarn::test::hex;
using ::tarn::test::words;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::ThrowsMessage;
using values::Bytes;
using values::Value;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;
using ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

namespace {

constexpr char kBoard[] = R"({
    "name": "bench",
    "properties": {
        "audio.volume":  {"type": "i32",  "initial": 30, "min": 0, "max": 100},
        "audio.mode":    {"type": "i32",  "initial": 0, "values": [0, 2, 5]},
        "audio.mic":     {"type": "bool", "initial": false},
        "audio.drc":     {"type": "bool", "initial": true},
        "audio.gain":    {"type": "i32",  "initial": -7, "min": -50, "max": 10, "indexed": true},
        "audio.out":     {"type": "bool", "initial": false, "indexed": true},
        "noise.level":   {"type": "f32",  "initial": 0.5, "min": 0, "max": 1},
        "boot.logo":     {"type": "s16",  "initial": "/vendor/logo.bmp"},
        "apps.list":     {"type": "list", "initial": ["a.b", "c.d"]},
        "av.status":     {"type": "i32",  "initial": 4},
        "av.data":       {"type": "bytes", "initial": "010203"},
        "touch.off":     {"type": "bool", "initial": false}
    },
    "commands": {
        "CMD_AUDIO_GET_VOLUME":         {"get": "audio.volume"},
        "CMD_AUDIO_SET_VOLUME":         {"set": "audio.volume",
                                         "event": {"type": "0x1402", "data": ["$audio.volume"]}},
        "CMD_AUDIO_GET_EQ_MODE":        {"get": "audio.mode"},
        "CMD_AUDIO_SET_EQ_MODE":        {"set": "audio.mode", "status": 1},
        "CMD_AUDIO_GET_OTG_MIC_STATE":  {"get": "audio.mic"},
        "CMD_AUDIO_SET_OTG_MIC_STATE":  {"set": "audio.mic"},
        "CMD_AUDIO_IS_DRC_ENABLE":      {"get": "audio.drc"},
        "CMD_AUDIO_ENABLE_DRC":         {"set": "audio.drc"},
        "CMD_AUDIO_GET_AUDIO_GAIN":     {"get": "audio.gain", "index": "output"},
        "CMD_AUDIO_SET_AUDIO_GAIN":     {"set": "audio.gain", "index": "output"},
        "CMD_AUDIO_SET_AUDIO_OUT_ENABLE_STATUS": {"set": "audio.out", "index": "output"},
        "CMD_AUDIO_GET_AUDIO_OUT_ENABLE_STATUS": {"get": "audio.out", "index": "output"},
        "CMD_AUDIO_START_AIEQ_CALIBRATION": {"set": {"audio.volume": 11, "boot.logo": "=done"},
            "event": {"type": 7, "data": [1, true, "ab", 0.5, "$apps.list"]}},
        "CMD_AUDIO_GET_BASS":           {"status": 55, "fail": {"status": -3, "every": 3}},
        "CMD_AI_NOISE_GET_AI_NOISE":    {"get": "noise.level"},
        "CMD_AI_NOISE_SET_AI_NOISE":    {"set": "noise.level"},
        "CMD_SYSTEM_REPLACE_BOOT_LOGO": {"set": "boot.logo"},
        "CMD_SYSTEM_GET_CPU_TEMPERATURE": {"get": "boot.logo"},
        "CMD_LANDSCAPE_GET_APP_LIST":   {"get": "apps.list"},
        "CMD_LANDSCAPE_SET_APP_LIST":   {"set": "apps.list", "reply": [9, true]},
        "CMD_FW_TOUCH_GET_DRIVER_LIST": {"reply": [[[1, "$audio.volume", 3, "$boot.logo",
                                                       "$audio.volume", "y"]]]},
        "CMD_AV_SEND_METADATA":         {"set": {"av.status": "item8", "av.data": "data"}},
        "CMD_AV_GET_DSP_TEST_RESULT":   {"reply": ["$av.status", "$av.data"]},
        "CMD_TXB_SEND_PEN_COORD":       {},
        "CMD_TOUCH_SET_STATE_DISABLED": {"set": "touch.off"},
        "CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE": {"set": "touch.off"},
        "CMD_TOUCH_GET_STATE_DISABLED": {"get": "touch.off"},
        "CMD_TOUCH_GET_ANDROID_FORBIDDEN_STATE": {"get": "touch.off"}
    }
})";

/** Keeps the events that it is told, and can be waited for. */
class Receiver : public IHwTarnCallback {
  public:
    Return<void> hwNotify(uint32_t, int32_t, const hidl_string&) override { return Void(); }

    Return<void> hwNotify_vec(uint32_t type, int32_t, const hidl_vec<uint8_t>& data) override {
        std::lock_guard<std::mutex> guard(mLock);
        mCalls++;
        if (mDead) return Status::fromStatusT(::android::DEAD_OBJECT);
        mEvents.push_back(Event{type, Bytes(data.begin(), data.end())});
        mChanged.notify_all();
        return Void();
    }

    std::vector<Event> waitFor(size_t count) {
        std::unique_lock<std::mutex> guard(mLock);
        mChanged.wait_for(guard, std::chrono::seconds(20),
                          [this, count] { return mEvents.size() >= count; });
        return mEvents;
    }

    void die() {
        std::lock_guard<std::mutex> guard(mLock);
        mDead = true;
    }

    int calls() {
        std::lock_guard<std::mutex> guard(mLock);
        return mCalls;
    }

  private:
    std::mutex mLock;
    std::condition_variable mChanged;
    std::vector<Event> mEvents;
    bool mDead = false;
    int mCalls = 0;
};

struct Answer {
    bool ok;
    bool dead;
    bool called;
    Bytes bytes;
};

Answer invoke(IHwTarn* service, const Bytes& request) {
    Answer answer{};
    const Return<void> result = service->hwInvoke(
            hidl_string(reinterpret_cast<const char*>(request.data()), request.size()),
            [&answer](const hidl_string& reply) {
                answer.called = true;
                answer.bytes.assign(reply.c_str(), reply.c_str() + reply.size());
            });
    answer.ok = result.isOk();
    answer.dead = result.isDeadObject();
    return answer;
}

class SimulatedBoardTest : public ::testing::Test {
  protected:
    SimulatedBoardTest() : mBoard(new SimulatedBoard(load())), mControl(controlOf(mBoard)) {}

    static std::shared_ptr<const BoardModel> load() {
        char name[] = "/tmp/tarn-board-XXXXXX";
        close(mkstemp(name));
        std::ofstream(name) << kBoard;
        std::shared_ptr<const BoardModel> model = loadBoard(name);
        unlink(name);
        return model;
    }

    /** The reply of a request that has to get one. */
    Bytes reply(const Bytes& request) const {
        const Answer answer = invoke(mBoard.get(), request);
        EXPECT_TRUE(answer.ok);
        EXPECT_TRUE(answer.called);
        return answer.bytes;
    }

    static Json::Value json(const std::string& text) { return values::parseJson(text); }

    const sp<SimulatedBoard> mBoard;
    const std::unique_ptr<BoardControl> mControl;
};

using SimulatedBoardFaults = SimulatedBoardTest;
using SimulatedBoardEvents = SimulatedBoardTest;
using SimulatedBoardControl = SimulatedBoardTest;

}  // namespace

TEST_F(SimulatedBoardTest, AnswersAPlainGetterWithTheValueAsStatus) {
    EXPECT_EQ(words({30}), reply(words({0x1401})));
    EXPECT_EQ(words({1}), reply(words({0x140C})));
}

TEST_F(SimulatedBoardTest, KeepsAnIntegerThatASetterWrites) {
    EXPECT_EQ(words({0}), reply(words({0x1402, 77})));
    EXPECT_EQ(words({77}), reply(words({0x1401})));
}

TEST_F(SimulatedBoardTest, KeepsABoolAndConfirmsIt) {
    EXPECT_EQ(words({0, 1}), reply(words({0x1439, 1})));
    EXPECT_EQ(words({0, 1}), reply(words({0x1438})));
    EXPECT_EQ(words({0, 1}), reply(words({0x1439, 0})));
    EXPECT_EQ(words({0, 0}), reply(words({0x1438})));
}

TEST_F(SimulatedBoardTest, TakesAnyWordButZeroForTrue) {
    reply(words({0x1439, -9}));
    EXPECT_EQ(words({0, 1}), reply(words({0x1438})));
}

TEST_F(SimulatedBoardTest, KeepsAFloat) {
    EXPECT_EQ(hex("00000000 0000003f"), reply(words({0x4100})));
    EXPECT_EQ(words({0}), reply(hex("01410000 0000803e")));
    EXPECT_EQ(hex("00000000 0000803e"), reply(words({0x4100})));
}

TEST_F(SimulatedBoardTest, KeepsATextWithEverySurrogateAndNul) {
    // "a", NUL, half of a surrogate pair, U+1F600
    const std::string text = "05000000 61000000 00d83dd8 00de0000";
    EXPECT_EQ(words({0, 1}), reply(hex("0a000000" + text)));
    EXPECT_EQ(hex("00000000" + text), reply(words({0x000B})));
}

TEST_F(SimulatedBoardTest, KeepsAListAndAnswersTheDescribedReply) {
    const std::string list = "02000000 01000000 41000000 02000000 42004300 00000000";
    EXPECT_EQ(words({0, 9, 1}), reply(hex("01370000" + list)));
    EXPECT_EQ(hex("00000000" + list), reply(words({0x3700})));
}

TEST_F(SimulatedBoardTest, KeepsBytesAndSeveralPropertiesOfOneRequest) {
    EXPECT_EQ(hex("00000000 04000000 03000000 01020300"), reply(words({0x124D})));
    EXPECT_EQ(words({0}), reply(hex("03120000 01000000 02000000 03000000 04000000 05000000"
                                    "06000000 07000000 08000000 05000000 0a0b0c0d 0e000000")));
    EXPECT_EQ(hex("00000000 08000000 05000000 0a0b0c0d 0e000000"), reply(words({0x124D})));
}

TEST_F(SimulatedBoardTest, KeepsOneValueForEachIndex) {
    EXPECT_EQ(words({-7}), reply(words({0x1444, 2})));
    EXPECT_EQ(words({0}), reply(words({0x1445, 2, -50})));
    EXPECT_EQ(words({0}), reply(words({0x1445, -3, 10})));
    EXPECT_EQ(words({-50}), reply(words({0x1444, 2})));
    EXPECT_EQ(words({10}), reply(words({0x1444, -3})));
    EXPECT_EQ(words({-7}), reply(words({0x1444, 3})));
    EXPECT_EQ(words({0, 1}), reply(words({0x1447, 1, 1})));
    EXPECT_EQ(words({1}), reply(words({0x1446, 1})));
}

TEST_F(SimulatedBoardTest, KeepsNoMoreElementsThanItsLimit) {
    for (int i = 0; i < static_cast<int>(PropertyStore::kMaxElements); i++) {
        ASSERT_EQ(words({0}), reply(words({0x1445, i, 1})));
    }
    EXPECT_EQ(words({-1}), reply(words({0x1445, 1 << 20, 1})));
    EXPECT_EQ(words({0}), reply(words({0x1445, 5, 2})));
}

TEST_F(SimulatedBoardTest, RefusesAValueOutsideTheRangeAndKeepsTheOld) {
    for (const int32_t volume : {-1, 101, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(words({-1}), reply(words({0x1402, volume})));
    }
    EXPECT_EQ(words({30}), reply(words({0x1401})));
    EXPECT_EQ(words({1}), reply(words({0x1404, 5})));
    EXPECT_EQ(words({-1}), reply(words({0x1404, 3})));
    EXPECT_EQ(words({5}), reply(words({0x1403})));
    EXPECT_EQ(words({-1}), reply(hex("01410000 0000c07f")));  // not a number
    EXPECT_EQ(hex("00000000 0000003f"), reply(words({0x4100})));
}

TEST_F(SimulatedBoardTest, FillsTheRecordsOfAReplyFromProperties) {
    mControl->setProperty("boot.logo", Json::Value("a"));
    EXPECT_EQ(hex("00000000 01000000 01000000 1e000000 03000000 01000000 61000000 01000000"
                  "01000000 79000000"),
              reply(words({0x3601})));
}

TEST_F(SimulatedBoardTest, SetsConstants) {
    EXPECT_EQ(words({0}), reply(words({0x1442})));
    EXPECT_EQ(words({11}), reply(words({0x1401})));
    EXPECT_EQ(Json::Value("done"), mControl->getProperty("boot.logo"));
}

TEST_F(SimulatedBoardTest, TakesBothCommandsOfASharedCode) {
    EXPECT_EQ(words({0, 1}), reply(words({0x202C, 1})));
    EXPECT_EQ(words({0, 1}), reply(words({0x202D})));
}

TEST_F(SimulatedBoardTest, TellsCommandsOfASharedCodeApartByTheirArguments) {
    protocol::Command getter{"Test", "GET", 0x0C24, "", ""};
    protocol::Command setter{"Test", "SET", 0x0C24, "bool on", ""};
    auto model = std::make_shared<BoardModel>();
    for (const protocol::Command* row : {&getter, &setter}) {
        CommandDescription command;
        command.row = row;
        command.request = row->requestLayout();
        command.status.literal = Value{int32_t{row == &getter ? 5 : 6}};
        model->commands.emplace(row->code, command);
    }
    const sp<SimulatedBoard> board(new SimulatedBoard(model));

    EXPECT_EQ(words({5}), invoke(board.get(), words({0x0C24})).bytes);
    EXPECT_EQ(words({6}), invoke(board.get(), words({0x0C24, 1})).bytes);
    EXPECT_EQ(words({-1}), invoke(board.get(), words({0x0C24, 1, 1})).bytes);
}

TEST_F(SimulatedBoardTest, AnswersAnUnknownCodeWithMinusOne) {
    EXPECT_EQ(words({-1}), reply(words({0x7FFFFFFF})));
    EXPECT_EQ(words({-1}), reply(words({-1})));
    // Known to the vocabulary, not described by this board.
    EXPECT_EQ(words({-1}), reply(words({0x1410, 5})));
}

TEST_F(SimulatedBoardTest, AnswersHostileRequestsWithMinusOneAndChangesNothing) {
    const Json::Value before = mControl->listProperties();
    for (const std::string request : {
                 "",                                              // nothing at all
                 "02",                                            // half a code
                 "02140000",                                      // no argument
                 "02140000 0a0000",                               // half an argument
                 "02140000 0a000000 00",                          // a byte too many
                 "02140000 0a000000 0b000000",                    // an argument too many
                 "01140000 00000000",                             // an argument to a getter
                 "0a000000 ffffffff",                             // a null text
                 "0a000000 ffffff7f 61006200",                    // a text beyond the end
                 "0a000000 feffffff 61006200",                    // a negative length
                 "0a000000 02000000 61006200",                    // no NUL after the text
                 "0a000000 02000000 61006200 00000000 00000000",  // something after the text
                 "01370000 ffffff7f",                             // a list of two milliard records
                 "01370000 ffffffff",                             // a negative count
                 "01370000 02000000 01000000 41000000",           // the second record is missing
                 "06260000 00000040 01000000 01000000",           // a count beyond the end
                 "03120000 01000000 02000000 03000000 04000000 05000000 06000000 07000000"
                 "08000000 ffffff7f 01020304",  // bytes beyond the end
                 "03120000 01000000 02000000 03000000 04000000 05000000 06000000 07000000"
                 "08000000 ffffffff",  // a negative length
         }) {
        EXPECT_EQ(words({-1}), reply(hex(request))) << request;
    }
    EXPECT_EQ(words({-1}), reply(Bytes(4 << 20, 0xFF)));
    EXPECT_EQ(before, mControl->listProperties());
}

TEST_F(SimulatedBoardTest, AnswersRandomRequestsWithoutHarm) {
    std::mt19937 random(20);
    const std::vector<int32_t> codes{0x1402, 0x1445, 0x000A, 0x3701, 0x1203, 0x2606, 0x202C};
    for (int i = 0; i < 20'000; i++) {
        Bytes request = words({codes[random() % codes.size()]});
        for (size_t size = random() % 40; size > 0; size--) {
            request.push_back(random() % 3 == 0 ? static_cast<uint8_t>(random()) : 0);
        }
        EXPECT_GE(reply(request).size(), 4U);
    }
}

TEST_F(SimulatedBoardTest, ServesEightThreadsAtOnce) {
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; t++) {
        threads.emplace_back([this, t, &wrong] {
            for (int i = 0; i < 500; i++) {
                const int32_t value = i % 50 - 40;
                if (invoke(mBoard.get(), words({0x1445, t, value})).bytes != words({0})) wrong++;
                if (invoke(mBoard.get(), words({0x1444, t})).bytes != words({value})) wrong++;
                invoke(mBoard.get(), words({0x1402, t}));
                mControl->setProperty("audio.mode", Json::Value(5));
                if (i % 50 == 0) mControl->listProperties();
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(0, wrong);
}

TEST_F(SimulatedBoardEvents, RaisesTheDescribedEventOfASuccessfulCommandOnly) {
    const sp<Receiver> receiver(new Receiver);
    mBoard->hwRegisterCallback(receiver, 100);
    reply(words({0x1402, 200}));
    reply(words({0x1402, 41}));
    reply(words({0x1442}));

    const std::vector<Event> events = receiver->waitFor(2);

    ASSERT_EQ(2U, events.size());
    EXPECT_EQ(0x1402U, events[0].type);
    EXPECT_EQ(words({41}), events[0].data);
    EXPECT_EQ(7U, events[1].type);
    EXPECT_EQ(hex("01000000 01000000 02000000 61006200 00000000 0000003f 02000000"
                  "03000000 61002e00 62000000 03000000 63002e00 64000000"),
              events[1].data);
}

TEST_F(SimulatedBoardEvents, ReachEveryProcessInTheOrderOfRaising) {
    const sp<Receiver> first(new Receiver);
    const sp<Receiver> second(new Receiver);
    mBoard->hwRegisterCallback(first, 1);
    mBoard->hwRegisterCallback(second, 2);
    std::vector<std::thread> threads;
    for (uint32_t t = 0; t < 4; t++) {
        threads.emplace_back([this, t] {
            for (int32_t i = 0; i < 500; i++) mControl->raiseEvent(t, words({i}));
        });
    }
    for (std::thread& thread : threads) thread.join();

    const std::vector<Event> events = first->waitFor(2000);
    const std::vector<Event> others = second->waitFor(2000);

    ASSERT_EQ(2000U, events.size());
    ASSERT_EQ(2000U, others.size());
    std::map<uint32_t, int32_t> next;
    for (size_t i = 0; i < events.size(); i++) {
        EXPECT_EQ(words({next[events[i].type]++}), events[i].data);
        EXPECT_EQ(events[i].type, others[i].type);
        EXPECT_EQ(events[i].data, others[i].data);
    }
}

TEST_F(SimulatedBoardEvents, TellTheValuesInTheOrderInWhichTheyWereSet) {
    const sp<Receiver> receiver(new Receiver);
    mBoard->hwRegisterCallback(receiver, 1);
    std::vector<std::thread> threads;
    for (int32_t t = 0; t < 4; t++) {
        threads.emplace_back([this, t] {
            for (int i = 0; i < 200; i++) invoke(mBoard.get(), words({0x1402, t * 20 + i % 20}));
        });
    }
    for (std::thread& thread : threads) thread.join();
    const std::vector<Event> events = receiver->waitFor(800);
    ASSERT_EQ(800U, events.size());
    EXPECT_EQ(reply(words({0x1401})), events.back().data);
}

TEST_F(SimulatedBoardEvents, GoToTheLatestCallbackOfAProcess) {
    const sp<Receiver> first(new Receiver);
    const sp<Receiver> second(new Receiver);
    mBoard->hwRegisterCallback(first, 1);
    mBoard->hwRegisterCallback(second, 1);
    EXPECT_EQ(1U, mBoard->callbackCount());
    mControl->raiseEvent(5, {});
    EXPECT_EQ(1U, second->waitFor(1).size());
    EXPECT_EQ(0, first->calls());
}

TEST_F(SimulatedBoardEvents, DropADeadCallbackAndReachTheOthers) {
    const sp<Receiver> dead(new Receiver);
    const sp<Receiver> alive(new Receiver);
    mBoard->hwRegisterCallback(dead, 1);
    mBoard->hwRegisterCallback(alive, 2);
    dead->die();
    mControl->raiseEvent(1, {});
    mControl->raiseEvent(2, {});
    EXPECT_EQ(2U, alive->waitFor(2).size());
    while (mBoard->callbackCount() == 2) std::this_thread::yield();
    EXPECT_EQ(1, dead->calls());
    EXPECT_EQ(1U, mBoard->callbackCount());
}

/** A callback that does not return until it is set free. */
class Stuck : public Receiver {
  public:
    Return<void> hwNotify_vec(uint32_t, int32_t, const hidl_vec<uint8_t>&) override {
        inside = true;
        mFreed.wait();
        return android::hardware::Void();
    }
    std::promise<void> free;
    std::atomic<bool> inside{false};

  private:
    const std::shared_future<void> mFreed = free.get_future();
};

TEST_F(SimulatedBoardEvents, ReachOthersWhileACallbackDoesNotReturn) {
    const sp<Stuck> stuck(new Stuck);
    const sp<Receiver> other(new Receiver);
    mBoard->hwRegisterCallback(stuck, 1);
    mBoard->hwRegisterCallback(other, 2);
    mControl->raiseEvent(1, {});
    mControl->raiseEvent(2, {});
    EXPECT_EQ(2U, other->waitFor(2).size());
    mBoard->hwRegisterCallback(other, 1);
    stuck->free.set_value();
}

size_t runningThreads() {
    const std::filesystem::directory_iterator tasks("/proc/self/task");
    return static_cast<size_t>(std::distance(begin(tasks), end(tasks)));
}

TEST_F(SimulatedBoardEvents, TakeOneThreadAProcessHoweverOftenItRegistersWhileItIsStuck) {
    const sp<Stuck> stuck(new Stuck);
    const sp<Receiver> replaced(new Receiver);
    const sp<Receiver> last(new Receiver);
    mBoard->hwRegisterCallback(stuck, 1);
    mControl->raiseEvent(1, {});
    while (!stuck->inside) std::this_thread::yield();
    const size_t before = runningThreads();
    for (int i = 0; i < 50; i++) {
        mBoard->hwRegisterCallback(replaced, 1);
        mControl->raiseEvent(2, {});
    }
    mBoard->hwRegisterCallback(last, 1);
    mControl->raiseEvent(3, {});
    EXPECT_EQ(before, runningThreads());
    EXPECT_EQ(1U, mBoard->callbackCount());

    stuck->free.set_value();
    const std::vector<Event> events = last->waitFor(1);
    ASSERT_EQ(1U, events.size());
    EXPECT_EQ(3U, events[0].type);
    EXPECT_EQ(0, replaced->calls());
}

TEST_F(SimulatedBoardEvents, AreRefusedWhenTooManyBytesWait) {
    const sp<Stuck> stuck(new Stuck);
    mBoard->hwRegisterCallback(stuck, 1);
    const Bytes megabyte(1 << 20);
    // One may be on its way already.
    for (int i = 0; i < 16; i++) mBoard->raiseEvent(Event{1, megabyte});
    mBoard->raiseEvent(Event{1, megabyte});
    EXPECT_THAT([&] { mControl->raiseEvent(1, megabyte); },
                ThrowsMessage<std::invalid_argument>("too many events wait to be delivered"));
    stuck->free.set_value();
}

TEST_F(SimulatedBoardEvents, LetACallbackSendCommandsAndRaiseEvents) {
    class Nested : public Receiver {
      public:
        explicit Nested(SimulatedBoard* board) : mBoard(board) {}
        Return<void> hwNotify_vec(uint32_t type, int32_t arg,
                                  const hidl_vec<uint8_t>& data) override {
            if (type == 1) invoke(mBoard, words({0x1402, 64}));
            return Receiver::hwNotify_vec(type, arg, data);
        }

      private:
        SimulatedBoard* mBoard;
    };
    const sp<Nested> receiver(new Nested(mBoard.get()));
    mBoard->hwRegisterCallback(receiver, 1);
    mControl->raiseEvent(1, {});
    const std::vector<Event> events = receiver->waitFor(2);
    ASSERT_EQ(2U, events.size());
    EXPECT_EQ(words({64}), events[1].data);
}

TEST_F(SimulatedBoardEvents, RefuseANullCallback) {
    EXPECT_FALSE(mBoard->hwRegisterCallback(nullptr, 1).isOk());
    EXPECT_EQ(0U, mBoard->callbackCount());
}

/** As long as it lives, no thread can be started: a stack would need more than there is. */
class NoThreads {
  public:
    NoThreads() {
        pthread_getattr_default_np(&mUsual);
        pthread_attr_t impossible;
        pthread_attr_init(&impossible);
        pthread_attr_setstacksize(&impossible, tarn::test::kMoreThanMemory);
        pthread_setattr_default_np(&impossible);
        pthread_attr_destroy(&impossible);
    }
    ~NoThreads() {
        pthread_setattr_default_np(&mUsual);
        pthread_attr_destroy(&mUsual);
    }

  private:
    pthread_attr_t mUsual;
};

TEST_F(SimulatedBoardEvents, RefuseACallbackThatNoThreadCanServe) {
    const sp<Receiver> first(new Receiver);
    const sp<Receiver> second(new Receiver);
    const sp<Receiver> other(new Receiver);
    EXPECT_TRUE(mBoard->hwRegisterCallback(first, 1).isOk());
    {
        const NoThreads none;
        EXPECT_FALSE(mBoard->hwRegisterCallback(other, 2).isOk());
        // The process that has a thread needs no further one.
        EXPECT_TRUE(mBoard->hwRegisterCallback(second, 1).isOk());
    }
    mControl->raiseEvent(1, {});
    EXPECT_EQ(1U, second->waitFor(1).size());
    EXPECT_EQ(0, first->calls());
    EXPECT_EQ(0, other->calls());
}

TEST_F(SimulatedBoardEvents, SurviveACallbackThatDropsTheBoard) {
    class Last : public Receiver {
      public:
        Return<void> hwNotify_vec(uint32_t type, int32_t arg,
                                  const hidl_vec<uint8_t>& data) override {
            board.clear();
            return Receiver::hwNotify_vec(type, arg, data);
        }
        sp<SimulatedBoard> board{new SimulatedBoard(load())};
    };
    const sp<Last> receiver(new Last);
    receiver->board->hwRegisterCallback(receiver, 1);
    receiver->board->raiseEvent(Event{1, {}});
    EXPECT_EQ(1U, receiver->waitFor(1).size());
}

TEST_F(SimulatedBoardEvents, LetCallbacksComeAndDieWhileTheyAreRaised) {
    const auto callbacks = std::make_shared<EventCallbacks>();
    constexpr int32_t kProcesses = 20;
    std::atomic<int> delivered{0};
    struct Dying : IHwTarnCallback {
        explicit Dying(std::atomic<int>* delivered) : mDelivered(delivered) {}
        Return<void> hwNotify(uint32_t, int32_t, const hidl_string&) override { return Void(); }
        Return<void> hwNotify_vec(uint32_t, int32_t, const hidl_vec<uint8_t>&) override {
            ++*mDelivered;
            return Status::fromStatusT(::android::DEAD_OBJECT);
        }
        std::atomic<int>* const mDelivered;
    };
    std::thread registering([&callbacks, &delivered] {
        for (int32_t pid = 1; pid <= kProcesses; pid++) {
            EXPECT_TRUE(callbacks->add(pid, new Dying(&delivered)));
        }
    });
    std::thread raising([&callbacks, &delivered] {
        // Relaxed, so that nothing but the callbacks' own lock orders the threads.
        for (int i = 0; i < 100'000 && delivered.load(std::memory_order_relaxed) < kProcesses;
             i++) {
            callbacks->post(Event{1, {}});
        }
    });
    size_t most = 0;
    for (int i = 0; i < kProcesses; i++) most = std::max(most, callbacks->size());
    registering.join();
    raising.join();
    EXPECT_LE(most, static_cast<size_t>(kProcesses));
    callbacks->post(Event{1, {}});
    EXPECT_TRUE(test::eventually([&callbacks] { return callbacks->size() == 0; }));
    EXPECT_GE(delivered, kProcesses);
}

TEST_F(SimulatedBoardEvents, PostedByApplicationsAreKeptInABoundedLog) {
    const std::string data("\0\1", 2);
    for (int32_t what = 0; what < 300; what++) {
        EXPECT_TRUE(mBoard->hwPostEvent(what, hidl_string(data.data(), data.size())).isOk());
    }
    EXPECT_EQ(PostedEvents::kMaxEvents, mControl->postedEvents().size());
    EXPECT_EQ(json(R"({"what": 44, "data": "0001"})"), mControl->postedEvents()[0]);

    const std::string large(3 << 20, 'x');
    mBoard->hwPostEvent(1000, hidl_string(large));
    mBoard->hwPostEvent(1001, hidl_string(large));
    ASSERT_EQ(1U, mBoard->postedEvents().size());
    EXPECT_EQ(1001, mBoard->postedEvents()[0].what);
}

TEST_F(SimulatedBoardEvents, PostedByApplicationsAreListedWhileTheyCome) {
    PostedEvents events;
    std::vector<std::thread> threads;
    for (int32_t what = 0; what < 2; what++) {
        threads.emplace_back([&events, what] {
            for (int i = 0; i < 300; i++) events.add(PostedEvent{what, {1, 2}});
        });
    }
    threads.emplace_back([&events] {
        for (int i = 0; i < 50; i++) EXPECT_LE(events.list().size(), PostedEvents::kMaxEvents);
    });
    threads.emplace_back([&events] {
        for (int i = 0; i < 50; i++) events.clear();
    });
    for (std::thread& thread : threads) thread.join();
    events.clear();
    EXPECT_THAT(events.list(), IsEmpty());
}

TEST_F(SimulatedBoardFaults, AnswerAStatusAndDoNothing) {
    mControl->setFault("CMD_AUDIO_SET_VOLUME", json(R"({"status": -3})"));
    EXPECT_EQ(words({-3}), reply(words({0x1402, 50})));
    EXPECT_EQ(words({30}), reply(words({0x1401})));
    mControl->clearFault("CMD_AUDIO_SET_VOLUME");
    EXPECT_EQ(words({0}), reply(words({0x1402, 50})));
}

TEST_F(SimulatedBoardFaults, FailTheTransport) {
    mControl->setFault("CMD_AUDIO_SET_VOLUME", json(R"({"transport": "dead"})"));
    Answer answer = invoke(mBoard.get(), words({0x1402, 50}));
    EXPECT_TRUE(answer.dead);
    EXPECT_FALSE(answer.called);
    mControl->setFault("CMD_AUDIO_SET_VOLUME", json(R"({"transport": "error"})"));
    answer = invoke(mBoard.get(), words({0x1402, 50}));
    EXPECT_FALSE(answer.ok);
    EXPECT_FALSE(answer.dead);
    EXPECT_FALSE(answer.called);
    EXPECT_EQ(words({30}), reply(words({0x1401})));
}

TEST_F(SimulatedBoardFaults, CutTheReplyOfACommandThatIsDone) {
    mControl->setFault("CMD_AUDIO_SET_OTG_MIC_STATE", json(R"({"replyBytes": 0})"));
    EXPECT_EQ(Bytes(), reply(words({0x1439, 1})));
    EXPECT_EQ(words({0, 1}), reply(words({0x1438})));
    mControl->setFault("CMD_AUDIO_SET_OTG_MIC_STATE", json(R"({"replyBytes": 6})"));
    EXPECT_EQ(hex("00000000 0100"), reply(words({0x1439, 0})));
    mControl->setFault("CMD_AUDIO_SET_OTG_MIC_STATE", json(R"({"replyBytes": 100})"));
    EXPECT_EQ(words({0, 1}), reply(words({0x1439, 0})));
}

TEST_F(SimulatedBoardFaults, DelayTheAnswer) {
    mControl->setFault("*", json(R"({"delayMs": 60})"));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(words({30}), reply(words({0x1401})));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(60));
}

TEST_F(SimulatedBoardFaults, ComeEveryNthCall) {
    mControl->setFault("*", json(R"({"status": -9, "every": 3})"));
    std::vector<Bytes> replies;
    for (int i = 0; i < 6; i++) replies.push_back(reply(words({0x1401})));
    const Bytes good = words({30});
    const Bytes bad = words({-9});
    EXPECT_THAT(replies, ElementsAre(good, good, bad, good, good, bad));
}

TEST_F(SimulatedBoardFaults, AreTheSameForTheSameSeed) {
    const auto failures = [this](const std::string& fault) {
        mControl->setFault("CMD_AUDIO_GET_VOLUME", json(fault));
        std::set<int> calls;
        for (int i = 0; i < 400; i++) {
            if (reply(words({0x1401})) == words({-9})) calls.insert(i);
        }
        return calls;
    };
    const std::set<int> first = failures(R"({"status": -9, "probability": 0.25, "seed": 5})");
    EXPECT_GT(first.size(), 50U);
    EXPECT_LT(first.size(), 150U);
    EXPECT_EQ(first, failures(R"({"status": -9, "probability": 0.25, "seed": 5})"));
    EXPECT_NE(first, failures(R"({"status": -9, "probability": 0.25, "seed": 6})"));
}

TEST_F(SimulatedBoardFaults, OfOneCommandGoBeforeThoseOfAll) {
    mControl->setFault("*", json(R"({"status": -8})"));
    mControl->setFault("CMD_AUDIO_GET_VOLUME", json(R"({"status": -9})"));
    EXPECT_EQ(words({-9}), reply(words({0x1401})));
    EXPECT_EQ(words({-8}), reply(words({0x1403})));
    EXPECT_EQ(words({-8}), reply(words({0x7777})));
    mControl->setFault("*", json(R"({"transport": "dead"})"));
    EXPECT_TRUE(invoke(mBoard.get(), words({0x1401})).dead);
}

TEST_F(SimulatedBoardFaults, OfTheBoardFileAreOnFromTheStart) {
    EXPECT_EQ(words({55}), reply(words({0x1413})));
    EXPECT_EQ(words({55}), reply(words({0x1413})));
    EXPECT_EQ(words({-3}), reply(words({0x1413})));
    EXPECT_EQ(json(R"([{"command": "CMD_AUDIO_GET_BASS", "fault": {"status": -3, "every": 3}}])"),
              mControl->listFaults());
}

TEST_F(SimulatedBoardFaults, AreListedAndCleared) {
    mControl->clearFaults();
    EXPECT_THAT(mControl->listFaults(), IsEmpty());
    mControl->setFault("CMD_AUDIO_SET_VOLUME", json(R"({"status": 4})"));
    mControl->setFault("*", json(R"({"delayMs": 1})"));
    mControl->setFault("*", json(R"({"transport": "dead"})"));
    mControl->setFault("*", json(R"({"transport": "error", "probability": 0.5, "seed": 3})"));
    EXPECT_EQ(json(R"([{"command": "*", "fault": {"delayMs": 1}},
                       {"command": "*",
                        "fault": {"transport": "error", "probability": 0.5, "seed": 3}},
                       {"command": "CMD_AUDIO_SET_VOLUME", "fault": {"status": 4}}])"),
              mControl->listFaults());
    mControl->clearFault("*");
    EXPECT_EQ(1U, mControl->listFaults().size());
    EXPECT_THAT([this] { mControl->clearFault("*"); },
                ThrowsMessage<std::invalid_argument>("no fault is set for '*'"));
}

TEST_F(SimulatedBoardFaults, AreSwitchedWhileCommandsRun) {
    const Fault fault{Fault::Kind::kStatus, -9};
    const std::string command = "CMD_AUDIO_GET_VOLUME";
    Faults faults;
    const std::function<void()> uses[] = {
            [&] { faults.set(command, fault); },
            [&] { faults.clear(command); },
            [&] { faults.clearAll(); },
            [&] { EXPECT_LE(faults.list().size(), 1U); },
            [&] {
                const auto answer = faults.next(command).answer;
                EXPECT_EQ(-9, answer ? answer->value : -9);
            },
    };
    std::vector<std::thread> threads;
    for (const auto& use : uses) {
        threads.emplace_back([&use] {
            for (int i = 0; i < 300; i++) use();
        });
    }
    for (std::thread& thread : threads) thread.join();
    faults.clearAll();
    EXPECT_FALSE(faults.next(command).answer);
}

TEST_F(SimulatedBoardFaults, AreRefusedWhenDescribedWrongly) {
    const auto setting = [this](const std::string& fault) {
        return [this, fault] { mControl->setFault("*", json(fault)); };
    };
    using E = std::invalid_argument;
    EXPECT_THAT(setting("{}"), ThrowsMessage<E>(HasSubstr("exactly one of")));
    EXPECT_THAT(setting(R"({"status": 1, "delayMs": 1})"), ThrowsMessage<E>(HasSubstr("exactly")));
    EXPECT_THAT(setting(R"({"stat": 1})"),
                ThrowsMessage<E>(HasSubstr("unknown key 'stat'; accepted: status")));
    EXPECT_THAT(setting(R"({"transport": "gone"})"), ThrowsMessage<E>(HasSubstr("neither")));
    EXPECT_THAT(setting(R"({"replyBytes": -1})"), ThrowsMessage<E>(HasSubstr("not within 0")));
    EXPECT_THAT(setting(R"({"delayMs": 60001})"), ThrowsMessage<E>(HasSubstr("not within 0")));
    EXPECT_THAT(setting(R"({"status": 1, "every": 0})"), ThrowsMessage<E>(HasSubstr("not within")));
    EXPECT_THAT(setting(R"({"status": 1, "probability": 0})"),
                ThrowsMessage<E>(HasSubstr("above")));
    EXPECT_THAT(setting(R"({"status": 1, "every": 2, "probability": 0.5})"),
                ThrowsMessage<E>("every and probability can't be combined"));
    EXPECT_THAT(setting(R"({"status": 1, "seed": 2})"),
                ThrowsMessage<E>("seed needs a probability"));
    EXPECT_THAT([this] { mControl->setFault("CMD_NONE", Json::Value()); },
                ThrowsMessage<E>("no command 'CMD_NONE'"));
    EXPECT_EQ(1U, mControl->listFaults().size());
}

TEST_F(SimulatedBoardControl, ListsPropertiesWithTypeValueAndRange) {
    reply(words({0x1402, 31}));
    reply(words({0x1445, 2, 5}));
    const Json::Value list = mControl->listProperties();
    EXPECT_EQ(12U, list.size());
    EXPECT_EQ(json(R"({"type": "i32", "initial": 30, "value": 31, "min": 0, "max": 100})"),
              list["audio.volume"]);
    EXPECT_EQ(json(R"({"type": "i32", "initial": 0, "value": 0, "values": [0, 2, 5]})"),
              list["audio.mode"]);
    EXPECT_EQ(json(R"({"type": "i32", "initial": -7, "value": {"2": 5}, "min": -50, "max": 10,
                       "indexed": true})"),
              list["audio.gain"]);
    EXPECT_EQ(json(R"({"type": "[s16 app]", "initial": [["a.b"], ["c.d"]],
                       "value": [["a.b"], ["c.d"]]})"),
              list["apps.list"]);
    EXPECT_EQ("bench", mControl->name());
}

TEST_F(SimulatedBoardControl, SetsWhatACommandReads) {
    mControl->setProperty("audio.volume", Json::Value(12));
    mControl->setProperty("audio.mic", Json::Value(true));
    mControl->setProperty("boot.logo", Json::Value("\u00e9"));
    mControl->setProperty("apps.list", json(R"(["x"])"));
    mControl->setProperty("av.data", json("[5]"));
    mControl->setProperty("audio.gain[4]", Json::Value(3));
    EXPECT_EQ(words({12}), reply(words({0x1401})));
    EXPECT_EQ(words({0, 1}), reply(words({0x1438})));
    EXPECT_EQ(hex("00000000 01000000 e9000000"), reply(words({0x000B})));
    EXPECT_EQ(hex("00000000 01000000 01000000 78000000"), reply(words({0x3700})));
    EXPECT_EQ(hex("00000000 04000000 01000000 05000000"), reply(words({0x124D})));
    EXPECT_EQ(words({3}), reply(words({0x1444, 4})));
    EXPECT_EQ(Json::Value(3), mControl->getProperty("audio.gain[4]"));
    EXPECT_EQ(Json::Value(-7), mControl->getProperty("audio.gain[5]"));
    EXPECT_EQ(json(R"({"4": 3})"), mControl->getProperty("audio.gain"));
}

TEST_F(SimulatedBoardControl, ReadsTextAsAPersonTypesIt) {
    mControl->setProperty("audio.volume", "0x1f");
    EXPECT_EQ(Json::Value(31), mControl->getProperty("audio.volume"));
    mControl->setProperty("audio.gain[0x2]", "-0x10");
    EXPECT_EQ(Json::Value(-16), mControl->getProperty("audio.gain[2]"));
    mControl->setProperty("audio.mic", "on");
    EXPECT_EQ(Json::Value(true), mControl->getProperty("audio.mic"));
    mControl->setProperty("noise.level", "0.1");
    EXPECT_EQ(Json::Value(0.1), mControl->getProperty("noise.level"));
    mControl->setProperty("boot.logo", "");
    EXPECT_EQ(Json::Value(""), mControl->getProperty("boot.logo"));
    mControl->setProperty("av.data", "0A ff");
    EXPECT_EQ(Json::Value("0aff"), mControl->getProperty("av.data"));
    mControl->setProperty("apps.list", R"(["q", ["r"]])");
    EXPECT_EQ(json(R"([["q"], ["r"]])"), mControl->getProperty("apps.list"));
}

TEST_F(SimulatedBoardControl, RefusesWhatACommandWouldRefuse) {
    const Json::Value before = mControl->listProperties();
    const auto setting = [this](const std::string& name, const std::string& value) {
        return [this, name, value] { mControl->setProperty(name, value); };
    };
    using E = std::invalid_argument;
    EXPECT_THAT(setting("audio.volume", "101"),
                ThrowsMessage<E>("'audio.volume': above the largest value 100"));
    EXPECT_THAT(setting("audio.mode", "1"),
                ThrowsMessage<E>("'audio.mode': not one of its values"));
    EXPECT_THAT(setting("audio.volume", "loud"), ThrowsMessage<E>("'loud' is no whole number"));
    EXPECT_THAT(setting("audio.volume", "1 "), ThrowsMessage<E>("'1 ' is no whole number"));
    EXPECT_THAT(setting("audio.volume", ""), ThrowsMessage<E>("'' is no whole number"));
    EXPECT_THAT(setting("audio.volume", "2147483648"),
                ThrowsMessage<E>("'2147483648' is beyond 32 bits"));
    EXPECT_THAT(setting("audio.mic", "2"), ThrowsMessage<E>("'2' is neither true nor false"));
    EXPECT_THAT(setting("noise.level", "nan"), ThrowsMessage<E>("'nan' is not a number"));
    EXPECT_THAT(setting("apps.list", "[1]"), ThrowsMessage<E>("needs a text (s16)"));
    EXPECT_THAT(setting("apps.list", "["), ThrowsMessage<E>(HasSubstr("not JSON")));
    EXPECT_THAT(setting("av.data", "0"), ThrowsMessage<E>(HasSubstr("hexadecimal")));
    EXPECT_THAT(setting("audio.none", "1"), ThrowsMessage<E>("no property 'audio.none'"));
    EXPECT_THAT(setting("", "1"), ThrowsMessage<E>("no property ''"));
    EXPECT_THAT(setting("audio.volume[1]", "1"), ThrowsMessage<E>("'audio.volume' has no index"));
    EXPECT_THAT(setting("audio.gain", "1"),
                ThrowsMessage<E>("'audio.gain' needs an index: audio.gain[...]"));
    EXPECT_THAT(setting("audio.gain[1,2]", "1"), ThrowsMessage<E>("index '1,2' needs 1 parts"));
    EXPECT_THAT(setting("audio.gain[x]", "1"), ThrowsMessage<E>("'x' is no whole number"));
    EXPECT_THAT([this] { mControl->setProperty("audio.volume", Json::Value(true)); },
                ThrowsMessage<E>("needs a whole number (i32)"));
    EXPECT_EQ(before, mControl->listProperties());
}

TEST_F(SimulatedBoardControl, ResetsToWhatTheFilesDescribe) {
    const Json::Value before = mControl->listProperties();
    const Json::Value faults = mControl->listFaults();
    reply(words({0x1402, 50}));
    reply(words({0x1445, 1, 1}));
    mControl->setFault("*", json(R"({"status": -1})"));
    mControl->clearFault("CMD_AUDIO_GET_BASS");
    mBoard->hwPostEvent(1, "x");
    mControl->reset();
    EXPECT_EQ(before, mControl->listProperties());
    EXPECT_EQ(faults, mControl->listFaults());
    EXPECT_THAT(mControl->postedEvents(), IsEmpty());
}

/** The emptiest request of a row: zeros, empty texts, empty lists. */
Bytes emptyRequest(const protocol::Command& row) {
    android::Parcel request;
    request.writeInt32(row.code);
    for (const protocol::Field& field : row.requestLayout()) {
        if (field.type == protocol::Type::kString16) {
            request.writeString16(android::String16());
        } else {
            request.writeInt32(0);
        }
    }
    return Bytes(request.data(), request.data() + request.dataSize());
}

TEST(DefaultBoard, AnswersEveryCommandAsItsRowSays) {
    const sp<SimulatedBoard> board(new SimulatedBoard(loadBoard(defaultBoardPath())));
    for (const protocol::Command& row : protocol::commands()) {
        const Bytes request = emptyRequest(row);
        ASSERT_TRUE(board->board().decode(request.data(), request.size())) << row.name;
        const Answer answer = invoke(board.get(), request);
        if (answer.bytes == words({-1})) continue;  // a zero is out of the property's range
        android::Parcel reply;
        reply.setData(answer.bytes.data(), answer.bytes.size());
        reply.readInt32();
        EXPECT_TRUE(values::decode(reply, row.replyLayout())) << row.name;
    }
}

TEST(DefaultBoard, TellsVlanGetterAndSetterApartByTheArgument) {
    const sp<SimulatedBoard> board(new SimulatedBoard(loadBoard(defaultBoardPath())));
    for (const int32_t on : {1, 0, 1}) {
        EXPECT_NE(words({-1}), invoke(board.get(), words({0x0C24, on})).bytes);
        EXPECT_EQ(words({on}), invoke(board.get(), words({0x0C24})).bytes);
    }
}

TEST(EmbeddedBoard, ServesThisProcessAsTheDefaultService) {
    char name[] = "/tmp/tarn-board-XXXXXX";
    close(mkstemp(name));
    std::ofstream(name) << kBoard;
    const EmbeddedBoard board = startEmbeddedBoard(name);
    unlink(name);

    const sp<IHwTarn> service = IHwTarn::getService();
    ASSERT_NE(nullptr, service);
    invoke(service.get(), words({0x1402, 66}));
    EXPECT_EQ(Json::Value(66), board.control->getProperty("audio.volume"));

    android::host::removeService(android::String16("vendor.zunt.hwtarn@1.0::IHwTarn/default"));
    EXPECT_EQ(nullptr, IHwTarn::getService());
}

TEST(EmbeddedBoard, IsNotPublishedWhenItsFileIsRefused) {
    EXPECT_THROW(startEmbeddedBoard("/none/board.json"), BoardFileError);
    EXPECT_EQ(nullptr, IHwTarn::getService());
}

}  // namespace tarn::simulator
