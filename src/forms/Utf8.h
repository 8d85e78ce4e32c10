// Texts cross the borders of this folder as UTF-8; inside they are Qt's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace sorvane::forms {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string ToUtf8(const QString& text) { return text.toStdString(); }

}  // namespace sorvane::forms
