// A frame with a caption around controls.
#pragma once

#include <QGroupBox>
#include <functional>
#include <string>

#include "forms/Control.h"

namespace sorvane::forms {

class LabelFrame : public QGroupBox, public Control {
  public:
    explicit LabelFrame(std::string_view name, std::string_view caption = {});

    std::string Caption() const;
    void SetCaption(std::string_view caption);
    // A text painted at the right of the caption, smaller where there is little room, and told to screen
    // readers; it is asked for at every painting.
    void SetHint(std::function<std::string()> hint) { hint_ = std::move(hint); }
    // A press on the frame, or on what is shut in it, while `field` has the focus leaves that field as the
    // Tab key does. If this opens what was pressed, that takes the press, unless a box or window has come up.
    void LeaveByPress(Control& field) { left_ = &field; }
    // The hint says something else now.
    void RefreshHint();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QRect Heading() const;
    void Tell(const QString& hint);
    std::function<std::string()> hint_;
    Control* left_ = nullptr;
};

}  // namespace sorvane::forms
