#pragma once

#include <QString>

#include <array>

namespace pelorin::bench {

/// A word of a title in both languages.
struct WordPair {
    QStringView korean;
    QStringView english;

    QString Korean() const { return korean.toString(); }
    QString English() const { return english.toString(); }
};

inline constexpr std::array<WordPair, 32> kQualities{{
    {u"검은", u"Black"},      {u"붉은", u"Red"},         {u"푸른", u"Blue"},
    {u"하얀", u"White"},      {u"잃어버린", u"Lost"},    {u"숨겨진", u"Hidden"},
    {u"마지막", u"Last"},     {u"위대한", u"Great"},     {u"작은", u"Little"},
    {u"용감한", u"Brave"},    {u"어두운", u"Dark"},      {u"빛나는", u"Shining"},
    {u"오래된", u"Old"},      {u"새로운", u"New"},       {u"신비한", u"Mystic"},
    {u"끝없는", u"Endless"},  {u"얼어붙은", u"Frozen"},  {u"불타는", u"Burning"},
    {u"잠자는", u"Sleeping"}, {u"떠도는", u"Wandering"}, {u"미친", u"Crazy"},
    {u"은빛", u"Silver"},     {u"황금", u"Golden"},      {u"강철", u"Iron"},
    {u"바람의", u"Windy"},    {u"먼", u"Distant"},       {u"깊은", u"Deep"},
    {u"뒤틀린", u"Twisted"},  {u"고요한", u"Silent"},    {u"슈퍼", u"Super"},
    {u"사이버", u"Cyber"},    {u"트리플", u"Triple"},
}};

inline constexpr std::array<WordPair, 56> kThings{{
    {u"용", u"Dragon"},      {u"기사", u"Knight"},     {u"성", u"Castle"},
    {u"우주", u"Space"},     {u"함대", u"Fleet"},      {u"탐정", u"Detective"},
    {u"전설", u"Legend"},    {u"왕국", u"Kingdom"},    {u"전쟁", u"War"},
    {u"바다", u"Sea"},       {u"해적", u"Pirates"},    {u"미로", u"Maze"},
    {u"마법사", u"Wizard"},  {u"로봇", u"Robot"},      {u"경주", u"Race"},
    {u"축구", u"Soccer"},    {u"야구", u"Baseball"},   {u"섬", u"Island"},
    {u"탑", u"Tower"},       {u"별", u"Star"},         {u"달", u"Moon"},
    {u"태양", u"Sun"},       {u"그림자", u"Shadow"},   {u"사냥꾼", u"Hunter"},
    {u"유령", u"Ghost"},     {u"도시", u"City"},       {u"제국", u"Empire"},
    {u"검", u"Sword"},       {u"방패", u"Shield"},     {u"열쇠", u"Key"},
    {u"문", u"Gate"},        {u"비밀", u"Secret"},     {u"여행", u"Journey"},
    {u"모험", u"Adventure"}, {u"퍼즐", u"Puzzle"},     {u"상자", u"Box"},
    {u"폭풍", u"Storm"},     {u"얼음", u"Ice"},        {u"불꽃", u"Flame"},
    {u"숲", u"Forest"},      {u"사막", u"Desert"},     {u"늑대", u"Wolf"},
    {u"호랑이", u"Tiger"},   {u"고양이", u"Cat"},      {u"공룡", u"Dinosaur"},
    {u"외계인", u"Alien"},   {u"병사", u"Soldier"},    {u"장군", u"General"},
    {u"공주", u"Princess"},  {u"도둑", u"Thief"},      {u"연금술", u"Alchemy"},
    {u"기차", u"Train"},     {u"비행기", u"Airplane"}, {u"잠수함", u"Submarine"},
    {u"학교", u"School"},    {u"병원", u"Hospital"},
}};

inline constexpr std::array<WordPair, 14> kGenres{{
    {u"롤플레잉", u"RPG"},
    {u"액션/아케이드", u"Action/Arcade"},
    {u"어드벤처", u"Adventure"},
    {u"시뮬레이션", u"Simulation"},
    {u"슈팅", u"Shooting"},
    {u"보드/퍼즐", u"Board/Puzzle"},
    {u"스포츠/레이싱", u"Sports/Racing"},
    {u"대전/액션", u"Fighting/Action"},
    {u"전략", u"Strategy"},
    {u"교육", u"Education"},
    {u"카드", u"Card"},
    {u"음악", u"Music"},
    {u"도구", u"Utility"},
    {u"기타", u"ETC"},
}};

inline constexpr std::array<QStringView, 24> kMakerStems{
    u"미리", u"Aster",  u"한빛", u"Blue Pine", u"소프트온", u"Meridian",  u"남산",   u"Quartz",
    u"아라", u"Lumen",  u"가람", u"Oak Tree",  u"새벽별",   u"Pixelry",   u"두레",   u"Northgate",
    u"한울", u"Cobalt", u"나래", u"Sandbox",   u"다온",     u"Ironworks", u"푸른숲", u"Halcyon",
};

inline constexpr std::array<QStringView, 8> kMakerEndings{
    u"",
    u" Soft",
    u" Entertainment",
    u" 게임즈",
    u" 소프트",
    u" Studio",
    u" Interactive",
    u" 정보"};

inline constexpr std::array<QStringView, 6> kLanguages{
    u"한국어", u"영어", u"일본어", u"한국어, 영어", u"독일어", u"프랑스어"};

inline constexpr std::array<QStringView, 8> kCountries{
    u"미국", u"한국", u"일본", u"영국", u"대만", u"독일", u"프랑스", u"캐나다"};

} // namespace pelorin::bench
