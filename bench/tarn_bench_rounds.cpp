// One piece of work a number of times and nothing else, for what counts instructions from outside.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "Exchanges.h"

using tarn::bench::Exchange;
using tarn::bench::Work;

namespace {

Work find(const std::string& name) {
    if (name == "parcel") return tarn::bench::parcelWork;
    for (const Exchange& exchange : tarn::bench::exchanges()) {
        if (name == std::string("api:") + exchange.name) return exchange.api;
        if (name == std::string("hand:") + exchange.name) return exchange.byHand;
    }
    return nullptr;
}

int listWorks() {
    puts("parcel");
    for (const Exchange& exchange : tarn::bench::exchanges()) {
        printf("api:%s\nhand:%s\n", exchange.name, exchange.name);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && strcmp(argv[1], "--list") == 0) return listWorks();
    const Work work = argc == 3 ? find(argv[1]) : nullptr;
    const long rounds = argc == 3 ? strtol(argv[2], nullptr, 10) : 0;
    if (work == nullptr || rounds <= 0) {
        fputs("usage: tarn_bench_rounds WORK ROUNDS | --list\n", stderr);
        return 2;
    }
    const tarn::bench::Session session = tarn::bench::openSession();
    for (long i = 0; i < rounds; i++) work(session);
    // The manager and its controllers hold each other, and no destructor is to be counted.
    fflush(nullptr);
    _Exit(0);
}
