#pragma once

#include <string>
#include <vector>

namespace tarnctl {

/**
 * The words of a line, as a shell would split it: blanks separate, single quotes keep everything,
 * double quotes all but \" and \\, a backslash keeps the next character, and # at the beginning of
 * a word starts a comment. Throws Failure(kBadUsage) for a quote that is not closed, a backslash at
 * the end and a NUL byte.
 */
std::vector<std::string> splitWords(const std::string& line);

}  // namespace tarnctl
