#include "tools/tarnctl/catalog/NearNames.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "tools/tarnctl/output/Format.h"

namespace tarnctl {

namespace {

constexpr size_t kMostSuggestions = 3;
constexpr size_t kFewestLetters = 3;

char lowered(char c) {
    return static_cast<char>(tolower(static_cast<unsigned char>(c)));
}

std::string lowered(std::string text) {
    for (char& c : text) c = lowered(c);
    return text;
}

/**
 * How many letters have to be put in, taken out, replaced or swapped with their neighbour; of more
 * than farthest it only says that they are more.
 */
size_t editDistance(const std::string& left, const std::string& right, size_t farthest) {
    std::vector<size_t> beforeLast(right.size() + 1);
    std::vector<size_t> last(right.size() + 1);
    std::vector<size_t> current(right.size() + 1);
    for (size_t j = 0; j <= right.size(); j++) last[j] = j;
    size_t leastOfLast = 0;
    for (size_t i = 1; i <= left.size(); i++) {
        current[0] = i;
        size_t least = i;
        for (size_t j = 1; j <= right.size(); j++) {
            const size_t cost = left[i - 1] == right[j - 1] ? 0 : 1;
            current[j] = std::min({last[j] + 1, current[j - 1] + 1, last[j - 1] + cost});
            const bool swapped =
                    i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1];
            if (swapped) current[j] = std::min(current[j], beforeLast[j - 2] + 1);
            least = std::min(least, current[j]);
        }
        // Each number comes of one in the two lines above it.
        if (least > farthest && leastOfLast > farthest) return least;
        leastOfLast = least;
        std::swap(beforeLast, last);
        std::swap(last, current);
    }
    return last[right.size()];
}

}  // namespace

bool sameLetters(const std::string& left, const std::string& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lowered(a) == lowered(b); });
}

std::vector<std::string> nearNames(const std::string& name,
                                   const std::vector<std::string>& candidates) {
    const std::string wanted = lowered(name);
    const size_t farthest = std::max<size_t>(2, wanted.size() / 4);
    std::vector<std::pair<size_t, std::string>> found;
    for (const std::string& candidate : candidates) {
        const std::string letters = lowered(candidate);
        // Everything is near to a letter or two.
        if (wanted.size() < kFewestLetters && letters != wanted) continue;
        // At least that far, and exactly where one holds the other.
        const size_t difference =
                std::max(wanted.size(), letters.size()) - std::min(wanted.size(), letters.size());
        size_t distance = difference;
        if (difference <= farthest) distance = editDistance(wanted, letters, farthest);
        if (distance > farthest) {
            // Half a name is worth a suggestion too, after every misspelt one.
            if (letters.find(wanted) == std::string::npos) continue;
            distance = difference + farthest;
        }
        found.emplace_back(distance, candidate);
    }
    std::sort(found.begin(), found.end());
    std::vector<std::string> names;
    for (size_t i = 0; i < found.size() && i < kMostSuggestions; i++) {
        names.push_back(found[i].second);
    }
    return names;
}

std::string didYouMean(const std::string& name, const std::vector<std::string>& candidates) {
    const std::vector<std::string> names = nearNames(name, candidates);
    return names.empty() ? "" : "; did you mean " + joined(names, ", ") + "?";
}

}  // namespace tarnctl
