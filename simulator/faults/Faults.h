#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "simulator/faults/Fault.h"

namespace tarn::simulator {

/** What goes wrong with one call. */
struct FaultEffect {
    std::chrono::milliseconds delay{0};
    std::optional<Fault> answer;  // of a kind other than kDelay
};

/** The faults that are switched on. Any thread may call. */
class Faults {
  public:
    /** Stands for every command, and for malformed requests. */
    static constexpr char kAllCommands[] = "*";

    /** Switches a fault on; one of the same effect for the same command is replaced. */
    void set(const std::string& command, const Fault& fault);

    /** Switches off every fault that was set for exactly this command; false if there was none. */
    bool clear(const std::string& command);

    void clearAll();

    struct Entry {
        std::string command;
        Fault fault;
    };
    /** By command, in the order of setting. */
    std::vector<Entry> list() const;

    /**
     * Counts one call and says what goes wrong with it. Delays add up. A transport error goes
     * before a status, that before a cut reply; of two alike, the command's own goes before the one
     * for all commands.
     */
    FaultEffect next(const std::string& command);

  private:
    struct Armed {
        Fault fault;
        int32_t calls;
        std::mt19937 random;
    };

    static bool fires(Armed* armed);
    void addEffects(const std::string& command, FaultEffect* effect);

    mutable std::mutex mLock;
    std::map<std::string, std::vector<Armed>> mArmed;
};

}  // namespace tarn::simulator
