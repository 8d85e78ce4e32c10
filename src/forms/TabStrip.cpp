#include "forms/TabStrip.h"

#include <QEvent>
#include <QShortcut>
#include <QTabBar>

#include "forms/AccessKeys.h"
#include "forms/Runtime.h"
#include "forms/ScrollPage.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

// Surrounds whatever may bring another tab in front. Focus events are held back until the page is there: in
// the middle of the change the pages paint nothing, and the focus passes through controls where it won't
// stay.
class TabStrip::Change {
  public:
    explicit Change(TabStrip& tabs) : tabs_(tabs), before_(tabs.currentIndex()) {}
    ~Change() {
        hold_.Release();
        if (tabs_.currentIndex() != before_) Fire(tabs_.click_);
    }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

  private:
    TabStrip& tabs_;
    int before_;
    Runtime::Hold hold_;
};

class TabStrip::Bar : public QTabBar {
  public:
    explicit Bar(TabStrip& tabs) : tabs_(tabs) {}

  protected:
    bool event(QEvent* event) override {
        if (HandleAccessKey(*this, *event)) return true;
        if (!event->isInputEvent()) return QTabBar::event(event);  // some come while the strip is torn down
        Change change(tabs_);
        return QTabBar::event(event);
    }

  private:
    TabStrip& tabs_;
};

TabStrip::TabStrip(std::string_view name) : Control(*this, name) {
    setTabBar(new Bar(*this));
    AddKeys({Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown}, 1);
    AddKeys({Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab,
             Qt::CTRL | Qt::Key_PageUp},
            -1);
}

// The keys belong to the whole window, since some controls would keep them for themselves.
void TabStrip::AddKeys(const QList<QKeySequence>& keys, int step) {
    auto* shortcut = new QShortcut(this);
    shortcut->setKeys(keys);
    connect(shortcut, &QShortcut::activated, this, [this, step] { Turn(step); });
}

void TabStrip::Turn(int step) {
    for (int i = 1; i < count(); ++i) {
        const int next = (currentIndex() + i * (step + count())) % count();
        if (isTabEnabled(next)) return SetTab(next);
    }
}

void TabStrip::AddTab(QWidget& page, std::string_view caption) {
    addTab(new ScrollPage(page), ToQt(caption));
}

void TabStrip::SetTab(int index) {
    Change change(*this);
    setCurrentIndex(index);
}

std::string TabStrip::Caption() const { return ToUtf8(tabText(currentIndex())); }

}  // namespace sorvane::forms
