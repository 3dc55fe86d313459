#pragma once

#include <string>
#include <vector>

namespace tarnctl {

/** Whether two names differ in the case of their letters at most. */
bool sameLetters(const std::string& left, const std::string& right);

/** Up to three of the candidates that somebody who typed name may have meant, the nearest first. */
std::vector<std::string> nearNames(const std::string& name,
                                   const std::vector<std::string>& candidates);

/** "; did you mean a, b?" or nothing. */
std::string didYouMean(const std::string& name, const std::vector<std::string>& candidates);

}  // namespace tarnctl
