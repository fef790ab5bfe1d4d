// Expat splits the text into tags and characters and checks that they are
// well-formed XML in UTF-8; what they mean is decided here.

#include <expat.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "foundation/base64.h"
#include "foundation/property_list_builder.h"
#include "foundation/property_list_formats.h"
#include "foundation/property_list_scalars.h"

namespace QZCore {
namespace {

/// What the tags of a list mean.
enum class Element {
    None,
    Root,
    List,
    Dictionary,
    Key,
    Text,
    Integer,
    Real,
    True,
    False,
    Date,
    Bytes
};

struct ElementName {
    std::string_view name;
    Element element;
};

constexpr std::array kElements{
    ElementName{"key", Element::Key},         ElementName{"string", Element::Text},
    ElementName{"integer", Element::Integer}, ElementName{"real", Element::Real},
    ElementName{"true", Element::True},       ElementName{"false", Element::False},
    ElementName{"dict", Element::Dictionary}, ElementName{"array", Element::List},
    ElementName{"data", Element::Bytes},      ElementName{"date", Element::Date},
    ElementName{"plist", Element::Root},
};

Element elementOf(std::string_view name) {
    const auto* found = std::ranges::find(kElements, name, &ElementName::name);
    return found == kElements.end() ? Element::None : found->element;
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\n\r") == std::string_view::npos;
}

/// Follows the tags of one list. At any time it is outside the list, between
/// the elements of a container, or inside an element that holds a text.
class XmlReader {
public:
    XmlReader(XML_Parser parser, PropertyListContainers containers)
        : parser_(parser), builder_(containers) {
        XML_SetUserData(parser, this);
        XML_SetElementHandler(parser, startTag, endTag);
        XML_SetCharacterDataHandler(parser, characters);
        XML_SetXmlDeclHandler(parser, declaration);
        XML_SetStartDoctypeDeclHandler(parser, documentType);
        XML_SetSkippedEntityHandler(parser, skippedEntity);
    }
    XmlReader(const XmlReader&) = delete;
    XmlReader& operator=(const XmlReader&) = delete;

    PropertyListResult read(std::string_view text) {
        constexpr std::size_t kMostAtOnce = 1U << 30;  // a length is an int
        XML_Status status = XML_STATUS_OK;
        do {
            const std::string_view piece = text.substr(0, kMostAtOnce);
            text.remove_prefix(piece.size());
            status = XML_Parse(parser_, piece.data(), static_cast<int>(piece.size()),
                               text.empty() ? XML_TRUE : XML_FALSE);
        } while (status == XML_STATUS_OK && !text.empty());
        if (status != XML_STATUS_OK) {
            builder_.fail(fromUTF8(XML_ErrorString(XML_GetErrorCode(parser_))));
        }
        PropertyListResult result = builder_.finish();
        if (!result.error.empty()) result.error = lineText() + result.error;
        return result;
    }

private:
    // ---- What expat reports ----

    static XmlReader& self(void* data) { return *static_cast<XmlReader*>(data); }

    static void XMLCALL startTag(void* data, const XML_Char* name, const XML_Char** attributes) {
        self(data).start(elementOf(name), attributes[0] != nullptr);
    }

    static void XMLCALL endTag(void* data, const XML_Char*) { self(data).end(); }

    static void XMLCALL characters(void* data, const XML_Char* text, int length) {
        self(data).addText({text, static_cast<std::size_t>(length)});
    }

    static void XMLCALL declaration(void* data, const XML_Char*, const XML_Char* encoding, int) {
        if (encoding == nullptr) return;
        const String name = fromUTF8(encoding);
        if (equalsIgnoringAsciiCase(name, u"UTF-8") || equalsIgnoringAsciiCase(name, u"US-ASCII")) {
            return;
        }
        self(data).fail(u"an encoding other than UTF-8");
    }

    static void XMLCALL documentType(void* data, const XML_Char*, const XML_Char*, const XML_Char*,
                                     int hasDeclarations) {
        if (hasDeclarations != 0) self(data).fail(u"a document type with declarations of its own");
    }

    static void XMLCALL skippedEntity(void* data, const XML_Char*, int) {
        self(data).fail(u"an unknown entity");
    }

    // ---- What it means ----

    void start(Element element, bool hasAttributes) {
        if (inText_ != Element::None) return fail(u"an element inside a text");
        if ((element == Element::Root) == inList_) {
            return fail(inList_ ? u"a list inside the list" : u"the root is no property list");
        }
        if (hasAttributes && element != Element::Root) return fail(u"an unknown attribute");
        switch (element) {
            case Element::None:
                return fail(u"an unknown element");
            case Element::Root:
                inList_ = true;
                return;
            case Element::List:
                builder_.beginArray();
                break;
            case Element::Dictionary:
                builder_.beginDictionary();
                break;
            default:
                inText_ = element;
                return;
        }
        stopIfFailed();
    }

    /// Ends what began last: an element with a text, a container, or the list.
    void end() {
        if (inText_ != Element::None) {
            endText(std::exchange(inText_, Element::None));
            text_.clear();
        } else if (builder_.depth() > 0) {
            builder_.end();
        }
        stopIfFailed();
    }

    void endText(Element element) {
        switch (element) {
            case Element::Key:
                return builder_.key(Value(fromUTF8(text_)));
            case Element::Text:
                return builder_.add(Value(fromUTF8(text_)));
            case Element::Integer:
                return add(propertyListInteger(text_), u"an integer that is none or too large");
            case Element::Real:
                return add(propertyListReal(text_), u"a real number that is none");
            case Element::Date:
                return add(propertyListDate(text_), u"a date that is none");
            case Element::Bytes:
                return add(base64Decoded(text_), u"data that are not in base64");
            default:
                if (!isBlank(text_)) return fail(u"a text inside a boolean");
                return builder_.add(element == Element::True);
        }
    }

    template <class T>
    void add(std::optional<T> value, StringView fault) {
        if (!value) return fail(fault);
        builder_.add(Value(*std::move(value)));
    }

    void addText(std::string_view text) {
        if (inText_ != Element::None) {
            text_ += text;
        } else if (!isBlank(text)) {
            fail(u"a text outside an element");
        }
    }

    // ---- Faults ----

    void fail(StringView reason) {
        builder_.fail(reason);
        stopIfFailed();
    }

    void stopIfFailed() {
        if (builder_.failed()) XML_StopParser(parser_, XML_FALSE);
    }

    [[nodiscard]] String lineText() const {
        return u"line " + unsignedString(XML_GetCurrentLineNumber(parser_)) + u": ";
    }

    XML_Parser parser_;
    PropertyListBuilder builder_;
    bool inList_ = false;
    Element inText_ = Element::None;
    std::string text_;
};

struct ParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

}  // namespace

PropertyListResult readXmlPropertyList(DataView bytes, PropertyListContainers containers) {
    const std::unique_ptr<XML_ParserStruct, ParserDeleter> parser(XML_ParserCreate("UTF-8"));
    if (parser == nullptr) return {Value(), u"no memory"};
    return XmlReader(parser.get(), containers).read(textOf(bytes));
}

}  // namespace QZCore
