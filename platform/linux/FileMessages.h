// What the program and its file process say to each other over their socket.
//
// A message is four bytes of length, lowest first, and as many bytes. The program asks one question at a
// time: a verb, and after it texts, each with its length before it. While the process works on a long answer
// it sends the sign of life every few milliseconds; what it sends else is the answer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace linux {

enum class FileVerb : char {
    Attributes = 'a',
    List = 'l',
    MakeFolder = 'm',
    Delete = 'd',
    Read = 'r',
    Write = 'w',
};

inline constexpr std::string_view kSignOfLife = ".";
/// An answer begins with this; alone it says that there is none.
inline constexpr char kAnswer = '=';

/// Texts and numbers, one after another.
class MessageWriter {
public:
    void Put(std::string_view text);
    void Put(std::uint64_t number);
    void Put(const std::vector<std::string>& names);
    std::string Bytes() && { return std::move(bytes_); }

private:
    std::string bytes_;
};

/// What does not fit the bytes any more reads as empty, and as 0.
class MessageReader {
public:
    explicit MessageReader(std::string_view bytes) : bytes_(bytes) {}
    std::string_view Text();
    std::uint64_t Number();
    std::vector<std::string> Names();

private:
    std::string_view bytes_;
};

/// A message as it goes over the socket.
std::string Framed(std::string_view message);
/// Takes the first message off what was received; nothing while it is not complete.
std::optional<std::string> TakeMessage(std::string& received);

}  // namespace linux
