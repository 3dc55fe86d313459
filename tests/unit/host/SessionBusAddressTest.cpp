#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "host/SessionBusAddress.h"

namespace android::host::dbus {
namespace {

/** A runtime folder of its own, and no address in the environment. */
class SessionBusAddress : public testing::Test {
  protected:
    SessionBusAddress() {
        char name[] = "/tmp/tarn-bus-XXXXXX";
        mFolder = mkdtemp(name);
        setenv("XDG_RUNTIME_DIR", mFolder.c_str(), 1);
        setenv("DBUS_SESSION_BUS_ADDRESS", "", 1);
    }
    ~SessionBusAddress() override { std::filesystem::remove_all(mFolder); }

    /** A runtime folder with a bus within the other. */
    void makeBusIn(const std::string& folder) const {
        const std::string path = mFolder + "/" + folder;
        std::filesystem::create_directories(path);
        std::ofstream(path + "/bus").flush();
        setenv("XDG_RUNTIME_DIR", path.c_str(), 1);
    }

    std::string mFolder;
};

TEST_F(SessionBusAddress, IsWhatTheEnvironmentSays) {
    makeBusIn("run");
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/a b,guid=1", 1);
    EXPECT_EQ("unix:path=/a b,guid=1", sessionBusAddress());
}

TEST_F(SessionBusAddress, IsTheSocketOfTheRuntimeFolder) {
    makeBusIn("run");
    EXPECT_EQ("unix:path=" + mFolder + "/run/bus", sessionBusAddress());
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    EXPECT_EQ("unix:path=" + mFolder + "/run/bus", sessionBusAddress());
}

TEST_F(SessionBusAddress, IsNoneWhereThereIsNoSocket) {
    EXPECT_EQ("", sessionBusAddress());
    setenv("XDG_RUNTIME_DIR", "", 1);
    EXPECT_EQ("", sessionBusAddress());
    unsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ("", sessionBusAddress());
}

TEST_F(SessionBusAddress, EscapesWhatHasAMeaningInAnAddress) {
    makeBusIn("azAZ09-_./ ,;=%:~");
    EXPECT_EQ("unix:path=" + mFolder + "/azAZ09-_./%20%2c%3b%3d%25%3a%7e/bus", sessionBusAddress());
    makeBusIn("`{@[^\x01\xc3\xbc\xff");
    EXPECT_EQ("unix:path=" + mFolder + "/%60%7b%40%5b%5e%01%c3%bc%ff/bus", sessionBusAddress());
}

}  // namespace
}  // namespace android::host::dbus
