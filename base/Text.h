// Text of the system: UTF-8 in std::string, counted in characters (code points).
//
// Positions are 1-based, as the lists and labels of the program count them; 0 means "not found". A byte that
// is no valid UTF-8 counts as one character, so no input can make these functions fail.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace base {

/// Number of characters.
std::size_t Len(std::string_view text);

/// The first `count` characters; all of them when there are fewer.
std::string_view Left(std::string_view text, std::size_t count);

/// The last `count` characters; all of them when there are fewer.
std::string_view Right(std::string_view text, std::size_t count);

/// `count` characters from the 1-based position `start`; empty when `start` is 0 or past the end.
std::string_view Mid(std::string_view text, std::size_t start, std::size_t count = std::string_view::npos);

/// 1-based position of the first `wanted` at or after `start`; 0 when there is none. An empty `wanted` is
/// found at `start`, unless `text` is empty.
std::size_t InStr(std::string_view text, std::string_view wanted, std::size_t start = 1);

/// 1-based position of the last `wanted`; 0 when there is none.
std::size_t InStrRev(std::string_view text, std::string_view wanted);

/// Without blanks (U+0020 only) at both ends.
std::string_view Trim(std::string_view text);

/// Unicode simple lower and upper case mappings, character by character.
std::string LCase(std::string_view text);
std::string UCase(std::string_view text);

/// Every `from` replaced by `to`, left to right, without looking at what was put in. An empty `from` changes
/// nothing.
std::string Replace(std::string_view text, std::string_view from, std::string_view to);

/// The parts between the separators; an empty text has no parts, an empty separator gives one part.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

/// Order of a sorted list: lower-cased text first, ties by code point. Negative, zero, positive.
int CompareForSort(std::string_view left, std::string_view right);

/// Appends a text's sort key to `out`: bytes that compare as the text does in a sorted list, but for ties.
void AppendSortKey(std::string& out, std::string_view text);

/// True when both are the same but for upper and lower case.
bool EqualIgnoringCase(std::string_view left, std::string_view right);

bool StartsWith(std::string_view text, std::string_view prefix);
bool EndsWith(std::string_view text, std::string_view suffix);
bool Contains(std::string_view text, std::string_view part);

/// True when every byte belongs to valid UTF-8.
bool IsUtf8(std::string_view text);

/// Appends a character by its code point, which must be one.
void AppendCharacter(std::string& out, char32_t code);

/// The same text in UTF-16. A byte that is no valid UTF-8 becomes U+FFFD.
std::u16string ToUtf16(std::string_view text);

}  // namespace base
