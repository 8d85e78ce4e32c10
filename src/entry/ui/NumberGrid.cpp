#include "entry/ui/NumberGrid.h"

#include <QLayout>
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "forms/Look.h"
#include "platform/Text.h"

namespace sorvane {

namespace {

// Balls in rows, as large as the room lets them be, up to double; beyond that they stay together in the
// middle.
class BallLayout final : public QLayout {
  public:
    BallLayout(QWidget& slip, int columns) : QLayout(&slip), slip_(slip), columns_(columns) {
        setContentsMargins(0, 0, 0, 0);
    }
    void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int at) const override {
        return at >= 0 && at < count() ? items_[static_cast<std::size_t>(at)].get() : nullptr;
    }
    QLayoutItem* takeAt(int at) override {
        if (!itemAt(at)) return nullptr;
        QLayoutItem* item = items_[static_cast<std::size_t>(at)].release();
        items_.erase(items_.begin() + at);
        return item;
    }
    QSize sizeHint() const override { return SizeFor(forms::Look::BallSize(slip_)); }
    QSize minimumSize() const override { return SizeFor(forms::Look::SmallestBall(slip_)); }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
    void setGeometry(const QRect& place) override {
        QLayout::setGeometry(place);
        const int largest = 2 * forms::Look::BallSize(slip_);
        const int side = std::min({SideIn(place.width(), columns_), SideIn(place.height(), Rows()), largest});
        const double across = Step(place.width(), columns_, side), down = Step(place.height(), Rows(), side);
        const double left = (place.width() - side - across * (columns_ - 1)) / 2;
        const double top = (place.height() - side - down * (Rows() - 1)) / 2;
        for (int i = 0; i < count(); ++i) {
            const int row = i / columns_, column = i % columns_;
            itemAt(i)->setGeometry({place.left() + static_cast<int>(std::lround(left + across * column)),
                                    place.top() + static_cast<int>(std::lround(top + down * row)), side,
                                    side});
        }
    }

  private:
    int Rows() const { return (count() + columns_ - 1) / columns_; }
    int Between() const { return forms::Look::Space(slip_) / 2; }
    QSize SizeFor(int side) const {
        return {columns_ * (side + Between()) - Between(), Rows() * (side + Between()) - Between()};
    }
    int SideIn(int length, int balls) const { return (length + Between()) / balls - Between(); }
    // From one ball to the next: some room between them, but never so much that they drift apart.
    static double Step(int length, int balls, int side) {
        constexpr double Loosest = 1.5;
        return balls > 1 ? std::min(side * Loosest, (length - side) / (balls - 1.0)) : 0;
    }

    QWidget& slip_;
    int columns_;
    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace

NumberGrid::NumberGrid(int numbers, int columns) {
    auto* balls = new BallLayout(*this, columns);
    for (int i = 0; i < numbers; ++i) {
        forms::NumberBall& ball = chkNumb.Load(i, Str(i + 1));
        ball.SetAccessibleName("Number " + Str(i + 1));
        balls->addWidget(&ball);
    }
}

void NumberGrid::Clear() {
    chkNumb.ForEach([](forms::NumberBall& ball, int) { ball.SetValue(0); });
}

void NumberGrid::FocusFirst() {
    if (isEnabled()) chkNumb(0).SetFocus();
}

}  // namespace sorvane
