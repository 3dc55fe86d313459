#pragma once

#include <string>
#include <vector>

#include "tools/tarnctl/options/Options.h"
#include "tools/tarnctl/output/Console.h"
#include "tools/tarnctl/session/Session.h"

namespace tarnctl {

/** What a verb works with. */
struct Context {
    Session& session;
    const Options& options;
    Output output;
    Diagnostics diagnostics;
    Streams streams;
    bool inBatch;  // a line of a batch, with others after it
};

using Arguments = std::vector<std::string>;

/** One of tarnctl's own commands: "call", "get", ... */
struct Verb {
    const char* name;
    const char* arguments;  // "CONTROLLER.METHOD [ARGUMENT]..."
    const char* summary;
    const char* details;
    int (*run)(Context&, const Arguments&);
};

/** All of them in the order of the help. */
const std::vector<Verb>& verbs();

/** Throws Failure(kBadUsage). */
const Verb& requireVerb(const std::string& name);

/** Runs the command that the words name; says what is wrong and gives the exit code. */
int execute(Context& context, const std::vector<std::string>& words);

extern const Verb kListVerb;
extern const Verb kDescribeVerb;
extern const Verb kCallVerb;
extern const Verb kGetVerb;
extern const Verb kSetVerb;
extern const Verb kRawVerb;
extern const Verb kMonitorVerb;
extern const Verb kBatchVerb;
extern const Verb kStatusVerb;
extern const Verb kBoardVerb;
extern const Verb kHelpVerb;

/** What could be the last word; for the hidden command "__complete". */
std::vector<std::string> completions(Session& session, const std::vector<std::string>& words);

/** The words that may follow "board". */
std::vector<std::string> boardActions();

/** The types of value that "raw" takes. */
std::vector<std::string> rawTypes();

/** "call CONTROLLER.METHOD [ARGUMENT]..." */
std::string synopsisOf(const Verb& verb);

/** Throws Failure(kBadUsage) with the verb's synopsis unless there are so many arguments. */
void requireCount(const Verb& verb, const Arguments& arguments, size_t least, size_t most);

}  // namespace tarnctl
