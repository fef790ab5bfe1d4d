// A caller that knows nothing but the installed library: it calls into it,
// is called back by it, and meets its own types again behind a Value.
#include <QZCore/codecs.h>
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

    // What stands on libraries below, which a static library leaves to be linked.
    const QZCore::Data bytes{1, 2, 3};
    const auto sealed = QZCore::dataSealedAES256WithPassword(bytes, u"tea");
    const auto packed = QZCore::compressBZip2(bytes);

    const bool works = sink->line == u"caf\u00E9" && drink != nullptr &&
                       drink->string() != nullptr && *drink->string() == u"tea" && sealed &&
                       QZCore::dataWithBZip2Data(packed) == bytes;
    return works ? 0 : 1;
}
