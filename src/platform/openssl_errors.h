// The queue of errors that OpenSSL keeps for each thread.
#pragma once

#include <openssl/err.h>

namespace QZCore {

/// Takes back what is added to the queue while it lives: the application's own
/// errors stay, and it never finds ours.
class QuietErrors {
public:
    QuietErrors() { ERR_set_mark(); }
    ~QuietErrors() { ERR_pop_to_mark(); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;
};

}  // namespace QZCore
