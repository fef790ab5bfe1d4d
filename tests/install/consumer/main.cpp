// A caller that knows nothing but the installed library: it calls into it,
// is called back by it, and meets its own types again behind a Value.
#include <QZCore/foundation.h>
#include <QZCore/platform.h>

namespace {

class LastLine final : public QZCore::LogSink {
public:
    void write(QZCore::StringView written) override { line = written; }
    QZCore::String line;
};

}  // namespace

int main() {
    const auto sink = std::make_shared<LastLine>();
    QZCore::setLogSink(sink);
    QZCore::logLine(QZCore::fromUTF8("caf\xC3\xA9"));

    QZCore::Dictionary notes;
    notes.setObject(QZCore::Value(u"tea"), QZCore::Value(u"drink"));
    const QZCore::Value* drink = notes.find(QZCore::StringView(u"drink"));

    const bool works = sink->line == u"caf\u00E9" && drink != nullptr &&
                       drink->string() != nullptr && *drink->string() == u"tea";
    return works ? 0 : 1;
}
