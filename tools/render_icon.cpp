// Draws an SVG picture as a square PNG: render_icon picture.svg SIZE picture.png
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("render_icon picture.svg SIZE picture.png\n", stderr);
        return 2;
    }
    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    const int size = QByteArray(argv[2]).toInt();
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter);
    painter.end();
    if (picture.isValid() && image.save(QString::fromLocal8Bit(argv[3]))) return 0;
    std::fprintf(stderr, "render_icon: %s was not drawn\n", argv[3]);
    return 1;
}
