#include "platform/call_stack.h"

#include "support/printing.h"

namespace QZCore {
namespace {

struct Stacks {
    String fromCaller;
    String whole;
};

[[gnu::noinline]] Stacks stacksHere() {
    return {callStackFrom(__builtin_return_address(0)), callStackFrom(nullptr)};
}

}  // namespace

TEST_CASE("a call stack begins at the caller that was asked for and ends at the start") {
    const Stacks stacks = stacksHere();
    CAPTURE(stacks.whole);
    CHECK(stacks.fromCaller.starts_with(u"platform_test"));
    CHECK(stacks.fromCaller.find(u" <- libc.so.6 __libc_start_main") != String::npos);
    CHECK(stacks.whole.ends_with(u" <- " + stacks.fromCaller));
    CHECK(stacks.whole.find(u'/') == String::npos);
}

}  // namespace QZCore
