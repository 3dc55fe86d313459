#include "tests/wire/Replay.h"

#include <json/writer.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <stdexcept>

#include "registry/Arguments.h"
#include "tests/support/LogCalls.h"
#include "tests/support/RecordingManager.h"
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

/** Notes how far the log was when each command came. */
class WireManager : public RecordingManager {
  public:
    int invoke(const android::Parcel& request, android::Parcel* reply) override {
        mLinesBefore.push_back(logCalls().size());
        return RecordingManager::invoke(request, reply);
    }

    void startCase() {
        clear();
        mLinesBefore.clear();
        logCalls().clear();
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
    std::vector<size_t> mLinesBefore;  // of the log, for each command
};

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
