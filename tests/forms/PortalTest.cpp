// What the desktop's portal tells of the colours that it prefers.
#ifdef SORVANE_PORTAL
#include "forms/Portal.h"

#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusVariant>
#include <QMetaObject>
#include <QVariant>
#include <vector>

#include "support/TempFolder.h"

namespace sorvane::test {
namespace {

// On a desktop without a bus, where nothing asks and nothing answers.
class PortalTest : public ::testing::Test {
  protected:
    PortalTest() {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(folder.Path().string()));
        portal = new forms::Portal(parent, [this](bool dark) { told.push_back(dark); });
    }
    ~PortalTest() override {
        bus.isNull() ? qunsetenv("DBUS_SESSION_BUS_ADDRESS") : qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
        place.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", place);
    }
    void Change(const QVariantList& arguments) {
        QDBusMessage change = QDBusMessage::createSignal("/org", "org.of.the.test", "SettingChanged");
        change.setArguments(arguments);
        ASSERT_TRUE(QMetaObject::invokeMethod(portal, "SettingChanged", Qt::DirectConnection,
                                              Q_ARG(QDBusMessage, change)));
    }
    static QVariant Number(uint number) { return QVariant::fromValue(QDBusVariant(number)); }

    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS"), place = qgetenv("XDG_RUNTIME_DIR");
    TempFolder folder;
    QObject parent;
    forms::Portal* portal = nullptr;
    std::vector<bool> told;
};

TEST_F(PortalTest, OneIsDarkAndEveryOtherNumberIsNot) {
    for (const uint number : {1U, 0U, 2U, 1U})
        Change({"org.freedesktop.appearance", "color-scheme", Number(number)});
    EXPECT_EQ(told, (std::vector{true, false, false, true}));
    Change({"org.freedesktop.appearance", "color-scheme",
            QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(1U))))});
    EXPECT_EQ(told.size(), 5U);
    EXPECT_TRUE(told.back());
}

TEST_F(PortalTest, OtherSettingsAreOfNoConcern) {
    Change({"org.freedesktop.appearance", "accent-color", Number(1)});
    Change({"org.gnome.desktop.interface", "color-scheme", Number(1)});
    Change({"org.freedesktop.appearance", "color-scheme"});
    Change({"org.freedesktop.appearance", "color-scheme", Number(1), Number(1)});
    Change({});
    EXPECT_TRUE(told.empty());
}

}  // namespace
}  // namespace sorvane::test
#endif
