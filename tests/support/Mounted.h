// A file system of a test's own.
#pragma once

#include <sys/mount.h>

#include <filesystem>

namespace sorvane {

// Lies over a folder, in memory; gone at the end. Root alone may do that.
class Mounted {
  public:
    explicit Mounted(std::filesystem::path folder)
        : folder_(std::move(folder)), is_(mount("none", folder_.c_str(), "tmpfs", 0, "") == 0) {}
    Mounted(const Mounted&) = delete;
    Mounted& operator=(const Mounted&) = delete;
    ~Mounted() {
        if (is_) umount2(folder_.c_str(), MNT_DETACH);
    }

    explicit operator bool() const { return is_; }
    // Whether it took.
    bool ReadOnly(bool on) {
        return mount("none", folder_.c_str(), nullptr, MS_REMOUNT | (on ? MS_RDONLY : 0), "") == 0;
    }

  private:
    std::filesystem::path folder_;
    bool is_;
};

}  // namespace sorvane
