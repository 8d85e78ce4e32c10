// What the tests of windows share: a window that writes down what happens.
#pragma once

#include <gtest/gtest.h>

#include <QVBoxLayout>
#include <string>
#include <utility>
#include <vector>

#include "forms/Window.h"
#include "support/Person.h"

namespace sorvane::test {

using Log = std::vector<std::string>;

class LoggingWindow : public forms::Window {
  public:
    explicit LoggingWindow(std::string_view name = "frmTest", Kind kind = Kind::Main) : Window(name, kind) {
        new QVBoxLayout(this);
    }

    template <class... Controls>
    void LayOut(Controls&... controls) {
        (layout()->addWidget(&controls.Widget()), ...);
    }
    // Writes "+name" and "-name" when these controls get and lose the focus.
    template <class... Controls>
    void Watch(Controls&... controls) {
        (WatchOne(controls), ...);
    }
    void Write(std::string entry) { log.push_back(std::move(entry)); }

    Log log;

  private:
    void WatchOne(forms::Control& control) {
        control.OnGotFocus([this, &control] { Write("+" + control.Name()); });
        control.OnLostFocus([this, &control] { Write("-" + control.Name()); });
    }
};

// Shows the window and forgets what showing it wrote.
inline void Open(LoggingWindow& window) {
    window.Show();
    Person::Await(window);
    Person::Settle();
    window.log.clear();
}

}  // namespace sorvane::test
