// A board that is killed again and again under clients that never stop.

#include <gtest/gtest.h>
#include <signal.h>
#include <tarn/IAudioCtrl.h>
#include <tarn/TarnCreator.h>
#include <tarn/TarnLog.h>
#include <tarn/TarnRecovery.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "tests/process/BoardProcess.h"
#include "tests/process/ProcessTest.h"
#include "tests/soak/Tally.h"

namespace tarn::test {
namespace {

using android::IAudioCtrl;
using android::TarnCreator;
using android::TarnRecovery;

constexpr int kClients = 4;
constexpr int kRounds = 100;
constexpr int kRoundsOfAShortRun = 5;
constexpr uint64_t kCallsARound = 200;

/** One call of each kind of reply. The board is the default one; only the volume changes. */
void callOnce(IAudioCtrl* audio, int volume, Tally* tally) {
    if (audio->setVolume(volume) != 0) {
        tally->failed++;
        return;
    }
    const int now = audio->getVolume();
    const int balance = audio->getBalance();
    // The other clients set the volume too.
    const bool right = now >= 0 && now <= 100 && balance == 50;
    const bool failed = now == -1 || balance == -1;
    (right ? tally->right : failed ? tally->failed : tally->wrong)++;
}

/** Calls without a pause; a line from the test is answered with what came out since the last. */
CHILD(client) {
    setLogLevel(TARN_LOG_FATAL);  // a command without a board logs an error each time
    IAudioCtrl* audio = TarnCreator::create()->getAudioCtrl();
    TarnRecovery recovery(TarnCreator::create(), TarnRecovery::WITHOUT_EVENTS);
    tell("ready");
    for (std::string line = listen(); !line.empty(); line = listen()) {
        Tally tally;
        int volume = 0;
        // Until the board was gone, and is back and has answered for a while.
        while (tally.failed == 0 || tally.right < kCallsARound) {
            const uint64_t failed = tally.failed;
            callOnce(audio, volume = (volume + 1) % 101, &tally);
            if (tally.failed != failed) {
                tally.right = 0;
                recovery.recover();
            }
        }
        std::ostringstream answer;
        answer << tally.wrong << ' ' << tally.failed << ' ' << usageHere().residentKiB << ' '
               << usageHere().descriptors << ' ' << usageHere().threads;
        tell(answer.str());
    }
    return 0;
}

struct Answer {
    uint64_t wrong = 0;
    uint64_t failed = 0;
    Usage usage;
};

Answer answerOf(Child* client) {
    Answer answer;
    std::istringstream line(client->readLine());
    line >> answer.wrong >> answer.failed >> answer.usage.residentKiB >> answer.usage.descriptors >>
            answer.usage.threads;
    EXPECT_FALSE(line.fail()) << "a client does not come back to work";
    return answer;
}

TEST(Kill, LosesNothingButTheCallsOfTheMoment) {
    const bool isShort = soakMinutes() < 1;
    const int rounds = isShort ? kRoundsOfAShortRun : kRounds;
    auto board = std::make_unique<BoardProcess>();
    std::vector<std::unique_ptr<Child>> clients;
    for (int i = 0; i < kClients; i++) {
        clients.push_back(std::make_unique<Child>("client"));
        ASSERT_EQ(clients.back()->readLine(), "ready");
    }

    std::vector<Usages> usages(kClients);
    uint64_t failed = 0;
    for (int round = 0; round < rounds && !testing::Test::HasFailure(); round++) {
        for (const auto& client : clients) client->writeLine("go");
        board->signal(SIGKILL);
        board->wait();
        board = std::make_unique<BoardProcess>();
        for (size_t i = 0; i < clients.size(); i++) {
            const Answer answer = answerOf(clients[i].get());
            EXPECT_EQ(answer.wrong, 0u);
            failed += answer.failed;
            usages[i].add(answer.usage);
        }
    }

    printf("%d kills, %zu calls failed of %d clients\n", rounds, static_cast<size_t>(failed),
           kClients);
    for (const Usages& client : usages) {
        EXPECT_LE(client.late().descriptors, client.early().descriptors + 8);
        EXPECT_LE(client.late().threads, client.early().threads + kPoolGrowth);
        // In the first seconds memory grows anyway, under a sanitizer most of all.
        if (isShort) continue;
        EXPECT_LE(client.late().residentKiB, client.early().residentKiB + 2048);
    }
}

}  // namespace
}  // namespace tarn::test
