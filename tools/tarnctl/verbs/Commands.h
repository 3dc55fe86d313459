#pragma once

#include <string>
#include <vector>

#include "tools/tarnctl/options/Options.h"
#include "tools/tarnctl/output/Console.h"
#include "tools/tarnctl/session/Session.h"

namespace tarnctl {

/** What a command works with. */
struct Context {
    Session& session;
    const Options& options;
    Output output;
    Diagnostics diagnostics;
    Streams streams;
    bool inBatch;  // a line of a batch, with others after it
};

using Arguments = std::vector<std::string>;

struct CommandDescription {
    const char* name;
    const char* arguments;  // "CONTROLLER.METHOD [ARGUMENT]..."
    const char* summary;
    const char* details;
    int (*run)(Context&, const Arguments&);
};

/** The commands in the order of the help. */
const std::vector<CommandDescription>& commandTable();

/** Throws Failure(kBadUsage). */
const CommandDescription& requireCommand(const std::string& name);

/** Runs the command that the words name; says what is wrong and gives the exit code. */
int execute(Context& context, const std::vector<std::string>& words);

extern const CommandDescription kListCommand;
extern const CommandDescription kDescribeCommand;
extern const CommandDescription kCallCommand;
extern const CommandDescription kGetCommand;
extern const CommandDescription kSetCommand;
extern const CommandDescription kRawCommand;
extern const CommandDescription kMonitorCommand;
extern const CommandDescription kBatchCommand;
extern const CommandDescription kStatusCommand;
extern const CommandDescription kBoardCommand;
extern const CommandDescription kHelpCommand;

/** What could be the last word; for the hidden command "__complete". */
std::vector<std::string> completions(Session& session, const std::vector<std::string>& words);

/** The words that may follow "board". */
std::vector<std::string> boardActions();

/** The types of value that "raw" takes. */
std::vector<std::string> rawTypes();

/** "call CONTROLLER.METHOD [ARGUMENT]..." */
std::string synopsisOf(const CommandDescription& command);

/** Throws Failure(kBadUsage) with the command's synopsis unless there are so many arguments. */
void requireCount(const CommandDescription& command, const Arguments& arguments, size_t least,
                  size_t most);

}  // namespace tarnctl
