// Marks what the library exports.
//
// The library is built with hidden visibility; everything that the public
// headers declare carries QZ_EXPORT, and nothing else leaves the library. Plain
// functions on plain values have C linkage besides, so that other languages
// find them under their own names.
#pragma once

/// Gives a declaration default visibility, so that callers can link to it.
#define QZ_EXPORT __attribute__((visibility("default")))

/// Opens declarations with C linkage. The structures that they return are laid
/// out and passed as C does it; Clang warns of them because their members have
/// defaults.
#ifdef __clang__
#define QZ_BEGIN_C                   \
    _Pragma("clang diagnostic push") \
        _Pragma("clang diagnostic ignored \"-Wreturn-type-c-linkage\"") extern "C" {
/// Closes them.
#define QZ_END_C \
    }            \
    _Pragma("clang diagnostic pop")
#else
#define QZ_BEGIN_C extern "C" {
#define QZ_END_C }
#endif
