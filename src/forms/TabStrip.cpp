#include "forms/TabStrip.h"

#include <QEvent>
#include <QTabBar>

#include "forms/AccessKeys.h"
#include "forms/Runtime.h"
#include "forms/ScrollPage.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

// Something that may bring another tab in front. Events of focus are kept until the page is there: in the
// middle of the change the pages paint nothing, and the focus stops at places where it won't stay.
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
    setDocumentMode(false);
}

void TabStrip::AddTab(QWidget& page, std::string_view caption) {
    addTab(new ScrollPage(page), ToQt(caption));
}

void TabStrip::SetTab(int index) {
    Change change(*this);
    setCurrentIndex(index);
}

std::string TabStrip::Caption() const { return ToUtf8(tabText(currentIndex())); }

// Keys that the page left over, such as the one for the next tab.
void TabStrip::keyPressEvent(QKeyEvent* event) {
    Change change(*this);
    QTabWidget::keyPressEvent(event);
}

}  // namespace sorvane::forms
