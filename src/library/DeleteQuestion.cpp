#include "library/DeleteQuestion.h"

#include "shell/LangTable.h"
#include "shell/NameList.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

constexpr qsizetype kMostCharacters = 60;

QString Cut(const QString& text)
{
    constexpr qsizetype kHalf = kMostCharacters / 2;
    return text.size() <= kMostCharacters ? text : text.left(kHalf) + u'…' + text.right(kHalf);
}

} // namespace

QString NameForDeletion(const QString& title, const QString& folder)
{
    return title == folder ? Cut(folder) : Cut(title) + u"  —  "_s + Cut(folder);
}

QString DeleteQuestion(
    const QStringList& names, const archives::FolderSize& size, const shell::LangTable& lang)
{
    const QLocale locale(lang.IsKorean() ? QLocale::Korean : QLocale::English);
    const QStringList lines = shell::FirstNames(names, lang);
    const QString question = names.size() == 1
                                 ? lang.OwnText(414, u"Move this game to the recycle bin?"_s)
                                 : lang.OwnText(
                                       415,
                                       u"Move these <1> games to the recycle bin?"_s,
                                       {locale.toString(names.size())});
    const QStringList figures{
        locale.toString(size.files),
        locale.formattedDataSize(size.bytes, 1, QLocale::DataSizeTraditionalFormat)};
    const QString content =
        size.whole ? lang.OwnText(417, u"Files: <1>, size: <2>"_s, figures)
                   : lang.OwnText(418, u"Files: more than <1>, size: more than <2>"_s, figures);
    return question + u"\n\n"_s + lines.join(u'\n') + u"\n\n"_s + content;
}

} // namespace pelorin::library
