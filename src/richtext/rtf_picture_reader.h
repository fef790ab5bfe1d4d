// Pictures of an RTF document.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string_view>

#include "QZCore/richtext/text_attributes.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_words.h"

namespace QZCore {

/// Reads one picture after the other.
class RtfPictureReader {
public:
    explicit RtfPictureReader(const RtfSurroundings& surroundings) : surroundings_(surroundings) {}

    /// A picture starts.
    void start();
    /// A control word of the picture.
    void word(std::string_view name, RtfNumber number);
    /// Bytes of the picture in hexadecimal.
    void hexadecimal(StringView digits);
    /// Bytes of the picture.
    void binary(std::string_view bytes);
    /// A piece of the name of the file that the picture is.
    void fileName(StringView text) { fileName_ += text; }
    /// A property starts; pieces of its name and its value; it ends.
    void startProperty() { propertyName_.clear(); }
    void startValue() { propertyValue_.clear(); }
    void propertyName(StringView text) { propertyName_ += text; }
    void propertyValue(StringView text) { propertyValue_ += text; }
    void endProperty();

    /// The picture. Its image is empty when it cannot be read.
    [[nodiscard]] TextAttachment finishEmbedded();
    [[nodiscard]] TextAttachment finishFile();

private:
    using ImagePointer = std::shared_ptr<const Image>;

    [[nodiscard]] TextAttachment attachmentOf(ImagePointer image);
    [[nodiscard]] ImagePointer imageInFile(const std::string& name);

    RtfSurroundings surroundings_;
    std::map<std::string, ImagePointer> images_;  // of files, each decoded once
    Data bytes_;
    std::optional<unsigned> openDigit_;
    String fileName_;
    String propertyName_;
    String propertyValue_;
    TextAttachment attachment_;
    double percentWide_ = 100;
    double percentHigh_ = 100;
};

}  // namespace QZCore
