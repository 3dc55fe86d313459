// Command lines and batches of tarnctl, with a small embedded board.

#include <time.h>

#include <cstring>
#include <sstream>
#include <string>
#include <vector>

#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"
#include "simulator/EmbeddedBoard.h"
#include "tools/tarnctl/options/LineWords.h"
#include "tools/tarnctl/options/Options.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Guard.h"
#include "tools/tarnctl/verbs/Verbs.h"

using tarn::simulator::BoardControl;
using tarnctl::CommandLine;
using tarnctl::Context;
using tarnctl::Diagnostics;
using tarnctl::Failure;
using tarnctl::Options;
using tarnctl::Output;
using tarnctl::Session;
using tarnctl::Streams;

// The board's delays take no time.
extern "C" int nanosleep(const timespec*, timespec*) {
    return 0;
}
extern "C" int clock_nanosleep(clockid_t, int, const timespec*, timespec*) {
    return 0;
}

namespace tarn::fuzz {

namespace {

constexpr size_t kMostLines = 8;

constexpr char kUnexpected[] = "something unexpected went wrong: ";

/**
 * Whether a command comes to an end by itself and is done with then: a monitor waits for events,
 * and what a time limit leaves behind runs on.
 */
bool ends(const CommandLine& line) {
    return !line.options.timeout && (line.words.empty() || line.words[0] != "monitor");
}

/** Some lines of a batch, without those that can't be used here. */
std::string readBatch(Input* input) {
    std::string lines;
    for (size_t count = 0; count < kMostLines && !input->empty(); count++) {
        const std::string line = input->line();
        try {
            if (!ends(tarnctl::parseBatchLine(tarnctl::splitWords(line), Options()))) continue;
        } catch (const Failure&) {
            // The batch says why.
        }
        lines += line + "\n";
    }
    return lines;
}

/** Whether a line tells of an exception that nobody expected; in a batch its place comes first. */
bool tellsOfTheUnexpected(const std::string& lines) {
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) {
        line.erase(0, strlen("tarnctl: "));
        if (line.compare(0, 2, "-:") == 0) line.erase(0, line.find(' ') + 1);
        if (line.compare(0, strlen(kUnexpected), kUnexpected) == 0) return true;
    }
    return false;
}

/** The first line is the command line; the rest is standard input, a batch's lines. */
void run(Input* input) {
    std::ostringstream out;
    std::ostringstream err;
    const Diagnostics diagnostics(err, false);
    static auto* session =
            new Session(Options(), Diagnostics(*new std::ostringstream, true), false);
    tarnctl::guarded(diagnostics, [&] {
        const CommandLine line = tarnctl::parseCommandLine(tarnctl::splitWords(input->line()));
        const bool readsFile = line.words.size() > 1 && line.words[0] == "batch";
        if (!ends(line) || readsFile) return 0;
        std::istringstream in(readBatch(input));
        const Streams streams{in, out, err};
        Context context{*session,    line.options, Output(out, line.options.json),
                        diagnostics, streams,      false};
        return tarnctl::execute(context, line.words);
    });
    check(!tellsOfTheUnexpected(err.str()), "something unexpected went wrong");
}

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static auto* board = new tarn::simulator::EmbeddedBoard(
            tarn::simulator::startEmbeddedBoard(TARN_FUZZ_FOLDER "/tarnctl_board.json"));
    tarn::fuzz::Input input(data, size);
    tarn::fuzz::run(&input);
    board->control->reset();
    return 0;
}
