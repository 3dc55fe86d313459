#pragma once

#include <cstdint>
#include <string>

namespace tarn::test {

/**
 * A connection to the bus without a library, which sends replies that nobody asked it for: one with
 * each number that a process's calls may have. Throws std::system_error if it cannot.
 */
class Forger {
  public:
    Forger();
    ~Forger();
    Forger(const Forger&) = delete;
    Forger& operator=(const Forger&) = delete;

    /** Sends a result, of a signature and its bytes, to each of a process's first calls. */
    void answer(const std::string& uniqueName, uint32_t calls, const std::string& signature,
                const std::string& body);

    /** The same with an error. */
    void fail(const std::string& uniqueName, uint32_t calls, const std::string& error);

    /** Waits until the bus has passed on what was sent. */
    void settle();

  private:
    void write(const std::string& bytes);
    std::string read(size_t size);

    int mSocket;
    uint32_t mSerial = 0;
};

}  // namespace tarn::test
