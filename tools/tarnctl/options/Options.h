#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tools/tarnctl/output/JsonStyle.h"

namespace tarnctl {

/** What the options say. */
struct Options {
    JsonStyle json = JsonStyle::kNone;
    bool quiet = false;
    bool verbose = false;
    bool help = false;
    bool version = false;
    bool serviceOnly = false;
    bool embeddedOnly = false;
    bool trace = false;
    bool keepGoing = false;
    bool reconnect = false;
    std::optional<std::chrono::milliseconds> timeout;
    std::optional<int32_t> count;
    std::string boardFile;
    std::string overrideFile;

    /** Whether a running service doesn't matter. */
    bool wantsOwnBoard() const {
        return embeddedOnly || !boardFile.empty() || !overrideFile.empty();
    }
};

/** A command line taken apart: the options, and the command with its arguments. */
struct CommandLine {
    Options options;
    std::vector<std::string> words;
};

/**
 * Takes the options out of the words, wherever they stand before a "--". A word such as -5 is a
 * number. Throws Failure(kBadUsage).
 */
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

/** Whether diagnostics are not wanted, even where the words can't be used otherwise. */
bool asksForQuiet(const std::vector<std::string>& arguments);

/** The same for a line within a batch: what the batch was given holds unless the line says else. */
CommandLine parseBatchLine(const std::vector<std::string>& arguments, const Options& batch);

/** An option as help and completion show it. */
struct OptionDescription {
    std::string name;      // "--timeout"
    std::string letter;    // "-n", or empty
    std::string spelling;  // "--timeout SECONDS"
    std::string command;   // the only command that has it, or empty
    std::string help;
    bool takesNext;  // the next word is its value
};

const std::vector<OptionDescription>& optionDescriptions();

}  // namespace tarnctl
