// KeyPress: each character before it reaches the field.
#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <functional>
#include <utility>

namespace sorvane::forms {

// One character on its way into a field.
struct KeyPress {
    int KeyAscii;  // the character's code; Backspace 8, Enter 13
    // The key never reaches the field.
    void Swallow() { swallowed_ = true; }
    bool Swallowed() const { return swallowed_; }

  private:
    friend class KeyHandler;
    explicit KeyPress(int key) : KeyAscii(key) {}
    bool swallowed_ = false;
};

// The handler of a field and the rule of what is a key press: keys that make a character, Backspace and
// Enter, and committed text of an input method. Arrows, Tab, Delete and shortcuts are none.
class KeyHandler {
  public:
    void Attach(std::function<void(KeyPress&)> handler) { handler_ = std::move(handler); }
    bool Attached() const { return static_cast<bool>(handler_); }
    // Fires for this event if it is a key press; true when it was swallowed.
    bool Refuses(const QKeyEvent& event) const;
    // Hands committed text over character by character, each to `insert` unless it was swallowed.
    void Commit(const QInputMethodEvent& event, const std::function<void(QInputMethodEvent&)>& insert) const;

  private:
    bool Refuses(int key) const;
    std::function<void(KeyPress&)> handler_;
};

// A Qt field with KeyPress.
template <class Field>
class KeyFilter : public Field {
  public:
    using Field::Field;
    void OnKeyPress(std::function<void(KeyPress&)> handler) { keys_.Attach(std::move(handler)); }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (keys_.Refuses(*event)) event->accept();
        else Field::keyPressEvent(event);
    }
    void inputMethodEvent(QInputMethodEvent* event) override {
        if (event->commitString().isEmpty() || !keys_.Attached()) Field::inputMethodEvent(event);
        else keys_.Commit(*event, [this](QInputMethodEvent& part) { Field::inputMethodEvent(&part); });
        event->accept();
    }

  private:
    KeyHandler keys_;
};

}  // namespace sorvane::forms
