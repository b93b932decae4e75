#include "library/XmlReader.h"

#include <algorithm>
#include <utility>

#include "base/Markup.h"
#include "base/Text.h"

namespace library {
namespace {

std::string LocalName(std::string_view tag) {
    const std::string_view name = tag.substr(0, tag.find_first_of(" \t\r\n/"));
    const std::size_t prefix = name.find(':');
    return std::string(prefix == std::string_view::npos ? name : name.substr(prefix + 1));
}

}  // namespace

XmlPart XmlReader::Next() {
    constexpr std::string_view kCharacterData = "<![CDATA[";
    constexpr std::string_view kComment = "<!--";
    if (!to_close_.empty()) return {XmlKind::Close, std::exchange(to_close_, {})};
    while (!left_.empty()) {
        if (left_.front() != '<') return {XmlKind::Text, base::DecodeEntities(TakeUntil("<"))};
        if (base::StartsWith(left_, kCharacterData)) {
            left_.remove_prefix(kCharacterData.size());
            std::string text(TakeUntil("]]>"));
            SkipPast("]]>");
            return {XmlKind::Text, std::move(text)};
        }
        if (base::StartsWith(left_, kComment)) {
            SkipPast("-->");
        } else if (base::StartsWith(left_, "<?")) {
            SkipPast("?>");
        } else if (base::StartsWith(left_, "<!")) {
            SkipPast(">");
        } else {
            return Tag();
        }
    }
    return {};
}

XmlPart XmlReader::Tag() {
    left_.remove_prefix(1);
    const std::size_t end = base::EndOfTag(left_);
    std::string_view tag = left_.substr(0, end);
    left_.remove_prefix(std::min(end + 1, left_.size()));
    if (base::StartsWith(tag, "/")) return {XmlKind::Close, LocalName(tag.substr(1))};
    if (base::EndsWith(tag, "/")) to_close_ = LocalName(tag);
    return {XmlKind::Open, LocalName(tag)};
}

void XmlReader::SkipPast(std::string_view end) {
    TakeUntil(end);
    left_.remove_prefix(std::min(end.size(), left_.size()));
}

std::string_view XmlReader::TakeUntil(std::string_view end) {
    const std::string_view taken = left_.substr(0, left_.find(end));
    left_.remove_prefix(taken.size());
    return taken;
}

}  // namespace library
