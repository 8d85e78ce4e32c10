// A document to be read: Markdown with pictures and links.
#pragma once

#include <QTextBrowser>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"

namespace sorvane::forms {

// Pictures are as wide as the page at most and are read when they come into sight. Links lead to headings and
// to documents beside this one, never out to the network. A change of size leaves what is read where it is.
class Reader : public QTextBrowser, public Control {
  public:
    struct Heading {
        int level;  // 1: the title
        std::string text;
    };

    explicit Reader(std::string_view name);
    ~Reader() override;

    // Shows a Markdown file from the heading with this text, or from its beginning where there is none. False
    // when it can't be read: nothing changes then.
    bool Open(const std::string& path, std::string_view heading = {});
    // Shows this instead of a document.
    void SetText(std::string_view text);

    // The headings of the document in front, in their order.
    const std::vector<Heading>& Headings() const { return headings_; }
    // Brings the heading, counted from 0, to the upper edge.
    void GoTo(int heading);
    // The heading that the upper edge of the page is under, -1 before the first.
    int HeadingInView() const;

    // Selects the next place with this text in it, in capitals or not, after the last one from the beginning
    // again. False when it is nowhere.
    bool FindNext(std::string_view text);

    // The way back over links and headings that were gone to.
    bool CanGoBack() const { return isBackwardAvailable(); }
    void GoBack() { backward(); }

    // Another document is in front.
    void OnOpen(std::function<void()> handler) { open_ = std::move(handler); }
    // Another place is in sight, or there is another way back.
    void OnMove(std::function<void()> handler) { move_ = std::move(handler); }

    QSize sizeHint() const override;

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    class Pictures;
    void Follow(const QUrl& link);
    void Arrived(const QUrl& place);
    void ListHeadings();
    void SetOut();
    void SetOutBlock(QTextCursor& cursor) const;
    void SetOutLinks(const QTextBlock& block);
    void SetOutTables();
    void Scrolled();
    void ScrollTo(int position);
    void StayWhile(const std::function<void()>& change);
    int PositionAtTop() const;

    std::unique_ptr<Pictures> pictures_;
    std::vector<Heading> headings_;
    std::vector<int> positions_;  // of the headings
    QUrl shown_;                  // the document that the headings are of
    int top_ = 0;                 // the place at the upper edge
    bool settling_ = false;
    std::function<void()> open_, move_;
};

}  // namespace sorvane::forms
