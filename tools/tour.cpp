// The guided tour: the program's own windows, used by real events through one evening of a player.
//     tour [FOLDER] [--out FOLDER] [--dark | --contrast] [--scale PERCENT] [--points SIZE]
#include <gtest/gtest.h>

#include <QPalette>
#include <charconv>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "forms/Application.h"
#include "support/Palettes.h"
#include "support/Stage.h"
#include "tour/Evening.h"

namespace {

namespace fs = std::filesystem;

struct Options {
    fs::path out = "tour-out";
    QPalette (*palette)() = nullptr;  // of the desktop, or another one
    int scale = 100;                  // per cent
    int points = 10;                  // of the font
};

bool ReadNumber(std::string_view text, int least, int most, int& number) {
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && read.ptr == text.data() + text.size() && least <= number &&
           number <= most;
}

std::optional<Options> Read(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        const bool last = i + 1 == argc;
        if (word == "--dark") {
            options.palette = sorvane::test::DarkPalette;
        } else if (word == "--contrast") {
            options.palette = sorvane::test::HighContrastPalette;
        } else if (word == "--out" && !last) {
            options.out = argv[++i];
        } else if (word == "--scale" && !last) {
            if (!ReadNumber(argv[++i], 50, 400, options.scale)) return std::nullopt;
        } else if (word == "--points" && !last) {
            if (!ReadNumber(argv[++i], 6, 30, options.points)) return std::nullopt;
        } else if (word.empty() || word.front() == '-') {
            return std::nullopt;
        } else {
            options.out = word;
        }
    }
    return options;
}

void Play(const fs::path& out) {
    sorvane::tour::Evening evening(out);
    evening.Play();
    const sorvane::tour::Album& album = evening.Pictures();
    std::printf("%d pictures and %d printed pages are in %s\n", album.Pictures(), album.Pages(),
                out.string().c_str());
}

}  // namespace

int main(int argc, char** argv) {
    const std::optional<Options> options = Read(argc, argv);
    if (!options) {
        std::fprintf(stderr,
                     "usage: tour [FOLDER] [--out FOLDER] [--dark | --contrast] [--scale 50...400] [--points "
                     "6...30]\n");
        return 2;
    }
    testing::InitGoogleTest();
    const sorvane::test::Stage stage(options->scale);
    int arguments = 1;
    sorvane::forms::Application application(arguments, argv);
    stage.Set();
    QFont font = QApplication::font();
    font.setPointSize(options->points);
    QApplication::setFont(font);
    if (options->palette) sorvane::test::SetDesktopPalette(options->palette());
    try {
        Play(options->out);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "The tour broke off: %s\n", failure.what());
        return 1;
    }
    return testing::UnitTest::GetInstance()->Failed() ? 1 : 0;
}
