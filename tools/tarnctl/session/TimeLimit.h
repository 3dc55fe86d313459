#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <future>
#include <optional>
#include <string>
#include <thread>
#include <utility>

namespace tarnctl {

/** The time that a command may spend on waiting for the service, all its waits together. */
class TimeLimit {
  public:
    using Milliseconds = std::chrono::milliseconds;

    /** Nothing stands for no limit. */
    explicit TimeLimit(std::optional<Milliseconds> limit = std::nullopt)
        : mLimit(limit), mLeft(limit) {}

    /**
     * The function's result, or nothing if it takes longer than what is left: then it goes on, on a
     * thread that is left behind, so that it must hold all that it uses. Throws what it throws.
     */
    template <typename Result>
    std::optional<Result> run(std::function<Result()> function) {
        if (!mLeft) return function();
        using Clock = std::chrono::steady_clock;
        const Clock::time_point start = Clock::now();
        std::packaged_task<Result()> task(std::move(function));
        std::future<Result> result = task.get_future();
        std::thread(std::move(task)).detach();
        const std::future_status status = result.wait_for(*mLeft);
        const auto spent = std::chrono::duration_cast<Milliseconds>(Clock::now() - start);
        mLeft = std::max(Milliseconds::zero(), *mLeft - spent);
        if (status != std::future_status::ready) return std::nullopt;
        return result.get();
    }

    /** "no answer" as "no answer within 2.5 s"; only where there is a limit. */
    std::string exceeded(const std::string& what) const;

  private:
    std::optional<Milliseconds> mLimit;
    std::optional<Milliseconds> mLeft;
};

}  // namespace tarnctl
