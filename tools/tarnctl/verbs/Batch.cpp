#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>

#include "tools/tarnctl/options/LineWords.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Guard.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

constexpr char kByteOrderMark[] = "\xef\xbb\xbf";

[[noreturn]] void cantRead(const std::string& name) {
    const std::string reason = errno != 0 ? std::string(": ") + strerror(errno) : "";
    throw Failure(kBadUsage, "can't read " + name + reason);
}

int runLine(Context& batch, const std::string& line, const std::string& place) {
    std::vector<std::string> words;
    const bool quiet = batch.options.quiet;
    const int code = guarded(Diagnostics(batch.streams.err, quiet, place), [&] {
        words = splitWords(line);
        return kDone;
    });
    if (code != kDone || words.empty()) return code;
    const Diagnostics diagnostics(batch.streams.err, quiet || asksForQuiet(words), place);
    return guarded(diagnostics, [&] {
        const CommandLine commandLine = parseBatchLine(words, batch.options);
        if (!commandLine.words.empty() && commandLine.words[0] == kBatchVerb.name) {
            throw Failure(kBadUsage, "a batch can't run a batch");
        }
        Context context{batch.session,
                        commandLine.options,
                        Output(batch.streams.out, commandLine.options.json),
                        diagnostics,
                        batch.streams,
                        true};
        return execute(context, commandLine.words);
    });
}

/** Whether nothing may follow, whatever the options say: nobody reads on, or wants more. */
bool endsBatch(int code) {
    return code == kCantWrite || code >= kInterrupted;
}

int runLines(Context& context, std::istream& lines, const std::string& name) {
    int firstFailure = kDone;
    size_t number = 0;
    for (std::string line; std::getline(lines, line);) {
        if (number == 0 && line.compare(0, strlen(kByteOrderMark), kByteOrderMark) == 0) {
            line.erase(0, strlen(kByteOrderMark));
        }
        const std::string place = name + ":" + std::to_string(++number) + ": ";
        const int code = runLine(context, line, place);
        if (code == kDone) continue;
        if (endsBatch(code)) return code;
        if (firstFailure == kDone) firstFailure = code;
        if (!context.options.keepGoing) return firstFailure;
    }
    // A stream over stdio keeps the failure of its reading to itself.
    if (lines.bad() || (&lines == &std::cin && ferror(stdin) != 0)) cantRead(name);
    return firstFailure;
}

int runBatch(Context& context, const Arguments& arguments) {
    requireCount(kBatchVerb, arguments, 0, 1);
    if (arguments.empty() || arguments[0] == "-") {
        return runLines(context, context.streams.in, "-");
    }
    errno = 0;
    std::ifstream file(arguments[0]);
    if (!file) cantRead(arguments[0]);
    return runLines(context, file, arguments[0]);
}

}  // namespace

const Verb kBatchVerb = {
        "batch", "[--keep-going] [FILE]", "run commands from a file or standard input",
        R"(Reads FILE, or standard input without one or for -. One command a line, the words as after
tarnctl on a command line: quotes and backslashes as in a shell, # begins a comment. All
lines work with the same service, so that on a simulated board one sees what another did;
once that service has died, the lines that follow fail too, even if it is started again.

Options given to batch hold for every line, and a line may have its own, but for those that
choose the service or the library's log: --board, --override, --service, --embedded, -v.

Stops at the first command that fails; its exit code is the batch's, with --keep-going too. A
monitor that SIGINT or SIGTERM ends stops the batch with 130 or 143.)",
        runBatch};

}  // namespace tarnctl
