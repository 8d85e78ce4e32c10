// A drawing, sharp at every size.
#pragma once

#include <QWidget>
#include <memory>

#include "forms/Control.h"

class QSvgRenderer;

namespace sorvane::forms {

class Picture : public QWidget, public Control {
  public:
    // The text of an SVG drawing; one that can't be read shows nothing.
    explicit Picture(std::string_view name, std::string_view svg = {});
    ~Picture() override;
    void SetSvg(std::string_view svg);
    // A drawing from a file or from a resource (":/...").
    void SetFile(std::string_view path);
    QSize sizeHint() const override;
    // Layouts keep the drawing's proportions where they can.
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    // Painted as large as fits, in its own proportions.
    void paintEvent(QPaintEvent* event) override;

  private:
    void Loaded();
    std::unique_ptr<QSvgRenderer> drawing_;
};

}  // namespace sorvane::forms
