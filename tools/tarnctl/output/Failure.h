#pragma once

#include <stdexcept>
#include <string>

namespace tarnctl {

/** What tarnctl ends with. */
enum ExitCode : int {
    kDone = 0,
    kNoSuchName = 1,     // no such controller, method, command or property
    kBadUsage = 2,       // the command line can't be used as it stands
    kCommandFailed = 3,  // the service answered with a failure
    kUnreachable = 4,    // there is no service, it died, or it did not answer in time
    kCantWrite = 5,      // standard output takes no results, so that nothing more is done
    kInterrupted = 128,  // with the signal's number added, as a shell does
};

/** Ends a command; the message tells a person why, without a full stop. */
class Failure : public std::runtime_error {
  public:
    Failure(ExitCode code, const std::string& message) : std::runtime_error(message), mCode(code) {}

    ExitCode code() const { return mCode; }

  private:
    ExitCode mCode;
};

}  // namespace tarnctl
