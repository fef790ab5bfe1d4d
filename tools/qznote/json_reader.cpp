#include "json_reader.h"

#include <nlohmann/json.hpp>
#include <vector>

#include "QZCore/foundation/dictionary.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr std::size_t kDepthLimit = 512;

/// Builds values from the parser's events, without recursion.
class Builder final : public nlohmann::json_sax<nlohmann::json> {
public:
    [[nodiscard]] Value result() const { return result_; }

    bool null() override { return add(Value()); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(number_integer_t value) override { return add(value); }
    bool number_unsigned(number_unsigned_t value) override { return add(value); }
    bool number_float(number_float_t value, const string_t&) override { return add(value); }
    bool string(string_t& value) override { return add(fromUTF8(value)); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(true); }
    bool key(string_t& value) override {
        open_.back().key = fromUTF8(value);
        return true;
    }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(false); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

private:
    struct Container {
        bool isObject;
        String key;
        Dictionary entries;
        Array elements;
    };

    bool open(bool isObject) {
        if (open_.size() == kDepthLimit) return false;
        open_.push_back({isObject, {}, {}, {}});
        return true;
    }

    bool close() {
        Container closed = std::move(open_.back());
        open_.pop_back();
        return closed.isObject ? add(Value(std::move(closed.entries)))
                               : add(Value(std::move(closed.elements)));
    }

    bool add(Value value) {
        if (open_.empty()) {
            result_ = std::move(value);
        } else if (open_.back().isObject) {
            open_.back().entries.setObject(std::move(value), open_.back().key);
        } else if (!value.isAbsent()) {
            open_.back().elements.push_back(std::move(value));
        }
        return true;
    }

    std::vector<Container> open_;
    Value result_;
};

}  // namespace

Value readJson(std::string_view text) {
    Builder builder;
    return nlohmann::json::sax_parse(text, &builder) ? builder.result() : Value();
}

}  // namespace qznote
