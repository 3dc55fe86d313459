#pragma once

/** Marks what libtarn_vendor_api.so exports; everything else in it is hidden. */
#define TARN_EXPORT __attribute__((visibility("default")))
