// What the desktop tells through its settings portal.
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <functional>

namespace sorvane::forms {

// Compiled where Qt speaks D-Bus. Where there is no session bus, or no portal on it, nothing is ever told.
class Portal final : public QObject {
    Q_OBJECT
  public:
    // `prefersDark` is called when the desktop has answered which colours it prefers, and at each change.
    Portal(QObject& parent, std::function<void(bool dark)> prefersDark);

  private slots:
    void SettingChanged(const QDBusMessage& change);

  private:
    std::function<void(bool dark)> prefersDark_;
};

}  // namespace sorvane::forms
