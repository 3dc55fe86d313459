#include "tools/tarnctl/cli/Run.h"

#include "tools/tarnctl/cli/Failure.h"
#include "tools/tarnctl/cli/Help.h"
#include "tools/tarnctl/cli/LibraryLog.h"
#include "tools/tarnctl/commands/Commands.h"

namespace tarnctl {

namespace {

int runParsed(const CommandLine& line, const Streams& streams, const Diagnostics& diagnostics) {
    routeLibraryLog(line.options.verbose);
    const bool isBatch = !line.words.empty() && line.words[0] == "batch";
    Session session(line.options, diagnostics, isBatch);
    Context context{session, line.options, Output(streams.out, line.options.json), diagnostics,
                    streams};
    return execute(context, line.words);
}

}  // namespace

int run(const std::vector<std::string>& arguments, const Streams& streams) {
    int code = kDone;
    try {
        const CommandLine line = parseCommandLine(arguments);
        code = runParsed(line, streams, Diagnostics(streams.err, line.options.quiet));
    } catch (const Failure& failure) {
        Diagnostics(streams.err, false).note(failure.what());
        code = failure.code();
    }
    if (!streams.out.flush()) {
        Diagnostics(streams.err, false).note("can't write the results");
        if (code == kDone) code = kCommandFailed;
    }
    return code;
}

}  // namespace tarnctl
