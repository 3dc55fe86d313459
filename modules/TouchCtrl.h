#pragma once

#include <tarn/ITouchCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class TouchCtrl : public ITouchCtrl {
  public:
    explicit TouchCtrl(const sp<TarnManager>& manager);

    int getMouseFadeState() override;
    bool setMouseFadeState(int state) override;
    String16 getMouseFadeBlacklist() override;
    bool setMouseFadeBlacklist(String16 applications) override;
    bool addMouseFadeBlacklist(String16 application) override;
    bool deleteMouseFadeBlacklist(String16 application) override;
    int getPenNum() override;
    bool setPenNum(int number) override;
    String16 getPenType() override;
    bool setPenType(String16 type) override;
    bool dumpTouchDebugInfo() override;
    bool setTouchBrushMode(int mode) override;
    int getTouchBrushMode() override;
    bool setTouchBurnMode() override;
    int getTouchBurnMode() override;
    int getTouchStaCheck() override;
    bool setCapTouchReset() override;
    String16 getParameter(String16 key) override;
    bool setParameter(String16 key, String16 value) override;
    int getMaxSupportedNoTouchAreas() override;
    int getNoTouchAreaId() override;
    bool addNoTouchArea(TouchRect area) override;
    bool removeNoTouchArea(int id) override;
    bool setOutTouchState(int state) override;
    int getOutTouchState() override;
    String16 getTouchVersion() override;
    bool setSourceTouchRect(TouchRect rect, int value0, int value1, int value2) override;
    bool setSourceRectOffset(TouchRect rect, int value) override;
    bool clearSourceTouchRect(int source) override;
    std::vector<TouchRect> getAllNoTouchAreas() override;
    String16 getHidMode() override;
    bool setHidMode(String16 mode) override;
    bool getLogicalTouchRange(TouchLogicalCoordinates* range) override;
    int SetSmallMode(int mode, int count, int* values) override;
    bool setPIPSourceTouchRect(TouchRect rect, int value0, int value1, int value2) override;
    bool setPalmRejectionEnable(bool on) override;
    bool isPalmRejectionEnable() override;
    bool setTouchPressMode(int mode) override;
    int getTouchPressMode() override;
    bool sendPcKeyEvent(EnumPcKeyEventAction action, int value0, int value1) override;
    bool setAndroidForbiddenState(int state) override;
    bool getAndroidForbiddenState() override;
    bool setTouchSmoothingFliter(int filter) override;
    int getTouchSmoothingFliter() override;
    bool setTouchStateDisabled(bool disabled) override;
    bool getTouchStateDisabled() override;
    int getTouchAreaRecognitionMethod() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
