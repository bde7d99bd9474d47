#pragma once

#include "store/DataStore.h"

#include <QByteArray>
#include <QTemporaryDir>

namespace zel {

/// A home folder of its own, gone with it, whose data file is \p content; nothing is loaded yet.
struct BenchHome {
    explicit BenchHome(const QByteArray& content);

    QTemporaryDir folder;
    SystemClock clock;
    DataStore store{{folder.path(), folder.path(), folder.path()}, clock};
    QString path = store.getZELXMLPath();

    [[nodiscard]] std::string name() const { return path.toStdString(); }
};

/// Ends the program when something that is measured does not work: its figure would mean nothing.
void require(bool works, const char* what);

} // namespace zel
