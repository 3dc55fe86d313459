#pragma once

#include <vector>

namespace android::host::dbus {

/**
 * Descriptors that are kept for a time when the process has no others left: the bus library loses
 * the connection when it reads a message with files and can have no descriptors for them.
 */
class DescriptorReserve {
  public:
    DescriptorReserve();
    ~DescriptorReserve();
    DescriptorReserve(const DescriptorReserve&) = delete;
    DescriptorReserve& operator=(const DescriptorReserve&) = delete;

    /** Frees them if the process may be short of descriptors. */
    void lend();
    /** Takes back those that were freed, as far as they are still free. */
    void takeBack();

  private:
    void fill();

    const int mOriginal;
    std::vector<int> mDuplicates;
};

}  // namespace android::host::dbus
