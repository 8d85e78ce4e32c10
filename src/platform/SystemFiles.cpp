#include "platform/SystemFiles.h"

#include <system_error>

#include "platform/RunTimeError.h"
#include "platform/SystemServices.h"

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
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

fs::path ProgramFolder(const fs::path& calledAs) {
    std::error_code none;
    const fs::path self = fs::read_symlink("/proc/self/exe", none);
    if (!self.empty()) return self.parent_path();
    if (calledAs.has_parent_path()) return fs::absolute(calledAs, none).parent_path();
    const auto found = DesktopTools().Find(calledAs.string());
    return found ? fs::path(*found).parent_path() : fs::current_path(none);
}

}  // namespace sorvane
