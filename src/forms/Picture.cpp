#include "forms/Picture.h"

#include <QPainter>
#include <QSvgRenderer>

#include "forms/Utf8.h"

namespace sorvane::forms {

Picture::Picture(std::string_view name, std::string_view svg)
    : Control(*this, name), drawing_(std::make_unique<QSvgRenderer>()) {
    SetSvg(svg);
}

Picture::~Picture() = default;

void Picture::SetSvg(std::string_view svg) {
    drawing_->load(QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
    Loaded();
}

void Picture::SetFile(std::string_view path) {
    drawing_->load(ToQt(path));
    Loaded();
}

void Picture::Loaded() {
    drawing_->setAspectRatioMode(Qt::KeepAspectRatio);
    updateGeometry();
    update();
}

QSize Picture::sizeHint() const { return drawing_->defaultSize(); }

int Picture::heightForWidth(int width) const {
    const QSize size = drawing_->defaultSize();
    return size.width() > 0 ? width * size.height() / size.width() : 0;
}

// What a drawing has beyond its frame is not shown.
void Picture::paintEvent(QPaintEvent*) {
    if (!drawing_->isValid()) return;
    QRectF frame(QPointF(0, 0), drawing_->defaultSize().scaled(size(), Qt::KeepAspectRatio));
    frame.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    painter.setClipRect(frame);
    drawing_->render(&painter, frame);
}

}  // namespace sorvane::forms
