#include "forms/ListBox.h"

#include <QAbstractListModel>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "forms/Look.h"
#include "forms/Utf8.h"
#include "platform/RunTimeError.h"

namespace sorvane::forms {

namespace {

// Pressed on the way to another key.
bool IsModifier(int key) {
    return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_Meta;
}

}  // namespace

class ListBox::Model : public QAbstractListModel {
  public:
    explicit Model(const QListView& view) : view_(view) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        const Row& row = rows_[static_cast<std::size_t>(index.row())];
        switch (role) {
            case Qt::DisplayRole:
                return row.text;
            case Qt::SizeHintRole:
                return RowSize();
            case Qt::DecorationRole:
                return isWinner_ ? QVariant(row.winner ? star_ : blank_) : QVariant();
            case Qt::FontRole:
                return row.winner ? QVariant(Heavy()) : QVariant();
            case Qt::AccessibleDescriptionRole:
                return row.winner ? QVariant(QStringLiteral("Winner")) : QVariant();
            default:
                return {};
        }
    }
    const QString& Text(int row) const { return rows_[static_cast<std::size_t>(row)].text; }

    void Add(std::string_view text) {
        const int row = rowCount();
        beginInsertRows({}, row, row);
        rows_.push_back({ToQt(text), isWinner_ && isWinner_(row, text)});
        if (rows_.back().text.size() > rows_[widest_].text.size()) widest_ = rows_.size() - 1;
        endInsertRows();
    }
    void Clear() {
        beginResetModel();
        rows_.clear();
        widest_ = 0;
        endResetModel();
    }
    void SetWinners(std::function<bool(int, std::string_view)> isWinner) {
        beginResetModel();
        isWinner_ = std::move(isWinner);
        for (int i = 0; i < rowCount(); ++i)
            rows_[static_cast<std::size_t>(i)].winner = isWinner_ && isWinner_(i, ToUtf8(Text(i)));
        endResetModel();
        PaletteOrFontChanged();
    }
    void PaletteOrFontChanged() {
        if (!isWinner_) return;
        star_ = Look::Winner(view_.palette(), view_.iconSize().height());
        QPixmap none(star_.actualSize(view_.iconSize()));
        none.fill(Qt::transparent);
        blank_ = QIcon(none);
    }

  private:
    struct Row {
        QString text;
        bool winner;
    };
    QFont Heavy() const {
        QFont font = view_.font();
        font.setBold(true);
        return font;
    }
    // One size for all rows; the list asks for the first row only.
    QSize RowSize() const {
        const QFontMetrics metrics(Heavy());
        const int icon = isWinner_ ? metrics.height() : 0;
        return {metrics.horizontalAdvance(rows_[widest_].text) + icon + metrics.height(),
                metrics.height() * 7 / 5};
    }

    const QListView& view_;
    std::vector<Row> rows_;
    std::size_t widest_ = 0;
    std::function<bool(int, std::string_view)> isWinner_;
    QIcon star_, blank_;
};

// Rows that are all marked look as if they were selected.
class ListBox::Delegate : public QStyledItemDelegate {
  public:
    explicit Delegate(const ListBox& list) : list_(list) {}

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (list_.allMarked_) option->state |= QStyle::State_Selected;
    }

  private:
    const ListBox& list_;
};

ListBox::ListBox(std::string_view name)
    : Control(*this, name),
      model_(std::make_unique<Model>(*this)),
      delegate_(std::make_unique<Delegate>(*this)) {
    setUniformItemSizes(true);
    setItemDelegate(delegate_.get());
    setModel(model_.get());
}

ListBox::~ListBox() = default;

void ListBox::AddItem(std::string_view text) {
    MarkAll(false);
    model_->Add(text);
    if (ListCount() == 1) Describe();
}

void ListBox::Clear() {
    MarkAll(false);
    model_->Clear();
    Describe();
}

int ListBox::ListCount() const { return model_->rowCount(); }

std::string ListBox::Text(int row) const {
    if (row < 0 || row >= ListCount()) Raise(ErrorNumber::SubscriptOutOfRange);
    return ToUtf8(model_->Text(row));
}

// The current row of the view is where the keyboard is, selected or not.
int ListBox::ListIndex() const {
    const auto rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void ListBox::SetListIndex(int row) {
    if (row >= ListCount()) return;
    if (row < 0) selectionModel()->clear();
    else setCurrentIndex(model_->index(row));
}

void ListBox::SetHint(std::string_view text) {
    hint_ = ToQt(text);
    Describe();
    viewport()->update();
}

// What is painted is told: the hint of an empty list only.
void ListBox::Describe() { setAccessibleDescription(ListCount() > 0 ? QString() : hint_); }

void ListBox::MarkAll(bool marked) {
    if (std::exchange(allMarked_, marked) != marked) viewport()->update();
}

void ListBox::Copy() const {
    if (allMarked_) return CopyAll();
    if (const int row = ListIndex(); row >= 0) QGuiApplication::clipboard()->setText(model_->Text(row));
}

void ListBox::CopyAll() const {
    QStringList rows;
    for (int row = 0; row < ListCount(); ++row) rows.push_back(model_->Text(row));
    if (!rows.isEmpty()) QGuiApplication::clipboard()->setText(rows.join(u'\n'));
}

void ListBox::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* copy = menu->addAction(QStringLiteral("&Copy"), this, [this] { Copy(); });
    copy->setEnabled(allMarked_ || ListIndex() >= 0);
    QAction* copyAll = menu->addAction(QStringLiteral("Copy &All"), this, [this] { CopyAll(); });
    copyAll->setEnabled(ListCount() > 0);
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid();
    menu->popup(byKey ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                      : event->globalPos());
}

void ListBox::SetWinners(std::function<bool(int, std::string_view)> isWinner) {
    AdaptIcons();
    model_->SetWinners(std::move(isWinner));
}

void ListBox::AdaptIcons() {
    const int side = fontMetrics().height();
    setIconSize({side, side});
}

void ListBox::SetFixedPitch() { setFont(Look::FixedFont()); }

void ListBox::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    if (pressed_) MarkAll(false);
    QListView::mousePressEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent* event) {
    QListView::mouseReleaseEvent(event);
    if (std::exchange(pressed_, false) && indexAt(event->pos()).isValid() && ListIndex() >= 0) Fire(click_);
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) Fire(dblClick_);
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::SelectAll)) return MarkAll(ListCount() > 0);
    if (event->matches(QKeySequence::Copy)) return Copy();
    if (!IsModifier(event->key())) MarkAll(false);
    const int before = ListIndex();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (before >= 0) Fire(dblClick_);
        return;
    }
    QListView::keyPressEvent(event);
    if (const int now = ListIndex(); now >= 0 && now != before) Fire(click_);
}

void ListBox::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (ListCount() > 0 || hint_.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(Look::Hint(palette()));
    const int margin = Look::Gap(*this);
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, hint_);
}

void ListBox::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (!model_ || (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)) return;
    AdaptIcons();
    model_->PaletteOrFontChanged();
}

}  // namespace sorvane::forms
