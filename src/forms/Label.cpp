#include "forms/Label.h"

#include <QAbstractItemView>

#include "forms/AccessKeys.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

Label::Label(std::string_view name, std::string_view caption) : Control(*this, name) {
    setTextFormat(Qt::PlainText);
    SetCaption(caption);
}

std::string Label::Caption() const { return ToUtf8(text()); }
void Label::SetCaption(std::string_view caption) {
    setText(ToQt(caption));
    NameList();
}
void Label::SetBuddy(Control& control) {
    setBuddy(&control.Widget());
    NameList();
}

void Label::NameList() {
    if (!qobject_cast<QAbstractItemView*>(buddy())) return;
    QString name = text();
    name.remove(u'&');
    if (name.endsWith(u':')) name.chop(1);
    buddy()->setAccessibleName(name);
}

bool Label::event(QEvent* event) { return HandleAccessKey(*this, *event) || QLabel::event(event); }

}  // namespace sorvane::forms
