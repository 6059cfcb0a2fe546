#include "BenchInstallation.h"
#include "Figures.h"
#include "Registry.h"
#include "finding/BuildGameList.h"
#include "finding/TreeNodes.h"

#include <QLocale>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace pelorin::bench {

namespace {

constexpr int kDistinctValues = 2000;

/// Looks at each character of each title.
std::size_t PassOverTitles(const library::Catalogue& catalogue)
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
    finding::GameList list;
    finding::FilterTree tree;
    finding::TitleOrder order{QLocale(QLocale::Korean), true};
    QStringList buildNames = BuildNames();

    void Rebuild(const library::Catalogue& catalogue, const QString& term)
    {
        const finding::ListSource source{catalogue, buildNames, true, term, u" [압축]"_s};
        finding::BuildGameList(list, order, source, finding::BuildFilterIndex(tree, source));
    }
};

void AddRebuild(const char* name, const BenchInstallation& installation, const QString& term)
{
    AddFigure(name, [=, &installation](benchmark::State& state) {
        StandingList standing;
        standing.Rebuild(installation.catalogue, term);
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
    AddRebuild("rebuild_all/is", installation, QString());
    AddRebuild("rebuild_search/is", installation, u"용"_s);
    AddFigure("rebuild_first/is", [&](benchmark::State& state) {
        TimeEach(state, [&] {
            auto standing = std::make_unique<StandingList>();
            standing->Rebuild(installation.catalogue, QString());
            return standing;
        });
    });
    AddFigure("rebuild_by_column/is", [&](benchmark::State& state) {
        StandingList standing;
        standing.list.sort.column = 4;
        standing.Rebuild(installation.catalogue, QString());
        TimeEach(state, [&] {
            standing.Rebuild(installation.catalogue, QString());
            return standing.list.items.size();
        });
    });
}

/// The library with as many distinct values in the six categories by value.
library::Catalogue WithDistinctValues(library::Catalogue catalogue)
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
    for (const char16_t* key :
         {u"genrek", u"genree", u"publisher", u"language", u"released", u"country"}) {
        QStringList texts = finding::ChildTexts(tree, QString::fromUtf16(key));
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
    const auto catalogue =
        std::make_shared<const library::Catalogue>(WithDistinctValues(installation.catalogue));
    const auto tree = std::make_shared<finding::FilterTree>();
    finding::BuildTreeSkeleton(*tree, installation.lang, BuildNames());
    finding::RefillValueNodes(*tree, *catalogue);
    const std::vector<QStringList> values = ValuesOf(*tree);
    AddFigure("value_nodes/is", [=](benchmark::State& state) {
        TimeEach(state, [&] {
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
