#include "support/FailingCalls.h"

#include "support/BrokenFile.h"

#include <QFile>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <deque>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t handles = 1024;

struct Plan {
    QByteArray below;
    unsigned nth = 0;
    int error = 0;
    std::atomic<unsigned> count = 0;
    std::atomic<const char*> failed = nullptr;
    std::array<std::atomic<bool>, handles> watched{};
};

std::atomic<Plan*> plan = nullptr;

/// Kept: a call of another thread may still look at the last one.
std::deque<Plan>& plans() {
    static std::deque<Plan> all;
    return all;
}

template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name)); // NOLINT: that is dlsym's interface
}

bool isBelow(const char* path) {
    const Plan* at = plan;
    return at && path
           && std::strncmp(path, at->below.constData(), static_cast<std::size_t>(at->below.size())) == 0;
}

bool isWatched(int handle) {
    const Plan* at = plan;
    return at && handle >= 0 && static_cast<std::size_t>(handle) < handles
           && at->watched.at(std::size_t(handle));
}

void watch(int handle, bool on) {
    if (Plan* at = plan; at && handle >= 0 && static_cast<std::size_t>(handle) < handles)
        at->watched.at(static_cast<std::size_t>(handle)) = on;
}

enum class Fate { goesOn, fails, doesHalf };

Fate meet(const char* call) {
    Plan* at = plan;
    if (!at || ++at->count != at->nth) return Fate::goesOn;
    at->failed = call;
    if (at->error == 0) return Fate::doesHalf;
    errno = at->error;
    return Fate::fails;
}

bool fails(bool isOurs, const char* call) { return isOurs && meet(call) == Fate::fails; }

int opened(const char* path, int handle) {
    if (handle >= 0) watch(handle, isBelow(path));
    return handle;
}

template <class Buffer>
ssize_t transfer(const char* call, int handle, Buffer* buffer, std::size_t size) {
    const Fate fate = isWatched(handle) ? meet(call) : Fate::goesOn;
    if (fate == Fate::fails) return -1;
    const std::size_t part = fate == Fate::doesHalf && size > 1 ? size / 2 : size;
    return next<ssize_t(int, Buffer*, std::size_t)>(call)(handle, buffer, part);
}

/// The disk is not asked: nothing here pulls its plug, and waiting for it takes minutes.
int flush(int handle, const char* call) {
    if (!isWatched(handle)) return next<int(int)>(call)(handle);
    return meet(call) == Fate::fails ? -1 : 0;
}

mode_t modeOf(int flags, va_list more) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(more, mode_t) : 0;
}

} // namespace

// NOLINTBEGIN: the system's own names and parameters
extern "C" {

#define ZEL_OPEN(NAME)                                                                                       \
    int NAME(const char* path, int flags, ...) {                                                             \
        va_list more;                                                                                        \
        va_start(more, flags);                                                                               \
        const mode_t mode = modeOf(flags, more);                                                             \
        va_end(more);                                                                                        \
        if (fails(isBelow(path), "open")) return -1;                                                         \
        return opened(path, next<int(const char*, int, ...)>(#NAME)(path, flags, mode));                     \
    }
ZEL_OPEN(open)
ZEL_OPEN(open64)

#define ZEL_OPENAT(NAME)                                                                                     \
    int NAME(int folder, const char* path, int flags, ...) {                                                 \
        va_list more;                                                                                        \
        va_start(more, flags);                                                                               \
        const mode_t mode = modeOf(flags, more);                                                             \
        va_end(more);                                                                                        \
        if (fails(isBelow(path), "open")) return -1;                                                         \
        return opened(path, next<int(int, const char*, int, ...)>(#NAME)(folder, path, flags, mode));        \
    }
ZEL_OPENAT(openat)
ZEL_OPENAT(openat64)

#define ZEL_MKOSTEMP(NAME)                                                                                   \
    int NAME(char* path, int flags) {                                                                        \
        if (fails(isBelow(path), "open")) return -1;                                                         \
        return opened(path, next<int(char*, int)>(#NAME)(path, flags));                                      \
    }
ZEL_MKOSTEMP(mkostemp)
ZEL_MKOSTEMP(mkostemp64)

ssize_t read(int handle, void* buffer, std::size_t size) {
    return zel::BrokenFile::failsFor(handle) ? -1 : transfer("read", handle, buffer, size);
}
ssize_t write(int handle, const void* buffer, std::size_t size) {
    return transfer("write", handle, buffer, size);
}

int fsync(int handle) { return flush(handle, "fsync"); }
int fdatasync(int handle) { return flush(handle, "fdatasync"); }
int syncfs(int handle) { return flush(handle, "syncfs"); }
int flock(int handle, int operation) {
    return fails(isWatched(handle), "flock") ? -1 : next<int(int, int)>("flock")(handle, operation);
}

int close(int handle) {
    const bool isFailing = fails(isWatched(handle), "close"); // it is closed all the same, as the system does
    const int error = errno;
    watch(handle, false);
    const int result = next<int(int)>("close")(handle);
    if (isFailing) errno = error;
    return isFailing ? -1 : result;
}

int rename(const char* from, const char* to) {
    return fails(isBelow(to), "rename") ? -1 : next<int(const char*, const char*)>("rename")(from, to);
}
int renameat2(int a, const char* from, int b, const char* to, unsigned flags) {
    if (fails(isBelow(to), "rename")) return -1;
    return next<int(int, const char*, int, const char*, unsigned)>("renameat2")(a, from, b, to, flags);
}
int unlink(const char* path) {
    return fails(isBelow(path), "unlink") ? -1 : next<int(const char*)>("unlink")(path);
}
int unlinkat(int folder, const char* path, int flags) {
    if (fails(isBelow(path), "unlink")) return -1;
    return next<int(int, const char*, int)>("unlinkat")(folder, path, flags);
}
int mkdir(const char* path, mode_t mode) {
    return fails(isBelow(path), "mkdir") ? -1 : next<int(const char*, mode_t)>("mkdir")(path, mode);
}
int link(const char* from, const char* to) {
    return fails(isBelow(to), "link") ? -1 : next<int(const char*, const char*)>("link")(from, to);
}
int linkat(int a, const char* from, int b, const char* to, int flags) {
    if (fails(isBelow(to), "link")) return -1;
    return next<int(int, const char*, int, const char*, int)>("linkat")(a, from, b, to, flags);
}
}
// NOLINTEND

namespace zel {

FailingCalls::FailingCalls(const QString& below, unsigned nth, int error) {
    Plan& armed = plans().emplace_back();
    armed.below = QFile::encodeName(below) + '/';
    armed.nth = nth;
    armed.error = error;
    plan = &armed;
}

FailingCalls::~FailingCalls() { plan = nullptr; }

unsigned FailingCalls::count() {
    const Plan* at = plan;
    return at ? at->count.load() : 0;
}

QByteArray FailingCalls::failed() {
    const Plan* at = plan;
    return at && at->failed ? QByteArray(at->failed) : QByteArray();
}

} // namespace zel
