// Windows with a loop of their own.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/Control.h"
#include "forms/Runtime.h"

class QEventLoop;

namespace sorvane::forms {

// No button is the default one: Enter clicks the button that has the focus and nothing else.
class Window : public QWidget {
  public:
    enum class Kind { Main, Dialog };
    // `name` becomes Qt's objectName: "frm649".
    explicit Window(std::string_view name, Kind kind = Kind::Dialog);
    // Must not be called while its ShowModal runs.
    ~Window() override;

    std::string Name() const;
    // The title exactly; an empty one shows an empty title bar.
    std::string Caption() const;
    void SetCaption(std::string_view caption);

    // Shows the window in front of the one that is in front now, which takes no input meanwhile, and returns
    // when it has been left by Unload(). Does nothing while an earlier call has not returned.
    void ShowModal();
    // Shows the window and returns at once: for the main window.
    void Show();
    // Hides the window and ends its loop; the handler in hand goes on. From here on none of its controls gets
    // or loses the focus. The object stays as it is and must live until ShowModal has returned; it can be
    // shown again.
    void Unload();
    bool IsShown() const { return level_ != nullptr && isVisible(); }

    // The close box presses this button: it clicks without moving the focus. Without one the close box
    // unloads.
    void SetCloseButton(CommandButton& button) { closeButton_ = &button; }
    // Escape presses this button. Without one Escape does nothing.
    void SetEscapeButton(CommandButton& button) { escapeButton_ = &button; }
    // The control that has the focus when the window opens, without GotFocus of any other; else the first in
    // tab order that is enabled.
    void SetFirstFocus(Control& control) { firstFocus_ = &control.Widget(); }
    // Who gets the focus when the control that had it is hidden or disabled: the first of these that can take
    // it, else the next enabled control that is not a field for text.
    void SetFallbackFocus(std::vector<Control*> controls) { fallback_ = std::move(controls); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void showEvent(QShowEvent* event) override;

  private:
    friend class Runtime;
    void Appear(Qt::WindowModality modality);
    // The widget that takes the focus when `lost` (may be null) can't keep it; null when there is none.
    QWidget* Fallback(QWidget* lost);
    void TitleToSystem();
    void TakeSize();

    std::unique_ptr<Runtime::Modal> level_;
    QEventLoop* loop_ = nullptr;
    QPointer<CommandButton> closeButton_, escapeButton_;
    QPointer<QWidget> firstFocus_;
    std::vector<Control*> fallback_;
};

// The Tab key goes through the widgets in this order; those that are hidden or disabled are passed over.
void SetTabOrder(const std::vector<QWidget*>& order);

}  // namespace sorvane::forms
