#pragma once

#include <sys/types.h>

#include <map>
#include <string>
#include <vector>

namespace tarn::test {

/** A program of the project in a process of its own, as a person would start it. */
class Program {
  public:
    using Environment = std::map<std::string, std::string>;

    /** The environment is this process's, but for the variables given; an empty one is unset. */
    Program(const std::string& path, const std::vector<std::string>& arguments,
            const Environment& environment = {});
    /** Kills it if it still runs. */
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    pid_t pid() const { return mPid; }

    /** The next line of its standard output or error; the test fails if there comes none. */
    std::string outputLine();
    std::string errorLine();

    /** Reads standard error up to a line that holds this text, which it returns. */
    std::string errorLineWith(const std::string& text);

    /** Sends it a signal, unless wait() has seen its end. */
    void signal(int number) const;

    /** Whether it has ended; wait() tells how. */
    bool ended() const;

    /**
     * Waits until it ends by itself and returns its exit code, minus the signal's number if one
     * ended it. The test fails if it does not end.
     */
    int wait();

    /** All that it wrote and nobody read; once it has ended. */
    std::string restOfOutput();
    std::string restOfErrors();

  private:
    struct Stream {
        int descriptor = -1;
        std::string unread;
        bool ended = false;

        bool fill(int milliseconds);
        std::string rest();
    };

    static std::string lineOf(Stream* stream, Stream* other);
    void drain();

    pid_t mPid = -1;
    bool mReaped = false;
    int mExitCode = 0;
    Stream mOutput;
    Stream mErrors;
};

/** What a program printed that ran to its end. */
struct Outcome {
    int code;
    std::string output;
    std::string errors;
};
Outcome runProgram(const std::string& path, const std::vector<std::string>& arguments,
                   const Program::Environment& environment = {});

}  // namespace tarn::test
