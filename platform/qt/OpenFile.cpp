#include "platform/qt/OpenFile.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <utility>

namespace qt {

// It is told by its exit whether it found a program. On some desktops it stays as long as that program, which
// outlives this one: so the process object is not owned by anything that would end it.
void OpenFileWithDesktop(const std::string& file, std::function<void()> otherwise) {
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (tool.isEmpty()) {
        otherwise();
        return;
    }
    auto* const process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    const auto end = [process, otherwise = std::move(otherwise)](bool is_shown) {
        process->deleteLater();
        if (!is_shown) otherwise();
    };
    QObject::connect(process, &QProcess::finished, process, [end](int code, QProcess::ExitStatus status) {
        end(status == QProcess::NormalExit && code == 0);
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) end(false);
    });
    process->start(tool, {QFile::decodeName(QByteArray::fromStdString(file))});
}

}  // namespace qt
