#include "QZCore/markdown/lists.h"

#include <algorithm>
#include <utility>

#include "QZCore/model/pair.h"
#include "markdown/list_outline.h"
#include "markdown/list_rendering.h"
#include "markdown/list_writer.h"
#include "model/tree_walk.h"

namespace QZCore {
namespace {

/// Joins wrapped lines and returns the plain text.
String joinWrappedLines(RichText& text) {
    const String before = text.string();
    String joined = before;
    QZCore::joinWrappedLines(joined);
    for (std::size_t i = 0; i < joined.size(); ++i) {
        if (joined[i] != before[i]) text.replaceCharactersInRange({i, 1}, joined.substr(i, 1));
    }
    return joined;
}

/// The text that a writer has made.
RichText richTextOf(FlatWriter& writer, AttributePalette palette) {
    std::vector<FlatText> parts(1);
    writer.moveTo(parts.front());
    RichText text;
    FlatTextAccess::replaceContents(text, std::move(parts), std::move(palette));
    return text;
}

/// Writes the items of an outline in the order of a walk through it.
class OutlineWriter {
public:
    /// `start` is where the walk starts.
    OutlineWriter(const QZTreeNode& start, ListLook look, const TextAttributes& prefix,
                  const TextLists& textLists)
        : start_(start),
          level_(start.level()),
          writer_(std::move(look), prefix, textLists, palette_) {}

    /// Adds the node that `walk` came to and returns whether there is room for
    /// more.
    [[nodiscard]] bool add(const QZTreeNode& node, const TreeWalk& walk) {
        Step& step = enter(walk.depth());
        const auto pair = objectIn<QZPair>(node.data());
        if (pair == nullptr) return true;
        const String format = pair->key().stringValue();
        const RichText* value = pair->value().boxedValue<RichText>();
        const std::size_t length = value == nullptr ? 0 : value->length();
        if (!hasFlatForm(out_.text().size() + length + 1)) return false;
        FlatText text;
        if (length > 0) {
            text = FlatTextAccess::flattened(*value, {0, length}, std::move(palette_));
            palette_ = std::move(text.palette);
        }
        ListItem item{.markerFormat = format,
                      .level = static_cast<std::uint32_t>(level_ + walk.depth())};
        setPlace(item, node, walk.from(), step.position);
        RunWalk runs(text.runs);
        writer_.writeItem(item, step.lists, {text.text}, runs, out_);
        step.listsBelow = writer_.pushed(step.lists, format);
        return true;
    }

    [[nodiscard]] RichText result() { return richTextOf(out_, std::move(palette_)); }

private:
    /// A level on the way to the node that is written.
    struct Step {
        std::size_t position = 0;
        std::uint32_t lists = ListWriter::kOutermost;       // around the nodes of the level
        std::uint32_t listsBelow = ListWriter::kOutermost;  // and around their children
    };

    Step& enter(std::size_t depth) {
        const bool isDeeper = depth >= path_.size();
        path_.resize(depth + 1);
        Step& step = path_[depth];
        if (isDeeper && depth > 0) step.lists = path_[depth - 1].listsBelow;
        step.listsBelow = step.lists;
        ++step.position;
        return step;
    }

    void setPlace(ListItem& item, const QZTreeNode& node, const QZTreeNode* from,
                  std::size_t position) const {
        if (from != nullptr) {
            item.position = position;
            item.siblings = from->numberOfChildren();
        } else if (const auto parent = start_.parent(); parent != nullptr) {
            const QZTreeNodes& siblings = parent->children();
            const auto at = std::ranges::find(siblings, &node, &QZTreeNodes::value_type::get);
            item.position = static_cast<std::size_t>(at - siblings.begin()) + 1;
            item.siblings = siblings.size();
        }
    }

    const QZTreeNode& start_;
    std::size_t level_;
    AttributePalette palette_;
    ListWriter writer_;
    FlatWriter out_;
    std::vector<Step> path_;
};

}  // namespace

RichText richTextListFromMarkdown(const RichText& markdown, bool hasTitle,
                                  const StyleSheet& withStyles, const MarkdownSyntax& syntax,
                                  const Preferences& preferences) {
    const MarkdownExpression* listLine = syntax.expressionForKey(kMarkdownListLine);
    if (listLine == nullptr || !hasFlatForm(markdown.length())) return markdown;
    FlatText flat = FlatTextAccess::flattened(markdown, {0, markdown.length()});
    FlatWriter out;
    ListRenderer renderer({withStyles, preferences, *listLine}, flat.palette);
    renderer.write({flat.text}, flat.runs, hasTitle, out);
    return richTextOf(out, std::move(flat.palette));
}

RichText richTextListFromMarkdown(const RichText& markdown, bool hasTitle,
                                  const StyleSheet& withStyles) {
    return richTextListFromMarkdown(markdown, hasTitle, withStyles, allMarkdownRegex(),
                                    Preferences::shared());
}

// The parameters are those of the overload without preferences.
// NOLINTNEXTLINE(readability-function-size)
void richTextListForNode(const QZTreeNode& node, const TextAttributes& withPrefixAttributes,
                         const StyleSheet& withStyles, bool indentFirstLevel,
                         const TextLists& textLists, RichText& intoBuffer,
                         const Preferences& preferences) {
    OutlineWriter writer(node,
                         ListLook(withStyles, preferences, withPrefixAttributes, indentFirstLevel),
                         withPrefixAttributes, textLists);
    TreeWalk walk(node);
    while (const QZTreeNode* next = walk.next()) {
        if (!writer.add(*next, walk)) return;
    }
    intoBuffer.appendAttributedString(writer.result());
}

void richTextListForNode(const QZTreeNode& node, const TextAttributes& withPrefixAttributes,
                         const StyleSheet& withStyles, bool indentFirstLevel,
                         const TextLists& textLists, RichText& intoBuffer) {
    richTextListForNode(node, withPrefixAttributes, withStyles, indentFirstLevel, textLists,
                        intoBuffer, Preferences::shared());
}

std::shared_ptr<QZTreeNode> listOutlineFromMarkdown(const RichText& markdown,
                                                    const MarkdownSyntax& syntax,
                                                    const Preferences& preferences) {
    auto root = QZTreeNode::treeNodeWithData({});
    const MarkdownExpression* listLine = syntax.expressionForKey(kMarkdownListLine);
    if (listLine == nullptr || !hasFlatForm(markdown.length())) return root;
    RichText text = markdown;
    const String list = joinWrappedLines(text);
    ListLineReader reader(*listLine, preferences);
    const std::vector<ListLine>& lines = reader.linesOf(list);
    QZTreeNodes nodes(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const ListLine& line = lines[i];
        if (!line.isItem()) continue;
        const Range range{line.text.start, line.text.end - line.text.start};
        const auto pair = QZPair::pairWithKey(
            line.markerFormat(), Value::boxed(text.attributedSubstringFromRange(range)));
        nodes[i] = QZTreeNode::treeNodeWithData(Value(pair));
        const bool isOutermost = line.parent == kNoListLine;
        (isOutermost ? root : nodes[line.parent])->addChild(nodes[i]);
    }
    return root;
}

std::shared_ptr<QZTreeNode> listOutlineFromMarkdown(const RichText& markdown) {
    return listOutlineFromMarkdown(markdown, allMarkdownRegex(), Preferences::shared());
}

}  // namespace QZCore
