// A field of several lines.
#pragma once

#include <QPlainTextEdit>

#include "forms/Control.h"
#include "forms/KeyFilter.h"

namespace sorvane::forms {

// Line breaks are carriage return and line feed in what goes in and comes out. Tab leaves the field. What is
// typed, pasted or dropped ends where Text() would have more than MostCharacters; the program may set more.
class MultiLineBox : public KeyFilter<QPlainTextEdit>, public Control {
  public:
    static constexpr qsizetype MostCharacters = 32767;
    explicit MultiLineBox(std::string_view name);

    std::string Text() const;
    void SetText(std::string_view text);
    void OnChange(std::function<void()> handler) { change_ = std::move(handler); }
    void SetReadOnly(bool readOnly);
    // A font whose characters are all of one width; lines are not wrapped then.
    void SetFixedPitch();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    // How many characters more there is room for, those selected now given up.
    qsizetype Room() const;
    // The beginning of a text that there is room for.
    QString Fitting(QString text) const;
    std::function<void()> change_;
};

}  // namespace sorvane::forms
