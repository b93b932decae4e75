#include "platform/linux/FileService.h"

#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/linux/FileMessages.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/NativeFiles.h"

namespace linux {
namespace {

bool Send(int socket, std::string_view message) {
    const std::string frame = Framed(message);
    for (std::size_t sent = 0; sent < frame.size();) {
        const ssize_t count = ::send(socket, frame.data() + sent, frame.size() - sent, MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        sent += static_cast<std::size_t>(count);
    }
    return true;
}

// Nothing once the program has closed its end.
std::optional<std::string> NextMessage(int socket, std::string& received) {
    std::array<char, 65536> buffer{};
    while (true) {
        if (std::optional<std::string> message = TakeMessage(received)) return message;
        const ssize_t count = ::recv(socket, buffer.data(), buffer.size(), 0);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return std::nullopt;
        received.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

std::string AnswerOf(std::uint64_t number) {
    MessageWriter answer;
    answer.Put(number);
    return kAnswer + std::move(answer).Bytes();
}

std::string AnswerOf(ports::FileResult result) {
    return AnswerOf(static_cast<std::uint64_t>(result));
}

std::string AnswerOf(const std::optional<int>& bits) {
    return bits ? AnswerOf(static_cast<std::uint64_t>(*bits)) : std::string(1, kAnswer);
}

std::string AnswerOf(const std::optional<std::string>& text) {
    MessageWriter answer;
    if (text) answer.Put(std::string_view(*text));
    return kAnswer + std::move(answer).Bytes();
}

std::string AnswerOf(const std::optional<ports::FolderListing>& listing) {
    MessageWriter answer;
    if (listing) {
        answer.Put(listing->Files);
        answer.Put(listing->SubFolders);
        answer.Put(listing->Links);
        answer.Put(listing->Identity.Volume);
        answer.Put(listing->Identity.Number);
    }
    return kAnswer + std::move(answer).Bytes();
}

std::string AnswerTo(std::string_view question, const ports::MayGoOn& live) {
    MessageReader words(question.substr(1));
    const std::string native(words.Text());
    switch (static_cast<FileVerb>(question.front())) {
        case FileVerb::Attributes:
            return AnswerOf(AttributesAt(native));
        case FileVerb::List:
            return AnswerOf(ReadFolder(native, live));
        case FileVerb::MakeFolder:
            return AnswerOf(MakeFolderAt(native));
        case FileVerb::Delete:
            return AnswerOf(DeleteFileAt(native));
        case FileVerb::Read:
            return AnswerOf(ReadTextAt(native, words.Number(), live));
        case FileVerb::Write:
            return AnswerOf(WriteTextAt(native, words.Text()));
    }
    return std::string(1, kAnswer);
}

}  // namespace

void ServeFiles(int socket) {
    const auto live = [socket] { return Send(socket, kSignOfLife); };
    live();  // from here on a silence is the share's
    std::string received;
    while (const std::optional<std::string> question = NextMessage(socket, received)) {
        if (question->empty() || !Send(socket, AnswerTo(*question, live))) return;
    }
}

}  // namespace linux
