#include <tarn/TarnManager.h>
#include <utils/String16.h>
#include <utils/String8.h>

namespace android {

namespace {

constexpr int kFailed = -1;

void put(Parcel* request, int value) {
    request->writeInt32(value);
}

void put(Parcel* request, bool value) {
    request->writeBool(value);
}

void put(Parcel* request, const Parcel& args) {
    request->appendFrom(&args, 0, args.dataSize());
}

/** One exchange through the manager's virtual invoke(); returns the status. */
template <typename... Args>
int send(TarnManager* manager, Parcel* reply, int cmd, const Args&... args) {
    Parcel request;
    request.writeInt32(cmd);
    (put(&request, args), ...);
    return manager->invoke(request, reply);
}

template <typename... Args>
int sendForInt(TarnManager* manager, int cmd, const Args&... args) {
    Parcel reply;
    return send(manager, &reply, cmd, args...);
}

template <typename... Args>
bool sendForBool(TarnManager* manager, int cmd, const Args&... args) {
    Parcel reply;
    if (send(manager, &reply, cmd, args...) == kFailed) return false;
    reply.readInt32();
    return reply.readBool();
}

template <typename... Args>
std::string sendForStr(TarnManager* manager, int cmd, const Args&... args) {
    Parcel reply;
    if (send(manager, &reply, cmd, args...) == kFailed) return std::string();
    reply.readInt32();
    const String8 text(reply.readString16());
    return std::string(text.c_str(), text.size());
}

template <typename... Args>
int sendForParcel(TarnManager* manager, Parcel* out, int cmd, const Args&... args) {
    Parcel reply;
    if (send(manager, &reply, cmd, args...) == kFailed) return kFailed;
    if (out != nullptr && reply.dataSize() >= sizeof(int32_t)) {
        out->setData(reply.data() + sizeof(int32_t), reply.dataSize() - sizeof(int32_t));
    }
    return 0;
}

}  // namespace

int TarnManager::exeCmdSet_Int(int cmd) {
    return sendForInt(this, cmd);
}

int TarnManager::exeCmdSet_Int(int cmd, int a) {
    return sendForInt(this, cmd, a);
}

int TarnManager::exeCmdSet_Int(int cmd, bool b) {
    return sendForInt(this, cmd, b);
}

int TarnManager::exeCmdSet_Int(int cmd, int a, int b) {
    return sendForInt(this, cmd, a, b);
}

int TarnManager::exeCmdSet_Int(int cmd, int a, bool b) {
    return sendForInt(this, cmd, a, b);
}

int TarnManager::exeCmdSet_Int(int cmd, int a, int b, int c) {
    return sendForInt(this, cmd, a, b, c);
}

int TarnManager::exeCmdSet_Int(int cmd, const Parcel& args) {
    return sendForInt(this, cmd, args);
}

bool TarnManager::exeCmdSet_Bool(int cmd) {
    return sendForBool(this, cmd);
}

bool TarnManager::exeCmdSet_Bool(int cmd, int a) {
    return sendForBool(this, cmd, a);
}

bool TarnManager::exeCmdSet_Bool(int cmd, bool b) {
    return sendForBool(this, cmd, b);
}

bool TarnManager::exeCmdSet_Bool(int cmd, int a, bool b) {
    return sendForBool(this, cmd, a, b);
}

bool TarnManager::exeCmdSet_Bool(int cmd, int a, int b) {
    return sendForBool(this, cmd, a, b);
}

std::string TarnManager::exeCmdSet_Str(int cmd) {
    return sendForStr(this, cmd);
}

std::string TarnManager::exeCmdSet_Str(int cmd, int a) {
    return sendForStr(this, cmd, a);
}

int TarnManager::exeCmdSet_Parcel(int cmd, Parcel* out) {
    return sendForParcel(this, out, cmd);
}

int TarnManager::exeCmdSet_Parcel(int cmd, const Parcel& args, Parcel* out) {
    return sendForParcel(this, out, cmd, args);
}

int TarnManager::exeCmdSet_Parcel(int cmd, int a, Parcel* out) {
    return sendForParcel(this, out, cmd, a);
}

int TarnManager::exeCmdSet_Parcel(int cmd, int a, int b, Parcel* out) {
    return sendForParcel(this, out, cmd, a, b);
}

int TarnManager::exeCmdSet_Array(int cmd, int* values, int count) {
    // An empty array is a success, not an error.
    if (count < 1 || values == nullptr) return 0;

    Parcel request;
    request.writeInt32(cmd);
    request.writeInt32(count);
    for (int i = 0; i < count; i++) request.writeInt32(values[i]);
    Parcel reply;
    return invoke(request, &reply);
}

}  // namespace android
