#include "simulator/faults/Faults.h"

#include <algorithm>

namespace tarn::simulator {

namespace {

int rank(const Fault& fault) {
    switch (fault.kind) {
        case Fault::Kind::kDeadObject:
        case Fault::Kind::kTransportError:
            return 0;
        case Fault::Kind::kStatus:
            return 1;
        default:
            return 2;
    }
}

}  // namespace

void Faults::set(const std::string& command, const Fault& fault) {
    const Armed armed{fault, 0, std::mt19937(fault.seed)};
    std::lock_guard<std::mutex> guard(mLock);
    std::vector<Armed>& known = mArmed[command];
    const auto old = std::find_if(known.begin(), known.end(), [&fault](const Armed& other) {
        return sameEffect(other.fault, fault);
    });
    if (old == known.end()) {
        known.push_back(armed);
    } else {
        *old = armed;
    }
}

bool Faults::clear(const std::string& command) {
    std::lock_guard<std::mutex> guard(mLock);
    return mArmed.erase(command) != 0;
}

void Faults::clearAll() {
    std::lock_guard<std::mutex> guard(mLock);
    mArmed.clear();
}

std::vector<Faults::Entry> Faults::list() const {
    std::lock_guard<std::mutex> guard(mLock);
    std::vector<Entry> entries;
    for (const auto& [command, known] : mArmed) {
        for (const Armed& armed : known) entries.push_back(Entry{command, armed.fault});
    }
    return entries;
}

FaultEffect Faults::next(const std::string& command) {
    FaultEffect effect;
    std::lock_guard<std::mutex> guard(mLock);
    addEffects(command, &effect);
    if (command != kAllCommands) addEffects(kAllCommands, &effect);
    return effect;
}

void Faults::addEffects(const std::string& command, FaultEffect* effect) {
    const auto found = mArmed.find(command);
    if (found == mArmed.end()) return;
    for (Armed& armed : found->second) {
        if (!fires(&armed)) continue;
        if (armed.fault.kind == Fault::Kind::kDelay) {
            effect->delay += std::chrono::milliseconds(armed.fault.value);
        } else if (!effect->answer || rank(armed.fault) < rank(*effect->answer)) {
            effect->answer = armed.fault;
        }
    }
}

bool Faults::fires(Armed* armed) {
    if (++armed->calls < armed->fault.every) return false;
    armed->calls = 0;
    // Drawn for every call that counts, so that a seed always gives the same sequence.
    const double drawn = armed->random() / (static_cast<double>(std::mt19937::max()) + 1);
    return drawn < armed->fault.probability;
}

}  // namespace tarn::simulator
