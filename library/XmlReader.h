// The tags and texts of an XML document, one after another, as far as a list of songs needs them.
//
// Attributes, comments, instructions and the document type are skipped, entities are decoded. A document that
// is not well-formed gives what can be read of it; nothing here fails.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace library {

enum class XmlKind { Open, Close, Text, End };

struct XmlPart {
    XmlKind kind = XmlKind::End;
    std::string text;  ///< a tag's name without its prefix, or the text
};

class XmlReader {
public:
    /// UTF-8, which must outlive the reader.
    explicit XmlReader(std::string_view document) : left_(document) {}

    /// An empty tag gives Open and Close. After the last part: End, again and again.
    XmlPart Next();

private:
    XmlPart Tag();
    void SkipPast(std::string_view end);
    std::string_view TakeUntil(std::string_view end);

    std::string_view left_;
    std::string to_close_;  // the name of an empty tag that was opened
};

}  // namespace library
