#pragma once

// The mark that an interface token carries, as the bytes of a parcel in hexadecimal: which
// partition the writer was built for. The device's build sets __ANDROID_VNDK__ for a vendor's
// variant.
#ifdef __ANDROID_VNDK__
#define TOKEN_MARK "52444e56"  // "VNDR"
#else
#define TOKEN_MARK "54535953"  // "SYST"
#endif
