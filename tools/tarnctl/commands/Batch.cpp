#include <fstream>

#include "tools/tarnctl/cli/Failure.h"
#include "tools/tarnctl/cli/Words.h"
#include "tools/tarnctl/commands/Commands.h"

namespace tarnctl {

namespace {

int runLine(Context& batch, const std::string& line, const Diagnostics& diagnostics) try {
    const std::vector<std::string> words = splitWords(line);
    if (words.empty()) return kDone;
    const CommandLine commandLine = parseBatchLine(words, batch.options);
    if (!commandLine.words.empty() && commandLine.words[0] == kBatchCommand.name) {
        throw Failure(kBadUsage, "a batch can't stand within a batch");
    }
    Context context{batch.session, commandLine.options,
                    Output(batch.streams.out, commandLine.options.json), diagnostics,
                    batch.streams};
    return execute(context, commandLine.words);
} catch (const Failure& failure) {
    diagnostics.note(failure.what());
    return failure.code();
}

int runLines(Context& context, std::istream& lines, const std::string& name) {
    int firstFailure = kDone;
    size_t number = 0;
    for (std::string line; std::getline(lines, line);) {
        const std::string place = name + ":" + std::to_string(++number) + ": ";
        const int code = runLine(context, line,
                                 Diagnostics(context.streams.err, context.options.quiet, place));
        if (code == kDone) continue;
        if (firstFailure == kDone) firstFailure = code;
        if (!context.options.keepGoing) break;
    }
    return firstFailure;
}

int runBatch(Context& context, const Arguments& arguments) {
    requireCount(kBatchCommand, arguments, 0, 1);
    if (arguments.empty() || arguments[0] == "-") {
        return runLines(context, context.streams.in, "-");
    }
    std::ifstream file(arguments[0]);
    if (!file) throw Failure(kBadUsage, "can't read " + arguments[0]);
    return runLines(context, file, arguments[0]);
}

}  // namespace

const CommandDescription kBatchCommand = {
        "batch", "[FILE]", "run commands from a file or standard input",
        R"(One command a line, the words as behind tarnctl on a command line: quotes and backslashes
as in a shell, # begins a comment. All lines work with the same service, so that on a
simulated board one sees what another did. Options given to batch hold for every line.

Stops at the first command that fails; its exit code is the batch's.)",
        runBatch};

}  // namespace tarnctl
