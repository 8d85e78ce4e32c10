#include "forms/MultiLineBox.h"

#include <QMimeData>
#include <QTextBlock>

#include "forms/Look.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

namespace {

// A line break is two characters in what is read back, one in the document.
qsizetype LengthOf(QStringView text) {
    return text.size() + text.count(u'\n') + text.count(QChar(QChar::ParagraphSeparator));
}

}  // namespace

MultiLineBox::MultiLineBox(std::string_view name) : Control(*this, name) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { Fire(change_); });
}

std::string MultiLineBox::Text() const { return ToUtf8(toPlainText().replace("\n", "\r\n")); }
void MultiLineBox::SetText(std::string_view text) { setPlainText(ToQt(text).replace("\r\n", "\n")); }
void MultiLineBox::SetReadOnly(bool readOnly) {
    setReadOnly(readOnly);
    // So that it can be read and copied with the keyboard, too.
    if (readOnly) setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}
void MultiLineBox::SetFixedPitch() {
    setFont(Look::FixedFont());
    setLineWrapMode(NoWrap);
}

qsizetype MultiLineBox::Room() const {
    const qsizetype held = document()->characterCount() - 1 + document()->blockCount() - 1;
    return MostCharacters - held + LengthOf(textCursor().selectedText());
}

QString MultiLineBox::Fitting(QString text) const {
    text.replace("\r\n", "\n").replace(u'\r', u'\n');
    qsizetype room = Room(), fits = 0;
    while (fits < text.size() && (room -= LengthOf(QStringView(text).mid(fits, 1))) >= 0) ++fits;
    if (fits > 0 && text[fits - 1].isHighSurrogate()) --fits;
    return text.first(fits);
}

void MultiLineBox::keyPressEvent(QKeyEvent* event) {
    const bool breaks = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const auto modifiers = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool plain = modifiers == Qt::NoModifier || modifiers == (Qt::ControlModifier | Qt::AltModifier);
    const bool types = plain && (breaks || (!event->text().isEmpty() && event->text().front().isPrint()));
    if (types && Room() < (breaks ? 2 : event->text().size())) event->accept();
    else KeyFilter::keyPressEvent(event);
}

void MultiLineBox::inputMethodEvent(QInputMethodEvent* event) {
    event->setCommitString(Fitting(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    KeyFilter::inputMethodEvent(event);
}

void MultiLineBox::insertFromMimeData(const QMimeData* source) {
    QMimeData part;
    part.setText(Fitting(source->text()));
    KeyFilter::insertFromMimeData(&part);
}

}  // namespace sorvane::forms
