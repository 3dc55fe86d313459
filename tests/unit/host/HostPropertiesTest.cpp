#include <cutils/properties.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "host/properties/PropertyFile.h"

namespace {

const std::string kLongest(91, 'v');

std::string contentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

// What the file that was last flushed to the disk held; and what so at the last replacement.
thread_local std::string gFlushed;
thread_local std::string gFlushedBeforeRename;

/** Gives each test a property file of its own. */
class HostProperties : public testing::Test {
  protected:
    void SetUp() override {
        char folder[] = "/tmp/tarn-properties-test-XXXXXX";
        ASSERT_NE(mkdtemp(folder), nullptr);
        mFolder = folder;
        mFile = mFolder + "/properties";
        setenv("TARN_PROPERTIES_FILE", mFile.c_str(), 1);
    }
    void TearDown() override { std::filesystem::remove_all(mFolder); }

    void writeFile(const std::string& content) {
        std::ofstream(mFile, std::ios::binary) << content;
    }
    std::string fileContent() { return contentOf(mFile); }

    std::string mFolder;
    std::string mFile;
};

std::string get(const char* key, const char* defaultValue = nullptr) {
    char value[PROPERTY_VALUE_MAX];
    memset(value, '#', sizeof(value));
    const int length = property_get(key, value, defaultValue);
    const size_t terminator = strnlen(value, sizeof(value));
    EXPECT_LT(terminator, sizeof(value)) << "not terminated";
    EXPECT_EQ(length, static_cast<int>(terminator));
    return std::string(value, terminator);
}

/** Runs work in a process of its own and gives its exit status. */
int inChildProcess(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child == 0) _exit(work());
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void remember(const char* key, const char* value, void* cookie) {
    (*static_cast<std::map<std::string, std::string>*>(cookie))[key] = value;
}

std::map<std::string, std::string> listed() {
    std::map<std::string, std::string> properties;
    EXPECT_EQ(property_list(remember, &properties), 0);
    return properties;
}

}  // namespace

TEST_F(HostProperties, ReturnsWhatWasSetAndItsLength) {
    EXPECT_EQ(property_set("persist.vendor.tarn.loglevel", "TARN_LOG_VERBOSE"), 0);
    EXPECT_EQ(get("persist.vendor.tarn.loglevel", "TARN_LOG_BUTT"), "TARN_LOG_VERBOSE");
    EXPECT_EQ(property_set("persist.vendor.tarn.loglevel", "TARN_LOG_INFO"), 0);
    EXPECT_EQ(get("persist.vendor.tarn.loglevel", "TARN_LOG_BUTT"), "TARN_LOG_INFO");
}

TEST_F(HostProperties, GivesTheDefaultWhereThePropertyIsMissingOrEmpty) {
    EXPECT_EQ(get("vendor.none", "fallback"), "fallback");
    EXPECT_EQ(get("vendor.none", ""), "");
    EXPECT_EQ(property_set("vendor.empty", ""), 0);
    EXPECT_EQ(get("vendor.empty", "fallback"), "fallback");
}

TEST_F(HostProperties, GivesAnEmptyTextWithoutADefault) {
    EXPECT_EQ(get("vendor.none"), "");
    EXPECT_EQ(property_set("vendor.null", nullptr), 0);
    EXPECT_EQ(get("vendor.null"), "");
}

TEST_F(HostProperties, CutsADefaultToTheLongestValue) {
    EXPECT_EQ(get("vendor.none", std::string(200, 'v').c_str()), kLongest);
}

TEST_F(HostProperties, RefusesAValueOf92Bytes) {
    EXPECT_EQ(property_set("vendor.long", kLongest.c_str()), 0);
    EXPECT_LT(property_set("vendor.long", (kLongest + "v").c_str()), 0);
    EXPECT_EQ(get("vendor.long"), kLongest);
}

TEST_F(HostProperties, NeitherSetsNorFindsANullKey) {
    EXPECT_LT(property_set(nullptr, "value"), 0);
    EXPECT_EQ(get(nullptr, "fallback"), "fallback");
    EXPECT_EQ(property_get_bool(nullptr, 1), 1);
    EXPECT_EQ(property_get_int32(nullptr, 7), 7);
}

TEST_F(HostProperties, RefusesNamesThatThePropertyServiceRefuses) {
    for (const char* name :
         {"", ".", ".vendor", "vendor.", "vendor..x", "a=b", "a b", "a\nb", "ä"}) {
        EXPECT_LT(property_set(name, "value"), 0) << name;
    }
    EXPECT_EQ(property_set("persist.vendor.a_name-of@every:kind.that.is.longer.than.32", "1"), 0);
    EXPECT_EQ(listed().size(), 1u);
}

TEST_F(HostProperties, KeepsEveryByteOfAValue) {
    const std::string value = "a=b\n\\n\r\\\t#boot \xc3\xa4 \x01 ";
    EXPECT_EQ(property_set("persist.bytes", value.c_str()), 0);
    EXPECT_EQ(property_set("persist.other", "1"), 0);
    EXPECT_EQ(get("persist.bytes"), value);
}

TEST_F(HostProperties, SetsAReadOnlyPropertyOnce) {
    EXPECT_EQ(property_set("ro.board", "first"), 0);
    EXPECT_LT(property_set("ro.board", "second"), 0);
    EXPECT_LT(property_set("ro.board", "first"), 0);
    EXPECT_EQ(get("ro.board"), "first");
}

TEST_F(HostProperties, AreSharedWithAnotherProcess) {
    EXPECT_EQ(property_set("vendor.parent", "1"), 0);
    EXPECT_EQ(inChildProcess([] {
                  return property_get_int32("vendor.parent", 0) == 1 &&
                                         property_set("persist.child", "2") == 0
                                 ? 0
                                 : 1;
              }),
              0);
    EXPECT_EQ(get("persist.child"), "2");
    EXPECT_EQ(get("vendor.parent"), "1");
}

TEST_F(HostProperties, KeepsOnlyPersistentOnesAcrossARestartOfTheMachine) {
    writeFile("#boot 00000000-another-boot\npersist.kept=1\nvendor.gone=2\nro.gone=3\n");
    EXPECT_EQ(get("persist.kept"), "1");
    EXPECT_EQ(get("vendor.gone"), "");
    EXPECT_EQ(property_set("ro.gone", "4"), 0);
    EXPECT_EQ(listed(),
              (std::map<std::string, std::string>{{"persist.kept", "1"}, {"ro.gone", "4"}}));
}

TEST_F(HostProperties, LoseNothingWhenProcessesAndThreadsWriteAtOnce) {
    constexpr int kProcesses = 4;
    constexpr int kThreads = 3;
    constexpr int kEach = 20;
    const auto writer = [](int process, int thread) {
        for (int i = 0; i < kEach; i++) {
            const std::string key = "vendor.p" + std::to_string(process) + ".t" +
                                    std::to_string(thread) + ".n" + std::to_string(i);
            if (property_set(key.c_str(), std::to_string(i).c_str()) != 0) _exit(2);
        }
    };
    std::vector<pid_t> children;
    for (int process = 0; process < kProcesses; process++) {
        const pid_t child = fork();
        if (child == 0) {
            std::vector<std::thread> threads;
            for (int thread = 0; thread < kThreads; thread++) {
                threads.emplace_back(writer, process, thread);
            }
            for (std::thread& thread : threads) thread.join();
            _exit(0);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(listed().size(), static_cast<size_t>(kProcesses * kThreads * kEach));
    EXPECT_EQ(get("vendor.p3.t2.n19"), "19");
}

TEST_F(HostProperties, AreNeverSeenHalfWritten) {
    ASSERT_EQ(property_set("vendor.steady", kLongest.c_str()), 0);
    const pid_t child = fork();
    if (child == 0) {
        for (int i = 0; i < 300; i++) property_set("vendor.busy", std::to_string(i).c_str());
        _exit(0);
    }
    int status = -1;
    int reads = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        ASSERT_EQ(get("vendor.steady"), kLongest);
        reads++;
    }
    EXPECT_EQ(status, 0);
    EXPECT_GT(reads, 0);
    EXPECT_EQ(get("vendor.busy"), "299");
}

TEST_F(HostProperties, SkipDamagedLines) {
    writeFile(std::string("good.first=1\nno equals sign\n=no name\nbad name=1\n"
                          "bad.escape=a\\qb\nbad.end=a\\\nbad.nul=a") +
              '\0' + "b\nbad.long=" + kLongest + "v\n\n\xff\xfe\ngood.last=2");
    EXPECT_EQ(listed(),
              (std::map<std::string, std::string>{{"good.first", "1"}, {"good.last", "2"}}));
    EXPECT_EQ(property_set("good.new", "3"), 0);
    EXPECT_EQ(listed().size(), 3u);
}

TEST_F(HostProperties, FailAndKeepWhatCannotBeReadAsAFile) {
    ASSERT_EQ(mkfifo(mFile.c_str(), 0600), 0);
    EXPECT_EQ(get("vendor.any", "fallback"), "fallback");
    ASSERT_LT(property_set("vendor.any", "1"), 0);
    EXPECT_LT(property_list(remember, nullptr), 0);
    EXPECT_TRUE(std::filesystem::is_fifo(mFile));
}

TEST_F(HostProperties, FailAndKeepWhatIsFarTooLarge) {
    constexpr size_t kMost = 16777216;
    const std::string mark = "vendor.any=kept\n";
    writeFile(mark + std::string(kMost - mark.size(), '\n'));
    EXPECT_EQ(get("vendor.any"), "kept");
    std::filesystem::resize_file(mFile, kMost + 1);
    EXPECT_EQ(get("vendor.any", "fallback"), "fallback");
    EXPECT_LT(property_set("vendor.any", "1"), 0);
    EXPECT_EQ(std::filesystem::file_size(mFile), kMost + 1);
}

TEST_F(HostProperties, FailWhereNoFileCanBeWritten) {
    setenv("TARN_PROPERTIES_FILE", "/proc/none/properties", 1);
    EXPECT_LT(property_set("vendor.any", "1"), 0);
    EXPECT_EQ(get("vendor.any", "fallback"), "fallback");
}

TEST_F(HostProperties, LeaveOnlyTheFileAndItsLockBehind) {
    EXPECT_EQ(property_set("vendor.any", "1"), 0);
    size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(mFolder)) {
        EXPECT_TRUE(entry.path() == mFile || entry.path() == mFile + ".lock") << entry.path();
        files++;
    }
    EXPECT_EQ(files, 2u);
    EXPECT_NE(fileContent().find("\nvendor.any=1\n"), std::string::npos);
}

TEST_F(HostProperties, TakeThePlaceOfWhatAnInterruptedWriteLeft) {
    std::ofstream(mFile + ".new") << "persist.half";
    EXPECT_EQ(property_set("persist.any", "1"), 0);
    EXPECT_EQ(listed(), (std::map<std::string, std::string>{{"persist.any", "1"}}));
    EXPECT_FALSE(std::filesystem::exists(mFile + ".new"));
}

TEST_F(HostProperties, AreNotHeldUpByAFifoInTheNewFilesPlace) {
    ASSERT_EQ(mkfifo((mFile + ".new").c_str(), 0600), 0);
    const int status = inChildProcess([] {
        alarm(60);  // ends a child that waits for a reader
        return property_set("persist.any", "1") == 0 ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(std::filesystem::is_regular_file(mFile));
    EXPECT_EQ(get("persist.any"), "1");
}

TEST_F(HostProperties, DoNotFollowALinkInTheNewFilesPlace) {
    const std::string other = mFolder + "/other";
    std::ofstream(other) << "another's";
    const auto setWithLink = [&](const char* value, const std::function<void()>& link) {
        link();
        EXPECT_EQ(property_set("persist.any", value), 0);
        EXPECT_EQ(get("persist.any"), value);
        EXPECT_EQ(contentOf(other), "another's");
        EXPECT_FALSE(std::filesystem::is_symlink(mFile));
    };
    setWithLink("1", [&] { std::filesystem::create_symlink(other, mFile + ".new"); });
    setWithLink("2", [&] { std::filesystem::create_hard_link(other, mFile + ".new"); });
}

TEST_F(HostProperties, FailWhereTheNewFilesPlaceIsTaken) {
    EXPECT_EQ(property_set("persist.any", "1"), 0);
    std::filesystem::create_directory(mFile + ".new");
    EXPECT_LT(property_set("persist.any", "2"), 0);
    EXPECT_EQ(get("persist.any"), "1");
}

TEST_F(HostProperties, LieInTheStateFolderUnlessAFileIsNamed) {
    const auto setIn = [](const char* stateHome, const char* home) {
        return inChildProcess([=] {
            unsetenv("TARN_PROPERTIES_FILE");
            setenv("XDG_STATE_HOME", stateHome, 1);
            setenv("HOME", home, 1);
            return property_set("persist.any", "1") == 0 ? 0 : 1;
        });
    };
    EXPECT_EQ(setIn((mFolder + "/state").c_str(), "/nonexistent"), 0);
    EXPECT_TRUE(std::filesystem::exists(mFolder + "/state/tarn/properties"));
    EXPECT_EQ(setIn("", (mFolder + "/home").c_str()), 0);
    EXPECT_TRUE(std::filesystem::exists(mFolder + "/home/.local/state/tarn/properties"));
}

TEST_F(HostProperties, LieInTheTemporaryFolderWhereThereIsNoHome) {
    const auto pathIn = [](const char* stateHome, const char* home) {
        setenv("TARN_PROPERTIES_FILE", "", 1);
        setenv("XDG_STATE_HOME", stateHome, 1);
        setenv("HOME", home, 1);
        return tarn::host::propertyFilePath();
    };
    const std::string former = getenv("HOME") != nullptr ? getenv("HOME") : "";
    EXPECT_EQ(pathIn("", ""), "/tmp/tarn-properties-" + std::to_string(getuid()));
    EXPECT_EQ(pathIn("state", ""), "/tmp/tarn-properties-" + std::to_string(getuid()));
    EXPECT_EQ(pathIn("state", "/h"), "/h/.local/state/tarn/properties");
    EXPECT_EQ(pathIn("/s", ""), "/s/tarn/properties");
    unsetenv("XDG_STATE_HOME");
    setenv("HOME", former.c_str(), 1);
}

TEST_F(HostProperties, AreListedOnce) {
    EXPECT_EQ(property_set("persist.b", "2"), 0);
    EXPECT_EQ(property_set("persist.a", "1"), 0);
    EXPECT_EQ(property_set("persist.b", "3"), 0);
    EXPECT_EQ(listed(),
              (std::map<std::string, std::string>{{"persist.a", "1"}, {"persist.b", "3"}}));
}

TEST_F(HostProperties, AreOnTheDiskBeforeTheyReplaceTheOldOnes) {
    property_set("persist.a", "1");
    property_set("persist.a", "2");
    EXPECT_NE(fileContent().find("persist.a=2"), std::string::npos);
    EXPECT_EQ(gFlushedBeforeRename, fileContent());
}

TEST_F(HostProperties, ReadAsBooleans) {
    for (const char* text : {"1", "true", "y", "yes", "on"}) {
        property_set("vendor.bool", text);
        EXPECT_EQ(property_get_bool("vendor.bool", 0), 1) << text;
    }
    for (const char* text : {"0", "false", "n", "no", "off"}) {
        property_set("vendor.bool", text);
        EXPECT_EQ(property_get_bool("vendor.bool", 1), 0) << text;
    }
    for (const char* text : {"", "2", "TRUE", " off", "maybe"}) {
        property_set("vendor.bool", text);
        EXPECT_EQ(property_get_bool("vendor.bool", 1), 1) << text;
        EXPECT_EQ(property_get_bool("vendor.bool", 0), 0) << text;
    }
}

TEST_F(HostProperties, ReadAsIntegers) {
    const auto int32Of = [](const char* text) {
        property_set("vendor.int", text);
        return property_get_int32("vendor.int", -99);
    };
    EXPECT_EQ(int32Of("42"), 42);
    EXPECT_EQ(int32Of(" -7 rest"), -7);
    EXPECT_EQ(int32Of("0x1F"), 31);
    EXPECT_EQ(int32Of("010"), 8);
    EXPECT_EQ(int32Of("2147483647"), INT32_MAX);
    EXPECT_EQ(int32Of("2147483648"), -99);
    EXPECT_EQ(int32Of("word"), -99);
    EXPECT_EQ(int32Of(""), -99);
    property_set("vendor.int", "-9223372036854775808");
    EXPECT_EQ(property_get_int64("vendor.int", 5), INT64_MIN);
    property_set("vendor.int", "9223372036854775808");
    EXPECT_EQ(property_get_int64("vendor.int", 5), 5);
}

// The library's calls come here.

extern "C" int fsync(int fd) {
    gFlushed = contentOf("/proc/self/fd/" + std::to_string(fd));
    return static_cast<int>(syscall(SYS_fsync, fd));
}

extern "C" int rename(const char* from, const char* to) noexcept {
    gFlushedBeforeRename = gFlushed;
    return renameat(AT_FDCWD, from, AT_FDCWD, to);
}
