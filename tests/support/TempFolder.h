// A folder of a test's own, gone when the test ends.
#pragma once

#include <atomic>
#include <filesystem>
#include <random>
#include <string>

namespace sorvane {

class TempFolder {
  public:
    TempFolder() {
        static std::atomic<unsigned> number{0};
        const std::string name =
            "sorvane-test-" + std::to_string(std::random_device{}()) + "-" + std::to_string(number++);
        path_ = std::filesystem::temp_directory_path() / name;
        std::filesystem::create_directories(path_);
        std::filesystem::permissions(path_, std::filesystem::perms::all);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    const std::filesystem::path& Path() const { return path_; }
    std::string File(const std::string& name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

}  // namespace sorvane
