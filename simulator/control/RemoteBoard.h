#pragma once

#include <json/value.h>
#include <sdbus-c++/IConnection.h>
#include <sdbus-c++/IProxy.h>
#include <sys/types.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarn::simulator::bus {

/** The daemon is gone, or does not answer. */
class BoardUnreachable : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/**
 * Steers the board that a daemon serves on the session bus, as BoardControl does one of this
 * process. What the board refuses throws std::invalid_argument with its reason; without an answer
 * BoardUnreachable is thrown. One thread at a time.
 */
class RemoteBoard {
  public:
    /** The board being served now, and only that one; null if there is none or no bus. */
    static std::unique_ptr<RemoteBoard> find();

    /** The daemon's process. */
    pid_t pid() const { return mPid; }

    std::string name() const;
    Json::Value listProperties() const;
    Json::Value getProperty(const std::string& name) const;
    void setPropertyFromText(const std::string& name, const std::string& value);
    void raiseEvent(uint32_t type, const std::vector<uint8_t>& data);
    Json::Value postedEvents() const;
    void reset();
    Json::Value listFaults() const;
    void setFault(const std::string& command, const Json::Value& fault);
    void clearFault(const std::string& command);
    void clearFaults();

  private:
    RemoteBoard(std::unique_ptr<sdbus::IConnection> connection, const std::string& owner,
                pid_t pid);

    template <typename Result, typename... Args>
    Result call(const char* method, const Args&... arguments) const;
    template <typename... Args>
    void order(const char* method, const Args&... arguments) const;

    const std::unique_ptr<sdbus::IConnection> mConnection;
    const std::unique_ptr<sdbus::IProxy> mProxy;
    const pid_t mPid;
};

}  // namespace tarn::simulator::bus
