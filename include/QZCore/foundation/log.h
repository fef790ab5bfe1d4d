// The log: one function, one line a call.
//
// Lines go to the system log, or to the standard error output when the
// process runs in a terminal. An application or a test can receive them
// instead. Every function may be called from any thread.
#pragma once

#include <memory>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// Receives the log lines of the process.
class QZ_EXPORT LogSink {
public:
    virtual ~LogSink();

    /// Takes one line, without its line end. Called from whichever thread
    /// logs, possibly from several at once.
    virtual void write(StringView line) = 0;
};

/// Writes one line to the current sink.
QZ_EXPORT void logLine(StringView line);

/// Makes `sink` the receiver of all later lines and returns the one before.
/// An empty pointer stands for the default receiver, in both directions.
QZ_EXPORT std::shared_ptr<LogSink> setLogSink(std::shared_ptr<LogSink> sink);

}  // namespace QZCore
