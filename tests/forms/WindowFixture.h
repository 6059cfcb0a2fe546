#pragma once

#include "forms/Deeds.h"
#include "forms/Shown.h"
#include "forms/frmDosGames.h"
#include "support/ScriptedPrompts.h"

#include <QAction>
#include <QStringList>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace pelorin::test {

/// Entry n is "En", so that a test sees which one stands where; own entries are missing.
inline shell::LangTable NumberedLanguage(const QString& prefix = QStringLiteral("E"))
{
    QStringList lines;
    for (int n = 1; n <= shell::kLastEntry; ++n) {
        lines << prefix + QString::number(n);
    }
    return shell::LangTable::FromLines(lines).Take();
}

/// The main window over models that a test fills by hand. `did` lists the deeds in order.
class WindowTest : public testing::Test {
public:
    WindowTest()
    {
        lang = NumberedLanguage();
        for (int i = 0; i < 5; ++i) {
            finding::GameItem item;
            item.text[0] = QStringLiteral("Title %1").arg(i);
            item.text[finding::kFolderColumn] = QStringLiteral("GAME%1").arg(i);
            item.listIndex = static_cast<std::int16_t>(i + 1);
            screens.list.items.push_back(item);
        }
        screens.list.Select(0);
        deeds.LVGamelist_ItemClick = Note(QStringLiteral("ItemClick"));
        deeds.LVGamelist_SelectionMoved = Note(QStringLiteral("SelectionMoved"));
        deeds.LVGamelist_DblClick = Note(QStringLiteral("DblClick"));
        deeds.LVGamelist_Delete = Note(QStringLiteral("Delete"));
    }

    std::function<void()> Note(const QString& name)
    {
        return [this, name] { did << name; };
    }
    std::function<void(int)> NoteIndex(const QString& name)
    {
        return [this, name](int index) { did << QStringLiteral("%1 %2").arg(name).arg(index); };
    }

    /// Makes the window once the deeds are set, and opens it.
    void Open()
    {
        window = std::make_unique<forms::frmDosGames>(
            forms::Shown{screens, lang, settings, icons, options, prompts}, deeds);
        screens.frame.changed.Tell(shell::MainFrame::Geometry | shell::MainFrame::Show);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    template <class Widget = QWidget>
    Widget* Find(const char* name) const
    {
        auto* found = window->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    void ShowTab(int tab)
    {
        screens.frame.tabInfo = tab;
        screens.frame.changed.Tell(shell::MainFrame::Tab);
    }

    shell::Screens screens;
    shell::LangTable lang;
    shell::Settings settings;
    library::IconSheet icons;
    dosboxconf::OptionGrid options;
    ScriptedPrompts prompts;
    forms::Deeds deeds;
    QStringList did;
    std::unique_ptr<forms::frmDosGames> window; // goes before what it shows
};

} // namespace pelorin::test
