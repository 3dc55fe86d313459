#include "tests/soak/Tally.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

namespace tarn::test {

namespace {

constexpr double kShortRun = 0.1;
constexpr double kMostMinutes = 10000;

size_t entriesOf(const std::string& directory) {
    std::error_code gone;
    size_t count = 0;
    for (std::filesystem::directory_iterator entry(directory, gone), end; !gone && entry != end;
         entry.increment(gone)) {
        count++;
    }
    return count;
}

size_t residentKiB(const std::string& process) {
    std::ifstream status(process + "/status");
    for (std::string word; status >> word;) {
        size_t amount = 0;
        if (word == "VmRSS:" && status >> amount) return amount;
    }
    return 0;
}

Usage mostOf(std::vector<Usage>::const_iterator begin, std::vector<Usage>::const_iterator end) {
    Usage most;
    for (; begin != end; ++begin) {
        most.residentKiB = std::max(most.residentKiB, begin->residentKiB);
        most.descriptors = std::max(most.descriptors, begin->descriptors);
        most.threads = std::max(most.threads, begin->threads);
    }
    return most;
}

}  // namespace

Usage usageOf(int pid) {
    const std::string process = "/proc/" + std::to_string(pid);
    return {residentKiB(process), entriesOf(process + "/fd"), entriesOf(process + "/task")};
}

Usage usageHere() {
    return usageOf(getpid());
}

void Usages::add(const Usage& usage) {
    mAll.push_back(usage);
}

Usage Usages::early() const {
    return mostOf(mAll.begin(), mAll.begin() + static_cast<long>(mAll.size() + 2) / 3);
}

Usage Usages::late() const {
    return mostOf(mAll.end() - static_cast<long>(mAll.size() + 2) / 3, mAll.end());
}

double soakMinutes() {
    const char* text = std::getenv("TARN_SOAK_MINUTES");
    if (text == nullptr) return kShortRun;
    char* end = nullptr;
    const double minutes = std::strtod(text, &end);
    if (end == text || *end != '\0' || !(minutes > 0 && minutes <= kMostMinutes)) {
        throw std::invalid_argument(std::string("MINUTES \"") + text +
                                    "\": accepted is a number above 0, up to 10000");
    }
    return minutes;
}

}  // namespace tarn::test
