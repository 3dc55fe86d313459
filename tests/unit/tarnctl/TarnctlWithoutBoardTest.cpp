#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/FakeHwTarn.h"
#include "tools/tarnctl/Run.h"

namespace {

struct Ran {
    int code;
    std::string out;
    std::string err;
};

Ran run(const std::vector<std::string>& words) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const int code = tarnctl::run(words, tarnctl::Streams{in, out, err});
    return Ran{code, out.str(), err.str()};
}

// As on the device, where there is a service or there is none.

TEST(TarnctlWithoutBoard, NeedsAService) {
    const Ran ran = run({"call", "audio.getVolume"});
    EXPECT_EQ(ran.code, 4);
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(ran.err, "tarnctl: there is no hardware service\n");
}

TEST(TarnctlWithoutBoard, CantStartABoard) {
    const Ran ran = run({"--board", "board.json", "call", "audio.getVolume"});
    EXPECT_EQ(ran.code, 2);
    EXPECT_EQ(ran.err, "tarnctl: this tarnctl has no simulated board\n");
}

TEST(TarnctlWithoutBoard, UsesTheServiceThatItFinds) {
    const tarn::test::PublishedFake service;
    const Ran ran = run({"call", "audio.setVolume", "30"});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.out, "0\n");
    EXPECT_EQ(ran.err, "");
}

}  // namespace
