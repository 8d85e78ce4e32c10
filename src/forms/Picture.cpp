#include "forms/Picture.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>

#include "forms/Utf8.h"

namespace sorvane::forms {

Picture::Picture(std::string_view name) : Control(*this, name), drawing_(std::make_unique<QSvgRenderer>()) {}

Picture::~Picture() = default;

void Picture::SetFile(std::string_view path) {
    drawing_->load(ToQt(path));
    later_.clear();
    updateGeometry();
    update();
}

void Picture::SetFileLater(std::string_view path, QSize size) {
    sizeToCome_ = size;
    later_ = path;
    updateGeometry();
}

void Picture::LoadNow() {
    if (!later_.empty()) SetFile(std::string(later_));
}

QSize Picture::DrawingSize() const { return later_.empty() ? drawing_->defaultSize() : sizeToCome_; }

QSize Picture::sizeHint() const { return DrawingSize(); }

int Picture::heightForWidth(int width) const {
    const QSize size = DrawingSize();
    return size.width() > 0 ? width * size.height() / size.width() : 0;
}

// The parts of a drawing that lie outside its frame are not shown.
void Picture::paintEvent(QPaintEvent*) {
    if (!later_.empty()) QTimer::singleShot(0, this, &Picture::LoadNow);
    if (!drawing_->isValid()) return;
    QRectF frame(QPointF(0, 0), drawing_->defaultSize().scaled(size(), Qt::KeepAspectRatio));
    frame.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    painter.setClipRect(frame);
    drawing_->render(&painter, frame);
}

// Drawn here, because an icon that names the file would load Qt's plugin for such icons at every start.
QIcon WindowIcon(std::string_view path) {
    QSvgRenderer drawing(ToQt(path));
    QIcon icon;
    for (int side : {16, 32, 64, 128}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace sorvane::forms
