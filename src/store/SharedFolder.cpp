#include "store/SharedFolder.h"

#include <fcntl.h>
#include <unistd.h>

namespace zel {

void lookAnewBeside(const QByteArray& path) {
    const QByteArray folder = path.first(path.lastIndexOf('/') + 1);
    const int opened = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened >= 0) ::close(opened);
}

} // namespace zel
