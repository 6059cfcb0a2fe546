#include "LibraryMaker.h"

#include "Dice.h"
#include "Words.h"
#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/OptionTable.h"
#include "library/IconImages.h"
#include "platform/TextFile.h"
#include "shell/Places.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::bench {

namespace {

using platform::Done;
using platform::Error;
using platform::ErrorKind;

constexpr QChar kTitleBreak(u'\x0003');
constexpr int kBuilds = 20;

/// An edit.conf as the program writes it; line 2 is the build.
platform::Outcome<QByteArray> OwnOptions(const QString& optionTable)
{
    QFile table(optionTable);
    if (!table.open(QIODevice::ReadOnly)) {
        return Error{ErrorKind::Unreadable, optionTable};
    }
    auto grid = dosboxconf::ParseOptionTable(QString::fromUtf8(table.readAll()), optionTable);
    if (!grid) {
        return grid.Failure();
    }
    const QTemporaryDir folder;
    const shell::Places places{folder.path(), folder.path(), folder.path()};
    QDir(folder.path()).mkdir(u"game"_s);
    auto saved = dosboxconf::SaveGameConf(places, u"game"_s, grid.Value());
    if (!saved) {
        return saved.Failure();
    }
    return platform::ReadBytes(places.InMetaDir(u"game"_s, u"edit.conf"_s));
}

QByteArray WithBuild(const QByteArray& options, int build)
{
    const qsizetype start = options.indexOf('\n') + 1;
    const qsizetype end = options.indexOf('\r', start);
    return QByteArray(options).replace(start, end - start, QByteArray::number(build));
}

Done WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                         file.write(bytes) == bytes.size();
    return written ? platform::Success()
                   : Done(Error{ErrorKind::Unwritable, path + u": "_s + file.errorString()});
}

/// The beginnings of the first two words.
QString DosName(const QString& title)
{
    const QStringList words = QString(title).remove(u':').toUpper().split(u' ');
    return words.size() == 1 ? words[0].left(8) : words[0].left(4) + words[1].left(4);
}

class LibraryMaker {
public:
    LibraryMaker(QString gamesRoot, const LibraryPlan& plan, QByteArray options)
        : m_root(std::move(gamesRoot))
        , m_games(plan.games)
        , m_options(std::move(options))
        , m_dice(plan.seed)
    {}

    Done Make()
    {
        for (int n = 0; n < m_games; ++n) {
            MakeGame();
            if (!m_failure.text.isEmpty()) {
                return m_failure;
            }
        }
        return platform::Success();
    }

private:
    struct Title {
        QString korean;
        QString english;
    };

    void MakeGame()
    {
        const Title title = NewTitle();
        const QString game = m_root + u'/' + NewFolder(title);
        m_meta = game + u'/' + (m_dice.Chance(70) ? u"DosBox"_s : u"DOSBOX"_s);
        for (const QString& folder : {game, m_meta, m_meta + u"/CD"_s, m_meta + u"/Manual"_s}) {
            QDir().mkdir(folder);
        }
        const QString program = m_dice.Chance(30) ? u"PLAY.BAT"_s : u"GAME.EXE"_s;
        Write(game + u'/' + program, QByteArray());
        for (int data = m_dice.Roll(6); data > 0; --data) {
            Write(game + u"/DATA%1.DAT"_s.arg(data), QByteArray());
        }
        WriteMeta(u"autoexec.conf"_s, program.toLower() + u"\r\n"_s);
        WriteMeta(
            u"info.txt"_s, title.korean + kTitleBreak + title.english + u"\r\n"_s + Description());
        WriteFacts();
        if (m_dice.Chance(90)) {
            Write(m_meta + u"/Icon.jpg"_s, NewIcon());
        }
        if (m_dice.Chance(20)) {
            Write(m_meta + u"/edit.conf"_s, WithBuild(m_options, m_dice.RollSkewed(kBuilds)));
        }
        if (m_dice.Chance(12)) {
            WriteMeta(u"CD.conf"_s, u"-1\r\n"_s);
        }
        if (m_dice.Chance(3)) {
            Write(game + u"/Store.7z"_s, QByteArray());
        }
    }

    void Append(Title& title, const WordPair& word) const
    {
        title.korean += (title.korean.isEmpty() ? u""_s : u" "_s) + word.Korean();
        title.english += (title.english.isEmpty() ? u""_s : u" "_s) + word.English();
    }

    /// Three quarters of all games stand alone; the others are parts of rows with one name.
    Title NewTitle()
    {
        if (!m_lastTitle.korean.isEmpty() && m_dice.Chance(25)) {
            ++m_part;
            const QString part = u' ' + QString::number(m_part);
            return Title{m_lastTitle.korean + part, m_lastTitle.english + part};
        }
        Title title;
        if (m_dice.Chance(60)) {
            Append(title, m_dice.Pick(kQualities));
        }
        for (int words = 1 + m_dice.Roll(2); words > 0; --words) {
            Append(title, m_dice.Pick(kThings));
        }
        if (m_dice.Chance(25)) {
            const WordPair& quality = m_dice.Pick(kQualities);
            const WordPair& thing = m_dice.Pick(kThings);
            title.korean += u": "_s + quality.Korean() + u' ' + thing.Korean();
            title.english += u": The "_s + quality.English() + u' ' + thing.English();
        }
        m_part = 1;
        m_lastTitle = title;
        return title;
    }

    /// A name as DOS has it, the Korean title or the English one with brackets; each only once.
    QString NewFolder(const Title& title)
    {
        const int kind = m_dice.Roll(10);
        QString name = kind < 6   ? DosName(title.english)
                       : kind < 8 ? title.korean
                                  : title.english + u" ["_s + QString::number(1984 + kind) + u']';
        name.remove(u':');
        QString folder = name;
        while (m_folders.contains(folder.toLower())) {
            folder = name + u'~' + QString::number(++m_twins[name]);
        }
        m_folders.insert(folder.toLower());
        return folder;
    }

    QString Description()
    {
        QString text;
        for (int line = m_dice.Roll(12); line > 0; --line) {
            for (int word = 4 + m_dice.Roll(10); word > 0; --word) {
                text +=
                    (m_dice.Chance(50) ? m_dice.Pick(kQualities) : m_dice.Pick(kThings)).Korean();
                text += u' ';
            }
            text += u"\r\n"_s;
        }
        return text;
    }

    template <class T, std::size_t count>
    const T& Skewed(const std::array<T, count>& of)
    {
        return of[static_cast<std::size_t>(m_dice.RollSkewed(static_cast<int>(count)))];
    }

    void WriteFacts()
    {
        const int maker = m_dice.RollSkewed(static_cast<int>(kMakerStems.size()) * 25);
        const auto stem = static_cast<std::size_t>(maker) % kMakerStems.size();
        const auto ending = static_cast<std::size_t>(maker) % kMakerEndings.size();
        QString name = kMakerStems[stem].toString() + kMakerEndings[ending].toString();
        if (maker >= static_cast<int>(kMakerStems.size())) {
            name += u' ' + QString::number(maker / static_cast<int>(kMakerStems.size()));
        }
        QString release = QString::number(1983 + m_dice.Roll(18));
        if (m_dice.Chance(30)) {
            release += u".%1"_s.arg(1 + m_dice.Roll(12), 2, 10, QChar(u'0'));
        }
        if (m_dice.Chance(85)) {
            const QString language = Skewed(kLanguages).toString();
            const QString country = Skewed(kCountries).toString();
            WriteMeta(
                u"ExtraInfo.txt"_s,
                QStringList{name, release, language, country, QString()}.join(u"\r\n"_s));
        }
        const WordPair& genre = Skewed(kGenres);
        WriteMeta(u"GenreK.dat"_s, genre.Korean() + u"\r\n"_s);
        WriteMeta(u"GenreE.dat"_s, genre.English() + u"\r\n"_s);
    }

    /// Mostly 32 x 32, as the program makes them; some larger, as people copy them.
    QByteArray NewIcon()
    {
        const int side = m_dice.Chance(90) ? library::kLargeIcon : 48 + 16 * m_dice.Roll(6);
        const std::uint8_t blue = Shade();
        const std::uint8_t green = Shade();
        library::IconPixels icon = library::PlainIcon(side, blue, green, Shade());
        for (int mark = 0; mark < 5; ++mark) {
            const int left = m_dice.Roll(side);
            const int top = m_dice.Roll(side);
            Fill(icon, left, top, 2 + m_dice.Roll(side / 2));
        }
        return library::EncodeJpeg(icon);
    }

    std::uint8_t Shade() { return static_cast<std::uint8_t>(m_dice.Roll(256)); }

    void Fill(library::IconPixels& icon, int left, int top, int side)
    {
        const int first = m_dice.Roll(200);
        for (int y = top; y < std::min(icon.side, top + side); ++y) {
            for (int x = left; x < std::min(icon.side, left + side); ++x) {
                char* pixel = icon.bgr.data() + qsizetype{3} * (y * icon.side + x);
                pixel[m_dice.Roll(8) == 0 ? 0 : 1] = static_cast<char>(first + y);
                pixel[2] = static_cast<char>(first + x);
            }
        }
    }

    void Write(const QString& path, const QByteArray& bytes)
    {
        if (const Done written = WriteFile(path, bytes); !written) {
            m_failure = written.Failure();
        }
    }

    void WriteMeta(const QString& name, const QString& text)
    {
        Write(m_meta + u'/' + name, platform::EncodeCp949(text).bytes);
    }

    QString m_root;
    int m_games;
    QByteArray m_options;
    Dice m_dice;
    QString m_meta; // metadata folder of the game at hand
    Title m_lastTitle;
    int m_part = 1;
    QSet<QString> m_folders; // in lower case
    QHash<QString, int> m_twins;
    Error m_failure{}; // the last one
};

} // namespace

Done MakeLibrary(const QString& gamesRoot, const LibraryPlan& plan)
{
    platform::Outcome<QByteArray> options = OwnOptions(plan.optionTable);
    if (!options) {
        return options.Failure();
    }
    return LibraryMaker(gamesRoot, plan, options.Take()).Make();
}

} // namespace pelorin::bench
