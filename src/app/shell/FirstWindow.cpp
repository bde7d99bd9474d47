#include "app/shell/FirstWindow.h"

#include <QCryptographicHash>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFile>

#include <filesystem>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr auto tokenKey = "activation-token"_L1, startupKey = "desktop-startup-id"_L1;
constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN", startupVariable = "DESKTOP_STARTUP_ID";

QByteArray realName(const QString& file) {
    std::error_code unresolved;
    const std::filesystem::path given(QFile::encodeName(file).toStdString());
    const std::filesystem::path real = std::filesystem::weakly_canonical(given, unresolved);
    return QByteArray::fromStdString(unresolved ? given.string() : real.string());
}

/// Without the path itself, which every program on the bus could read.
QString busName(const QString& file) {
    const QByteArray digest = QCryptographicHash::hash(realName(file), QCryptographicHash::Sha256);
    return u"zel.DataFile.f"_s + QString::fromLatin1(digest.toHex().first(32));
}

} // namespace

FirstWindow::FirstWindow(QDBusConnection connection, const QString& dataFile)
    : bus(std::move(connection)), name(busName(dataFile)), path(u'/' + QString(name).replace(u'.', u'/')) {}

FirstWindow::~FirstWindow() {
    if (!bus.isConnected()) return;
    bus.unregisterObject(path);
    bus.unregisterService(name);
}

FirstWindow::Outcome FirstWindow::claim(const QVariantMap& platformData, std::chrono::milliseconds patience) {
    // Before the name: who finds it calls at once.
    if (!bus.isConnected() || !bus.registerObject(path, this, QDBusConnection::ExportScriptableSlots))
        return Outcome::alone;
    for (const bool mayCall : {true, false}) { // the first one may be just about to end
        const auto isFirst = takeName();
        if (!isFirst) return Outcome::alone;
        if (*isFirst) return Outcome::first;
        if (mayCall && callFirst(platformData, patience)) return Outcome::shown;
    }
    return Outcome::silent;
}

/// \return nothing if the bus gives no names
std::optional<bool> FirstWindow::takeName() {
    const auto reply = bus.interface()->registerService(name, QDBusConnectionInterface::DontQueueService,
                                                        QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid()) return std::nullopt;
    return reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool FirstWindow::callFirst(const QVariantMap& platformData, std::chrono::milliseconds patience) {
    auto call = QDBusMessage::createMethodCall(name, path, u"org.freedesktop.Application"_s, u"Activate"_s);
    call << platformData;
    const QDBusMessage reply = bus.call(call, QDBus::Block, static_cast<int>(patience.count()));
    return reply.type() == QDBusMessage::ReplyMessage;
}

void FirstWindow::Activate(const QVariantMap& platformData) {
    // Where Qt looks for it when a window asks to be activated.
    if (const QByteArray token = platformData.value(tokenKey).toString().toUtf8(); !token.isEmpty())
        qputenv(tokenVariable, token);
    emit wanted();
}

QDBusConnection runningSessionBus() {
    const QString usual = qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s;
    const bool isThere = !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") || QFile::exists(usual);
    return isThere ? QDBusConnection::sessionBus() : QDBusConnection(QString());
}

QVariantMap desktopToken() {
    QVariantMap token;
    if (qEnvironmentVariableIsSet(tokenVariable)) token[tokenKey] = qEnvironmentVariable(tokenVariable);
    if (qEnvironmentVariableIsSet(startupVariable)) token[startupKey] = qEnvironmentVariable(startupVariable);
    return token;
}

} // namespace zel
