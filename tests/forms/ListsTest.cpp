// List boxes and date pickers.
#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QTextCharFormat>
#include <QWheelEvent>
#include <set>

#include "Fixture.h"
#include "forms/DatePicker.h"
#include "forms/ListBox.h"
#include "forms/Look.h"
#include "forms/MessageBoxes.h"
#include "forms/TextBox.h"
#include "forms/Utf8.h"
#include "support/Palettes.h"
#include "support/Stage.h"

namespace sorvane::test {
namespace {

using namespace forms;

class List : public testing::Test {
  protected:
    LoggingWindow window;
    ListBox list{"lstMessage"};
    CommandButton ok{"cmdOk", "&Ok"};
    Person person;
    void SetUp() override {
        window.LayOut(list, ok);
        window.SetFirstFocus(ok);
        list.OnClick([this] { window.Write("click " + std::to_string(list.ListIndex())); });
        list.OnDblClick([this] { window.Write("double-click " + std::to_string(list.ListIndex())); });
        for (const auto* text : {"1, 2, 3", "4, 5, 6", "7, 8, 9"}) list.AddItem(text);
        Open(window);
    }
};

TEST_F(List, HoldsLinesAsARuleHandsThemOver) {
    Lines& lines = list;
    EXPECT_EQ(3, lines.ListCount());
    EXPECT_EQ("4, 5, 6", list.Text(1));
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { list.Text(3); }));
    EXPECT_EQ(ErrorNumber::SubscriptOutOfRange, ErrorOf([&] { list.Text(-1); }));
    lines.Clear();
    EXPECT_EQ(0, lines.ListCount());
    EXPECT_EQ(-1, list.ListIndex());
    lines.AddItem("after");
    EXPECT_EQ("after", list.Text(0));
    EXPECT_EQ(1, list.model()->rowCount());
    EXPECT_EQ(0, list.model()->rowCount(list.model()->index(0, 0))) << "there are no rows below a row";
}

TEST_F(List, RowSelectedByTheProgramIsNoClick) {
    list.SetListIndex(1);
    EXPECT_EQ(1, list.ListIndex());
    list.ClearSelection();
    EXPECT_EQ(-1, list.ListIndex());
    EXPECT_EQ(Log{}, window.log);
}

TEST_F(List, RowSelectedByTheProgramComesIntoSight) {
    for (int i = 0; i < 500; ++i) list.AddItem("8, 9, 10");
    Person::Settle();
    const auto isSeen = [this](int row) {
        return list.viewport()->rect().contains(list.visualRect(list.model()->index(row, 0)).center());
    };
    ASSERT_FALSE(isSeen(502));
    list.SetListIndex(502);
    EXPECT_TRUE(isSeen(502));
    list.SetListIndex(0);
    EXPECT_TRUE(isSeen(0));
}

TEST_F(List, RowThatIsNotThereChangesNothing) {
    list.SetListIndex(1);
    list.SetListIndex(3);
    EXPECT_EQ(1, list.ListIndex());
}

TEST_F(List, ClickFiresForTheMouseAlsoOnTheSelectedRow) {
    person.ClickRow(list, 2);
    person.ClickRow(list, 2);
    EXPECT_EQ((Log{"click 2", "click 2"}), window.log);
}

TEST_F(List, ClickFiresForTheKeyboard) {
    list.SetListIndex(0);
    list.SetFocus();
    person.Key(Qt::Key_Down);
    person.Key(Qt::Key_End);
    person.Key(Qt::Key_Down);
    EXPECT_EQ((Log{"click 1", "click 2"}), window.log);
}

TEST_F(List, ClickBelowTheLastRowIsNone) {
    person.Click(*list.viewport(), QPoint(20, list.viewport()->height() - 2));
    EXPECT_EQ(Log{}, window.log);
}

TEST_F(List, DoubleClickIsAClickThenADoubleClick) {
    person.DoubleClickRow(list, 1);
    EXPECT_EQ((Log{"click 1", "double-click 1"}), window.log);
}

TEST_F(List, EnterOnARowIsADoubleClick) {
    list.SetFocus();
    person.Enter();
    EXPECT_EQ(Log{}, window.log);
    list.SetListIndex(2);
    person.Enter();
    EXPECT_EQ((Log{"double-click 2"}), window.log);
}

TEST_F(List, TakingTheFocusSelectsNothing) {
    person.BackTab();
    ASSERT_TRUE(list.HasFocus());
    EXPECT_EQ(-1, list.ListIndex());
}

TEST_F(List, HandlerMayClearTheList) {
    list.OnClick([&] { list.Clear(); });
    list.OnDblClick([&] { list.Clear(); });
    person.DoubleClickRow(list, 1);
    EXPECT_EQ(0, list.ListCount());
}

TEST_F(List, HintIsPaintedWhileTheListIsEmptyAndIsNoRow) {
    list.Clear();
    const QImage bare = list.viewport()->grab().toImage();
    list.SetHint("Check a draw to see your tickets here");
    EXPECT_EQ(0, list.ListCount());
    EXPECT_NE(bare, list.viewport()->grab().toImage());
    list.SetHint("");
    EXPECT_EQ(bare, list.viewport()->grab().toImage());
}

TEST_F(List, HintIsToldWhileTheListIsEmptyOnly) {
    list.SetHint("Check a draw to see your tickets here");
    EXPECT_EQ("", list.accessibleDescription().toStdString());
    list.Clear();
    EXPECT_EQ("Check a draw to see your tickets here", list.accessibleDescription().toStdString());
    list.AddItem("1, 2, 3");
    EXPECT_EQ("", list.accessibleDescription().toStdString());
}

class Copying : public List {
  protected:
    void SetUp() override {
        List::SetUp();
        QGuiApplication::clipboard()->clear();
        list.SetFocus();
    }
    static std::string Copied() { return ToUtf8(QGuiApplication::clipboard()->text()); }
    void Choose(const QString& entry, std::string_view letter) {
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        QStringList entries;
        for (const QAction* action : menu->actions()) entries.push_back(action->text());
        EXPECT_TRUE(entries.contains(entry));
        person.Type(letter);
        EXPECT_FALSE(QApplication::activePopupWidget()) << ToUtf8(entry);
    }
    void OpenMenu(int row) {
        const QPoint at = list.visualRect(list.model()->index(row, 0)).center();
        const QPoint inWindow = list.viewport()->mapTo(&window, at);
        QTest::mouseClick(window.windowHandle(), Qt::RightButton, Qt::NoModifier, inWindow);
        Person::Settle();
    }
};

TEST_F(Copying, ControlAAndControlCTakeAllRowsAsTheyAreShown) {
    list.SetListIndex(1);
    const QImage before = list.viewport()->grab().toImage();
    person.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_NE(before, list.viewport()->grab().toImage());
    for (const Qt::Key way : {Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta}) person.Key(way);
    person.Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("1, 2, 3\n4, 5, 6\n7, 8, 9", Copied());
    EXPECT_EQ(1, list.ListIndex());
    EXPECT_EQ(Log{}, window.log);
}

TEST_F(Copying, ControlCTakesTheSelectedRow) {
    person.Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("", Copied());
    list.SetListIndex(2);
    person.Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("7, 8, 9", Copied());
}

TEST_F(Copying, AnyOtherKeyAClickAndANewRowUnmarkTheRows) {
    list.SetListIndex(0);
    const std::function<void()> ways[] = {[&] { person.Key(Qt::Key_Home); },
                                          [&] { person.ClickRow(list, 0); },
                                          [&] { list.AddItem("10, 11, 12"); }};
    for (const auto& way : ways) {
        person.Key(Qt::Key_A, Qt::ControlModifier);
        way();
        person.Key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ("1, 2, 3", Copied());
    }
}

TEST_F(Copying, TheMenuOfARowCopiesItOrAllRows) {
    OpenMenu(1);
    Choose("&Copy", "c");
    EXPECT_EQ("4, 5, 6", Copied());
    OpenMenu(1);
    Choose("Copy &All", "a");
    EXPECT_EQ("1, 2, 3\n4, 5, 6\n7, 8, 9", Copied());
    EXPECT_TRUE(list.HasFocus());
    EXPECT_EQ(Log{}, window.log);
}

TEST_F(Copying, TheMenuOfAnEmptyListOffersNothing) {
    person.Key(Qt::Key_A, Qt::ControlModifier);  // rows that are gone are marked no longer
    list.Clear();
    OpenMenu(0);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_EQ(2, menu->actions().size());
    for (const QAction* action : menu->actions()) EXPECT_FALSE(action->isEnabled());
    person.Key(Qt::Key_Escape);
}

TEST_F(List, WinnersHaveAnIconAndAHeavierFontAndKeepTheirText) {
    list.SetWinners([](int, std::string_view text) { return text.starts_with("You have"); });
    list.AddItem("You have matched 4 of 6 numbers");
    list.AddItem("Sorry");
    const auto font = [&](int row) {
        return list.model()->index(row, 0).data(Qt::FontRole).value<QFont>().bold();
    };
    EXPECT_TRUE(font(3));
    EXPECT_FALSE(font(4));
    EXPECT_EQ("You have matched 4 of 6 numbers", list.Text(3));
    EXPECT_EQ("You have matched 4 of 6 numbers", list.model()->index(3, 0).data().toString().toStdString());
    EXPECT_EQ("Winner",
              list.model()->index(3, 0).data(Qt::AccessibleDescriptionRole).toString().toStdString());
}

TEST_F(List, LongRowsCanBeScrolledTo) {
    list.AddItem(std::string(400, 'W'));
    Person::Settle();
    EXPECT_GE(list.visualRect(list.model()->index(3, 0)).width(),
              QFontMetrics(list.font()).horizontalAdvance(QString(400, 'W')));
}

// Measuring each row would take seconds.
TEST_F(List, ThirtyThousandRowsAreMeasuredByOneOfThem) {
    class Measure : public QStyledItemDelegate {
      public:
        QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
            rows.insert(index.row());
            return QStyledItemDelegate::sizeHint(option, index);
        }
        mutable std::set<int> rows;
    } measure;
    list.setItemDelegate(&measure);
    for (int i = 0; i < 32767; ++i) list.AddItem("1, 2, 3, 4, 5, 6");
    Person::Settle();
    EXPECT_EQ(32770, list.ListCount());
    EXPECT_EQ(1U, measure.rows.size());
    list.setItemDelegate(nullptr);
}

class Dates : public testing::Test {
  protected:
    LoggingWindow window;
    DatePicker date{"dtpEnterTickets(0)"};
    CommandButton ok{"cmdOk", "&Ok"};
    Person person;
    void SetUp() override {
        window.LayOut(date, ok);
        date.SetValue(Date::FromYmd(2026, 11, 21));
        date.OnChange([this] { window.Write(date.Value().ToText()); });
        window.Watch(date);
        ok.OnClick([this] { window.Write("Ok"); });
        Open(window);
    }
};

TEST_F(Dates, ValueIsADayWithoutTimeOfDay) {
    date.SetValue(Date::FromDays(Date::FromYmd(2027, 3, 14).Days() + 0.6));
    EXPECT_EQ(Date::FromYmd(2027, 3, 14).Days(), date.Value().Days());
    EXPECT_EQ("2027-03-14", date.text().toStdString());
}

TEST_F(Dates, EveryDayComesBackWhereMidnightIsSkippedWhenSummerTimeBegins) {
    date.OnChange(nullptr);
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "<-03>3<-02>,M10.3.0/0,M2.3.0/0");
    tzset();
    for (long day = Date::FromYmd(2026, 10, 1).Day(); day < Date::FromYmd(2027, 4, 1).Day(); ++day) {
        date.SetValue(Date::FromDays(static_cast<double>(day)));
        EXPECT_EQ(day, date.Value().Day());
        EXPECT_EQ(QTime(0, 0), date.time());
    }
    qputenv("TZ", zone);
    tzset();
}

TEST_F(Dates, ProgramFiresChangeForAnotherDayOnly) {
    date.SetValue(Date::FromYmd(2026, 11, 21));
    date.SetValue(Date::FromDays(Date::FromYmd(2026, 11, 21).Days() + 0.5));
    EXPECT_EQ(Log{}, window.log);
    date.SetValue(Date::FromYmd(2026, 11, 22));
    EXPECT_EQ((Log{"2026-11-22"}), window.log);
}

TEST_F(Dates, TypingFiresOneChangeWhenItIsFinished) {
    person.Key(Qt::Key_Home);
    person.Type("20271224");
    EXPECT_EQ(Log{}, window.log);
    person.Enter();
    EXPECT_EQ((Log{"2027-12-24"}), window.log);
}

TEST_F(Dates, LeavingFinishesItAndChangeComesBeforeLostFocus) {
    person.Key(Qt::Key_Home);
    person.Type("2027");
    person.AccessKey('o');
    EXPECT_EQ((Log{"2027-11-21", "-dtpEnterTickets(0)", "Ok"}), window.log);
}

TEST_F(Dates, FailingChangeOnLeavingDropsThePress) {
    date.OnChange([] { Raise(ErrorNumber::TypeMismatch); });
    person.Key(Qt::Key_Home);
    person.Type("2027");
    person.Expect("Sorvane", "Run-time error '13':\n\nType mismatch", Answer::Ok, BoxStyle::Stop);
    person.Click(ok);
    EXPECT_EQ((Log{"-dtpEnterTickets(0)"}), window.log);
}

TEST_F(Dates, BoxShownByAChangeOnLeavingComesWhenTheFocusHasMoved) {
    TextBox field("txtNext");
    window.LayOut(field);
    window.Watch(field);
    date.OnChange([&] {
        EXPECT_TRUE(field.HasFocus());
        MessageBoxes().MsgBox("Changed");
    });
    person.Key(Qt::Key_Home);
    person.Type("2027");
    person.Expect("Sorvane", "Changed");
    person.Click(field);
    EXPECT_EQ((Log{"-dtpEnterTickets(0)", "+txtNext"}), window.log);
    EXPECT_EQ(&field, QApplication::focusWidget());
}

TEST_F(Dates, FinishedByABoxThatCameUpFiresOnceToo) {
    person.Key(Qt::Key_Home);
    person.Type("2027");
    person.Expect("Sorvane", "Hello");
    MessageBoxes().MsgBox("Hello");
    Person::Settle();
    EXPECT_EQ((Log{"2027-11-21"}), window.log);
}

TEST_F(Dates, ArrowsChangeDayByDay) {
    person.Key(Qt::Key_End);
    person.Key(Qt::Key_Up);
    person.Key(Qt::Key_Up);
    EXPECT_EQ((Log{"2026-11-22", "2026-11-23"}), window.log);
}

TEST_F(Dates, CalendarFiresOneChange) {
    person.Click(date, QPoint(date.width() - 8, date.height() / 2));
    auto* calendar = QApplication::activePopupWidget()->findChild<QCalendarWidget*>();
    ASSERT_TRUE(calendar);
    person.Key(Qt::Key_Right);
    person.Enter();
    Person::Await(window);
    EXPECT_EQ((Log{"2026-11-22"}), window.log);
}

TEST_F(Dates, CalendarHasAnOutlineAndItsWeekendsCanBeRead) {
    for (const auto& [name, palette] : AllPalettes()) {
        SetDesktopPalette(palette);
        Person::Settle();
        person.Click(date, QPoint(date.width() - 8, date.height() / 2));
        QWidget& popup = *QApplication::activePopupWidget();
        const auto* calendar = popup.findChild<QCalendarWidget*>();
        ASSERT_TRUE(calendar);
        const QPalette shown = calendar->palette();
        for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
            EXPECT_GE(Look::Contrast(calendar->weekdayTextFormat(day).foreground().color(),
                                     shown.color(QPalette::Base)),
                      4.5)
                << name;
        const auto* weeks = calendar->findChild<QTableView*>();
        const int last = weeks->model()->rowCount() - 1;
        EXPECT_LE(weeks->rowViewportPosition(last) + weeks->rowHeight(last), weeks->viewport()->height());
        const QImage image = popup.grab().toImage();
        const int right = image.width() - 1, bottom = image.height() - 1;
        for (const QPoint at : {QPoint(0, bottom / 2), QPoint(right, bottom / 2), QPoint(right / 2, 0),
                                QPoint(right / 2, bottom)})
            EXPECT_GE(Look::Contrast(image.pixelColor(at), shown.color(QPalette::Window)), 3) << name;
        person.Key(Qt::Key_Escape);
    }
    SetDesktopPalette(LightPalette());
}

TEST_F(Dates, TabLeavesAtOnce) {
    person.Tab();
    EXPECT_TRUE(ok.HasFocus());
    person.BackTab();
    EXPECT_TRUE(date.HasFocus());
}

TEST_F(Dates, WheelOverItChangesNothingWhileTheFocusIsElsewhere) {
    ok.SetFocus();
    window.log.clear();
    QWheelEvent wheel(QPointF(5, 5), date.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&date, &wheel);
    EXPECT_EQ(Log{}, window.log);
    EXPECT_TRUE(ok.HasFocus());
}

// How many times the events of a kind come to a widget.
class Count : public QObject {
  public:
    Count(QObject& receiver, QEvent::Type type) : type_(type) { receiver.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == type_;
        return false;
    }
    int count = 0;

  private:
    QEvent::Type type_;
};

TEST_F(List, IsPaintedAnewForAnotherHintAndForOtherMarks) {
    list.Clear();
    ok.SetFocus();
    Person::Settle();
    Count paints(*list.viewport(), QEvent::Paint);
    list.SetHint("Check a draw");
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
    list.AddItem("1, 2, 3");
    list.SetFocus();
    Person::Settle();
    paints.count = 0;
    person.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
}

// In the middle, as far from the edges as groups are from each other.
TEST_F(List, HintStandsInTheMiddleWithinAMargin) {
    list.Clear();
    list.setFixedSize(200, 150);
    list.SetHint("Check a draw to see your tickets here, all that were played for this day");
    Person::Settle();
    const QImage seen = list.viewport()->grab().toImage();
    const QRgb paper = seen.pixel(0, 0);
    QRect ink;
    for (int y = 0; y < seen.height(); ++y)
        for (int x = 0; x < seen.width(); ++x)
            if (seen.pixel(x, y) != paper) ink |= QRect(x, y, 1, 1);
    const int margin = Look::Gap(list);
    EXPECT_TRUE(seen.rect().adjusted(margin, margin, -margin, -margin).contains(ink)) << ink.left();
    EXPECT_GT(ink.height(), 2 * list.fontMetrics().height());
    EXPECT_GT(ink.width(), 140);
    EXPECT_NEAR(ink.center().x(), seen.rect().center().x(), 4);
    EXPECT_NEAR(ink.center().y(), seen.rect().center().y(), 4);
}

TEST_F(List, EveryRowIsAsWideAsTheLongestAndTheMarkAsHighAsTheFont) {
    const auto size = [&] { return list.model()->index(0, 0).data(Qt::SizeHintRole).toSize(); };
    const auto expected = [&](const char* longest, bool marks) {
        QFont heavy = list.font();
        heavy.setBold(true);
        const QFontMetrics letters(heavy);
        return QSize(letters.horizontalAdvance(longest) + (marks ? 2 : 1) * letters.height(),
                     letters.height() * 7 / 5);
    };
    list.Clear();
    list.AddItem("MMMMMM");
    list.AddItem("iiiiii");
    EXPECT_EQ(size(), expected("MMMMMM", false));
    list.AddItem("8888888888");
    list.AddItem("iii");
    EXPECT_EQ(size(), expected("8888888888", false));
    list.Clear();
    list.AddItem("iii");
    EXPECT_EQ(size(), expected("iii", false));
    EXPECT_FALSE(list.model()->index(0, 0).data(Qt::DecorationRole).isValid());
    list.SetWinners([](int row, std::string_view) { return row == 1; });
    list.AddItem("MMMMMM");
    EXPECT_EQ(size(), expected("MMMMMM", true));
    for (const int points : {10, 18}) {
        list.setFont(QFont("DejaVu Sans", points));
        Person::Settle();
        const int side = list.fontMetrics().height();
        EXPECT_EQ(list.iconSize(), QSize(side, side));
        const auto mark = [&](int row) {
            return list.model()
                ->index(row, 0)
                .data(Qt::DecorationRole)
                .value<QIcon>()
                .pixmap(list.iconSize())
                .toImage();
        };
        EXPECT_EQ(mark(1), Look::Winner(list.palette(), side).pixmap(QSize(side, side)).toImage());
        // Where there is no mark its place is kept.
        QImage none(side, side, QImage::Format_ARGB32_Premultiplied);
        none.fill(Qt::transparent);
        EXPECT_EQ(mark(0).convertToFormat(none.format()), none);
    }
    list.setPalette(HighContrastPalette());
    const int side = list.fontMetrics().height();
    EXPECT_EQ(list.model()->index(1, 0).data(Qt::DecorationRole).value<QIcon>().pixmap(side).toImage(),
              Look::Winner(HighContrastPalette(), side).pixmap(side).toImage());
}

TEST_F(List, WinnersAreFoundAmongTheRowsThatAreThereAndThoseThatCome) {
    list.SetWinners([](int row, std::string_view text) { return row % 2 == 0 && text != "7, 8, 9"; });
    list.AddItem("10");
    list.AddItem("11");
    std::string winners;
    for (int row = 0; row < list.ListCount(); ++row)
        winners += list.model()->index(row, 0).data(Qt::FontRole).isValid() ? "w" : "-";
    EXPECT_EQ(winners, "w---w");
    list.SetWinners(nullptr);
    for (int row = 0; row < list.ListCount(); ++row)
        EXPECT_FALSE(list.model()->index(row, 0).data(Qt::FontRole).isValid()) << row;
}

TEST_F(List, EveryEnterKeyIsADoubleClickAndTheRightButtonIsNone) {
    list.SetListIndex(2);
    list.SetFocus();
    person.Key(Qt::Key_Enter);
    EXPECT_EQ((Log{"double-click 2"}), window.log);
    window.log.clear();
    const QPoint at = list.viewport()->mapTo(&window, list.visualRect(list.model()->index(0, 0)).center());
    QTest::mouseDClick(window.windowHandle(), Qt::RightButton, Qt::NoModifier, at);
    Person::Settle();
    while (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    EXPECT_EQ(Log{}, window.log);
}

TEST_F(Copying, ByTheKeyTheMenuComesBelowTheRowInHandAndIsGoneAfterwards) {
    list.SetListIndex(1);
    const auto place = [&](QContextMenuEvent::Reason reason) {
        const QPoint at = list.viewport()->mapToGlobal(QPoint(30, 3));
        QContextMenuEvent event(reason, QPoint(30, 3), at);
        QApplication::sendEvent(&list, &event);
        QWidget* menu = QApplication::activePopupWidget();
        const QPoint shown = menu ? menu->pos() - at : QPoint();
        person.Key(Qt::Key_Escape);
        return shown;
    };
    EXPECT_EQ(place(QContextMenuEvent::Mouse), QPoint(0, 0));
    const QRect row = list.visualRect(list.model()->index(1, 0));
    EXPECT_EQ(place(QContextMenuEvent::Keyboard), row.bottomLeft() - QPoint(30, 3));
    list.Clear();
    EXPECT_EQ(place(QContextMenuEvent::Keyboard), QPoint(0, 0));
    Person::Settle();
    EXPECT_TRUE(list.findChildren<QMenu*>().isEmpty());
}

TEST_F(Dates, TheFocusComesByTheKeyAndByThePressOnly) {
    EXPECT_EQ(date.focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(date.timeSpec(), Qt::UTC);
}

TEST_F(Dates, TheCalendarHasRoomForItsRowsAndItsOutline) {
    person.Click(date, QPoint(date.width() - 8, date.height() / 2));
    const auto* calendar = QApplication::activePopupWidget()->findChild<QCalendarWidget*>();
    ASSERT_TRUE(calendar);
    QCalendarWidget plain;
    plain.layout()->setContentsMargins(1, 1, 1, 1);
    EXPECT_EQ(calendar->layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    EXPECT_EQ(calendar->minimumSizeHint(),
              plain.minimumSizeHint() + QSize(2, 2 + 7 * calendar->fontMetrics().height() / 4));
    EXPECT_EQ(calendar->sizeHint(), calendar->minimumSizeHint());
    const QColor weekend = Look::Weekend(calendar->palette());
    for (int day = 1; day <= 7; ++day)
        EXPECT_EQ(
            calendar->weekdayTextFormat(static_cast<Qt::DayOfWeek>(day)).foreground().color() == weekend,
            day >= 6)
            << day;
    person.Key(Qt::Key_Escape);
}

TEST_F(List, TheFirstRowIsClickedAndDoubleClickedLikeAnyOther) {
    person.ClickRow(list, 0);
    EXPECT_EQ((Log{"click 0"}), window.log);
    person.Enter();
    EXPECT_EQ((Log{"click 0", "double-click 0"}), window.log);
    list.SetListIndex(1);
    person.Key(Qt::Key_Home);
    EXPECT_EQ((Log{"click 0", "double-click 0", "click 0"}), window.log);
}

TEST_F(List, AMarkIsThereAtOnceAndTheRowsMakeRoomForIt) {
    list.Clear();
    list.AddItem(std::string(400, 'W'));
    list.AddItem("4, 5, 6");
    Person::Settle();
    const auto width = [&] { return list.visualRect(list.model()->index(0, 0)).width(); };
    const int before = width(), side = list.fontMetrics().height();
    list.SetWinners([](int row, std::string_view) { return row == 1; });
    Person::Settle();
    EXPECT_GT(width(), before);
    EXPECT_EQ(list.iconSize(), QSize(side, side));
    const QIcon mark = list.model()->index(1, 0).data(Qt::DecorationRole).value<QIcon>();
    EXPECT_EQ(mark.pixmap(side).toImage(), Look::Winner(list.palette(), side).pixmap(side).toImage());
}

TEST_F(List, AHintIsToldAndPaintedAtOnceWhereTheListIsEmpty) {
    list.Clear();
    Person::Settle();
    Count paints(*list.viewport(), QEvent::Paint);
    list.SetHint("Check a draw");
    EXPECT_EQ("Check a draw", list.accessibleDescription().toStdString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
}

TEST_F(List, AHintIsPaintedInItsOwnColourAndNotOverARow) {
    list.Clear();
    list.setPalette(LightPalette());
    list.setFont(QFont("DejaVu Sans", 40, QFont::Bold));
    list.SetHint("MMM");
    ok.SetFocus();
    const auto darkest = [&] {
        const QImage shown = list.viewport()->grab().toImage();
        QColor ink = Qt::white;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixelColor(x, y).lightness() < ink.lightness()) ink = shown.pixelColor(x, y);
        return ink;
    };
    EXPECT_EQ(darkest().name(), Look::Hint(LightPalette()).name());
    list.AddItem("");
    EXPECT_EQ(darkest(), QColor(Qt::white));
}

TEST_F(List, ItsLettersMayAllBeOfOneWidth) {
    list.SetFixedPitch();
    EXPECT_EQ(list.fontMetrics().horizontalAdvance("iiii"), list.fontMetrics().horizontalAdvance("WWWW"));
}

TEST_F(Copying, TheMenuOfTheOnlyRowCopiesIt) {
    list.Clear();
    list.AddItem("10, 11, 12");
    OpenMenu(0);
    Choose("&Copy", "c");
    EXPECT_EQ("10, 11, 12", Copied());
    QGuiApplication::clipboard()->clear();
    OpenMenu(0);
    Choose("Copy &All", "a");
    EXPECT_EQ("10, 11, 12", Copied());
}

TEST_F(Copying, InAnEmptyListNothingIsMarked) {
    list.Clear();
    person.Key(Qt::Key_A, Qt::ControlModifier);
    OpenMenu(0);
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    for (const QAction* action : menu->actions()) EXPECT_FALSE(action->isEnabled());
    person.Key(Qt::Key_Escape);
}

TEST(NewDate, ThatIsLeftAsItWasHasNotChanged) {
    LoggingWindow window;
    DatePicker date("dtpDraw");
    CommandButton ok("cmdOk", "&Ok");
    window.LayOut(date, ok);
    date.OnChange([&] { window.Write("change"); });
    Open(window);
    Person person;
    ASSERT_TRUE(date.HasFocus());
    person.Tab();
    EXPECT_TRUE(ok.HasFocus());
    EXPECT_EQ(Log{}, window.log);
}

TEST_F(Dates, ADigitTypedIntoAFullMonthBeginsItAnew) {
    date.findChild<QLineEdit*>()->setCursorPosition(6);
    person.Type("03");
    person.Enter();
    EXPECT_EQ("2026-03-21", date.text().toStdString());
}

TEST_F(Dates, TheWheelTurnsTheOneThatHasTheFocus) {
    ASSERT_TRUE(date.HasFocus());
    QWheelEvent wheel(QPointF(5, 5), date.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&date, &wheel);
    EXPECT_NE(Date::FromYmd(2026, 11, 21).Days(), date.Value().Days());
}

TEST_F(Dates, OnceItWasLeftAChangeOfTheProgramFiresAtOnceAgain) {
    person.Tab();
    window.log.clear();
    date.SetValue(Date::FromYmd(2027, 1, 2));
    EXPECT_EQ((Log{"2027-01-02"}), window.log);
}

TEST_F(Dates, ItsCalendarIsMadeOnceAndItsOutlineIsThatOfAField) {
    const auto open = [&] {
        person.Click(date, QPoint(date.width() - 8, date.height() / 2));
        return QPointer(QApplication::activePopupWidget()->findChild<QCalendarWidget*>());
    };
    const QPointer<QCalendarWidget> first = open();
    ASSERT_FALSE(first.isNull());
    const QImage image = QApplication::activePopupWidget()->grab().toImage();
    EXPECT_EQ(image.pixelColor(0, image.height() / 2).name(), Look::Edge(first->palette(), true).name());
    person.Key(Qt::Key_Escape);
    EXPECT_EQ(open(), first);
    EXPECT_FALSE(first.isNull());
    person.Key(Qt::Key_Escape);
}

}  // namespace
}  // namespace sorvane::test
