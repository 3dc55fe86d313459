#include "tests/wire/Replay.h"

#include <json/writer.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <stdexcept>

#include "tests/support/RecordingManager.h"

namespace tarn::test {

using android::ITarnManager;
using android::sp;
using tarnctl::Controller;
using tarnctl::Method;

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

std::string hexOf(const Bytes& bytes) {
    static const char kDigits[] = "0123456789abcdef";
    std::string text;
    for (size_t i = 0; i < bytes.size(); i++) {
        if (i > 0 && i % 4 == 0) text += ' ';
        text += kDigits[bytes[i] >> 4];
        text += kDigits[bytes[i] & 15];
    }
    return text.empty() ? "nothing" : text;
}

class Replayer {
  public:
    Replayer(const Controller& controller, ReplayReport* report)
        : mController(controller), mReport(report), mManager(keep(new RecordingManager)) {}

    void run(const WireCase& wireCase) {
        const Method* method = find(wireCase);
        if (method == nullptr) {
            fail(wireCase, "no method of that name takes " +
                                   std::to_string(wireCase.arguments.size()) + " arguments");
            return;
        }
        if (mOrder.empty() || mOrder.back() != method) mOrder.push_back(method);
        prepareReplies(wireCase);
        mManager->clear();
        Json::Value result;
        try {
            result = method->call(mManager.get(), wireCase.arguments);
        } catch (const tarnctl::BadArgument& error) {
            fail(wireCase, error.what());
            return;
        }
        compare(wireCase, *method, result);
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

  private:
    /** A manager and its controllers hold each other for ever; this keeps them in sight. */
    static sp<RecordingManager> keep(RecordingManager* manager) {
        static auto* kept = new std::vector<sp<RecordingManager>>;
        kept->emplace_back(manager);
        return kept->back();
    }

    const Method* find(const WireCase& wireCase) const {
        for (const Method* method : tarnctl::findMethods(mController, wireCase.method)) {
            if (method->arguments.size() == wireCase.arguments.size()) return method;
        }
        return nullptr;
    }

    void prepareReplies(const WireCase& wireCase) {
        std::vector<Bytes> replies;
        for (const Exchange& exchange : wireCase.exchanges) replies.push_back(exchange.reply);
        if (replies.empty()) replies.emplace_back();
        mManager->answerWith(replies);
    }

    void compare(const WireCase& wireCase, const Method& method, const Json::Value& result) {
        const std::vector<Bytes>& sent = mManager->requests();
        if (sent.size() != wireCase.exchanges.size()) {
            fail(wireCase, "sent " + std::to_string(sent.size()) + " commands instead of " +
                                   std::to_string(wireCase.exchanges.size()));
        }
        for (size_t i = 0; i < std::min(sent.size(), wireCase.exchanges.size()); i++) {
            if (sent[i] != wireCase.exchanges[i].request) {
                fail(wireCase, "sent " + hexOf(sent[i]) + " instead of " +
                                       hexOf(wireCase.exchanges[i].request));
            }
        }
        if (result != wireCase.result) {
            fail(wireCase, "gave " + compact(result) + " instead of " + compact(wireCase.result));
        }
        if (method.code != tarnctl::kNoCommand && !sent.empty() &&
            std::none_of(sent.begin(), sent.end(), [&method](const Bytes& request) {
                return firstWord(request) == method.code;
            })) {
            fail(wireCase, "did not send the command that it is described with");
        }
    }

    void note(const WireCase& wireCase, const Method& method) {
        mReport->cases++;
        Kinds& kinds = mKinds[&method];
        for (const Bytes& request : mManager->requests()) {
            mReport->codesSent.insert(firstWord(request));
        }
        for (const Exchange& exchange : wireCase.exchanges) {
            kinds.sends = true;
            if (exchange.reply.empty()) {
                kinds.empty = true;
            } else if (firstWord(exchange.reply) == -1) {
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
    sp<RecordingManager> mManager;
    std::map<const Method*, Kinds> mKinds;
    std::vector<const Method*> mOrder;
};

}  // namespace

ReplayReport replay(const Controller& controller, const std::string& directory) {
    ReplayReport report;
    report.controller = controller.className;
    try {
        Replayer replayer(controller, &report);
        for (const WireCase& wireCase :
             readWireFile(directory + "/" + controller.className + ".wire")) {
            replayer.run(wireCase);
        }
        replayer.finish();
    } catch (const std::runtime_error& error) {
        report.methods = controller.methods.size();
        report.failures.push_back(error.what());
    }
    return report;
}

}  // namespace tarn::test
