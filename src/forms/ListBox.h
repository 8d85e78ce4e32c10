// A list of lines.
#pragma once

#include <QListView>
#include <memory>

#include "forms/Control.h"
#include "platform/Lines.h"

namespace sorvane::forms {

// Ctrl+C copies the selected row; Ctrl+A marks all rows for the next Ctrl+C, which no handler hears of and
// which leaves ListIndex as it was. The menu of a row offers both. Rows are copied as they read, one a line.
class ListBox : public QListView, public Control, public Lines {
  public:
    explicit ListBox(std::string_view name);
    ~ListBox() override;

    void AddItem(std::string_view text) override;
    void Clear() override;
    int ListCount() const override;

    // A row's text; raises 9 outside 0 to ListCount() - 1.
    std::string Text(int row) const;
    // The selected row, -1 for none.
    int ListIndex() const;
    // Selects a row and scrolls to it, -1 selects none. A row that isn't there changes nothing. No Click.
    void SetListIndex(int row);
    void ClearSelection() { SetListIndex(-1); }

    // Click: the user has chosen a row, by mouse or keyboard, the selected one included.
    void OnClick(std::function<void()> handler) { click_ = std::move(handler); }
    // DblClick: the user has double-clicked a row, or pressed Enter on it.
    void OnDblClick(std::function<void()> handler) { dblClick_ = std::move(handler); }

    // A text painted in the middle while the list is empty; never a row.
    void SetHint(std::string_view text);
    // Rows for which this holds are shown as winners: an icon before the text and a heavier font.
    void SetWinners(std::function<bool(int row, std::string_view text)> isWinner);
    // A font whose characters are all of one width.
    void SetFixedPitch();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    class Model;
    class Delegate;
    void AdaptIcons();
    void Describe();
    void MarkAll(bool marked);
    void Copy() const;
    void CopyAll() const;
    std::unique_ptr<Model> model_;
    std::unique_ptr<Delegate> delegate_;
    std::function<void()> click_, dblClick_;
    QString hint_;
    bool pressed_ = false;
    bool allMarked_ = false;
};

}  // namespace sorvane::forms
