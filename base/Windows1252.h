// Text files of the system's single-byte code page, Windows-1252, and the marked UTF-8 form for what does not
// fit into it.
//
// The five bytes that the code page leaves open (81, 8D, 8F, 90, 9D) are the control characters of the same
// number, so that every byte is a character and every file can be read and written again unchanged.
#pragma once

#include <string>
#include <string_view>

namespace base {

/// The text of a file: after a UTF-8 byte-order mark the bytes as they are, without the mark; else read as
/// Windows-1252. Cannot fail.
std::string DecodeFileText(std::string_view bytes);

/// The bytes of a file that DecodeFileText reads as this text: Windows-1252; UTF-8 with a byte-order mark for
/// a text that has a character or a stray byte outside it, and for one that would begin like the mark.
std::string EncodeFileText(std::string_view text);

/// True when the bytes begin with a UTF-8 byte-order mark.
bool HasUtf8Mark(std::string_view bytes);

}  // namespace base
