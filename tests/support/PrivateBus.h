#pragma once

#include "support/EndsWithTest.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel {

/// A session bus of the test's own, on which nothing else is and which starts nothing.
class PrivateBus {
public:
    PrivateBus() {
        QFile settings{folder.filePath(QStringLiteral("bus.conf"))};
        if (settings.open(QIODevice::WriteOnly))
            settings.write("<busconfig><type>session</type><listen>unix:dir=" + folder.path().toUtf8()
                           + "</listen><auth>EXTERNAL</auth><policy context='default'>"
                             "<allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/>"
                             "<allow own='*'/></policy></busconfig>");
        settings.close();
        endWithTest(daemon);
        daemon.start(QStringLiteral("dbus-daemon"),
                     {QStringLiteral("--config-file=") + settings.fileName(), QStringLiteral("--nofork"),
                      QStringLiteral("--print-address")});
        EXPECT_TRUE(daemon.waitForReadyRead()) << "is dbus-daemon installed?";
        address = QString::fromUtf8(daemon.readLine().trimmed());
    }
    ~PrivateBus() {
        daemon.kill();
        daemon.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// Where its socket is.
    [[nodiscard]] QString folderPath() const { return folder.path(); }

    QString address;

private:
    QTemporaryDir folder;
    QProcess daemon;
};

} // namespace zel
