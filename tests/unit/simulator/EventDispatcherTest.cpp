#include <gtest/gtest.h>

#include <memory>

#include "simulator/board/EventDispatcher.h"

using tarn::simulator::Event;
using tarn::simulator::EventDispatcher;

namespace {

TEST(EventDispatcher, EndsItsThread) {
    const auto user = std::make_shared<int>(0);
    {
        const EventDispatcher dispatcher([user](const Event&) {});
    }
    EXPECT_EQ(user.use_count(), 1);
}

}  // namespace
