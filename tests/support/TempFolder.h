// A folder for one test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace sorvane {

// A folder that nobody else uses; it is deleted with its contents at the end. It is in memory where the
// system has a place for that, because syncs cost nothing there.
class TempFolder {
  public:
    explicit TempFolder(const std::filesystem::path& parent = FastPlace()) {
        std::random_device random;
        do path_ = parent / ("sorvane-test-" + std::to_string(random()) + "-" + std::to_string(random()));
        while (!std::filesystem::create_directory(path_));
        // For tests that go on under another user.
        std::filesystem::permissions(path_, std::filesystem::perms::all);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        Unlock();
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
    // The same as text, the form in which the program holds paths.
    std::string File(std::string_view name) const { return (path_ / name).string(); }

    // The environment variable SORVANE_TEST_PLACE names another place.
    static std::filesystem::path FastPlace() {
        if (const char* told = std::getenv("SORVANE_TEST_PLACE")) return told;
        const std::filesystem::path memory = "/dev/shm";
        std::error_code none;
        return std::filesystem::is_directory(memory, none) ? memory : std::filesystem::temp_directory_path();
    }

  private:
    // A test may have taken away the right to delete; this gives it back.
    void Unlock() {
        namespace fs = std::filesystem;
        std::error_code ignored;
        fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ignored);
        for (fs::recursive_directory_iterator entry(path_, ignored), end; entry != end;
             entry.increment(ignored))
            if (entry->is_directory(ignored) && !entry->is_symlink(ignored))
                fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    }

    std::filesystem::path path_;
};

}  // namespace sorvane
