#include "platform/linux/FileMessages.h"

#include <cstdint>

namespace linux {
namespace {

constexpr std::size_t kNumberBytes = 8;
constexpr std::size_t kLengthBytes = 4;

std::uint64_t NumberIn(std::string_view bytes, std::size_t count) {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < count; ++i)
        number |= std::uint64_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    return number;
}

void PutNumber(std::string& bytes, std::uint64_t number, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        bytes += static_cast<char>((number >> (8 * i)) & 0xFFU);
}

}  // namespace

void MessageWriter::Put(std::uint64_t number) {
    PutNumber(bytes_, number, kNumberBytes);
}

void MessageWriter::Put(std::string_view text) {
    Put(std::uint64_t{text.size()});
    bytes_.append(text);
}

void MessageWriter::Put(const std::vector<std::string>& names) {
    Put(std::uint64_t{names.size()});
    for (const std::string& name : names)
        Put(std::string_view(name));
}

std::uint64_t MessageReader::Number() {
    if (bytes_.size() < kNumberBytes) return 0;
    const std::uint64_t number = NumberIn(bytes_, kNumberBytes);
    bytes_.remove_prefix(kNumberBytes);
    return number;
}

std::string_view MessageReader::Text() {
    const std::uint64_t length = Number();
    if (length > bytes_.size()) return {};
    const std::string_view text = bytes_.substr(0, length);
    bytes_.remove_prefix(text.size());
    return text;
}

std::vector<std::string> MessageReader::Names() {
    std::vector<std::string> names;
    for (std::uint64_t left = Number(); left > 0 && !bytes_.empty(); --left)
        names.emplace_back(Text());
    return names;
}

std::string Framed(std::string_view message) {
    std::string frame;
    frame.reserve(kLengthBytes + message.size());
    PutNumber(frame, message.size(), kLengthBytes);
    return frame.append(message);
}

std::optional<std::string> TakeMessage(std::string& received) {
    if (received.size() < kLengthBytes) return std::nullopt;
    const auto length = static_cast<std::size_t>(NumberIn(received, kLengthBytes));
    if (received.size() - kLengthBytes < length) return std::nullopt;
    std::string message = received.substr(kLengthBytes, length);
    received.erase(0, kLengthBytes + length);
    return message;
}

}  // namespace linux
