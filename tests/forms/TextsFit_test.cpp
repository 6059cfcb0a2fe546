#include "WindowFixture.h"
#include "dosboxconf/OptionTable.h"
#include "finding/TreeNodes.h"
#include "forms/Metrics.h"
#include "forms/TextListModel.h"
#include "platform/TextFile.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QTabBar>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace pelorin::test {

/// The window with the shipped texts of one language: its parts don't grow with the words.
class TextsFitTest : public WindowTest, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override
    {
        lang = shell::LangTable::FromLines(platform::SplitLines(Shipped(u"Language.dat"_s))).Take();
        options = dosboxconf::ParseOptionTable(Shipped(u"option.dat"_s), u"option.dat"_s).Take();
        finding::BuildTreeSkeleton(screens.tree, lang, options.BuildNames());
        screens.start.cmdAddEmpty = lang[60];
        screens.cd.picCDVisible = true;
        Open();
    }

    static QString Shipped(const QString& name)
    {
        QFile file(
            QStringLiteral(PELORIN_SOURCE_DIR) +
            u"/data/%1/%2"_s.arg(QString::fromLatin1(GetParam()), name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        return QString::fromUtf8(file.readAll());
    }

    /// What is cut of the buttons and labels that show, by their texts.
    std::string Cut() const
    {
        QStringList cut;
        const QList<QWidget*> widgets = window->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            if (!widget->isVisible()) {
                continue;
            }
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const auto* label = qobject_cast<const QLabel*>(widget);
            const QString text = button != nullptr  ? button->text()
                                 : label != nullptr ? label->text()
                                                    : QString();
            if (!text.isEmpty() && widget->sizeHint().width() > widget->width()) {
                cut << text;
            }
        }
        return cut.join(u'\n').toStdString();
    }
};

TEST_P(TextsFitTest, ButtonsAndLabelsOfEveryPage)
{
    for (int tab = 1; tab <= Find<QTabBar>("tabInfo")->count(); ++tab) {
        ShowTab(tab);
        QTest::qWait(0); // the page takes its size
        EXPECT_EQ(Cut(), std::string()) << tab;
    }
}

TEST_P(TextsFitTest, TabsAtTheirWidest)
{
    const auto* rail = Find<QTabBar>("tabInfo");
    QFont bold = forms::Scaled(rail->font(), 0.88);
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    for (int tab = 0; tab < rail->count(); ++tab) {
        const QStringList words = rail->tabText(tab).split(u' ');
        for (const QString& word : words) {
            EXPECT_LT(metrics.horizontalAdvance(word), rail->tabRect(tab).width())
                << word.toStdString();
        }
        EXPECT_LE(words.size(), 2) << rail->tabText(tab).toStdString();
    }
    const auto* media = Find<QTabBar>("TabStrip1");
    EXPECT_LE(media->sizeHint().width(), media->parentWidget()->width());
}

TEST_P(TextsFitTest, TitlesOfOptionsAndCategories)
{
    ShowTab(3);
    QTest::qWait(0);
    auto* groups = Find<QComboBox>("cmbConfigSub");
    const auto* titles = Find<forms::RowList>("lstConfigTitle");
    ASSERT_EQ(groups->count(), options.GroupCaption.size());
    for (int group = 0; group < groups->count(); ++group) {
        groups->setCurrentIndex(group);
        for (int row = 0; row < titles->model()->rowCount(); ++row) {
            const QModelIndex index = titles->model()->index(row, 0);
            EXPECT_LE(titles->sizeHintForIndex(index).width(), titles->viewport()->width())
                << index.data().toString().toStdString();
        }
    }
    const auto* tree = Find<QTreeView>("TreeView1");
    for (int root = 0; root < tree->model()->rowCount(); ++root) {
        const QModelIndex index = tree->model()->index(root, 0);
        const QString text = index.data().toString();
        EXPECT_LT(tree->fontMetrics().horizontalAdvance(text), tree->visualRect(index).width())
            << text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    EveryLanguage, TextsFitTest, testing::Values("ko", "en"), [](const auto& language) {
        return std::string(language.param);
    });

} // namespace pelorin::test
