#include "platform/SystemFiles.h"

#include <array>
#include <cstdint>
#include <system_error>

#include "platform/RunTimeError.h"

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif
#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

namespace sorvane {

namespace fs = std::filesystem;

#ifdef _WIN32

void SyncToDisk(const fs::path&) {}

bool WordsGoToATerminal() { return _isatty(2) != 0; }

#else

void SyncToDisk(const fs::path& fileOrFolder) {
    const int file = open(fileOrFolder.c_str(), O_RDONLY | O_CLOEXEC);
    if (file == -1) Raise(ErrorNumber::DiskError);
    const bool synced = fsync(file) == 0 || fs::is_directory(fileOrFolder);
    close(file);
    if (!synced) Raise(ErrorNumber::DiskError);
}

bool WordsGoToATerminal() { return isatty(STDERR_FILENO) == 1; }

#endif

namespace {

// The file of the running program, empty when the system does not say.
fs::path ProgramFile() {
#if defined(_WIN32)
    std::array<wchar_t, 32'768> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size() - 1));
    return path.data();
#elif defined(__APPLE__)
    std::array<char, 4096> path{};
    std::uint32_t size = path.size();
    return _NSGetExecutablePath(path.data(), &size) == 0 ? path.data() : "";
#else
    std::error_code none;
    return fs::read_symlink("/proc/self/exe", none);
#endif
}

}  // namespace

fs::path ProgramFolder(const fs::path& calledAs) {
    std::error_code none;
    const fs::path self = ProgramFile();
    return fs::absolute(self.empty() ? calledAs : self, none).parent_path();
}

}  // namespace sorvane
