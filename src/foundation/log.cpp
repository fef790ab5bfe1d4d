#include "QZCore/foundation/log.h"

#include <syslog.h>
#include <unistd.h>

#include <cstdio>
#include <mutex>
#include <utility>

namespace QZCore {
namespace {

/// The system log, or the terminal when there is one.
class DefaultSink final : public LogSink {
public:
    void write(StringView line) override {
        const std::string text = toUTF8(line);
        if (isatty(STDERR_FILENO) != 0) {
            std::fprintf(stderr, "%s\n", text.c_str());
        } else {
            syslog(LOG_USER | LOG_NOTICE, "%s", text.c_str());
        }
    }
};

struct Current {
    std::mutex mutex;
    std::shared_ptr<LogSink> sink;
    const std::shared_ptr<LogSink> standard = std::make_shared<DefaultSink>();
};

Current& current() {
    static Current& instance = *new Current;
    return instance;
}

}  // namespace

LogSink::~LogSink() = default;

void logLine(StringView line) {
    Current& state = current();
    std::shared_ptr<LogSink> sink;
    {
        const std::lock_guard lock(state.mutex);
        sink = state.sink == nullptr ? state.standard : state.sink;
    }
    sink->write(line);
}

std::shared_ptr<LogSink> setLogSink(std::shared_ptr<LogSink> sink) {
    Current& state = current();
    const std::lock_guard lock(state.mutex);
    return std::exchange(state.sink, std::move(sink));
}

}  // namespace QZCore
