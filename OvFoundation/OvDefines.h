// Marks what the libraries export: functions and constants that a host may use.
// Everything that is not marked, and every class without a public header, stays
// inside its library.

#ifndef OV_DEFINES_H
#define OV_DEFINES_H

#ifdef __cplusplus
#define OV_EXPORT extern "C" __attribute__((visibility("default")))
#else
#define OV_EXPORT extern __attribute__((visibility("default")))
#endif

#endif
