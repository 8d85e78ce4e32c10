#include "forms/Reader.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextList>
#include <QTextObjectInterface>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "forms/Look.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

namespace {

// The name that links give to a heading: small letters, no signs, a hyphen for each blank.
QString AnchorOf(const QString& heading) {
    QString anchor;
    for (const QChar character : heading.toLower())
        if (character == u' ') anchor += u'-';
        else if (character.isLetterOrNumber() || character == u'-' || character == u'_') anchor += character;
    return anchor;
}

bool IsMarkdown(const QUrl& document) { return document.path().endsWith(QLatin1String(".md")); }

}  // namespace

// Qt would read all pictures before the first line is shown, and shrink them roughly.
class Reader::Pictures final : public QObject, public QTextObjectInterface {
  public:
    explicit Pictures(const Reader& reader) : reader_(reader) {}

    // How Qt asks for the interface, as its compiler of classes would write it.
    void* qt_metacast(const char* name) override {
        if (std::strcmp(name, qobject_interface_iid<QTextObjectInterface*>()) == 0)
            return static_cast<QTextObjectInterface*>(this);
        return QObject::qt_metacast(name);
    }

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override {
        const QString path = PathOf(format);
        auto size = sizes_.find(path);
        if (size == sizes_.end()) size = sizes_.insert(path, QImageReader(path).size());
        if (!size->isValid()) return {};
        const QTextBlock block = document->findBlock(position);
        const int steps =
            block.blockFormat().indent() + (block.textList() ? block.textList()->format().indent() : 0);
        const double room =
            reader_.viewport()->width() - 2 * document->documentMargin() - steps * document->indentWidth();
        return QSizeF(*size) * std::min(1.0, room / size->width());
    }

    void drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int,
                    const QTextFormat& format) override {
        const QString path = PathOf(format);
        QPixmap picture;
        if (!QPixmapCache::find(path, &picture) && picture.load(path)) QPixmapCache::insert(path, picture);
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(place, picture, picture.rect());
    }

  private:
    QString PathOf(const QTextFormat& format) const {
        return reader_.source().resolved(QUrl(format.toImageFormat().name())).toLocalFile();
    }

    const Reader& reader_;
    QHash<QString, QSize> sizes_;
};

Reader::Reader(std::string_view name) : Control(*this, name), pictures_(std::make_unique<Pictures>(*this)) {
    setOpenLinks(false);
    document()->setDocumentMargin(Look::Margin(*this));
    document()->documentLayout()->registerHandler(QTextFormat::ImageObject, pictures_.get());
    connect(this, &QTextBrowser::anchorClicked, this, &Reader::Follow);
    connect(this, &QTextBrowser::sourceChanged, this, &Reader::Arrived);
    connect(this, &QTextBrowser::historyChanged, this, [this] { Fire(move_); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &Reader::Scrolled);
}

Reader::~Reader() = default;

bool Reader::Open(const std::string& path, std::string_view heading) {
    const QFileInfo file(ToQt(path));
    if (!file.isFile() || !file.isReadable()) return false;
    QUrl place = QUrl::fromLocalFile(file.absoluteFilePath());
    if (!heading.empty()) place.setFragment(AnchorOf(ToQt(heading)));
    setSource(place, QTextDocument::MarkdownResource);
    return true;
}

void Reader::SetText(std::string_view text) { setPlainText(ToQt(text)); }

// Nothing is fetched from the network.
void Reader::Follow(const QUrl& link) {
    const QUrl document = link.adjusted(QUrl::RemoveFragment);
    if (document == shown_ || QFileInfo(document.toLocalFile()).isReadable())
        setSource(link, QTextDocument::MarkdownResource);
}

// Documents of other kinds are shown as they stand.
QVariant Reader::loadResource(int type, const QUrl& name) {
    const QVariant whole = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::MarkdownResource || IsMarkdown(name)) return whole;
    return "```\n" + whole.toByteArray().trimmed() + "\n```\n";
}

// Called by Qt for each place that it has gone to, forwards and back.
void Reader::Arrived(const QUrl& place) {
    const QUrl opened = place.adjusted(QUrl::RemoveFragment);
    if (std::exchange(shown_, opened) != opened) {
        SetOut();
        ListHeadings();
        Fire(open_);
    }
    const QString anchor = place.fragment();
    int position = 0;
    for (std::size_t i = 0; i < headings_.size(); ++i)
        if (!anchor.isEmpty() && AnchorOf(ToQt(headings_[i].text)) == anchor) position = positions_[i];
    QTextCursor caret(document());
    caret.setPosition(position);
    setTextCursor(caret);
    top_ = position;
    ScrollTo(position);
    Fire(move_);
}

void Reader::ListHeadings() {
    headings_.clear();
    positions_.clear();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        if (const int level = block.blockFormat().headingLevel(); level > 0) {
            headings_.push_back({level, ToUtf8(block.text())});
            positions_.push_back(block.position());
        }
}

// Does what Qt's reading of Markdown leaves undone, and takes the colours of this palette. The browser is not
// told of these changes: it would read a changed document anew at each link.
void Reader::SetOut() {
    const QSignalBlocker quiet(document());
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        cursor.setPosition(block.position());
        SetOutBlock(cursor);
        SetOutLinks(block);
    }
    SetOutTables();
    cursor.endEditBlock();
}

// Room between the lines, code on a ground of its own; and no line is wider than the page.
void Reader::SetOutBlock(QTextCursor& cursor) const {
    constexpr double Leading = 125;  // per cent
    const QTextBlock block = cursor.block();
    QTextBlockFormat format = block.blockFormat();
    format.setNonBreakableLines(false);
    if (format.hasProperty(QTextFormat::BlockCodeFence)) {
        const QTextFormat before = block.previous().blockFormat();
        const auto language = QTextFormat::BlockCodeLanguage;
        if (before.property(language) != format.property(language)) format.setTopMargin(Look::Gap(*this));
        format.setBackground(Look::Page(palette()));
    } else if (!block.text().contains(QChar::ObjectReplacementCharacter)) {  // no picture
        format.setLineHeight(Leading, QTextBlockFormat::ProportionalHeight);
    }
    if (format.headingLevel() > 1) format.setTopMargin(Look::Margin(*this) * 2);
    cursor.setBlockFormat(format);
}

void Reader::SetOutLinks(const QTextBlock& block) {
    const QBrush ink = palette().link();
    std::vector<QTextCursor> links;
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
        const QTextFragment text = piece.fragment();
        if (!text.charFormat().isAnchor() || text.charFormat().foreground() == ink) continue;
        QTextCursor link(block);
        link.setPosition(text.position());
        link.setPosition(text.position() + text.length(), QTextCursor::KeepAnchor);
        links.push_back(link);
    }
    QTextCharFormat colour;
    colour.setForeground(ink);
    for (QTextCursor& link : links) link.mergeCharFormat(colour);
}

void Reader::SetOutTables() {
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (!table) continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(Look::Frame(palette()));
        format.setCellPadding(Look::Space(*this));
        format.setCellSpacing(0);
        table->setFormat(format);
    }
}

void Reader::GoTo(int heading) {
    if (heading < 0 || static_cast<std::size_t>(heading) >= headings_.size()) return;
    QUrl place = shown_;
    place.setFragment(AnchorOf(ToQt(headings_[static_cast<std::size_t>(heading)].text)));
    setSource(place, QTextDocument::MarkdownResource);
}

int Reader::HeadingInView() const {
    const auto after = std::upper_bound(positions_.begin(), positions_.end(), top_);
    return static_cast<int>(after - positions_.begin()) - 1;
}

bool Reader::FindNext(std::string_view text) {
    const QString wanted = ToQt(text);
    if (wanted.isEmpty()) return false;
    if (find(wanted)) return true;
    const QTextCursor first = document()->find(wanted);
    if (first.isNull()) return false;
    setTextCursor(first);  // which brings it into sight
    return true;
}

void Reader::Scrolled() {
    if (settling_) return;
    top_ = PositionAtTop();
    Fire(move_);
}

// A little below the edge, where a heading's margin ends.
int Reader::PositionAtTop() const { return cursorForPosition({0, Look::Gap(*this)}).position(); }

void Reader::ScrollTo(int position) {
    StayWhile([&] {
        document()->size();  // lays all out, so that the bar reaches there
        const QTextBlock block = document()->findBlock(position);
        const double top = document()->documentLayout()->blockBoundingRect(block).top();
        verticalScrollBar()->setValue(position == 0 ? 0 : static_cast<int>(std::floor(top)));
    });
}

// Runs a change that moves the page, and brings what was at the upper edge back to it.
void Reader::StayWhile(const std::function<void()>& change) {
    const bool outer = std::exchange(settling_, true);
    change();
    settling_ = outer;
}

// Qt knows no headings, and would go to the beginning.
void Reader::showEvent(QShowEvent* event) {
    StayWhile([&] { QTextBrowser::showEvent(event); });
    ScrollTo(top_);
}

void Reader::resizeEvent(QResizeEvent* event) {
    StayWhile([&] { QTextBrowser::resizeEvent(event); });
    ScrollTo(top_);
}

void Reader::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || shown_.isEmpty()) return;
    StayWhile([this] { SetOut(); });
    ScrollTo(top_);
}

QSize Reader::sizeHint() const {
    constexpr int Columns = 104, Rows = 38;
    return {Look::DigitsWidth(*this, Columns), fontMetrics().lineSpacing() * Rows};
}

}  // namespace sorvane::forms
