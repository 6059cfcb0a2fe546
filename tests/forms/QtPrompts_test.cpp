#include "forms/QtPrompts.h"

#include "WindowFixture.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace pelorin::test {

using platform::Answer;
using platform::Buttons;

class QtPromptsTest : public testing::Test {
public:
    /// Does it to the next dialog that opens.
    static void WhenOpen(const std::function<void(QDialog& dialog)>& act)
    {
        QTimer::singleShot(0, [act] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
        });
    }
    Answer Ask(Buttons buttons, const std::function<void(QDialog& dialog)>& act)
    {
        WhenOpen(act);
        return prompts.Ask({u"text"_s, u"title"_s, buttons, platform::BoxIcon::Question});
    }
    static void Press(QDialog& dialog, const QString& words)
    {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == words) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "no button " << words.toStdString();
        dialog.reject();
    }

    forms::QtPrompts prompts;
};

TEST_F(QtPromptsTest, EachButtonIsItsAnswer)
{
    EXPECT_EQ(Ask(Buttons::YesNo, [](QDialog& box) { Press(box, u"Yes"_s); }), Answer::Yes);
    EXPECT_EQ(Ask(Buttons::YesNo, [](QDialog& box) { Press(box, u"No"_s); }), Answer::No);
    EXPECT_EQ(Ask(Buttons::OkCancel, [](QDialog& box) { Press(box, u"OK"_s); }), Answer::Ok);
    EXPECT_EQ(
        Ask(Buttons::OkCancel, [](QDialog& box) { Press(box, u"Cancel"_s); }), Answer::Cancel);
    EXPECT_EQ(Ask(Buttons::Ok, [](QDialog& box) { Press(box, u"OK"_s); }), Answer::Ok);
}

TEST_F(QtPromptsTest, AClosedBoxIsTheCautiousAnswer)
{
    const auto close = [](QDialog& box) { box.close(); };
    const auto escape = [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    EXPECT_EQ(Ask(Buttons::YesNo, close), Answer::No);
    EXPECT_EQ(Ask(Buttons::YesNo, escape), Answer::No);
    EXPECT_EQ(Ask(Buttons::OkCancel, close), Answer::Cancel);
    EXPECT_EQ(Ask(Buttons::Ok, escape), Answer::Ok);
}

TEST_F(QtPromptsTest, BoxesShowPlainTextInTheTablesLanguage)
{
    QStringList lines;
    for (int n = 1; n <= 400; ++n) {
        lines << QString::number(n);
    }
    const shell::LangTable lang = shell::LangTable::FromLines(lines).Take();
    prompts.SetLanguage(lang);
    WhenOpen([](QDialog& dialog) {
        const auto& box = static_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.text(), u"<b>Star</b>"_s);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        Press(dialog, u"355"_s);
    });
    EXPECT_EQ(
        prompts.Ask({u"<b>Star</b>"_s, {}, Buttons::YesNo, platform::BoxIcon::None}), Answer::Yes);
}

TEST_F(QtPromptsTest, ACancelledInputIsEmptyWhateverWasTyped)
{
    WhenOpen([](QDialog& dialog) {
        auto& input = static_cast<QInputDialog&>(dialog);
        EXPECT_EQ(input.textValue(), u"preset"_s);
        EXPECT_EQ(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        input.setTextValue(u"typed"_s);
        Press(dialog, u"OK"_s);
    });
    EXPECT_EQ(prompts.InputText(u"prompt"_s, u"title"_s, u"preset"_s), u"typed"_s);
    WhenOpen([](QDialog& dialog) { Press(dialog, u"Cancel"_s); });
    EXPECT_EQ(prompts.InputText(u"prompt"_s, u"title"_s, u"preset"_s), QString());
}

TEST_F(QtPromptsTest, AReportIsShownWholeAndClosedByItsButton)
{
    WhenOpen([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), u"frmOutput"_s);
        EXPECT_EQ(dialog.windowTitle(), u"title"_s);
        auto* text = dialog.findChild<QPlainTextEdit*>(u"txtOutput"_s);
        ASSERT_NE(text, nullptr);
        EXPECT_EQ(text->toPlainText(), u"<a>\nb"_s);
        EXPECT_TRUE(text->isReadOnly());
        dialog.findChild<QPushButton*>(u"cmdOk"_s)->click();
    });
    prompts.ShowReport(u"title"_s, u"<a>\nb"_s);

    // By a key too, wherever the focus is; and the text takes the size of the form.
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        WhenOpen([key](QDialog& dialog) {
            auto* text = dialog.findChild<QPlainTextEdit*>(u"txtOutput"_s);
            const QSize before = text->size();
            dialog.resize(dialog.size() + QSize(50, 70));
            QCoreApplication::processEvents();
            EXPECT_EQ(text->size(), before + QSize(50, 70));
            text->setFocus();
            QTest::keyClick(text, static_cast<Qt::Key>(key));
            EXPECT_FALSE(dialog.isVisible()) << key;
            dialog.close();
        });
        prompts.ShowReport(u"title"_s, u"text"_s);
    }
}

} // namespace pelorin::test
