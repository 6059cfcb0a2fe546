#include "library/FolderName.h"

#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

bool IsControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

} // namespace

QString CleanFolderName(const QString& typed)
{
    const QString removed = u"\\|\":/?*"_s;
    QString name;
    for (const QChar character : typed) {
        if (character == u'<') {
            name += u'(';
        } else if (character == u'>') {
            name += u')';
        } else if (!removed.contains(character) && !IsControl(character)) {
            name += character;
        }
    }
    return name;
}

bool MayNameFolder(const QString& name)
{
    return platform::IsPlainName(name) && !name.startsWith(u'.') && !name.endsWith(u'.') &&
           !name.back().isSpace() && std::none_of(name.begin(), name.end(), IsControl);
}

} // namespace pelorin::library
