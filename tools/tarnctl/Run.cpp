#include "tools/tarnctl/Run.h"

#include "tools/tarnctl/output/Guard.h"
#include "tools/tarnctl/session/LibraryLog.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

int runParsed(const CommandLine& line, const Streams& streams, const Diagnostics& diagnostics) {
    routeLibraryLog(line.options.verbose);
    const bool isBatch = !line.words.empty() && line.words[0] == kBatchVerb.name;
    Session session(line.options, diagnostics, isBatch);
    Context context{session,     line.options, Output(streams.out, line.options.json),
                    diagnostics, streams,      false};
    return execute(context, line.words);
}

}  // namespace

int run(const std::vector<std::string>& arguments, const Streams& streams) {
    const Diagnostics diagnostics(streams.err, asksForQuiet(arguments));
    return guarded(diagnostics,
                   [&] { return runParsed(parseCommandLine(arguments), streams, diagnostics); });
}

}  // namespace tarnctl
