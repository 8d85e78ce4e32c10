// A folder that can be made read-only for a while.
#pragma once

#include <sys/mount.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <utility>

#include "support/NoSuperuser.h"

namespace sorvane {

// A file system in memory that can be made read-only; it is removed at the end. Where the user may not mount
// one, the right to write is taken from the folder and its files instead.
class ReadOnlyPlace {
  public:
    explicit ReadOnlyPlace(std::filesystem::path folder)
        : folder_(std::move(folder)), mounted_(mount("none", folder_.c_str(), "tmpfs", 0, "") == 0) {}
    ReadOnlyPlace(const ReadOnlyPlace&) = delete;
    ReadOnlyPlace& operator=(const ReadOnlyPlace&) = delete;
    ~ReadOnlyPlace() {
        if (mounted_) umount2(folder_.c_str(), MNT_DETACH);
    }

    // Whether it is read-only now.
    bool ReadOnly(bool on) {
        if (mounted_)
            return mount("none", folder_.c_str(), nullptr, MS_REMOUNT | (on ? MS_RDONLY : 0), "") == 0;
        somebodyElse_.reset();
        namespace fs = std::filesystem;
        const auto change = on ? fs::perm_options::remove : fs::perm_options::add;
        const auto write = on ? fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write
                              : fs::perms::owner_write;
        constexpr auto Read = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
        for (const auto& entry : fs::directory_iterator(folder_)) {
            // Somebody else must still be able to read what the program made for its own user.
            fs::permissions(entry, Read, fs::perm_options::add);
            fs::permissions(entry, write, change);
        }
        fs::permissions(folder_, write, change);
        if (on) somebodyElse_.emplace();
        return true;
    }

  private:
    std::filesystem::path folder_;
    bool mounted_;
    std::optional<NoSuperuser> somebodyElse_;
};

}  // namespace sorvane
