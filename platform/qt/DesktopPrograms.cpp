#include "platform/qt/DesktopPrograms.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <utility>

namespace qt {
namespace {

/// Each shows what the computer is, and needs no arguments for it.
std::vector<std::string> UsualTools() {
    return {"kinfocenter", "hardinfo2", "hardinfo"};
}

}  // namespace

DesktopPrograms::DesktopPrograms(Paths paths) : DesktopPrograms(std::move(paths), UsualTools()) {}

DesktopPrograms::DesktopPrograms(Paths paths, std::vector<std::string> tools)
    : paths_(std::move(paths)), tools_(std::move(tools)) {}

std::string DesktopPrograms::SystemInformationTool() const {
    for (const std::string& tool : tools_) {
        const QString path = QStandardPaths::findExecutable(QString::fromStdString(tool));
        if (!path.isEmpty()) return paths_.to_drive(QFile::encodeName(path).toStdString());
    }
    return {};
}

bool DesktopPrograms::Start(std::string_view path) {
    const std::string native = paths_.to_native(path);
    const QFileInfo program(QFile::decodeName(QByteArray::fromStdString(native)));
    if (native.empty() || !program.isFile() || !program.isExecutable()) return false;
    return QProcess::startDetached(program.absoluteFilePath(), {});
}

}  // namespace qt
