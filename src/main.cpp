#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QTimer>
#include <chrono>

#include "entry/ui/GameWindow.h"
#include "forms/Application.h"
#include "forms/DesktopTools.h"
#include "forms/MessageBoxes.h"
#include "forms/Picture.h"
#include "forms/PrinterDialog.h"
#include "platform/SystemServices.h"
#include "reports/ui/frmReport.h"
#include "shell/Global.h"
#include "shell/ui/Windows.h"
#include "shell/ui/frmMain.h"
#include "store/dao/Dao.h"

using namespace sorvane;

// The program takes no argument: whatever is written behind its name is left aside.
int main(int, char** argv) {
    // Dates and numbers look alike everywhere, also inside Qt's own controls.
    QLocale::setDefault(QLocale::c());
    int arguments = 1;
    forms::Application application(arguments, argv);
    QCoreApplication::setApplicationName("sorvane");
    QGuiApplication::setDesktopFileName("org.sorvane.Sorvane");

    forms::MessageBoxes dialogs;
    forms::PrinterDialog printer;
    SystemClock clock;
    SystemRandom random;
    forms::DesktopTools tools;
    Dao::Engine engine;
    Services services{dialogs, printer, clock, random, tools, engine};
    Global global;
    Session session{global, services};
    Windows windows(session, {GameWindow::Make, frmReport::Make});

    const std::string folder = QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
    frmMain window(session, windows, folder, [] { QCoreApplication::exit(); });
    window.Load();
    window.Show();
    // Drawing the icon, and asking the desktop, can wait until the window is on the screen.
    constexpr std::chrono::milliseconds Painted{100};
    QTimer::singleShot(Painted, &window, [&application] {
        QGuiApplication::setWindowIcon(forms::WindowIcon(":/pictures/icon.svg"));
        application.FollowDesktop();
    });
    return QCoreApplication::exec();
}
