#pragma once

namespace android {

/** A connection that can be taken up again. Any thread may call. */
class Connection {
  public:
    static constexpr int kBusy = -1;
    static constexpr int kAway = 0;

    /**
     * Makes sure that the connection leads to a service that lives. Returns the connection's
     * number, 1 or more, another one each time that it had to be made anew; kAway without a
     * service; kBusy while another thread is at it, for which it doesn't wait.
     */
    virtual int renew() = 0;

    virtual ~Connection() = default;
};

}  // namespace android
