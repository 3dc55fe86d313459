#include "tests/wire/Replay.h"

#include <json/writer.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <stdexcept>

#include "registry/Arguments.h"
#include "tests/support/LogCalls.h"
#include "tests/support/ParcelWords.h"
#include "tests/support/RecordingManager.h"
#include "tests/wire/LayoutCheck.h"
#include "values/Hex.h"

namespace tarn::test {

using android::ITarnManager;
using android::sp;
using registry::Controller;
using registry::Method;

namespace {

/** The kinds of reply that a method's cases must show. */
struct Kinds {
    bool success = false;
    bool failure = false;
    bool empty = false;
    bool sends = false;
    bool readWhole = false;  // the reply, in one case at least

    bool complete() const { return !sends || (success && failure && empty); }
};

int32_t firstWord(const Bytes& bytes) {
    int32_t word = 0;
    if (bytes.size() >= sizeof(word)) memcpy(&word, bytes.data(), sizeof(word));
    return word;
}

std::string compact(const Json::Value& value) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    return Json::writeString(builder, value);
}

std::string shown(const Bytes& bytes) {
    return bytes.empty() ? "nothing" : values::hexWords(bytes);
}

/** What one command wrote behind its code and read from its reply. */
struct Exchange {
    std::vector<ParcelWord> written;
    std::vector<ParcelWord> read;
};

/** Notes how far the log was when each command came, and what it wrote and read. */
class WireManager : public RecordingManager {
  public:
    int invoke(const android::Parcel& request, android::Parcel* reply) override {
        mLinesBefore.push_back(logCalls().size());
        endExchange();
        Exchange exchange;
        exchange.written.swap(wordsWritten());
        const int status = RecordingManager::invoke(request, reply);
        wordsRead().clear();
        mReply = reply;
        mExchanges.push_back(exchange);
        return status;
    }

    void startCase() {
        clear();
        mLinesBefore.clear();
        logCalls().clear();
        mExchanges.clear();
        wordsWritten().clear();
        wordsRead().clear();
    }

    /** For each command of the case, in their order. */
    const std::vector<Exchange>& exchanges() {
        endExchange();
        return mExchanges;
    }

    std::vector<LoggedLine> logged() const {
        std::vector<LoggedLine> lines;
        size_t commands = 0;
        for (const LogCall& call : logCalls()) {
            while (commands < mLinesBefore.size() && mLinesBefore[commands] <= lines.size()) {
                commands++;
            }
            lines.push_back({call, commands});
        }
        return lines;
    }

  private:
    /** What was read since the last command belongs to its reply, in which the status comes first.
     */
    void endExchange() {
        std::vector<ParcelWord> words;
        words.swap(wordsRead());
        if (mExchanges.empty()) return;
        const bool status = !words.empty() && words[0].parcel == mReply && words[0].position == 0;
        if (status) words.erase(words.begin());
        mExchanges.back().read = words;
    }

    std::vector<size_t> mLinesBefore;  // of the log, for each command
    std::vector<Exchange> mExchanges;
    const android::Parcel* mReply = nullptr;  // of the last command
};

/** Takes away the code, which stands among the words of a request at the time it was written. */
bool removeCode(std::vector<ParcelWord>* words, int32_t code) {
    const auto found = std::find_if(words->begin(), words->end(), [code](const ParcelWord& word) {
        return strcmp(word.type, "i32") == 0 && word.value == code;
    });
    if (found == words->end()) return false;
    words->erase(found);
    return true;
}

class Replayer {
  public:
    Replayer(const Controller& controller, ReplayReport* report)
        : mController(controller), mReport(report), mManager(keep(new WireManager)) {}

    void run(const WireFile& file) {
        mLogOfCreation = file.logOfCreation;
        for (const WireCase& wireCase : file.cases) run(wireCase);
        finish();
    }

  private:
    void run(const WireCase& wireCase) {
        const Method* method = find(wireCase);
        if (method == nullptr) {
            fail(wireCase, "no method of that name takes " +
                                   std::to_string(wireCase.arguments.size()) + " arguments");
            return;
        }
        if (mOrder.empty() || mOrder.back() != method) mOrder.push_back(method);
        prepareReplies(wireCase);
        mManager->startCase();
        Json::Value result;
        try {
            result = method->call(mManager.get(), wireCase.arguments);
        } catch (const registry::BadArgument& error) {
            fail(wireCase, error.what());
            return;
        }
        compare(wireCase, *method, result);
        compareLog(wireCase);
        compareWords(wireCase, *method);
        note(wireCase, *method);
    }

    void finish() {
        mReport->methods = mController.methods.size();
        for (const Method& method : mController.methods) {
            const Kinds& kinds = mKinds[&method];
            if (std::find(mOrder.begin(), mOrder.end(), &method) == mOrder.end()) {
                mReport->failures.push_back(method.name + " has no case");
            } else if (!kinds.complete()) {
                mReport->failures.push_back(method.name + " lacks " +
                                            (!kinds.success   ? "a status that is not -1"
                                             : !kinds.failure ? "a status of -1"
                                                              : "an empty reply"));
            } else if (kinds.sends && !kinds.readWhole && !leavesReply(method)) {
                mReport->failures.push_back(method.name + " never reads its reply to the end");
            } else {
                mReport->covered++;
            }
        }
        checkOrder();
    }

    /** A manager and its controllers hold each other forever; this keeps them in sight. */
    static sp<WireManager> keep(WireManager* manager) {
        static auto* kept = new std::vector<sp<WireManager>>;
        kept->emplace_back(manager);
        return kept->back();
    }

    const Method* find(const WireCase& wireCase) const {
        for (const Method* method : registry::findMethods(mController, wireCase.method)) {
            if (method->arguments.size() == wireCase.arguments.size()) return method;
        }
        return nullptr;
    }

    void prepareReplies(const WireCase& wireCase) {
        std::vector<Bytes> replies;
        for (const WireCommand& command : wireCase.commands) replies.push_back(command.reply);
        if (replies.empty()) replies.emplace_back();
        mManager->answerWith(replies);
    }

    void compare(const WireCase& wireCase, const Method& method, const Json::Value& result) {
        const std::vector<Bytes>& sent = mManager->requests();
        if (sent.size() != wireCase.commands.size()) {
            fail(wireCase, "sent " + std::to_string(sent.size()) + " commands instead of " +
                                   std::to_string(wireCase.commands.size()));
        }
        for (size_t i = 0; i < std::min(sent.size(), wireCase.commands.size()); i++) {
            if (sent[i] != wireCase.commands[i].request) {
                fail(wireCase, "sent " + shown(sent[i]) + " instead of " +
                                       shown(wireCase.commands[i].request));
            }
        }
        if (result != wireCase.result) {
            fail(wireCase, "gave " + compact(result) + " instead of " + compact(wireCase.result));
        }
        if (method.row != nullptr && !sent.empty() &&
            std::none_of(sent.begin(), sent.end(), [&method](const Bytes& request) {
                return firstWord(request) == method.row->code;
            })) {
            fail(wireCase, "did not send the command that it is described with");
        }
    }

    /** The first call of a method creates the controller. */
    void compareLog(const WireCase& wireCase) {
        std::vector<ExpectedLine> expected;
        expected.swap(mLogOfCreation);
        expected.insert(expected.end(), wireCase.log.begin(), wireCase.log.end());
        const std::string difference = test::compareLog(expected, mManager->logged());
        if (!difference.empty()) fail(wireCase, difference);
    }

    /** The rows' words against what was really written and read. */
    void compareWords(const WireCase& wireCase, const Method& method) {
        const std::vector<Exchange>& exchanges = mManager->exchanges();
        for (size_t i = 0; i < exchanges.size(); i++) {
            const int32_t code = firstWord(mManager->requests()[i]);
            const protocol::Command* row = rowOf(method, code);
            if (row == nullptr) continue;
            Exchange exchange = exchanges[i];
            removeCode(&exchange.written, code);
            report(wireCase, compareWritten(row->requestLayout(), exchange.written));
            report(wireCase, compareRead(row->replyLayout(), exchange.read));
            mKinds[&method].readWhole |= readToTheEnd(row->replyLayout(), exchange.read);
        }
    }

    /** A method that hands its reply on as bytes, and the one that drops it. */
    static bool leavesReply(const Method& method) {
        return method.undecoded || method.row == &commandOf(protocol::Row::CMD_PROPERTIES_GET);
    }

    static const protocol::Command* rowOf(const Method& method, int32_t code) {
        if (method.row != nullptr && method.row->code == code) return method.row;
        const std::vector<const protocol::Command*> rows = protocol::findCommands(code);
        return rows.empty() ? nullptr : rows.front();
    }

    void report(const WireCase& wireCase, const std::string& difference) {
        if (!difference.empty()) fail(wireCase, difference);
    }

    void note(const WireCase& wireCase, const Method& method) {
        mReport->cases++;
        Kinds& kinds = mKinds[&method];
        for (const Bytes& request : mManager->requests()) {
            mReport->codesSent.insert(firstWord(request));
        }
        for (const WireCommand& command : wireCase.commands) {
            kinds.sends = true;
            if (command.reply.empty()) {
                kinds.empty = true;
            } else if (firstWord(command.reply) == -1) {
                kinds.failure = true;
            } else {
                kinds.success = true;
            }
        }
    }

    /** The file is typed from the tables a second time: its order must be the slot order too. */
    void checkOrder() {
        const bool ordered =
                std::is_sorted(mOrder.begin(), mOrder.end(),
                               [](const Method* a, const Method* b) { return a->slot < b->slot; });
        if (!ordered) mReport->failures.push_back("the cases are not in slot order");
    }

    void fail(const WireCase& wireCase, const std::string& what) {
        mReport->failures.push_back("line " + std::to_string(wireCase.line) + ", " +
                                    wireCase.method + ": " + what);
    }

    const Controller& mController;
    ReplayReport* mReport;
    std::vector<ExpectedLine> mLogOfCreation;
    sp<WireManager> mManager;
    std::map<const Method*, Kinds> mKinds;
    std::vector<const Method*> mOrder;
};

}  // namespace

ReplayReport replay(const Controller& controller, const std::string& directory) {
    ReplayReport report;
    report.controller = controller.className;
    try {
        Replayer(controller, &report)
                .run(readWireFile(directory + "/" + controller.className + ".wire"));
    } catch (const std::runtime_error& error) {
        report.methods = controller.methods.size();
        report.failures.push_back(error.what());
    }
    return report;
}

}  // namespace tarn::test
