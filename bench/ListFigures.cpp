#include "BenchInstallation.h"
#include "Figures.h"
#include "Registry.h"
#include "finding/BuildGameList.h"
#include "finding/TreeNodes.h"

#include <QLocale>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace pelorin::bench {

namespace {

constexpr int kDistinctValues = 2000;

/// Looks at each character of each title.
std::size_t PassOverTitles(library::GamesView catalogue)
{
    std::size_t sum = 0;
    for (const library::GameEntry& entry : catalogue) {
        for (const QChar c : entry.TitleK) {
            sum += c.unicode();
        }
    }
    return sum;
}

QStringList BuildNames()
{
    QStringList names;
    for (int i = 0; i < 20; ++i) {
        names << u"0.74_SVN_%1"_s.arg(i);
    }
    return names;
}

/// A list that was built before, as after the start.
struct StandingList {
    explicit StandingList(const BenchInstallation& installation, bool korean = true)
        : titleLanguageKorean(korean)
        , order(QLocale(korean ? QLocale::Korean : QLocale::English), korean)
    {
        finding::BuildTreeSkeleton(tree, installation.lang, buildNames);
        finding::RefillValueNodes(tree, installation.catalogue);
    }

    bool titleLanguageKorean;
    finding::GameList list;
    finding::FilterTree tree;
    finding::TitleOrder order;
    QStringList buildNames = BuildNames();

    finding::ListSource Source(library::GamesView catalogue, const QString& term = QString()) const
    {
        return {catalogue, buildNames, titleLanguageKorean, term, u" [압축]"_s};
    }
    void Rebuild(library::GamesView catalogue, const QString& term)
    {
        const finding::ListSource source = Source(catalogue, term);
        finding::BuildGameList(list, order, source, finding::BuildFilterIndex(tree, source));
    }
    /// Marks, in that category, the first child that passes the game alone, and tells whether there
    /// is one.
    bool Mark(finding::Category category, const library::GameEntry& game)
    {
        const finding::ListSource source = Source({&game, 1});
        for (finding::FilterNode& node : tree.Root(category)->children) {
            finding::FilterTree one;
            one.roots.push_back({category, {}, {node, {}}, false, false});
            one.roots[0].children[0].checked = true;
            if (finding::BuildFilterIndex(one, source)) {
                node.checked = true;
                return true;
            }
        }
        return false;
    }
};

void AddRebuild(
    const char* name,
    const BenchInstallation& installation,
    const std::function<void(StandingList& standing)>& prepare,
    const QString& term = QString(),
    bool korean = true)
{
    AddFigure(name, [=, &installation](benchmark::State& state) {
        StandingList standing(installation, korean);
        prepare(standing);
        standing.Rebuild(installation.catalogue, term);
        if (standing.list.items.empty()) {
            state.SkipWithError("an empty list");
        }
        TimeEach(state, [&] {
            standing.Rebuild(installation.catalogue, term);
            return standing.list.items.size();
        });
        state.counters["rows"] = static_cast<double>(standing.list.items.size());
    });
}

void AddRebuilds(const BenchInstallation& installation)
{
    AddFigure("titles_pass/floor", [&](benchmark::State& state) {
        TimeEach(state, [&] { return PassOverTitles(installation.catalogue); });
    });
    const auto nothing = [](StandingList&) {};
    AddRebuild("rebuild_all/is", installation, nothing);
    AddRebuild("rebuild_search/is", installation, nothing, u"용"_s);
    AddRebuild("rebuild_one_category/is", installation, [&](StandingList& standing) {
        standing.Mark(finding::Category::GenreK, installation.catalogue[0]);
    });
    // English titles, since none begins with a letter and with Hangul at once.
    AddRebuild(
        "rebuild_ten_categories/is",
        installation,
        [&](StandingList& standing) {
            for (const finding::FilterRoot& root : standing.tree.roots) {
                if (!standing.Mark(root.category, installation.catalogue[0])) {
                    qFatal("no child of %s passes the game", qUtf8Printable(root.text));
                }
            }
        },
        QString(),
        false);
    AddRebuild("rebuild_by_column/is", installation, [](StandingList& standing) {
        standing.list.sort.column = 4;
    });
    AddFigure("rebuild_first/is", [&](benchmark::State& state) {
        TimeEach(state, [&] {
            auto standing = std::make_unique<StandingList>(installation);
            standing->Rebuild(installation.catalogue, QString());
            return standing;
        });
    });
}

/// The library with as many distinct values in the six categories by value.
library::GameEntries WithDistinctValues(library::GameEntries catalogue)
{
    struct Share {
        QString library::GameEntry::*field;
        int values;
    };
    constexpr std::array<Share, 6> kShares{{
        {&library::GameEntry::GenreK, 40},
        {&library::GameEntry::GenreE, 40},
        {&library::GameEntry::Maker, 1500},
        {&library::GameEntry::Release, 340},
        {&library::GameEntry::GameLanguage, 40},
        {&library::GameEntry::Country, 40},
    }};
    for (const Share& share : kShares) {
        QStringList values;
        for (int n = 0; n < share.values; ++n) {
            values << u"값 %1 of %2"_s.arg(n * 7919 % share.values).arg(share.values);
        }
        for (std::size_t i = 0; i < catalogue.size(); ++i) {
            // Games lie by name, not by value.
            const auto at = (i * 2654435761U >> 7U) % static_cast<std::size_t>(share.values);
            catalogue[i].*share.field = values[static_cast<qsizetype>(at)];
        }
    }
    return catalogue;
}

std::vector<QStringList> ValuesOf(const finding::FilterTree& tree)
{
    std::vector<QStringList> values;
    for (const finding::CategoryRow& row : finding::kCategories) {
        if (!row.fact) {
            continue;
        }
        QStringList texts = finding::ChildTexts(tree, row.category);
        // As far from any order as the catalogue is.
        std::sort(texts.begin(), texts.end(), [](const QString& a, const QString& b) {
            return qHash(a) < qHash(b);
        });
        values.push_back(texts);
    }
    return values;
}

void AddNodes(const BenchInstallation& installation)
{
    const library::GameEntries games = WithDistinctValues(
        library::GameEntries(installation.catalogue.begin(), installation.catalogue.end()));
    const auto catalogue = std::make_shared<library::Catalogue>(games);
    const auto tree = std::make_shared<finding::FilterTree>();
    finding::BuildTreeSkeleton(*tree, installation.lang, BuildNames());
    finding::RefillValueNodes(*tree, *catalogue);
    const std::vector<QStringList> values = ValuesOf(*tree);
    AddFigure("value_nodes/is", [=](benchmark::State& state) {
        int position = 0;
        TimeEach(state, [&] {
            // As after a change of one game: the values of two swap places.
            const QString former = (*catalogue)[0].Maker;
            const int other = ++position % static_cast<int>(catalogue->size());
            const QString latter = (*catalogue)[static_cast<std::size_t>(other)].Maker;
            catalogue->Edit(0, [&](auto& game) { game.Maker = latter; });
            catalogue->Edit(other, [&](auto& game) { game.Maker = former; });
            finding::RefillValueNodes(*tree, *catalogue);
            return 0;
        });
        qsizetype count = 0;
        for (const QStringList& texts : values) {
            count += texts.size();
        }
        if (count != kDistinctValues) {
            state.SkipWithError("not as many values as meant");
        }
    });
    AddFigure("value_count/is", [=](benchmark::State& state) {
        TimeEach(state, [&] { return library::Catalogue(games); });
    });
    AddFigure("value_nodes/floor", [=](benchmark::State& state) {
        std::vector<QStringList> sorted;
        TimeEach(
            state,
            [&] {
                sorted = values;
                for (QStringList& texts : sorted) {
                    texts.detach();
                }
            },
            [&] {
                for (QStringList& texts : sorted) {
                    std::sort(texts.begin(), texts.end());
                }
                return sorted.size();
            });
    });
}

} // namespace

void AddListFigures(const BenchInstallation& installation)
{
    AddRebuilds(installation);
    AddNodes(installation);
}

} // namespace pelorin::bench
