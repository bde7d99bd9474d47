#include "store/SystemLog.h"

#include <QByteArray>
#include <QtGlobal>

#include <gmock/gmock.h>

#include <cstdarg>
#include <cstdlib>
#include <fcntl.h>
#include <syslog.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace {

struct Entry {
    int priority;
    std::string text;
    bool operator==(const Entry&) const = default;
};
std::vector<Entry> systemLog; // NOLINT: the library's function has no other way to it

} // namespace

/// In the library's place.
extern "C" void syslog(int priority, const char* format, ...) {
    va_list values;
    va_start(values, format);
    std::vector<char> text(1000);
    std::vsnprintf(text.data(), text.size(), format, values);
    va_end(values);
    systemLog.push_back({priority, text.data()});
}

namespace zel {
namespace {

/// Puts something else in the place of standard error for as long as it lives, and the message handler back.
class OtherStandardError {
public:
    explicit OtherStandardError(int handle)
        : kept{dup(STDERR_FILENO)}, before{qInstallMessageHandler(nullptr)} {
        dup2(handle, STDERR_FILENO);
        close(handle);
        installSystemLog();
    }
    ~OtherStandardError() {
        qInstallMessageHandler(before);
        dup2(kept, STDERR_FILENO);
        close(kept);
    }
    OtherStandardError(const OtherStandardError&) = delete;
    OtherStandardError& operator=(const OtherStandardError&) = delete;

private:
    int kept;
    QtMessageHandler before;
};

void logAll() {
    qDebug("%s", "100 % debug");
    qInfo("info");
    qWarning("warning\n");
    qCritical("critical");
}

TEST(SystemLog, GetsEachLineWithItsPriority) {
    systemLog.clear();
    {
        const OtherStandardError none{open("/dev/null", O_WRONLY)};
        logAll();
    }
    EXPECT_THAT(systemLog, testing::ElementsAre(Entry{LOG_DEBUG, "100 % debug"}, Entry{LOG_INFO, "info"},
                                                Entry{LOG_WARNING, "warning\n"}, Entry{LOG_ERR, "critical"}));
}

TEST(SystemLog, IsTheTerminalWhereThereIsOneALineEach) {
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(master >= 0 && grantpt(master) == 0 && unlockpt(master) == 0);
    systemLog.clear();
    {
        const OtherStandardError terminal{open(ptsname(master), O_RDWR | O_NOCTTY)};
        logAll();
    }
    std::string shown; // up to the end that comes with the terminal's
    for (char next = 0; read(master, &next, 1) == 1;)
        shown += next;
    EXPECT_EQ(shown, "100 % debug\r\ninfo\r\nwarning\r\ncritical\r\n");
    EXPECT_TRUE(systemLog.empty());
    close(master);
}

} // namespace
} // namespace zel
