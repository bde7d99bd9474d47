#pragma once

#include "store/AtomicFile.h"

#include <QString>

namespace zel {

/// While it lives, the data file is damaged right after a write, before it is read again.
class DamageAfterWrite {
public:
    explicit DamageAfterWrite(const QString& dataFile) {
        path() = dataFile;
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& line) {
            if (line == QLatin1StringView("write document out..."))
                std::ignore = replaceFile(path(), "<ZEL>");
        });
    }
    ~DamageAfterWrite() { qInstallMessageHandler(nullptr); }
    DamageAfterWrite(const DamageAfterWrite&) = delete;
    DamageAfterWrite& operator=(const DamageAfterWrite&) = delete;

private:
    static QString& path() { // a message handler takes no context
        static QString damaged;
        return damaged;
    }
};

} // namespace zel
