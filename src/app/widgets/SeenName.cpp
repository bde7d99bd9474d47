#include "app/widgets/SeenName.h"

#include "app/widgets/Mnemonic.h"

namespace zel {

void nameAsSeen(QWidget& control, const QString& seen, const QString& more) {
    QString name = withoutMnemonic(seen);
    if (name.endsWith(u':')) name.chop(1);
    control.setAccessibleName(name.trimmed());
    QStringList lines{more, control.toolTip()};
    lines.removeAll(QString());
    control.setAccessibleDescription(lines.join(u'\n'));
}

} // namespace zel
