#include "support/Stage.h"

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QProxyStyle>
#include <cstdio>
#include <fstream>
#include <string>

#include "forms/Style.h"
#include "support/Palettes.h"

namespace sorvane::test {

namespace {

// Nothing moves by itself; the palette is that of the desktop.
class StillStyle : public QProxyStyle {
  public:
    explicit StillStyle(const QPalette& palette) : QProxyStyle(new forms::Style), palette_(palette) {}
    using QProxyStyle::polish;
    void polish(QPalette& palette) override {
        palette = palette_;
        QProxyStyle::polish(palette);
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }

  private:
    QPalette palette_;
};

// Silences a message about each window that the platform without a screen would print.
void Report(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

}  // namespace

Stage::Stage(int scale) {
    qInstallMessageHandler(Report);
    qputenv("TZ", "America/Toronto");
    qputenv("QT_QPA_PLATFORMTHEME", "");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale / 100.0));
    QLocale::setDefault(QLocale::c());
    // The platform without a screen has another one of its own, on which not all has room.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && !platform.startsWith("offscreen")) return;
    const std::string file = screen_.File("screen.json");
    const auto screen = [scale](const char* name, int x, int width, int height) {
        return R"({"logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1, "y": 0, "name": ")" + std::string(name) +
               R"(", "x": )" + std::to_string(x * scale / 100) + R"(, "width": )" +
               std::to_string(width * scale / 100) + R"(, "height": )" +
               std::to_string(height * scale / 100) + "}";
    };
    std::ofstream(file) << R"({"screens": [)" << screen("stage", 0, 1366, 768) << ", "
                        << screen("wing", 1366, 800, 480) << "]}";
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QByteArray::fromStdString(file));
}

void Stage::Set() const {
    SetDesktopPalette(LightPalette());
    QApplication::setFont(QFont("DejaVu Sans", 10));
    QApplication::setCursorFlashTime(0);
}

void SetDesktopPalette(const QPalette& palette) { QApplication::setStyle(new StillStyle(palette)); }

}  // namespace sorvane::test
