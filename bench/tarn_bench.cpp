#include <binder/Binder.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <fcntl.h>
#include <sdbus-c++/sdbus-c++.h>
#include <spawn.h>
#include <sys/wait.h>
#include <tarn/TarnManager.h>
#include <unistd.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "EchoService.h"

extern char** environ;

namespace {

using android::IBinder;
using android::NO_ERROR;
using android::Parcel;
using android::sp;
using android::status_t;
using android::String16;
using android::TarnManager;
using std::chrono::steady_clock;
using tarn::bench::EchoService;

constexpr char kBareName[] = "tarn.bench";
constexpr char kBarePath[] = "/tarn/bench";
constexpr char kBareInterface[] = "tarn.bench.Echo";
constexpr char kCounterName[] = "tarn.bench.counter";

constexpr char kInner[] = "--on-this-bus";
constexpr char kServe[] = "--serve";
constexpr char kJson[] = "--json";

// Counts one-way calls.
class Counter : public android::BBinder {
  public:
    enum : uint32_t { COUNT = FIRST_CALL_TRANSACTION, TOTAL };

    status_t onTransact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t flags) override {
        switch (code) {
            case COUNT:
                mTotal++;
                return NO_ERROR;
            case TOTAL:
                return reply->writeInt64(mTotal);
            default:
                return BBinder::onTransact(code, data, reply, flags);
        }
    }

  private:
    std::atomic<int64_t> mTotal{0};
};

int serve() {
    const sp<EchoService> board = new EchoService;
    if (board->registerAsService() != android::OK) return 1;
    android::ProcessState::self()->startThreadPool();
    android::defaultServiceManager()->addService(String16(kCounterName), new Counter);

    const auto connection = sdbus::createSessionBusConnection(kBareName);
    const auto object = sdbus::createObject(*connection, kBarePath);
    object->registerMethod("Echo")
            .onInterface(kBareInterface)
            .implementedAs([](const std::vector<uint8_t>& bytes) { return bytes; });
    object->finishRegistration();
    connection->enterEventLoopAsync();

    puts("ready");
    fflush(stdout);
    getchar();
    return 0;
}

// The service process; it ends with this one.
class Service {
  public:
    Service() {
        int input[2];
        int output[2];
        if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) abort();
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
        std::string program = "/proc/self/exe";
        std::string role = kServe;
        char* const command[] = {program.data(), role.data(), nullptr};
        if (posix_spawn(&mPid, command[0], &actions, nullptr, command, environ) != 0) abort();
        posix_spawn_file_actions_destroy(&actions);
        close(input[0]);
        close(output[1]);
        char ready;
        if (read(output[0], &ready, 1) != 1) abort();
        close(output[0]);
        mInput = input[1];
    }
    ~Service() {
        close(mInput);
        waitpid(mPid, nullptr, 0);
    }

  private:
    pid_t mPid = -1;
    int mInput = -1;
};

// What was measured; an aim of 0 is none.
struct Figure {
    std::string what;
    double value;
    const char* unit;
    double aim;
};
std::vector<Figure> gFigures;

void report(const std::string& what, double value, const char* unit, double aim = 0) {
    gFigures.push_back({what, value, unit, aim});
}

void printFigures(bool asJson) {
    if (asJson) puts("[");
    for (const Figure& figure : gFigures) {
        if (asJson) {
            printf("{\"what\": \"%s\", \"figure\": %.9g, \"unit\": \"%s\"", figure.what.c_str(),
                   figure.value, figure.unit);
            if (figure.aim > 0) printf(", \"aim\": %g", figure.aim);
            puts(&figure == &gFigures.back() ? "}" : "},");
        } else {
            printf("%-44s %12.2f %s\n", figure.what.c_str(), figure.value, figure.unit);
        }
    }
    if (asJson) puts("]");
}

double secondsSince(steady_clock::time_point start) {
    return std::chrono::duration<double>(steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

double timeOf(const std::function<void()>& work) {
    const auto start = steady_clock::now();
    work();
    return secondsSince(start);
}

void check(bool good) {
    if (good) return;
    fputs("tarn_bench: a call failed\n", stderr);
    exit(1);
}

void invoke(TarnManager& manager, const Parcel& request) {
    Parcel reply;
    check(manager.invoke(request, &reply) == 1 && reply.dataSize() == request.dataSize());
}

Parcel& fill(Parcel& request, size_t size) {
    request.writeInt32(1);
    const std::vector<uint8_t> rest(size - sizeof(int32_t), 7);
    request.write(rest.data(), rest.size());
    return request;
}

void measureRoundTrips(double seconds) {
    const auto connection = sdbus::createSessionBusConnection();
    const auto proxy = sdbus::createProxy(*connection, kBareName, kBarePath);
    const sp<TarnManager> manager = new TarnManager;

    for (const size_t size : {16, 256, 1024, 4096, 65536, 1024 * 1024}) {
        Parcel request;
        fill(request, size);
        const std::vector<uint8_t> bytes(request.data(), request.data() + size);
        std::vector<double> commands;
        std::vector<double> calls;
        const auto start = steady_clock::now();
        while (secondsSince(start) < seconds || calls.size() < 10) {
            commands.push_back(timeOf([&] { invoke(*manager, request); }));
            calls.push_back(timeOf([&] {
                std::vector<uint8_t> back;
                proxy->callMethod("Echo")
                        .onInterface(kBareInterface)
                        .withArguments(bytes)
                        .storeResultsTo(back);
                check(back.size() == size);
            }));
        }
        const double command = median(std::move(commands));
        const double call = median(std::move(calls));
        const std::string what = "command of " + std::to_string(size) + " bytes";
        report(what, command * 1e6, "us");
        report(what + ", over a bare call", command / call, "times", 1.00);
    }
}

void measureConcurrency(double seconds) {
    const sp<TarnManager> manager = new TarnManager;
    for (const int count : {1, 2, 4, 8}) {
        std::atomic<bool> stop{false};
        std::atomic<int64_t> done{0};
        std::vector<std::thread> threads;
        const auto start = steady_clock::now();
        for (int i = 0; i < count; i++) {
            threads.emplace_back([&] {
                Parcel request;
                fill(request, 64);
                while (!stop) {
                    invoke(*manager, request);
                    done++;
                }
            });
        }
        std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
        stop = true;
        for (std::thread& thread : threads) thread.join();
        report("commands of 64 bytes, " + std::to_string(count) + " callers",
               static_cast<double>(done) / secondsSince(start), "a second");
    }
}

int64_t total(const sp<IBinder>& counter) {
    Parcel data;
    Parcel reply;
    check(counter->transact(Counter::TOTAL, data, &reply) == NO_ERROR);
    return reply.readInt64();
}

// Sent no faster than they are counted: who runs ahead too far loses calls.
void measureOneWay(double seconds) {
    constexpr int64_t kAhead = 1000;
    const sp<IBinder> counter =
            android::defaultServiceManager()->checkService(String16(kCounterName));
    check(counter != nullptr);
    int64_t sent = 0;
    const auto start = steady_clock::now();
    while (secondsSince(start) < seconds) {
        for (int64_t i = 0; i < kAhead; i++, sent++) {
            Parcel data;
            data.writeInt64(sent);
            check(counter->transact(Counter::COUNT, data, nullptr, IBinder::FLAG_ONEWAY) ==
                  NO_ERROR);
        }
        while (total(counter) < sent - kAhead) std::this_thread::yield();
    }
    while (total(counter) < sent) std::this_thread::yield();
    report("one-way calls of 8 bytes", static_cast<double>(sent) / secondsSince(start), "a second");
}

constexpr char kUsage[] =
        "usage: tarn_bench [--json] [SECONDS]\n"
        "Measures commands across processes; SECONDS a measurement, above 0 and up to 3600 (1).\n";

// Seconds a measurement; 0 if the text is none.
double secondsFrom(const char* text) {
    char* end = nullptr;
    const double seconds = strtod(text, &end);
    const bool good = end != text && *end == '\0' && seconds > 0 && seconds <= 3600;
    return good ? seconds : 0;
}

// Starts itself anew on a bus of its own.
int runOnPrivateBus(const char* format, const char* seconds) {
    char self[4096] = {};
    if (readlink("/proc/self/exe", self, sizeof(self) - 1) < 0) {
        perror("/proc/self/exe");
        return 1;
    }
    execlp("dbus-run-session", "dbus-run-session", "--", self, kInner, format, seconds, nullptr);
    perror("dbus-run-session");
    return 1;
}

int measure(bool asJson, double seconds) {
    const Service service;
    measureRoundTrips(seconds);
    measureConcurrency(seconds);
    measureOneWay(seconds);
    printFigures(asJson);
    if (fflush(stdout) == 0 && !ferror(stdout)) return 0;
    fputs("tarn_bench: standard output can't be written\n", stderr);
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && arguments[0] == kServe) return serve();
    if (arguments.size() == 3 && arguments[0] == kInner) {
        return measure(arguments[1] == kJson, secondsFrom(argv[3]));
    }
    if (arguments.size() == 1 && (arguments[0] == "-h" || arguments[0] == "--help")) {
        fputs(kUsage, stdout);
        return 0;
    }
    const bool asJson = !arguments.empty() && arguments[0] == kJson;
    if (asJson) arguments.erase(arguments.begin());
    if (arguments.empty()) arguments.emplace_back("1");
    if (arguments.size() > 1 || secondsFrom(arguments[0].c_str()) == 0) {
        fputs(kUsage, stderr);
        return 2;
    }
    return runOnPrivateBus(asJson ? kJson : "--text", arguments[0].c_str());
}
