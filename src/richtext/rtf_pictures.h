// Images of a text in RTF.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "QZCore/richtext/text_attributes.h"
#include "richtext/rtf_output.h"

namespace QZCore {

/// Writes attachments into a document. What cannot be written is shown as its
/// alternative text.
class RtfPictures {
public:
    RtfPictures() = default;
    RtfPictures(const RtfPictures&) = delete;
    RtfPictures& operator=(const RtfPictures&) = delete;
    virtual ~RtfPictures();

    virtual void write(const TextAttachment& attachment, RtfOutput& out) = 0;
};

/// Pictures within the document. RTF takes PNG and JPEG.
class EmbeddedRtfPictures final : public RtfPictures {
public:
    void write(const TextAttachment& attachment, RtfOutput& out) override;
};

/// Pictures as files that lie beside the document.
class BundledRtfPictures final : public RtfPictures {
public:
    struct File {
        std::string name;
        std::shared_ptr<const Image> image;
    };

    void write(const TextAttachment& attachment, RtfOutput& out) override;
    /// The files that the document refers to.
    [[nodiscard]] const std::vector<File>& files() const { return files_; }

private:
    [[nodiscard]] const std::string& nameOf(const std::shared_ptr<const Image>& image);

    std::vector<File> files_;
    std::map<const Image*, std::size_t> numbers_;
};

}  // namespace QZCore
