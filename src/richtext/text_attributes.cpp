#include "QZCore/richtext/text_attributes.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <unordered_set>
#include <utility>

#include "foundation/hash.h"
#include "model/release.h"
#include "richtext/attribute_names.h"

namespace QZCore {

/// One stored set, with the well-known attributes found ahead.
struct TextAttributes::Node {
    std::vector<TextAttribute> entries;
    std::size_t hash = 0;
    const Font* font = nullptr;
    const Color* foregroundColor = nullptr;
    const Color* backgroundColor = nullptr;
    const ParagraphStyle* paragraphStyle = nullptr;
    const TextAttachment* attachment = nullptr;
    const Value* link = nullptr;
    std::int32_t underlineStyle = 0;
    std::int32_t strikethroughStyle = 0;
    bool mayNest = false;  // there may be texts with attributes among the values
    std::atomic<std::size_t> references = 1;
    Node* next = nullptr;  // in the same bucket of the table
};

namespace {

bool isNaN(const Value& value) {
    return value.kind() == ValueKind::Real && std::isnan(value.doubleValue());
}

/// What one attribute adds to the hash of a set. The hash is a sum, so that it
/// follows from another set's when one attribute changes.
std::size_t hashShare(const TextAttribute& entry) {
    const auto name = reinterpret_cast<std::uintptr_t>(&entry.name.text());  // stored once
    return hashCombine(name, isNaN(entry.value) ? 0 : entry.value.hash());
}

std::size_t hashOfEntries(const std::vector<TextAttribute>& entries) {
    std::size_t sum = 0;
    for (const TextAttribute& entry : entries) sum += hashShare(entry);
    return sum;
}

const String& nameOf(const TextAttribute& entry) { return entry.name.text(); }

/// Whether one may be stored in place of the other. Colours keep which fixed
/// colour they are, although that does not count when they are compared; and
/// one not-a-number is as good as another.
bool interchangeable(const Value& a, const Value& b) {
    if (a.isIdentical(b)) return true;
    if (isNaN(a) && isNaN(b)) return true;
    const Color* left = a.boxedValue<Color>();
    const Color* right = b.boxedValue<Color>();
    return left != nullptr && right != nullptr ? left->isIdenticalTo(*right) : a == b;
}

bool equalEntries(const TextAttribute& a, const TextAttribute& b) {
    return a.name == b.name && interchangeable(a.value, b.value);
}

/// The entries of a set that does not exist yet: those of another one with the
/// entry of one name put in, replaced or taken out.
class ChangedEntries {
public:
    ChangedEntries(const std::vector<TextAttribute>& before, const TextAttribute& change)
        : before_(before), change_(change), adds_(!change.value.isAbsent()) {
        while (at_ < before.size() && nameOf(before[at_]) < nameOf(change)) ++at_;
        replaces_ = at_ < before.size() && before[at_].name == change.name;
    }

    [[nodiscard]] std::size_t size() const {
        return before_.size() + (adds_ ? 1 : 0) - (replaces_ ? 1 : 0);
    }

    [[nodiscard]] const TextAttribute& operator[](std::size_t index) const {
        if (index < at_) return before_[index];
        if (adds_ && index == at_) return change_;
        return before_[index - (adds_ ? 1 : 0) + (replaces_ ? 1 : 0)];
    }

    /// What the change adds to the hash of the set.
    [[nodiscard]] std::size_t hashDifference() const {
        return (adds_ ? hashShare(change_) : 0) - (replaces_ ? hashShare(before_[at_]) : 0);
    }

private:
    const std::vector<TextAttribute>& before_;
    const TextAttribute& change_;
    bool adds_;
    bool replaces_ = false;
    std::size_t at_ = 0;
};

/// Sorted by name, the last of each name, without absent values.
void normalise(std::vector<TextAttribute>& entries) {
    if (!std::ranges::is_sorted(entries, {}, nameOf)) {
        std::ranges::stable_sort(entries, {}, nameOf);
    }
    // Of equal names the first in reverse order is the last.
    const auto kept = std::unique(entries.rbegin(), entries.rend(),
                                  [](const auto& a, const auto& b) { return a.name == b.name; });
    entries.erase(entries.begin(), kept.base());
    std::erase_if(entries, [](const TextAttribute& entry) { return entry.value.isAbsent(); });
}

}  // namespace

/// The sets that exist. Only a thread that holds the lock may take the last
/// reference away, so that a set found here stays.
struct TextAttributes::Table {
    static Table& shared() {
        static Table& table = *new Table;
        return table;
    }

    /// The set of `entries`, which are sorted and whose hash is `hash`. Takes
    /// what is there; copies or moves the entries only into a new set.
    template <class Entries>
    Node* nodeFor(Entries&& entries, std::size_t hash) {
        if (entries.size() == 0) return nullptr;
        const std::lock_guard lock(mutex_);
        if (Node* known = find(entries, hash)) {
            known->references.fetch_add(1, std::memory_order_relaxed);
            return known;
        }
        if (++count_ > buckets_.size()) grow();
        Node* node = make(listOf(std::forward<Entries>(entries)), hash);
        node->next = std::exchange(bucketOf(hash), node);
        return node;
    }

    void releaseLast(Node* node) {
        std::unique_lock lock(mutex_);
        if (node->references.fetch_sub(1, std::memory_order_acq_rel) > 1) return;
        Node** at = &bucketOf(node->hash);
        while (*at != node) at = &(*at)->next;
        *at = node->next;
        --count_;
        lock.unlock();
        std::unique_ptr<Node> released(node);
        if (released->mayNest) Release<std::unique_ptr<Node>>::later(std::move(released));
    }

private:
    template <class Entries>
    Node* find(const Entries& entries, std::size_t hash) {
        for (Node* node = bucketOf(hash); node != nullptr; node = node->next) {
            if (node->hash != hash || node->entries.size() != entries.size()) continue;
            std::size_t equal = 0;
            while (equal < entries.size() && equalEntries(node->entries[equal], entries[equal])) {
                ++equal;
            }
            if (equal == entries.size()) return node;
        }
        return nullptr;
    }

    static std::vector<TextAttribute> listOf(std::vector<TextAttribute>&& entries) {
        return std::move(entries);
    }
    static std::vector<TextAttribute> listOf(const ChangedEntries& entries) {
        std::vector<TextAttribute> list;
        list.reserve(entries.size());
        for (std::size_t i = 0; i < entries.size(); ++i) list.push_back(entries[i]);
        return list;
    }

    static Node* make(std::vector<TextAttribute> entries, std::size_t hash) {
        auto* node = new Node;
        node->entries = std::move(entries);
        node->hash = hash;
        for (const TextAttribute& entry : node->entries) note(*node, entry);
        node->mayNest = mayNest(*node);
        return node;
    }

    /// Whether the values are more than scalars, texts and the well-known
    /// objects.
    static bool mayNest(const Node& node) {
        const std::ptrdiff_t wellKnown =
            (node.font != nullptr) + (node.foregroundColor != nullptr) +
            (node.backgroundColor != nullptr) + (node.paragraphStyle != nullptr) +
            (node.attachment != nullptr);
        const auto holdsOthers = [](const TextAttribute& entry) {
            return entry.value.kind() >= ValueKind::List;
        };
        return std::ranges::count_if(node.entries, holdsOthers) > wellKnown;
    }

    static void note(Node& node, const TextAttribute& entry) {
        const AttributeNames& names = attributeNames();
        const Value& value = entry.value;
        if (entry.name == names.font) {
            node.font = value.boxedValue<Font>();
        } else if (entry.name == names.foregroundColor) {
            node.foregroundColor = value.boxedValue<Color>();
        } else if (entry.name == names.backgroundColor) {
            node.backgroundColor = value.boxedValue<Color>();
        } else if (entry.name == names.paragraphStyle) {
            node.paragraphStyle = value.boxedValue<ParagraphStyle>();
        } else if (entry.name == names.attachment) {
            node.attachment = value.boxedValue<TextAttachment>();
        } else if (entry.name == names.link) {
            node.link = &value;
        } else if (entry.name == names.underlineStyle) {
            node.underlineStyle = value.intValue();
        } else if (entry.name == names.strikethroughStyle) {
            node.strikethroughStyle = value.intValue();
        }
    }

    Node*& bucketOf(std::size_t hash) { return buckets_[hash & (buckets_.size() - 1)]; }

    void grow() {
        std::vector<Node*> old(buckets_.size() * 2);
        old.swap(buckets_);
        for (Node* node : old) {
            while (node != nullptr) {
                Node* const next = std::exchange(node->next, bucketOf(node->hash));
                bucketOf(node->hash) = node;
                node = next;
            }
        }
    }

    std::mutex mutex_;
    std::size_t count_ = 0;
    // As many as a power of two; each is a list of the sets whose hash ends in
    // its number.
    std::vector<Node*> buckets_ = std::vector<Node*>(256);
};

AttributeName::AttributeName(StringView text) {
    static auto& names = *new std::unordered_set<String>;
    static std::mutex& mutex = *new std::mutex;
    const std::lock_guard lock(mutex);
    text_ = &*names.emplace(text).first;
}

TextAttributes::TextAttributes(std::initializer_list<TextAttribute> attributes)
    : TextAttributes(std::vector<TextAttribute>(attributes)) {}

TextAttributes::TextAttributes(std::vector<TextAttribute> attributes) {
    normalise(attributes);
    const std::size_t hash = hashOfEntries(attributes);
    node_ = Table::shared().nodeFor(std::move(attributes), hash);
}

TextAttributes::TextAttributes(const TextAttributes& other) noexcept : node_(other.node_) {
    if (node_ != nullptr) node_->references.fetch_add(1, std::memory_order_relaxed);
}

TextAttributes::TextAttributes(TextAttributes&& other) noexcept
    : node_(std::exchange(other.node_, nullptr)) {}

TextAttributes& TextAttributes::operator=(const TextAttributes& other) noexcept {
    TextAttributes copy(other);
    std::swap(node_, copy.node_);
    return *this;
}

TextAttributes& TextAttributes::operator=(TextAttributes&& other) noexcept {
    std::swap(node_, other.node_);
    return *this;
}

TextAttributes::~TextAttributes() {
    if (node_ == nullptr) return;
    std::size_t references = node_->references.load(std::memory_order_relaxed);
    while (references > 1) {
        if (node_->references.compare_exchange_weak(references, references - 1,
                                                    std::memory_order_acq_rel)) {
            return;
        }
    }
    Table::shared().releaseLast(node_);
}

const std::vector<TextAttribute>& TextAttributes::entries() const {
    static const auto& none = *new std::vector<TextAttribute>;
    return node_ == nullptr ? none : node_->entries;
}

const Value* TextAttributes::find(StringView name) const {
    for (const TextAttribute& entry : entries()) {
        if (entry.name == name) return &entry.value;
    }
    return nullptr;
}

Value TextAttributes::objectForKey(StringView name) const {
    const Value* value = find(name);
    return value == nullptr ? Value() : *value;
}

const Font* TextAttributes::font() const { return node_ == nullptr ? nullptr : node_->font; }

const Color* TextAttributes::foregroundColor() const {
    return node_ == nullptr ? nullptr : node_->foregroundColor;
}

const Color* TextAttributes::backgroundColor() const {
    return node_ == nullptr ? nullptr : node_->backgroundColor;
}

const ParagraphStyle* TextAttributes::paragraphStyle() const {
    return node_ == nullptr ? nullptr : node_->paragraphStyle;
}

const TextAttachment* TextAttributes::attachment() const {
    return node_ == nullptr ? nullptr : node_->attachment;
}

const Value* TextAttributes::link() const { return node_ == nullptr ? nullptr : node_->link; }

std::int32_t TextAttributes::underlineStyle() const {
    return node_ == nullptr ? 0 : node_->underlineStyle;
}

std::int32_t TextAttributes::strikethroughStyle() const {
    return node_ == nullptr ? 0 : node_->strikethroughStyle;
}

TextAttributes TextAttributes::withAttribute(AttributeName name, const Value& value) const {
    const TextAttribute change{name, value};
    const ChangedEntries changed(entries(), change);
    const std::size_t before = node_ == nullptr ? 0 : node_->hash;
    return TextAttributes(Table::shared().nodeFor(changed, before + changed.hashDifference()));
}

TextAttributes TextAttributes::withoutAttribute(StringView name) const {
    return find(name) == nullptr ? *this : withAttribute(name, Value());
}

TextAttributes TextAttributes::mergedWith(const TextAttributes& other) const {
    if (empty()) return other;
    if (other.empty()) return *this;
    std::vector<TextAttribute> merged;
    merged.reserve(entries().size() + other.entries().size());
    std::size_t hash = node_->hash + other.node_->hash;
    auto added = other.entries().begin();
    const auto end = other.entries().end();
    for (const TextAttribute& own : entries()) {
        while (added != end && nameOf(*added) < nameOf(own)) merged.push_back(*added++);
        if (added != end && added->name == own.name) {
            hash -= hashShare(own);
        } else {
            merged.push_back(own);
        }
    }
    merged.insert(merged.end(), added, end);
    return TextAttributes(Table::shared().nodeFor(std::move(merged), hash));
}

TextAttributes TextAttributes::intersectedWith(const TextAttributes& other) const {
    if (*this == other) return *this;
    std::vector<TextAttribute> common;
    auto candidate = other.entries().begin();
    for (const TextAttribute& own : entries()) {
        while (candidate != other.entries().end() && nameOf(*candidate) < nameOf(own)) ++candidate;
        if (candidate == other.entries().end()) break;
        if (equalEntries(own, *candidate)) common.push_back(own);
    }
    return TextAttributes(std::move(common));
}

TextAttributes TextAttributes::textAttributesByRemovingLinkAttributes() const {
    if (link() == nullptr) return *this;
    std::vector<TextAttribute> kept = entries();
    std::erase_if(kept, [](const TextAttribute& entry) {
        return entry.name == NSLinkAttributeName || entry.name == NSForegroundColorAttributeName ||
               entry.name == NSUnderlineStyleAttributeName;
    });
    return TextAttributes(std::move(kept));
}

}  // namespace QZCore
