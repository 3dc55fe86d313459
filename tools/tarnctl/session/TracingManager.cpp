#include "tools/tarnctl/session/TracingManager.h"

#include <algorithm>

#include "protocol/Limits.h"
#include "values/Codec.h"
#include "values/Hex.h"

namespace tarnctl {

using android::Parcel;
using ::tarn::values::bytesOf;
using ::tarn::values::hexWords;

namespace {

bool isWhole(const Exchange& exchange) {
    return exchange.isEvent || exchange.reply.size() >= sizeof(int32_t);
}

std::string replyText(const Exchange& exchange) {
    switch (exchange.state) {
        case Exchange::State::kWaiting:
            return "not yet";
        case Exchange::State::kAnswered:
            return exchange.reply.empty() ? "empty" : hexWords(exchange.reply);
        case Exchange::State::kLost:
        case Exchange::State::kRefused:
            break;
    }
    return "none";
}

}  // namespace

ExitCode outcomeOf(const std::vector<Exchange>& exchanges) {
    ExitCode outcome = kDone;
    for (const Exchange& exchange : exchanges) {
        if (exchange.state == Exchange::State::kLost) return kUnreachable;
        const bool failed = exchange.state == Exchange::State::kRefused || exchange.status == -1 ||
                            !isWhole(exchange);
        outcome = failed ? kCommandFailed : kDone;
    }
    return outcome;
}

std::string reasonOf(const std::vector<Exchange>& exchanges) {
    switch (outcomeOf(exchanges)) {
        case kUnreachable:
            return "the service can't be reached or died";
        case kCommandFailed:
            break;
        default:
            return "";
    }
    const Exchange& last = exchanges.back();
    if (last.state == Exchange::State::kRefused) return "the event is too long for the transport";
    if (last.status == -1) return "the command failed with status -1";
    return "the reply has no status";
}

std::vector<std::string> traceLines(const std::vector<Exchange>& exchanges) {
    std::vector<std::string> lines;
    for (const Exchange& exchange : exchanges) {
        if (exchange.isEvent) {
            lines.push_back("event   " + std::to_string(exchange.what) + " " +
                            hexWords(exchange.request));
        } else {
            lines.push_back("request " + hexWords(exchange.request));
            lines.push_back("reply   " + replyText(exchange));
        }
    }
    return lines;
}

int TracingManager::invoke(const Parcel& request, Parcel* reply) {
    Exchange exchange;
    exchange.request = bytesOf(request);
    const size_t number = begin(exchange);
    exchange.status = TarnManager::invoke(request, reply);
    exchange.reply = bytesOf(*reply);
    // A failure of the transport fills no reply; one of the service comes as its status.
    const bool lost = exchange.status == -1 && exchange.reply.empty();
    exchange.state = lost ? Exchange::State::kLost : Exchange::State::kAnswered;
    end(number, exchange);
    return exchange.status;
}

int TracingManager::postEvent(int what, Parcel& data) {
    Exchange exchange;
    exchange.isEvent = true;
    exchange.what = what;
    exchange.request = bytesOf(data);
    const size_t number = begin(exchange);
    exchange.status = TarnManager::postEvent(what, data);
    if (exchange.status != -1) {
        exchange.state = Exchange::State::kAnswered;
    } else if (exchange.request.size() > ::tarn::protocol::kMostTransactionBytes) {
        exchange.state = Exchange::State::kRefused;
    } else {
        exchange.state = Exchange::State::kLost;
    }
    end(number, exchange);
    return exchange.status;
}

std::vector<Exchange> TracingManager::takeExchanges() {
    std::lock_guard<std::mutex> guard(mLock);
    std::vector<Exchange> taken;
    taken.swap(mExchanges);
    mTaken += taken.size();
    return taken;
}

size_t TracingManager::begin(Exchange exchange) {
    std::lock_guard<std::mutex> guard(mLock);
    mExchanges.push_back(std::move(exchange));
    return mTaken + mExchanges.size() - 1;
}

void TracingManager::end(size_t number, const Exchange& outcome) {
    std::lock_guard<std::mutex> guard(mLock);
    if (number >= mTaken) mExchanges[number - mTaken] = outcome;  // else given up meanwhile
}

}  // namespace tarnctl
