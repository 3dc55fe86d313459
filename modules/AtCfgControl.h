#pragma once

#include <tarn/IAtCfgControl.h>
#include <tarn/TarnManager.h>
#include <utils/Mutex.h>

#include <map>
#include <string>
#include <thread>

namespace android {

class AtCfgControl : public IAtCfgControl {
  public:
    explicit AtCfgControl(const sp<TarnManager>& manager);

    String16 readWidevinevKey() override;
    bool installWidevineKey(String16 keybox) override;
    bool deleteWidevineKey() override;
    String16 readAttestationKey() override;
    bool installAttestationKey(String16 key) override;
    bool deleteAttestationKey() override;
    bool setString(char* key, char* value) override;
    char* getString(char* key) override;
    bool setInteger(char* key, int value) override;
    int getInteger(char* key) override;

  private:
    char* keep(std::string text);

    sp<TarnManager> mTarnMgr;
    Mutex mTextsLock;
    // What getString() handed out last, to each thread its own: no thread's call takes away the
    // text that another one still reads. A text ends with its thread, whose id a later one may get.
    std::map<std::thread::id, std::string> mTexts;
};

}  // namespace android
