// Replays sequences of Parcel operations and compares every result, every position, size and
// available count and every byte with what Android 13's own Parcel gave for them.
//
//   parcel_replay directed.jsonl            the classes main, hostile and extra count
//   parcel_replay --strict directed.jsonl   the classes quirk and residue count too
//
// Classes: main (ordinary use), hostile (random or damaged bytes given with setData, then reads),
// extra (functions beyond the base set), quirk (accidents of the original: where a write lands
// after a position beyond the allocation, calls that abort, the strict mode policy that
// enforceInterface leaves in the thread) and residue (stale bytes that come back when the size
// grows again). In the first three no result depends on how memory is allocated, on what freshly
// allocated memory holds or on what a shrunk parcel leaves behind.
//
// Other options: --only CLASS (may be repeated; these classes count, others are left out),
//   --id ID (run one sequence and print every step), --show N (print the first N differences,
//   default 10), --no-fork (one process; sequences that end in an abort are left out),
//   --keep-log (leave the library's log alone).
//
// Exit status: 0 when every counted sequence is identical, 1 when one is not, 2 for bad usage or
// an unreadable or damaged file.
//
// File format: one JSON object a line,
//   {"id":"m0001","class":"main","steps":["A w32 00000005 => 0 @4/4/0", ...]}
// and last {"sequences":N}, which tells a shortened file. Strings hold no escapes. A step is
//   PARCEL OP ARGS => RESULT @POS/SIZE/AVAIL
// and the first step starts from two newly constructed parcels A and B. POS, SIZE and AVAIL are
// dataPosition(), dataSize() and dataAvail() of that parcel after the call, in decimal. In a
// RESULT a '?' matches any one character: that digit comes from memory that the original never
// wrote. A step whose RESULT is ABORT ends the process with SIGABRT. Numbers in ARGS and values in
// RESULT are hexadecimal, memory order for byte strings, four digits a unit for UTF-16, '-' for an
// empty string; status codes are decimal. What each OP calls is in writes(), sizes() and reads().

#include <binder/Binder.h>
#include <binder/Parcel.h>
#include <signal.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utils/Errors.h>
#include <utils/String16.h>
#include <utils/String8.h>

#include <exception>
#include <fstream>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

using android::Parcel;
using android::status_t;
using android::String16;
using android::String8;
typedef std::string Str;
typedef std::vector<Str> Words;

// ---- small conversions ---------------------------------------------------------------------

int nib(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

uint64_t num(const Str& s) {
    return strtoull(s.c_str(), nullptr, 16);
}

// A length that the machine has no word for: what Android did with it can't be asked for.
struct BeyondSizeT {};

// A length of 64 bits. Those next to its end are the same next to the end of a smaller size_t.
size_t length(const Str& s) {
    const uint64_t n = num(s);
    const bool negative = n > UINT64_MAX - INT32_MAX;
    if (n > SIZE_MAX && !negative) throw BeyondSizeT();
    return size_t(n);
}

std::vector<uint8_t> bytes(const Str& s) {
    std::vector<uint8_t> v;
    if (s == "-") return v;
    for (size_t i = 0; i + 1 < s.size(); i += 2)
        v.push_back(uint8_t(nib(s[i]) << 4 | nib(s[i + 1])));
    return v;
}

std::u16string units(const Str& s) {
    std::u16string v;
    if (s == "-") return v;
    for (size_t i = 0; i + 3 < s.size(); i += 4)
        v.push_back(char16_t(nib(s[i]) << 12 | nib(s[i + 1]) << 8 | nib(s[i + 2]) << 4 |
                             nib(s[i + 3])));
    return v;
}

Str hex(const void* p, size_t n) {
    static const char d[] = "0123456789abcdef";
    if (n == 0) return "-";
    const uint8_t* b = static_cast<const uint8_t*>(p);
    Str s;
    s.reserve(2 * n);
    for (size_t i = 0; i < n; i++) {
        s.push_back(d[b[i] >> 4]);
        s.push_back(d[b[i] & 15]);
    }
    return s;
}

Str hexUnits(const void* p, size_t n) {  // p may be unaligned
    if (n == 0) return "-";
    Str s;
    char t[8];
    for (size_t i = 0; i < n; i++) {
        uint16_t u;
        memcpy(&u, static_cast<const char*>(p) + 2 * i, 2);
        snprintf(t, sizeof t, "%04x", u);
        s += t;
    }
    return s;
}

Str h32(uint32_t v) {
    char t[16];
    snprintf(t, sizeof t, "%08x", v);
    return t;
}
Str h64(uint64_t v) {
    char t[24];
    snprintf(t, sizeof t, "%016llx", (unsigned long long)v);
    return t;
}
Str dec(long long v) {
    return std::to_string(v);
}
template <class F>
uint32_t bits32(F f) {
    uint32_t u;
    memcpy(&u, &f, 4);
    return u;
}
template <class F>
uint64_t bits64(F f) {
    uint64_t u;
    memcpy(&u, &f, 8);
    return u;
}
float asFloat(uint32_t u) {
    float f;
    memcpy(&f, &u, 4);
    return f;
}
double asDouble(uint64_t u) {
    double f;
    memcpy(&f, &u, 8);
    return f;
}

Words split(const Str& s, char sep) {
    Words w;
    Str cur;
    for (char c : s) {
        if (c == sep) {
            w.push_back(cur);
            cur.clear();
        } else
            cur.push_back(c);
    }
    w.push_back(cur);
    return w;
}

Str s16(const String16& s) {
    return hexUnits(s.string(), s.size());
}

// dataSize() is the larger of the size and the position; this is the size alone.
size_t trueSize(const Parcel& p) {
    const size_t pos = p.dataPosition();
    p.setDataPosition(0);
    const size_t n = p.dataSize();
    p.setDataPosition(pos);
    return n;
}

Str state(const Parcel& p) {
    return dec((long long)p.dataPosition()) + "/" + dec((long long)p.dataSize()) + "/" +
           dec((long long)p.dataAvail());
}

// ---- the operations ------------------------------------------------------------------------

class LocalBinder : public android::BBinder {
  public:
    explicit LocalBinder(const String16& d) : mDescriptor(d) {}
    const String16& getInterfaceDescriptor() const override { return mDescriptor; }

  private:
    String16 mDescriptor;
};

const size_t kScratch = 1 << 16;  // where a refused read or write would have pointed

const uint8_t* scratch() {
    static std::vector<uint8_t> v(kScratch, 0x77);
    return v.data();
}

// One operation on parcel p; o is the other one, a and b are the operation's arguments.
struct Call {
    Parcel& p;
    Parcel& o;
    Str a;
    Str b;
};

// By name; each gives its result as text.
typedef std::map<Str, Str (*)(const Call&)> Operations;

// Writing.
Operations writes() {
    return {
            {"w32",
             [](const Call& call) -> Str { return dec(call.p.writeInt32(int32_t(num(call.a)))); }},
            {"wu32",
             [](const Call& call) -> Str {
                 return dec(call.p.writeUint32(uint32_t(num(call.a))));
             }},
            {"wf",
             [](const Call& call) -> Str {
                 return dec(call.p.writeFloat(asFloat(uint32_t(num(call.a)))));
             }},
            {"wb", [](const Call& call) -> Str { return dec(call.p.writeBool(call.a == "1")); }},
            {"ws16",
             // writeString16(const String16&)
             [](const Call& call) -> Str {
                 std::u16string u = units(call.a);
                 return dec(call.p.writeString16(String16(u.data(), u.size())));
             }},
            {"wp16",
             // writeString16(const char16_t*, size_t), "null": (nullptr, length)
             [](const Call& call) -> Str {
                 if (call.a == "null")
                     return dec(call.p.writeString16(static_cast<const char16_t*>(nullptr),
                                                     length(call.b)));
                 std::u16string u = units(call.a);
                 return dec(call.p.writeString16(u.data(), u.size()));
             }},
            {"wba",
             // writeByteArray(length, pointer), "null": (length, nullptr)
             [](const Call& call) -> Str {
                 if (call.a == "null") return dec(call.p.writeByteArray(length(call.b), nullptr));
                 std::vector<uint8_t> v = bytes(call.a);
                 return dec(call.p.writeByteArray(v.size(), v.empty() ? scratch() : v.data()));
             }},
            {"wbaL",
             // length to be refused
             [](const Call& call) -> Str {
                 return dec(call.p.writeByteArray(length(call.a), scratch()));
             }},
            {"wr",
             // write(pointer, length)
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 return dec(call.p.write(v.empty() ? scratch() : v.data(), v.size()));
             }},
            {"wrL",
             // length to be refused
             [](const Call& call) -> Str { return dec(call.p.write(scratch(), length(call.a))); }},
            {"w64",
             [](const Call& call) -> Str { return dec(call.p.writeInt64(int64_t(num(call.a)))); }},
            {"wd",
             [](const Call& call) -> Str {
                 return dec(call.p.writeDouble(asDouble(num(call.a))));
             }},
            {"ws8",
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 v.push_back(0);
                 return dec(call.p.writeString8(
                         String8(reinterpret_cast<const char*>(v.data()), v.size() - 1)));
             }},
            {"wc",
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 v.push_back(0);
                 return dec(call.p.writeCString(reinterpret_cast<const char*>(v.data())));
             }},
            {"wv16",
             // strings separated by ',', "none": no strings
             [](const Call& call) -> Str {
                 std::vector<String16> v;
                 if (call.a != "none")
                     for (const Str& e : split(call.a, ',')) {
                         std::u16string u = units(e);
                         v.push_back(String16(u.data(), u.size()));
                     }
                 return dec(call.p.writeString16Vector(v));
             }},
            {"wit",
             [](const Call& call) -> Str {
                 std::u16string u = units(call.a);
                 return dec(call.p.writeInterfaceToken(String16(u.data(), u.size())));
             }},
            {"wu64", [](const Call& call) -> Str { return dec(call.p.writeUint64(num(call.a))); }},
            {"wby",
             [](const Call& call) -> Str { return dec(call.p.writeByte(int8_t(num(call.a)))); }},
            {"wch",
             [](const Call& call) -> Str { return dec(call.p.writeChar(char16_t(num(call.a)))); }},
            {"wi32a",
             [](const Call& call) -> Str {
                 if (call.a == "null") return dec(call.p.writeInt32Array(length(call.b), nullptr));
                 std::vector<uint8_t> v = bytes(call.a);
                 std::vector<int32_t> i(v.size() / 4 + 1);
                 if (!v.empty()) memcpy(i.data(), v.data(), v.size() / 4 * 4);
                 return dec(call.p.writeInt32Array(v.size() / 4, i.data()));
             }},
            {"wbv",
             [](const Call& call) -> Str { return dec(call.p.writeByteVector(bytes(call.a))); }},
            {"wi32v",
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 std::vector<int32_t> i(v.size() / 4);
                 if (!i.empty()) memcpy(i.data(), v.data(), i.size() * 4);
                 return dec(call.p.writeInt32Vector(i));
             }},
            {"wfv",
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 std::vector<float> i(v.size() / 4);
                 if (!i.empty()) memcpy(i.data(), v.data(), i.size() * 4);
                 return dec(call.p.writeFloatVector(i));
             }},
            {"wbov",
             [](const Call& call) -> Str {
                 std::vector<bool> v;
                 if (call.a != "-")
                     for (char c : call.a) v.push_back(c == '1');
                 return dec(call.p.writeBoolVector(v));
             }},
            {"wu8",
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 return dec(call.p.writeUtf8AsUtf16(Str(v.begin(), v.end())));
             }},
            {"wun",
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 return dec(call.p.writeUnpadded(v.empty() ? scratch() : v.data(), v.size()));
             }},
            {"wip",
             // writeInplace(length), then the bytes are copied there
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 void* q = call.p.writeInplace(v.size());
                 if (!q) return "null";
                 if (!v.empty()) memcpy(q, v.data(), v.size());
                 return "ptr";
             }},
    };
}

// Size, position and whole contents.
Operations sizes() {
    return {
            {"sds",
             [](const Call& call) -> Str { return dec(call.p.setDataSize(length(call.a))); }},
            {"sdp",
             [](const Call& call) -> Str {
                 call.p.setDataPosition(length(call.a));
                 return "void";
             }},
            {"sd",
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v = bytes(call.a);
                 return dec(call.p.setData(v.empty() ? scratch() : v.data(), v.size()));
             }},
            {"sdL",
             // length to be refused
             [](const Call& call) -> Str {
                 return dec(call.p.setData(scratch(), length(call.a)));
             }},
            {"fd",
             [](const Call& call) -> Str {
                 call.p.freeData();
                 return "void";
             }},
            {"ap",
             [](const Call& call) -> Str {
                 return dec(call.p.appendFrom(&call.o, length(call.a), length(call.b)));
             }},
            {"dump",
             [](const Call& call) -> Str {
                 size_t n = trueSize(call.p);
                 return hex(call.p.data(), n);
             }},
            {"sdc",
             [](const Call& call) -> Str { return dec(call.p.setDataCapacity(length(call.a))); }},
            {"cmp",
             [](const Call& call) -> Str {
                 int c = call.p.compareData(call.o);
                 return c < 0 ? "-1" : c > 0 ? "1" : "0";
             }},
            {"obj", [](const Call& call) -> Str { return dec((long long)call.p.objectsCount()); }},
            {"fds",
             [](const Call& call) -> Str { return call.p.hasFileDescriptors() ? "1" : "0"; }},
            {"seterr",
             [](const Call& call) -> Str {
                 call.p.setError(int32_t(num(call.a)));
                 return "void";
             }},
            {"err", [](const Call& call) -> Str { return dec(call.p.errorCheck()); }},
    };
}

// Reading, and the checks that read.
Operations reads() {
    return {
            {"r32", [](const Call& call) -> Str { return h32(uint32_t(call.p.readInt32())); }},
            {"r32p",
             [](const Call& call) -> Str {
                 int32_t v = 0x5a5a5a5a;
                 status_t s = call.p.readInt32(&v);
                 return dec(s) + " " + h32(uint32_t(v));
             }},
            {"ru32", [](const Call& call) -> Str { return h32(call.p.readUint32()); }},
            {"ru32p",
             [](const Call& call) -> Str {
                 uint32_t v = 0x5a5a5a5a;
                 status_t s = call.p.readUint32(&v);
                 return dec(s) + " " + h32(v);
             }},
            {"rf", [](const Call& call) -> Str { return h32(bits32(call.p.readFloat())); }},
            {"rfp",
             [](const Call& call) -> Str {
                 float v = asFloat(0x3f9df3b6);
                 status_t s = call.p.readFloat(&v);
                 return dec(s) + " " + h32(bits32(v));
             }},
            {"rb", [](const Call& call) -> Str { return call.p.readBool() ? "1" : "0"; }},
            {"rbp",
             [](const Call& call) -> Str {
                 bool v = true;
                 status_t s = call.p.readBool(&v);
                 return dec(s) + (v ? " 1" : " 0");
             }},
            {"rs16", [](const Call& call) -> Str { return s16(call.p.readString16()); }},
            {"rs16p",
             [](const Call& call) -> Str {
                 String16 v("before");
                 status_t s = call.p.readString16(&v);
                 return dec(s) + " " + s16(v);
             }},
            {"rs16i",
             [](const Call& call) -> Str {
                 size_t n = 0x5a5a5a5a;
                 const char16_t* q = call.p.readString16Inplace(&n);
                 return q ? h32(uint32_t(n)) + " " + hexUnits(q, n) : "null " + h32(uint32_t(n));
             }},
            {"rr",
             // read(buffer, length)
             [](const Call& call) -> Str {
                 const size_t n = length(call.a);
                 std::vector<uint8_t> v((n < kScratch ? n : kScratch) + 16, 0xee);
                 status_t s = call.p.read(v.data(), n);
                 if (s == 0) {
                     for (size_t i = n; i < v.size(); i++)
                         if (v[i] != 0xee) return "overrun";
                     return "0 " + hex(v.data(), n);
                 }
                 for (uint8_t c : v)
                     if (c != 0xee) return dec(s) + " touched";
                 return dec(s);
             }},
            {"ri",
             // readInplace(length)
             [](const Call& call) -> Str {
                 const size_t n = length(call.a);
                 const void* q = call.p.readInplace(n);
                 return q ? hex(q, n) : "null";
             }},
            {"r64", [](const Call& call) -> Str { return h64(uint64_t(call.p.readInt64())); }},
            {"r64p",
             [](const Call& call) -> Str {
                 int64_t v = 0x5a5a5a5a;
                 status_t s = call.p.readInt64(&v);
                 return dec(s) + " " + h64(uint64_t(v));
             }},
            {"rd", [](const Call& call) -> Str { return h64(bits64(call.p.readDouble())); }},
            {"rdp",
             [](const Call& call) -> Str {
                 double v = asDouble(0x3ff3be76c8b43958);
                 status_t s = call.p.readDouble(&v);
                 return dec(s) + " " + h64(bits64(v));
             }},
            {"rs8",
             [](const Call& call) -> Str {
                 String8 v = call.p.readString8();
                 return hex(v.string(), v.size());
             }},
            {"rs8p",
             [](const Call& call) -> Str {
                 String8 v("before");
                 status_t s = call.p.readString8(&v);
                 return dec(s) + " " + hex(v.string(), v.size());
             }},
            {"rc",
             [](const Call& call) -> Str {
                 const char* q = call.p.readCString();
                 return q ? hex(q, strlen(q)) : "null";
             }},
            {"rbv",
             [](const Call& call) -> Str {
                 std::vector<uint8_t> v(3, 9);
                 status_t s = call.p.readByteVector(&v);
                 return s ? dec(s) : "0 " + hex(v.data(), v.size());
             }},
            {"rbvi",
             [](const Call& call) -> Str {
                 std::vector<int8_t> v(3, 9);
                 status_t s = call.p.readByteVector(&v);
                 return s ? dec(s) : "0 " + hex(v.data(), v.size());
             }},
            {"rv16",
             [](const Call& call) -> Str {
                 std::vector<String16> v(2, String16("before"));
                 status_t s = call.p.readString16Vector(&v);
                 if (s) return dec(s);
                 Str r = "0 ";
                 for (size_t i = 0; i < v.size(); i++) r += (i ? "," : "") + s16(v[i]);
                 return v.empty() ? "0 none" : r;
             }},
            {"enf",
             [](const Call& call) -> Str {
                 std::u16string u = units(call.a);
                 return call.p.enforceInterface(String16(u.data(), u.size())) ? "1" : "0";
             }},
            {"chk",
             [](const Call& call) -> Str {
                 std::u16string u = units(call.a);
                 android::sp<android::IBinder> binder(
                         new LocalBinder(String16(u.data(), u.size())));
                 return call.p.checkInterface(binder.get()) ? "1" : "0";
             }},
            {"ru64", [](const Call& call) -> Str { return h64(call.p.readUint64()); }},
            {"ru64p",
             [](const Call& call) -> Str {
                 uint64_t v = 0x5a5a5a5a;
                 status_t s = call.p.readUint64(&v);
                 return dec(s) + " " + h64(v);
             }},
            {"rby",
             [](const Call& call) -> Str { return h32(uint32_t(int32_t(call.p.readByte()))); }},
            {"rbyp",
             [](const Call& call) -> Str {
                 int8_t v = 0x5a;
                 status_t s = call.p.readByte(&v);
                 return dec(s) + " " + h32(uint32_t(int32_t(v)));
             }},
            {"rch", [](const Call& call) -> Str { return h32(call.p.readChar()); }},
            {"rchp",
             [](const Call& call) -> Str {
                 char16_t v = 0x5a5a;
                 status_t s = call.p.readChar(&v);
                 return dec(s) + " " + h32(v);
             }},
            {"ri32v",
             [](const Call& call) -> Str {
                 std::vector<int32_t> v(3, 9);
                 status_t s = call.p.readInt32Vector(&v);
                 return s ? dec(s) : "0 " + hex(v.data(), v.size() * 4);
             }},
            {"rfv",
             [](const Call& call) -> Str {
                 std::vector<float> v(3, 9);
                 status_t s = call.p.readFloatVector(&v);
                 return s ? dec(s) : "0 " + hex(v.data(), v.size() * 4);
             }},
            {"rbov",
             [](const Call& call) -> Str {
                 std::vector<bool> v(3, true);
                 status_t s = call.p.readBoolVector(&v);
                 if (s) return dec(s);
                 Str r = "0 ";
                 for (size_t i = 0; i < v.size(); i++) r += v[i] ? '1' : '0';
                 return v.empty() ? "0 -" : r;
             }},
            {"ru8",
             [](const Call& call) -> Str {
                 Str v = "before";
                 status_t s = call.p.readUtf8FromUtf16(&v);
                 return s ? dec(s) : "0 " + hex(v.data(), v.size());
             }},
            {"rs16u",
             [](const Call& call) -> Str {
                 std::unique_ptr<String16> v(new String16("before"));
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
                 status_t s = call.p.readString16(&v);
#pragma GCC diagnostic pop
                 return s ? dec(s) : v ? "0 " + s16(*v) : "0 null";
             }},
    };
}

Operations allOperations() {
    Operations all = writes();
    all.merge(sizes());
    all.merge(reads());
    return all;
}

// Runs one operation on p (o is the other parcel); returns its result text.
Str exec(Parcel& p, Parcel& o, const Words& w) {
    static const Operations operations = allOperations();
    const auto operation = operations.find(w[0]);
    if (operation == operations.end()) return "!unknown-op";
    return operation->second({p, o, w.size() > 1 ? w[1] : "", w.size() > 2 ? w[2] : ""});
}

bool same(const Str& want, const Str& got) {
    if (want.size() != got.size()) return false;
    for (size_t i = 0; i < want.size(); i++)
        if (want[i] != '?' && want[i] != got[i]) return false;
    return true;
}

// ---- the file ------------------------------------------------------------------------------

struct Step {
    Str text, which, result, state;
    Words op;
};
struct Sequence {
    Str id, cls;
    std::vector<Step> steps;
    bool aborts = false;
};

bool parseStep(const Str& t, Step* s) {
    s->text = t;
    const size_t arrow = t.find(" => "), at = t.rfind(" @");
    if (arrow == Str::npos || at == Str::npos || at < arrow + 4) return false;
    Words w = split(t.substr(0, arrow), ' ');
    if (w.size() < 2 || (w[0] != "A" && w[0] != "B")) return false;
    s->which = w[0];
    s->op.assign(w.begin() + 1, w.end());
    s->result = t.substr(arrow + 4, at - arrow - 4);
    s->state = t.substr(at + 2);
    return !s->result.empty() && !s->state.empty();
}

// A line is an object of exactly these members in this order; no escapes, no white space.
bool parseLine(const Str& l, Sequence* q) {
    size_t i = 0;
    auto lit = [&](const char* s) {
        size_t n = strlen(s);
        if (l.compare(i, n, s)) return false;
        i += n;
        return true;
    };
    auto str = [&](Str* out) {
        size_t e = l.find('"', i);
        if (e == Str::npos) return false;
        *out = l.substr(i, e - i);
        i = e + 1;
        return out->find('\\') == Str::npos;
    };
    if (!lit("{\"id\":\"") || !str(&q->id)) return false;
    if (!lit(",\"class\":\"") || !str(&q->cls)) return false;
    if (!lit(",\"steps\":[")) return false;
    for (;;) {
        Str t;
        Step s;
        if (!lit("\"") || !str(&t) || !parseStep(t, &s)) return false;
        if (q->aborts) return false;  // nothing may follow an abort
        if (s.result == "ABORT") q->aborts = true;
        q->steps.push_back(s);
        if (lit(",")) continue;
        if (!lit("]}")) return false;
        return i == l.size();
    }
}

// "" when identical, otherwise what differs first.
const Str kBeyondSizeT = "a length is beyond this machine's size_t";

Str replay(const Sequence& q, bool print) {
    Parcel A, B;
    for (size_t i = 0; i < q.steps.size(); i++) {
        const Step& s = q.steps[i];
        Parcel& p = s.which == "A" ? A : B;
        Parcel& o = s.which == "A" ? B : A;
        Str r;
        try {
            r = exec(p, o, s.op);
        } catch (const BeyondSizeT&) {
            return kBeyondSizeT;
        } catch (const std::exception& e) {
            r = Str("exception ") + e.what();
        }
        const Str st = state(p);
        const bool ok = same(s.result, r) && s.state == st;
        if (print)
            printf("  %s %s\n      got => %s @%s\n", ok ? "ok  " : "DIFF", s.text.c_str(),
                   r.c_str(), st.c_str());
        if (!ok)
            return "step " + dec((long long)i + 1) + ": " + s.text + "   GOT => " + r + " @" + st;
    }
    return "";
}

// Puts the calling thread's strict mode policy back to what a new thread has.
void resetThread() {
    Parcel p;
    p.writeInt32(0);
    p.writeInt32(-1);
    p.writeInt32(0x53595354);
    p.writeString16(String16("x"));
    p.setDataPosition(0);
    p.enforceInterface(String16("x"));
}

// A length that a hostile parcel claims must not cost gigabytes: with this limit that shows as an
// exception or a failed call, and the machine stays up.
void limitMemory() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return;
#endif
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(memory_sanitizer) || \
        __has_feature(thread_sanitizer)
    return;
#endif
#endif
    struct rlimit l;
    l.rlim_cur = l.rlim_max = rlim_t(1) << 30;
    setrlimit(RLIMIT_AS, &l);
}

// The same in a child process, so that a crash, an abort or a hang is one differing sequence, and
// so that per-thread state (the strict mode policy) does not leak from one sequence to the next.
Str replayForked(const Sequence& q, bool print, bool keepLog) {
    int fd[2];
    if (pipe(fd)) return "pipe failed";
    fflush(stdout);
    const pid_t pid = fork();
    if (pid < 0) return "fork failed";
    if (pid == 0) {
        close(fd[0]);
        alarm(60);
        limitMemory();
        if (!keepLog && !freopen("/dev/null", "w", stderr)) {
        }
        Str r = replay(q, print);
        fflush(stdout);
        r = r.empty() ? "=" : "!" + r;
        size_t off = 0;
        while (off < r.size()) {
            ssize_t n = write(fd[1], r.data() + off, r.size() - off);
            if (n <= 0) break;
            off += size_t(n);
        }
        _exit(0);
    }
    close(fd[1]);
    Str r;
    char buf[4096];
    ssize_t n;
    while ((n = read(fd[0], buf, sizeof buf)) > 0) r.append(buf, size_t(n));
    close(fd[0]);
    int st = 0;
    waitpid(pid, &st, 0);
    if (q.aborts) {
        if (r.empty() && WIFSIGNALED(st) && WTERMSIG(st) == SIGABRT) return "";
        return r.size() > 1 && r[0] == '!' ? r.substr(1) : "did not end with SIGABRT";
    }
    if (WIFSIGNALED(st)) return "the process died of signal " + dec(WTERMSIG(st));
    if (r == "=") return "";
    return r.size() > 1 && r[0] == '!' ? r.substr(1) : "no result from the child process";
}

}  // namespace

int main(int argc, char** argv) {
    bool strict = false, useFork = true, keepLog = false;
    long show = 10;
    std::set<Str> only;
    Str id, path;
    for (int i = 1; i < argc; i++) {
        const Str a = argv[i];
        if (a == "--strict")
            strict = true;
        else if (a == "--no-fork")
            useFork = false;
        else if (a == "--keep-log")
            keepLog = true;
        else if (a == "--only" && i + 1 < argc)
            only.insert(argv[++i]);
        else if (a == "--id" && i + 1 < argc)
            id = argv[++i];
        else if (a == "--show" && i + 1 < argc)
            show = atol(argv[++i]);
        else if (path.empty() && a[0] != '-')
            path = a;
        else {
            fprintf(stderr,
                    "usage: parcel_replay [--strict] [--only CLASS]... [--id ID] [--show N] "
                    "[--no-fork] [--keep-log] directed.jsonl\n");
            return 2;
        }
    }
    std::ifstream in(path);
    if (path.empty() || !in) {
        fprintf(stderr, "parcel_replay: cannot read %s\n", path.c_str());
        return 2;
    }
    if (!useFork && !keepLog && !freopen("/dev/null", "w", stderr)) {
    }

    struct Count {
        long same = 0, total = 0, uncovered = 0;
    };
    std::map<Str, Count> by;
    long shown = 0, lineNo = 0, seen = 0;
    Str line;
    long promised = -1;
    while (std::getline(in, line)) {
        lineNo++;
        if (line.compare(0, 13, "{\"sequences\":") == 0) {
            promised = atol(line.c_str() + 13);
            continue;
        }
        Sequence q;
        if (!parseLine(line, &q)) {
            printf("line %ld is damaged\n", lineNo);
            return 2;
        }
        if (!id.empty() && q.id != id) continue;
        seen++;
        Count& c = by[q.cls];
        if (q.aborts && !useFork) {
            c.uncovered++;
            continue;
        }
        c.total++;
        if (!useFork) resetThread();
        const Str d = useFork ? replayForked(q, !id.empty(), keepLog) : replay(q, !id.empty());
        if (d.empty()) {
            c.same++;
            continue;
        }
        if (d == kBeyondSizeT) {
            printf("%s (%s): not covered, %s\n", q.id.c_str(), q.cls.c_str(), d.c_str());
            c.uncovered++;
            c.total--;
            continue;
        }
        if (shown++ < show) printf("%s (%s): %s\n", q.id.c_str(), q.cls.c_str(), d.c_str());
    }
    if (promised != lineNo - 1) {
        printf("the file is shortened or lengthened: %ld sequences, %ld promised\n", lineNo - 1,
               promised);
        return 2;
    }
    if (seen == 0) {
        printf("no sequence in %s\n", path.c_str());
        return 2;
    }
    if (shown > show) printf("... and %ld more that differ\n", shown - show);
    long P = 0, T = 0;
    for (auto& e : by) {
        const bool aside = e.first == "quirk" || e.first == "residue";
        const bool counted =
                !id.empty() || (only.empty() ? strict || !aside : only.count(e.first) > 0);
        printf("class %-8s %ld of %ld identical", e.first.c_str(), e.second.same, e.second.total);
        if (e.second.uncovered) printf(", %ld not covered", e.second.uncovered);
        printf("%s\n", counted ? "" : " (not counted)");
        if (counted) {
            P += e.second.same;
            T += e.second.total;
        }
    }
    printf("parcel: %ld of %ld sequences identical to Android 13\n", P, T);
    return P == T && T > 0 ? 0 : 1;
}
