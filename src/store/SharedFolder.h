#pragma once

#include <QByteArray>

namespace zel {

/// Has the system ask a share's server what is in the folder of \p path. Else a name may mean, for half a
/// minute, the file that another machine has replaced or removed since, also when it is opened: a network
/// file system remembers names, and only opening the folder makes it look again.
void lookAnewBeside(const QByteArray& path);

} // namespace zel
