#include "forms/MessageBoxes.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>
#include <cstdlib>

#include "forms/Runtime.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

namespace {

QMessageBox::StandardButtons ButtonsOf(int style) {
    switch (style & 0x0F) {
        case BoxStyle::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case BoxStyle::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case BoxStyle::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::Icon IconOf(int style) {
    switch (style & 0xF0) {
        case BoxStyle::Stop:
            return QMessageBox::Critical;
        case BoxStyle::Exclamation:
            return QMessageBox::Warning;
        default:
            return QMessageBox::NoIcon;
    }
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Cancel:
            return Answer::Cancel;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Ok;
    }
}

// Qt makes no box wider; what is wider in it would be cut off.
int WidestBox(const QMessageBox& box) {
    constexpr int SmallScreen = 1024, Beside = 480, Widest = 1000;
    const int screen = box.screen()->availableSize().width();
    return screen <= SmallScreen ? screen : std::min(screen - Beside, Widest);
}

// Qt would take No for the answer to Escape and to the close box.
class Box final : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;
    // Only its buttons answer.
    void BeQuestion() {
        isQuestion_ = true;
        setWindowFlags((windowFlags() | Qt::CustomizeWindowHint) & ~Qt::WindowCloseButtonHint);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!isQuestion_ || !event->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (isQuestion_) event->ignore();
        else QMessageBox::closeEvent(event);
    }

  private:
    bool isQuestion_ = false;
};

QMessageBox::StandardButton EnterOf(int style) {
    switch (style & 0x0F) {
        case BoxStyle::YesNoCancel:
            return QMessageBox::Cancel;
        case BoxStyle::YesNo:
            return style & BoxStyle::EnterIsYes ? QMessageBox::Yes : QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

void SetKeys(Box& box, int style) {
    box.setDefaultButton(EnterOf(style));
    if ((style & 0x0F) == BoxStyle::YesNo) return box.BeQuestion();
    QAbstractButton* cancel = box.button(QMessageBox::Cancel);
    box.setEscapeButton(cancel ? cancel : box.button(QMessageBox::Ok));
}

// Qt indents a text without an icon.
void StartAtTheLeft(const QMessageBox& box) {
    if (box.icon() != QMessageBox::NoIcon) return;
    if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        label->setIndent(0);
        label->setContentsMargins(0, 0, 0, 0);
    }
    for (int i = 0; i < box.layout()->count(); ++i)
        if (QSpacerItem* spacer = box.layout()->itemAt(i)->spacerItem())
            spacer->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->setHorizontalSpacing(0);
        grid->setColumnStretch(1, 1);
    }
}

// The lines of a text are broken where it says so, as long as the box has room; Qt would break them sooner.
void KeepLinesWhole(const QMessageBox& box) {
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!label) return;
    label->setMinimumWidth(label->sizeHint().width());
    const int beyond = box.layout()->totalMinimumSize().width() - WidestBox(box);
    if (beyond > 0) label->setMinimumWidth(label->minimumWidth() - beyond);
}

}  // namespace

Answer MessageBoxes::MsgBox(std::string_view text, int style, std::string_view title) {
    QWidget* owner = Runtime::Current().Front();
    const Runtime::Modal level;
    // A carriage return would be a line break of its own on the screen.
    Box box(IconOf(style), ToQt(title), ToQt(text).replace("\r\n", "\n"), ButtonsOf(style), owner);
    box.setTextFormat(Qt::PlainText);
    StartAtTheLeft(box);
    KeepLinesWhole(box);
    SetKeys(box, style);
    const int button = box.exec();
    // The box still stands: the program was told to end, and no event loop runs any more. A caller that
    // repeats its question until something is mended would repeat it for ever.
    if (box.isVisible()) std::_Exit(EXIT_SUCCESS);
    return AnswerOf(button);
}

}  // namespace sorvane::forms
