#include <csignal>

#include "commands.h"

int main(int argc, char** argv) {
    // A reader that goes away makes writing fail instead of ending the process.
    std::signal(SIGPIPE, SIG_IGN);
    const std::span<const char* const> all(argv, static_cast<std::size_t>(argc));
    return qznote::run(all.empty() ? all : all.subspan(1));
}
