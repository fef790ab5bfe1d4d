// Captures the log lines of a test.
#pragma once

#include <mutex>
#include <vector>

#include "QZCore/foundation/log.h"

namespace QZCore::testing {

/// Receives every log line while it lives.
class LogCapture {
public:
    LogCapture() : sink_(std::make_shared<Sink>()), before_(setLogSink(sink_)) {}
    ~LogCapture() { setLogSink(before_); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// The lines so far.
    [[nodiscard]] std::vector<String> lines() const {
        const std::lock_guard lock(sink_->mutex);
        return sink_->lines;
    }

private:
    struct Sink final : LogSink {
        void write(StringView line) override {
            const std::lock_guard lock(mutex);
            lines.emplace_back(line);
        }
        std::mutex mutex;
        std::vector<String> lines;
    };

    std::shared_ptr<Sink> sink_;
    std::shared_ptr<LogSink> before_;
};

}  // namespace QZCore::testing
