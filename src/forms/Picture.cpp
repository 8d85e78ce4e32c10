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

void Picture::paintEvent(QPaintEvent*) {
    if (!drawing_->isValid()) return;
    QPainter painter(this);
    drawing_->render(&painter, QRectF(rect()));
}

}  // namespace sorvane::forms
