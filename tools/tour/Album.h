// The pictures of the tour.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

class QWidget;

namespace sorvane::tour {

// Puts numbered pictures into a folder: "05-next-sheet.png".
class Album {
  public:
    // Makes the folder where it is missing; pictures and pages of an earlier tour leave it.
    explicit Album(std::filesystem::path folder);

    // The window with the menus that are open over it, and with the window behind it when that one is larger.
    // Says on the standard output what it took; a picture that can't be written fails the tour.
    void Take(QWidget& front, std::string_view name);
    // The file of the next printed page.
    std::string NextPage(std::string_view name);

    int Pictures() const { return pictures_; }
    int Pages() const { return pages_; }

  private:
    std::string Next(std::string_view name, std::string_view ending);

    std::filesystem::path folder_;
    int pictures_ = 0, pages_ = 0;
};

}  // namespace sorvane::tour
