// How the cost of one piece of work grows with the size of something. Google Benchmark fits a
// growth to each series ("BigO"), and README.md says which one is to be expected.

#include <benchmark/benchmark.h>
#include <binder/Parcel.h>
#include <json/value.h>
#include <json/writer.h>
#include <tarn/ITarnClient.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnManager.h>
#include <tarn/TarnService.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "EchoService.h"
#include "core/HwTarnClient.h"
#include "simulator/EmbeddedBoard.h"

namespace {

using android::BnTarnClient;
using android::Parcel;
using android::sp;
using android::TarnManager;
using android::TarnService;
using android::hardware::hidl_string;
using android::hardware::hidl_vec;
using android::hardware::Return;
using android::hardware::Void;
using tarn::bench::EchoService;
using tarn::simulator::EmbeddedBoard;
using vendor::zunt::hwtarn::V1_0::IHwTarn;
using vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

void requestBytes(benchmark::State& state) {
    const sp<EchoService> service = new EchoService;
    android::mHwTarnService = sp<IHwTarn>(service);
    const sp<TarnManager> manager = new TarnManager;
    const std::vector<uint8_t> bytes(static_cast<size_t>(state.range(0)), 1);
    Parcel request;
    request.write(bytes.data(), bytes.size());
    for (auto _ : state) {
        Parcel reply;
        benchmark::DoNotOptimize(manager->invoke(request, &reply));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(requestBytes)->RangeMultiplier(16)->Range(16, 1 << 20)->Complexity();

struct Listener : public ITarnListener {
    void notify(unsigned int, int, int, const Parcel* data) override {
        benchmark::DoNotOptimize(data);
    }
};

void listeners(benchmark::State& state) {
    const sp<android::HwTarnClient> client = new android::HwTarnClient;
    std::vector<Listener> all(static_cast<size_t>(state.range(0)));
    for (Listener& listener : all) client->registerListener(&listener);
    char data[64] = {};
    for (auto _ : state) client->handleMsg(1, data, sizeof(data));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(listeners)->RangeMultiplier(10)->Range(1, 1000)->Complexity();

struct BridgeClient : public BnTarnClient {
    void notify(unsigned int, void* data, unsigned int, void*) override {
        benchmark::DoNotOptimize(data);
    }
};

void bridgeClients(benchmark::State& state) {
    const sp<TarnService> service = new TarnService;
    for (int64_t i = 0; i < state.range(0); i++) service->connect(getpid(), new BridgeClient);
    char data[64] = {};
    for (auto _ : state) service->notify(1, data, sizeof(data), nullptr);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(bridgeClients)->Arg(1)->Arg(10)->Arg(50)->Arg(200)->Complexity();

struct Callback : public IHwTarnCallback {
    Return<void> hwNotify(uint32_t, int32_t, const hidl_string&) override { return Void(); }
    Return<void> hwNotify_vec(uint32_t, int32_t, const hidl_vec<uint8_t>&) override {
        return Void();
    }
};

// A callback of this process counts by the process that it names.
void boardCallbacks(benchmark::State& state) {
    const EmbeddedBoard board = tarn::simulator::loadEmbeddedBoard();
    std::vector<sp<Callback>> callbacks;
    for (int pid = 1; pid <= state.range(0); pid++) {
        callbacks.push_back(new Callback);
        board.service->hwRegisterCallback(callbacks.back(), pid);
    }
    const std::vector<uint8_t> data(64, 1);
    for (auto _ : state) {
        try {
            board.control->raiseEvent(1, data);
        } catch (const std::invalid_argument&) {
            state.PauseTiming();  // too many wait
            usleep(10'000);
            state.ResumeTiming();
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(boardCallbacks)->Arg(1)->Arg(10)->Arg(50)->Arg(200)->Iterations(200)->Complexity();

/** A board file with so many properties; it goes with its object. */
class BoardFile {
  public:
    explicit BoardFile(int64_t properties) {
        const int fd = mkstemps(mPath.data(), 5);
        if (fd < 0) abort();
        close(fd);
        Json::Value board;
        board["name"] = "large";
        for (int64_t i = 0; i < properties; i++) {
            Json::Value& property = board["properties"]["large.value" + std::to_string(i)];
            property["type"] = "i32";
            property["initial"] = 1;
        }
        board["properties"]["audio.volume"] = board["properties"]["large.value0"];
        board["commands"]["CMD_AUDIO_GET_VOLUME"]["get"] = "audio.volume";
        std::ofstream(mPath) << board;
    }
    ~BoardFile() { unlink(mPath.c_str()); }

    const std::string& path() const { return mPath; }

  private:
    std::string mPath = "/tmp/tarn-bench-XXXXXX.json";
};

void boardProperties(benchmark::State& state) {
    const BoardFile file(state.range(0));
    const EmbeddedBoard board = tarn::simulator::loadEmbeddedBoard(file.path());
    Parcel request;
    request.writeInt32(0x1401);
    const hidl_string bytes(reinterpret_cast<const char*>(request.data()), request.dataSize());
    for (auto _ : state) {
        board.service->hwInvoke(
                bytes, [](const hidl_string& reply) { benchmark::DoNotOptimize(reply.size()); });
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(boardProperties)->RangeMultiplier(10)->Range(400, 40'000)->Complexity();

void loadProperties(benchmark::State& state) {
    const BoardFile file(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tarn::simulator::loadEmbeddedBoard(file.path()).service);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(loadProperties)
        ->RangeMultiplier(10)
        ->Range(400, 40'000)
        ->Unit(benchmark::kMillisecond)
        ->Complexity();

}  // namespace

BENCHMARK_MAIN();
