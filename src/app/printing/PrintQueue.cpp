#include "app/printing/PrintQueue.h"

#include <QFile>
#include <QLibrary>

#include <memory>
#include <sys/mman.h>
#include <unistd.h>

namespace zel {

namespace {

// QPrinter hands on whatever it has when painting ends, also half a document after a full disk, and has no
// means to take that back. So the queue is asked itself, by the library that Qt's own printing stands on.

struct CupsOption {
    char* name;
    char* value;
};
struct CupsDestination {
    char *name, *instance;
    int isDefault, optionTotal;
    CupsOption* options;
};

/// The functions of libcups that are needed; null where the library is missing.
class Cups {
public:
    Cups()
        : library(QStringLiteral("cups"), 2),
          getNamedDest(reinterpret_cast<GetNamedDest>(library.resolve("cupsGetNamedDest"))),
          freeDests(reinterpret_cast<FreeDests>(library.resolve("cupsFreeDests"))),
          addOption(reinterpret_cast<AddOption>(library.resolve("cupsAddOption"))),
          printFile(reinterpret_cast<PrintFile>(library.resolve("cupsPrintFile"))) {}

    [[nodiscard]] bool isThere() const { return getNamedDest && freeDests && addOption && printFile; }
    [[nodiscard]] auto destination(const QByteArray& printer) const {
        const auto release = [free = freeDests](CupsDestination* one) { free(1, one); };
        // "printer/instance" is a printer with a set of options of its own; no printer's name has a slash.
        const auto slash = printer.lastIndexOf('/');
        const QByteArray name = printer.first(slash < 0 ? printer.size() : slash);
        const QByteArray instance = slash < 0 ? QByteArray() : printer.sliced(slash + 1);
        return std::unique_ptr<CupsDestination, decltype(release)>(
            getNamedDest(nullptr, name.constData(), instance.isEmpty() ? nullptr : instance.constData()),
            release);
    }
    void add(CupsDestination& to, const char* name, const QByteArray& value) const {
        to.optionTotal = addOption(name, value.constData(), to.optionTotal, &to.options);
    }
    [[nodiscard]] bool print(const CupsDestination& on, const QString& path, const QString& title) const {
        return printFile(on.name, path.toLocal8Bit().constData(), title.toUtf8().constData(), on.optionTotal,
                         on.options)
               != 0;
    }

private:
    using GetNamedDest = CupsDestination* (*)(void* server, const char* name, const char* instance);
    using FreeDests = void (*)(int total, CupsDestination* destinations);
    using AddOption = int (*)(const char* name, const char* value, int total, CupsOption** options);
    using PrintFile = int (*)(const char* printer, const char* path, const char* title, int total,
                              const CupsOption* options);

    QLibrary library;
    GetNamedDest getNamedDest;
    FreeDests freeDests;
    AddOption addOption;
    PrintFile printFile;
};

/// The library wants a file. This one has no place on any disk, where a program that is killed would leave
/// it.
class FileInMemory {
public:
    explicit FileInMemory(const QByteArray& content) : handle(::memfd_create("report", MFD_CLOEXEC)) {
        QFile file;
        whole = handle >= 0 && file.open(handle, QIODevice::WriteOnly)
                && file.write(content) == content.size() && file.flush();
    }
    ~FileInMemory() {
        if (handle >= 0) ::close(handle);
    }
    FileInMemory(const FileInMemory&) = delete;
    FileInMemory& operator=(const FileInMemory&) = delete;
    [[nodiscard]] bool isWhole() const { return whole; }
    [[nodiscard]] QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(handle); }

private:
    int handle;
    bool whole = false;
};

} // namespace

bool queueJob(const QString& printer, const PrintJob& job) {
    const Cups cups;
    const FileInMemory file(job.pdf);
    if (!cups.isThere() || !file.isWhole()) return false;
    const auto destination = cups.destination(printer.toUtf8());
    if (!destination) return false;
    cups.add(*destination, "media", job.paper.key().toUtf8());
    if (job.orientation == QPageLayout::Landscape) cups.add(*destination, "landscape", "true");
    return cups.print(*destination, file.path(), job.title);
}

} // namespace zel
