#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "password.h"

namespace qznote {
namespace {

volatile std::sig_atomic_t caught = 0;

void remember(int signal) { caught = signal; }

/// Holds the signals that end or stop a process while it lives: they come only
/// while input is awaited, end that, and do what they do afterwards.
class HeldSignals {
public:
    HeldSignals() {
        caught = 0;
        struct sigaction action {};
        action.sa_handler = remember;
        sigset_t held;
        ::sigemptyset(&held);
        for (const int signal : kSignals) ::sigaddset(&held, signal);
        ::sigprocmask(SIG_BLOCK, &held, &maskBefore_);
        for (std::size_t i = 0; i < kSignals.size(); ++i)
            ::sigaction(kSignals[i], &action, &before_[i]);
    }
    ~HeldSignals() {
        for (std::size_t i = 0; i < kSignals.size(); ++i)
            ::sigaction(kSignals[i], &before_[i], nullptr);
        ::sigprocmask(SIG_SETMASK, &maskBefore_, nullptr);
        if (caught != 0) ::raise(caught);
    }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

    /// Whether there is a line to read, and no signal has come before it.
    [[nodiscard]] bool awaitLine(int terminal) const {
        pollfd awaited{terminal, POLLIN, 0};
        return ::ppoll(&awaited, 1, nullptr, &maskBefore_) == 1;
    }

private:
    static constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};
    std::array<struct sigaction, kSignals.size()> before_{};
    sigset_t maskBefore_{};
};

/// Keeps the terminal from showing what is typed while it lives.
class HiddenTyping {
public:
    explicit HiddenTyping(int terminal) : terminal_(terminal) {
        isHidden_ = ::tcgetattr(terminal_, &before_) == 0;
        termios hidden = before_;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        isHidden_ = isHidden_ && ::tcsetattr(terminal_, TCSAFLUSH, &hidden) == 0;
    }
    ~HiddenTyping() {
        if (isHidden_) ::tcsetattr(terminal_, TCSAFLUSH, &before_);
    }
    HiddenTyping(const HiddenTyping&) = delete;
    HiddenTyping& operator=(const HiddenTyping&) = delete;

    [[nodiscard]] bool isHidden() const { return isHidden_; }

private:
    int terminal_;
    termios before_{};
    bool isHidden_ = false;
};

/// The terminal of the process, whatever its standard streams are.
class OwnTerminal {
public:
    OwnTerminal() : descriptor_(::open("/dev/tty", O_RDWR | O_CLOEXEC)) {}
    ~OwnTerminal() {
        if (isThere()) ::close(descriptor_);
    }
    OwnTerminal(const OwnTerminal&) = delete;
    OwnTerminal& operator=(const OwnTerminal&) = delete;

    [[nodiscard]] bool isThere() const { return descriptor_ >= 0; }
    [[nodiscard]] int descriptor() const { return descriptor_; }
    [[nodiscard]] bool show(std::string_view text) const {
        return ::write(descriptor_, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    }

private:
    int descriptor_;
};

}  // namespace

std::optional<Password> askForPassword(std::string_view prompt) {
    const OwnTerminal terminal;
    if (!terminal.isThere()) return std::nullopt;
    const HeldSignals held;
    const HiddenTyping typing(terminal.descriptor());
    if (!typing.isHidden() || !terminal.show(prompt)) return std::nullopt;
    if (!held.awaitLine(terminal.descriptor())) return std::nullopt;
    auto password = readPassword(terminal.descriptor());
    if (!terminal.show("\n")) return std::nullopt;
    return password;
}

}  // namespace qznote
