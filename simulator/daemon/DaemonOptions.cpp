#include "simulator/daemon/DaemonOptions.h"

#include <getopt.h>

namespace tarn::simulator {

namespace {

enum LongOption { kBoard = 256, kOverride, kSet, kReplace, kVersion };

constexpr struct option kLongOptions[] = {
        {"board", required_argument, nullptr, kBoard},
        {"override", required_argument, nullptr, kOverride},
        {"set", required_argument, nullptr, kSet},
        {"replace", no_argument, nullptr, kReplace},
        {"quiet", no_argument, nullptr, 'q'},
        {"verbose", no_argument, nullptr, 'v'},
        {"version", no_argument, nullptr, kVersion},
        {"help", no_argument, nullptr, 'h'},
        {nullptr, 0, nullptr, 0},
};

std::pair<std::string, std::string> parseSetting(const std::string& text) {
    const size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw BadUsage("--set: \"" + text + "\" can't be used; accepted: PROPERTY=VALUE");
    }
    return {text.substr(0, equals), text.substr(equals + 1)};
}

void apply(DaemonOptions* options, int option, const std::string& value) {
    switch (option) {
        case kBoard:
            options->board = value;
            break;
        case kOverride:
            options->overrides = value;
            break;
        case kSet:
            options->settings.push_back(parseSetting(value));
            break;
        case kReplace:
            options->replace = true;
            break;
        case 'q':
            options->quiet = true;
            break;
        case 'v':
            options->verbose = true;
            break;
        case kVersion:
            options->version = true;
            break;
        case 'h':
            options->help = true;
            break;
        default:
            throw BadUsage("no option " + value);
    }
}

}  // namespace

DaemonOptions parseDaemonOptions(int argc, char** argv) {
    DaemonOptions options;
    optind = 1;
    while (true) {
        const int at = optind;
        const int option = getopt_long(argc, argv, "+:qvh", kLongOptions, nullptr);
        if (option == -1) break;
        if (option == ':') throw BadUsage(std::string(argv[at]) + " needs a value");
        const bool known = option != '?';
        apply(&options, option, known ? (optarg != nullptr ? optarg : "") : argv[at]);
    }
    if (optind < argc) throw BadUsage("\"" + std::string(argv[optind]) + "\" is not an option");
    return options;
}

const char kDaemonHelp[] = R"(usage: tarn-board [OPTION]...

Serves a simulated board on the session bus: as the hardware service
vendor.zunt.hwtarn@1.0::IHwTarn "default" for every application of this user, and its control
as org.tarn.Board1 for tarnctl and busctl.

  --board FILE           the board; else the file that TARN_BOARD names, else the default board
  --override FILE        replace parts of the board's description
  --set PROPERTY=VALUE   begin with this value; may be given several times
  --replace              take over from whoever serves already
  -q, --quiet            say nothing but errors
  -v, --verbose          a line for each command and event on standard error
  --version              print the version
  -h, --help             print this

Once it can be found it says so on standard error. SIGINT, SIGTERM and SIGHUP end it.

Exit codes:
  0  ended by a signal, or replaced by another
  1  it can't be published
  2  the command line or the board's description can't be used
  3  somebody serves already, or took over the service or the control alone
  4  there is no session bus or it refuses the board, it went away, or the system lacks resources
)";

}  // namespace tarn::simulator
