// Random values of every kind that a property list holds.
#pragma once

#include <bit>
#include <cmath>
#include <random>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"

namespace QZCore::testing {

/// Makes trees; the same ones for the same seed.
class RandomValues {
public:
    explicit RandomValues(unsigned seed) : random_(seed) {}

    /// A tree of at most `depth` levels of containers.
    Value tree(int depth) {
        const std::uint64_t kind = upTo(depth > 0 ? 9 : 7);
        if (kind == 8) return array(depth);
        if (kind == 9) return dictionary(depth);
        return scalar(kind);
    }

    /// A number from 0 to `most`.
    std::uint64_t upTo(std::uint64_t most) {
        return std::uniform_int_distribution<std::uint64_t>(0, most)(random_);
    }

    /// A short text that any format has to take care of.
    String text() {
        static constexpr StringView kPieces[] = {
            u"a",  u" ", u"\t", u"\n",         u"\r",     u"\r\n",   u"&",   u"<", u">",
            u"\"", u"é", u"日", u"\U0001F600", u"\uFFFD", u"\u0085", u"]]>", u"0", u"\uFEFF"};
        String made;
        for (std::uint64_t left = upTo(20); left > 0; --left) {
            made += kPieces[upTo(std::size(kPieces) - 1)];
        }
        return made;
    }

private:
    Value scalar(std::uint64_t kind) {
        switch (kind) {
            case 0:
                return upTo(1) == 1;
            case 1:
                return static_cast<std::int64_t>(random_());
            case 2:
                return random_() >> upTo(63);
            case 3:
                return real();
            case 4:
                return Date{static_cast<double>(upTo(1'000'000'000'000)) - 500'000'000'000};
            case 5:
                return data();
            default:
                return text();
        }
    }

    Value real() {
        static constexpr double kSpecial[] = {0.0, -0.0, 0.1, 1e22, 5e-324, HUGE_VAL, -HUGE_VAL};
        const auto any = std::bit_cast<double>(random_());
        return std::isnan(any) || upTo(3) == 0 ? kSpecial[upTo(std::size(kSpecial) - 1)] : any;
    }

    Data data() {
        Data made(upTo(40));
        for (std::uint8_t& byte : made) byte = static_cast<std::uint8_t>(random_());
        return made;
    }

    Value array(int depth) {
        Array made;
        for (std::uint64_t left = upTo(6); left > 0; --left) made.push_back(tree(depth - 1));
        return made;
    }

    Value dictionary(int depth) {
        Dictionary made;
        for (std::uint64_t left = upTo(12); left > 0; --left) {
            made.setObject(tree(depth - 1), text());
        }
        return made;
    }

    std::mt19937_64 random_;
};

}  // namespace QZCore::testing
