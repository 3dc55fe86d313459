#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tarn::simulator {

/** The command line can't be used; the message says why. */
class BadUsage : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct DaemonOptions {
    std::string board;  // empty means the default board
    std::string overrides;
    std::vector<std::pair<std::string, std::string>> settings;  // property, value
    bool replace = false;
    bool quiet = false;
    bool verbose = false;
    bool version = false;
    bool help = false;
};

/** Throws BadUsage. */
DaemonOptions parseDaemonOptions(int argc, char** argv);

extern const char kDaemonHelp[];

}  // namespace tarn::simulator
