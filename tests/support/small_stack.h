// Runs a piece of a test where recursion cannot go deep.
#pragma once

#include <pthread.h>

#include <doctest/doctest.h>

namespace QZCore::testing {

/// Calls `body` on a thread with a stack of 512 KiB and waits for it.
template <class Body>
void onSmallStack(Body body) {
    constexpr std::size_t kStackSize = 512 * 1024;
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, kStackSize);
    pthread_t thread = 0;
    const auto call = [](void* argument) -> void* {
        (*static_cast<Body*>(argument))();
        return nullptr;
    };
    const int started = pthread_create(&thread, &attributes, call, &body);
    pthread_attr_destroy(&attributes);
    REQUIRE(started == 0);
    pthread_join(thread, nullptr);
}

}  // namespace QZCore::testing
