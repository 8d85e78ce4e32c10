#include "tour/Album.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <regex>
#include <vector>

#include "forms/Look.h"
#include "forms/Utf8.h"

namespace sorvane::tour {

namespace {

namespace fs = std::filesystem;

// One window of a picture; `at` is its place in the coordinates of the window at the bottom.
struct Part {
    QWidget* window;
    QRect at;
};

// Pixels of the bar that a desktop puts over a window, with its title.
int BarHeight(const QWidget& window) {
    return window.windowFlags().testFlag(Qt::Popup) ? 0 : forms::Look::TitleBar(window);
}

QRect WithFrame(const Part& part) { return part.at.adjusted(-1, -BarHeight(*part.window) - 1, 1, 1); }

QWidget* WindowBehind(const QWidget& window) {
    if (window.parentWidget()) return window.parentWidget()->window();
    const QWindow* behind = window.windowHandle()->transientParent();
    for (QWidget* other : QApplication::topLevelWidgets())
        if (behind && other->windowHandle() == behind) return other;
    return nullptr;
}

// Whether enough of it is to be seen.
bool IsLarger(const QWidget* behind, const QWidget& front) {
    return behind && behind->isVisible() && behind->width() * 6 > front.width() * 7 &&
           behind->height() * 6 > front.height() * 7;
}

// From the bottom to the top.
std::vector<Part> PartsOf(QWidget& front) {
    std::vector<Part> parts;
    if (QWidget* behind = WindowBehind(front); IsLarger(behind, front)) {
        parts = PartsOf(*behind);
        QRect middle(QPoint(), front.size());
        middle.moveCenter(parts.back().at.center());
        parts.push_back({&front, middle});
    } else {
        parts.push_back({&front, QRect(QPoint(), front.size())});
    }
    return parts;
}

void AddMenus(std::vector<Part>& parts, const QWidget& front) {
    const QPoint origin = front.geometry().topLeft() - parts.back().at.topLeft();
    std::vector<Part> menus;
    for (QWidget* popup : QApplication::topLevelWidgets())
        if (popup->isVisible() && popup->windowFlags().testFlag(Qt::Popup))
            menus.push_back({popup, popup->geometry().translated(-origin)});
    std::sort(menus.begin(), menus.end(), [](const Part& one, const Part& other) {
        return one.at.x() + one.at.y() < other.at.x() + other.at.y();
    });
    parts.insert(parts.end(), menus.begin(), menus.end());
}

void Paint(QPainter& painter, const Part& part) {
    const QPalette palette = part.window->palette();
    const QRect frame = WithFrame(part);
    painter.fillRect(frame, palette.color(QPalette::Dark));
    if (const int height = BarHeight(*part.window); height > 0) {
        const QRect bar(part.at.x(), part.at.y() - height, part.at.width(), height);
        painter.fillRect(bar, palette.color(QPalette::Mid));
        painter.setPen(
            forms::Look::Readable(palette.color(QPalette::WindowText), palette.color(QPalette::Mid)));
        QFont font = part.window->font();
        font.setBold(true);
        painter.setFont(font);
        const QRect text = bar.adjusted(height / 3, 0, -height / 3, 0);
        painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, part.window->windowTitle());
        if (part.window->windowFlags().testFlag(Qt::WindowCloseButtonHint))
            painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("\u00d7"));
    }
    painter.drawPixmap(part.at.topLeft(), part.window->grab());
}

}  // namespace

Album::Album(fs::path folder) : folder_(std::move(folder)) {
    fs::create_directories(folder_);
    const std::regex ours("[0-9]{2}-[a-z0-9-]+\\.(png|pdf)");
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_))
        if (std::regex_match(entry.path().filename().string(), ours)) fs::remove(entry.path());
}

std::string Album::Next(std::string_view name, std::string_view ending) {
    const std::string number = std::to_string(pictures_ + pages_);
    const std::string file = std::string(number.size() < 2 ? "0" : "") + number + "-" + std::string(name);
    std::printf("  %s%s\n", file.c_str(), std::string(ending).c_str());
    std::fflush(stdout);
    return (folder_ / (file + std::string(ending))).string();
}

std::string Album::NextPage(std::string_view name) {
    ++pages_;
    return Next(name, ".pdf");
}

void Album::Take(QWidget& front, std::string_view name) {
    ++pictures_;
    const std::string file = Next(name, ".png");
    std::vector<Part> parts = PartsOf(front);
    AddMenus(parts, front);
    QRect all;
    for (const Part& part : parts) all |= WithFrame(part);
    const qreal scale = front.devicePixelRatioF();
    QImage picture(all.size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(-all.topLeft());
    for (const Part& part : parts) Paint(painter, part);
    painter.end();
    if (!picture.save(forms::ToQt(file))) ADD_FAILURE() << "can't write " << file;
}

}  // namespace sorvane::tour
