// Small signs that are drawn: how safe a page's connection is.
#pragma once

#include <QIcon>
#include <QString>
#include <string_view>

namespace qt {

/// The picture of a text box's sign ("lock", "open lock", "broken lock"); null for any other.
QIcon PictureOfSign(std::string_view sign);
/// What the sign says, in words.
QString WordsOfSign(std::string_view sign);

}  // namespace qt
