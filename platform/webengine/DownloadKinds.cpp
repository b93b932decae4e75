#include "platform/webengine/DownloadKinds.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "base/MediaKinds.h"

namespace webengine {

namespace {

constexpr std::string_view kDangerous[] = {
    // Starters and scripts.
    "desktop", "directory", "sh", "bash", "zsh", "csh", "ksh", "fish", "command", "run", "py", "pyw", "pyz",
    "pl", "rb", "lua", "tcl", "php", "js", "jse", "mjs", "vbs", "vbe", "wsf", "wsh", "hta", "ps1", "psm1",
    "bat", "cmd",
    // Programs and what programs load.
    "exe", "com", "scr", "pif", "msi", "msp", "dll", "so", "cpl", "elf", "out", "appimage", "jar", "jnlp",
    "class",
    // Packages that install.
    "deb", "rpm", "snap", "flatpak", "flatpakref", "flatpakrepo", "apk", "dmg", "pkg",
    // What leads elsewhere or changes settings.
    "lnk", "url", "reg", "inf", "chm", "service", "kdelnk",
    // Documents with macros.
    "docm", "dotm", "xlsm", "xltm", "xlam", "pptm", "potm", "ppam", "ppsm", "sldm", "odb"};

}  // namespace

bool IsDangerousKind(const QString& name) {
    const std::string extension = base::ExtensionOf(name.toStdString());
    return std::find(std::begin(kDangerous), std::end(kDangerous), extension) != std::end(kDangerous);
}

bool IsMediaKind(const QString& name) {
    return base::IsMediaFile(name.toStdString()) &&
           !name.endsWith(QLatin1String("jpeg"), Qt::CaseInsensitive);
}

}  // namespace webengine
