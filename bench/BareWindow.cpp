// A window with nothing in it, or with a line of text: bare_window WIDTH HEIGHT [TEXT]
#include <QApplication>
#include <QLabel>
#include <cstdlib>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 3) return 2;
    QWidget window;
    window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
    if (argc > 3) new QLabel(QString::fromLocal8Bit(argv[3]), &window);
    window.show();
    return QApplication::exec();
}
