#include "tools/tarnctl/verbs/Commands.h"

#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Guard.h"
#include "tools/tarnctl/verbs/Help.h"

namespace tarnctl {

namespace {

int runHelp(Context& context, const Arguments& arguments) {
    requireCount(kHelpCommand, arguments, 0, 1);
    context.output.lines(arguments.empty() ? helpLines() : helpLines(arguments[0]));
    return kDone;
}

int dispatch(Context& context, const std::vector<std::string>& words) {
    if (context.options.version) {
        context.output.lines({"tarnctl " TARNCTL_VERSION});
        return kDone;
    }
    if (context.options.help) {
        return runHelp(context, Arguments(words.begin(), words.begin() + (words.empty() ? 0 : 1)));
    }
    if (words.empty()) throw Failure(kBadUsage, "no command; tarnctl --help lists them");
    const Arguments arguments(words.begin() + 1, words.end());
    if (words[0] == "__complete") {
        context.output.lines(completions(context.session, arguments));
        return kDone;
    }
    return requireCommand(words[0]).run(context, arguments);
}

}  // namespace

const CommandDescription kHelpCommand = {
        "help", "[COMMAND]", "this help, or more about a command",
        "Prints what --help prints: the commands and options, or one command's details.", runHelp};

const std::vector<CommandDescription>& commandTable() {
    static const auto* table = new std::vector<CommandDescription>{
            kListCommand,   kDescribeCommand, kCallCommand,    kGetCommand,
            kSetCommand,    kRawCommand,      kMonitorCommand, kBatchCommand,
            kStatusCommand, kBoardCommand,    kHelpCommand,
    };
    return *table;
}

const CommandDescription& requireCommand(const std::string& name) {
    std::vector<std::string> names;
    for (const CommandDescription& command : commandTable()) {
        if (name == command.name) return command;
        names.push_back(command.name);
    }
    throw Failure(kBadUsage, "no command \"" + name + "\"" + didYouMean(name, names));
}

int execute(Context& context, const std::vector<std::string>& words) {
    return guarded(context.diagnostics, [&] {
        context.session.setLimit(context.options.timeout);
        return dispatch(context, words);
    });
}

std::string synopsisOf(const CommandDescription& command) {
    return command.name + std::string(*command.arguments != '\0' ? " " : "") + command.arguments;
}

void requireCount(const CommandDescription& command, const Arguments& arguments, size_t least,
                  size_t most) {
    if (arguments.size() >= least && arguments.size() <= most) return;
    throw Failure(kBadUsage, std::string("too ") + (arguments.size() < least ? "few" : "many") +
                                     " arguments; usage: tarnctl " + synopsisOf(command));
}

}  // namespace tarnctl
