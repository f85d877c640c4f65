// SPDX-License-Identifier: MIT
#include "book.h"

#include <QtCore/QRandomGenerator>

#include <span>

using namespace Qt::StringLiterals;

namespace {

using Words = std::span<const QStringView>;

//! What sentences are made of: when, who, what was done, and what came of it.
struct Story
{
    QStringView title;
    QStringView chapter;
    Words times;
    Words people;
    Words deeds;
    Words ends;
    Words talks;
};

constexpr QStringView englishTimes[] = {u"In the morning", u"Towards noon", u"When the fog had lifted",
    u"That night", u"A week later", u"Before the lamp was lit", u"While the kettle sang", u"At low tide",
    u"On the ninth day", u"As so often in spring"};
constexpr QStringView englishPeople[] = {u"the keeper", u"the old pilot", u"the postman", u"the doctor's son",
    u"the captain of the ferry", u"the watchmaker", u"the girl from the upper house", u"the cook"};
constexpr QStringView englishDeeds[] = {u"climbed the stairs of the lighthouse",
    u"counted the boats in the bay", u"wrote a long letter to the harbour office",
    u"mended the torn net by the window", u"rowed out to the black rock",
    u"listened to the wind in the chimney", u"found a bottle with a map in it",
    u"put the telescope back in its box", u"drew a line across the chart", u"waited for the mail boat"};
constexpr QStringView englishEnds[] = {u"and said nothing about it for a year",
    u"though nobody had asked for it", u"and the light went on turning as before",
    u"until the bell of the buoy was heard again", u"because a promise is a promise",
    u"and then there was tea for everyone", u"as if the storm had never been",
    u"and the cat watched all of it from the sill"};
constexpr QStringView englishTalks[] = {
    u"“Is it far to the island?” “Further than it looks, and nearer than you fear.”",
    u"“You have forgotten the lantern.” “I left it on purpose.”",
    u"“Who taught you to tie this knot?” “The sea did.”", u"“Will it rain?” “It has never asked me.”",
    u"“What do you see out there?” “The same as yesterday, but better.”"};

constexpr QStringView russianTimes[] = {u"Утром", u"Ближе к полудню", u"Когда рассеялся туман",
    u"Той же ночью", u"Через неделю", u"Ещё до того, как зажгли лампу", u"Пока закипал чайник",
    u"Во время отлива", u"На девятый день", u"Как это часто бывает весной"};
constexpr QStringView russianPeople[] = {u"смотритель", u"старый лоцман", u"почтальон", u"сын доктора",
    u"капитан парома", u"часовщик", u"мальчик из верхнего дома", u"повар"};
constexpr QStringView russianDeeds[] = {u"поднялся по лестнице маяка", u"пересчитал лодки в бухте",
    u"написал длинное письмо в контору порта", u"починил у окна порванную сеть",
    u"доплыл на вёслах до чёрной скалы", u"слушал, как гудит в трубе ветер", u"нашёл бутылку с картой внутри",
    u"убрал подзорную трубу в футляр", u"провёл на карте прямую линию", u"ждал почтовый катер"};
constexpr QStringView russianEnds[] = {u"и целый год никому об этом не говорил", u"хотя никто его не просил",
    u"а огонь маяка вращался, как прежде", u"пока снова не зазвонил колокол на буе",
    u"потому что обещания надо выполнять", u"а потом все пили чай", u"будто и не было никакой бури",
    u"и кошка смотрела на всё это с подоконника"};
constexpr QStringView russianTalks[] = {
    u"— Далеко ли до острова? — Дальше, чем кажется, и ближе, чем ты боишься.",
    u"— Ты забыл фонарь. — Я оставил его нарочно.", u"— Кто научил тебя вязать этот узел? — Море.",
    u"— Будет ли дождь? — Он у меня не спрашивал.",
    u"— Что ты там видишь? — То же, что вчера, только лучше."};

constexpr Story english{u"The Lighthouse on the Ninth Rock", u"Chapter %1", englishTimes, englishPeople,
    englishDeeds, englishEnds, englishTalks};
constexpr Story russian{u"Маяк на Девятой скале", u"Глава %1", russianTimes, russianPeople, russianDeeds,
    russianEnds, russianTalks};

class Teller
{
public:
    explicit Teller(const Story &story)
        : m_story(story)
    {
    }

    QString paragraph()
    {
        constexpr int talkEvery = 5;
        if (m_random.bounded(talkEvery) == 0)
            return one(m_story.talks).toString();
        QString result = sentence();
        for (int more = m_random.bounded(2, 6); more > 0; --more)
            result += u' ' + sentence();
        return result;
    }

private:
    QStringView one(Words words) { return words[size_t(m_random.bounded(int(words.size())))]; }

    QString sentence()
    {
        const QStringView time = one(m_story.times);
        const QStringView person = one(m_story.people);
        const QStringView deed = one(m_story.deeds);
        return u"%1, %2 %3, %4."_s.arg(time, person, deed, one(m_story.ends));
    }

    const Story &m_story;
    // Seeded alike, so that pictures of the book are.
    QRandomGenerator m_random{9};
};

} // namespace

int Book::chapters()
{
    return 60;
}

QString Book::text(const QString &language) const
{
    constexpr int paragraphs = 40;
    const Story &story = language == u"ru"_s ? russian : english;
    Teller teller(story);
    QString result = story.title.toString() + u"\n\n"_s;
    for (int chapter = 1; chapter <= chapters(); ++chapter) {
        result += story.chapter.toString().arg(chapter) + u"\n\n"_s;
        for (int i = 0; i < paragraphs; ++i)
            result += teller.paragraph() + u'\n';
        result += u'\n';
    }
    return result;
}
