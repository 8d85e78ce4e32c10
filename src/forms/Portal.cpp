#include "forms/Portal.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>
#include <utility>

namespace sorvane::forms {

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString Appearance = QStringLiteral("org.freedesktop.appearance");
const QString ColourScheme = QStringLiteral("color-scheme");
constexpr uint Dark = 1;

// Without a bus Qt would try to start one.
bool HasSessionBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

// An answer is wrapped in one variant more than a change.
uint NumberIn(QVariant value) {
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

}  // namespace

Portal::Portal(QObject& parent, std::function<void(bool dark)> prefersDark)
    : QObject(&parent), prefersDark_(std::move(prefersDark)) {
    if (!HasSessionBus()) return;
    // Qt has connected to this bus already, so there is nothing to wait for. The signal is taken from any
    // sender: to filter by the service's name, Qt would have to ask the bus who owns it.
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(QString(), Path, Settings, QStringLiteral("SettingChanged"), this,
                SLOT(SettingChanged(QDBusMessage)));
    QDBusMessage question = QDBusMessage::createMethodCall(Service, Path, Settings, QStringLiteral("Read"));
    question << Appearance << ColourScheme;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid()) prefersDark_(NumberIn(reply.value().variant()) == Dark);
        answer->deleteLater();
    });
}

// The group, the key, and the value.
void Portal::SettingChanged(const QDBusMessage& change) {
    const QVariantList told = change.arguments();
    if (told.size() == 3 && told[0] == Appearance && told[1] == ColourScheme)
        prefersDark_(NumberIn(told[2]) == Dark);
}

}  // namespace sorvane::forms
