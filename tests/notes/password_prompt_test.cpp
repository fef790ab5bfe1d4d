#include <doctest/doctest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include "QZCore/foundation/files.h"
#include "support/temporary_folder.h"

namespace QZCore {
namespace {

struct Conversation {
    std::string shown;
    int status = 0;
};

/// What a terminal shows when the command runs in it and each prompt is answered
/// by the next of `answers`.
Conversation converse(const std::vector<std::string>& arguments,
                      const std::vector<std::string>& answers) {
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        std::vector<char*> rest{const_cast<char*>(QZNOTE_COMMAND)};
        for (const std::string& argument : arguments)
            rest.push_back(const_cast<char*>(argument.c_str()));
        rest.push_back(nullptr);
        ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
        ::execv(QZNOTE_COMMAND, rest.data());
        ::_exit(127);
    }
    REQUIRE(child > 0);
    Conversation all;
    std::size_t answered = 0;
    char byte = 0;
    while (::read(terminal, &byte, 1) == 1) {
        all.shown += byte;
        if (!all.shown.ends_with(": ") || answered == answers.size()) continue;
        const std::string& answer = answers[answered++];
        REQUIRE(::write(terminal, answer.data(), answer.size()) ==
                static_cast<ssize_t>(answer.size()));
    }
    ::close(terminal);
    ::waitpid(child, &all.status, 0);
    return all;
}

}  // namespace

TEST_CASE("the terminal is asked for a password and does not show it") {
    const testing::TemporaryFolder folder;
    const std::string note = folder / "note";
    const std::string sealed = folder / "sealed";
    REQUIRE(writeFileAtomically(note, bytesOf("a note")));
    const std::vector<std::string> seal{"seal", note, "-o", sealed};

    const Conversation twice = converse(seal, {"geheim\n", "geheim\n"});
    CHECK(twice.shown == "Password: \r\nOnce more: \r\n");
    CHECK(WEXITSTATUS(twice.status) == 0);
    CHECK(converse({"open", sealed}, {"geheim\n"}).shown == "Password: \r\na note");

    const std::string refused = "Password: \r\nOnce more: \r\nqznote: cannot read a password\r\n";
    CHECK(converse(seal, {"geheim\n", "gehiem\n"}).shown == refused);
    CHECK(converse({"seal", note}, {}).shown ==
          "qznote: a terminal cannot show a sealed file; use -o FILE\r\n");

    const Conversation interrupted = converse(seal, {"gehe\x03"});
    CHECK(WIFSIGNALED(interrupted.status));
    CHECK(WTERMSIG(interrupted.status) == SIGINT);
}

}  // namespace QZCore
