// What the carrier's messages hold: right content comes back as it was written, wrong content is
// refused. And the names of services and processes.

#include <fcntl.h>
#include <sdbus-c++/sdbus-c++.h>
#include <sys/mman.h>
#include <unistd.h>

#include <optional>
#include <string>
#include <vector>

#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"
#include "host/binder/dbus/BusName.h"
#include "host/binder/dbus/MessageFormat.h"
#include "values/Utf8.h"

using android::host::dbus::busNameOf;
using android::host::dbus::Content;
using android::host::dbus::isUniqueName;
using android::host::dbus::kMaxInlineSize;
using android::host::dbus::kMaxTransactionSize;
using android::host::dbus::Reading;
using android::host::dbus::Reference;
using android::host::dbus::serviceNameOf;

namespace {

/** Gives the one kind of message that the library makes without a bus, that of its variants. */
template <sdbus::PlainMessage sdbus::Variant::*kMember>
struct Opener {
    friend sdbus::PlainMessage messageOf(const sdbus::Variant& variant) { return variant.*kMember; }
};

sdbus::PlainMessage messageOf(const sdbus::Variant& variant);
template struct Opener<&sdbus::Variant::msg_>;

}  // namespace

namespace tarn::fuzz {

namespace {

sdbus::PlainMessage newMessage() {
    return messageOf(sdbus::Variant());
}

void finish(sdbus::PlainMessage* message) {
    message->seal();
    message->rewind(true);
}

/** A text that a message can carry. */
std::string carriedText(Input* input) {
    const std::string text = input->text();
    const bool carried = values::isUtf8(text) && text.find('\0') == std::string::npos;
    return carried ? text : ":1.5";
}

Content readContent(Input* input) {
    Content content;
    for (size_t left = input->choice(5); left > 0; left--) {
        const auto offset = input->number<uint32_t>();
        content.references.push_back({offset, carriedText(input), input->number<uint64_t>()});
    }
    content.bytes = input->shortBytes();
    // So that some are inline and some are not.
    if (input->flag()) content.bytes.resize(input->choice(2 * kMaxInlineSize));
    return content;
}

bool same(const Content& left, const Content& right) {
    const auto sameReference = [](const Reference& a, const Reference& b) {
        return a.offset == b.offset && a.owner == b.owner && a.object == b.object;
    };
    return left.bytes == right.bytes &&
           std::equal(left.references.begin(), left.references.end(), right.references.begin(),
                      right.references.end(), sameReference);
}

void throughMessage(Input* input) {
    const Content content = readContent(input);
    const auto status = input->number<int32_t>();
    sdbus::PlainMessage message = newMessage();
    message << status;
    write(message, content);
    finish(&message);
    Content back;
    int32_t sameStatus = 0;
    check(read(message, &sameStatus, &back) == Reading::COMPLETE, "content can't be read");
    check(sameStatus == status && same(content, back), "content comes back as another");
}

sdbus::UnixFd fileOf(Input* input) {
    const int kind = static_cast<int>(input->choice(4));
    if (kind == 0) return {open("/dev/zero", O_RDONLY | O_CLOEXEC), sdbus::adopt_fd};
    if (kind == 1) return {open("/", O_RDONLY | O_CLOEXEC), sdbus::adopt_fd};
    const int file = memfd_create("fuzz", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    const size_t size = kind == 2 ? kMaxTransactionSize + 1 : input->byte();
    check(ftruncate(file, static_cast<off_t>(size)) == 0, "a file has no size");
    if (kind == 2) fcntl(file, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE);
    return {file, sdbus::adopt_fd};
}

/** Anything in the place of references or bytes. */
void writeAnything(Input* input, sdbus::Message* message) {
    switch (input->choice(7)) {
        case 0:
            *message << input->number<uint32_t>();
            break;
        case 1:
            *message << carriedText(input);
            break;
        case 2:
            *message << sdbus::Variant(carriedText(input));
            break;
        case 3:
            message->openVariant("h");
            *message << fileOf(input);
            message->closeVariant();
            break;
        case 4:
            *message << std::vector<std::string>{carriedText(input)};
            break;
        case 5:
            *message << sdbus::Variant(std::vector<uint8_t>(input->choice(2 * kMaxInlineSize)));
            break;
        default:
            *message << std::vector<sdbus::Struct<uint32_t, std::string, uint64_t>>{
                    sdbus::make_struct(1U, carriedText(input), uint64_t{2})};
    }
}

void readAnything(Input* input) {
    sdbus::PlainMessage message = newMessage();
    try {
        for (size_t left = input->choice(4); left > 0; left--) writeAnything(input, &message);
        finish(&message);
    } catch (const sdbus::Error&) {
        return;  // not a message that could be sent
    }
    Content content;
    read(message, &content);
    check(content.bytes.size() <= kMaxTransactionSize, "more than a message may carry");
}

void throughNames(Input* input) {
    const std::string name = input->text();
    const std::string busName = busNameOf(name);
    if (!busName.empty()) check(serviceNameOf(busName) == name, "a name comes back as another");
    if (const std::optional<std::string> service = serviceNameOf(name)) {
        check(busNameOf(*service) == name, "a bus name comes back as another");
    }
    if (isUniqueName(name)) {
        check(name.find_first_not_of(":.0123456789") == name.npos && name.rfind(':') == 0 &&
                      name.size() <= 255,
              "what is no unique name passes");
    }
}

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    switch (input.choice(3)) {
        case 0:
            tarn::fuzz::throughMessage(&input);
            break;
        case 1:
            tarn::fuzz::readAnything(&input);
            break;
        default:
            tarn::fuzz::throughNames(&input);
    }
    return 0;
}
