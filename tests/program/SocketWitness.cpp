// Preloaded into the program: writes down every socket that the program or a library of it opens, one a line,
// into the file ZEL_SOCKETS, and with ZEL_VISIT goes through the window as a user does, and quits.
// What the C library opens within itself is seen where it is asked for it: names of hosts, by getaddrinfo(),
// and the system's log, by syslog().
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <array>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <netdb.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

namespace {

void note(const std::string& what) {
    const char* path = std::getenv("ZEL_SOCKETS");
    const int file = path ? open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600) : -1;
    const std::string line = what + '\n';
    if (file < 0 || write(file, line.data(), line.size()) < 0) abort();
    close(file);
}

void note(const char* call, const sockaddr* address, socklen_t length) {
    if (!address) return;
    constexpr auto name = offsetof(sockaddr_un, sun_path);
    if (address->sa_family != AF_UNIX || length <= name)
        return note(call + std::string(" family ") + std::to_string(address->sa_family));
    std::string path(length - name, '\0');
    std::memcpy(path.data(), reinterpret_cast<const char*>(address) + name,
                path.size());                     // NOLINT: as defined
    if (path.front() == '\0') path.front() = '@'; // an abstract name
    path.resize(std::strlen(path.data()));        // what follows is not of the name
    note(call + std::string(" unix ") + path);
}

template <class Function>
Function* real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name)); // NOLINT: as dlsym() is meant
}

// A name of the program's window is acted on when what is open over it has been closed, one with a + within
// it.
constexpr std::array visits{"graphBtn",        "toggleHistogram", "toggleCorrelation", "toggleTrend",
                            "tableBtn",        "patientBtn",      "showPrint",         "+printerSelection",
                            "showSavePdf",     "showBackups",     "+btnCreateBackup",  "showSetting",
                            "+exportButton",   "showSetting",     "+importButton",     "showAbout",
                            "closeApplicaiton"};

void closeDialogs() {
    while (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        note("dialog " + dialog->objectName().toStdString());
        dialog->reject();
        if (QApplication::activeModalWidget() == dialog) return;
    }
}

template <class Control>
Control* find(const QString& name) {
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = window->findChild<Control*>(name)) return found;
    return nullptr;
}

bool isWithinReach(const QAbstractButton* button, const QAction* action) {
    return button ? button->isEnabled() && button->isVisible() : action->isEnabled();
}

/// The next visit first: what is opened here may wait for an answer.
void visit(std::size_t number) {
    constexpr int pause = 300; // milliseconds, for what is drawn or asked meanwhile
    const bool isStarted = find<QAbstractButton>(QStringLiteral("graphBtn")) && number < visits.size();
    if (number >= visits.size()) return;
    QTimer::singleShot(pause, qApp, [=] { visit(number + (isStarted ? 1 : 0)); });
    if (!isStarted) return;
    const char* name = visits.at(number);
    const bool isWithin = *name == '+';
    if (isWithin)
        ++name;
    else
        closeDialogs();
    auto* button = find<QAbstractButton>(QString::fromLatin1(name));
    auto* action = find<QAction>(QString::fromLatin1(name));
    if (!button && !action) return note(std::string("no control ") + name);
    note((isWithinReach(button, action) ? "visit " : "out of reach ") + std::string(name));
    button ? button->click() : action->trigger();
}

void beginVisit() {
    if (qobject_cast<QApplication*>(qApp) && std::getenv("ZEL_VISIT"))
        QTimer::singleShot(2500, qApp, [] { visit(0); }); // behind the splash screen
}
Q_COREAPP_STARTUP_FUNCTION(beginVisit)

} // namespace

extern "C" {

int socket(int family, int type, int protocol) {
    if (family != AF_UNIX)
        note("socket family " + std::to_string(family) + " protocol " + std::to_string(protocol));
    return real<int(int, int, int)>("socket")(family, type, protocol);
}

int connect(int handle, const sockaddr* address, socklen_t length) {
    note("connect", address, length);
    return real<int(int, const sockaddr*, socklen_t)>("connect")(handle, address, length);
}

int bind(int handle, const sockaddr* address, socklen_t length) noexcept {
    note("bind", address, length);
    return real<int(int, const sockaddr*, socklen_t)>("bind")(handle, address, length);
}

ssize_t sendto(int handle, const void* data, size_t size, int flags, const sockaddr* address,
               socklen_t length) {
    note("sendto", address, length);
    return real<ssize_t(int, const void*, size_t, int, const sockaddr*, socklen_t)>("sendto")(
        handle, data, size, flags, address, length);
}

ssize_t sendmsg(int handle, const msghdr* message, int flags) {
    note("sendmsg", static_cast<const sockaddr*>(message->msg_name), message->msg_namelen);
    return real<ssize_t(int, const msghdr*, int)>("sendmsg")(handle, message, flags);
}

int getaddrinfo(const char* host, const char* service, const addrinfo* hints, addrinfo** result) {
    note(std::string("getaddrinfo ") + (host ? host : ""));
    return real<int(const char*, const char*, const addrinfo*, addrinfo**)>("getaddrinfo")(host, service,
                                                                                           hints, result);
}

void openlog(const char* name, int options, int facility) {
    note("syslog");
    real<void(const char*, int, int)>("openlog")(name, options, facility);
}

__attribute__((format(printf, 2, 0))) void vsyslog(int priority, const char* format, va_list values) {
    note("syslog");
    real<void(int, const char*, va_list)>("vsyslog")(priority, format, values);
}

__attribute__((format(printf, 2, 3))) void syslog(int priority, const char* format, ...) {
    va_list values;
    va_start(values, format);
    vsyslog(priority, format, values);
    va_end(values);
}

// NOLINTNEXTLINE: what a hardened build calls
__attribute__((format(printf, 3, 4))) void __syslog_chk(int priority, int, const char* format, ...) {
    va_list values;
    va_start(values, format);
    vsyslog(priority, format, values);
    va_end(values);
}
}
