// Compiled, not run, by scripts/check-arm32 for the device's architecture: what applications rely
// on in the layout of the plain records.

#include <tarn/Controllers.h>

#include <cstddef>

using android::AvSignalFormat;
using android::PresetColorTempValues;
using android::SoundScreenAngle;
using android::TouchLogicalCoordinates;
using android::TouchPoint;
using android::TouchRect;

static_assert(sizeof(void*) == 4, "the device is a 32-bit machine");

static_assert(sizeof(TouchPoint) == 12);
static_assert(offsetof(TouchPoint, extra) == 0);
static_assert(offsetof(TouchPoint, x) == 4);
static_assert(offsetof(TouchPoint, y) == 8);

static_assert(sizeof(TouchRect) == 28);
static_assert(offsetof(TouchRect, id) == 0);
static_assert(offsetof(TouchRect, start) == 4);
static_assert(offsetof(TouchRect, end) == 16);

static_assert(sizeof(TouchLogicalCoordinates) == 8);
static_assert(sizeof(PresetColorTempValues) == 12);
static_assert(sizeof(SoundScreenAngle) == 8);

// A run of flags shares a word.
static_assert(offsetof(AvSignalFormat, item4) == 12);
static_assert(offsetof(AvSignalFormat, item7) == 16);
static_assert(offsetof(AvSignalFormat, item10) == 28);
static_assert(offsetof(AvSignalFormat, item11) == 32);
static_assert(offsetof(AvSignalFormat, item15) == 48);
static_assert(sizeof(AvSignalFormat) == 52);

static_assert(sizeof(android::_EunmAvCtrlHdmiout_) == 32);

static_assert(sizeof(EntityFwInfoMcu) == 4 + 4 + 256 + 4 + 256 + 4 + 256 + 256 + 64 + 4);
static_assert(offsetof(EntityFwInfoMcu, strField1) == 8);
static_assert(offsetof(EntityFwInfoMcu, strField2) == 268);
static_assert(offsetof(EntityFwInfoMcu, strField3) == 528);
static_assert(offsetof(EntityFwInfoMcu, shortStrField) == 1040);
static_assert(offsetof(EntityFwInfoMcu, intField5) == 1104);
