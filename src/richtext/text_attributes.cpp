#include "QZCore/richtext/text_attributes.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <mutex>
#include <unordered_set>
#include <utility>

#include "foundation/hash.h"

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
    std::atomic<std::size_t> references = 1;
    Node* next = nullptr;  // in the same bucket of the table
};

namespace {

/// What one attribute adds to the hash of a set. The hash is a sum, so that it
/// follows from another set's when one attribute changes.
std::size_t hashShare(const TextAttribute& entry) {
    const auto name = reinterpret_cast<std::uintptr_t>(&entry.name.text());  // stored once
    return hashCombine(name, entry.value.hash());
}

std::size_t hashOfEntries(const std::vector<TextAttribute>& entries) {
    std::size_t sum = 0;
    for (const TextAttribute& entry : entries) sum += hashShare(entry);
    return sum;
}

const String& nameOf(const TextAttribute& entry) { return entry.name.text(); }

/// Whether one may be stored in place of the other. Colours keep which fixed
/// colour they are, although that does not count when they are compared.
bool interchangeable(const Value& a, const Value& b) {
    const Color* left = a.boxedValue<Color>();
    const Color* right = b.boxedValue<Color>();
    return left != nullptr && right != nullptr ? left->isIdenticalTo(*right) : a == b;
}

bool equalEntries(const std::vector<TextAttribute>& a, const std::vector<TextAttribute>& b) {
    return std::ranges::equal(a, b, [](const TextAttribute& left, const TextAttribute& right) {
        return left.name == right.name && interchangeable(left.value, right.value);
    });
}

/// Sorted by name, the last of each name, without absent values.
void normalise(std::vector<TextAttribute>& entries) {
    std::ranges::stable_sort(entries, {}, nameOf);
    std::vector<TextAttribute> kept;
    kept.reserve(entries.size());
    for (TextAttribute& entry : entries) {
        if (!kept.empty() && kept.back().name == entry.name) kept.pop_back();
        kept.push_back(std::move(entry));
    }
    std::erase_if(kept, [](const TextAttribute& entry) { return entry.value.isAbsent(); });
    entries = std::move(kept);
}

}  // namespace

/// The sets that exist. Only a thread that holds the lock may take the last
/// reference away, so that a set found here stays.
struct TextAttributes::Table {
    static Table& shared() {
        static Table& table = *new Table;
        return table;
    }

    Node* nodeFor(std::vector<TextAttribute> entries, std::size_t hash) {
        if (entries.empty()) return nullptr;
        const std::lock_guard lock(mutex_);
        for (Node* node = bucketOf(hash); node != nullptr; node = node->next) {
            if (node->hash != hash || !equalEntries(node->entries, entries)) continue;
            node->references.fetch_add(1, std::memory_order_relaxed);
            return node;
        }
        if (++count_ > buckets_.size()) grow();
        Node* node = make(std::move(entries), hash);
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
        delete node;
    }

private:
    static Node* make(std::vector<TextAttribute> entries, std::size_t hash) {
        auto* node = new Node;
        node->entries = std::move(entries);
        node->hash = hash;
        for (const TextAttribute& entry : node->entries) note(*node, entry);
        return node;
    }

    static void note(Node& node, const TextAttribute& entry) {
        const Value& value = entry.value;
        if (entry.name == NSFontAttributeName) {
            node.font = value.boxedValue<Font>();
        } else if (entry.name == NSForegroundColorAttributeName) {
            node.foregroundColor = value.boxedValue<Color>();
        } else if (entry.name == NSBackgroundColorAttributeName) {
            node.backgroundColor = value.boxedValue<Color>();
        } else if (entry.name == NSParagraphStyleAttributeName) {
            node.paragraphStyle = value.boxedValue<ParagraphStyle>();
        } else if (entry.name == NSAttachmentAttributeName) {
            node.attachment = value.boxedValue<TextAttachment>();
        } else if (entry.name == NSLinkAttributeName) {
            node.link = &value;
        } else if (entry.name == NSUnderlineStyleAttributeName) {
            node.underlineStyle = value.intValue();
        } else if (entry.name == NSStrikethroughStyleAttributeName) {
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

TextAttributes::TextAttributes(std::vector<TextAttribute> sorted, std::size_t hash)
    : node_(Table::shared().nodeFor(std::move(sorted), hash)) {}

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
    std::vector<TextAttribute> changed;
    changed.reserve(entries().size() + 1);
    changed.assign(entries().begin(), entries().end());
    std::size_t hash = node_ == nullptr ? 0 : node_->hash;
    auto at = std::ranges::lower_bound(changed, name.text(), {}, nameOf);
    if (at != changed.end() && at->name == name) {
        hash -= hashShare(*at);
        at = changed.erase(at);
    }
    if (!value.isAbsent()) hash += hashShare(*changed.insert(at, {name, value}));
    return TextAttributes(std::move(changed), hash);
}

TextAttributes TextAttributes::withoutAttribute(StringView name) const {
    return find(name) == nullptr ? *this : withAttribute(name, Value());
}

TextAttributes TextAttributes::mergedWith(const TextAttributes& other) const {
    if (empty()) return other;
    if (other.empty()) return *this;
    std::vector<TextAttribute> merged;
    merged.reserve(entries().size() + other.entries().size());
    // Of two entries with the same name the union takes the first range's.
    std::ranges::set_union(other.entries(), entries(), std::back_inserter(merged), {}, nameOf,
                           nameOf);
    const std::size_t hash = hashOfEntries(merged);
    return TextAttributes(std::move(merged), hash);
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
