#include "support/Stage.h"

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QProxyStyle>
#include <QStyleFactory>
#include <cstdio>

namespace sorvane::test {

namespace {

// Nothing moves by itself.
class StillStyle : public QProxyStyle {
  public:
    StillStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

// What the platform without a screen can't do needs no line for each window.
void Report(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

}  // namespace

void PrepareStage() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Report);
    qputenv("TZ", "America/Toronto");
    qputenv("QT_QPA_PLATFORMTHEME", "");
    QLocale::setDefault(QLocale::c());
}

void SetStage() {
    QApplication::setStyle(new StillStyle);
    QApplication::setFont(QFont("DejaVu Sans", 10));
    QApplication::setCursorFlashTime(0);
}

}  // namespace sorvane::test
