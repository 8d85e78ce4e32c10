// The programs of the desktop, found and started by Qt.
#pragma once

#include <QStringList>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Services.h"

namespace sorvane::forms {

class DesktopTools final : public SystemTools {
  public:
    // The folders to search, separated as in PATH.
    explicit DesktopTools(const std::string& searchPath = SystemSearchPath());

    // The first program with this plain name in the folders searched. Folders that aren't absolute are left
    // out, so that a program beside a document is never taken.
    std::optional<std::string> Find(std::string_view name) const override;
    // Starts it without arguments; it outlives this program and leaves nothing behind in it.
    void Start(const std::string& path) override;

    // PATH as it is set, else empty.
    static std::string SystemSearchPath();

  private:
    QStringList folders_;
};

}  // namespace sorvane::forms
