// Marks what the library exports.
//
// The library is built with hidden visibility; everything that the public
// headers declare carries QZ_EXPORT, and nothing else leaves the library.
#pragma once

/// Gives a declaration default visibility, so that callers can link to it.
#define QZ_EXPORT __attribute__((visibility("default")))
