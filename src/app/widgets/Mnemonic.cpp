#include "app/widgets/Mnemonic.h"

#include <QRegularExpression>

namespace zel {

using namespace Qt::StringLiterals;

QString withoutMnemonic(const QString& text) {
    static const QRegularExpression keyInBrackets(u"\\s?\\(&.\\)"_s);
    return QString(text).remove(keyInBrackets).remove(u'&');
}

} // namespace zel
