// The palettes in which the program must be readable.
#pragma once

#include <QPalette>
#include <string_view>
#include <vector>

namespace sorvane::test {

// A light palette with disabled texts and an accent as pale as those of real desktops.
inline QPalette LightPalette() {
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    return palette;
}

inline QPalette DarkPalette() {
    QPalette palette(QColor(58, 58, 58), QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(45, 45, 45));
    palette.setColor(QPalette::AlternateBase, QColor(36, 36, 36));
    palette.setColor(QPalette::Link, QColor(120, 180, 255));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(58, 58, 58));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

inline QPalette ContrastPalette(const QColor& paper, const QColor& ink, const QColor& accent) {
    QPalette palette(ink, paper, ink, ink, ink, ink, ink, paper, paper);
    palette.setColor(QPalette::AlternateBase, paper);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, paper);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::ToolTipBase, paper);
    palette.setColor(QPalette::ToolTipText, ink);
    return palette;
}
inline QPalette HighContrastPalette() { return ContrastPalette(Qt::black, Qt::white, Qt::yellow); }
inline QPalette HighContrastLightPalette() {
    return ContrastPalette(Qt::white, Qt::black, QColor(0, 0, 160));
}

struct NamedPalette {
    std::string_view name;
    QPalette palette;
};
inline std::vector<NamedPalette> AllPalettes() {
    return {{"Light", LightPalette()},
            {"Grey", QPalette(Qt::lightGray)},
            {"Dark", DarkPalette()},
            {"HighContrast", HighContrastPalette()},
            {"HighContrastLight", HighContrastLightPalette()}};
}

}  // namespace sorvane::test
