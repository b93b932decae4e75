// What a drag carries, from Qt's form to the controls' form and back.
#pragma once

#include <QMimeData>
#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "controls/Control.h"

namespace qt {

/// A native path, in bytes, is a folder's; a path that cannot be looked at counts as a file's.
using IsFolder = std::function<bool(const std::string&)>;

/// Files of this computer, or a text. Folders alone are refused.
bool IsDroppable(const QMimeData& data, const IsFolder& is_folder);
/// `drive_form` turns a native path, in bytes, into the controls' form. Folders and files from elsewhere are
/// left out. A drag that has files or folders carries no text, whatever text its source puts beside them.
controls::DropData DropDataOf(const QMimeData& data,
                              const std::function<std::string(const std::string&)>& drive_form,
                              const IsFolder& is_folder);

/// A row's text on its way out of a list.
std::unique_ptr<QMimeData> DragOf(std::string_view text);

}  // namespace qt
