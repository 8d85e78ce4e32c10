// A drawing, sharp at every size.
#pragma once

#include <QIcon>
#include <QSize>
#include <QWidget>
#include <memory>
#include <string>

#include "forms/Control.h"

class QSvgRenderer;

namespace sorvane::forms {

class Picture : public QWidget, public Control {
  public:
    explicit Picture(std::string_view name);
    ~Picture() override;
    // An SVG drawing from a file or from a resource (":/..."); one that can't be read shows nothing.
    void SetFile(std::string_view path);
    // As SetFile, for a drawing whose size, in pixels, is known beforehand: the window is shown without
    // waiting for it, and the drawing follows as soon as the first frame is on the screen.
    void SetFileLater(std::string_view path, QSize size);
    QSize sizeHint() const override;
    // Layouts keep the drawing's proportions where they can.
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    // Painted as large as fits, in its own proportions.
    void paintEvent(QPaintEvent* event) override;

  private:
    void LoadNow();
    QSize DrawingSize() const;
    std::unique_ptr<QSvgRenderer> drawing_;
    std::string later_;  // the file of a drawing that waits for the first frame
    QSize sizeToCome_;
};

// The icon of windows from a drawing in a file or resource, in the sizes that a window manager asks for.
QIcon WindowIcon(std::string_view path);

}  // namespace sorvane::forms
