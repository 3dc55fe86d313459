#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn::test {

/** How calls of one kind came out. */
struct Tally {
    std::atomic<uint64_t> right{0};
    std::atomic<uint64_t> wrong{0};   // an answer, but not the one that belongs to the call
    std::atomic<uint64_t> failed{0};  // as a call may while there is no service

    uint64_t all() const { return right + wrong + failed; }
};

/** What a process takes at one moment. */
struct Usage {
    size_t residentKiB = 0;
    size_t descriptors = 0;
    size_t threads = 0;
};

/** Of this process, or of another one; all zero once it is gone. */
Usage usageOf(int pid);
Usage usageHere();

/** What a process took over time, as far as it tells growth from what comes and goes. */
class Usages {
  public:
    void add(const Usage& usage);

    /** The most of the first third, in which everything is used once, and of the last. */
    Usage early() const;
    Usage late() const;

  private:
    std::vector<Usage> mAll;
};

/** How long the programs of this folder run: TARN_SOAK_MINUTES, a fraction too; a few seconds
 * without. */
double soakMinutes();

}  // namespace tarn::test
