#include "shell/SystemInformation.h"

#include <array>
#include <optional>
#include <span>
#include <string>

#include "platform/RunTimeError.h"

namespace sorvane {

namespace {

constexpr auto InformationTools =
    std::to_array<std::string_view>({"hardinfo2", "hardinfo", "kinfocenter", "cpu-x", "msinfo32"});
constexpr auto Monitors =
    std::to_array<std::string_view>({"gnome-system-monitor", "plasma-systemmonitor", "ksysguard",
                                     "mate-system-monitor", "xfce4-taskmanager", "lxtask", "qps", "taskmgr"});

std::optional<std::string> FirstOf(std::span<const std::string_view> names, const SystemTools& tools) {
    for (const std::string_view name : names)
        if (auto path = tools.Find(name)) return path;
    return {};
}

}  // namespace

void StartSysInfo(Services& services) {
    std::optional<std::string> tool = FirstOf(InformationTools, services.tools);
    if (!tool) tool = FirstOf(Monitors, services.tools);
    if (!tool) {
        services.dialogs.MsgBox("System Information Is Unavailable At This Time");
        return;
    }
    Ignoring({ErrorNumber::FileNotFound}, [&] { services.tools.Start(*tool); });
}

}  // namespace sorvane
