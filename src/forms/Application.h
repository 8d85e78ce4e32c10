// The one application object.
#pragma once

#include <QApplication>

#include "forms/Runtime.h"

namespace sorvane::forms {

// Made first in main. Applies the rules of events to all windows: a press whose way was stopped by a box or a
// window is dropped.
class Application : public QApplication {
  public:
    Application(int& argc, char** argv);

    Runtime& Events() { return runtime_; }
    // From now on dark or light as the desktop's settings portal tells. Returns at once; what the portal says
    // comes while events are handled.
    void FollowDesktop();
    // Dark colours, where the desktop's own are light; else the desktop's own.
    void PreferDark(bool dark);
    bool notify(QObject* receiver, QEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    Runtime runtime_;
};

}  // namespace sorvane::forms
