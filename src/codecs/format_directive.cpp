#include "codecs/format_directive.h"

#include <algorithm>

namespace QZCore {
namespace {

constexpr std::size_t kMostDigits = 1000;
constexpr StringView kLengths = u"hlqjztL";
constexpr StringView kConversions = u"@dDiuUxXoOfFeEgGaAcCsSp%";

class DirectiveReader {
public:
    explicit DirectiveReader(StringView format) : format_(format) {}

    std::optional<FormatDirective> read() {
        readPosition();
        while (readFlag()) {
        }
        directive_.width = readCount();
        if (skip(u'.')) directive_.precision = readCount();
        while (at_ < format_.size() && kLengths.find(format_[at_]) != kLengths.npos) ++at_;
        if (at_ == format_.size() || kConversions.find(format_[at_]) == kConversions.npos)
            return std::nullopt;
        directive_.conversion = format_[at_++];
        directive_.length = at_;
        return directive_;
    }

private:
    bool skip(char16_t unit) {
        const bool found = at_ < format_.size() && format_[at_] == unit;
        at_ += found ? 1 : 0;
        return found;
    }

    std::size_t readDigits() {
        std::size_t number = 0;
        for (; at_ < format_.size() && format_[at_] >= u'0' && format_[at_] <= u'9'; ++at_) {
            number = std::min(number * 10 + (format_[at_] - u'0'), kMostDigits);
        }
        return number;
    }

    /// A number in front of "$"; any other is left to be a width.
    void readPosition() {
        const std::size_t start = at_;
        directive_.position = readDigits();
        if (directive_.position > 0 && skip(u'$')) return;
        directive_.position = 0;
        at_ = start;
    }

    bool readFlag() {
        if (skip(u'-')) return directive_.isLeft = true;
        if (skip(u'+')) return directive_.showsPlus = true;
        if (skip(u' ')) return directive_.showsSpace = true;
        if (skip(u'#')) return directive_.isAlternate = true;
        if (skip(u'0')) return directive_.hasZeros = true;
        return false;
    }

    FormatDirective::Count readCount() {
        if (skip(u'*')) return {0, true};
        return {readDigits(), false};
    }

    StringView format_;
    std::size_t at_ = 1;
    FormatDirective directive_;
};

}  // namespace

std::optional<FormatDirective> readFormatDirective(StringView format) {
    return DirectiveReader(format).read();
}

}  // namespace QZCore
