// A text as the title of a window. "[*]" in a title is the toolkit's mark for changes that are not saved, and
// is taken out; twice it stands for itself.
#pragma once

#include <QString>

namespace qt {

inline QString TitleOf(QString text) {
    return text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

}  // namespace qt
