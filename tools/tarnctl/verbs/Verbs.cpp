#include "tools/tarnctl/verbs/Verbs.h"

#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Guard.h"
#include "tools/tarnctl/verbs/Help.h"

namespace tarnctl {

namespace {

int runHelp(Context& context, const Arguments& arguments) {
    requireCount(kHelpVerb, arguments, 0, 1);
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
    return requireVerb(words[0]).run(context, arguments);
}

}  // namespace

const Verb kHelpVerb = {
        "help", "[COMMAND]", "this help, or more about a command",
        "Prints what --help prints: the commands and options, or one command's details.", runHelp};

const std::vector<Verb>& verbs() {
    static const auto* table = new std::vector<Verb>{
            kListVerb,    kDescribeVerb, kCallVerb,   kGetVerb,   kSetVerb,  kRawVerb,
            kMonitorVerb, kBatchVerb,    kStatusVerb, kBoardVerb, kHelpVerb,
    };
    return *table;
}

const Verb& requireVerb(const std::string& name) {
    std::vector<std::string> names;
    for (const Verb& verb : verbs()) {
        if (name == verb.name) return verb;
        names.push_back(verb.name);
    }
    throw Failure(kBadUsage, "no command \"" + name + "\"" + didYouMean(name, names));
}

int execute(Context& context, const std::vector<std::string>& words) {
    return guarded(context.diagnostics, [&] {
        context.session.setLimit(context.options.timeout);
        return dispatch(context, words);
    });
}

std::string synopsisOf(const Verb& verb) {
    return verb.name + std::string(*verb.arguments != '\0' ? " " : "") + verb.arguments;
}

void requireCount(const Verb& verb, const Arguments& arguments, size_t least, size_t most) {
    if (arguments.size() >= least && arguments.size() <= most) return;
    throw Failure(kBadUsage, std::string("too ") + (arguments.size() < least ? "few" : "many") +
                                     " arguments; usage: tarnctl " + synopsisOf(verb));
}

}  // namespace tarnctl
