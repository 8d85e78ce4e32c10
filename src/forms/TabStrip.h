// Pages with tabs.
#pragma once

#include <QTabWidget>

#include "forms/Control.h"

namespace sorvane::forms {

// On a change of tab the page is in front first; then LostFocus and GotFocus of the controls that the change
// concerns; then Click. Access keys of tabs yield to those of the controls on the page. Ctrl+Tab and
// Ctrl+PageDown bring the next tab in front, with Shift and Ctrl+PageUp the one before, round and round,
// whatever control of the window has the focus.
class TabStrip : public QTabWidget, public Control {
  public:
    explicit TabStrip(std::string_view name);

    // Adds a page, which scrolls when the strip is too small for it; it is declared behind the tab strip. The
    // caption is kept as given, '&' included.
    void AddTab(QWidget& page, std::string_view caption);
    // The tab in front, from 0.
    int Tab() const { return currentIndex(); }
    // Brings a tab in front; fires Click when it was another one.
    void SetTab(int index);
    // The caption of the tab in front.
    std::string Caption() const;
    // Click: another tab has come in front, by the user or by the program.
    void OnClick(std::function<void()> handler) { click_ = std::move(handler); }

  private:
    class Bar;
    class Change;
    void AddKeys(const QList<QKeySequence>& keys, int step);
    void Turn(int step);
    std::function<void()> click_;
};

}  // namespace sorvane::forms
