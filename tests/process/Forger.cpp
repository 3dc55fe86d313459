#include "tests/process/Forger.h"

#include <endian.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>

#include "tests/process/ProcessTest.h"

namespace tarn::test {

namespace {

// The kinds of messages, and the fields of their headers.
enum Kind : uint8_t { CALL = 1, RESULT = 2, ERROR = 3 };
enum Field : uint8_t { PATH = 1, MEMBER = 3, ERROR_NAME = 4, ANSWERED = 5, TO = 6, SIGNATURE = 8 };

constexpr size_t kHeaderStart = 16;
constexpr uint8_t kNoReply = 1;

// A message of the bus in the making.
class Message {
  public:
    Message(Kind kind, uint8_t flags, uint32_t serial) {
        mBytes = {'l', static_cast<char>(kind), static_cast<char>(flags), 1};
        number(0);
        number(serial);
        number(0);
    }

    void field(Field field, char type, const std::string& value) {
        begin(field, type);
        if (type == 'g') {
            mBytes += static_cast<char>(value.size());
        } else {
            align(4);
            number(static_cast<uint32_t>(value.size()));
        }
        mBytes += value;
        mBytes += '\0';
    }

    void field(Field field, uint32_t value) {
        begin(field, 'u');
        align(4);
        number(value);
    }

    std::string finish(const std::string& body) {
        set(4, static_cast<uint32_t>(body.size()));
        set(12, static_cast<uint32_t>(mBytes.size() - kHeaderStart));
        align(8);
        return mBytes + body;
    }

  private:
    void align(size_t size) { mBytes.resize((mBytes.size() + size - 1) / size * size); }

    void number(uint32_t value) {
        mBytes.append(4, '\0');
        set(mBytes.size() - 4, value);
    }

    void set(size_t offset, uint32_t value) {
        const uint32_t little = htole32(value);
        std::memcpy(&mBytes[offset], &little, sizeof(little));
    }

    void begin(Field field, char type) {
        align(8);
        mBytes += {static_cast<char>(field), 1, type, '\0'};
    }

    std::string mBytes;
};

std::string callOfTheBus(const char* method, uint32_t serial) {
    Message message(CALL, 0, serial);
    message.field(PATH, 'o', "/org/freedesktop/DBus");
    message.field(MEMBER, 's', method);
    message.field(TO, 's', "org.freedesktop.DBus");
    return message.finish("");
}

uint32_t numberAt(const std::string& bytes, size_t offset) {
    uint32_t little = 0;
    std::memcpy(&little, &bytes[offset], sizeof(little));
    return le32toh(little);
}

}  // namespace

Forger::Forger() : mSocket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    const std::string before = "unix:path=";
    const std::string& address = theBus().address();
    const std::string path = address.substr(before.size(), address.find(',') - before.size());
    sockaddr_un to{};
    to.sun_family = AF_UNIX;
    path.copy(to.sun_path, sizeof(to.sun_path) - 1);
    if (connect(mSocket, reinterpret_cast<const sockaddr*>(&to), sizeof(to)) != 0) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    std::string user;
    for (const char digit : std::to_string(getuid())) user += {'3', digit};
    write(std::string(1, '\0') + "AUTH EXTERNAL " + user + "\r\n");
    while (read(1) != "\n") continue;
    write("BEGIN\r\n" + callOfTheBus("Hello", ++mSerial));
    settle();
}

Forger::~Forger() {
    close(mSocket);
}

void Forger::answer(const std::string& uniqueName, uint32_t calls, const std::string& signature,
                    const std::string& body) {
    std::string all;
    for (uint32_t call = 1; call <= calls; call++) {
        Message message(RESULT, kNoReply, ++mSerial);
        message.field(ANSWERED, call);
        message.field(TO, 's', uniqueName);
        message.field(SIGNATURE, 'g', signature);
        all += message.finish(body);
    }
    write(all);
}

void Forger::fail(const std::string& uniqueName, uint32_t calls, const std::string& error) {
    std::string all;
    for (uint32_t call = 1; call <= calls; call++) {
        Message message(ERROR, kNoReply, ++mSerial);
        message.field(ANSWERED, call);
        message.field(TO, 's', uniqueName);
        message.field(ERROR_NAME, 's', error);
        all += message.finish("");
    }
    write(all);
}

void Forger::settle() {
    const uint32_t asked = ++mSerial;
    write(callOfTheBus("GetId", asked));
    for (;;) {
        const std::string start = read(kHeaderStart);
        const size_t header = (numberAt(start, 12) + 7) / 8 * 8;
        const std::string rest = read(header + numberAt(start, 4));
        if (start[1] != RESULT) continue;
        // The answer's first field is the number of the call, unless the bus changes its ways.
        for (size_t at = 0; at + 8 <= header; at += 8) {
            if (rest[at] == ANSWERED && rest[at + 2] == 'u' && numberAt(rest, at + 4) == asked) {
                return;
            }
        }
    }
}

void Forger::write(const std::string& bytes) {
    for (size_t done = 0; done < bytes.size();) {
        const ssize_t sent = send(mSocket, &bytes[done], bytes.size() - done, MSG_NOSIGNAL);
        if (sent < 0) throw std::system_error(errno, std::generic_category(), "the bus");
        done += static_cast<size_t>(sent);
    }
}

std::string Forger::read(size_t size) {
    std::string bytes(size, '\0');
    if (size == 0) return bytes;
    const ssize_t got = recv(mSocket, bytes.data(), size, MSG_WAITALL);
    if (got != static_cast<ssize_t>(size)) {
        throw std::system_error(errno, std::generic_category(), "the bus");
    }
    return bytes;
}

}  // namespace tarn::test
