#include "tools/tarnctl/verbs/Help.h"

#include <algorithm>

#include "tools/tarnctl/options/Options.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

std::string padded(const std::string& text, size_t width) {
    return text + std::string(width > text.size() ? width - text.size() : 0, ' ');
}

void appendOptions(std::vector<std::string>* lines, const std::string& command) {
    size_t width = 0;
    for (const OptionDescription& option : optionDescriptions()) {
        width = std::max(width, option.spelling.size());
    }
    for (const OptionDescription& option : optionDescriptions()) {
        if (option.command != command) continue;
        lines->push_back("  " + padded(option.spelling, width) + "  " + option.help);
    }
}

void appendText(std::vector<std::string>* lines, const std::string& text) {
    for (size_t start = 0; start < text.size();) {
        const size_t end = std::min(text.find('\n', start), text.size());
        lines->push_back(text.substr(start, end - start));
        start = end + 1;
    }
}

}  // namespace

std::vector<std::string> helpLines() {
    std::vector<std::string> lines{"usage: tarnctl [OPTIONS] COMMAND [ARGUMENTS]", "", "commands:"};
    size_t width = 0;
    for (const Verb& verb : verbs()) {
        width = std::max(width, synopsisOf(verb).size());
    }
    for (const Verb& verb : verbs()) {
        lines.push_back("  " + padded(synopsisOf(verb), width) + "  " + verb.summary);
    }
    lines.insert(lines.end(), {"", "options, before or after the command:"});
    appendOptions(&lines, "");
    appendText(&lines, R"(
Numbers are decimal or 0x hexadecimal; a negative one may be given as its word, 0xffffffff
for -1. Results go to standard output, all else to standard error. Put -- before arguments
that begin with a dash and are no numbers.

exit codes:
  0  done
  1  no such controller, method, board's command (CMD_...) or property
  2  bad usage, argument or file, or no such command of tarnctl
  3  the command failed: the service answered with status -1, or without any status
  4  the service can't be reached, died, or did not answer within --timeout
  5  the results can't be written
  130, 143  SIGINT or SIGTERM ended a monitor that waited for --count events, or a batch's

environment:
  TARN_BOARD                the file of the simulated board that is started without --board
  TARN_PROPERTIES_FILE      where a host keeps system properties, the library's log level too;
                            else ~/.local/state/tarn/properties
  DBUS_SESSION_BUS_ADDRESS  the bus on which a host looks for the service

tarnctl COMMAND --help tells more about a command.)");
    return lines;
}

std::vector<std::string> helpLines(const std::string& name) {
    const Verb& verb = requireVerb(name);
    std::vector<std::string> lines{"usage: tarnctl " + synopsisOf(verb), ""};
    appendText(&lines, verb.details);
    std::vector<std::string> options;
    appendOptions(&options, verb.name);
    if (!options.empty()) {
        lines.insert(lines.end(), {"", "options:"});
        lines.insert(lines.end(), options.begin(), options.end());
    }
    return lines;
}

}  // namespace tarnctl
