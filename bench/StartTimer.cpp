// From the start of a program to its painted window, beside two windows of the same size, one empty and one
// with a line of text (the first text of a process loads the fonts), in turns:
//     start_timer STARTS PROGRAM BARE_WINDOW
// on an X screen without a window manager and with nothing else on it. Prints the least of each: milliseconds
// from the start to the first picture of the window, processor time (which other work on the machine disturbs
// less), and the memory a moment later: all that is resident, and what no other process shares.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

class Screen {
  public:
    Screen() : connection_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(connection_)) throw std::string("there is no X screen");
        const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
        root_ = screen.root;
        middle_ = {static_cast<std::int16_t>(screen.width_in_pixels / 2),
                   static_cast<std::int16_t>(screen.height_in_pixels / 2)};
    }
    // The middle of the screen, which lies in every window that is larger than half of it.
    std::uint32_t Pixel() {
        const auto cookie = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_, middle_.first,
                                          middle_.second, 1, 1, 0x00FFFFFF);
        const Owned<xcb_get_image_reply_t> image(xcb_get_image_reply(connection_, cookie, nullptr),
                                                 std::free);
        return image ? *reinterpret_cast<std::uint32_t*>(xcb_get_image_data(image.get())) : 0;
    }
    // Width and height of the window shown.
    std::optional<std::pair<int, int>> Size() {
        const Owned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root_), nullptr), std::free);
        for (int i = 0; tree && i < xcb_query_tree_children_length(tree.get()); ++i) {
            const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
            const Owned<xcb_get_window_attributes_reply_t> state(
                xcb_get_window_attributes_reply(connection_, xcb_get_window_attributes(connection_, window),
                                                nullptr),
                std::free);
            const Owned<xcb_get_geometry_reply_t> place(
                xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr),
                std::free);
            if (state && place && state->map_state == XCB_MAP_STATE_VIEWABLE)
                return std::pair{int{place->width}, int{place->height}};
        }
        return {};
    }

  private:
    xcb_connection_t* connection_;
    xcb_window_t root_;
    std::pair<std::int16_t, std::int16_t> middle_;
};

struct Start {
    double shown, processor;  // milliseconds
    double resident, own;     // KiB
    std::pair<int, int> size;
};

void MeasureMemory(pid_t process, Start& start) {
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    std::string word;
    for (double kib = 0; file >> word;) {
        if (word == "Rss:") file >> start.resident;
        else if (word.rfind("Private_", 0) == 0 && file >> kib) start.own += kib;
    }
}

Start StartOnce(Screen& screen, std::vector<std::string> command) {
    const std::uint32_t before = screen.Pixel();
    const auto start = Clock::now();
    const pid_t process = fork();
    if (process == 0) {
        std::vector<char*> words;
        for (std::string& word : command) words.push_back(word.data());
        words.push_back(nullptr);
        execv(words[0], words.data());
        _exit(127);
    }
    while (screen.Pixel() == before) {
        if (waitpid(process, nullptr, WNOHANG) == process) throw command[0] + " has shown nothing";
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    std::this_thread::sleep_for(milliseconds(300));
    Start measured{time.count(), 0, 0, 0, screen.Size().value_or(std::pair{0, 0})};
    MeasureMemory(process, measured);
    kill(process, SIGTERM);
    rusage used{};
    wait4(process, nullptr, 0, &used);
    for (const timeval& part : {used.ru_utime, used.ru_stime})
        measured.processor +=
            static_cast<double>(part.tv_sec) * 1000 + static_cast<double>(part.tv_usec) / 1000;
    while (screen.Pixel() != before) std::this_thread::sleep_for(milliseconds(1));
    return measured;
}

// What other work on the machine adds is not the program's.
double Least(const std::vector<Start>& starts, double Start::*member) {
    double least = starts.front().*member;
    for (const Start& start : starts) least = std::min(least, start.*member);
    return least;
}

void Run(int starts, const std::string& program, const std::string& bare) {
    Screen screen;
    const auto [width, height] = StartOnce(screen, {program}).size;
    const std::vector<std::string> empty{bare, std::to_string(width), std::to_string(height)};
    std::vector<std::string> text = empty;
    text.push_back("Sorvane");
    const std::vector<std::string> commands[] = {{program}, empty, text};
    StartOnce(screen, empty);
    std::vector<Start> measured[3];
    for (int i = 0; i < starts; ++i)
        for (int which = 0; which < 3; ++which) measured[which].push_back(StartOnce(screen, commands[which]));
    std::printf("%d starts, window of %d x %d\n", starts, width, height);
    std::printf("%-16s %10s %10s %7s %10s %7s\n", "", "program", "empty", "times", "with text", "times");
    const auto print = [&](const char* label, double Start::*member) {
        const double ours = Least(measured[0], member);
        std::printf("%-16s %10.1f", label, ours);
        for (int which : {1, 2}) {
            const double other = Least(measured[which], member);
            std::printf(" %10.1f %7.2f", other, ours / other);
        }
        std::printf("\n");
    };
    print("start, ms", &Start::shown);
    print("processor, ms", &Start::processor);
    print("resident, KiB", &Start::resident);
    print("own, KiB", &Start::own);
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 4 || std::atoi(argv[1]) < 1) {
        std::fputs("start_timer STARTS PROGRAM BARE_WINDOW\n", stderr);
        return 2;
    }
    Run(std::atoi(argv[1]), argv[2], argv[3]);
    return 0;
} catch (const std::string& complaint) {
    std::fprintf(stderr, "%s\n", complaint.c_str());
    return 1;
}
