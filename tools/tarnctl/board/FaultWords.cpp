#include "tools/tarnctl/board/FaultWords.h"

#include "registry/Arguments.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Format.h"

namespace tarnctl {

using ::tarn::registry::parseFloat;
using ::tarn::registry::parseInt;

namespace {

enum class Takes { kNothing, kInt, kFloat };

struct FaultWord {
    const char* word;
    Takes takes;
    const char* key;
    const char* value;  // of a word that takes none and is not a number
    bool isKind;
};

constexpr FaultWord kWords[] = {
        {"status", Takes::kInt, "status", nullptr, true},
        {"dead", Takes::kNothing, "transport", "dead", true},
        {"error", Takes::kNothing, "transport", "error", true},
        {"empty", Takes::kNothing, "replyBytes", nullptr, true},
        {"bytes", Takes::kInt, "replyBytes", nullptr, true},
        {"delay", Takes::kInt, "delayMs", nullptr, true},
        {"every", Takes::kInt, "every", nullptr, false},
        {"probability", Takes::kFloat, "probability", nullptr, false},
        {"seed", Takes::kInt, "seed", nullptr, false},
};

const FaultWord& requireWord(const std::string& text, bool isKind) {
    std::vector<std::string> accepted;
    for (const FaultWord& word : kWords) {
        if (word.isKind != isKind) continue;
        if (text == word.word) return word;
        accepted.push_back(word.word);
    }
    throw Failure(kBadUsage,
                  "fault: \"" + text + "\" can't be used; accepted: " + joined(accepted, ", "));
}

Json::Value valueOf(const FaultWord& word, const std::string& text) {
    if (word.takes == Takes::kFloat) return parseFloat(word.word, text);
    return parseInt(word.word, text);
}

}  // namespace

std::vector<std::string> faultWords() {
    std::vector<std::string> words;
    for (const FaultWord& word : kWords) words.push_back(word.word);
    return words;
}

Json::Value parseFault(const std::vector<std::string>& words) {
    if (words.empty()) throw Failure(kBadUsage, "fault: none given; see tarnctl board --help");
    Json::Value fault(Json::objectValue);
    for (size_t i = 0; i < words.size(); i++) {
        const FaultWord& word = requireWord(words[i], i == 0);
        if (fault.isMember(word.key)) {
            throw Failure(kBadUsage, std::string("fault: ") + word.word + " is given twice");
        }
        if (word.takes == Takes::kNothing) {
            fault[word.key] = word.value != nullptr ? Json::Value(word.value) : Json::Value(0);
        } else if (i + 1 == words.size()) {
            throw Failure(kBadUsage, std::string("fault: ") + word.word + " needs a number");
        } else {
            fault[word.key] = valueOf(word, words[++i]);
        }
    }
    if (fault.isMember("every") && fault.isMember("probability")) {
        throw Failure(kBadUsage, "fault: every and probability can't be combined");
    }
    if (fault.isMember("seed") && !fault.isMember("probability")) {
        throw Failure(kBadUsage, "fault: seed needs a probability");
    }
    return fault;
}

}  // namespace tarnctl
