#include "forms/DesktopTools.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include "forms/Utf8.h"
#include "platform/RunTimeError.h"

namespace sorvane::forms {

DesktopTools::DesktopTools(const std::string& searchPath) {
    for (const QString& folder : ToQt(searchPath).split(QDir::listSeparator(), Qt::SkipEmptyParts))
        if (QDir::isAbsolutePath(folder)) folders_.append(folder);
}

std::optional<std::string> DesktopTools::Find(std::string_view name) const {
    // Without folders Qt would search PATH, and it takes a name that is a path as it is.
    const QString program = ToQt(name);
    if (folders_.isEmpty() || program.isEmpty() || program != QFileInfo(program).fileName())
        return std::nullopt;
    const QString path = QStandardPaths::findExecutable(program, folders_);
    return path.isEmpty() ? std::nullopt : std::optional(ToUtf8(path));
}

void DesktopTools::Start(const std::string& path) {
    if (!QProcess::startDetached(ToQt(path), {})) Raise(ErrorNumber::FileNotFound);
}

std::string DesktopTools::SystemSearchPath() { return ToUtf8(qEnvironmentVariable("PATH")); }

}  // namespace sorvane::forms
