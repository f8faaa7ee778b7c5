#include "settings/preferences.h"
#include "support/partial_option.h"
#include "sync/rsync_command.h"
#include "ui/movie_kinds.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(MovieKindsTest, FactoryKinds_GiveTheFactoryTemplate) {
    const QString factory = factoryValue(*preference(prefRsyncCommandString1)).toString();
    EXPECT_EQ(factoryTemplate(), factory);
    const auto kinds = kindsOfTemplate(factory);
    ASSERT_TRUE(kinds);
    QStringList taken;
    for (std::size_t i = 0; i < cMovieKinds.size(); ++i) {
        if (kinds->test(i))
            taken.append(cMovieKinds[i].suffix.toString());
    }
    EXPECT_EQ(taken.join(u' '), QStringLiteral("mov mp4 m4v mkv avi mpg mpeg webm mts"));
    EXPECT_EQ(templateWithKinds(*kinds), factory);
}

TEST(MovieKindsTest, EverySetOfKinds_ComesBackFromItsTemplate) {
    QSet<QString> templates;
    for (unsigned long long set = 0; set < (1ULL << cMovieKinds.size()); ++set) {
        const QString command = templateWithKinds(MovieKinds(set));
        const auto kinds = kindsOfTemplate(command);
        ASSERT_TRUE(kinds) << command.toStdString();
        ASSERT_EQ(kinds->to_ullong(), set) << command.toStdString();
        templates.insert(command);
    }
    EXPECT_EQ(templates.size(), 1 << cMovieKinds.size());
}

TEST(MovieKindsTest, ChangeOfOneSign_IsAPersonsOwn) {
    const QString factory = factoryTemplate();
    for (qsizetype i = 0; i < factory.size(); ++i) {
        EXPECT_FALSE(kindsOfTemplate(QString(factory).remove(i, 1))) << i;
        EXPECT_FALSE(kindsOfTemplate(QString(factory).insert(i, u'x'))) << i;
        EXPECT_FALSE(kindsOfTemplate(QString(factory).replace(i, 1, u'~'))) << i;
    }
}

TEST(MovieKindsTest, TemplateOfAnEarlierVersion_HasItsSuccessor) {
    for (const MovieKinds kinds : {*kindsOfTemplate(factoryTemplate()), MovieKinds(3)}) {
        const QString today = templateWithKinds(kinds);
        QString earlier = today;
        earlier.replace(cPartialOption.toString(), cPartialWord.toString());
        ASSERT_NE(earlier, today);
        EXPECT_EQ(successorOf(earlier), today);
        EXPECT_EQ(successorOf(today), std::nullopt);
        EXPECT_EQ(successorOf(earlier + u" -v"), std::nullopt) << "a person's own";
    }
    EXPECT_EQ(successorOf(u"rsync " + cPartialWord.toString() + u" a b"), std::nullopt);
}

TEST(MovieKindsTest, OtherTexts_AreAPersonsOwn) {
    const QString factory = factoryTemplate();
    QString swapped = factory;
    swapped.replace(QStringLiteral("*.[mM][kK][vV]"), QStringLiteral("#"))
        .replace(QStringLiteral("*.[aA][vV][iI]"), QStringLiteral("*.[mM][kK][vV]"))
        .replace(u'#', QStringLiteral("*.[aA][vV][iI]"));
    for (const QString& text :
         {QString(), QString(factory + u' '), QString(u' ' + factory), QString(factory + factory),
          swapped, cMovieCommandTemplate.toString()})
        EXPECT_FALSE(kindsOfTemplate(text)) << text.toStdString();
}

TEST(MovieKindsTest, FilesOfAKind_AreTakenInCapitalAndSmallLetters) {
    for (std::size_t i = 0; i < cMovieKinds.size(); ++i) {
        MovieKinds only;
        only.set(i);
        static const QRegularExpression taken(QStringLiteral("-f '\\+ (\\*\\.[^']*)'"));
        const auto found = taken.match(templateWithKinds(only));
        ASSERT_TRUE(found.hasMatch());
        const auto pattern = QRegularExpression::fromWildcard(found.captured(1), Qt::CaseSensitive);
        const QString suffix = cMovieKinds[i].suffix.toString();
        for (const QString& name : {suffix, suffix.toUpper()})
            EXPECT_TRUE(pattern.match(QString(u"a film." + name)).hasMatch()) << name.toStdString();
        EXPECT_FALSE(pattern.match(QString(u"a film." + suffix + u".part")).hasMatch());
    }
}

TEST(MovieKindsTest, KindsThatComeAnyway_AreThoseOfTheMovieTemplate) {
    static const QRegularExpression taken(QStringLiteral("-f '\\+ (\\*\\.[^']*)'"));
    const auto found = taken.match(cMovieCommandTemplate.toString());
    ASSERT_TRUE(found.hasMatch());
    const auto pattern = QRegularExpression::fromWildcard(found.captured(1), Qt::CaseSensitive);
    for (const MovieKind& kind : cMovieKinds)
        EXPECT_EQ(pattern.match(QString(u"a." + kind.suffix)).hasMatch(), kind.comesAnyway)
            << kind.suffix.toString().toStdString();
}

} // namespace
} // namespace kelvo
