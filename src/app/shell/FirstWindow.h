#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include <chrono>
#include <optional>

namespace zel {

/// The one window of a data file among all that this person starts on this machine: who has the file's name
/// on the session bus is the first, and is called to the front by the others, in the desktop's own way
/// (org.freedesktop.Application). The bus takes the name from a program that has ended, however it ended.
class FirstWindow final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    /// \p dataFile need not exist; links to it are followed, so that each file has one name.
    FirstWindow(QDBusConnection connection, const QString& dataFile);
    ~FirstWindow() override;

    enum class Outcome {
        first,  ///< this one, from now on until it is destroyed
        shown,  ///< another one is, and has been called to the front
        silent, ///< another one is, and has not answered in time
        alone,  ///< there is no bus to ask
    };
    /// \p platformData: desktopToken(), which allows the other one to come to the front.
    [[nodiscard]] Outcome claim(const QVariantMap& platformData, std::chrono::milliseconds patience);

public slots:
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);

signals:
    void wanted(); ///< another one was started

private:
    [[nodiscard]] std::optional<bool> takeName();
    [[nodiscard]] bool callFirst(const QVariantMap& platformData, std::chrono::milliseconds patience);

    QDBusConnection bus;
    QString name;
    QString path;
};

/// The session bus, or one that is not connected: none is started for this.
[[nodiscard]] QDBusConnection runningSessionBus();

/// What the desktop handed this program to allow it to come to the front. Asked for before the display is
/// opened, which uses it up.
[[nodiscard]] QVariantMap desktopToken();

} // namespace zel
