// A field with a list to choose from.
#pragma once

#include <QComboBox>

#include "forms/Control.h"
#include "forms/KeyFilter.h"

namespace sorvane::forms {

class ComboBox : public KeyFilter<QComboBox>, public Control {
  public:
    enum class Style { Editable, ListOnly };
    explicit ComboBox(std::string_view name, Style style = Style::Editable);

    // Adds an entry at the end; neither text nor selection changes.
    void AddItem(std::string_view text);
    // Removes all entries and empties the text.
    void Clear();
    int ListCount() const { return count(); }
    // The text of an entry; raises 9 outside 0 to ListCount() - 1.
    std::string List(int index) const;

    std::string Text() const;
    // Editable: any text. List only: selects the entry with this text; a text that is no entry selects none.
    void SetText(std::string_view text);
    // The entry selected, -1 for none (in an editable one: the text is no entry).
    int ListIndex() const;
    // Selects an entry, -1 none; raises 9 for an entry that isn't there.
    void SetListIndex(int index);

    // Change: the text has become another one, by the user or by the program.
    void OnChange(std::function<void()> handler) { change_ = std::move(handler); }
    // Selects the whole text of an editable one; holds also when a mouse press brought the focus.
    void SelectAll();

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    void TextMayHaveChanged();
    std::function<void()> change_;
    QString lastText_;
    bool filling_ = false;
};

}  // namespace sorvane::forms
