#include "platform/qt/DesktopWishes.h"

#include <xcb/xcb.h>

#include <QByteArray>
#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <memory>
#include <vector>

namespace qt {
namespace {

/// The largest size that a desktop has without anybody's doing, in points.
constexpr double kUsualPoints = 11;
constexpr double kMostLetters = 3;
/// Bytes of what a settings manager publishes that are read, by four.
constexpr std::uint32_t kMostPublished = 65'536;

constexpr std::size_t kHeader = 12;
constexpr std::uint8_t kNumber = 0;
constexpr std::uint8_t kText = 1;
constexpr std::uint8_t kColour = 2;

/// Reads what is published from its beginning; what lies beyond its end is 0, and noticed.
class Reader final {
public:
    explicit Reader(std::span<const std::uint8_t> bytes)
        : bytes_(bytes), big_(!bytes.empty() && bytes[0] != 0) {}

    bool IsBroken() const { return at_ > bytes_.size(); }
    void Skip(std::size_t count) { at_ += count; }
    std::uint32_t Number(std::size_t size) {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < size; ++i) {
            const std::size_t place = at_ + (big_ ? i : size - 1 - i);
            number = (number << 8U) | (place < bytes_.size() ? bytes_[place] : 0U);
        }
        at_ += size;
        return number;
    }
    std::string Text(std::size_t size) {
        std::string text;
        if (at_ <= bytes_.size() && size <= bytes_.size() - at_) {
            const auto piece = bytes_.subspan(at_, size);
            text.assign(piece.begin(), piece.end());
        }
        // Texts are filled up to four bytes.
        at_ += std::min(size, bytes_.size() + 1) + (4 - size % 4) % 4;
        return text;
    }

private:
    std::span<const std::uint8_t> bytes_;
    bool big_;
    std::size_t at_ = 0;
};

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

xcb_atom_t AtomOf(xcb_connection_t* display, std::string_view name) {
    const auto cookie = xcb_intern_atom(display, 1, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(display, cookie, nullptr));
    return reply != nullptr ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<std::uint8_t> Published(xcb_connection_t* display, int screen) {
    const xcb_atom_t manager = AtomOf(display, "_XSETTINGS_S" + std::to_string(screen));
    const xcb_atom_t settings = AtomOf(display, "_XSETTINGS_SETTINGS");
    if (manager == XCB_ATOM_NONE || settings == XCB_ATOM_NONE) return {};
    const Owned<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(display, xcb_get_selection_owner(display, manager), nullptr));
    if (owner == nullptr || owner->owner == XCB_WINDOW_NONE) return {};
    const auto cookie = xcb_get_property(display, 0, owner->owner, settings, settings, 0, kMostPublished);
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(display, cookie, nullptr));
    if (reply == nullptr || reply->format != 8) return {};
    const auto* bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
    return {bytes, bytes + xcb_get_property_value_length(reply.get())};
}

}  // namespace

std::optional<std::string> TextSetting(std::span<const std::uint8_t> published, std::string_view name) {
    if (published.size() < kHeader) return std::nullopt;
    Reader reader(published);
    reader.Skip(8);
    const std::uint32_t count = reader.Number(4);
    for (std::uint32_t i = 0; i < count && !reader.IsBroken(); ++i) {
        const auto kind = static_cast<std::uint8_t>(reader.Number(1));
        reader.Skip(1);
        const std::uint32_t length = reader.Number(2);
        const bool is_wanted = reader.Text(length) == name;
        reader.Skip(4);  // when it was last changed
        if (kind == kText) {
            const std::uint32_t size = reader.Number(4);
            std::string text = reader.Text(size);
            if (is_wanted && !reader.IsBroken()) return text;
        } else if (kind == kNumber || kind == kColour) {
            reader.Skip(kind == kNumber ? 4 : 8);
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

double LettersOf(std::string_view font) {
    const std::size_t blank = font.rfind(' ');
    if (blank == std::string_view::npos) return 1;
    const std::string_view size = font.substr(blank + 1);
    double points = 0;
    const auto result = std::from_chars(size.data(), size.data() + size.size(), points);
    if (result.ec != std::errc()) return 1;
    return std::clamp(points / kUsualPoints, 1.0, kMostLetters);
}

bool MeansHighContrast(std::string_view theme) {
    return theme.find("HighContrast") != std::string_view::npos;
}

DesktopWishes WishesOfDesktop() {
    DesktopWishes wishes;
    wishes.high_contrast = MeansHighContrast(qgetenv("GTK_THEME").toStdString());
    int screen = 0;
    xcb_connection_t* display = xcb_connect(nullptr, &screen);
    if (xcb_connection_has_error(display) == 0) {
        const std::vector<std::uint8_t> published = Published(display, screen);
        wishes.letters = LettersOf(TextSetting(published, "Gtk/FontName").value_or(""));
        if (MeansHighContrast(TextSetting(published, "Net/ThemeName").value_or("")))
            wishes.high_contrast = true;
    }
    xcb_disconnect(display);
    return wishes;
}

void TakeLetters(const DesktopWishes& wishes) {
    if (wishes.letters <= 1) return;
    bool is_number = false;
    const double scale = qgetenv("QT_SCALE_FACTOR").toDouble(&is_number);
    qputenv("QT_SCALE_FACTOR", QByteArray::number((is_number && scale > 0 ? scale : 1) * wishes.letters));
}

}  // namespace qt
