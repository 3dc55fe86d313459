#pragma once

/** Where a looper delivers its events. The looper does not own it. */
class ITarnLooper {
  public:
    /** Takes one event; data is valid during the call only. Called on the looper's thread. */
    virtual bool handleMsg(unsigned int msgType, void* data, unsigned int size) = 0;

  protected:
    ~ITarnLooper() = default;
};
