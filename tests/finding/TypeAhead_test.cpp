#include "finding/TypeAhead.h"

#include "finding/HangulKeys.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin::finding;

namespace {

TEST(HangulKeys, AsTheyArePressed)
{
    EXPECT_EQ(HangulKeys(u"별 값 돼 까 뷁"_s), u"ㅂㅕㄹ ㄱㅏㅂㅅ ㄷㅗㅐ ㄲㅏ ㅂㅜㅔㄹㄱ"_s);
    EXPECT_EQ(HangulKeys(u"ab힣"_s), u"abㅎㅣㅎ"_s);
}

TEST(TypeAhead, BeginningsWithoutRegardToCaseAndWidth)
{
    struct Row {
        QString title;
        QString typed;
        QString composing;
        bool begins;
    };
    const Row rows[] = {
        {u"Red Alert"_s, u"rED a"_s, {}, true},
        {u"Ｒｅｄ"_s, u"red"_s, {}, true},
        {u"red"_s, u"Ｒ"_s, {}, true},
        {u"ｶﾞｲ"_s, u"ガ"_s, {}, true},
        {u"별 헤는 밤"_s, u"별"_s, {}, true},
        {u"별"_s.normalized(QString::NormalizationForm_D), u"별"_s, {}, true},
        {u"별"_s, u"벼"_s, {}, false}, // handed over it is a syllable of its own
        {u"별"_s, {}, u"ㅂ"_s, true},
        {u"별"_s, {}, u"벼"_s, true},
        {u"별"_s, {}, u"볍"_s, false},
        {u"가수"_s, {}, u"갓"_s, true}, // the last letter may go over to the next syllable
        {u"화살"_s, {}, u"호"_s, true},
        {u"별 헤는 밤"_s, u"별 "_s, u"ㅎ"_s, true},
        {u"별 헤는 밤"_s, u"별"_s, u"ㅎ"_s, false},
        {u"Red"_s, u"Reds"_s, {}, false},
        {{}, u"a"_s, {}, false},
        {u"가"_s, u"a"_s, {}, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(BeginsWith(row.title, row.typed, row.composing), row.begins)
            << qPrintable(row.title) << " / " << qPrintable(row.typed) << qPrintable(row.composing);
    }
}

class TypeAheadTest : public testing::Test {
protected:
    TypeAheadTest()
    {
        for (const QString& title :
             {u"Alpha"_s, u"Apple"_s, u"Axe"_s, u"Beta"_s, u"가지"_s, u"강아지"_s, u"별"_s}) {
            GameItem item;
            item.text[0] = title;
            m_list.items.push_back(item);
        }
        m_list.Select(0);
    }
    QString Type(const QString& text, qint64 afterMs = 10)
    {
        return Went(m_ahead.Type(m_list, text, m_now += afterMs));
    }
    QString Compose(const QString& text, qint64 afterMs = 10)
    {
        return Went(m_ahead.Compose(m_list, text, m_now += afterMs));
    }
    QString Went(int row)
    {
        if (row < 0) {
            return u"stays"_s;
        }
        m_list.Select(row);
        return m_list.items[static_cast<std::size_t>(row)].text[0];
    }

    GameList m_list;
    TypeAhead m_ahead;
    qint64 m_now = 0;
};

TEST_F(TypeAheadTest, QuickLettersAreOneWordAndOneLetterGoesRound)
{
    EXPECT_EQ(Type(u"a"_s), u"Apple"_s) << "a new word passes the selected row";
    EXPECT_EQ(Type(u"x"_s), u"Axe"_s);
    EXPECT_EQ(Type(u"z"_s), u"stays"_s);
    EXPECT_EQ(Type(u" "_s, TypeAhead::kWordMs), u"stays"_s);
    EXPECT_EQ(Type(u"A"_s), u"Alpha"_s) << "behind the last one comes the first";
    EXPECT_EQ(Type(u"A"_s), u"Apple"_s);
    EXPECT_EQ(Type(u"A"_s), u"Axe"_s);
    EXPECT_EQ(Type(u"b"_s, TypeAhead::kWordMs), u"Beta"_s);
    EXPECT_EQ(Type(u"b"_s, TypeAhead::kWordMs), u"Beta"_s) << "round to the selected one itself";
    // A letter is taken back, a word given up.
    EXPECT_EQ(Type(u"a"_s, TypeAhead::kWordMs), u"Alpha"_s);
    EXPECT_EQ(Type(u"z"_s), u"stays"_s);
    EXPECT_EQ(Type(u"\b"_s), u"stays"_s);
    EXPECT_EQ(Type(u"x"_s), u"Axe"_s);
    EXPECT_EQ(Type(u"\x1b"_s), u"stays"_s);
    EXPECT_EQ(Type(u"b"_s), u"Beta"_s);
    m_list.items.clear();
    m_list.Select(-1);
    EXPECT_EQ(Type(u"a"_s, TypeAhead::kWordMs), u"stays"_s);
}

TEST_F(TypeAheadTest, ACompositionIsFollowedHoweverSlowItIs)
{
    EXPECT_EQ(Compose(u"ㄱ"_s), u"가지"_s);
    EXPECT_EQ(Compose(u"가"_s, 5000), u"가지"_s);
    EXPECT_EQ(Compose(u"강"_s, 5000), u"강아지"_s);
    EXPECT_EQ(Type(u"강"_s, 5000), u"강아지"_s);
    EXPECT_EQ(Compose(u"ㅇ"_s), u"강아지"_s);
    EXPECT_EQ(Compose(QString()), u"stays"_s);
    EXPECT_EQ(Type(u"별"_s, TypeAhead::kWordMs), u"별"_s);
}

} // namespace
