// What a command costs within one process: through the library, written out by hand, and on several
// threads at once. Counted times are those of the machine; the script beside compares them.

#include <benchmark/benchmark.h>

#include <string>

#include "Exchanges.h"

namespace {

using tarn::bench::Exchange;
using tarn::bench::Session;
using tarn::bench::Work;

void measure(benchmark::State& state, Work work, const Session& session) {
    for (auto _ : state) work(session);
    state.SetItemsProcessed(state.iterations());
}

void registerAll(const Session& session) {
    for (const Exchange& exchange : tarn::bench::exchanges()) {
        const std::string name = exchange.name;
        benchmark::RegisterBenchmark(("api/" + name).c_str(), measure, exchange.api, session);
        benchmark::RegisterBenchmark(("hand/" + name).c_str(), measure, exchange.byHand, session);
    }
    const Exchange& first = tarn::bench::exchanges().front();
    benchmark::RegisterBenchmark("threads/api", measure, first.api, session)
            ->Threads(1)
            ->Threads(2)
            ->UseRealTime();
    benchmark::RegisterBenchmark("threads/hand", measure, first.byHand, session)
            ->Threads(1)
            ->Threads(2)
            ->UseRealTime();
}

}  // namespace

int main(int argc, char** argv) {
    const Session session = tarn::bench::openSession();
    registerAll(session);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
