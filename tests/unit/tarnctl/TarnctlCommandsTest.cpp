#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <tarn/TarnManager.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <sstream>
#include <thread>

#include "host/HostServiceManager.h"
#include "registry/Registry.h"
#include "tests/support/FakeHwTarn.h"
#include "tools/tarnctl/Run.h"

using android::hardware::Status;
using tarn::test::PublishedFake;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr char kEmbedded[] =
        "tarnctl: no hardware service found; using an embedded simulated board\n";

/** A board with a few commands, enough to see each kind of answer. */
constexpr char kBoard[] = R"({
  "name": "small",
  "properties": {
    "audio.volume": {"type": "i32", "initial": 20, "min": 0, "max": 100},
    "audio.drc": {"type": "bool", "initial": false},
    "audio.delay": {"type": "i32", "initial": 40, "indexed": true},
    "system.cpuTemperature": {"type": "s16", "initial": "46.5"},
    "board.note": {"type": "s16", "initial": "none"},
    "ext.resolutions": {"type": "list", "initial": [["1920x1080"], ["3840x2160"]]}
  },
  "commands": {
    "CMD_AUDIO_GET_VOLUME": {"get": "audio.volume"},
    "CMD_AUDIO_SET_VOLUME": {"set": "audio.volume",
                             "event": {"type": "0x1402", "data": ["$audio.volume"]}},
    "CMD_AUDIO_IS_DRC_ENABLE": {"get": "audio.drc"},
    "CMD_AUDIO_ENABLE_DRC": {"set": "audio.drc"},
    "CMD_AUDIO_GET_AUDIO_DELAY": {"get": "audio.delay", "index": "output"},
    "CMD_AUDIO_SET_AUDIO_DELAY": {"set": "audio.delay", "index": "output"},
    "CMD_SYSTEM_GET_CPU_TEMPERATURE": {"get": "system.cpuTemperature"},
    "CMD_EXTENDDISPLAY_CTRL_GET_USER_RESOLUTION_LIST": {"get": "ext.resolutions"}
  }
})";

struct Ran {
    int code;
    std::string out;
    std::string err;
};

Ran run(const std::vector<std::string>& words, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int code = tarnctl::run(words, tarnctl::Streams{in, out, err});
    return Ran{code, out.str(), err.str()};
}

class Tarnctl : public testing::Test {
  protected:
    Tarnctl() : mBoardFile(testing::TempDir() + "/tarnctl_board.json") {
        forgetServices();
        std::ofstream(mBoardFile) << kBoard;
        setenv("TARN_BOARD", mBoardFile.c_str(), 1);
    }

    ~Tarnctl() override {
        forgetServices();
        unlink(mBoardFile.c_str());
    }

    static void forgetServices() {
        android::host::removeAllServices();
        // The end of any manager drops the process's reference to the hardware service.
        android::sp<android::ITarnManager>(new android::TarnManager).clear();
    }

    const std::string mBoardFile;
};

/** A service that answers every command with these bytes. */
class TarnctlWithFake : public Tarnctl {
  protected:
    void answer(const std::string& reply) {
        mService->onInvoke = [reply](const std::string&) { return reply; };
    }

    PublishedFake mService;
};

const std::string kMinusOne("\xff\xff\xff\xff", 4);
const std::string kThirty("\x1e\0\0\0", 4);

// ---- list and describe

TEST_F(Tarnctl, ListsEveryControllerAndMethod) {
    const Ran ran = run({"list"});
    EXPECT_EQ(ran.code, 0);
    size_t total = 0;
    for (const tarn::registry::Controller& controller : tarn::registry::controllers()) {
        const size_t count = controller.methods.size();
        EXPECT_THAT(ran.out, testing::ContainsRegex("(^|\n)" + controller.name + " +" +
                                                    std::to_string(count) + " methods?\n"));
        total += count;
    }
    EXPECT_THAT(ran.out,
                testing::EndsWith("\n" + std::to_string(tarn::registry::controllers().size()) +
                                  " controllers, " + std::to_string(total) + " methods\n"));
    EXPECT_EQ(ran.err, "");
}

TEST_F(Tarnctl, ListsTheMethodsOfAController) {
    const Ran ran = run({"list", "AudioCtrl"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_THAT(ran.out, testing::StartsWith("audio.getVolume() -> int\n"
                                             "audio.setVolume(volume: int) -> int\n"));
    EXPECT_THAT(run({"list", "audio", "-j"}).out,
                HasSubstr(R"({"arguments":[{"name":"volume","type":"int"}],)"
                          R"("commands":[{"code":5122,"command":"CMD_AUDIO_SET_VOLUME",)"
                          R"("reply":"","request":"i32 volume"}],)"
                          R"("method":"audio.setVolume","result":"int"})"));
}

TEST_F(Tarnctl, SuggestsAControllerOfANearName) {
    const Ran ran = run({"list", "audoi"});
    EXPECT_EQ(ran.code, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err,
                testing::StartsWith("tarnctl: no controller \"audoi\"; did you mean audio"));
}

TEST_F(Tarnctl, DescribesAMethodAndItsCommand) {
    const Ran ran = run({"describe", "audio.isI2cSwitchToSoc"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out,
              "audio.isI2cSwitchToSoc() -> bool\n"
              "  command  CMD_AUDIO_IS_I2C_ON_SOC 0x1408\n"
              "  request  no arguments\n"
              "  reply    status, bool on\n");
    EXPECT_EQ(ran.err, "");
}

TEST_F(Tarnctl, DescribesACommandByNameAndByCode) {
    const std::string described =
            "CMD_AUDIO_SET_VOLUME 0x1402\n"
            "  controller  audio\n"
            "  request     i32 volume\n"
            "  reply       status\n"
            "  sent by     audio.setVolume\n";
    EXPECT_EQ(run({"describe", "CMD_AUDIO_SET_VOLUME"}).out, described);
    EXPECT_EQ(run({"describe", "0x1402"}).out, described);
    EXPECT_EQ(run({"describe", "5122"}).out, described);
}

TEST_F(Tarnctl, DescribesAWholeController) {
    const Ran ran = run({"describe", "gpio"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_THAT(ran.out, HasSubstr("\n\ngpio.writeGpioBit("));
}

TEST_F(Tarnctl, RefusesToDescribeWhatItDoesNotKnow) {
    EXPECT_EQ(run({"describe", "setVolume"}).err,
              "tarnctl: no controller, method or command \"setVolume\"; did you mean "
              "audio.setVolume?\n");
    EXPECT_EQ(run({"describe", "0x7fff"}).err, "tarnctl: no command has the code 0x7fff\n");
    EXPECT_THAT(run({"describe", "CMD_AUDIO_SET_VOLUM"}).err,
                HasSubstr("no command \"CMD_AUDIO_SET_VOLUM\"; did you mean "
                          "CMD_AUDIO_SET_VOLUME"));
    for (const char* name : {"setVolume", "0x7fff", "CMD_AUDIO_SET_VOLUM", "audio.x"}) {
        EXPECT_EQ(run({"describe", name}).code, 1) << name;
    }
    EXPECT_EQ(run({"describe", ""}).err, "tarnctl: no controller, method or command \"\"\n");
    EXPECT_THAT(run({"describe", "cmd_audio_set_volume"}).err,
                HasSubstr("did you mean CMD_AUDIO_SET_VOLUME"));
    EXPECT_THAT(run({"describe", "IAudioCtrl"}).err, HasSubstr("did you mean AudioCtrl"));
    EXPECT_EQ(run({"describe"}).code, 2);
    EXPECT_EQ(run({"describe", "0x123456789"}).code, 2);
}

// ---- call

TEST_F(Tarnctl, StartsABoardWhereThereIsNoServiceAndSaysSo) {
    const Ran ran = run({"call", "audio.getVolume"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "20\n");
    EXPECT_EQ(ran.err, kEmbedded);
}

TEST_F(Tarnctl, KeepsQuietWhenTold) {
    EXPECT_EQ(run({"-q", "call", "audio.getVolume"}).err, "");
    const Ran failed = run({"-q", "call", "audio.nothing"});
    EXPECT_EQ(failed.code, 1);
    EXPECT_EQ(failed.err, "");
}

TEST_F(TarnctlWithFake, UsesTheServiceThatItFinds) {
    answer(kThirty);
    const Ran ran = run({"call", "audio.getVolume"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "30\n");
    EXPECT_EQ(ran.err, "");
    EXPECT_THAT(mService->requests(), ElementsAre(std::string("\x01\x14\0\0", 4)));
}

TEST_F(TarnctlWithFake, ShowsTheWordsThatPassed) {
    const Ran ran = run({"call", "audio.setVolume", "0x1e", "--trace", "-q"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "0\n");
    EXPECT_EQ(ran.err,
              "tarnctl: request 02140000 1e000000\n"
              "tarnctl: reply   00000000\n");
}

TEST_F(TarnctlWithFake, ShowsPostedEventsToo) {
    const Ran ran = run({"call", "audio.postAudioEvent", "7", "0a0b", "--trace"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.err, "tarnctl: event   7 0a0b\n");
    ASSERT_EQ(mService->events().size(), 1u);
    EXPECT_EQ(mService->events()[0].data, "\x0a\x0b");
}

TEST_F(TarnctlWithFake, PrintsTheResultAndFailsWithTheService) {
    answer(kMinusOne);
    const Ran ran = run({"call", "audio.isI2cSwitchToSoc"});
    EXPECT_EQ(ran.code, 3);
    EXPECT_EQ(ran.out, "false\n");
    EXPECT_EQ(ran.err, "tarnctl: the command failed with status -1\n");
}

TEST_F(TarnctlWithFake, TakesAnyOtherStatusForASuccess) {
    answer(std::string("\xfb\xff\xff\xff", 4));
    const Ran ran = run({"call", "audio.getVolume"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "-5\n");
}

TEST_F(TarnctlWithFake, FailsOnAReplyWithoutAStatus) {
    answer("");
    const Ran ran = run({"call", "audio.getVolume", "--trace"});
    EXPECT_EQ(ran.code, 3);
    EXPECT_EQ(ran.out, "0\n");
    EXPECT_EQ(ran.err,
              "tarnctl: request 01140000\n"
              "tarnctl: reply   empty\n"
              "tarnctl: the reply has no status\n");
}

TEST_F(TarnctlWithFake, TellsADeadServiceFromAFailedCommand) {
    mService->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    const Ran ran = run({"call", "audio.getVolume", "--trace"});
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(ran.err,
              "tarnctl: request 01140000\n"
              "tarnctl: reply   none\n"
              "tarnctl: the service can't be reached or died\n");
    EXPECT_EQ(run({"call", "audio.postAudioEvent", "7", ""}).code, 4);
}

TEST_F(Tarnctl, NeedsAServiceWhenToldToUseOneOnly) {
    const Ran ran = run({"--service", "call", "audio.getVolume"});
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(ran.err, "tarnctl: there is no hardware service\n");
}

TEST_F(Tarnctl, RefusesAWrongController) {
    const Ran ran = run({"call", "audoi.setVolume", "1"});
    EXPECT_EQ(ran.code, 1);
    EXPECT_THAT(ran.err, HasSubstr("tarnctl: no controller \"audoi\"; did you mean audio"));
}

TEST_F(Tarnctl, RefusesAWrongMethod) {
    const Ran ran = run({"call", "audio.setVolum", "1"});
    EXPECT_EQ(ran.code, 1);
    EXPECT_EQ(ran.err,
              "tarnctl: audio has no method \"setVolum\"; did you mean setVolume, getVolume?\n");
    EXPECT_EQ(run({"call", "setVolume", "1"}).err,
              "tarnctl: no method \"setVolume\", a method is called CONTROLLER.METHOD; did you "
              "mean audio.setVolume?\n");
    EXPECT_EQ(run({"call", "audio"}).code, 2);
}

TEST_F(Tarnctl, RefusesAWrongNumberOfArguments) {
    const Ran few = run({"call", "audio.setVolume"});
    EXPECT_EQ(few.code, 2);
    EXPECT_EQ(few.err,
              "tarnctl: audio.setVolume takes 1 argument, not 0: audio.setVolume(volume: int) -> "
              "int\n");
    const Ran many = run({"call", "audio.setAmpMute", "1", "2", "3"});
    EXPECT_EQ(many.code, 2);
    EXPECT_EQ(many.err,
              "tarnctl: audio.setAmpMute takes 2 arguments, not 3: "
              "audio.setAmpMute(amplifier: int, mute: int) -> int\n");
    EXPECT_EQ(run({"call"}).err,
              "tarnctl: too few arguments; usage: tarnctl call CONTROLLER.METHOD "
              "[ARGUMENT]...\n");
}

TEST_F(Tarnctl, RefusesABadArgumentBeforeLookingForAService) {
    const Ran word = run({"call", "audio.setVolume", "loud"});
    EXPECT_EQ(word.code, 2);
    EXPECT_EQ(word.out, "");
    EXPECT_EQ(word.err,
              "tarnctl: volume: \"loud\" can't be used; accepted: a number from -2147483648 to "
              "2147483647, decimal or 0x hexadecimal, where 0xffffffff is -1\n");
    EXPECT_EQ(run({"--service", "call", "audio.setVolume", "2147483648"}).code, 2);
}

TEST_F(Tarnctl, PrintsListsReadablyAndAsJson) {
    const Ran plain = run({"-q", "call", "extendDisplay.getExtendDisplayUserResolutionList"});
    const Ran json = run({"-q", "-j", "call", "extendDisplay.getExtendDisplayUserResolutionList"});
    EXPECT_EQ(plain.code, 0);
    EXPECT_THAT(plain.out, HasSubstr("1920x1080"));
    EXPECT_THAT(json.out, HasSubstr(R"(["1920x1080","3840x2160"])"));
}

TEST_F(Tarnctl, GivesUpACallThatTakesTooLong) {
    PublishedFake service;
    std::mutex lock;
    std::condition_variable changed;
    bool released = false;
    bool finished = false;
    service->onInvoke = [&](const std::string&) {
        std::unique_lock<std::mutex> guard(lock);
        changed.wait(guard, [&] { return released; });
        finished = true;
        changed.notify_all();
        return std::string(4, '\0');
    };
    const Ran ran = run({"--timeout", "0.5", "--trace", "call", "audio.setVolume", "30"});
    {
        std::unique_lock<std::mutex> guard(lock);
        released = true;
        changed.notify_all();
        changed.wait(guard, [&] { return finished; });
    }
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(ran.err,
              "tarnctl: request 02140000 1e000000\n"
              "tarnctl: reply   not yet\n"
              "tarnctl: no answer within 0.5 s\n");
}

TEST_F(TarnctlWithFake, GivesTheResultOfACallThatIsInTime) {
    answer(kThirty);
    const Ran ran = run({"--timeout", "60", "call", "audio.getVolume"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "30\n");
}

// ---- get and set

TEST_F(Tarnctl, ReadsAndWritesPropertiesThroughTheController) {
    const Ran ran = run({"-q", "batch"},
                        "set audio.volume 40\n"
                        "get audio.Volume\n"
                        "set audio.drc on\n"
                        "get audio.drcEnable\n"
                        "set audio.audioDelay 2 90\n"
                        "get audio.audioDelay 2 -j\n");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "0\n40\n0\n1\n0\n90\n");
}

TEST_F(Tarnctl, FallsBackToTheBoardsOwnProperties) {
    const Ran ran = run({"-q", "batch"},
                        "set board.note 'in the hall'\n"
                        "get board.note\n"
                        "set audio.delay[3] 70\n"
                        "get audio.audioDelay 3\n");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "in the hall\n70\n");
}

TEST_F(Tarnctl, RefusesPropertiesThatItDoesNotHave) {
    const Ran ran = run({"-q", "get", "audio.volum"});
    EXPECT_EQ(ran.code, 1);
    EXPECT_THAT(run({"get", "audio.volum"}).err,
                HasSubstr("no property \"audio.volum\" that can be read; did you mean "
                          "audio.volume"));
    EXPECT_EQ(run({"set", "audio.microphoneAvaliable", "1"}).code, 1);
    EXPECT_EQ(run({"set", "audio.volume"}).code, 2);
    EXPECT_EQ(run({"set", "audio.volume", "x"}).code, 2);
    EXPECT_EQ(run({"get", "volume"}).code, 1);
    EXPECT_EQ(run({"get", "audoi.volume"}).code, 1);
}

TEST_F(Tarnctl, ListsThePropertiesWithTheirAccess) {
    const Ran ran = run({"get"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.err, "");
    EXPECT_THAT(ran.out, testing::ContainsRegex("\naudio\\.volume +rw  int\n"));
    const std::string json = run({"get", "-j"}).out;
    EXPECT_THAT(json, HasSubstr(R"({"access":"rw","name":"audio.volume","type":"int"})"));
    EXPECT_THAT(json, HasSubstr(R"({"access":"rw","name":"audio.drc","type":"int"})"));
    EXPECT_THAT(json, HasSubstr(R"({"access":"w","name":"audio.)"));
    EXPECT_THAT(ran.out, Not(HasSubstr("system.usbSuspend ")));
}

// ---- raw

TEST_F(TarnctlWithFake, SendsRawWords) {
    answer(std::string("\0\0\0\0\x01\0\0\0", 8));
    const Ran ran = run({"raw", "CMD_AUDIO_IS_I2C_ON_SOC", "i32", "1", "s16", "a"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "status: 0\nreply: 00000000 01000000\nfields:\n  on: true\n");
    EXPECT_THAT(mService->requests(),
                ElementsAre(std::string("\x08\x14\0\0\x01\0\0\0\x01\0\0\0a\0\0\0", 16)));
    EXPECT_EQ(run({"raw", "0x1408", "-j"}).out,
              R"({"fields":{"on":true},"reply":"00000000 01000000","status":0})"
              "\n");
}

TEST_F(TarnctlWithFake, ShowsNoStatusWhereTheReplyHasNone) {
    answer("");
    const Ran ran = run({"raw", "0x1401"});
    EXPECT_EQ(ran.code, 3);
    EXPECT_EQ(ran.out, "status: null\nreply: \n");
    EXPECT_EQ(run({"raw", "0x1401", "-j"}).out, "{\"reply\":\"\",\"status\":null}\n");
}

TEST_F(TarnctlWithFake, DecodesConfigurationSets) {
    answer(std::string("\0\0\0\0\x01\0\0\0\x02\0\0\0/\0a\0\0\0\0\0", 20));
    const Ran ran = run({"call", "projectId.getProjectIdLogoCfgs"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "result: 0\ncfgs:\n  - path: /a\n");
    answer(std::string("\0\0\0\0\x02\0\0\0\x05\0\0\0\xfe\xff\xff\xff", 16));
    for (const std::string set : {"PqBcsh", "PqWB", "PqSPG", "Dbc", "Dcr"}) {
        EXPECT_EQ(run({"-j", "call", "projectId.getProjectId" + set + "Cfgs"}).out,
                  R"({"cfgs":[{"value":5},{"value":-2}],"result":0})"
                  "\n");
    }
    // What is not as the layout says is shown as it is.
    answer(std::string("\0\0\0\0\x02\0\0\0", 8));
    EXPECT_EQ(run({"call", "projectId.getProjectIdDbcCfgs"}).out, "result: 0\ndata: 02000000\n");
}

TEST_F(TarnctlWithFake, SendsCodesThatNobodyKnows) {
    answer(kMinusOne);
    const Ran ran = run({"raw", "0x7ffe"});
    EXPECT_EQ(ran.code, 3);
    EXPECT_EQ(ran.out, "status: -1\nreply: ffffffff\n");
}

TEST_F(Tarnctl, RefusesRawWordsThatItCantSend) {
    EXPECT_EQ(run({"raw", "0x1402", "i32"}).err,
              "tarnctl: \"i32\" has no value; a value is given as TYPE VALUE, with TYPE one of "
              "i32, bool, s16, f32, bytes\n");
    EXPECT_EQ(run({"raw", "0x1402", "int", "3"}).err,
              "tarnctl: no type \"int\"; accepted: i32, bool, s16, f32, bytes\n");
    EXPECT_EQ(run({"raw", "0x1402", "i32", "x"}).code, 2);
    EXPECT_EQ(run({"raw", "0x1ffffffff"}).code, 2);
    EXPECT_EQ(run({"raw", "CMD_NOTHING"}).code, 1);
    EXPECT_EQ(run({"raw"}).code, 2);
}

// ---- monitor

TEST_F(Tarnctl, PrintsEventsInTheirOrder) {
    const Ran ran = run({"-q", "batch"},
                        "set audio.volume 40\n"
                        "board raise 0x99 0a0b0c0d 01\n"
                        "board raise 7\n"
                        "board raise CMD_AUDIO_GET_VOLUME\n"
                        "monitor --count 4 --timeout 60\n");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out,
              "0\n"
              "event 0x1402 size 4 28000000\n"
              "event 0x0099 size 8 0a0b0c0d 01000000\n"
              "event 0x0007 size 0\n"
              "event 0x1401 size 0\n");
}

TEST_F(Tarnctl, PrintsEventsAsLinesOfJson) {
    const Ran ran = run({"-q", "batch"}, "board raise 0x99 0a0b\nmonitor -n1 -j\n");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "{\"data\":\"0a0b0000\",\"size\":4,\"type\":153}\n");
}

TEST_F(Tarnctl, StopsWaitingForEventsInTime) {
    EXPECT_EQ(run({"monitor", "--timeout", "0.3"}).code, 0);
    forgetServices();
    const Ran ran = run({"monitor", "--count", "2", "--timeout", "0.3"});
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err, testing::EndsWith("tarnctl: only 0 of 2 events came in time\n"));
}

/** Runs it with a signal sent again and again, since nobody tells when the wait has begun. */
Ran runInterrupted(int signal, const std::vector<std::string>& words,
                   const std::string& input = "") {
    std::atomic<bool> ended{false};
    struct sigaction ignore = {};
    struct sigaction old = {};
    ignore.sa_handler = SIG_IGN;
    sigaction(signal, &ignore, &old);
    std::thread sender([&ended, signal] {
        while (!ended) {
            kill(getpid(), signal);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    });
    const Ran ran = run(words, input);
    ended = true;
    sender.join();
    sigaction(signal, &old, nullptr);
    return ran;
}

TEST_F(Tarnctl, FailsWhenItIsInterruptedBeforeAllEventsCame) {
    const Ran interrupted = runInterrupted(SIGINT, {"monitor", "--count", "3"});
    EXPECT_EQ(interrupted.code, 130);
    EXPECT_THAT(interrupted.err, testing::EndsWith("tarnctl: interrupted\n"));
    forgetServices();
    EXPECT_EQ(runInterrupted(SIGTERM, {"monitor", "--count", "3"}).code, 143);
}

TEST_F(Tarnctl, StopsABatchWhoseMonitorIsInterrupted) {
    const Ran ran = runInterrupted(SIGINT, {"-q", "-k", "batch"},
                                   "monitor\n"
                                   "get audio.volume\n");
    EXPECT_EQ(ran.code, 130);
    EXPECT_EQ(ran.out, "");
}

TEST_F(Tarnctl, EndsMonitoringOnASignal) {
    for (const int signal : {SIGINT, SIGTERM}) {
        forgetServices();
        const Ran ran = runInterrupted(signal, {"monitor"});
        EXPECT_EQ(ran.code, 0);
        EXPECT_EQ(ran.out, "");
        EXPECT_THAT(ran.err, testing::EndsWith("tarnctl: waiting for events\n"));
    }
}

TEST_F(Tarnctl, RefusesACountThatIsNone) {
    for (const std::string count : {"abc", "", "99999999999"}) {
        const Ran ran = run({"monitor", "--count", count});
        EXPECT_EQ(ran.code, 2) << count;
        EXPECT_THAT(ran.err, testing::StartsWith("tarnctl: --count: \"" + count +
                                                 "\" can't be used; accepted: a number"));
    }
    const Ran batch = run({"-k", "batch"}, "monitor --count abc\nlist gpio\n");
    EXPECT_EQ(batch.code, 2);
    EXPECT_THAT(batch.err, testing::StartsWith("tarnctl: -:1: --count: \"abc\" can't be used"));
    EXPECT_THAT(batch.out, HasSubstr("gpio."));
}

TEST_F(TarnctlWithFake, CantMonitorADeadService) {
    mService->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    EXPECT_EQ(run({"monitor", "--timeout", "5"}).code, 4);
}

// ---- batch

TEST_F(Tarnctl, StopsABatchAtTheFirstFailure) {
    const Ran ran = run({"-q", "batch", "-"},
                        "# a comment\n\n"
                        "call audio.getVolume\n"
                        "call audio.setVolume 101\n"
                        "call audio.getVolume\n");
    EXPECT_EQ(ran.code, 3);
    EXPECT_EQ(ran.out, "20\n-1\n");
}

TEST_F(Tarnctl, GoesOnWhenToldAndKeepsTheFirstFailure) {
    const Ran ran = run({"batch", "--keep-going"},
                        "call audio.nothing\n"
                        "call audio.setVolume 101\n"
                        "call 'audio.getVolume\n"
                        "batch\n"
                        "call audio.getVolume --board b.json\n"
                        "call audio.getVolume\n");
    EXPECT_EQ(ran.code, 1);
    EXPECT_EQ(ran.out, "-1\n20\n");
    EXPECT_EQ(ran.err, "tarnctl: -:1: audio has no method \"nothing\"\n" + std::string(kEmbedded) +
                               "tarnctl: -:2: the command failed with status -1\n"
                               "tarnctl: -:3: a ' is not closed\n"
                               "tarnctl: -:4: a batch can't run a batch\n"
                               "tarnctl: -:5: --board can't be given on a line of a batch\n");
}

TEST_F(Tarnctl, ReadsABatchFromAFile) {
    const std::string file = testing::TempDir() + "/tarnctl_batch";
    std::ofstream(file) << "set audio.volume 41\nget audio.volume";
    const Ran ran = run({"batch", file, "-q", "-j"});
    unlink(file.c_str());
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "0\n41\n");
    const Ran missing = run({"batch", file});
    EXPECT_EQ(missing.code, 2);
    EXPECT_EQ(missing.err, "tarnctl: can't read " + file + ": No such file or directory\n");
}

TEST_F(Tarnctl, RefusesABatchThatItCantRead) {
    const Ran directory = run({"batch", testing::TempDir()});
    EXPECT_EQ(directory.code, 2);
    EXPECT_EQ(directory.err, "tarnctl: can't read " + testing::TempDir() + ": Is a directory\n");
    const Ran nul = run({"batch"}, std::string("\0list\n", 6));
    EXPECT_EQ(nul.code, 2);
    EXPECT_EQ(nul.err, "tarnctl: -:1: a line can't have a NUL byte\n");
}

TEST_F(Tarnctl, ReadsABatchWithAByteOrderMark) {
    const Ran ran = run({"-q", "batch"}, "\xef\xbb\xbfget audio.volume\n");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "20\n");
}

TEST_F(Tarnctl, KeepsQuietOnALineThatAsksForIt) {
    const Ran ran = run({"-k", "batch"},
                        "call audio.nothing\n"
                        "call audio.nothing -q\n"
                        "call --bogus -q\n");
    EXPECT_EQ(ran.code, 1);
    EXPECT_EQ(ran.err, "tarnctl: -:1: audio has no method \"nothing\"\n");
}

TEST_F(Tarnctl, GoesOnWithANewManagerAfterACallThatWasGivenUp) {
    const Ran ran = run({"-q", "-k", "batch"},
                        "board fault CMD_AUDIO_SET_VOLUME delay 300\n"
                        "set audio.volume 50 --timeout 0.01\n"
                        "get system.cpUtemperature\n");
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.out, "46.5\n");
    std::this_thread::sleep_for(std::chrono::milliseconds(500));  // for the thread left behind
}

// ---- status

TEST_F(Tarnctl, TellsThatTheBoardIsItsOwn) {
    const Ran ran = run({"status"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "service: ready\nwhere: embedded\nboard: small\nlogLevel: WARN\n");
    EXPECT_EQ(ran.err, kEmbedded);
}

TEST_F(TarnctlWithFake, TellsThatTheServiceIsReady) {
    EXPECT_EQ(run({"status", "-j"}).out,
              "{\"logLevel\":\"WARN\",\"service\":\"ready\",\"where\":\"this process\"}\n");
}

TEST_F(Tarnctl, TellsThatThereIsNoService) {
    const Ran ran = run({"status", "--service"});
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.out, "service: not ready\nlogLevel: WARN\n");
}

// ---- board

TEST_F(Tarnctl, ControlsTheBoardsProperties) {
    const Ran ran = run({"-q", "batch"},
                        "board set audio.volume 0x10\n"
                        "call audio.getVolume\n"
                        "board get audio.volume\n"
                        "board reset\n"
                        "board get audio.volume\n"
                        "board list\n");
    EXPECT_EQ(ran.code, 0);
    EXPECT_THAT(ran.out, testing::StartsWith("16\n16\n20\n"));
    EXPECT_THAT(ran.out, testing::ContainsRegex("\naudio\\.volume +20\n"));
    EXPECT_THAT(ran.out, testing::ContainsRegex("\nboard\\.note +none\n"));
}

TEST_F(Tarnctl, SwitchesFaultsOnAndOff) {
    const Ran ran = run({"-q", "-k", "batch"},
                        "board fault 0x1401 dead\n"
                        "board fault -j\n"
                        "call audio.getVolume\n"
                        "board fault clear CMD_AUDIO_GET_VOLUME\n"
                        "call audio.getVolume\n"
                        "board fault '*' status -1\n"
                        "call audio.getVolume\n"
                        "board fault clear\n"
                        "call audio.getVolume\n");
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.out,
              "[{\"command\":\"CMD_AUDIO_GET_VOLUME\",\"fault\":{\"transport\":\"dead\"}}]\n"
              "20\n-1\n20\n");
}

TEST_F(Tarnctl, ShowsWhatApplicationsPosted) {
    const Ran ran = run({"-q", "batch"}, "call audio.postAudioEvent 7 0a0b\nboard log\n");
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "0\n- data: 0a0b\n  what: 7\n");
}

TEST_F(Tarnctl, RefusesWhatTheBoardDoes) {
    const auto refusal = [](const std::string& line) {
        const Ran refused = run({"batch"}, line + "\n");
        forgetServices();
        return std::to_string(refused.code) + " " + refused.err;
    };
    EXPECT_THAT(refusal("board get audio.volum"),
                AllOf(testing::StartsWith("1 "), HasSubstr("did you mean audio.volume")));
    EXPECT_THAT(refusal("board set audio.volume 101"), testing::StartsWith("2 "));
    EXPECT_THAT(refusal("board set audio.volume x"), testing::StartsWith("2 "));
    EXPECT_THAT(refusal("board raise x"), testing::StartsWith("2 "));
    EXPECT_THAT(refusal("board raise 1 0g"), HasSubstr("data: \"0g\" can't be used"));
    EXPECT_THAT(refusal("board raise 1 010 0"), HasSubstr("data: \"010\" can't be used"));
    EXPECT_THAT(refusal("board raise CMD_NOTHING"), testing::StartsWith("1 "));
    EXPECT_THAT(refusal("board set board.note '\xff'"), HasSubstr("value: the text is not UTF-8"));
    EXPECT_THAT(refusal("board list 1"),
                HasSubstr("too many arguments; usage: tarnctl board list\n"));
    EXPECT_THAT(refusal("board fault CMD_NOTHING dead"), testing::StartsWith("1 "));
    EXPECT_THAT(refusal("board fault clear '*'"), testing::StartsWith("2 "));
    EXPECT_THAT(refusal("board lst"), HasSubstr("board can't \"lst\"; did you mean list"));
    EXPECT_THAT(refusal("board set audio.volume"),
                HasSubstr("too few arguments; usage: tarnctl board set PROPERTY VALUE"));
}

TEST_F(TarnctlWithFake, CantControlABoardThatIsNotSimulated) {
    const Ran ran = run({"board", "list"});
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.err, "tarnctl: the service is not a simulated board that tarnctl can control\n");
}

TEST_F(Tarnctl, StartsTheBoardThatItIsGiven) {
    const std::string override = testing::TempDir() + "/tarnctl_override.json";
    std::ofstream(override)
            << R"({"properties": {"audio.volume": {"type": "i32", "initial": 77}}})";
    const Ran ran = run({"--board", mBoardFile, "--override", override, "get", "audio.volume"});
    unlink(override.c_str());
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "77\n");
    EXPECT_EQ(ran.err, "");
}

TEST_F(Tarnctl, RefusesABoardWithErrors) {
    std::ofstream(mBoardFile) << "{\"name\": 5}\n";
    const Ran chosen = run({"--board", mBoardFile, "get", "audio.volume"});
    EXPECT_EQ(chosen.code, 2);
    EXPECT_THAT(chosen.err,
                AllOf(testing::StartsWith("tarnctl: the simulated board can't be started:\n"),
                      HasSubstr("tarnctl: " + mBoardFile + ":1: ")));
    const Ran set = run({"get", "audio.volume"});  // by TARN_BOARD
    EXPECT_EQ(set.code, 2);
    EXPECT_EQ(set.err, chosen.err);
    EXPECT_EQ(run({"--board", "/no/such/board.json", "get", "audio.volume"}).code, 2);
}

// ---- the rest

TEST_F(Tarnctl, SaysHowItIsUsed) {
    const Ran help = run({"--help"});
    EXPECT_EQ(help.code, 0);
    EXPECT_EQ(help.err, "");
    for (const char* word :
         {"list [CONTROLLER]", "batch [--keep-going] [FILE]", "monitor [--count N] [--reconnect]",
          "--timeout SECONDS", "exit codes:", "--json[=short|pretty]"}) {
        EXPECT_THAT(help.out, HasSubstr(word));
    }
    size_t last = 0;
    for (const std::string verb : {"list", "describe", "call", "get", "set", "raw", "monitor",
                                   "batch", "status", "board", "help"}) {
        const size_t place = help.out.find("\n  " + verb + ' ');
        ASSERT_NE(place, std::string::npos) << verb;
        EXPECT_LT(last, place) << verb;
        last = place;
    }
    EXPECT_EQ(run({"help"}).out, help.out);
    EXPECT_THAT(run({"monitor", "-h"}).out,
                AllOf(testing::StartsWith("usage: tarnctl monitor"), HasSubstr("--count N")));
    EXPECT_EQ(run({"help", "monitor"}).out, run({"monitor", "-h"}).out);
    EXPECT_EQ(run({"--version"}).out, "tarnctl " TARN_PROJECT_VERSION "\n");
}

TEST_F(Tarnctl, RefusesACommandThatItDoesNotHave) {
    const Ran none = run({});
    EXPECT_EQ(none.code, 2);
    EXPECT_EQ(none.err, "tarnctl: no command; tarnctl --help lists them\n");
    const Ran wrong = run({"cal", "audio.getVolume"});
    EXPECT_EQ(wrong.code, 2);
    EXPECT_EQ(wrong.err, "tarnctl: no command \"cal\"; did you mean call, raw?\n");
    EXPECT_EQ(run({"list", "--colour"}).code, 2);
}

TEST_F(Tarnctl, SaysWhenItCantWriteItsResults) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    out.setstate(std::ios::badbit);
    EXPECT_EQ(tarnctl::run({"list"}, tarnctl::Streams{in, out, err}), 5);
    EXPECT_EQ(err.str(), "tarnctl: can't write the results\n");
}

TEST_F(Tarnctl, StopsABatchThatCantWriteItsResults) {
    std::istringstream in("set audio.volume 41\nboard raise 7\n");
    std::ostringstream out;
    std::ostringstream err;
    out.setstate(std::ios::badbit);
    EXPECT_EQ(tarnctl::run({"-k", "batch"}, tarnctl::Streams{in, out, err}), 5);
    EXPECT_EQ(err.str(), std::string(kEmbedded) + "tarnctl: -:1: can't write the results\n");
}

TEST_F(Tarnctl, CompletesWords) {
    const auto complete = [](std::vector<std::string> words) {
        words.insert(words.begin(), {"--", "__complete"});
        return run(words).out;
    };
    EXPECT_EQ(complete({"li"}), "list\n");
    EXPECT_EQ(complete({"call", "aud"}), "audio.\n");
    EXPECT_EQ(complete({"call", "audio.setVol"}), "audio.setVolume\n");
    EXPECT_EQ(complete({"-q", "--timeout", "3", "call", "audio.setVol"}), "audio.setVolume\n");
    EXPECT_EQ(complete({"call", "audio.enableDrc", ""}), "true\nfalse\n");
    EXPECT_EQ(complete({"call", "audio.setVolume", ""}), "");
    EXPECT_EQ(complete({"get", "audio.volu"}), "audio.volume\n");
    EXPECT_EQ(complete({"set", "audio.drc", "t"}), "true\n");
    EXPECT_EQ(complete({"describe", "CMD_AUDIO_SET_VOL"}), "CMD_AUDIO_SET_VOLUME\n");
    EXPECT_EQ(complete({"raw", "0x1402", "b"}), "bool\nbytes\n");
    EXPECT_EQ(complete({"raw", "0x1402", "bool", "b"}), "");
    EXPECT_EQ(complete({"board", "fau"}), "fault\n");
    EXPECT_EQ(complete({"board", "fault", "*", "st"}), "status\n");
    EXPECT_EQ(complete({"monitor", "--cou"}), "--count\n");
    EXPECT_EQ(complete({"monitor", "--rec"}), "--reconnect\n");
    EXPECT_EQ(complete({"list", "--cou"}), "");
    EXPECT_EQ(complete({"list", "--json", "=", "p"}), "pretty\n");
    EXPECT_EQ(complete({"list", "--json", "="}), "short\npretty\n");
    EXPECT_EQ(complete({"nonsense", ""}), "");
    EXPECT_EQ(complete({"--board", ""}), "");
    EXPECT_EQ(complete({"--timeout", ""}), "");
    EXPECT_EQ(complete({"monitor", "-n", ""}), "");
    EXPECT_EQ(complete({"--json", "=", "pretty", "call", "aud"}), "audio.\n");
    EXPECT_EQ(complete({"--board", "=", "b.json", "call", "aud"}), "audio.\n");
    EXPECT_EQ(complete({"call", "AudioCtrl.setVol"}), "AudioCtrl.setVolume\n");
    EXPECT_EQ(complete({"get", "AudioCtrl.volu"}), "AudioCtrl.volume\n");
    EXPECT_EQ(complete({"board", "get", "audio.v"}), "audio.volume\n");
    forgetServices();
    EXPECT_EQ(complete({"board", "set", "board."}), "board.note\n");
    EXPECT_EQ(complete({"board", "set", "audio.volume", ""}), "");
}

}  // namespace
